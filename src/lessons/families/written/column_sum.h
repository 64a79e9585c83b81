// Numbers added column by column, from the lowest place on.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/written/written_columns.h"

namespace course::written {

// "one", "ten", "hundred": a place's name for so many of them; places -2 to 4.
std::string PlaceName(int place, int count = 2);
// The digit of a number's place, "305" or "3.27"; 0 where it has none.
int DigitAt(const std::string& number, int place);
// Its highest place, and the lowest.
int HighestPlace(const std::string& number);
int LowestPlace(const std::string& number);

class ColumnSum {
 public:
  // Writes the addends under each other, with the sign and the rule.  The row is that of the
  // carries; the addends stand below it.
  ColumnSum(double row, double onesCol, std::vector<std::string> addends, double step = 2);

  int Highest() const { return highest_; }
  int Lowest() const { return lowest_; }
  double ResultRow() const;
  WrittenColumns& Columns() { return columns_; }

  // What stands in a column, the carry first; addends that have no such place are left out.
  std::vector<int> Addends(int place) const;
  int Total(int place) const;
  // What a column hands on to the next one.
  int Carry(int place) const { return Total(place) / 10; }
  // "1 + 2 + 3 = 6", or "4" when there is one number alone.
  std::string TotalText(int place) const;

  // Picks the column out and writes its digit.  The carry is written beside it and travels above
  // the next column; behind the highest place it stays in the result.
  void Add(int place);

 private:
  double row_;
  std::vector<std::string> addends_;
  int highest_;
  int lowest_;
  WrittenColumns columns_;
};

}  // namespace course::written
