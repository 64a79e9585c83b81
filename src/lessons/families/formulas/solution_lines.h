// An equation rewritten line under line, the equals signs in one column.  Either side may hold
// built-up fractions.
#pragma once

#include <string>

namespace course::formulas {

class SolutionLines {
 public:
  // The row of the first line, the middle one where it has fractions, and the column of its "=".
  explicit SolutionLines(double row, double equalsCol = 19) : row_(row), equalsCol_(equalsCol) {}

  // A line may be as high as if it had fractions, beside one that has.
  enum class Height { AsNeeded, Fraction };
  void Write(const std::string& left, const std::string& right, Height height = Height::AsNeeded);

 private:
  double row_;
  double equalsCol_;
  bool empty_ = true;
  bool builtUp_ = false;  // the line written last
};

}  // namespace course::formulas
