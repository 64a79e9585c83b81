#include "records/record_text.h"

#include <algorithm>
#include <cstdlib>

#include "platform/clock.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kMostParsed = 999999;  // no field is wider; more digits are no number of ours

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

int ParseNumber(std::string_view field) {
  std::size_t i = std::min(field.find_first_not_of(' '), field.size());
  int number = 0;
  for (; i < field.size() && IsDigit(field[i]); ++i)
    number = std::min(number * 10 + (field[i] - '0'), kMostParsed);
  return number;
}

std::string Digits(int number, int width) {
  const std::string digits = std::to_string(std::abs(number));
  const std::size_t zeros = std::max(width - static_cast<int>(digits.size()), 0);
  return (number < 0 ? "-" : "") + std::string(zeros, '0') + digits;
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text.substr(0, width));
  padded.resize(width, ' ');
  return padded;
}

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string DateToday() {
  const platform::Date today = platform::TheClock().Today();
  return Digits(today.month, 2) + Digits(today.day, 2) + Digits(today.year % 100, 2);
}

std::string DataFile(const std::string& name) {
  return session.gDataPath + name;
}

}  // namespace course
