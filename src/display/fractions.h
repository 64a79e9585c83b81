// Built-up fractions over three rows.  The cursor's row is the middle one; it ends there, behind
// the bar.
#pragma once

#include <string>

namespace course {

// Cells: minWidth is the least width; barShift moves the bar down by rows; tighten moves the parts
// towards it.
void isPrintFraction(const std::string& num, const std::string& den, int minWidth = 0,
                     double barShift = 0, double tighten = 0);
// With marked exponents in the parts, and no clearing of the rows.
void isPrintFractionExp(const std::string& num, const std::string& den, int minWidth = 0);
// With radicals and colours in the parts, whose codes take no cell here, and no clearing of the
// rows but of the blank at the cursor.
void isPrintColouredFraction(const std::string& num, const std::string& den, int minWidth = 0);
// Cells of such a part: exponent and colour codes take none, a radicand's two backquotes one, the
// sign.
int FractionPartLength(const std::string& part);
// A reduced signed value, as a whole number or a fraction (improper ones stay so); 0 prints "0".
void isPrintFractionValue(int num, int den, int minWidth = 0, double barShift = 0);
// The same with the minus of a fraction 0.1 column to the left; reduces its arguments in place.
void PrintFraction(int& n, int& d, int minWidth = 0, double barShift = 0, double tighten = 0);

// The printed value's sign and parts, worked out once for every surface.
struct FractionParts {
  bool zero = false;
  bool negative = false;
  int num = 0;  // not negative
  int den = 1;  // positive
};
FractionParts PartsOf(int num, int den);

}  // namespace course
