// What the lessons on powers show of division: a simplified quotient as text, a fraction whose
// factors are struck out, and exponents that slide together into a difference.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/powers/power_text.h"

namespace course::powers {

// A number times powers, simplified: powers with negative exponents stand in the denominator with
// positive ones, those with exponent 0 nowhere.  "4x^3^/y^2^", "1/(x^3^y^2^)", "1".  Two of them
// have the same value just when these texts are the same.
std::string QuotientText(int number, const std::vector<Power>& powers);

// Two powers of one base over each other, written out as factors from the same column on, so that
// each factor below stands under one above.  Up to 9 factors each.
class FactorFraction {
 public:
  // Two and a half rows of the lesson screen from the row on.
  FactorFraction(double row, double col, const Power& above, const Power& below);

  // Strikes out pair by pair.  The next Say goes on below.
  void Cancel() const;
  // To the right of the fraction, halfway down; the next Say goes on below.
  void ShowBehind(const std::string& math) const;
  double ColumnBehind() const;  // the first that is free

 private:
  double row_;
  double col_;
  int above_;  // factors
  int below_;
};

// Two powers of one base over each other; their exponents slide behind an equal sign and one base,
// and the difference follows.  Two and a half rows; the next Say goes on below.
void SlideExponentsToDifference(const Power& above, const Power& below, double row);

}  // namespace course::powers
