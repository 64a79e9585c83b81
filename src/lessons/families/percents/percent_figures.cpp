#include "lessons/families/percents/percent_figures.h"

#include <algorithm>

#include "display/drawing.h"
#include "display/grid.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"

namespace course::percents {

using namespace page;
using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

namespace {

constexpr double kBarDrop = 1.3;   // rows from the line above it to the bar
constexpr double kNameDrop = 2.4;  // and to the line below it

// The bar: ten tenths.
constexpr double kBarCol = 3;
constexpr double kBarWidth = 36;
constexpr double kHalf = kBarWidth / 2;
constexpr int kTenths = 10;

double ColumnAt(int percent) {
  return kBarCol + kBarWidth * percent / kHundred;
}
double ColumnOfText(const std::string& text, double end) {
  return end - static_cast<double>(text.size());
}
std::string Coloured(const std::string& text, bool isFilled, const char* code = R"(\y)") {
  return isFilled ? code + text + R"(\z)" : text;
}

}  // namespace

void DrawHundredSquares(double row, double col, int filled) {
  constexpr int kSide = 10;
  constexpr double kHeight = 0.64;  // rows: as many pixels as a column
  for (int i = 0; i < kSide; ++i) {
    const double top = row + i * kHeight;
    const int inRow = std::clamp(filled - i * kSide, 0, kSide);
    if (inRow > 0) isDrawBoxFilled(top, col, top + kHeight - 1, col + inRow - 1, Yellow);
  }
  const platform::Colour line = platform::colour::FormGrey;
  for (int i = 0; i < kSide; ++i) {
    isDrawBox(row + i * kHeight, col, row + (i + 1) * kHeight - 1, col + kSide - 1, line, 1);
    isDrawBox(row, col + i, row + kSide * kHeight - 1, col + i, line, 1);
  }
}

PercentBar::PercentBar(double row, const std::string& whole) : row_(row) {
  ShowAt(row_, whole, ColumnOfText(whole, kBarCol + kBarWidth));
  Paint(0, 0);
}

void PercentBar::FillLeft(int percent) {
  leftPercent_ = percent;
  rightIsFilled_ = false;
  Paint(0, percent);
}

void PercentBar::FillRight(int percent) {
  leftPercent_ = kHundred - percent;
  rightIsFilled_ = true;
  Paint(leftPercent_, kHundred);
}

// The whole bar, filled between two percents.
void PercentBar::Paint(int from, int to) const {
  const double row = row_ + kBarDrop;
  isDrawBoxFilled(row, kBarCol, row, kBarCol + kBarWidth - 1, screenState.gBackColor);
  if (from < to) isDrawBoxFilled(row, ColumnAt(from), row, ColumnAt(to) - 1, Yellow);
  for (int i = 0; i < kTenths; ++i)
    isDrawBox(row, ColumnAt(i * kTenths), row, ColumnAt((i + 1) * kTenths) - 1, White, 2);
}

void PercentBar::NameLeft(const std::string& text) const {
  ClearCells(row_ + kNameDrop, kBarCol, kHalf, 1);
  ShowAt(row_ + kNameDrop,
         rightIsDropped_ ? Coloured(text, true, R"(\c)") : Coloured(text, !rightIsFilled_),
         kBarCol);
  GoBelow();
}

void PercentBar::NameRight(const std::string& text) const {
  ClearCells(row_ + kNameDrop, kBarCol + kHalf, kHalf, 1);
  ShowAt(row_ + kNameDrop, Coloured(text, rightIsFilled_), ColumnOfText(text, kBarCol + kBarWidth));
  GoBelow();
}

void PercentBar::DropRight() {
  constexpr double kDrop = 1.3;
  constexpr double kEdge = 2.0 / gCellWidth;  // the outline
  const double row = row_ + kBarDrop;
  const double col = ColumnAt(leftPercent_);
  const double end = kBarCol + kBarWidth;
  isDrawBoxFilled(row, kBarCol, row, col - 1, Cyan);
  for (double left = kBarCol; left < col; left += kBarWidth / kTenths)
    isDrawBox(row, left, row, std::min(left + kBarWidth / kTenths, col) - 1, White, 2);
  isDrawBox(row, col, row, end - 1, White, 2);
  SlideDown({row_ + kNameDrop, kBarCol + kHalf, kHalf}, kDrop);
  SlideDown({row - 0.25, col - kEdge, end - col + kEdge, 1.3}, kDrop);
  isDrawBox(row, kBarCol, row, col - 1, White, 2);
  rightIsDropped_ = true;
}

}  // namespace course::percents
