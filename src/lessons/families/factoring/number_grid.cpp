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

void NumberGrid::CrossOut(int number) const {
  constexpr double kSide = 0.4;  // columns by which the line is longer than the number
  isDrawDiagonalLineWithColor(RowOf(number) + 0.4, ColumnOf(number) - kSide, RowOf(number) - 0.2,
                              LastColumnOf(number) + kSide, 3, platform::colour::Cyan);
}

void NumberGrid::CrossOutMultiples(int of) const {
  for (int n = 2 * of; n <= kLast; n += of) CrossOut(n);
}

void NumberGrid::FramePrimes() const {
  for (int n = 2; n <= kLast; ++n) {
    if (!IsPrime(n)) continue;
    page::ShowAt(RowOf(n), R"(\y)" + NumStr(n), ColumnOf(n));
    FrameFactor(RowOf(n), RowOf(n), ColumnOf(n), LastColumnOf(n));
  }
}

}  // namespace course::factoring
