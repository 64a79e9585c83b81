#include "lessons/families/powers/power_law.h"

#include <algorithm>

#include "display/drawing.h"
#include "display/stacked_text.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_figures.h"
#include "lessons/page/answer_boxes.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {

using namespace page;

namespace {

constexpr const char* kDots = "...";
constexpr double kDotsWidth = 3;
constexpr int kGroupsWrittenOut = 4;
constexpr int kColumns = 40;
constexpr double kExpressionCol = 4;

// A factor of the group as it stands in the table: a number or a letter.
struct Row {
  std::string heading;
  std::string factor;
  std::string together;
};

std::vector<Row> RowsOf(const PowerOfGroup& group) {
  std::vector<Row> rows;
  if (group.number != 1) {
    const std::string number = NumStr(group.number);
    rows.push_back({"factor " + number, number,
                    NumStr(static_cast<double>(ValueOfPower(group.number, group.exponent)))});
  }
  for (const Power& power : group.powers)
    rows.push_back({"factor " + power.base, PowerText(power),
                    PowerText({power.base, power.exponent * group.exponent})});
  return rows;
}

// What stands in a row of the table before the last column.  Of the number and two letters three
// groups are shown, since their products are wide; a row alone has room for five.
std::vector<std::string> CellsOf(const std::string& factor, int groups, std::size_t rows) {
  const int shown = rows > 2 ? 3 : rows == 1 ? kGroupsWrittenOut + 1 : kGroupsWrittenOut;
  if (groups <= shown) return std::vector<std::string>(static_cast<std::size_t>(groups), factor);
  if (rows > 2) return {factor, kDots, factor};
  return {factor, factor, kDots, factor};
}

int GroupColumns(const PowerOfGroup& group) {
  return static_cast<int>(CellsOf("", group.exponent, RowsOf(group).size()).size());
}

std::string ValueText(int base, int exponent) {
  return NumStr(static_cast<double>(ValueOfPower(base, exponent)));
}

// "4 x 4 x 4 = 16 x 4 = 64": larger powers by way of their two halves.
std::string NumberRaised(const PowerOfGroup& group) {
  constexpr int kKnownByHeart = 30;
  const auto [number, letters, exponent] = group;
  std::string text = FactorsOf(number, exponent);
  const int half = exponent / 2;
  if (exponent > 2 && ValueOfPower(number, exponent) > kKnownByHeart)
    text += " = " + JoinedByTimes({ValueText(number, exponent - half), ValueText(number, half)});
  return text + " = " + ValueText(number, exponent);
}

}  // namespace

std::string GroupText(const PowerOfGroup& group) {
  return "(" + ProductText(group.number, group.powers) + ")^" + NumStr(group.exponent) + "^";
}

std::string GroupWrittenOut(const PowerOfGroup& group) {
  const std::string one = "(" + ProductText(group.number, group.powers) + ")";
  if (group.exponent > kGroupsWrittenOut) return one + one + kDots + one;
  std::string text;
  for (int i = 0; i < group.exponent; ++i) text += one;
  return text;
}

std::string RaisedText(const PowerOfGroup& group) {
  std::vector<Power> powers = group.powers;
  for (Power& power : powers) power.exponent *= group.exponent;
  return ProductText(static_cast<int>(ValueOfPower(group.number, group.exponent)), powers);
}

std::string ExponentProduct(int inner, int outer) {
  return JoinedByTimes({NumStr(inner), NumStr(outer)}) + " = " + NumStr(inner * outer);
}

int AddedExponent(int inner, int outer) {
  return inner == 1 ? outer : inner + outer;
}

std::string NameOfAdding(const PowerOfGroup& group) {
  const auto isBare = [](const Power& power) { return power.exponent == 1; };
  if (std::ranges::none_of(group.powers, isBare)) return "adds the exponents";
  const auto raised = std::ranges::find_if_not(group.powers, isBare);
  return Text("adds the exponents {}", NumStr(raised->exponent) + " and " + NumStr(group.exponent));
}

std::vector<std::string> LinesOfRaising(const PowerOfGroup& group) {
  std::vector<std::string> lines;
  if (group.number != 1) lines.push_back(NumStr(group.number) + ":  " + NumberRaised(group));
  for (const Power& power : group.powers)
    lines.push_back(power.base + ":  " + ExponentProduct(power.exponent, group.exponent));
  return lines;
}

std::string SumOfExponents(int inner, int groups) {
  std::string sum = NumStr(inner);
  for (int i = 1; i < groups; ++i) sum += " + " + NumStr(inner);
  return sum + " = " + NumStr(inner * groups);
}

void ShowWorking(const std::string& math) {
  const int width = StackedTextWidth(math);
  const std::size_t equals = math.find(" = ");
  if (width <= kColumns) return Show(math, std::min(kExpressionCol, kColumns + 1.0 - width));
  ShowWorking(math.substr(0, equals));
  Show(math.substr(equals + 1), kExpressionCol);
}

void PointAtExponents(const PowerOfGroup& group, double row) {
  const std::string inside = ProductText(group.number, group.powers);
  const std::size_t innerMark = inside.find('^');
  const auto exponents = std::ranges::count(inside, '^') / 2;
  const double width = static_cast<double>(inside.size()) - 2.0 * static_cast<double>(exponents);
  const double col = (kColumns - width - 3) / 2;
  const double inner = col + 1 + static_cast<double>(innerMark);
  const double outer = col + width + 2;
  ShowAt(row, GroupText(group), col);
  Note(row - 1.7, inner - 8, "the inner exponent");
  isDrawArrow1Segment(row - 1.3, inner, row - 0.5, inner, platform::colour::Yellow, "NA", "A");
  Note(row + 1.5, outer - 2, "the outer exponent");
  isDrawArrow1Segment(row + 1.5, outer, row + 0.5, outer, platform::colour::Yellow, "NA", "A");
  GoBelow();
}

void CountGroups(const Power& group, int groups, double row) {
  constexpr double kSign = 3;  // columns of an equal sign or a dot between two blanks
  const std::string raised = GroupText({1, {group}, groups});
  const double first = kExpressionCol + StackedTextWidth(raised) + kSign;
  const double width = 1 + static_cast<double>(NumStr(group.exponent).size());
  const double step = width + kSign;
  const bool all = groups <= kGroupsWrittenOut;
  const int places = std::min(groups, kGroupsWrittenOut);
  const int hidden = all ? places : places - 2;  // the place of the dots
  const auto columnOf = [&](int place) {
    const double widened = place > hidden ? kDotsWidth - width : 0;
    return first + place * step + widened;
  };
  ShowAt(row, raised + " = " + PowerText(group), kExpressionCol);
  for (int place = 1, last = 0; place < places; ++place) {
    if (place == hidden) continue;
    SlideRight({row, columnOf(last), width}, columnOf(place) - columnOf(last), Leaving::Copy,
               Pace::Brisk);
    last = place;
  }
  for (int place = 1; place < places; ++place) ShowAt(row, tutor::Dot, columnOf(place) - 2);
  if (!all) ShowAt(row, kDots, columnOf(hidden));
  for (int place = 0; place < places; ++place)
    if (place != hidden)
      ShowAt(row + 1, R"(\y)" + NumStr(place == places - 1 ? groups : place + 1) + R"(\z)",
             columnOf(place));
}

void ShowGroupsTable(const PowerOfGroup& group) {
  const std::vector<Row> rows = RowsOf(group);
  const int columns = GroupColumns(group) + 1;
  std::vector<std::string> headings;
  for (const Row& row : rows) headings.push_back(row.heading);
  CellTable(TableOfRows(headings, columns));
  int first = 1;
  for (const Row& row : rows) {
    FillCells(first, CellsOf(row.factor, group.exponent, rows.size()));
    first += columns;
  }
}

void RaiseInTable(const PowerOfGroup& group, int row) {
  const bool isNumber = group.number != 1 && row == 0;
  const std::size_t letter = static_cast<std::size_t>(row - (group.number != 1 ? 1 : 0));
  const Power factor = isNumber ? Power{NumStr(group.number), 1} : group.powers.at(letter);
  Say(Text("Each of the {} groups has {} factor{} {}:", group.exponent, factor.exponent,
           Words{PluralSuffix(factor.exponent)}, factor.base));
  ShowWorking(isNumber ? NumberRaised(group)
                       : ExponentProduct(factor.exponent, group.exponent) + ",  so " +
                             PowerText({factor.base, factor.exponent * group.exponent}));
  FillInTogether(group, row);
}

void FillInTogether(const PowerOfGroup& group, int row) {
  FillCells((GroupColumns(group) + 1) * (row + 1),
            {"= " + RowsOf(group).at(static_cast<std::size_t>(row)).together},
            platform::colour::Blue);
}

void ShowTaskAndAnswers(const Problem& problem, const PowerOfGroup& group) {
  SayAt(5, problem.question[0]);
  ShowAt(7, GroupText(group), kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

void ShowTask(const PowerOfGroup& group) {
  ProblemBanner();
  ShowAt(5, GroupText(group), kExpressionCol);
}

void ExplainFactorByFactor(const PowerOfGroup& group) {
  ShowTask(group);
  Say(Text("The outer exponent {} tells how many times the group is a factor:", group.exponent));
  Show("= " + GroupWrittenOut(group), kExpressionCol);
  PageEnd();
  Say("Let's look at each factor of the group:");
  ShowGroupsTable(group);
  PageEnd();
  NewScreen();
  ShowTask(group);
  ShowGroupsTable(group);
  const int rows = static_cast<int>(RowsOf(group).size());
  for (int row = 0; row < rows; ++row) {
    RaiseInTable(group, row);
    if (row + 1 < rows) PageEnd();
  }
  Show(GroupText(group) + R"( = \y)" + RaisedText(group) + R"(\z)", kExpressionCol);
  PageEnd();
}

void BeginCheck(const PowerOfGroup& group) {
  NewScreen();
  ShowTask(group);
  AddLine("= " + RaisedText(group), {.col = kExpressionCol - 2});
}

void CheckExponents(const PowerOfGroup& group) {
  std::string letters;
  for (const Power& power : group.powers) letters += (letters.empty() ? "" : " and ") + power.base;
  Say(R"(\yCheck:\z  We add the exponents of )" + Text("{}:", letters));
  for (const Power& power : group.powers)
    ShowWorking(SumOfExponents(power.exponent, group.exponent));
  PageEnd();
}

}  // namespace course::powers
