#include "mathkit/expressions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr int kSignificantDigits = 15;
constexpr double kFirstOfSixteenDigits = 1e15;
// Outside of these powers of ten a number is written with an exponent: nobody counts the zeros.
constexpr int kLowestPower = -15;
constexpr int kHighestPower = 20;

constexpr int kLargestDenominator = 18;
constexpr double kFractionTolerance = 0.0001;

// A positive number as digits d1 d2 ... without trailing zeros, meaning d1.d2... times ten to the
// power.
struct Decimal {
  std::string digits;
  int power = 0;
};

Decimal DecimalOf(double positive) {
  std::array<char, 40> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), positive,
                                 std::chars_format::scientific, kSignificantDigits - 1)
                       .ptr;
  const std::string text(buffer.data(), end);
  const std::size_t e = text.find('e');
  Decimal result;
  result.digits = text.substr(0, 1) + text.substr(2, e - 2);
  result.digits.erase(result.digits.find_last_not_of('0') + 1);
  result.power = std::atoi(text.c_str() + e + 1);
  return result;
}

std::string PositiveText(double positive) {
  // Nearly every number of the course is whole, and a problem has many of them: the short way.
  if (positive < kFirstOfSixteenDigits && positive == std::floor(positive)) {
    return std::to_string(static_cast<long long>(positive));
  }
  auto [digits, power] = DecimalOf(positive);
  if (power < kLowestPower || power > kHighestPower) {
    if (digits.size() > 1) digits.insert(1, ".");
    return digits + (power < 0 ? "E-" : "E+") + std::to_string(std::abs(power));
  }
  if (power < 0) return "." + std::string(static_cast<std::size_t>(-power - 1), '0') + digits;
  const std::size_t wholeDigits = static_cast<std::size_t>(power) + 1;
  if (digits.size() <= wholeDigits) return digits + std::string(wholeDigits - digits.size(), '0');
  return digits.insert(wholeDigits, ".");
}

// The sign between two gaps that sets a later term off.
std::string SpacedSign(double x) {
  return tutor::Gap + (x < 0 ? "-" : "+") + tutor::Gap;
}

}  // namespace

std::string NumStr(double x) {
  if (!std::isfinite(x)) platform::Stop("NumStr: " + std::to_string(x) + " is no number to print");
  if (x == 0) return "0";
  return x < 0 ? "-" + PositiveText(-x) : PositiveText(x);
}

std::string CoefText(double c) {
  if (c == 1) return "";
  if (c == -1) return "-";
  return NumStr(c);
}

std::string SignedCoefText(double c) {
  if (c == 0) return "0" + tutor::Gap;
  if (std::fabs(c) == 1) return SpacedSign(c);
  return SpacedSign(c) + NumStr(std::fabs(c));
}

std::string SignedNumberText(double n) {
  return (n < 0 ? "-" : "+") + tutor::Gap + NumStr(std::fabs(n));
}

std::string InParentheses(int n) {
  return n < 0 ? "(" + NumStr(n) + ")" : NumStr(n);
}

std::string FractionText(int n, int d) {
  ReduceFraction(n, d);
  if (d == 0) return "undefined";
  return d == 1 ? NumStr(n) : FractionOfTexts(NumStr(n), NumStr(d));
}

std::string FractionOfTexts(const std::string& n, const std::string& d) {
  return n + "/" + d;
}

std::string MixedNumberText(double value) {
  const double size = std::fabs(value);
  for (int d = 1; d <= kLargestDenominator; ++d) {
    const double n = std::floor(size * d + 0.5);
    if (std::fabs(size * d - n) >= kFractionTolerance) continue;
    if (d == 1) return NumStr(value < 0 ? -n : n);
    // From the numerator, not from the value: 2.99999 is 3 and has no whole part of 2.
    const double whole = std::floor(n / d);
    const std::string fraction = FractionOfTexts(NumStr(n - whole * d), NumStr(d));
    const std::string sign = value < 0 ? "-" : "";
    return whole == 0 ? sign + fraction : sign + NumStr(whole) + tutor::Gap + fraction;
  }
  return NumStr(value);
}

std::string MoneyText(double x) {
  const std::string text = NumStr(x);
  const std::size_t point = text.find('.');
  if (point == std::string::npos) return "$" + text + ".00";
  return "$" + text + (point + 2 == text.size() ? "0" : "");
}

std::string PluralSuffix(double n) {
  return n == 1 ? "" : "s";
}

std::string ExponentText(int n) {
  return n == 1 ? "" : "^" + std::to_string(n) + "^";
}

}  // namespace course
