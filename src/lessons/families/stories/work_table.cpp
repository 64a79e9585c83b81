#include "lessons/families/stories/work_table.h"

#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/page/boxes.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"

namespace course::stories {
namespace {

constexpr int kRows = 3;
constexpr int kColumns = 3;

// Hundredths of the table's width and height.
constexpr double kLefts[] = {25, 50, 75};
constexpr double kCellWidth = 22;
constexpr double kFirstTop = 20;
constexpr double kCellHeight = 23;
constexpr double kRowStep = 26;
constexpr double kLabelDrop = 4;

constexpr double kCellSize = 14;  // points
constexpr double kLabelSize = 11;
constexpr double kHeadSize = 12;

}  // namespace

void ShowWorkTable(double row, const std::string& first, const std::string& second) {
  const std::string names[] = {WithoutArticle(first), WithoutArticle(second), "Together"};
  const std::string heads[] = {"Rate", "Time", "Part"};
  PrintCellTable table;
  table.heightPixels = static_cast<int>(kWorkTableRows * gCellHeight);
  for (int i = 0; i < kRows; ++i) {
    const double top = kFirstTop + i * kRowStep;
    for (const double left : kLefts) table.cells.push_back({left, top, kCellWidth, kCellHeight});
    table.labels.push_back(
        {1, top + kLabelDrop, kLefts[0] - 2, kCellHeight - kLabelDrop, names[i], kLabelSize});
  }
  for (int i = 0; i < kColumns; ++i)
    table.labels.push_back({kLefts[i], 2, kCellWidth, kFirstTop - 3, heads[i], kHeadSize,
                            platform::colour::Red, true});
  constexpr double kBehindRate = 47.8;
  constexpr double kBehindTime = 72.8;
  table.marks = {{kBehindRate, 1, "x"}, {kBehindTime, 1, "="}};
  page::CellTable(table, row);
}

void FillWork(WorkPart row, WorkColumn column, const std::string& text, platform::Colour colour) {
  const int cell = (static_cast<int>(row) - 1) * kColumns + static_cast<int>(column);
  picPrintCellCls(cell);
  picPrintCellPrint(cell, text, colour, kCellSize);
}

std::string AndMixed(const Fraction& value) {
  const std::string mixed = MixedText(value);
  return ValueText(value) + (mixed == ValueText(value) ? "" : " = " + mixed);
}

std::string RateTimesT(const Fraction& rate) {
  const std::string above = CoefText(rate.num) + "T";
  return rate.den == 1 ? above : FractionOfTexts(above, NumStr(rate.den));
}

std::string RatesLine(const Fraction& a, const std::string& sign, const Fraction& b) {
  const int lcd = static_cast<int>(Lcm(a.den, b.den));
  const int first = a.num * (lcd / a.den);
  const int second = b.num * (lcd / b.den);
  const int result = sign == "+" ? first + second : first - second;
  const auto over = [lcd](int n) { return FractionOfTexts(NumStr(n), NumStr(lcd)); };
  std::string line = ValueText(a) + " " + sign + " " + ValueText(b);
  if (lcd > 1 && a.den != b.den) line += " = " + over(first) + " " + sign + " " + over(second);
  if (lcd > 1) line += " = " + over(result);
  const std::string reduced = ValueText(Reduced(result, lcd));
  return lcd > 1 && reduced == over(result) ? line : line + " = " + reduced;
}

}  // namespace course::stories
