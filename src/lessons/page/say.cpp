#include "lessons/page/say.h"

#include "display/grid.h"
#include "display/print.h"
#include "display/word_wrap.h"
#include "lessons/page/page_error.h"

namespace course::page {
namespace {

constexpr double kPixel = 1.0 / gCellHeight;  // rows are rounded to pixels

double CursorRow() {
  UpdateCursorCell();
  return frmPR->lessonText.cursorRow;
}

}  // namespace

std::string Filled(std::string_view pattern, std::initializer_list<std::string> inserts) {
  std::string text;
  const auto* insert = inserts.begin();
  std::size_t printed = 0;
  for (std::size_t at; (at = pattern.find("{}", printed)) != std::string_view::npos;
       printed = at + 2) {
    if (insert == inserts.end()) break;
    text += pattern.substr(printed, at - printed);
    text += *insert++;
  }
  text += pattern.substr(printed);
  if (insert != inserts.end() || text.find("{}") != std::string::npos)
    StopPage("Text has " + std::to_string(inserts.size()) + " values for \"" +
             std::string(pattern) + "\"");
  return text;
}

void CheckRows(const char* routine, double first, double last, const std::string& text) {
  if (first >= kFirstTextRow - kPixel && last <= kLastTextRow + kPixel) return;
  StopPage(std::string(routine) + " prints on rows " + CellText(first) + " to " + CellText(last) +
           ", not 2 to 23: \"" + text + "\"");
}

double NextRow() {
  const double row = CursorRow();
  return frmPR->lessonText.cursorCol > 1 ? row + 1 : row;
}

void Say(const std::string& text, const TextPlace& place) {
  SayAt(CursorRow() + 1, text, place);
}

void AddLine(const std::string& text, const TextPlace& place) {
  SayAt(NextRow(), text, place);
}

void SayAt(double row, const std::string& text, const TextPlace& place) {
  Locate(row, place.col);
  WordWrapIndentNarrow(text, place.indent == 0 ? place.col : place.indent, place.lastCol);
  CheckRows("SayAt", row, CursorRow() - 1, text);
}

}  // namespace course::page
