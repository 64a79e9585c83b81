// Two fractions to be multiplied: "4/15 x 5/8".
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"
#include "lesson_check/judges/two_fractions.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

void AddMistakes(const WrittenFraction& first, const WrittenFraction& second, Reading& reading) {
  const mpz_class above = first.above * second.above;
  const mpz_class below = first.below * second.below;
  const mpz_class struck = gcd(above, below);
  const mpz_class bothAbove = gcd(first.above, second.above);
  const mpz_class bothBelow = gcd(first.below, second.below);
  const auto add = [&](const char* name, const mpz_class& n, const mpz_class& d) {
    reading.mistakes[name] = {QuotientText(n, d)};
  };
  add("multiplies crosswise", first.above * second.below, first.below * second.above);
  add("strikes out above only", above / struck, below);
  add("strikes out below only", above, below / struck);
  add("adds in place of multiplying", first.above * second.below + second.above * first.below,
      below);
  add("adds the denominators", above, first.below + second.below);
  add("adds above and below", first.above + second.above, first.below + second.below);
  add("strikes out both numerators", above / (bothAbove * bothAbove), below);
  add("strikes out both denominators", above, below / (bothBelow * bothBelow));
  const mpz_class common = lcm(first.below, second.below);
  add("keeps the common denominator",
      first.above * (common / first.below) * second.above * (common / second.below), common);
}

Reading ReadProductOfFractions(const course::Problem& problem) {
  const auto [first, second] = TwoFractionsIn(problem, " " + course::tutor::Times + " ");
  Reading reading;
  reading.answer = QuotientText(first.above * second.above, first.below * second.below);
  reading.value = [](const std::string& choice) { return NumberIn(choice).get_str(); };
  reading.flaw = FlawOfMixedNumber;
  for (const WrittenFraction& fraction : {first, second}) {
    reading.Within("a denominator", Rational(fraction.below), 2, 30);
    if (fraction.above < 1 || fraction.above >= fraction.below)
      reading.faults.emplace_back("a fraction is not proper");
  }
  const mpz_class falling = gcd(first.above, second.below);
  const mpz_class rising = gcd(second.above, first.below);
  if (falling == 1 && rising == 1) reading.faults.emplace_back("nothing can be struck out");
  reading.kind = falling > 1 && rising > 1 ? "two pairs struck out" : "one pair struck out";
  AddMistakes(first, second, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadProductOfFractions, {"Multiplying Fractions"});

}  // namespace
}  // namespace lesson_check
