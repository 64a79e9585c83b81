#include "lessons/families/equations/substitution.h"

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::equations {
namespace {

// A side with a value in place of the letter, with the product worked out, and as one number.
std::string Substituted(const LinearSide& side, int value) {
  if (side.coef == 0) return NumStr(side.number);
  const std::string product = side.coef == 1    ? NumStr(value)
                              : side.coef == -1 ? "-" + InParentheses(value)
                                                : ProductText(side.coef, value);
  return WithNumber(product, side.number);
}
std::string Multiplied(const LinearSide& side, int value) {
  if (side.coef == 0) return NumStr(side.number);
  return WithNumber(NumStr(side.coef * value), side.number);
}
std::string Added(const LinearSide& side, int value) {
  return NumStr(side.coef * value + side.number);
}

}  // namespace

std::string ProductText(int factor, int value) {
  if (value < 0) return NumStr(factor) + tutor::Dot + InParentheses(value);
  return NumStr(factor) + tutor::Gap + tutor::Dot + tutor::Gap + NumStr(value);
}

std::vector<SideTexts> SubstitutedLines(const LinearStatement& statement, int value) {
  std::vector<SideTexts> lines;
  for (const auto write : {Substituted, Multiplied, Added}) {
    const SideTexts line(write(statement.left, value), write(statement.right, value));
    if (lines.empty() || lines.back() != line) lines.push_back(line);
  }
  return lines;
}

bool IsTrueFor(const LinearStatement& statement, int value) {
  const int left = statement.left.coef * value + statement.left.number;
  const int right = statement.right.coef * value + statement.right.number;
  if (left == right) return statement.relation != "<" && statement.relation != ">";
  const bool less = statement.relation == "<" || statement.relation == tutor::LessOrEqual;
  return !statement.IsEquation() && less == (left < right);
}

}  // namespace course::equations
