// Sums whose like terms are to be combined, with products such as 3(2x - 5) among their terms or
// without.
#pragma once

#include "lesson_check/judge.h"

namespace lesson_check {

// The last line of the question is the sum.
Reading ReadCombinedSum(const course::Problem& problem);

// A term without its coefficient, and the coefficient; unreadable when the value is no single term.
Polynomial LettersOf(const Polynomial& term);
Rational CoefficientOf(const Polynomial& term);

}  // namespace lesson_check
