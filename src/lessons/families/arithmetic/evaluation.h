// An arithmetic expression that is worked out on the lesson window, a step at a time, with the
// words that tell which operation comes next and why.
#pragma once

#include <string>

#include "lessons/families/arithmetic/arithmetic_expression.h"
#include "lessons/families/arithmetic/stepping_display.h"

namespace course::arithmetic {

class Evaluation {
 public:
  // Prints the expression at a cell of the lesson window.
  Evaluation(ArithmeticExpression expression, double row, double column);
  // The same in the middle of a row.
  Evaluation(const ArithmeticExpression& expression, double row);

  bool Done() const { return expression_.size() == 1; }
  double Row() const { return display_.Row(); }  // of the line printed last

  // Picks out the operation that comes next.
  void PickOut();
  // Why it is this one, in whole sentences; "" when there is no other.
  std::string Reason() const;
  // The operation, such as "6 x 3".
  std::string OperationText() const;
  // Prints the line below, with its result.
  void ShowResult();
  // The operation done last with its result, such as "6 x 3 = 18".
  const std::string& ResultText() const { return resultText_; }

 private:
  enum class Place { Nowhere, Parentheses, Brackets, Open };
  Place PlaceOfStep() const;
  std::string PlaceReason() const;
  std::string RankReason() const;

  ArithmeticExpression expression_;
  SteppingDisplay display_;
  ExpressionStep step_;
  std::string resultText_;
  Place lastPlace_ = Place::Nowhere;  // where the step before was
  bool pairLasts_ = false;            // the brackets around the step before are still there
};

}  // namespace course::arithmetic
