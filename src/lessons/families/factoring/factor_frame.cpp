#include "lessons/families/factoring/factor_frame.h"

#include "display/drawing.h"

namespace course::factoring {

void FrameFactor(double firstRow, double lastRow, double firstCol, double lastCol) {
  constexpr double kAbove = 0.02;  // rows; letters begin below the top of their cells
  constexpr double kBelow = 0.2;
  constexpr double kSide = 0.38;  // columns
  constexpr int kThickness = 2;   // pixels
  isDrawRoundRect(firstRow + kAbove, firstCol - kSide, lastRow + kBelow, lastCol + kSide,
                  kThickness, platform::colour::Yellow);
}

}  // namespace course::factoring
