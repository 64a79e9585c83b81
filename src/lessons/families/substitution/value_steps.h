// A line of numbers that is worked out on the lesson window, an operation at a time: powers, then
// products, then sums from left to right.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "lessons/families/arithmetic/stepping_display.h"
#include "lessons/families/substitution/valued_expression.h"

namespace course::substitution {

class ValueSteps {
 public:
  // Prints the line at a cell of the lesson window.
  ValueSteps(NumberLine line, double row, double column);

  bool Done() const { return StepsLeft() == 0; }
  int StepsLeft() const;

  // Picks out the operation that comes next.
  void PickOut();
  // Why it comes next, and what its signs do, in whole sentences.
  std::string Reason() const;
  // The operation, such as "3 x (-2)".
  std::string OperationText() const;
  // Prints the line below, with its result.
  void ShowResult();
  // One step, and all of them.
  void Step();
  void Finish();

 private:
  enum class Kind { Power, Multiplication, Addition };
  void FindNext();
  std::string PowerReason() const;
  std::string ProductReason() const;
  std::string SumReason() const;
  // The numbers of the operation; those of a power are one and the same.
  const Factor& Left() const { return line_[product_].factors[factor_]; }
  const Factor& Right() const;
  bool Subtracts() const { return line_[product_ + 1].isSubtracted; }
  int Result() const;
  bool BeginsLine() const { return product_ == 0 && factor_ == 0; }
  std::size_t PartsBefore() const;

  NumberLine line_;
  arithmetic::SteppingDisplay display_;
  std::vector<std::vector<std::size_t>> parts_;  // of the display, for each factor of each product
  // The operation that comes next.
  Kind kind_ = Kind::Power;
  std::size_t product_ = 0;
  std::size_t factor_ = 0;
};

}  // namespace course::substitution
