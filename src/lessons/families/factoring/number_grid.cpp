#include "lessons/families/factoring/number_grid.h"

#include <string>

#include "display/drawing.h"
#include "lessons/families/factoring/factor_frame.h"
#include "lessons/families/factoring/factor_list.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"

namespace course::factoring {
namespace {

constexpr int kInRow = 10;
constexpr double kRowStep = 1.5;
constexpr double kColumnStep = 3.8;
constexpr double kFirstCol = 2;

double ColumnOf(int number) {
  return kFirstCol + kColumnStep * ((number - 1) % kInRow);
}

double LastColumnOf(int number) {
  return ColumnOf(number) + static_cast<double>(NumStr(number).size()) - 1;
}

}  // namespace

NumberGrid::NumberGrid(double row) : row_(row) {
  for (int n = 1; n <= kLast; ++n) page::ShowAt(RowOf(n), NumStr(n), ColumnOf(n));
}

double NumberGrid::RowOf(int number) const {
  return row_ + kRowStep * ((number - 1) / kInRow);
}

// Thin long lines leave the numbers readable; each prime has its own slope and color.
void NumberGrid::CrossOut(int number, int by) const {
  constexpr double kSide = 0.7;  // columns by which the line is longer than the number
  constexpr double kAbove = 0.45, kBelow = 0.6;
  const bool falls = by == 3;
  const platform::Colour colour = falls     ? platform::colour::Green
                                  : by == 5 ? platform::colour::Yellow
                                            : platform::colour::Cyan;
  isDrawDiagonalLineWithColor(RowOf(number) + (falls ? -kAbove : kBelow), ColumnOf(number) - kSide,
                              RowOf(number) + (falls ? kBelow : -kAbove),
                              LastColumnOf(number) + kSide, 2, colour);
}

void NumberGrid::CrossOutMultiples(int prime) const {
  for (int n = 2 * prime; n <= kLast; n += prime) CrossOut(n, prime);
}

void NumberGrid::FramePrimes() const {
  for (int n = 2; n <= kLast; ++n) {
    if (!IsPrime(n)) continue;
    page::ShowAt(RowOf(n), R"(\y)" + NumStr(n), ColumnOf(n));
    FrameFactor(RowOf(n), RowOf(n), ColumnOf(n), LastColumnOf(n));
  }
}

}  // namespace course::factoring
