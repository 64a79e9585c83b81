#include "lessons/page_lines.h"

#include "display/grid.h"
#include "display/print.h"
#include "display/stacked_text.h"
#include "display/word_wrap.h"

namespace course {

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

void ClearRows(int first, int count) {
  for (int i = 0; i < count; ++i) {
    Locate(first + i, 1);
    isPrints(std::string(static_cast<std::size_t>(screenState.gRightColumn), ' '));
  }
}

}  // namespace course
