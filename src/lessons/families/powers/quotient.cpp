#include "lessons/families/powers/quotient.h"

#include <algorithm>

#include "display/animation.h"
#include "display/drawing.h"
#include "lessons/page/boxes.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {

using namespace page;

namespace {

constexpr double kHalf = 0.8;  // rows from the numerator to the bar, and from there on; 20 pixels

void Strike(double row, double col) {
  constexpr double kRows = 0.26;
  constexpr double kCols = 0.62;
  isDrawDiagonalLineWithColor(row + kRows, col - kCols, row - kRows, col + kCols, 2,
                              platform::colour::Yellow);
}

}  // namespace

std::string QuotientText(int number, const std::vector<Power>& powers) {
  std::vector<Power> above;
  std::vector<Power> below;
  for (const Power& power : powers) {
    if (power.exponent > 0) above.push_back(power);
    if (power.exponent < 0) below.push_back({power.base, -power.exponent});
  }
  const std::string numerator = above.empty() ? NumStr(number) : ProductText(number, above);
  if (below.empty()) return numerator;
  const std::string denominator = ProductText(1, below);
  return FractionOfTexts(numerator, below.size() == 1 ? denominator : "(" + denominator + ")");
}

FactorFraction::FactorFraction(double row, double col, const Power& above, const Power& below)
    : row_(row), col_(col), above_(above.exponent), below_(below.exponent) {
  ShowAt(row_, WrittenOut(above), col_);
  isDrawHorizLine(row_ + kHalf, col_, ColumnBehind() - 1, 2);
  ShowAt(row_ + 2 * kHalf, WrittenOut(below), col_);
}

double FactorFraction::ColumnBehind() const {
  return col_ + 2 * std::max(above_, below_) - 1;
}

void FactorFraction::Cancel() const {
  constexpr double kPause = 0.25;  // seconds
  for (int i = 0; i < std::min(above_, below_); ++i) {
    Strike(row_, col_ + 2 * i);
    Strike(row_ + 2 * kHalf, col_ + 2 * i);
    Delay(kPause);
  }
  GoBelow();
}

void FactorFraction::ShowBehind(const std::string& math) const {
  ShowAt(row_ + kHalf, math, ColumnBehind() + 1);
  GoBelow();
}

void SlideExponentsToDifference(const Power& above, const Power& below, double row) {
  constexpr double kCol = 12;
  constexpr double kExponent = kCol + 1;
  constexpr double kBase = kCol + 5;  // behind the equal sign
  const double middle = row + kHalf;
  ShowAt(row, above.base + R"(\y)" + ExponentText(above.exponent), kCol);
  isDrawHorizLine(middle, kCol, kCol + 1, 2);
  ShowAt(row + 2 * kHalf, below.base + R"(\y)" + ExponentText(below.exponent), kCol);
  SlideRight({row, kExponent, 1}, kBase + 1 - kExponent, Leaving::Copy);
  SlideDown({row, kBase + 1, 1}, kHalf);
  SlideRight({row + 2 * kHalf, kExponent, 1}, kBase + 3 - kExponent, Leaving::Copy);
  SlideUp({row + 2 * kHalf, kBase + 3, 1}, kHalf);
  // Not before: an exponent that passes below would cut the tail of a p.
  ShowAt(middle, "= " + above.base, kBase - 2);
  ShowAt(middle, "^-^", kBase + 2);
  const int difference = above.exponent - below.exponent;
  const std::string power = above.base + "^" + NumStr(difference) + "^";
  ShowAt(middle, "= " + power + (difference == 1 ? " = " + above.base : ""), kBase + 5);
  GoBelow();
}

}  // namespace course::powers
