#include "lessons/families/powers/power_figures.h"

#include "display/drawing.h"
#include "display/grid.h"
#include "engine/page.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_text.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"

namespace course::powers {

using namespace page;
using platform::colour::Cyan;

PrintCellTable TwoRows(const std::string& upper, const std::string& lower, int columns) {
  constexpr double kFirst = 20;  // hundredths of the width
  constexpr double kTops[] = {8, 54};
  constexpr double kHeading = 14;  // points
  const double step = (100 - kFirst) / columns;
  PrintCellTable table;
  table.heightPixels = 96;
  for (const double top : kTops)
    for (int i = 0; i < columns; ++i) table.cells.push_back({kFirst + i * step, top, step - 2, 38});
  table.labels = {{2, kTops[0] + 7, 17, 28, upper, kHeading},
                  {2, kTops[1] + 7, 17, 28, lower, kHeading}};
  return table;
}

void FillCells(int first, const std::vector<std::string>& texts, platform::Colour colour) {
  constexpr double kSize = 16;  // points
  for (const std::string& text : texts) picPrintCellPrint(first++, text, colour, kSize);
}

PaperStrip::PaperStrip(double row, double col, int columns)
    : row_(row), col_(col), columns_(columns) {
  isDrawBoxFilled(row_, col_, row_, col_ + columns_ - 1, Cyan);
}

void PaperStrip::Fold() {
  constexpr double kPixel = 1.0 / gCellWidth;
  const double half = columns_ / 2;
  SlideLeft({row_ - 0.3, col_ + half, half + kPixel, 1.5}, half, Leaving::Nothing, Pace::Brisk);
  columns_ = half;
}

void DrawNineSquares(double row, double col) {
  constexpr int kSide = 3;
  constexpr double kWidth = 1.75;  // columns: 28 pixels, as many as 1.12 rows
  constexpr double kHeight = 1.12;
  for (int i = 0; i < kSide; ++i)
    for (int j = 0; j < kSide; ++j)
      isDrawBox(row + i * kHeight, col + j * kWidth, row + (i + 1) * kHeight - 1,
                col + (j + 1) * kWidth - 1, Cyan, 2);
}

void MultiplyStepByStep(int base, int factors) {
  constexpr double kLeft = 3;
  constexpr double kRight = 22;
  constexpr int kProductsAPage = 4;
  const auto product = [&](int n) { return NumStr(static_cast<double>(ValueOfPower(base, n))); };
  const int products = factors - 1;
  Locate(NextRow() + 0.5, 1);
  for (int i = 1; i <= products; ++i) {
    const bool left = i % 2 != 0;
    ShowAt(left ? NextRow() : NextRow() - 1,
           JoinedByTimes({product(i), NumStr(base)}) + " = " + product(i + 1),
           left ? kLeft : kRight);
    if (i % kProductsAPage == 0 || i == products) PageEnd();
  }
}

}  // namespace course::powers
