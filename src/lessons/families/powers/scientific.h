// Numbers in scientific notation, and the decimal point that moves through their digits.
#pragma once

#include <string>

namespace course::powers {

// A first factor of at least 1 and less than 10 times a power of ten: digits "314" and exponent -2
// are 3.14 times 10^-2.  The first digit and the last one are not 0.
struct ScientificNumber {
  std::string digits;
  int exponent = 0;
};

// Digits with a point behind so many of them: zeros fill what is missing at either side, and groups
// of three before the point are set off by commas.  "0.00314" for -2, "31,400" for 5.
std::string DecimalText(const std::string& digits, int before);
// As it is usually written: "0.0314".
std::string StandardText(const ScientificNumber& number);
// "3.14 x 10^-2^".
std::string ScientificText(const ScientificNumber& number);
// A first factor with so many digits before its point, times 10 to the exponent.
std::string TimesPowerOfTen(const std::string& digits, int before, int exponent);

// Digits side by side in a row of the lesson screen, set apart so that the point fits between them.
// It moves along a lane below them, counting the places on its way, then up between two digits.
class MovingPoint {
 public:
  // The way to scientific notation and the way back.  Up to 20 digits, zeros that are filled in
  // included; two rows of the lesson screen from the row on.
  static MovingPoint ToScientific(double row, const ScientificNumber& number);
  static MovingPoint ToStandard(double row, const ScientificNumber& number);
  // The point stands behind so many digits, 1 or more, and will move by so many places, to the left
  // when negative.
  static MovingPoint ByPlaces(double row, const std::string& digits, int before, int places);

  // Of a digit; the first one given is 0.
  double ColumnOfDigit(int index) const;

  // Zeros come up where the point finds no digit.  The next Say goes on below.
  void Move();

 private:
  MovingPoint(double row, const std::string& digits, int before, int places);
  double ColumnOfPoint(int before) const;
  void PrintZero(int index) const;

  double row_;
  int digits_;
  int before_;
  int places_;
  int first_;  // index of the leftmost digit, after the movement
  double col_;
};

}  // namespace course::powers
