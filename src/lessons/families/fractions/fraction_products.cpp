#include "lessons/families/fractions/fraction_products.h"

#include "display/drawing.h"
#include "display/stacked_text.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::fractions {
namespace {

using platform::colour::Cyan;
using platform::colour::White;
using platform::colour::Yellow;

std::string TimesText(int first, int second) {
  return NumStr(first) + " " + tutor::Times + " " + NumStr(second);
}
std::string ProductOverProduct(int above1, int above2, int below1, int below2) {
  return FractionOfTexts("(" + TimesText(above1, above2) + ")",
                         "(" + TimesText(below1, below2) + ")");
}

double Digits(int n) {
  return static_cast<double>(NumStr(n).size());
}

}  // namespace

int FractionProduct::FallingFactor() const {
  return Gcf(first.num, second.den);
}
int FractionProduct::RisingFactor() const {
  return Gcf(second.num, first.den);
}
std::string FractionProduct::Text() const {
  return OverText(first) + " " + tutor::Times + " " + OverText(second);
}
std::string FractionProduct::JoinedText() const {
  return ProductOverProduct(first.num, second.num, first.den, second.den);
}
std::string FractionProduct::UnreducedText() const {
  return OverText(first.num * second.num, first.den * second.den);
}
std::string FractionProduct::LeftText() const {
  const int falling = FallingFactor();
  const int rising = RisingFactor();
  return ProductOverProduct(first.num / falling, second.num / rising, first.den / rising,
                            second.den / falling);
}

StrikingLine::StrikingLine(double row, const FractionProduct& product)
    : row_(row), product_(product) {
  page::ShowAt(row, product.Text() + " = " + product.JoinedText());
}

void StrikingLine::StrikeFalling() const {
  const int factor = product_.FallingFactor();
  Strike({Side::Above, product_.first.num, product_.second.num}, Place::First, factor);
  Strike({Side::Below, product_.first.den, product_.second.den}, Place::Second, factor);
  page::GoBelow();
}

void StrikingLine::StrikeRising() const {
  const int factor = product_.RisingFactor();
  Strike({Side::Above, product_.first.num, product_.second.num}, Place::Second, factor);
  Strike({Side::Below, product_.first.den, product_.second.den}, Place::First, factor);
  page::GoBelow();
}

// The two numbers stand in the middle of the joined fraction's width.
void StrikingLine::Strike(const Pair& pair, Place place, int factor) const {
  constexpr double kBetween = 3;  // columns: the sign between two blanks
  const int down = pair.side == Side::Below ? 1 : -1;
  const int number = place == Place::First ? pair.first : pair.second;
  const int rest = number / factor;
  const double width = StackedTextWidth(product_.JoinedText());
  const double indent = (width - Digits(pair.first) - kBetween - Digits(pair.second)) / 2;
  const double col = page::kMathCol + StackedTextWidth(product_.Text() + " = ") + indent +
                     (place == Place::First ? 0 : Digits(pair.first) + kBetween);
  StrikeOut(row_ + down, col, static_cast<int>(Digits(number)));
  page::ShowAt(row_ + 2 * down, R"(\y)" + NumStr(rest) + R"(\z)",
               col + (Digits(number) - Digits(rest)) / 2);
}

void StrikingLine::ShowRest() const {
  page::ShowAt(
      row_, "= " + product_.LeftText() + " = " + OverText(product_.Result()),
      page::kMathCol + StackedTextWidth(product_.Text() + " = " + product_.JoinedText()) + 1);
  page::GoBelow();
}

void DrawPartOfPart(double row, double col, const PartOfPart& parts) {
  constexpr double kWidth = 30;
  constexpr double kHeight = 5;
  const double wd = kWidth / parts.columns;
  const double ht = kHeight / parts.rows;
  const double filled = col + parts.filledColumns * wd - 1;
  isDrawBoxFilled(row, col, row + kHeight - 1, filled, Cyan);
  if (parts.filledRows > 0)
    isDrawBoxFilled(row, col, row + parts.filledRows * ht - 1, filled, Yellow);
  for (int i = 0; i < parts.columns; ++i)
    for (int j = 0; j < parts.rows; ++j)
      isDrawBox(row + j * ht, col + i * wd, row + (j + 1) * ht - 1, col + (i + 1) * wd - 1, White,
                2);
}

}  // namespace course::fractions
