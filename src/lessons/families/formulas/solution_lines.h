// An equation rewritten line under line, the equals signs in one column.  Either side may hold
// built-up fractions.
#pragma once

#include <string>

namespace course::formulas {

class SolutionLines {
 public:
  // The row of the first line, the middle one where it has fractions, and the column of its "=".
  explicit SolutionLines(double row, double equalsCol = 19) : row_(row), equalsCol_(equalsCol) {}

  void Write(const std::string& left, const std::string& right);
  // The column behind the line written last.
  double EndCol() const { return endCol_; }
  double Row() const { return row_; }

 private:
  double row_;
  double equalsCol_;
  double endCol_ = 0;
  bool empty_ = true;
  bool builtUp_ = false;  // the line written last
};

}  // namespace course::formulas
