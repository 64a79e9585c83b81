// Figures of the lessons on percent: a hundred squares, and a bar that stands for the whole.
#pragma once

#include <string>

namespace course::percents {

inline constexpr int kHundred = 100;

// A square cut into a hundred, ten columns wide and 6.4 rows high, its upper left corner at the
// cell.  The first ones are filled, row by row.
void DrawHundredSquares(double row, double col, int filled);

// The whole as a bar over ten tenths: a line of text above it, which tells the whole, and one below
// it, which tells its two parts.  Three rows of the lesson screen from the row on.
class PercentBar {
 public:
  // The bar is empty; the whole's text ends at its right end.
  PercentBar(double row, const std::string& whole);

  // Fills its left part, 1 to 99 percent of it.
  void Fill(int percent);
  // The next Say goes on below.  The text of the left part, in its colour, and of the right one, in
  // place of an earlier one; up to 18 letters.
  void NameLeft(const std::string& text) const;
  void NameRight(const std::string& text) const;
  // What is not filled, and its text, slide down by a little more than a row.
  void DropRight() const;

 private:
  double row_;
  int percent_ = 0;  // that is filled
};

}  // namespace course::percents
