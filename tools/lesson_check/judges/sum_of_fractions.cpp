// Two fractions to be added: "13/24 + 13/18", "6/13 + (-2)/5".
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"
#include "lesson_check/judges/two_fractions.h"

namespace lesson_check {
namespace {

void AddMistakes(const WrittenFraction& first, const WrittenFraction& second, Reading& reading) {
  const mpz_class common = lcm(first.below, second.below);
  const mpz_class byFirst = common / first.below;
  const mpz_class bySecond = common / second.below;
  const auto add = [&](const char* name, const mpz_class& above, const mpz_class& below) {
    reading.mistakes[name] = {QuotientText(above, below)};
  };
  add("adds the denominators too", first.above + second.above, first.below + second.below);
  add("keeps both numerators over the common denominator", first.above + second.above, common);
  add("renames the first fraction only", first.above * byFirst + second.above, common);
  add("renames the second fraction only", first.above + second.above * bySecond, common);
  add("multiplies each numerator by the factor of the other fraction",
      first.above * bySecond + second.above * byFirst, common);
  add("keeps the larger denominator", first.above + second.above,
      first.below > second.below ? first.below : second.below);
  const mpz_class sum = first.above * byFirst + second.above * bySecond;
  const mpz_class shared = gcd(sum, common);
  add("divides only the numerator by the common factor", sum / shared, common);
  add("divides only the denominator by the common factor", sum, common / shared);
  reading.mistakes["puts the remainder over the numerator"].clear();
  if (sum > common) add("puts the remainder over the numerator", 2 * sum - common, sum);
  reading.mistakes["leaves out the minus sign"].clear();
  if (first.above < 0 || second.above < 0)
    add("leaves out the minus sign", abs(first.above) * byFirst + abs(second.above) * bySecond,
        common);
}

Reading ReadSumOfFractions(const course::Problem& problem) {
  const auto [first, second] = TwoFractionsIn(problem, " + ");
  Reading reading;
  reading.answer = QuotientText(first.above * second.below + second.above * first.below,
                                first.below * second.below);
  reading.value = [](const std::string& choice) { return NumberIn(choice).get_str(); };
  reading.flaw = FlawOfMixedNumber;
  for (const WrittenFraction& fraction : {first, second})
    reading.Within("a denominator", Rational(fraction.below), 2, 30);
  AddMistakes(first, second, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadSumOfFractions, {"Adding Fractions"});

}  // namespace
}  // namespace lesson_check
