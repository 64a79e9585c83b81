// What the lessons on powers show alike: powers that unfold into their factors, a
// table of bases and exponents, and exponents that slide together into a sum.
#pragma once

#include "lessons/families/powers/power_text.h"

namespace course::powers {

// Two powers over the factors they stand for, in the middle of rows row to row + 2: each drops from
// its place and unfolds.  Up to 9 factors each fit; the cursor ends on the row below.
void UnfoldPowers(const Power& first, const Power& second, double row);

// A table with the bases over the exponents of two powers, and an empty column for their product.
void ShowPowersTable(const Power& first, const Power& second, double row);
void FillInProduct(const Power& product);

// The product of two powers of one base in the given row; two rows lower the exponents slide
// together behind an equal sign and one base, and the sum follows.  The cursor ends on the row
// below.
void SlideExponentsTogether(const Power& first, const Power& second, double row);

}  // namespace course::powers
