// What the lessons on factoring show alike: numbers that rise into the factors waiting for them.
#pragma once

#include "lessons/families/polynomials/trinomial.h"

namespace course::polynomials {

// "(x    )(x    )" at a column of the row, with room for the constants of these factors.
void ShowOpenFactors(double row, double col, const Factors& factors);
// The same, and the constants rise into it from two rows below, one after the other.
void RaiseConstants(double row, double col, const Factors& factors);

}  // namespace course::polynomials
