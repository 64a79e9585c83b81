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

// Strikes out the number that ends a text, or begins it, and writes what is left of it beside it.
// The text stands in the middle of a part of a fraction, from start over width columns.
struct PartOfFraction {
  double row;
  double start;
  double width;
  int first;
  int second;

  void Strike(bool isFirst, double restRow, int rest) const {
    const double indent = (width - Digits(first) - Digits(second) - 3) / 2;
    const int number = isFirst ? first : second;
    const double col = start + indent + (isFirst ? 0 : Digits(first) + 3);
    StrikeOut(row, col, static_cast<int>(Digits(number)));
    page::ShowAt(restRow, R"(\y)" + NumStr(rest) + R"(\z)",
                 col + (Digits(number) - Digits(rest)) / 2);
  }
};

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

void StrikingLine::StrikeAbove(Place place, int factor) const {
  const bool isFirst = place == Place::First;
  const PartOfFraction above = {row_ - 1,
                                page::kMathCol + StackedTextWidth(product_.Text() + " = "),
                                static_cast<double>(StackedTextWidth(product_.JoinedText())),
                                product_.first.num, product_.second.num};
  above.Strike(isFirst, row_ - 2, (isFirst ? above.first : above.second) / factor);
}

void StrikingLine::StrikeBelow(Place place, int factor) const {
  const bool isFirst = place == Place::First;
  const PartOfFraction below = {row_ + 1,
                                page::kMathCol + StackedTextWidth(product_.Text() + " = "),
                                static_cast<double>(StackedTextWidth(product_.JoinedText())),
                                product_.first.den, product_.second.den};
  below.Strike(isFirst, row_ + 2, (isFirst ? below.first : below.second) / factor);
}

void StrikingLine::StrikeFalling() const {
  StrikeAbove(Place::First, product_.FallingFactor());
  StrikeBelow(Place::Second, product_.FallingFactor());
  page::GoBelow();
}

void StrikingLine::StrikeRising() const {
  StrikeAbove(Place::Second, product_.RisingFactor());
  StrikeBelow(Place::First, product_.RisingFactor());
  page::GoBelow();
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
