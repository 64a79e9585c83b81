// Lines of mathematics on a page, as a student would type them: "x^2^ - 5x + 6 = 0",
// "3/7 + 2/7 = 5/7", "(-3 + v17)/4" (v is tutor::SquareRoot).  Fractions are built up over three
// rows, radicals get their bar, exponents are raised; see display/stacked_text.h.
#pragma once

#include <string>

#include "engine/problem.h"

namespace course::page {

inline constexpr double kMathCol = 3;

// On the next row; half a row of air stands above a built-up line or a radical, and below a
// built-up one.
void Show(const std::string& math, double col = kMathCol);
// From a cell on; the row is the middle one of a built-up line.  A line that passes column 40, or
// rows 2 to 23, is an author's error and stops the program.
void ShowAt(double row, const std::string& math, double col = kMathCol);

// The last sentence of an explanation: the true answer, and where "None of the above" was a box and
// right, also that it is not among the choices.
void Conclude(const Problem& problem);
void ConcludeAt(double row, const Problem& problem);

}  // namespace course::page
