// A whole number subtracted from a larger one column by column, with borrowing.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/written/written_columns.h"

namespace course::written {

class ColumnDifference {
 public:
  // Writes both numbers, the sign and the rule.  The row is that of the changed digits; the numbers
  // stand below it.
  ColumnDifference(double row, double onesCol, const std::string& from, const std::string& taken);

  int Highest() const { return static_cast<int>(top_.size()) - 1; }
  double ResultRow() const;
  WrittenColumns& Columns() { return columns_; }

  // What stands at the top of a column now, 0 to 18, and below it.
  int Top(int place) const { return top_.at(static_cast<std::size_t>(place)); }
  int Taken(int place) const { return taken_.at(static_cast<std::size_t>(place)); }
  bool HasTaken(int place) const;
  bool MustBorrow(int place) const { return Top(place) < Taken(place); }
  // Whether nothing but zeros is left from a place on: they are not written in front.
  bool NothingLeft(int place) const;

  // One ten for a place from the next higher one, whose digit is not 0: that digit is struck out,
  // the one less is written above it, and a 1 stands in front of the digit of the place.
  void Borrow(int place);
  // Writes a column's difference.
  void Subtract(int place);

 private:
  double RowOfTop(int place) const;

  double row_;
  int takenDigits_;
  std::vector<int> top_;
  std::vector<int> taken_;
  std::vector<bool> changed_;
  WrittenColumns columns_;
};

}  // namespace course::written
