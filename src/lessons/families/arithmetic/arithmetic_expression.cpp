#include "lessons/families/arithmetic/arithmetic_expression.h"

#include <algorithm>

#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::arithmetic {
namespace {

bool IsOpening(char kind) {
  return kind == '(' || kind == '[';
}
bool IsClosing(char kind) {
  return kind == ')' || kind == ']';
}
bool IsOperation(char kind) {
  return kind != 'n' && !IsOpening(kind) && !IsClosing(kind);
}

std::optional<int> ResultOf(int a, char operation, int b) {
  switch (operation) {
    case '+':
      return a + b;
    case '-':
      return a - b;
    case '*':
      return a * b;
    default:
      if (b == 0 || a % b != 0) return std::nullopt;
      return a / b;
  }
}

// The group that the first closing bracket ends has no brackets inside.
void FindGroup(const ArithmeticExpression& expression, ExpressionStep& step) {
  step.groupFirst = 0;
  step.groupLast = expression.size() - 1;
  for (std::size_t i = 0; i < expression.size(); ++i) {
    if (IsOpening(expression[i].kind)) step.groupFirst = i + 1;
    if (!IsClosing(expression[i].kind)) continue;
    step.groupLast = i - 1;
    return;
  }
}

void Misread(ArithmeticExpression& expression, const WorkingOrder& order) {
  std::erase_if(expression, [&order](const ExpressionToken& token) {
    const bool round = token.kind == '(' || token.kind == ')';
    const bool square = token.kind == '[' || token.kind == ']';
    return (round && !order.heedsParentheses) || (square && !order.heedsBrackets);
  });
  if (!order.addsForTimes) return;
  for (ExpressionToken& token : expression)
    if (token.kind == '*') token.kind = '+';
}

}  // namespace

ArithmeticExpression ExpressionOf(std::string_view text) {
  ArithmeticExpression expression;
  bool insideNumber = false;
  for (const char c : text) {
    const bool isDigit = c >= '0' && c <= '9';
    if (!isDigit)
      expression.push_back({c, 0});
    else if (insideNumber)
      expression.back().value = expression.back().value * 10 + (c - '0');
    else
      expression.push_back({'n', c - '0'});
    insideNumber = isDigit;
  }
  return expression;
}

std::string OperationSign(char operation) {
  if (operation == '*') return tutor::Times;
  if (operation == '/') return tutor::Divided;
  return std::string(1, operation);
}

std::string ExpressionText(const ArithmeticExpression& expression) {
  std::string text;
  for (const ExpressionToken& token : expression) {
    if (token.kind == 'n')
      text += std::to_string(token.value);
    else if (IsOperation(token.kind))
      text += " " + OperationSign(token.kind) + " ";
    else
      text += token.kind;
  }
  return text;
}

int WorkingOrder::RankOf(char operation) const {
  switch (operation) {
    case '+':
      return plus;
    case '-':
      return minus;
    case '*':
      return times;
    default:
      return divided;
  }
}

ExpressionStep NextStep(const ArithmeticExpression& expression, const WorkingOrder& order) {
  ExpressionStep step;
  FindGroup(expression, step);
  int highest = -1;
  for (std::size_t i = step.groupFirst; i <= step.groupLast; ++i) {
    if (!IsOperation(expression[i].kind)) continue;
    const int rank = order.RankOf(expression[i].kind);
    if (rank < highest || (rank == highest && !order.fromTheRight)) continue;
    highest = rank;
    step.operation = i;
  }
  if (highest < 0) platform::Stop("NextStep: no operation in " + ExpressionText(expression));
  step.first = step.operation - 1;
  step.last = step.operation + 1;
  step.value = ResultOf(expression[step.first].value, expression[step.operation].kind,
                        expression[step.last].value);
  const bool alone = step.groupLast - step.groupFirst == 2;
  if (alone && step.InBrackets(expression)) {
    --step.first;
    ++step.last;
  }
  return step;
}

void TakeStep(ArithmeticExpression& expression, const ExpressionStep& step) {
  expression[step.first] = {'n', step.value.value()};
  const auto begin = expression.begin();
  expression.erase(begin + static_cast<std::ptrdiff_t>(step.first) + 1,
                   begin + static_cast<std::ptrdiff_t>(step.last) + 1);
}

std::optional<int> ValueOf(ArithmeticExpression expression, const WorkingOrder& order) {
  Misread(expression, order);
  int value = expression.front().value;
  while (expression.size() > 1) {
    const ExpressionStep step = NextStep(expression, order);
    if (!step.value) return std::nullopt;
    TakeStep(expression, step);
    if (expression.size() > 1 || !order.stopsEarly) value = *step.value;
  }
  return value;
}

}  // namespace course::arithmetic
