#include "lessons/families/polynomials/sum_with_products.h"

#include <algorithm>
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
  Sum sum = Product({std::abs(part.factor), ""}, part.inside);
  sum[0] = Product({part.factor, ""}, part.inside[0]);
  return sum;
}

Sum FactorAdded(const Part& part) {
  Sum sum = part.inside;
  for (Term& term : sum) term.coef += part.factor;
  return sum;
}

// 3x - 3x comes out as x.
Sum VanishedKept(const Sum& terms) {
  const Sum rest = Combined(terms);
  Sum wrong = terms;
  for (const Term& term : terms) {
    const auto isLike = [&](const Term& other) { return other.IsLike(term); };
    if (term.letters.empty() || std::ranges::any_of(rest, isLike)) continue;
    std::erase_if(wrong, isLike);
    wrong.push_back({1, term.letters});
    break;
  }
  return wrong;
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

std::vector<Slip> BracketSlips(const SumWithProducts& sum) {
  const auto withFactors = [&](int first, int second) {
    return MultipliedOut({{sum[0].inside, first}, {sum[1].inside, second}});
  };
  const Sum terms = MultipliedOut(sum);
  std::vector<Slip> slips = ReadingSlips(terms, LoneName::Term);
  if (sum[1].factor < 0) {
    slips = {{"carries the minus sign to the first term only", WorkedOut(sum, MinusForFirstTerm)},
             {"adds instead of subtracting", withFactors(1, 1)},
             {"subtracts the first polynomial from the second", withFactors(-1, 1)},
             slips[0]};
  } else {
    slips.push_back({"subtracts instead of adding", withFactors(1, -1)});
  }
  slips.push_back({"keeps the letter of a term that is 0", VanishedKept(terms)});
  return slips;
}

}  // namespace course::polynomials
