// A number line from -9 to 9 under an equation sheet, on which a sum is walked: a mark with its
// number goes from the first number to the sum.
#pragma once

namespace course::equations {

// It stands on rows 11 to 15 of the lesson screen, between a sheet of one addition and the word
// box.
void DrawWalkLine(int start);
// The mark goes on by so many units, to the left with a negative number.  A hollow one stays where
// it was, and an arrow tells how far it went.
void WalkFrom(int start, int step);

}  // namespace course::equations
