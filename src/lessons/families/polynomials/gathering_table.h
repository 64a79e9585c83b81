// The like terms of a sum gathered in print cells: a column a kind of term, their sum below.
//
//   GatheringTable table({{4, "x"}, {-3, ""}, {-2, "x"}, {8, ""}}, 5);
//   table.Gather(0);   // 4x and -2x slide out of the sum into the column "terms with x"
//   table.Gather(1);   // -3 and 8 into the column "numbers"
//   table.AddUp(0);    // 2x appears under its column
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::polynomials {

// What the columns are called: "terms with x", "numbers", or "degree 1", "degree 0".
enum class KindNames { Letters, Degrees };

class GatheringTable {
 public:
  // Prints the sum on the row, and the empty table two and a half rows below it.  Up to three kinds
  // of terms with three terms each fit; headings with letters show no exponent but 2.
  GatheringTable(const Sum& sum, double row, KindNames names = KindNames::Letters);

  int Kinds() const { return static_cast<int>(kinds_.size()); }
  // Kinds count from 0, in falling powers.
  const Sum& Terms(int kind) const { return kinds_.at(static_cast<std::size_t>(kind)); }
  // "terms with x", "numbers", "degree 1".
  std::string Name(int kind) const;
  // The sum of a kind: one term, with the coefficient 0 when it vanishes.
  Term Total(int kind) const;
  // Half a row below the table.
  double RowBelow() const { return rowBelow_; }

  // Its terms slide out of the sum into their cells, each with its sign; they are yellow above.
  void Gather(int kind);
  // The sum appears below them.
  void AddUp(int kind);
  // All kinds one after the other; no term stays yellow.
  void GatherAll();
  void AddUpAll();
  void MarkNone() const { ShowSum(-1); }

 private:
  void ShowSum(int kind) const;
  void ShowTable();
  void SlideIn(std::size_t index, int kind);
  double ColumnOf(std::size_t index) const;
  double MiddleOf(int kind) const;
  int Cell(int kind, int line) const;

  Sum sum_;
  double row_;
  KindNames names_;
  double rowBelow_ = 0;
  std::vector<Sum> kinds_;
  int lines_ = 0;  // of terms, above that of the sums
};

}  // namespace course::polynomials
