#include "lessons/families/powers/power_law.h"

#include "lessons/families/powers/power_figures.h"
#include "lessons/page/boxes.h"
#include "mathkit/expressions.h"
#include "platform/stop.h"

namespace course::powers {
namespace {

constexpr int kGroupsShown = 5;
constexpr const char* kDots = "...";

// What stands in a row of the table before the last column.
std::vector<std::string> CellsOf(const Power& power, int groups) {
  const std::string text = PowerText(power);
  if (groups > kGroupsShown) return {text, text, kDots, text};
  return std::vector<std::string>(static_cast<std::size_t>(groups), text);
}

int GroupColumns(const PowerOfGroup& group) {
  return static_cast<int>(CellsOf(group.powers[0], group.exponent).size());
}

}  // namespace

std::string GroupText(const PowerOfGroup& group) {
  return "(" + ProductText(group.number, group.powers) + ")^" + NumStr(group.exponent) + "^";
}

std::string GroupWrittenOut(const PowerOfGroup& group) {
  constexpr int kAllShown = 3;
  const std::string one = "(" + ProductText(group.number, group.powers) + ")";
  if (group.exponent > kAllShown) return one + one + kDots + one;
  std::string text;
  for (int i = 0; i < group.exponent; ++i) text += one;
  return text;
}

void ShowGroupsTable(const PowerOfGroup& group) {
  if (group.powers.size() != 2) platform::Stop("ShowGroupsTable: not two letters");
  const int columns = GroupColumns(group) + 1;
  page::CellTable(
      TwoRows("factor " + group.powers[0].base, "factor " + group.powers[1].base, columns));
  for (int row = 0; row < 2; ++row)
    FillCells(1 + row * columns,
              CellsOf(group.powers[static_cast<std::size_t>(row)], group.exponent));
}

void FillInTogether(const PowerOfGroup& group, int row) {
  const Power& power = group.powers[static_cast<std::size_t>(row)];
  FillCells((GroupColumns(group) + 1) * (row + 1),
            {PowerText({power.base, power.exponent * group.exponent})}, platform::colour::Blue);
}

}  // namespace course::powers
