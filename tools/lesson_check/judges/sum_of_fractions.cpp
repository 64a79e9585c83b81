// Two fractions to be added: "13/24 + 13/18", "6/13 + (-2)/5".
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

// As it is written: with the sign above, and not reduced.
struct Fraction {
  mpz_class above;
  mpz_class below;
};

Fraction ReadFraction(const Expression& written) {
  if (written.kind == Kind::Minus) {
    Fraction fraction = ReadFraction(written.parts[0]);
    fraction.above = -fraction.above;
    return fraction;
  }
  if (written.kind != Kind::Quotient) throw Unreadable("not two fractions");
  return {ValueOf(written.parts[0]).Number().get_num(),
          ValueOf(written.parts[1]).Number().get_num()};
}

std::string Quotient(const mpz_class& above, const mpz_class& below) {
  if (below == 0) throw Unreadable("a division by 0");
  Rational quotient(above, below);
  quotient.canonicalize();
  return quotient.get_str();
}

void AddMistakes(const Fraction& first, const Fraction& second, Reading& reading) {
  const mpz_class common = lcm(first.below, second.below);
  const mpz_class byFirst = common / first.below;
  const mpz_class bySecond = common / second.below;
  const auto add = [&](const char* name, const mpz_class& above, const mpz_class& below) {
    reading.mistakes[name] = {Quotient(above, below)};
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

Expression SumIn(const course::Problem& problem) {
  for (const std::string& line : problem.question) {
    if (line.find('/') == std::string::npos) continue;
    Expression sum = ParseExpression(line);
    if (sum.kind == Kind::Sum && sum.parts.size() == 2) return sum;
  }
  throw Unreadable("the question has no sum of two fractions");
}

// Two fractions to be added; subtracting is adding a negative one.
Reading ReadSumOfFractions(const course::Problem& problem) {
  const Expression sum = SumIn(problem);
  Reading reading;
  reading.answer = ValueOf(sum).Number().get_str();
  reading.value = [](const std::string& choice) { return NumberIn(choice).get_str(); };
  reading.flaw = FlawOfMixedNumber;
  const Fraction first = ReadFraction(sum.parts[0]);
  const Fraction second = ReadFraction(sum.parts[1]);
  for (const Fraction& fraction : {first, second})
    reading.Within("a denominator", Rational(fraction.below), 2, 30);
  AddMistakes(first, second, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadSumOfFractions, {"Adding Fractions"});

}  // namespace
}  // namespace lesson_check
