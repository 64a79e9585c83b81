// Figures of the lessons on percent: a hundred squares, and a bar that stands for the whole.
#pragma once

#include <string>

namespace course::percents {

inline constexpr int kHundred = 100;

// A square cut into a hundred, ten columns wide and 6.4 rows high, its upper left corner at the
// cell.  The first ones are filled, row by row.
void DrawHundredSquares(double row, double col, int filled);

// The whole as a bar over ten tenths: a line of text above it, which tells the whole, and one below
// it, which tells its two parts.  The part that the page speaks of is filled, and its text has the
// same colour.  Three rows of the lesson screen from the row on.
class PercentBar {
 public:
  // The bar is empty; the whole's text ends at its right end.
  PercentBar(double row, const std::string& whole);

  // Fills its left or its right part, 1 to 99 percent of it, and no other.
  void FillLeft(int percent);
  void FillRight(int percent);
  // The next Say goes on below.  The texts of the two parts, in place of earlier ones; up to 18
  // letters.
  void NameLeft(const std::string& text) const;
  void NameRight(const std::string& text) const;
  // The right part and its text slide down by a little more than a row and keep their colour; what
  // is left of the bar, and its text from now on, turn cyan.
  void DropRight();

 private:
  void Paint(int from, int to) const;

  double row_;
  int leftPercent_ = 0;
  bool rightIsFilled_ = false;
  bool rightIsDropped_ = false;
};

}  // namespace course::percents
