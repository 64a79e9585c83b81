// A hanging indent and a narrow width, each in force as long as its object lives.
#pragma once

#include "display/scoped_value.h"
#include "display/text_panel.h"
#include "display/word_wrap.h"

namespace course {

class NarrowWidth {
 public:
  explicit NarrowWidth(double wid)
      : on_(wrapState.gNarrowOn, 1), col_(wrapState.gNarrowCol, static_cast<float>(wid)) {}

 private:
  ScopedValue<int> on_;
  ScopedValue<float> col_;
};

// Afterwards the cursor stands at the panel's left margin, in the row that it has come to.
class HangingIndent {
 public:
  HangingIndent(TextPanel& panel, double indentCol)
      : panel_(panel),
        on_(wrapState.gIndentOn, 1),
        col_(wrapState.gIndentCol, static_cast<float>(indentCol)) {}
  ~HangingIndent() { panel_.cursorX = panel_.layout.leftMargin; }
  HangingIndent(const HangingIndent&) = delete;
  HangingIndent& operator=(const HangingIndent&) = delete;

 private:
  TextPanel& panel_;
  ScopedValue<int> on_;
  ScopedValue<float> col_;
};

// Starts the next line of a wrapped text: at the margin, or at the indent in force.
inline void StartWrappedLine(TextPanel& panel, int lineGap) {
  const double indent = wrapState.gIndentOn * (wrapState.gIndentCol - 1) * panel.layout.cellWidth;
  panel.SetCursor(panel.layout.leftMargin + indent,
                  panel.cursorY + panel.layout.cellHeight + lineGap);
}

}  // namespace course
