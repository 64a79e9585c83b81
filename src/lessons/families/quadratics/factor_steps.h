// The steps in which factoring solves a quadratic equation, page by page: the common factor is
// taken out, what is left is factored, and each factor is set to 0.  The equation stands in view on
// every page.
#pragma once

#include <string>

#include "lessons/families/polynomials/trinomial.h"
#include "lessons/families/quadratics/quadratic.h"
#include "mathkit/fraction.h"

namespace course::quadratics {

using polynomials::Binomial;
using polynomials::Factors;

// "(x + 3)(2x - 5) = 0".
std::string IsZero(const Factors& factors);
// The number for which the factor is 0.
Fraction SolutionOf(const Binomial& factor);

// Both factors are set to 0 side by side and solved, one operation a line, each behind its name;
// two that are the same once.  A page ends before a division.  They take up to eight rows from this
// one on; the next Say goes on below.
void SolveFactors(double row, const Factors& factors);

// The steps from the problem's banner to the solutions.  The factors are those of the equation
// without its common factor; x is positive in both.  What comes next goes on a new screen.
void SolveByFactoring(const Quadratic& equation, const Factors& factors);

}  // namespace course::quadratics
