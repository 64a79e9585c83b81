// Squares that show why a binomial squared has a middle term, and why a difference of two squares
// has two factors.  Places are cells of the lesson screen.
#pragma once

#include <string>

namespace course::polynomials {

// A square with the side a + b, cut into the square of a, two strips a by b, and the square of b.
// It takes 6 rows and 9.4 columns from its upper left cell on; the names of the sides stand above
// it and at its left.  The square of a stands there first; then the strips slide to it.
class SquareOfSum {
 public:
  SquareOfSum(double row, double col, const std::string& a, const std::string& b);
  void Grow() const;
  // The areas appear, of the two squares and of the strips.
  void PrintSquares(const std::string& first, const std::string& last) const;
  void PrintStrips(const std::string& area) const;

 private:
  void SlideStripsIn() const;

  double row_;
  double col_;
  double left_;  // columns of the names at its left
  std::string added_;
};

// A square with the side 5, from whose lower right corner a square with the side 2 is cut off.  It
// takes 5 rows and 7.5 columns from its upper left cell on, and 3 columns more in the end.
class SquareWithoutCorner {
 public:
  SquareWithoutCorner(double row, double col);
  // The corner goes; then what is left falls into a part of 5 by 3 and one of 3 by 2.
  void TakeCornerAway() const;
  void CutInTwo() const;
  // The lower part stands up and slides beside the upper one: a rectangle of 7 by 3.  The next
  // Say goes on below.
  void MoveBeside() const;

 private:
  double row_;
  double col_;
};

// A square with the side x and a strip beside it, x high and twice as wide as "half" tells: the
// strip is cut in two, and its right half goes below the square.  What then is missing from a
// larger square is its lower right corner.  It takes 6 rows and 12.5 columns from its upper left
// cell on.
class SquareToComplete {
 public:
  // The names of the strip's width and of its area.
  SquareToComplete(double row, double col, const std::string& width, const std::string& area);
  // Half of the strip goes below; the names of half its width, and of the area of each half.
  void CutStrip(const std::string& half, const std::string& area) const;
  // The corner comes in, with its area.
  void FillCorner(const std::string& area) const;

 private:
  double row_;
  double col_;
};

}  // namespace course::polynomials
