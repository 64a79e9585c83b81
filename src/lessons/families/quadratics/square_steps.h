// The steps in which completing the square solves a quadratic equation, page by page: division by
// the leading coefficient, the number to the right side, the square of half the number in front of
// x added to both sides, the square root of both.
#pragma once

#include "lessons/families/quadratics/quadratic.h"

namespace course::quadratics {

// The steps on new screens, with the problem in view.  The equation has two real roots, a term with
// x and a number.  What comes next goes on a new screen.
void SolveByCompleting(const Quadratic& equation);

}  // namespace course::quadratics
