// The wiper box keeps an older layout: it searches for a blank backward from the margin, looks at
// glued words only when a line is exactly full, and may break inside an exponent.  Its texts were
// laid out with it, so the two stay apart.
#include <algorithm>

#include "display/exponents.h"
#include "display/grid.h"
#include "display/paragraph.h"
#include "display/print.h"
#include "display/scoped_value.h"
#include "display/word_wrap.h"
#include "display/wrap_modes.h"
#include "mathkit/integers.h"

namespace course {
namespace {

struct Piece {
  std::string text;
  bool exponent = false;
  bool glued = false;  // what follows does not begin with a blank
};

void StartNewLine() {
  StartWrappedLine(frmPR->wiperText, screenState.gWbLineGap);
}

// Prints a line and leaves the cursor behind it and behind the blank that was swallowed at its end.
void PrintLine(const std::string& line, bool exponent, bool blankSwallowed) {
  TextPanel& panel = frmPR->wiperText;
  const int blank = blankSwallowed ? panel.layout.cellWidth : 0;
  int width = 0;
  if (exponent) {
    wbisPrintExponent1(line, 14);
  } else {
    panel.TextOut(line);
    width = static_cast<int>(line.size()) * panel.layout.cellWidth;
  }
  panel.SetCursor(panel.cursorX + width + blank, panel.cursorY);
}

// Index of the last blank that may end a line, npos for none.
std::size_t FindBlank(const std::string& s, int col, int start) {
  const int from = std::min(start - col + 2, static_cast<int>(s.size()));
  return from < 1 ? std::string::npos : s.rfind(' ', static_cast<std::size_t>(from - 1));
}

void LayOutPiece(Piece piece, int wid) {
  bool freshLine = false;
  for (;;) {
    wbUpdateCursorCell();
    const int col = IntOf(frmPR->wiperText.cursorCol);
    const int end = col - 1 + static_cast<int>(piece.text.size());
    const bool exactlyFull = piece.glued && end == wid;
    // Alone on a new line an exactly full piece has to stand, whatever is glued to it.
    const bool noBlank = piece.text.find(' ') == std::string::npos;
    if (end <= wid && (!exactlyFull || (freshLine && noBlank)))
      return PrintLine(piece.text, piece.exponent, false);
    const std::size_t blank = FindBlank(piece.text, col, exactlyFull ? wid - 1 : wid);
    if (blank != std::string::npos) {
      const std::string rest = LTrim(piece.text.substr(blank + 1));
      PrintLine(piece.text.substr(0, blank), piece.exponent, true);
      if (rest.empty()) return;
      piece.text = rest;
    }
    StartNewLine();
    freshLine = true;
  }
}

std::vector<Piece> CutIntoPieces(const std::string& s, bool gluedNext) {
  std::vector<Piece> pieces;
  for (const ScriptPart& part : CutAtMarks(s)) pieces.push_back({part.text, part.level > 0, false});
  for (std::size_t i = 0; i < pieces.size(); ++i)
    pieces[i].glued = i + 1 < pieces.size() ? !pieces[i + 1].text.starts_with(' ') : gluedNext;
  return pieces;
}

}  // namespace

void wbWordWrap(const std::string& s) {
  TextPanel& panel = frmPR->wiperText;
  const int wid = IntOf(wrapState.gNarrowOn == 1 ? wrapState.gNarrowCol : screenState.gWbWidth);
  PrintParagraph({.current = panel.textColour,
                  .setColour = [&](platform::Colour c) { panel.surface.ForeColor = c; },
                  .newLine = StartNewLine,
                  .layOut =
                      [&](const std::string& stretch, const std::string& lookahead) {
                        const bool gluedNext = !lookahead.empty() && lookahead[0] != ' ';
                        for (const Piece& piece : CutIntoPieces(stretch, gluedNext))
                          LayOutPiece(piece, wid);
                      }},
                 s, screenState.gNoNewline != 0);
  panel.surface.ForeColor = panel.textColour;
}

void wbWordWraps(const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  wbWordWrap(s);
}

void wbWordWrapIndent(const std::string& s, double indentCol) {
  const HangingIndent indent(frmPR->wiperText, indentCol);
  wbWordWrap(s);
}

void wbWordWrapNarrow(const std::string& s, double wid) {
  const NarrowWidth narrow(wid);
  wbWordWrap(s);
}

}  // namespace course
