#include "lessons/families/powers/power_figures.h"

#include "display/drawing.h"
#include "display/grid.h"
#include "engine/page.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_text.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"

namespace course::powers {

using namespace page;
using platform::colour::Cyan;

namespace {

constexpr int kColumns = 40;                        // of the lesson screen
constexpr double kLayerHeight = 4.0 / gCellHeight;  // of folded paper, with the gap above it

constexpr int kSide = 3;               // squares
constexpr double kSquareWidth = 1.75;  // columns: 28 pixels, as many as 1.12 rows
constexpr double kSquareHeight = 1.12;

}  // namespace

PrintCellTable TableOfRows(const std::vector<std::string>& headings, int columns) {
  constexpr double kFirst = 20;                                // hundredths of the width
  constexpr double kMargin = 7.68, kPitch = 44.16;             // pixels
  constexpr double kCell = 36.48, kLabel = 26.88, kIn = 6.72;  // pixels, the label's from its row
  constexpr double kHeading = 14;                              // points
  const double step = (100 - kFirst) / columns;
  PrintCellTable table;
  table.heightPixels = 52 + 44 * (static_cast<int>(headings.size()) - 1);
  const auto share = [&](double pixels) { return pixels * 100 / table.heightPixels; };
  double top = kMargin;
  for (const std::string& heading : headings) {
    for (int i = 0; i < columns; ++i)
      table.cells.push_back({kFirst + i * step, share(top), step - 2, share(kCell)});
    table.labels.push_back({2, share(top + kIn), 17, share(kLabel), heading, kHeading});
    top += kPitch;
  }
  return table;
}

void FillCells(int first, const std::vector<std::string>& texts, platform::Colour colour) {
  constexpr double kSize = 16;  // points
  for (const std::string& text : texts) picPrintCellPrint(first++, text, colour, kSize);
}

PaperStrip::PaperStrip(double row, double col) : bottom_(row + 1), col_(col) {
  DrawLayers();
}

void PaperStrip::DrawLayers() const {
  constexpr double kThickness = 3.0 / gCellHeight;
  for (int i = 1; i <= layers_; ++i) {
    const double top = bottom_ - i * kLayerHeight;
    isDrawBoxFilled(top, col_, top + kThickness - 1, col_ + columns_ - 1, Cyan);
  }
}

void PaperStrip::Fold() {
  constexpr double kPixel = 1.0 / gCellWidth;
  constexpr double kLabelCol = 18;
  const double half = columns_ / 2;
  const double height = layers_ * kLayerHeight;
  constexpr double kAir = 0.4;  // above and below
  SlideLeft({bottom_ - height - kAir, col_ + half, half + kPixel, height + 2 * kAir}, half,
            Leaving::Nothing, Pace::Brisk);
  columns_ = half;
  layers_ *= 2;
  DrawLayers();
  const double row = bottom_ - 1;
  ClearCells(row, kLabelCol, kColumns - kLabelCol + 1, 1);
  ++folds_;
  ShowAt(row, Text("after {} fold{}: {} layers", folds_, Words{PluralSuffix(folds_)}, layers_),
         kLabelCol);
  GoBelow();
}

void DrawNineSquares(double row, double col) {
  for (int i = 0; i < kSide; ++i)
    for (int j = 0; j < kSide; ++j)
      isDrawBox(row + i * kSquareHeight, col + j * kSquareWidth, row + (i + 1) * kSquareHeight - 1,
                col + (j + 1) * kSquareWidth - 1, Cyan, 2);
}

void DrawCube(double row, double col) {
  constexpr double kBackRows = 12.0 / gCellHeight;  // a layer further back: up, and to the right
  constexpr double kBackCols = 12.0 / gCellWidth;
  constexpr double kEdgeRows = kSide * kSquareHeight;
  constexpr double kEdgeCols = kSide * kSquareWidth;
  constexpr double kHalf = 0.5;  // lines end in the middle of a cell
  // So many layers behind the corner (down, right) of the front.
  const auto line = [&](double down, double right, int from, double down2, double right2, int to) {
    isDrawDiagonalLineWithColor(
        row + down - from * kBackRows - kHalf, col + right + from * kBackCols - kHalf,
        row + down2 - to * kBackRows - kHalf, col + right2 + to * kBackCols - kHalf, 2, Cyan);
  };
  DrawNineSquares(row, col);
  for (int i = 0; i <= kSide; ++i) {
    line(0, i * kSquareWidth, 0, 0, i * kSquareWidth, kSide);
    line(i * kSquareHeight, kEdgeCols, 0, i * kSquareHeight, kEdgeCols, kSide);
    line(0, 0, i, 0, kEdgeCols, i);
    line(0, kEdgeCols, i, kEdgeRows, kEdgeCols, i);
  }
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
