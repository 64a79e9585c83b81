#include "lessons/families/powers/power_display.h"

#include "display/animation.h"
#include "display/drawing.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/word_wrap.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {
namespace {

constexpr int kColumns = 40;
constexpr int kDown = 2;  // directions of a move
constexpr int kLeft = 3;
constexpr int kUsualSpeed = 50;
constexpr int kCopy = 0;  // of a move: the original stays
constexpr int kErase = 1;
constexpr int kExponentSize = 14;

int ColumnsWrittenOut(const Power& power) {
  return 2 * power.exponent - 1;
}

// An exponent of 1 is shown where it is the point.
std::string WithExponentShown(const Power& power) {
  return power.base + "^" + NumStr(power.exponent) + "^";
}

void Unfold(const Power& power, double row, double col, const std::string& colour) {
  const int columns = ColumnsWrittenOut(power);
  const double powerCol = col + (columns - 2) / 2.0;
  Locate(row, powerCol);
  WordWraps(colour + WithExponentShown(power));
  Anim2(row, powerCol, 2, 1, kDown, 2, kUsualSpeed, kCopy);
  Locate(row + 2, powerCol);
  isPrints("  ");
  Locate(row + 2, col);
  WordWraps(colour + WrittenOut(power));
  Bracket(row + 1, col, columns, 2);
}

}  // namespace

void UnfoldPowers(const Power& first, const Power& second, double row) {
  constexpr int kDotColumns = 3;  // a dot between two blanks
  const int columns = ColumnsWrittenOut(first) + kDotColumns + ColumnsWrittenOut(second);
  const double col = (kColumns - columns) / 2 + 1;
  const double dotCol = col + ColumnsWrittenOut(first) + 1;
  Unfold(first, row, col, R"(\y)");
  Unfold(second, row, dotCol + 2, R"(\c)");
  Locate(row + 2, dotCol);
  isPrint(tutor::Dot);
}

void SlideExponentsTogether(const Power& first, const Power& second, double row) {
  constexpr double kCol = 14;
  constexpr double kFirstExponent = kCol + 1;
  constexpr double kSecondExponent = kCol + 6;
  constexpr double kTarget = kCol + 3;  // of the second exponent, behind the plus sign
  const double sumRow = row + 2;
  const std::string dot = " " + tutor::Dot + " ";
  Locate(row, kCol);
  WordWraps(first.base + R"(\y^)" + NumStr(first.exponent) + R"(^\z)" + dot + second.base +
            R"(\c^)" + NumStr(second.exponent) + R"(^\z)");
  Locate(sumRow, kCol);
  isPrints(first.base);
  Anim2(row, kFirstExponent, 1, 1, kDown, 2, kUsualSpeed, kCopy);
  Locate(sumRow, kFirstExponent + 1);
  isPrintExponent1("+", kExponentSize);
  Anim2(row, kSecondExponent, 1, 1, kDown, 2, kUsualSpeed, kCopy);
  Anim2(sumRow, kSecondExponent, 1, 1, kLeft, kSecondExponent - kTarget, kUsualSpeed, kErase);
  Locate(sumRow, kTarget + 1);
  WordWrap(" = " + PowerText({first.base, first.exponent + second.exponent}));
}

}  // namespace course::powers
