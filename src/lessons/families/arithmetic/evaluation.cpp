#include "lessons/families/arithmetic/evaluation.h"

#include <utility>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::arithmetic {
namespace {

constexpr int kColumns = 40;

// The operations of one rank in the step's group: how many, and their names, such as "addition and
// subtraction".
struct RankedOperations {
  int count = 0;
  int kinds = 0;
  std::string names;
};

RankedOperations OperationsOfRank(const ArithmeticExpression& expression,
                                  const ExpressionStep& step, int rank) {
  constexpr std::pair<char, const char*> kNames[] = {
      {'*', "multiplication"}, {'/', "division"}, {'+', "addition"}, {'-', "subtraction"}};
  RankedOperations found;
  for (const auto& [operation, name] : kNames) {
    if (kRightOrder.RankOf(operation) != rank) continue;
    int count = 0;
    for (std::size_t i = step.groupFirst; i <= step.groupLast; ++i)
      if (expression[i].kind == operation) ++count;
    if (count == 0) continue;
    found.names += (found.kinds > 0 ? " and " : "") + std::string(name);
    found.count += count;
    ++found.kinds;
  }
  return found;
}

std::string Capitalised(std::string text) {
  return UpperCase(text.substr(0, 1)) + text.substr(1);
}

}  // namespace

Evaluation::Evaluation(ArithmeticExpression expression, double row, double column)
    : expression_(std::move(expression)), display_(ExpressionText(expression_), row, column) {}

Evaluation::Evaluation(const ArithmeticExpression& expression, double row)
    : Evaluation(expression, row,
                 (kColumns - static_cast<int>(ExpressionText(expression).size())) / 2 + 1) {}

void Evaluation::PickOut() {
  step_ = NextStep(expression_);
  display_.PickOut(step_.first, step_.last);
}

void Evaluation::ShowResult() {
  lastPlace_ = PlaceOfStep();
  pairLasts_ = step_.last - step_.first == 2;
  const std::string result = NumStr(step_.value.value());
  resultText_ = WithoutBreaks(OperationText() + " = " + result);
  display_.ShowResult(result);
  TakeStep(expression_, step_);
}

std::string Evaluation::OperationText() const {
  const auto operation = expression_.begin() + static_cast<std::ptrdiff_t>(step_.operation);
  return WithoutBreaks(ExpressionText({operation - 1, operation + 2}));
}

Evaluation::Place Evaluation::PlaceOfStep() const {
  if (!step_.InBrackets(expression_)) return Place::Open;
  return expression_[step_.groupFirst - 1].kind == '(' ? Place::Parentheses : Place::Brackets;
}

std::string Evaluation::PlaceReason() const {
  const Place place = PlaceOfStep();
  if (place == Place::Open) {
    if (lastPlace_ == Place::Parentheses) return "No parentheses are left.  ";
    if (lastPlace_ == Place::Brackets) return "No brackets are left.  ";
    return "";
  }
  const std::string pair = place == Place::Parentheses ? "parentheses" : "brackets";
  if (lastPlace_ == Place::Nowhere) return "We begin inside the " + pair + ".  ";
  return (place == lastPlace_ && pairLasts_ ? "We stay inside the " : "Now we work inside the ") +
         pair + ".  ";
}

std::string Evaluation::RankReason() const {
  const RankedOperations higher = OperationsOfRank(expression_, step_, 2);
  const RankedOperations lower = OperationsOfRank(expression_, step_, 1);
  if (higher.count + lower.count == 1) return "";
  if (higher.count == 0 || lower.count == 0)
    return "The ranks are the same, so we go from left to right.  ";
  return Capitalised(higher.names) + (higher.kinds > 1 ? " come" : " comes") + " before " +
         lower.names + (higher.count > 1 ? ", from left to right.  " : ".  ");
}

std::string Evaluation::Reason() const {
  return PlaceReason() + RankReason();
}

}  // namespace course::arithmetic
