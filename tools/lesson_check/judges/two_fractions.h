// A question with two fractions between which a sign stands: "13/24 + 13/18", "3/4 x 8/15".
#pragma once

#include <string>

#include "engine/problem.h"
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

// As it is written: with the sign above, and not reduced.
struct WrittenFraction {
  mpz_class above;
  mpz_class below;
};

// Unreadable when it is no fraction, with or without a minus sign.
WrittenFraction ReadFraction(const Expression& written);
// The question's line with fractions; its two parts are joined as the kind says.  Unreadable when
// there is no such line.
Expression TwoFractionsIn(const course::Problem& problem, Expression::Kind kind);
// The canonical text of a quotient; unreadable with a divisor of 0.
std::string QuotientText(const mpz_class& above, const mpz_class& below);

}  // namespace lesson_check
