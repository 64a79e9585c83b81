// Two products written out over each other, equal factors in one column: the ones that both have
// are framed, and come down as the greatest common factor.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/factoring/factor_list.h"

namespace course::factoring {

// "18" and {"2", "3", "3"}: numbers ascend, and letters follow them.
struct WrittenProduct {
  std::string name;
  std::vector<std::string> factors;
};
WrittenProduct NumberWrittenOut(int number);
// "x^5^" as so many factors; the exponent is 1 or more.
WrittenProduct PowerWrittenOut(char letter, int exponent);

class CommonFactorsFigure {
 public:
  // On the row, and a row and a half lower; names in front, from the column on.
  CommonFactorsFigure(const WrittenProduct& first, const WrittenProduct& second, double row,
                      double col);

  void FrameCommon() const;
  // The framed factors slide down, and their product, which is given as a text, stands behind them.
  void DropCommon(const std::string& product) const;
  double RowBelow() const;  // of all, the common factors included

 private:
  struct Column {
    std::string factor;
    bool inFirst, inSecond;
    bool IsCommon() const { return inFirst && inSecond; }
  };
  // The factors of a row in their columns, with signs between them.
  std::string Aligned(bool (*isShown)(const Column& column)) const;
  double ColumnOf(std::size_t i) const;

  std::vector<Column> columns_;
  std::string sign_;
  double row_;
  double firstCol_;  // of the factors
};

}  // namespace course::factoring
