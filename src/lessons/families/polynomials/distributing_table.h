// A product such as 3(2x - 5) multiplied out in print cells: the terms in the parentheses, and
// under each of them what the factor makes of it.
#pragma once

#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::polynomials {

class DistributingTable {
 public:
  // Shows the table under all that stands on the page, or on a row; the products are still missing.
  // Two or three terms fit.
  DistributingTable(int factor, const Sum& inside, double row = 0);

  // The product with a term appears; terms count from 0.
  void Multiply(int index);
  // "-3 x (-5) = 15", with the multiplication sign.
  std::string ProductText(int index) const;
  // Half a row below the table.
  double RowBelow() const { return rowBelow_; }

 private:
  Term factor_;
  Sum inside_;
  double rowBelow_ = 0;
};

}  // namespace course::polynomials
