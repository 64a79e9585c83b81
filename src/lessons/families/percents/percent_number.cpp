#include "lessons/families/percents/percent_number.h"

#include <algorithm>

#include "display/grid.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
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
    : row_(row),
      digits_(static_cast<int>(digits.size())),
      before_(before),
      places_(places),
      zerosInFront_(ZerosInFront(digits, before + places)),
      point_(powers::MovingPoint::ByPlaces(row, digits, before, places)) {
  if (places < 0) PrintSign();
}

void PercentPoint::PrintSign() const {
  const int shown = places_ > 0 ? std::max(digits_, before_ + places_) : digits_;
  ShowAt(row_, R"(\y%\z)", point_.ColumnOfDigit(shown));
}

void PercentPoint::Move() {
  point_.Move();
  if (places_ > 0) {
    const double col = point_.ColumnOfDigit(0);
    ClearCells(row_, col, point_.ColumnOfDigit(zerosInFront_) - col - 1, 1);
    PrintSign();
  } else {
    ClearCells(row_, point_.ColumnOfDigit(digits_), 1, 1);
  }
  Locate(row_ + 2, 1);
}

}  // namespace course::percents
