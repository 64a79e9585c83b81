// What the lessons on powers show alike: powers that unfold into their factors, and exponents that
// slide together into a sum.
#pragma once

#include "lessons/families/powers/power_text.h"

namespace course::powers {

// Two powers over the factors they stand for, in the middle of rows row to row + 2: each drops from
// its place and unfolds.  Up to 9 factors each fit; the cursor ends on the row below.
void UnfoldPowers(const Power& first, const Power& second, double row);

// The product of two powers of one base in the given row; two rows lower the exponents slide
// together behind one base, and the sum follows.  The cursor ends on the row below.
void SlideExponentsTogether(const Power& first, const Power& second, double row);

}  // namespace course::powers
