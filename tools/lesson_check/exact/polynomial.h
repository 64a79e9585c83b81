// Exact values: sums of terms, each a fraction times powers of letters times a square root.
//
// A whole number, a fraction, a surd such as 1/2 + 3 times the root of 5, a polynomial and a
// monomial with negative exponents are all values of this one kind.  Two values are equal just when
// their terms are.  Letters stand for positive numbers, so that the root of x^2 is x.
#pragma once

#include <gmpxx.h>

#include <map>
#include <string>

namespace lesson_check {

using Rational = mpq_class;

// What stands beside the coefficient of a term.
struct Powers {
  std::map<char, int> halves;  // letter to twice its exponent; no zeros
  long radicand = 1;           // under the square root, without a square factor

  bool operator<(const Powers& other) const;
};

class Polynomial {
 public:
  Polynomial() = default;  // 0
  explicit Polynomial(const Rational& number);
  static Polynomial Letter(char letter);
  // The square root of a number that is not negative, or of one term; anything else is unreadable.
  static Polynomial Root(const Polynomial& radicand);

  Polynomial operator-() const;
  Polynomial operator+(const Polynomial& other) const;
  Polynomial operator-(const Polynomial& other) const;
  Polynomial operator*(const Polynomial& other) const;
  // The divisor is one term, or a number with one square root in it.
  Polynomial operator/(const Polynomial& other) const;
  Polynomial Power(int exponent) const;
  bool operator==(const Polynomial& other) const;

  bool IsZero() const { return terms_.empty(); }
  // A fraction without letters or roots; Number is unreadable for anything else.
  bool IsNumber() const;
  Rational Number() const;
  // Highest exponent of the letter, 0 when it does not occur, and the coefficient at one exponent.
  int Degree(char letter) const;
  Polynomial Coefficient(char letter, int exponent) const;
  // The value with another one in place of a letter.
  Polynomial With(char letter, const Polynomial& value) const;
  std::string Letters() const;
  std::size_t TermCount() const { return terms_.size(); }

  // One text a value: equal values have equal texts.
  std::string Text() const;

 private:
  void Add(const Powers& powers, const Rational& coefficient);
  Polynomial Inverse() const;
  Polynomial PowerOfTerm(int exponent) const;

  std::map<Powers, Rational> terms_;  // no zero coefficients
};

}  // namespace lesson_check
