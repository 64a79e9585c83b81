#include "lesson_check/judges/two_fractions.h"

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"

namespace lesson_check {

namespace {

WrittenFraction ReadFraction(const std::string& text) {
  const Expression written = ParseExpression(text);
  if (written.kind != Expression::Kind::Quotient) throw Unreadable("no fraction: " + text);
  return {ValueOf(written.parts[0]).Number().get_num(),
          ValueOf(written.parts[1]).Number().get_num()};
}

}  // namespace

TwoFractions TwoFractionsIn(const course::Problem& problem, const std::string& sign) {
  for (const std::string& line : problem.question) {
    const std::size_t place = line.find(sign);
    if (line.find('/') == std::string::npos || place == std::string::npos) continue;
    return {ReadFraction(line.substr(0, place)), ReadFraction(line.substr(place + sign.size()))};
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
