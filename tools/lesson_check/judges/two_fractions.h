// A question with two fractions between which a sign stands: "13/24 + 13/18", "3/4 x 8/15".
#pragma once

#include <string>

#include "engine/problem.h"
#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

// As it is written: with the sign above, and not reduced.
struct WrittenFraction {
  mpz_class above;
  mpz_class below;
};

struct TwoFractions {
  WrittenFraction first;
  WrittenFraction second;
};
// Of the question's line in which the sign stands between two blanks, " + ".  A negative second
// fraction keeps its own sign: "5/13 - (-2)/5" has -2 above.  Unreadable when there is no such
// line.
TwoFractions TwoFractionsIn(const course::Problem& problem, const std::string& sign);
// The canonical text of a quotient; unreadable with a divisor of 0.
std::string QuotientText(const mpz_class& above, const mpz_class& below);

}  // namespace lesson_check
