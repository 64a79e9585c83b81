#include "lessons/families/percents/percent_number.h"

#include <algorithm>

#include "display/grid.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"

namespace course::percents {

using namespace page;

namespace {

constexpr int kPlaces = 2;  // a percent counts hundredths

std::string Zeros(int count) {
  return std::string(static_cast<std::size_t>(std::max(count, 0)), '0');
}

// Of the digits before the point, those that a number does not begin with.
int ZerosInFront(const std::string& digits, int before) {
  return std::min(static_cast<int>(digits.find_first_not_of('0')), before - 1);
}

}  // namespace

std::string PercentNumber::PercentText() const {
  return powers::DecimalText(digits, before + kPlaces) + "%";
}

std::string DecimalOf(double x) {
  constexpr std::size_t kGroup = 3;
  std::string text = NumStr(x);
  const std::size_t point = std::min(text.find('.'), text.size());
  if (point == 0) return "0" + text;
  for (std::size_t end = point; end > kGroup;) {
    end -= kGroup;
    text.insert(end, ",");
  }
  return text;
}

PercentPoint PercentPoint::ToPercent(double row, const PercentNumber& number) {
  const int zeros = std::max(0, 1 - number.before);  // one of them before the point
  return {row, Zeros(zeros) + number.digits, number.before + zeros, kPlaces};
}

PercentPoint PercentPoint::ToDecimal(double row, const PercentNumber& number) {
  const int before = number.before + kPlaces;
  const int zeros = std::max(0, 1 - before);
  const int missing = before - static_cast<int>(number.digits.size());
  return {row, Zeros(zeros) + number.digits + Zeros(missing), before + zeros, -kPlaces};
}

PercentPoint::PercentPoint(double row, const std::string& digits, int before, int places)
    : row_(row), digits_(digits), before_(before), places_(places) {
  ShowNumber(row_);
}

// As it is before the movement.
powers::MovingPoint PercentPoint::ShowNumber(double row) const {
  const auto point = powers::MovingPoint::ByPlaces(row, digits_, before_, places_);
  if (places_ < 0) PrintSign(row, point, static_cast<int>(digits_.size()));
  return point;
}

// Behind so many digits.
void PercentPoint::PrintSign(double row, const powers::MovingPoint& point, int digits) {
  ShowAt(row, "%", point.ColumnOfDigit(digits));
}

void PercentPoint::Move() {
  constexpr double kDown = 1.3;  // rows to the copy in which the point moves
  const double row = row_ + kDown;
  const int digits = static_cast<int>(digits_.size());
  SlideDown(WholeRows(row_, 1), kDown, Leaving::Copy, Pace::Brisk);
  ClearRows(row, 1);
  powers::MovingPoint point = ShowNumber(row);
  point.Move();
  if (places_ > 0) {
    const double col = point.ColumnOfDigit(0);
    const int zeros = ZerosInFront(digits_, before_ + places_);
    ClearCells(row, col, point.ColumnOfDigit(zeros) - col - 1, 1);
    PrintSign(row, point, std::max(digits, before_ + places_));
  } else {
    ClearCells(row, point.ColumnOfDigit(digits), 1, 1);
  }
  Locate(row + 2, 1);
}

}  // namespace course::percents
