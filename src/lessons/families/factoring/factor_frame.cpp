#include "lessons/families/factoring/factor_frame.h"

#include "display/drawing.h"
#include "display/stacked_text.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"

namespace course::factoring {

void FrameFactor(double firstRow, double lastRow, double firstCol, double lastCol) {
  constexpr double kAbove = 0.02;  // rows; letters begin below the top of their cells
  constexpr double kBelow = 0.2;
  constexpr double kSide = 0.38;  // columns
  constexpr int kThickness = 2;   // pixels
  isDrawRoundRect(firstRow + kAbove, firstCol - kSide, lastRow + kBelow, lastCol + kSide,
                  kThickness, platform::colour::Yellow);
}

void SlideFactorDown(double fromRow, double toRow, double col, double width) {
  constexpr double kInside = 0.15;  // rows: only what stands within the frame moves
  constexpr double kHeight = 0.9;
  page::SlideDown({fromRow + kInside, col, width, kHeight}, toRow - fromRow, page::Leaving::Copy,
                  page::Pace::Brisk);
}

void ShowOverSlid(double row, double col, const std::string& product) {
  constexpr double kAround = 0.2;  // rows
  page::ClearCells(row - kAround, col, StackedTextWidth(product), 1 + 2 * kAround);
  page::ShowAt(row, product, col);
}

}  // namespace course::factoring
