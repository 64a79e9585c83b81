// A rectangle whose width and height are sums of two: its area is the sum of four.
#pragma once

#include <array>
#include <string>

namespace course::polynomials {

using TwoTexts = std::array<std::string, 2>;

class CutRectangle {
 public:
  // Shows it with its sides, the longer parts first; the row is that of its upper edge.  It takes
  // seven rows, the sides' labels above it included.
  CutRectangle(const TwoTexts& across, const TwoTexts& down, double row);

  // The second column slides to the right, the second row down.
  void MoveApart();
  // Row by row, into the parts.
  void ShowAreas(const std::array<TwoTexts, 2>& areas) const;

 private:
  double Left(int col) const;
  double Top(int row) const;
  void Draw() const;

  TwoTexts across_;
  TwoTexts down_;
  double row_;
  bool isApart_ = false;
};

}  // namespace course::polynomials
