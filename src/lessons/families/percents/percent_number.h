// A number as a percent and as a decimal number, and the point that moves between the two.
#pragma once

#include <string>

#include "lessons/families/powers/scientific.h"

namespace course::percents {

// Digits of which the first and the last are not 0, with the decimal number's point behind so many
// of them: "45" and 0 are 0.45 and 45%, "4" and -1 are 0.04 and 4%, "25" and 1 are 2.5 and 250%.
struct PercentNumber {
  std::string digits;
  int before = 0;

  std::string DecimalText() const { return powers::DecimalText(digits, before); }
  std::string PercentText() const;
};

// "0.4" and "13,395": NumStr, with a 0 before a point that would begin the text, and commas from
// 1,000 on.
std::string DecimalOf(double x);

// The digits in a row of the lesson screen, and below them once more when the point has moved two
// places: four rows from the row on.  A percent sign stands behind the digits before the movement
// or after it.
class PercentPoint {
 public:
  static PercentPoint ToPercent(double row, const PercentNumber& number);
  static PercentPoint ToDecimal(double row, const PercentNumber& number);

  // In the lower row zeros come up where the point finds no digit, and go where they are not needed
  // any more.  The next Say goes on below.
  void Move();

 private:
  PercentPoint(double row, const std::string& digits, int before, int places);
  powers::MovingPoint ShowNumber(double row) const;
  static void PrintSign(double row, const powers::MovingPoint& point, int digits);

  double row_;
  std::string digits_;
  int before_;
  int places_;
};

}  // namespace course::percents
