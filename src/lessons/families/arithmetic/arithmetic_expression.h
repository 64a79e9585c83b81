// An expression of whole numbers such as 3 x [20 - (4 + 8) / 2]: how it is printed, which operation
// comes next, and what comes out when someone works in another order.
//
// No display: the same steps serve a generator, which needs values, and a page that shows them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace course::arithmetic {

// A number, an operation "+-*/", or one of the brackets "()[]".
struct ExpressionToken {
  char kind = 'n';  // 'n' for a number, otherwise the character itself
  int value = 0;    // of a number
};
using ArithmeticExpression = std::vector<ExpressionToken>;

// Written with digits and the characters of the tokens, such as "3*[20-(4+8)/2]".
ArithmeticExpression ExpressionOf(std::string_view text);
// As it is printed: blanks around the operations, none inside the brackets.
std::string ExpressionText(const ArithmeticExpression& expression);
// The printed sign of an operation "+-*/".
std::string OperationSign(char operation);

// Who works in which order.  The higher rank comes first; equal ranks come from left to right, or
// from right to left.
struct WorkingOrder {
  std::string_view mistake = "";  // none for the right order
  bool heedsParentheses = true;
  bool heedsBrackets = true;
  bool fromTheRight = false;
  bool addsForTimes = false;
  bool stopsEarly = false;  // takes the last result but one for the value
  int plus = 1;
  int minus = 1;
  int times = 2;
  int divided = 2;

  int RankOf(char operation) const;
};
inline constexpr WorkingOrder kRightOrder{};

// One operation and what it gives.
struct ExpressionStep {
  std::size_t first = 0;  // tokens that the result replaces: two numbers and their operation, with
  std::size_t last = 0;   // the brackets around them when nothing else is inside
  std::size_t operation = 0;
  std::size_t groupFirst = 0;  // tokens of the innermost brackets around it, these left out, or the
  std::size_t groupLast = 0;   // whole expression
  std::optional<int> value;    // nothing when a division leaves a remainder

  bool InBrackets(const ArithmeticExpression& expression) const {
    return groupLast - groupFirst + 1 < expression.size();
  }
};

// The operation that comes next.  An expression without one stops the program.
ExpressionStep NextStep(const ArithmeticExpression& expression,
                        const WorkingOrder& order = kRightOrder);
// The expression with the step's result, which is a number, in place of its tokens.
void TakeStep(ArithmeticExpression& expression, const ExpressionStep& step);
// The value; nothing when a division on the way leaves a remainder.
std::optional<int> ValueOf(ArithmeticExpression expression,
                           const WorkingOrder& order = kRightOrder);

}  // namespace course::arithmetic
