#include "mathkit/fraction.h"

#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {

Fraction Reduced(int n, int d) {
  if (d == 0) platform::Stop("Reduced: " + std::to_string(n) + " over 0");
  if (n == 0) return {};
  ReduceFraction(n, d);
  return {n, d};
}

Fraction operator+(const Fraction& a, const Fraction& b) {
  return Reduced(a.num * b.den + b.num * a.den, a.den * b.den);
}

Fraction operator-(const Fraction& a, const Fraction& b) {
  return a + Fraction{-b.num, b.den};
}

Fraction operator*(const Fraction& a, const Fraction& b) {
  return Reduced(a.num * b.num, a.den * b.den);
}

Fraction operator/(const Fraction& a, const Fraction& b) {
  return Reduced(a.num * b.den, a.den * b.num);
}

bool operator<(const Fraction& a, const Fraction& b) {
  return a.num * b.den < b.num * a.den;
}

std::string ValueText(const Fraction& f) {
  return f.num == 0 ? "0" : FractionText(f.num, f.den);
}

std::string MixedText(const Fraction& f) {
  const int size = std::abs(f.num);
  if (f.den == 1 || size < f.den) return ValueText(f);
  return NumStr(f.num / f.den) + tutor::Gap + FractionText(size % f.den, f.den);
}

}  // namespace course
