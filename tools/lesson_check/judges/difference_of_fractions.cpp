// Two fractions to be subtracted: "13/24 - 5/18", "5/13 - (-2)/5".
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"
#include "lesson_check/judges/two_fractions.h"

namespace lesson_check {
namespace {

void AddMistakes(const WrittenFraction& first, const WrittenFraction& second, Reading& reading) {
  const mpz_class common = lcm(first.below, second.below);
  const mpz_class byFirst = common / first.below;
  const mpz_class bySecond = common / second.below;
  const mpz_class from = first.above * byFirst;
  const mpz_class taken = second.above * bySecond;
  const bool negative = second.above < 0;
  const auto add = [&](const char* name, bool applies, const mpz_class& above,
                       const mpz_class& below) {
    std::vector<std::string>& values = reading.mistakes[name];
    if (applies) values.push_back(QuotientText(above, below));
  };
  const mpz_class above = first.above - second.above;
  add("leaves out one of the minus signs", negative, from + taken, common);
  add("adds the denominators too", negative, above, first.below + second.below);
  const bool bothLess = above > 0 && first.below > second.below;
  add("subtracts the denominators too", !negative && bothLess, above, first.below - second.below);
  add("takes the smaller number from the larger above and below", !negative && !bothLess,
      abs(above), abs(first.below - second.below));
  add("adds in place of subtracting", !negative, from + taken, common);
  add("keeps both numerators over the common denominator", above > 0, above, common);
  add("keeps both numerators and takes the smaller from the larger", above < 0, -above, common);
  add("renames the first fraction only", true, from - second.above, common);
  add("renames the second fraction only", true, first.above - taken, common);
  add("multiplies each numerator by the factor of the other fraction", true,
      first.above * bySecond - second.above * byFirst, common);
  const mpz_class shared = gcd(from - taken, common);
  add("divides only the numerator by the common factor", true, (from - taken) / shared, common);
  add("divides only the denominator by the common factor", true, from - taken, common / shared);
}

Reading ReadDifferenceOfFractions(const course::Problem& problem) {
  const auto [first, second] = TwoFractionsIn(problem, " - ");
  const mpz_class above = first.above * second.below - second.above * first.below;
  const mpz_class below = first.below * second.below;
  Reading reading;
  reading.answer = QuotientText(above, below);
  reading.value = [](const std::string& choice) { return NumberIn(choice).get_str(); };
  reading.flaw = FlawOfMixedNumber;
  if (above <= 0 || above >= below) reading.faults.push_back("the difference is " + reading.answer);
  for (const WrittenFraction& fraction : {first, second})
    reading.Within("a denominator", Rational(fraction.below), 2, 30);
  AddMistakes(first, second, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadDifferenceOfFractions, {"Subtracting Fractions"});

}  // namespace
}  // namespace lesson_check
