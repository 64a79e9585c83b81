#include "lessons/page/page_lines.h"

#include "display/drawing.h"
#include "display/grid.h"
#include "display/stacked_text.h"
#include "display/word_wrap.h"

namespace course::page {

void WrapAt(double row, const std::string& text) {
  Locate(row, 1);
  WordWrap(text);
}

void PrintRow(double row, const std::string& text, double col) {
  Locate(row, col);
  WordWraps(text);
}

void PrintStackedRow(double row, const std::string& text, double col) {
  Locate(row, col);
  isPrintStackedText(text);
}

void ClearCells(double row, double col, double wd, double ht) {
  constexpr double kBandTop = 4.0 / gCellHeight;  // letters begin below the top of their cells
  isDrawBoxFilled(row + kBandTop, col, row + kBandTop + ht - 1, col + wd - 1,
                  screenState.gBackColor);
}

void ClearRows(double row, double ht) {
  ClearCells(row, 1, screenState.gRightColumn, ht);
}

}  // namespace course::page
