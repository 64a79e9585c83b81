// Figures of a product of two factors, which show where its four terms come from.
#pragma once

#include "lessons/families/polynomials/trinomial.h"

namespace course::factoring {

using polynomials::Factors;

// Bows at a product such as "(x + 3)(2x + 1)" that is printed at the cell: a yellow one above it
// between its outer terms, a cyan one below it between the inner ones.
void DrawOuterAndInner(double row, double col, const Factors& factors);

// Print cells under all that stands on the page: a column for each term of the first factor, a row
// for each of the second.  They are empty.
void ShowProductTable(const Factors& factors);
// The four products appear in them.
void FillProductTable(const Factors& factors);

}  // namespace course::factoring
