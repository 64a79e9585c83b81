#include "display/word_wrap.h"

#include <algorithm>
#include <functional>

#include "display/exponents.h"
#include "display/grid.h"
#include "display/paragraph.h"
#include "display/scoped_value.h"
#include "display/wrap_modes.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

namespace course {

WrapState wrapState;

namespace {

constexpr double kExplanationWidth = 38;

// Results of WordWrapFindBreak that are no position.
constexpr int kEverythingFits = -1;
constexpr int kNothingFits = -2;
constexpr int kAllButBlankFits = -3;

int CellsOf(const std::string& s) {
  return static_cast<int>(StripExponentMarks(s).size());
}

double CurrentWidth() {
  return wrapState.gNarrowOn == 1 ? wrapState.gNarrowCol : screenState.gRightColumn;
}

// Prints a stretch word by word from the cursor on; the look-ahead's first word is glued to its
// end.
void LayOutWords(TextPanel& panel, std::string s, const std::string& lookahead, int wid,
                 const std::function<void()>& newLine) {
  const auto print = [&](const std::string& t) {
    PrintMarkedOn(panel, t, panel.layout.exponentSize, 0);
  };
  bool freshLine = false;
  for (;;) {
    panel.UpdateCursorCell();
    const int col = IntOf(panel.cursorCol);
    const int position = WordWrapFindBreak(col, wid, s, lookahead);
    if (position == kEverythingFits) return print(s);
    if (position == kAllButBlankFits) return print(s.substr(0, s.size() - 1));
    if (position == kNothingFits) {
      // A word that fits alone but not with the word glued to it would go down for ever.
      if (freshLine && CellsOf(s) + col - 1 <= wid) return print(s);
      if (s.starts_with(' ')) s.erase(0, 1);
    } else {
      if (position > 0) print(s.substr(0, static_cast<std::size_t>(position)));
      s = LTrim(s.substr(static_cast<std::size_t>(position) + 1));
    }
    newLine();
    freshLine = true;
    if (position > 0 && s.empty()) return;
  }
}

}  // namespace

int WordWrapFindBreak(int col, int wid, const std::string& s, const std::string& lookahead) {
  if (col > wid) return kNothingFits;
  const int cells = CellsOf(s) + col - 1;
  if (s.ends_with(' ')) {
    if (cells <= wid) return kEverythingFits;
    if (cells == wid + 1) return kAllButBlankFits;
  } else {
    const int glued = static_cast<int>(std::min(lookahead.find(' '), lookahead.size()));
    if (cells + glued <= wid) return kEverythingFits;
  }
  bool raised = false;
  bool lowered = false;
  int cellsBefore = 0;  // of the characters before the one in hand
  int best = kNothingFits;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == '^') {
      raised = !raised;
    } else if (s[i] == '\xFA') {
      lowered = !lowered;
    } else {
      if (s[i] == ' ' && !raised && !lowered) {
        if (cellsBefore + col - 1 > wid) break;
        best = static_cast<int>(i);
      }
      ++cellsBefore;
    }
  }
  return best;
}

void WrapOn(TextPanel& panel, const std::string& s, int wid, int lineGap) {
  const auto newLine = [&] { StartWrappedLine(panel, lineGap); };
  PrintParagraph({.current = panel.textColour,
                  .setColour = [&](platform::Colour c) { panel.surface.ForeColor = c; },
                  .newLine = newLine,
                  .layOut =
                      [&](const std::string& stretch, const std::string& lookahead) {
                        LayOutWords(panel, stretch, lookahead, wid, newLine);
                      }},
                 s, screenState.gNoNewline != 0);
  panel.surface.ForeColor = panel.textColour;
}

void WordWrap(const std::string& s) {
  const double wid = CurrentWidth();
  if (wid < 10) platform::Stop("The value of wid is too small");
  WrapOn(frmPR->lessonText, s, IntOf(wid), screenState.gLineGap);
}

void WordWraps(const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  WordWrap(s);
}

void WordWrapIndent(const std::string& s, double indentCol) {
  const HangingIndent indent(frmPR->lessonText, indentCol);
  WordWrap(s);
}

void WordWrapNarrow(const std::string& s, double wid) {
  const NarrowWidth narrow(wid);
  WordWrap(s);
}

void WordWrapIndentNarrow(const std::string& s, double indentCol, double wid) {
  const NarrowWidth narrow(wid);
  WordWrapIndent(s, indentCol);
}

void WordWrap38(const std::string& s) {
  WordWrapNarrow(s, kExplanationWidth);
}

namespace {

template <class Wrap>
double RowsOf(Wrap wrap) {
  TextPanel& panel = frmPR->lessonText;
  panel.UpdateCursorCell();
  const float row = panel.cursorRow;
  const float col = panel.cursorCol;
  {
    const ScopedValue measure(screenState.gMeasureOnly, 1);
    wrap();
  }
  panel.UpdateCursorCell();
  const float newRow = panel.cursorRow;
  Locate(row, col);
  return newRow - row;
}

}  // namespace

double WordWrapRows(const std::string& s) {
  return RowsOf([&] { WordWrap(s); });
}

double WordWrap38Rows(const std::string& s) {
  return RowsOf([&] { WordWrap38(s); });
}

}  // namespace course
