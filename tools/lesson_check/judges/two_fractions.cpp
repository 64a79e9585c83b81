#include "lesson_check/judges/two_fractions.h"

#include "lesson_check/exact/unreadable.h"

namespace lesson_check {

WrittenFraction ReadFraction(const Expression& written) {
  if (written.kind == Expression::Kind::Minus) {
    WrittenFraction fraction = ReadFraction(written.parts[0]);
    fraction.above = -fraction.above;
    return fraction;
  }
  if (written.kind != Expression::Kind::Quotient) throw Unreadable("not two fractions");
  return {ValueOf(written.parts[0]).Number().get_num(),
          ValueOf(written.parts[1]).Number().get_num()};
}

Expression TwoFractionsIn(const course::Problem& problem, Expression::Kind kind) {
  for (const std::string& line : problem.question) {
    if (line.find('/') == std::string::npos) continue;
    Expression both = ParseExpression(line);
    if (both.kind == kind && both.parts.size() == 2) return both;
  }
  throw Unreadable("the question has no two fractions");
}

std::string QuotientText(const mpz_class& above, const mpz_class& below) {
  if (below == 0) throw Unreadable("a division by 0");
  Rational quotient(above, below);
  quotient.canonicalize();
  return quotient.get_str();
}

}  // namespace lesson_check
