#include "lessons/families/equations/walk_line.h"

#include <cstdlib>
#include <string>

#include "display/drawing.h"
#include "display/grid.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"

namespace course::equations {
namespace {

constexpr double kLineRow = 13.5;
constexpr double kMarkRow = kLineRow - 1.8;
constexpr double kBulletRow = kLineRow - 0.7;
constexpr double kZeroCol = 20.5;
constexpr int kLastTick = 9;
constexpr int kColumnsPerUnit = 2;

// Of the mark's number, with its sign.
constexpr double kMarkWidth = 3;
constexpr double kMarkHeight = 1.8;

double ColumnOf(int value) {
  return kZeroCol + kColumnsPerUnit * value;
}

// A number centred over or under its point.
void ShowNumber(double row, int value, const std::string& colour) {
  const std::string text = NumStr(value);
  page::ShowAt(row, "\\" + colour + text + "\\z",
               ColumnOf(value) - (static_cast<double>(text.size()) - 1) / 2);
}

void MarkNumber(int value) {
  ShowNumber(kMarkRow, value, "y");
  isDrawBullet(kBulletRow, ColumnOf(value), platform::colour::Yellow);
}

// Where the walk began, and the arrow from there with its length.
void ShowWalk(int start, int step) {
  constexpr double kGap = 0.6;         // columns between arrow and dot
  constexpr double kHoleRadius = 3.5;  // pixels
  MarkNumber(start);
  isDrawBullet(kBulletRow, ColumnOf(start), screenState.gBackColor, kHoleRadius);
  const double gap = step < 0 ? -kGap : kGap;
  isDrawArrow1Segment(kBulletRow, ColumnOf(start) + gap, kBulletRow, ColumnOf(start + step) - gap,
                      platform::colour::Yellow, "NA", "A");
  const std::string length = (step < 0 ? "- " : "+ ") + NumStr(std::abs(step));
  page::ShowAt(
      kMarkRow, R"(\y)" + length + R"(\z)",
      (ColumnOf(start) + ColumnOf(start + step) - static_cast<double>(length.size()) + 1) / 2);
}

}  // namespace

void DrawWalkLine(int start) {
  isDrawHorizLine(kLineRow, ColumnOf(-kLastTick) - 0.5, ColumnOf(kLastTick) + 0.5, 2);
  for (int value = -kLastTick; value <= kLastTick; ++value) {
    isDrawVertLine(ColumnOf(value), kLineRow + 0.3, kLineRow - 0.2, 1);
    if (value % 2 == 0) ShowNumber(kLineRow + 0.8, value, "w");
  }
  MarkNumber(start);
}

void WalkFrom(int start, int step) {
  const page::Cells mark = {kMarkRow, ColumnOf(start) - 1, kMarkWidth, kMarkHeight};
  (step < 0 ? page::SlideLeft : page::SlideRight)(mark, kColumnsPerUnit * std::abs(step),
                                                  page::Leaving::Nothing, page::Pace::Brisk);
  page::ClearCells(kMarkRow, ColumnOf(start + step) - 1, kMarkWidth, 1);
  MarkNumber(start + step);
  ShowWalk(start, step);
}

}  // namespace course::equations
