// The steps in which the quadratic formula solves an equation, page by page: its coefficients are
// read off and put in, the discriminant is worked out in the white box, the fraction is simplified,
// and a rational root is put back.  The equation stands in view on every page.  The lesson shows
// the steps for its examples on teaching screens, and for a problem in its explanation.
#pragma once

#include <string>

#include "lessons/families/quadratics/quadratic.h"

namespace course::quadratics {

// "x = ...", for Show.
std::string QuadraticFormulaText();
// "ax^2^ + bx + c = 0" with its letters in yellow and its terms wide apart.
void ShowStandardForm(double row);
// "(centre +- spread)/den" for Show; a centre of 0 is left out.
std::string RootsOver(int centre, const std::string& spread, int den);
// "4 . a . c" with negative numbers in parentheses.
std::string ProductText(int a, int b, int c);

// The terms below those of ShowStandardForm, on row 9.
void ShowSpreadEquation(const Quadratic& equation);
// A copy of each term slides down to row 12 and turns into the value of its letter.
void TurnTermsIntoValues(const Quadratic& equation);
// A text of the row slips out below it, goes so many columns to the right, or to the left when they
// are negative, and comes back into the row.  The row below is free.
void CarryAcross(double row, double column, double width, double columns);

// The words in white, and behind them the roots in yellow, built up and with bars over their
// radicals.
void ShowRoots(const std::string& words, const RootPair& roots, const std::string& end = "");

// The page on which a, b and c are read off, under its heading.
void ReadOff(const Quadratic& equation);

// What the student is asked on the way; an explanation asks nothing.
enum class Asked { Nothing, Discriminant, ValuesToo };
// The steps from there to the roots, or to no real ones, on new screens.  What comes next goes on
// below the last line, and on a new screen behind rational roots.
void SolveWithFormula(const Quadratic& equation, Asked asked = Asked::Nothing);
// One of the rational roots is put back, on a new screen.
void CheckRoot(const Quadratic& equation);
// Each of the rational roots, on a screen of its own.
void CheckEveryRoot(const Quadratic& equation);

}  // namespace course::quadratics
