#include "display/fractions.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "display/drawing.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/one_fragment.h"
#include "display/print.h"
#include "display/radicals.h"
#include "display/word_wrap.h"
#include "mathkit/integers.h"

namespace course {
namespace {

constexpr int kBarThickness = 3;   // pixels
constexpr double kBarDrop = 0.05;  // rows below the middle of the row

// How one kind of fraction differs from another.
struct FractionLook {
  std::function<int(const std::string&)> length;  // cells
  std::function<void(const std::string&)> printPart;
  int clearedRows;   // above and below the middle one
  int clearedCells;  // 0: the whole width
  double barShift;
  double tighten;
};

int LengthWithoutCarets(const std::string& s) {
  return static_cast<int>(StripCarets(s).size());
}

// The two backquotes of a radicand take one cell, the sign.
int LengthWithRadicals(const std::string& s) {
  const auto marks = static_cast<int>(std::count(s.begin(), s.end(), '`'));
  return LengthWithoutCarets(s) - marks + marks / 2;
}

void PrintStacked(const FractionLook& look, const std::string& num, const std::string& den,
                  int minWidth) {
  const OneFragment fraction(frmPR->lessonText, TypedFraction(num, den));
  UpdateCursorCell();
  const double row = frmPR->lessonText.cursorRow;
  const double col = frmPR->lessonText.cursorCol;
  const int numLength = look.length(num);
  const int denLength = look.length(den);
  const int width = std::max({numLength, denLength, minWidth});
  const int cleared = look.clearedCells > 0 ? look.clearedCells : width;
  for (int r = -look.clearedRows; r <= look.clearedRows; ++r) {
    Locate(row + r, col);
    isPrints(std::string(static_cast<std::size_t>(cleared), ' '));
  }
  isDrawHorizLine(row + kBarDrop + look.barShift, col, col + width - 1, kBarThickness);
  Locate(row - 1 + look.tighten, col + (width - numLength) / 2.0);
  look.printPart(num);
  Locate(row + 1 - look.tighten, col + (width - denLength) / 2.0);
  look.printPart(den);
  Locate(row, col + width);
  screenState.gLastFractionWidth = width;
}

// The shared half of the two value printers: they differ only in where a fraction's minus stands.
void PrintValue(const FractionParts& parts, double minusRowShift, double minusColShift,
                int minWidth, double barShift, double tighten) {
  UpdateCursorCell();
  const double row = frmPR->lessonText.cursorRow;
  double col = frmPR->lessonText.cursorCol;
  if (parts.zero) return isPrints("0");
  if (parts.negative) {
    const bool whole = parts.den == 1;
    Locate(row + (whole ? 0 : minusRowShift), col + (whole ? 0 : minusColShift));
    isPrints("-");
    ++col;
  }
  Locate(row, col);
  if (parts.den == 1) return isPrints(std::to_string(parts.num));
  isPrintFraction(std::to_string(parts.num), std::to_string(parts.den), minWidth, barShift,
                  tighten);
}

}  // namespace

FractionParts PartsOf(int num, int den) {
  ReduceFraction(num, den);
  if (num == 0) return {.zero = true};
  return {.negative = num < 0, .num = std::abs(num), .den = den};
}

void isPrintFraction(const std::string& num, const std::string& den, int minWidth, double barShift,
                     double tighten) {
  PrintStacked({.length = LengthWithoutCarets,
                .printPart = [](const std::string& s) { WordWraps(s); },
                .clearedRows = 1,
                .clearedCells = 0,
                .barShift = barShift,
                .tighten = tighten},
               num, den, minWidth);
}

void isPrintFractionExp(const std::string& num, const std::string& den, int minWidth) {
  PrintStacked({.length = LengthWithoutCarets,
                .printPart = [](const std::string& s) { isPrintExponentExpression(s, 14); },
                .clearedRows = 0,
                .clearedCells = 1,
                .barShift = 0,
                .tighten = 0},
               num, den, minWidth);
}

void isPrintRadicalFraction(const std::string& num, const std::string& den, int minWidth,
                            double barShift, double tighten) {
  PrintStacked({.length = LengthWithRadicals,
                .printPart = [](const std::string& s) { isPrintRadicalText(s); },
                .clearedRows = 0,
                .clearedCells = 1,
                .barShift = barShift,
                .tighten = tighten},
               num, den, minWidth);
}

void isPrintColouredFraction(const std::string& num, const std::string& den, int minWidth) {
  PrintStacked({.length = FractionPartLength,
                .printPart = [](const std::string& s) { isPrintRadicalText(s); },
                .clearedRows = 0,
                .clearedCells = 1,
                .barShift = 0,
                .tighten = 0},
               num, den, minWidth);
}

int FractionPartLength(const std::string& part) {
  constexpr int kColourCodeLength = 2;  // the backslash and a letter
  const auto colours = static_cast<int>(std::count(part.begin(), part.end(), '\\'));
  return LengthWithRadicals(part) - kColourCodeLength * colours;
}

void isPrintFractionValue(int num, int den, int minWidth, double barShift) {
  PrintValue(PartsOf(num, den), -0.1, 0, minWidth, barShift, 0);
}

void PrintFraction(int& n, int& d, int minWidth, double barShift, double tighten) {
  ReduceFraction(n, d);
  PrintValue(PartsOf(n, d), 0, -0.1, minWidth, barShift, tighten);
}

}  // namespace course
