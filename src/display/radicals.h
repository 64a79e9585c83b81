// Square roots: the sign in a cell of its own and a bar over the radicand.
#pragma once

#include <string>

namespace course {

// The sign at (row, col), the bar from there over width columns.
void isDrawRadical(double row, double col, double width);
// Text with radicands between backquotes, at most 5; widen lengthens the bar to the left.  An odd
// count of backquotes stops the program.
void isPrintRadicalText(const std::string& s, double widen = 0);
// A fraction whose parts may hold radicals.
void isPrintRadicalFraction(const std::string& num, const std::string& den, int minWidth = 0,
                            double barShift = 0, double tighten = 0);

}  // namespace course
