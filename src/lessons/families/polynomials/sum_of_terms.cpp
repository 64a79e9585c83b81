#include "lessons/families/polynomials/sum_of_terms.h"

#include <algorithm>
#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::polynomials {
namespace {

// Falling powers, and of the same degree x^2^ before xy before y^2^.
bool StandsBefore(const Term& a, const Term& b) {
  if (a.letters.size() != b.letters.size()) return a.letters.size() > b.letters.size();
  return a.letters < b.letters;
}

bool IsNegative(const Term& term) {
  return term.coef < 0;
}

}  // namespace

std::string LettersText(const std::string& letters) {
  std::string text;
  for (std::size_t at = 0; at < letters.size();) {
    const std::size_t next = std::min(letters.find_first_not_of(letters[at], at), letters.size());
    text += letters[at] + ExponentText(static_cast<int>(next - at));
    at = next;
  }
  return text;
}

std::string TermText(const Term& term) {
  if (term.letters.empty() || term.coef == 0) return NumStr(term.coef);
  return CoefText(term.coef) + LettersText(term.letters);
}

std::string LaterTermText(const Term& term) {
  const std::string sign = term.coef < 0 ? "-" : "+";
  return tutor::Gap + sign + tutor::Gap + TermText({std::abs(term.coef), term.letters});
}

std::string SumText(const Sum& sum) {
  if (sum.empty()) return "0";
  std::string text = TermText(sum.front());
  for (std::size_t i = 1; i < sum.size(); ++i) text += LaterTermText(sum[i]);
  return text;
}

Term Product(const Term& a, const Term& b) {
  Term product = {a.coef * b.coef, a.letters + b.letters};
  std::ranges::sort(product.letters);
  return product;
}

Sum Product(const Term& factor, const Sum& sum) {
  Sum product;
  for (const Term& term : sum) product.push_back(Product(factor, term));
  return product;
}

Term Quotient(const Term& term, const Term& divisor) {
  Term quotient = {divisor.coef == 0 ? 0 : term.coef / divisor.coef, term.letters};
  for (const char letter : divisor.letters)
    if (const std::size_t at = quotient.letters.find(letter); at != std::string::npos)
      quotient.letters.erase(at, 1);
  if (Product(quotient, divisor) != Product(term, {1, ""}))
    platform::Stop("Quotient: " + TermText(divisor) + " does not divide " + TermText(term));
  return quotient;
}

Sum Combined(const Sum& sum) {
  Sum combined;
  for (const Term& term : sum) {
    const auto like =
        std::ranges::find_if(combined, [&](const Term& other) { return other.IsLike(term); });
    if (like == combined.end())
      combined.push_back(term);
    else
      like->coef += term.coef;
  }
  std::erase_if(combined, [](const Term& term) { return term.coef == 0; });
  std::ranges::sort(combined, StandsBefore);
  return combined;
}

bool AllNegative(const Sum& sum) {
  return std::ranges::all_of(sum, IsNegative);
}

bool HasBothSigns(const Sum& sum) {
  return std::ranges::any_of(sum, IsNegative) && !AllNegative(sum);
}

int ValueAt(const Sum& sum, int number) {
  int value = 0;
  for (const Term& term : sum) {
    int product = term.coef;
    for (std::size_t i = 0; i < term.letters.size(); ++i) product *= number;
    value += product;
  }
  return value;
}

}  // namespace course::polynomials
