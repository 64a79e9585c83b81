// The worked steps of combining like terms, with print cells.
#pragma once

#include "lessons/families/polynomials/gathering_table.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/families/polynomials/sum_with_products.h"

namespace course::polynomials {

// Combines the terms page by page: prints the sum on the row, gathers its terms in print cells
// below, adds each column and tells why, and ends with the result.  No PageEnd behind the last
// line.
void CombineAloud(const Sum& sum, double row, KindNames names = KindNames::Letters);

// Puts 2 in place of the letter in an expression and in its combined terms, on a screen of its own.
void CheckInNumbers(const SumWithProducts& expression);

}  // namespace course::polynomials
