#include "lessons/families/formulas/letter_terms.h"

#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::formulas {
namespace {

Fraction Opposite(const Fraction& f) {
  return {-f.num, f.den};
}

// Both signs stand in front, or the sum is turned round: never "-z + 4y".
bool BothNegative(const LetterSum& sum) {
  return sum.first.coef.num < 0 && sum.second.coef.num < 0;
}

std::string Over(const LetterSum& sum, const std::string& divisor) {
  if (BothNegative(sum)) return "-(" + SumText(-sum) + ")/" + divisor;
  return "(" + SumText(sum) + ")/" + divisor;
}

// The factor with its sign, then the sum in parentheses.
std::string Times(bool negative, const std::string& factor, const LetterSum& sum) {
  if (BothNegative(sum)) return Times(!negative, factor, -sum);
  return (negative ? "-" : "") + factor + "(" + SumText(sum) + ")";
}

}  // namespace

LetterTerm operator-(const LetterTerm& term) {
  return {Opposite(term.coef), term.letter};
}

LetterSum operator-(const LetterSum& sum) {
  return {-sum.first, -sum.second};
}

std::string TermText(const LetterTerm& term) {
  const std::string above = CoefText(term.coef.num) + term.letter;
  return term.coef.den == 1 ? above : FractionOfTexts(above, NumStr(term.coef.den));
}

std::string SignedTermText(const LetterTerm& term) {
  const bool negative = term.coef.num < 0;
  return tutor::Gap + (negative ? "-" : "+") + tutor::Gap + TermText(negative ? -term : term);
}

std::string SumText(const LetterSum& sum) {
  const bool turned = sum.first.coef.num < 0 && sum.second.coef.num > 0;
  const LetterTerm& first = turned ? sum.second : sum.first;
  const LetterTerm& second = turned ? sum.first : sum.second;
  return TermText(first) + SignedTermText(second);
}

std::string QuotientText(const LetterSum& sum, int divisor) {
  if (divisor < 0) return QuotientText(-sum, -divisor);
  return divisor == 1 ? SumText(sum) : Over(sum, NumStr(divisor));
}

std::string QuotientText(const LetterSum& sum, const std::string& letter) {
  return Over(sum, letter);
}

std::string ProductText(const Fraction& factor, const LetterSum& sum) {
  // Without a gap 5/9(F - 32) could be read as 5 over 9(F - 32).
  const std::string gap = factor.den == 1 ? "" : tutor::Gap;
  return Times(factor.num < 0, ValueText({std::abs(factor.num), factor.den}) + gap, sum);
}

std::string ProductText(const std::string& letter, const LetterSum& sum) {
  return Times(false, letter, sum);
}

}  // namespace course::formulas
