#include "display/answer_text.h"

#include <algorithm>

#include "display/exponents.h"
#include "display/fractions.h"
#include "display/grid.h"
#include "display/one_fragment.h"
#include "display/print.h"
#include "display/radical_text.h"
#include "display/scoped_value.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {

double gAnswerBaseY = 0;

namespace {

constexpr int kBarThickness = 3;   // pixels
constexpr double kBarDrop = 0.05;  // rows

TextPanel& Text(int box) {
  return *frmPR->answerText.at(static_cast<std::size_t>(box));
}

void SetCursor(TextPanel& panel, double x, double y) {
  panel.SetCursor(x, y);
  panel.surface.CurrentX = panel.cursorX;
  panel.surface.CurrentY = panel.cursorY;
}

struct Cell {
  double row;
  double col;
};

Cell CursorCell(int box) {
  picAnswerUpdateCursorCell(box);
  return {Text(box).cursorRow, Text(box).cursorCol};
}

void PrintStacked(int box, const std::string& num, const std::string& den, int minWidth,
                  double barShift, double tighten) {
  const OneFragment fraction(Text(box), TypedFraction(num, den));
  const Cell at = CursorCell(box);
  const int numLength = FractionPartLength(num);
  const int denLength = FractionPartLength(den);
  const int width = std::max({numLength, denLength, minWidth});
  picAnswerDrawBar(box, at.row + kBarDrop + barShift, at.col, at.col + width - 1, kBarThickness);
  picAnswerLocate(box, at.row - 1 + tighten, at.col + (width - numLength) / 2.0);
  picAnswerPrintRadicalText(box, num);
  picAnswerLocate(box, at.row + 1 - tighten, at.col + (width - denLength) / 2.0);
  picAnswerPrintRadicalText(box, den);
  picAnswerLocate(box, at.row, at.col + width);
}

void PrintRadicand(int box, const std::string& text, double widen) {
  const OneFragment radical(Text(box), TypedText("`" + text + "`"));
  const Cell at = CursorCell(box);
  const double width = static_cast<double>(StripCarets(text).size()) + widen;
  picAnswerLocate(box, at.row, at.col - widen);
  picAnswerisPrints(box, tutor::SquareRoot);
  picAnswerDrawBar(box, at.row - 0.6, at.col - widen + 0.9, at.col - widen + width, kBarThickness);
  picAnswerLocate(box, at.row, at.col + 1);
  picAnswerPrintExponentExpression(box, text);
}

}  // namespace

void picAnswerLocatePixels(int box, double dy, double x) {
  SetCursor(Text(box), x, gAnswerBaseY + dy);
}

void picAnswerLocate(int box, double row, double col) {
  TextPanel& panel = Text(box);
  SetCursor(panel, panel.CellX(col), panel.CellY(row));
}

void picAnswerUpdateCursorCell(int box) {
  Text(box).UpdateCursorCell();
}

void picAnswerSetFont(int box, const std::string& name, bool bold, double size) {
  TextPanel& panel = Text(box);
  panel.surface.FontName = UpperCase(name) == "TNR" ? "Times New Roman" : name;
  panel.surface.FontBold = bold;
  panel.surface.FontSize = size;
  // The print font is 0.8 pixel wide a point: a smaller one makes room for longer texts.  Another
  // face has widths of its own, and the cell only measures them.
  panel.layout.fontSize = size;
  panel.layout.cellWidth = panel.surface.FontName == "Courier New"
                               ? static_cast<int>(RoundHalfEven(0.8 * size))
                               : gCellWidth;
}

void picAnswerRestoreFont(int box) {
  TextPanel& panel = Text(box);
  panel.layout.fontSize = 20;
  panel.layout.cellWidth = gCellWidth;
  panel.RestoreFont();
}

void picAnswerisPrint(int box, const std::string& s) {
  PrintOn(Text(box), s, RightColumnOf(Text(box)));
}

void picAnswerisPrints(int box, const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  picAnswerisPrint(box, s);
}

void picAnswerPrintExponentExpression(int box, const std::string& s, int size) {
  if (std::count(s.begin(), s.end(), '^') % 2 != 0)
    platform::Stop(
        "An incorrect number of ^ characters appears in the string \r"
        "supplied to SUB isPrintExponentExpression");
  constexpr double kExponentShare = 0.7;  // of the print's size
  TextPanel& panel = Text(box);
  const double own = RoundHalfEven(kExponentShare * panel.layout.fontSize);
  PrintExpressionOn(panel, s, size == 0 ? own : size, 0);
}

void picAnswerPrintFraction(int box, const std::string& num, const std::string& den, int minWidth,
                            double barShift, double tighten) {
  PrintStacked(box, num, den, minWidth, barShift, tighten);
}

void picAnswerPrintFractionText(int box, const std::string& text, int minWidth, double barShift,
                                double tighten) {
  const auto trim = [](std::string s) {
    s.erase(0, s.find_first_not_of(' '));
    s.erase(s.find_last_not_of(' ') + 1);
    return s;
  };
  const std::size_t slash = text.find('/');
  const std::string num = trim(text.substr(0, slash));
  const std::string den = slash == std::string::npos ? "" : trim(text.substr(slash + 1));
  if (num.empty() || den.empty()) platform::Stop("Fraction format incorrect: " + text);
  PrintStacked(box, num, den, minWidth, barShift, tighten);
}

void picAnswerPrintFractionValue(int box, int num, int den, double gap, int minWidth) {
  const FractionParts parts = PartsOf(num, den);
  if (parts.zero) return picAnswerisPrints(box, "0");
  Cell at = CursorCell(box);
  if (parts.negative) {
    picAnswerLocate(box, at.row - (parts.den == 1 ? 0 : 0.1), at.col);
    picAnswerisPrints(box, "-");
    ++at.col;
  }
  picAnswerLocate(box, at.row, at.col);
  if (parts.den == 1) return picAnswerisPrints(box, std::to_string(parts.num));
  const std::string above = std::to_string(parts.num % parts.den);
  const std::string below = std::to_string(parts.den);
  if (parts.num < parts.den) return PrintStacked(box, above, below, minWidth, 0, 0);
  const std::string whole = std::to_string(parts.num / parts.den);
  const OneFragment mixed(Text(box), whole + " " + TypedFraction(above, below));
  picAnswerisPrints(box, whole);
  picAnswerLocate(box, at.row, at.col + static_cast<double>(whole.size()) + gap);
  PrintStacked(box, above, below, minWidth, 0, 0);
}

void picAnswerPrintRadicalText(int box, const std::string& s, double widen) {
  for (const RadicalPart& part : CutAtBackquotes(s)) {
    if (part.radicand)
      PrintRadicand(box, part.text, widen);
    else
      picAnswerPrintExponentExpression(box, part.text);
  }
}

void picAnswerDrawBar(int box, double row, double col1, double col2, int thickness) {
  TextPanel& panel = Text(box);
  const double y = RoundHalfEven((row - 1) * gCellHeight + gCellHeight / 2.0);
  const double x1 = RoundHalfEven((col1 - 1) * panel.layout.cellWidth);
  const double x2 = RoundHalfEven((col2 - 1) * panel.layout.cellWidth + panel.layout.cellWidth - 1);
  panel.surface.FilledBox(x1, y, x2, y + thickness - 1);
}

}  // namespace course
