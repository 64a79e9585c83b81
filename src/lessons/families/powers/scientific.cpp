#include "lessons/families/powers/scientific.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "display/grid.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {

using namespace page;

namespace {

constexpr int kColumns = 40;  // of the lesson screen
constexpr double kStep = 2;   // columns from digit to digit
const std::string kPoint = R"(\y.\z)";

std::string Zeros(int count) {
  return std::string(static_cast<std::size_t>(std::max(count, 0)), '0');
}

std::string WithCommas(std::string whole) {
  constexpr std::size_t kGroup = 3;
  for (std::size_t end = whole.size(); end > kGroup;) {
    end -= kGroup;
    whole.insert(end, ",");
  }
  return whole;
}

}  // namespace

std::string DecimalText(const std::string& digits, int before) {
  const int count = static_cast<int>(digits.size());
  if (before <= 0) return "0." + Zeros(-before) + digits;
  if (before >= count) return WithCommas(digits + Zeros(before - count));
  const auto point = static_cast<std::size_t>(before);
  return WithCommas(digits.substr(0, point)) + "." + digits.substr(point);
}

std::string StandardText(const ScientificNumber& number) {
  return DecimalText(number.digits, number.exponent + 1);
}

std::string TimesPowerOfTen(const std::string& digits, int before, int exponent) {
  return DecimalText(digits, before) + " " + tutor::Times + " 10^" + NumStr(exponent) + "^";
}

std::string ScientificText(const ScientificNumber& number) {
  return TimesPowerOfTen(number.digits, 1, number.exponent);
}

MovingPoint MovingPoint::ToScientific(double row, const ScientificNumber& number) {
  const int places = -number.exponent;
  if (places > 0) return {row, Zeros(places) + number.digits, 1, places};
  const int count = static_cast<int>(number.digits.size());
  return {row, number.digits + Zeros(1 - places - count), 1 - places, places};
}

MovingPoint MovingPoint::ToStandard(double row, const ScientificNumber& number) {
  return {row, number.digits, 1, number.exponent};
}

MovingPoint MovingPoint::ByPlaces(double row, const std::string& digits, int before, int places) {
  return {row, digits, before, places};
}

MovingPoint::MovingPoint(double row, const std::string& digits, int before, int places)
    : row_(row), digits_(static_cast<int>(digits.size())), before_(before), places_(places) {
  const int after = before_ + places_;
  first_ = std::min(0, after - 1);  // a zero stands before the point
  const int last = std::max(digits_, after) - 1;
  const double width = kStep * (last - first_ + 1);
  col_ = std::floor((kColumns - width) / 2) + 1;
  for (int i = 0; i < digits_; ++i)
    ShowAt(row_, digits.substr(static_cast<std::size_t>(i), 1), ColumnOfDigit(i));
  ShowAt(row_, kPoint, ColumnOfPoint(before_));
}

double MovingPoint::ColumnOfDigit(int index) const {
  return col_ + kStep * (index - first_);
}

double MovingPoint::ColumnOfPoint(int before) const {
  return ColumnOfDigit(before) - kStep / 2;
}

void MovingPoint::PrintZero(int index) const {
  ShowAt(row_, R"(\y0\z)", ColumnOfDigit(index));
}

void MovingPoint::Move() {
  const int direction = places_ < 0 ? -1 : 1;
  const double lane = row_ + 1;
  SlideDown({row_, ColumnOfPoint(before_), 1}, 1, Leaving::Nothing, Pace::Brisk);
  for (int i = 1; i <= std::abs(places_); ++i) {
    const double col = ColumnOfPoint(before_);
    if (direction > 0)
      SlideRight({lane, col, 1}, kStep, Leaving::Nothing, Pace::Brisk);
    else
      SlideLeft({lane, col, 1}, kStep, Leaving::Nothing, Pace::Brisk);
    const int passed = direction > 0 ? before_ : before_ - 1;
    before_ += direction;
    if (passed < 0 || passed >= digits_) PrintZero(passed);
    ShowAt(lane, R"(\y)" + NumStr(i) + R"(\z)", ColumnOfDigit(passed));
  }
  if (before_ <= 0) PrintZero(before_ - 1);
  SlideUp({lane, ColumnOfPoint(before_), 1}, 1, Leaving::Nothing, Pace::Brisk);
  Locate(row_ + 2, 1);
}

}  // namespace course::powers
