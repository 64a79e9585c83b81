#include "lessons/families/written/column_sum.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "lessons/page/page_error.h"
#include "mathkit/expressions.h"

namespace course::written {

std::string PlaceName(int place, int count) {
  constexpr int kLowest = -2;
  constexpr std::array kNames = {"hundredth", "tenth",    "one",         "ten",
                                 "hundred",   "thousand", "ten thousand"};
  const int index = place - kLowest;
  if (index < 0 || index >= static_cast<int>(kNames.size()))
    page::StopPage("PlaceName: place " + std::to_string(place));
  return std::string(kNames[static_cast<std::size_t>(index)]) + (count == 1 ? "" : "s");
}

int HighestPlace(const std::string& number) {
  return static_cast<int>(std::min(number.find('.'), number.size())) - 1;
}

int LowestPlace(const std::string& number) {
  const std::size_t point = number.find('.');
  return point == std::string::npos ? 0 : -static_cast<int>(number.size() - 1 - point);
}

int DigitAt(const std::string& number, int place) {
  const int highest = HighestPlace(number);
  if (place > highest || place < LowestPlace(number)) return 0;
  const int index = highest - place + (place < 0 ? 1 : 0);
  return number[static_cast<std::size_t>(index)] - '0';
}

ColumnSum::ColumnSum(double row, double onesCol, std::vector<std::string> addends, double step)
    : row_(row), addends_(std::move(addends)), highest_(0), lowest_(0), columns_(onesCol, step) {
  double next = row_ + 1;
  for (const std::string& addend : addends_) {
    highest_ = std::max(highest_, HighestPlace(addend));
    lowest_ = std::min(lowest_, LowestPlace(addend));
    columns_.Write(next++, addend);
  }
  columns_.WriteSign(next - 1, "+");
  columns_.Rule(next - 1);
}

double ColumnSum::ResultRow() const {
  return row_ + static_cast<double>(addends_.size()) + kBelowRule;
}

std::vector<int> ColumnSum::Addends(int place) const {
  std::vector<int> digits;
  if (place > lowest_ && Carry(place - 1) > 0) digits.push_back(Carry(place - 1));
  for (const std::string& addend : addends_)
    if (place <= HighestPlace(addend) && place >= LowestPlace(addend))
      digits.push_back(DigitAt(addend, place));
  return digits;
}

int ColumnSum::Total(int place) const {
  const std::vector<int> digits = Addends(place);
  return std::accumulate(digits.begin(), digits.end(), 0);
}

std::string ColumnSum::TotalText(int place) const {
  const std::vector<int> digits = Addends(place);
  std::string text;
  for (const int digit : digits) text += (text.empty() ? "" : " + ") + NumStr(digit);
  return digits.size() < 2 ? text : text + " = " + NumStr(Total(place));
}

void ColumnSum::Add(int place) {
  const int total = Total(place);
  columns_.PickOut(place);
  columns_.WriteDigit(ResultRow(), place, static_cast<char>('0' + total % 10));
  if (Carry(place) == 0) return;
  columns_.WriteDigit(ResultRow(), place + 1, static_cast<char>('0' + Carry(place)));
  if (place < highest_) columns_.CarryUp(ResultRow(), place + 1, row_);
}

}  // namespace course::written
