// An exact fraction in lowest terms, for generators and explanations that calculate with fractions,
// and its printed forms.
#pragma once

#include <string>

namespace course {

struct Fraction {
  int num = 0;
  int den = 1;  // positive; 1 when num is 0
  bool operator==(const Fraction&) const = default;
};

// n/d in lowest terms, with a zero numerator kept as 0.  d of 0 stops the program.
Fraction Reduced(int n, int d);
Fraction operator+(const Fraction& a, const Fraction& b);
Fraction operator-(const Fraction& a, const Fraction& b);
Fraction operator*(const Fraction& a, const Fraction& b);
Fraction operator/(const Fraction& a, const Fraction& b);  // b of 0 stops the program
bool operator<(const Fraction& a, const Fraction& b);

// "5", "-3/4", "0": improper fractions stay so.
std::string ValueText(const Fraction& f);
// The same with a whole part and a hard blank in front of a proper fraction: "1 7/24", "-2 1/2".
std::string MixedText(const Fraction& f);

}  // namespace course
