#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

std::string ExpressionOf(const course::Problem& problem) {
  for (const std::string& line : problem.question) {
    try {
      return ExpressionIn(line);
    } catch (const Unreadable&) {  // a line of words
    }
  }
  throw Unreadable("the question has no expression");
}

// The usual mistakes at a product such as 3(4 + 5); none at other expressions.
void AddMistakesAtProduct(const Expression& product, Reading& reading) {
  using Kind = Expression::Kind;
  if (product.kind != Kind::Product || product.parts.size() != 2) return;
  const Expression& sum = product.parts[1];
  if (sum.kind != Kind::Sum || sum.parts.size() != 2) return;
  const Polynomial factor = ValueOf(product.parts[0]);
  const Polynomial first = ValueOf(sum.parts[0]);
  const Polynomial second = ValueOf(sum.parts[1]);
  reading.mistakes["multiplies the first number only"] = {(factor * first + second).Text()};
  reading.mistakes["adds the number in front"] = {(factor + first + second).Text()};
  reading.mistakes["multiplies all three numbers"] = {(factor * first * second).Text()};
}

// "What is the value of 3(4 + 5)?": the expression in the question, worked out.
Reading ReadArithmetic(const course::Problem& problem) {
  const Expression expression = ParseExpression(ExpressionOf(problem));
  Reading reading;
  reading.value = [](const std::string& text) { return ValueOf(text).Number().get_str(); };
  reading.answer = ValueOf(expression).Number().get_str();
  AddMistakesAtProduct(expression, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadArithmetic, {"Blank Lesson"});

}  // namespace
}  // namespace lesson_check
