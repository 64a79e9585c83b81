#include "lessons/families/properties/side.h"

#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::properties {
namespace {

std::string NumberText(const Fraction& number, bool first) {
  const std::string text = ValueText(number);
  return number.num < 0 && !first ? "(" + text + ")" : text;
}

std::string SignText(char operation) {
  return std::string(" ") + operation + " ";
}

Fraction Result(const Fraction& left, char operation, const Fraction& right) {
  if (operation == '+') return left + right;
  if (operation == '-') return left - right;
  if (operation == tutor::Times[0]) return left * right;
  if (operation == tutor::Divided[0]) return left / right;
  platform::Stop(std::string("Result: operation = \"") + operation + "\"");
}

// Of the first number in the parentheses.
std::size_t GroupStart(const Side& side) {
  return side.grouping == Grouping::Last ? 1 : 0;
}

}  // namespace

std::string SideText(const Side& side) {
  const bool grouped = side.grouping != Grouping::None;
  const std::size_t open = GroupStart(side);
  std::string text;
  for (std::size_t i = 0; i < side.numbers.size(); ++i) {
    if (i > 0) text += SignText(side.operations.at(i - 1));
    const bool opens = grouped && i == open;
    if (opens) text += "(";
    text += NumberText(side.numbers[i], i == 0 || opens);
    if (grouped && i == open + 1) text += ")";
  }
  return text;
}

std::string GroupText(const Side& side) {
  if (side.grouping == Grouping::None) return "";
  const std::size_t at = GroupStart(side);
  return SideText({{side.numbers[at], side.numbers[at + 1]}, {side.operations[at]}});
}

Side NextStep(const Side& side) {
  const std::size_t at = GroupStart(side);
  const auto place = static_cast<std::ptrdiff_t>(at);
  Side next = side;
  next.numbers[at] = Result(side.numbers[at], side.operations.at(at), side.numbers[at + 1]);
  next.numbers.erase(next.numbers.begin() + place + 1);
  next.operations.erase(at, 1);
  next.grouping = Grouping::None;
  return next;
}

Fraction ValueOf(const Side& side) {
  return side.numbers.size() == 1 ? side.numbers[0] : ValueOf(NextStep(side));
}

std::string WorkText(const Side& side) {
  if (side.numbers.size() == 1) return SideText(side);
  return SideText(side) + " = " + WorkText(NextStep(side));
}

}  // namespace course::properties
