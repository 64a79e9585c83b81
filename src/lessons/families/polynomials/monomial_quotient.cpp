#include "lessons/families/polynomials/monomial_quotient.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace course::polynomials {
namespace {

constexpr char kLetters[] = {'x', 'y'};

std::optional<int> Exponent(char letter, int above, int below, Division::Exponents rule) {
  if (below == 0) return above;
  switch (rule) {
    case Division::Exponents::Added:
      return above + below;
    case Division::Exponents::Kept:
      return above;
    case Division::Exponents::Divided:
      if (above % below != 0) return std::nullopt;
      return above / below;
    case Division::Exponents::XCancelled:
      return letter == 'x' ? 0 : above - below;
    case Division::Exponents::YCancelled:
      return letter == 'y' ? 0 : above - below;
    default:
      return above - below;
  }
}

int Coefficient(int above, int below, Division::Numbers rule) {
  switch (rule) {
    case Division::Numbers::Subtracted:
      return above > 0 ? above - below : above + below;  // the sizes, with the sign of the term
    case Division::Numbers::Kept:
      return above;
    default:
      return above / below;
  }
}

std::optional<Term> Divided(const Term& term, const Term& divisor, const Division& division) {
  Term result = {Coefficient(term.coef, divisor.coef, division.numbers), ""};
  for (const char letter : kLetters) {
    const std::optional<int> exponent =
        Exponent(letter, ExponentOf(term, letter), ExponentOf(divisor, letter), division.exponents);
    if (!exponent) return std::nullopt;
    result.letters += std::string(static_cast<std::size_t>(*exponent), letter);
  }
  return result;
}

std::vector<DivisionSlip> Leading(const MonomialQuotient& quotient,
                                  std::vector<DivisionSlip> slips) {
  std::erase_if(slips, [&](const DivisionSlip& slip) {
    const Sum sum = slip.division.Of(quotient);
    return sum.empty() || sum == quotient.Value();
  });
  return slips;
}

std::string PowersOf(int x, int y) {
  return std::string(static_cast<std::size_t>(x), 'x') +
         std::string(static_cast<std::size_t>(y), 'y');
}

struct DrawnTerm {
  int coef, x, y;
};
DrawnTerm DrawTerm(RandomStream& random, int divisor) {
  DrawnTerm term{};
  term.coef = divisor * random.Rand(2, 6);
  term.x = random.Rand(2, 7);
  term.y = random.Rand(2, 7);
  return term;
}

}  // namespace

// More than half of the draws are accepted.
MonomialQuotient DrawMonomialQuotient(RandomStream& random) {
  for (;;) {
    const int divisor = random.Rand(2, 10);
    const int x = random.Rand(0, 4);
    const int y = random.Rand(0, 4);
    DrawnTerm first = DrawTerm(random, divisor);
    DrawnTerm second = DrawTerm(random, divisor);
    const int sign = random.Sign();
    if (first.x < second.x) std::swap(first, second);
    if (first.x == second.x) continue;                          // no falling powers of x
    if (second.x < x || first.y < y || second.y < y) continue;  // a letter stays below the bar
    return {{{first.coef, PowersOf(first.x, first.y)},
             {sign * second.coef, PowersOf(second.x, second.y)}},
            {divisor, PowersOf(x, y)}};
  }
}

int ExponentOf(const Term& term, char letter) {
  return static_cast<int>(std::ranges::count(term.letters, letter));
}

std::string FractionText(const Sum& above, const Term& below) {
  const std::string numerator = SumText(above);
  const std::string denominator = TermText(below);
  return (above.size() > 1 ? "(" + numerator + ")" : numerator) + "/" +
         (below.letters.empty() ? denominator : "(" + denominator + ")");
}

std::string MonomialQuotient::Text() const {
  return FractionText(terms, divisor);
}

Sum MonomialQuotient::Value() const {
  Sum value;
  for (const Term& term : terms) value.push_back(Quotient(term, divisor));
  return value;
}

Sum Division::Of(const MonomialQuotient& quotient) const {
  const bool dividesNothing = exponents == Exponents::Kept && numbers == Numbers::Kept;
  if (dividesNothing) return {};
  Sum sum;
  for (std::size_t i = 0; i < quotient.terms.size(); ++i) {
    const bool undivided = terms == (i == 0 ? Terms::SecondOnly : Terms::FirstOnly);
    const std::optional<Term> term =
        undivided ? quotient.terms[i] : Divided(quotient.terms[i], quotient.divisor, *this);
    if (!term) return {};
    sum.push_back(*term);
    if (losesMinus) sum.back().coef = std::abs(term->coef);
  }
  if (sum[0].IsLike(sum[1])) return {};
  return sum;
}

std::vector<DivisionSlip> TooManyLetters(const MonomialQuotient& quotient) {
  return Leading(quotient, {{"adds the exponents", {.exponents = Division::Exponents::Added}},
                            {"keeps the exponents", {.exponents = Division::Exponents::Kept}}});
}

std::vector<DivisionSlip> TooFewLetters(const MonomialQuotient& quotient) {
  std::vector<DivisionSlip> slips = {
      {"divides the exponents", {.exponents = Division::Exponents::Divided}},
      {"cancels x altogether", {.exponents = Division::Exponents::XCancelled}},
      {"cancels y altogether", {.exponents = Division::Exponents::YCancelled}}};
  // Who divides by exponents of 1 is seen to keep the exponents.
  if (std::ranges::all_of(kLetters,
                          [&](char letter) { return ExponentOf(quotient.divisor, letter) <= 1; }))
    slips.erase(slips.begin());
  return Leading(quotient, slips);
}

std::vector<DivisionSlip> OtherSlips(const MonomialQuotient& quotient) {
  return Leading(quotient,
                 {{"divides only the first term", {.terms = Division::Terms::FirstOnly}},
                  {"subtracts the numbers in front", {.numbers = Division::Numbers::Subtracted}},
                  {"keeps the numbers in front", {.numbers = Division::Numbers::Kept}},
                  {"divides only the second term", {.terms = Division::Terms::SecondOnly}},
                  {"loses the minus sign", {.losesMinus = true}}});
}

DivisionSlip Both(const DivisionSlip& exponents, const DivisionSlip& other) {
  DivisionSlip both = {exponents.mistake + " and " + other.mistake, other.division};
  both.division.exponents = exponents.division.exponents;
  return both;
}

}  // namespace course::polynomials
