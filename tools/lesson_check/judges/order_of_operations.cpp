// An expression of several operations: the right order of work, and the usual wrong ones.
#include <map>
#include <optional>
#include <string_view>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

// Ranks of the operations: a higher one is worked out before a lower one; neighbours of one rank
// from the left, or from the right.
struct Habit {
  std::string_view mistake;
  int plus = 1;
  int minus = 1;
  int times = 2;
  int divided = 2;
  bool fromRight = false;
  std::string_view forgotten = {};  // brackets that are not seen
  bool addsForTimes = false;
};

constexpr Habit kHabits[] = {
    {.mistake = "works from left to right", .plus = 1, .minus = 1, .times = 1, .divided = 1},
    {.mistake = "works from right to left", .fromRight = true},
    {.mistake = "adds and subtracts first", .plus = 3, .minus = 3},
    {.mistake = "adds before subtracting", .plus = 2, .times = 3, .divided = 3},
    {.mistake = "multiplies before dividing", .times = 3},
    {.mistake = "forgets the parentheses", .forgotten = "()"},
    {.mistake = "forgets the brackets", .forgotten = "[]"},
    {.mistake = "forgets parentheses and brackets", .forgotten = "()[]"},
    {.mistake = "works from left to right without the parentheses",
     .plus = 1,
     .minus = 1,
     .times = 1,
     .divided = 1,
     .forgotten = "()[]"},
    {.mistake = "adds instead of multiplying", .addsForTimes = true},
};

// A line of numbers, operations and brackets, worked out by a habit.
class Worker {
 public:
  Worker(const std::string& line, const Habit& habit) : habit_(habit) {
    for (const char c : WithoutBlanks(line))
      if (habit.forgotten.find(c) == std::string_view::npos)
        line_ += habit.addsForTimes && c == course::tutor::Times[0] ? '+' : c;
  }

  // Nothing when the work leads to a division by 0.
  std::optional<Rational> Value() {
    std::optional<Rational> value = From(0);
    if (value && at_ != line_.size()) throw Unreadable("\"" + line_ + "\" is not read to its end");
    return value;
  }

 private:
  // 0 for the end of the line and for a closing bracket.
  int Rank() const {
    if (at_ == line_.size()) return 0;
    const char c = line_[at_];
    if (c == '+') return habit_.plus;
    if (c == '-') return habit_.minus;
    if (c == course::tutor::Times[0] || c == course::tutor::Dot[0]) return habit_.times;
    if (c == course::tutor::Divided[0]) return habit_.divided;
    return 0;
  }

  // What the operations of at least this rank give, from here on.
  std::optional<Rational> From(int rank) {
    std::optional<Rational> left = Operand();
    for (int next; left && (next = Rank()) > 0 && next >= rank;) {
      const char operation = line_[at_++];
      const std::optional<Rational> right = From(habit_.fromRight ? next : next + 1);
      if (!right) return {};
      left = Result(*left, operation, *right);
    }
    return left;
  }

  std::optional<Rational> Result(const Rational& left, char operation, const Rational& right) {
    if (operation == '+') return Rational(left + right);
    if (operation == '-') return Rational(left - right);
    if (operation != course::tutor::Divided[0]) return Rational(left * right);
    if (right == 0) return {};
    return Rational(left / right);
  }

  std::optional<Rational> Operand() {
    if (at_ < line_.size() && (line_[at_] == '(' || line_[at_] == '[')) {
      ++at_;
      std::optional<Rational> inside = From(0);
      if (at_ == line_.size()) throw Unreadable("\"" + line_ + "\" has an open bracket");
      ++at_;
      return inside;
    }
    const std::size_t end = std::min(line_.find_first_not_of("0123456789", at_), line_.size());
    if (end == at_) throw Unreadable("\"" + line_ + "\" lacks a number");
    const Rational number(line_.substr(at_, end - at_), 10);
    at_ = end;
    return number;
  }

  Habit habit_;
  std::string line_;
  std::size_t at_ = 0;
};

// Who works out only a part writes down one of the last operation's operands, not a number of the
// question.
std::vector<std::string> LastOperands(const Expression& expression) {
  using Kind = Expression::Kind;
  std::vector<std::string> values;
  const auto add = [&](const Expression& operand) {
    const bool bare = operand.kind == Kind::Number ||
                      (operand.kind == Kind::Minus && operand.parts[0].kind == Kind::Number);
    if (!bare) values.push_back(ValueOf(operand).Number().get_str());
  };
  const std::vector<Expression>& parts = expression.parts;
  if (parts.size() < 2) return values;
  Expression front = expression;
  front.parts.pop_back();
  add(front.parts.size() == 1 ? front.parts[0] : front);
  const Expression& last = parts.back();
  add(last.kind == Kind::Minus ? last.parts[0] : last);
  return values;
}

std::string ExpressionLine(const course::Problem& problem) {
  for (const std::string& line : problem.question)
    if (line.find_first_of("0123456789") != std::string::npos) return line;
  throw Unreadable("no line of the question has a number");
}

// An expression of several operations, brackets included.
Reading ReadOrderOfOperations(const course::Problem& problem) {
  const std::string line = ExpressionLine(problem);
  const Expression expression = ParseExpression(line);
  Reading reading;
  reading.answer = ValueOf(expression).Number().get_str();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Number().get_str(); };
  for (const Habit& habit : kHabits) {
    std::vector<std::string>& values = reading.mistakes[std::string(habit.mistake)];
    if (const auto value = Worker(line, habit).Value()) values.push_back(value->get_str());
  }
  reading.mistakes["works out only a part"] = LastOperands(expression);
  return reading;
}

const JudgeRegistration kRegistration(ReadOrderOfOperations, {"Order of Operations"});

}  // namespace
}  // namespace lesson_check
