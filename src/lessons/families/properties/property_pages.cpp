#include "lessons/families/properties/property_pages.h"

#include <algorithm>
#include <utility>

#include "display/drawing.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/properties/property_choices.h"
#include "lessons/page/answer_boxes.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/tutor_codes.h"

namespace course::properties {

using namespace page;

namespace {

bool IsBuiltUp(const std::string& math) {
  return math.find('/') != std::string::npos;
}

// --- Places on an explanation's pages ------------------------------------------------------------

constexpr double kQuestionRow = 4;

// A row more for a built-up equation.
double EquationRow(const std::string& equation) {
  return IsBuiltUp(equation) ? 7.5 : 6.5;
}
double BelowEquation(const std::string& equation) {
  return IsBuiltUp(equation) ? 10 : 9;
}

// --- Reasons of a step ---------------------------------------------------------------------------

bool HasParentheses(const Side& side) {
  return side.grouping != Grouping::None;
}

// What changes places: two numbers, or the parentheses and the number beside them.
std::string NewOrderReason(const Side& before, const Side& after) {
  std::pair<std::string, std::string> moved;
  if (!HasParentheses(before)) {
    moved = {SideText({{before.numbers[0]}, ""}), SideText({{before.numbers[1]}, ""})};
  } else if (GroupText(before) == GroupText(after)) {
    const bool last = before.grouping == Grouping::Last;
    moved = {NumStr(before.numbers[last ? 0 : 2].num), "(" + GroupText(before) + ")"};
  } else {
    const std::size_t at = before.grouping == Grouping::Last ? 1 : 0;
    moved = {NumStr(before.numbers[at].num), NumStr(before.numbers[at + 1].num)};
  }
  return Text("{} and {} have changed places.", moved.first, moved.second);
}

// The two numbers that are worked out first.
Side FirstPair(const Side& side) {
  const std::size_t at = side.grouping == Grouping::Last ? 1 : 0;
  return {{side.numbers[at], side.numbers[at + 1]}, side.operations.substr(at, 1)};
}

std::string Reason(const Operation& operation, const Side& before, const Step& step) {
  switch (step.property) {
    case kCommutative:
      return NewOrderReason(before, step.side);
    case kAssociative:
      return Text("The parentheses move from {} to {}.", GroupText(before), GroupText(step.side));
    case kIdentity: {
      const std::string number = ValueText(ValueOf(FirstPair(before)));
      return Text(operation.isProduct
                      ? "Multiplying by 1 changes nothing.  {} keeps its identity:  it stays {}."
                      : "Adding 0 changes nothing.  {} keeps its identity:  it stays {}.",
                  number, number);
    }
    case kInverse:
      return Text(operation.isProduct ? "The product of a number and its reciprocal is {}."
                                      : "The sum of a number and its opposite is {}.",
                  operation.Identity());
    case kZero:
      return "A product with a factor of 0 is 0.";
  }
  return "";
}

// --- True equations ------------------------------------------------------------------------------

// What the equation does not show, though it may look like it.
std::string NotShown(const Operation& operation, const Statement& statement) {
  const Side& start = statement.Start();
  if (statement.properties == kCommutative && HasParentheses(start))
    return Text("The parentheses hold {} and {} on both sides.  So the grouping is not new.",
                ValueText(start.numbers[start.grouping == Grouping::Last ? 1 : 0]),
                ValueText(start.numbers[start.grouping == Grouping::Last ? 2 : 1]));
  if (statement.properties == kAssociative)
    return Text("The order {}, {}, {} is the same on both sides.", ValueText(start.numbers[0]),
                ValueText(start.numbers[1]), ValueText(start.numbers[2]));
  if (statement.properties == kInverse)
    return operation.isProduct
               ? "1 comes out here.  The identity property would need a factor of 1."
               : "0 comes out here.  The identity property would need a 0 that is added.";
  return "";
}

// Each step from one end of the equation to the other on a page of its own.
void ExplainSteps(const Operation& operation, const Statement& statement) {
  const double below = BelowEquation(statement.Text());
  SayAt(below, Text("We begin with the {} side.  How do we get from it to the other side?",
                    Words{statement.mirrored ? "right" : "left"}));
  const std::string start = SideText(statement.Start());
  ShowAt(below + 3 + (IsBuiltUp(start) ? 0.5 : 0), start, 5);
  PageEnd();
  for (std::size_t i = 1; i < statement.way.size(); ++i) {
    const Step& step = statement.way[i];
    ShowAt(NextRow() + 0.5,
           "= " + SideText(step.side) + R"(   \y)" + PropertiesText(step.property) + R"(\z)");
    AddLine(Reason(operation, statement.way[i - 1].side, step), {.col = 5, .indent = 5});
    PageEnd();
  }
}

// A sum or product of two numbers beside its value would be worked out as it stands there.
bool NeedsCheck(const Statement& statement) {
  return statement.Start().numbers.size() > 2 || statement.End().numbers.size() > 1;
}

void CheckTrue(const Operation& operation, const Statement& statement) {
  const double below = BelowEquation(statement.Text());
  const std::string notShown = NotShown(operation, statement);
  if (NeedsCheck(statement)) {
    ClearBelow(below);
    SayAt(below, R"(\yCheck:\z  Both sides give the same number.)");
    GoBelow();
    for (const Side* side : {&statement.Left(), &statement.Right()})
      if (side->numbers.size() > 1) Show(WorkText(*side), 5);
    PageEnd();
    if (!notShown.empty()) Say(notShown);
  } else if (!notShown.empty()) {
    ClearBelow(below);
    SayAt(below, notShown);
  }
  if (!notShown.empty()) PageEnd();
}

// --- False equations -----------------------------------------------------------------------------

void ShowWork(double row, const std::string& name, const Side& side) {
  constexpr double kWorkCol = 8;
  SayAt(row, name + ":");
  ShowAt(row, WorkText(side), kWorkCol);
  PageEnd();
}

std::string WhyFalse(const Operation& operation, const Statement& statement) {
  const bool undoes =
      statement.Text().find(std::string(" ") + operation.undoing + " ") != std::string::npos;
  if (undoes)
    return operation.isProduct ? "In a quotient we may not change the order or the grouping."
                               : "In a difference we may not change the order or the grouping.";
  if (statement.properties == kIdentity)
    return operation.isProduct ? "A factor of 1 keeps the number as it is."
                               : "Adding 0 keeps the number as it is.";
  if (statement.properties == kZero) return "A factor of 0 makes the whole product 0.";
  const std::string number = SideText({{statement.Start().numbers[0]}, ""});
  return operation.isProduct ? "Opposite numbers are not reciprocals."
                             : Text("The opposite of {} has the other sign.", number);
}

void ExplainFalse(const Operation& operation, const Statement& statement) {
  SayAt(BelowEquation(statement.Text()),
        "A property makes true equations only.  So we ask first:  Is this equation true?  We work "
        "out both sides.");
  PageEnd();
  ShowWork(13.5, "left", statement.Left());
  ShowWork(16.6, "right", statement.Right());
  SayAt(19, "The two sides are not equal.  " + WhyFalse(operation, statement));
  PageEnd();
}

}  // namespace

void ShowPropertyProblem(const Problem& problem) {
  SayAt(5, problem.question[0]);
  ShowAt(8.5, problem.question[1], 6);
  ShowAnswersInOneColumn(problem, {.row = 11.5, .width = 33});
}

void ExplainStatement(const Problem& problem, const Operation& operation,
                      const Statement& statement) {
  ProblemBanner();
  const std::string& equation = problem.question[1];
  SayAt(kQuestionRow, problem.question[0]);
  ShowAt(EquationRow(equation), equation, 6);
  if (statement.isTrue) {
    ExplainSteps(operation, statement);
    CheckTrue(operation, statement);
  } else {
    ExplainFalse(operation, statement);
  }
  Conclude(problem);
}

// --- Teaching screens ----------------------------------------------------------------------------

void DrawDots(double row, double col, int count, platform::Colour colour) {
  constexpr double kRadius = 6;  // pixels
  for (int i = 0; i < count; ++i) isDrawBullet(row, col + 2 * i, colour, kRadius);
}

std::vector<std::string> Aligned(std::vector<std::string> lines) {
  const auto shorter = [](const std::string& a, const std::string& b) {
    return a.size() < b.size();
  };
  const std::size_t width = std::ranges::max_element(lines, shorter)->size();
  for (std::string& line : lines) line.resize(width, tutor::Gap[0]);
  return lines;
}

void ShowExchange(double row, double col, const std::string& first, char sign,
                  const std::string& second) {
  const std::string gap = std::string(" ") + sign + " ";
  const auto firstWidth = static_cast<double>(first.size());
  const auto secondWidth = static_cast<double>(second.size());
  const double behind = firstWidth + 3 + secondWidth + 3;  // columns to the other side
  ShowAt(row, first + gap + second + " =", col);
  ShowAt(row, std::string(1, sign), col + behind + secondWidth + 1);
  const double secondCol = col + firstWidth + 3;
  SlideUp({row, secondCol, secondWidth}, 1, Leaving::Copy, Pace::Brisk);
  SlideRight({row - 1, secondCol, secondWidth}, behind - (firstWidth + 3), Leaving::Nothing,
             Pace::Brisk);
  SlideDown({row - 1, col + behind, secondWidth}, 1, Leaving::Nothing, Pace::Brisk);
  const double firstCol = col + behind + secondWidth + 3;
  SlideDown({row, col, firstWidth}, 1, Leaving::Copy, Pace::Brisk);
  SlideRight({row + 1, col, firstWidth}, firstCol - col, Leaving::Nothing, Pace::Brisk);
  SlideUp({row + 1, firstCol, firstWidth}, 1, Leaving::Nothing, Pace::Brisk);
}

void ShowParenthesesMove(double row, double col, const std::string& digits, char sign) {
  constexpr double kDistance = 5;  // columns from the first number's side to the second's
  const std::string plus = std::string(" ") + sign + " ";
  const std::string a = digits.substr(0, 1);
  const std::string b = digits.substr(1, 1);
  const std::string c = digits.substr(2, 1);
  const std::string left = "(" + a + plus + b + ")" + plus + c + " = ";
  const double right = col + static_cast<double>(left.size());
  ShowAt(row, left, col);
  ShowAt(row, "(" + a + plus + " " + b + ")" + plus + c, right);
  // Parentheses are higher than their cells.
  constexpr double kAbove = 0.2;
  constexpr double kHeight = 1.4;
  constexpr double kLift = 1.3;  // clear of the digits over which they pass
  for (const double at : {right + 7, right}) {
    SlideUp({row - kAbove, at, 1, kHeight}, kLift, Leaving::Nothing, Pace::Brisk);
    SlideRight({row - kLift - kAbove, at, 1, kHeight}, kDistance, Leaving::Nothing, Pace::Brisk);
    SlideDown({row - kLift - kAbove, at + kDistance, 1, kHeight}, kLift, Leaving::Nothing,
              Pace::Brisk);
  }
  // Evenly spaced, once they have come to rest.
  ClearBelow(row - kAbove);
  ShowAt(row, left + a + plus + "(" + b + plus + c + ")", col);
}

}  // namespace course::properties
