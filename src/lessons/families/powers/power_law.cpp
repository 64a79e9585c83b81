#include "lessons/families/powers/power_law.h"

#include <algorithm>

#include "display/drawing.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_figures.h"
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

// What stands in a row of the table before the last column; three rows leave room for three groups.
std::vector<std::string> CellsOf(const std::string& factor, int groups, std::size_t rows) {
  const int shown = rows > 2 ? 3 : kGroupsWrittenOut;
  if (groups <= shown) return std::vector<std::string>(static_cast<std::size_t>(groups), factor);
  if (rows > 2) return {factor, kDots, factor};
  return {factor, factor, kDots, factor};
}

int GroupColumns(const PowerOfGroup& group) {
  return static_cast<int>(CellsOf("", group.exponent, RowsOf(group).size()).size());
}

std::string NumberRaised(const PowerOfGroup& group) {
  return FactorsOf(group.number, group.exponent) + " = " +
         NumStr(static_cast<double>(ValueOfPower(group.number, group.exponent)));
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

std::vector<std::string> LinesOfRaising(const PowerOfGroup& group) {
  std::vector<std::string> lines;
  if (group.number != 1) lines.push_back(NumStr(group.number) + ":  " + NumberRaised(group));
  for (const Power& power : group.powers)
    lines.push_back(power.base + ":  " + ExponentProduct(power.exponent, group.exponent));
  return lines;
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
  constexpr double kFirst = 6;  // column, behind the equal sign
  constexpr double kSign = 3;   // columns of a dot between two blanks
  const double width = 1 + static_cast<double>(NumStr(group.exponent).size());
  const double step = width + kSign;
  const bool all = groups <= kGroupsWrittenOut;
  const int places = std::min(groups, kGroupsWrittenOut);
  const int hidden = all ? places : places - 2;  // the place of the dots
  const auto columnOf = [&](int place) {
    const double widened = place > hidden ? kDotsWidth - width : 0;
    return kFirst + place * step + widened;
  };
  ShowAt(row, "= " + PowerText(group), kFirst - 2);
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
  const std::string raised = isNumber
                                 ? NumberRaised(group)
                                 : ExponentProduct(factor.exponent, group.exponent) + ",  so " +
                                       PowerText({factor.base, factor.exponent * group.exponent});
  constexpr double kCol = 4;
  Show(raised, std::min(kCol, kColumns + 1 - static_cast<double>(raised.size())));
  FillInTogether(group, row);
}

void FillInTogether(const PowerOfGroup& group, int row) {
  FillCells((GroupColumns(group) + 1) * (row + 1),
            {RowsOf(group).at(static_cast<std::size_t>(row)).together}, platform::colour::Blue);
}

}  // namespace course::powers
