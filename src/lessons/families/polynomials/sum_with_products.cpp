#include "lessons/families/polynomials/sum_with_products.h"

#include <cstdlib>

#include "mathkit/expressions.h"

namespace course::polynomials {
namespace {

std::string PartText(const Part& part, bool isFirst) {
  if (!part.IsProduct()) return isFirst ? TermText(part.inside[0]) : LaterTermText(part.inside[0]);
  return (isFirst ? CoefText(part.factor) : SignedCoefText(part.factor)) + "(" +
         SumText(part.inside) + ")";
}

// The terms when each product is worked out in some way.
template <class Worked>
Sum WorkedOut(const SumWithProducts& sum, Worked worked) {
  Sum terms;
  for (const Part& part : sum) {
    const Sum more = part.IsProduct() ? worked(part) : part.inside;
    terms.insert(terms.end(), more.begin(), more.end());
  }
  return terms;
}

Sum FirstTermAlone(const Part& part) {
  return {Product({part.factor, ""}, part.inside[0]), part.inside[1]};
}

Sum MinusForFirstTerm(const Part& part) {
  return {Product({part.factor, ""}, part.inside[0]),
          Product({std::abs(part.factor), ""}, part.inside[1])};
}

Sum FactorAdded(const Part& part) {
  Sum sum = part.inside;
  for (Term& term : sum) term.coef += part.factor;
  return sum;
}

// 7 - 3(2x - 5) begins with a number.
bool CanBeReadFromLeftToRight(const SumWithProducts& sum) {
  return sum.size() == 2 && !sum[0].IsProduct() && sum[0].inside[0].letters.empty();
}

// It becomes 4(2x - 5).
Sum LeftToRight(const SumWithProducts& sum) {
  return Product({sum[0].inside[0].coef + sum[1].factor, ""}, sum[1].inside);
}

}  // namespace

std::string SumText(const SumWithProducts& sum) {
  std::string text;
  for (const Part& part : sum) text += PartText(part, text.empty());
  return text;
}

Sum MultipliedOut(const SumWithProducts& sum) {
  return WorkedOut(sum, [](const Part& part) { return Product({part.factor, ""}, part.inside); });
}

std::vector<Slip> ProductSlips(const SumWithProducts& sum) {
  std::vector<Slip> slips = ReadingSlips(MultipliedOut(sum));
  slips.push_back(
      {"multiplies only the first term in the parentheses", WorkedOut(sum, FirstTermAlone)});
  slips.push_back(
      {"carries the minus sign to the first term only", WorkedOut(sum, MinusForFirstTerm)});
  slips.push_back({"adds the factor instead of multiplying", WorkedOut(sum, FactorAdded)});
  if (CanBeReadFromLeftToRight(sum))
    slips.push_back({"works from left to right", LeftToRight(sum)});
  return slips;
}

}  // namespace course::polynomials
