// The steps in which the quadratic formula solves an equation, page by page: its coefficients are
// read off and put in, the discriminant is worked out in the wiper box, the fraction is simplified.
// The lesson shows them for its example on a teaching screen, and for a problem in its explanation.
#pragma once

#include <string>

#include "lessons/families/quadratics/quadratic.h"

namespace course::quadratics {

// "x = ...", for PrintStackedRow.
std::string QuadraticFormulaText();
// "ax^2^ + bx + c = 0" with its letters in yellow and its terms wide apart.
void PrintStandardForm(double row);
// "(centre +- spread)/den" for PrintStackedRow.
std::string RootsOver(int centre, const std::string& spread, int den);

// From row 5 of a page that has a heading above it.  Ends at the roots, or at "No real roots".
void SolveByFormula(const Quadratic& equation);

// The terms below those of PrintStandardForm, on row 9.
void PrintSpreadEquation(const Quadratic& equation);
// A copy of each term slides down to row 12 and turns into the value of its letter.
void TurnTermsIntoValues(const Quadratic& equation);
// A text of the row slips out below it, goes so many columns to the right, or to the left when they
// are negative, and comes back into the row.  The row below is free.
void CarryAcross(double row, int column, int width, int columns);

}  // namespace course::quadratics
