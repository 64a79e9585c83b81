#include "display/print.h"

#include <algorithm>
#include <vector>

#include "display/grid.h"
#include "display/scoped_value.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr std::size_t kMaxLines = 10;
constexpr double kClipped = 1000;  // columns: texts in an answer box are clipped, never broken

std::vector<std::string> SplitLines(const std::string& s) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = s.find('\r', start)) != std::string::npos; start = end + 1)
    lines.push_back(s.substr(start, end - start));
  lines.push_back(s.substr(start));
  if (lines.size() > kMaxLines) platform::Stop("isPrint: more than 10 lines in \"" + s + "\"");
  return lines;
}

// Characters of a text that still fit between the column and the right margin.  A column may be
// fractional: an exponent that was nudged keeps its place in the last column.
std::size_t Room(double rightColumn, double col) {
  return static_cast<std::size_t>(std::max(0L, RoundHalfEven(rightColumn - col + 1)));
}

void MoveRows(TextPanel& panel, double rows) {
  panel.SetCursor(panel.layout.leftMargin, panel.cursorY + rows * panel.layout.cellHeight);
}

}  // namespace

double RightColumnOf(const TextPanel& panel) {
  if (&panel == &frmPR->wiperText) return screenState.gWbWidth;
  if (panel.layout.characters == CharacterSet::AnswerBox) return kClipped;
  if (panel.layout.characters != CharacterSet::CommentBox) return screenState.gRightColumn;
  const int inner = panel.surface.PixelWidth() - 2 * panel.layout.leftMargin;
  return inner / panel.layout.cellWidth;
}

void NewLineOn(TextPanel& panel) {
  MoveRows(panel, 1);
}

void PrintOn(TextPanel& panel, const std::string& s, double rightColumn) {
  if (s.find('\r') != std::string::npos) {
    for (const std::string& line : SplitLines(s)) PrintOn(panel, line, rightColumn);
    return;
  }
  std::string rest = s;
  panel.UpdateCursorCell();
  double col = panel.cursorCol;
  while (static_cast<double>(rest.size()) > rightColumn - col + 1) {
    const std::size_t room = Room(rightColumn, col);
    if (room == 0 && col == 1)
      platform::Stop("isPrint: no room up to column " + std::to_string(rightColumn));
    panel.TextOut(rest.substr(0, room));
    rest.erase(0, room);
    NewLineOn(panel);
    col = 1;
  }
  panel.TextOut(rest);
  if (screenState.gNoNewline != 0) {
    panel.SetCursor(panel.cursorX + panel.WidthOf(rest), panel.cursorY);
  } else {
    NewLineOn(panel);
  }
}

void isPrint(const std::string& s) {
  PrintOn(frmPR->lessonText, s, screenState.gRightColumn);
}

void isPrint() {
  NewLineOn(frmPR->lessonText);
}

void isPrints(const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  isPrint(s);
}

void isPrintLines(double rows) {
  MoveRows(frmPR->lessonText, rows);
}

void isPrintLines() {
  isPrint("");
}

void isColorPrint(const std::string& s, platform::Colour colour) {
  frmPR->pnlLesson.ForeColor = colour;
  isPrint(s);
  RestoreColor();
}

void isColorPrints(const std::string& s, platform::Colour colour) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  isColorPrint(s, colour);
}

void wbisPrint(const std::string& s) {
  PrintOn(frmPR->wiperText, s, screenState.gWbWidth);
}

void wbisPrint() {
  NewLineOn(frmPR->wiperText);
}

void wbisPrints(const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  wbisPrint(s);
}

void wbisPrintLines(double rows) {
  MoveRows(frmPR->wiperText, rows);
}

void wbisPrintLines() {
  wbisPrint("");
}

}  // namespace course
