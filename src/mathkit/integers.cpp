#include "mathkit/integers.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "platform/stop.h"

namespace course {
namespace {

constexpr std::array<int, 47> kPrimesTo211 = {
    2,   3,   5,   7,   11,  13,  17,  19,  23,  29,  31,  37,  41,  43,  47,  53,
    59,  61,  67,  71,  73,  79,  83,  89,  97,  101, 103, 107, 109, 113, 127, 131,
    137, 139, 149, 151, 157, 163, 167, 173, 179, 181, 191, 193, 197, 199, 211};

// Carries a value that binary fractions hold slightly too low over the half.
constexpr double kHalfAndABit = 0.5000001;

double RoundToMultiple(double x, double step) {
  return std::floor(x / step + kHalfAndABit) * step;
}

}  // namespace

int PrimeAt(int i) {
  if (i < 1 || i > kPrimeCount) platform::Stop("PrimeAt: there is no prime " + std::to_string(i));
  const std::size_t at = 2 * static_cast<std::size_t>(i - 1);
  const int tens = kPrimes[at] == ' ' ? 0 : kPrimes[at] - '0';
  return 10 * tens + kPrimes[at + 1] - '0';
}

int Gcf(int a, int b) {
  if (a == 0 || b == 0) return 0;
  // Wide, because the remainder of the lowest int by -1 overflows.
  std::int64_t x = a;
  std::int64_t y = b;
  while (y != 0) {
    const std::int64_t previous = x;
    x = y;
    y = previous % x;
  }
  return static_cast<int>(x);
}

double GcfReal(double a, double b) {
  if (a == 0) platform::Stop("GcfReal: a is 0, b is " + std::to_string(b));
  double remainder = std::fmod(b, a);
  while (remainder != 0) {
    b = a;
    a = remainder;
    remainder = std::fmod(b, a);
  }
  return a;
}

double Lcm(double a, double b) {
  return std::fabs(a * b / GcfReal(a, b));
}

void ReduceFraction(int& n, int& d) {
  const int g = Gcf(n, d);
  if (g == 0) {
    n = 0;
    d = 0;
    return;
  }
  n /= g;
  d /= g;
  const int sign = (n < 0) != (d < 0) ? -1 : 1;
  n = std::abs(n) * sign;
  d = std::abs(d);
}

int CommonPrimeFactors(int a, int b) {
  if (a == 0 || b == 0) {
    platform::Stop("CommonPrimeFactors: of " + std::to_string(a) + " and " + std::to_string(b));
  }
  int count = 0;
  for (const int prime : kPrimesTo211) {
    while (a % prime == 0 && b % prime == 0) {
      a /= prime;
      b /= prime;
      ++count;
    }
  }
  return count;
}

bool NeitherDivides(int a, int b) {
  const double multiple = Lcm(a, b);
  return multiple > a && multiple > b;
}

double RoundWhole(double x) {
  return RoundToMultiple(x, 1);
}
double RoundHundredths(double x) {
  return RoundToMultiple(x, 0.01);
}
double RoundTenthsPlain(double x) {
  return std::floor(x * 10 + 0.5) / 10;
}
double RoundHundredthsPlain(double x) {
  return std::floor(x * 100 + 0.5) / 100;
}

double SmallerOf(double a, double b) {
  return a < b ? a : b;
}

std::string DropLastChars(const std::string& s, int n) {
  if (n <= 0) return s;
  const std::size_t dropped = static_cast<std::size_t>(n);
  return dropped >= s.size() ? std::string() : s.substr(0, s.size() - dropped);
}

int IntOf(double x) {
  const double whole = std::floor(x);
  if (!(whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max())) {
    platform::Stop("IntOf: " + std::to_string(x) + " is beyond a 32-bit whole number");
  }
  return static_cast<int>(whole);
}

int Sgn(double x) {
  return (x > 0) - (x < 0);
}

long RoundHalfEven(double x) {
  // Written out, since the library's rounding follows a mode that others may change.
  const double below = std::floor(x);
  const double over = x - below;
  const bool up = over > 0.5 || (over == 0.5 && std::fmod(below, 2) != 0);
  return static_cast<long>(up ? below + 1 : below);
}

}  // namespace course
