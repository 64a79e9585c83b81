#include "lessons/families/factoring/common_monomial.h"

#include "mathkit/integers.h"

namespace course::factoring {

using polynomials::Sum;
using polynomials::Term;

namespace {

std::size_t PowerOf(const Term& term) {
  return term.letters.size();
}

// The smallest divisor of a number, 1 aside.
int SmallestDivisor(int number) {
  int divisor = 2;
  while (number % divisor != 0) ++divisor;
  return divisor;
}

}  // namespace

std::string TakenOutText(const TakenOut& taken) {
  return TermText(taken.factor) + "(" + SumText(taken.inside) + ")";
}

TakenOut Reversed(TakenOut taken) {
  taken.inside.back().coef *= -1;
  return taken;
}

Term CommonMonomial::Factor(int number, int power) const {
  return {number, std::string(static_cast<std::size_t>(power), letter)};
}

Term CommonMonomial::Signed(Term term, int i) const {
  if (i == 1 && minus) term.coef *= -1;
  return term;
}

Term CommonMonomial::TermAt(int i) const {
  return Factor(numbers[i], powers[i]);
}

Term CommonMonomial::Quotient(int i) const {
  return Factor(numbers[i] / CommonNumber(), powers[i] - powers[1]);
}

int CommonMonomial::CommonNumber() const {
  return Gcf(numbers[0], numbers[1]);
}

TakenOut CommonMonomial::Rest(const Term& factor, const Term& first, Term second) const {
  if (minus) second.coef *= -1;
  return {factor, {first, second}};
}

std::string CommonMonomial::Text() const {
  return SumText(Rest({}, TermAt(0), TermAt(1)).inside);
}

TakenOut CommonMonomial::Take(const Term& factor) const {
  const auto divided = [&](int i) {
    return Factor(numbers[i] / factor.coef, powers[i] - static_cast<int>(PowerOf(factor)));
  };
  return Rest(factor, divided(0), divided(1));
}

std::vector<FactoringMistake> CommonMonomial::PowerMistakes() const {
  const int first = Quotient(0).coef;
  const Term second = Factor(Quotient(1).coef, 0);
  return {
      {"leaves the exponent inside as it was",
       Rest(CommonFactor(), Factor(first, powers[0]), second)},
      {"divides only the numbers",
       Rest(CommonFactor(), Factor(first, powers[0]), Factor(second.coef, powers[1]))},
      {"adds the exponents", Rest(CommonFactor(), Factor(first, powers[0] + powers[1]), second)},
      TakesOnlyNumber(),
  };
}

std::vector<FactoringMistake> CommonMonomial::NumberMistakes() const {
  const Term undivided = Factor(numbers[1], 0);
  std::vector<FactoringMistake> mistakes = {
      {"divides only the first term", Rest(CommonFactor(), Quotient(0), undivided)},
      {"divides only the powers",
       Rest(CommonFactor(), Factor(numbers[0], powers[0] - powers[1]), undivided)},
      TakesOnlyPower(),
  };
  AddNumberLeft(mistakes);
  return mistakes;
}

std::vector<FactoringMistake> CommonMonomial::FactorMistakes() const {
  const int common = CommonNumber();
  std::vector<FactoringMistake> mistakes;
  if (powers[1] > 1)
    mistakes.push_back({"leaves a common letter inside", Take(Factor(common, powers[1] - 1))});
  AddNumberLeft(mistakes);
  mistakes.push_back(
      {"takes out the higher power", Rest(Factor(common, powers[0]), Factor(Quotient(0).coef, 0),
                                          Factor(Quotient(1).coef, powers[1]))});
  mistakes.push_back(TakesOnlyPower());
  mistakes.push_back(TakesOnlyNumber());
  return mistakes;
}

FactoringMistake CommonMonomial::TakesOnlyNumber() const {
  return {"takes out only the number", Take(Factor(CommonNumber(), 0))};
}

FactoringMistake CommonMonomial::TakesOnlyPower() const {
  return {"takes out only the power", Take(Factor(1, powers[1]))};
}

void CommonMonomial::AddNumberLeft(std::vector<FactoringMistake>& mistakes) const {
  const int part = CommonNumber() / SmallestDivisor(CommonNumber());
  if (part > 1)
    mistakes.push_back({"leaves a common number inside", Take(Factor(part, powers[1]))});
}

}  // namespace course::factoring
