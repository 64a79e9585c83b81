// An expression in one or two letters, with the number that each letter stands for: how it is
// printed, the line of numbers that it becomes, and the values that usual mistakes lead to.
//
// No display: the same numbers serve a generator and a page that works the value out.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace course::substitution {

inline constexpr std::size_t kLetters = 2;

// A number times powers of the letters.  An exponent of 0 leaves the letter out.
struct Term {
  int coef = 1;                              // not 0
  std::array<int, kLetters> exponents = {};  // 0 to 3

  bool HasLetter() const { return exponents[0] != 0 || exponents[1] != 0; }
};

struct ValuedExpression {
  std::vector<Term> terms;
  std::array<std::string, kLetters> letters;
  std::array<int, kLetters> values = {};

  bool Has(std::size_t letter) const;  // 0 or 1
  std::string Text() const;            // "3x^2^ - 4y"
  std::string ValuesText() const;      // "x = -2 and y = 5"
};

// A number of the line that stands there once the letters are gone.
struct Factor {
  int base = 0;
  int exponent = 1;
  bool isCoefficient = false;
  bool isUnprinted = false;  // the 1 of -x, which only the line of numbers shows

  int Value() const;
};

// The factors of a term.  The minus sign of a later term stands in front of it as an operation;
// that of the first one belongs to its coefficient.
struct Product {
  bool isSubtracted = false;
  std::vector<Factor> factors;

  int Value() const;
  bool HasNegativeFactor() const;
};
using NumberLine = std::vector<Product>;

NumberLine LineOf(const ValuedExpression& expression);
// "3 x (-2)^2^ - 4 x 5".
std::string LineText(const NumberLine& line);
// One number of the line, negative ones in parentheses; not where the line begins, unless an
// exponent follows.
std::string FactorText(const Factor& factor, bool beginsLine);
int ValueOf(const NumberLine& line);
inline int ValueOf(const ValuedExpression& expression) {
  return ValueOf(LineOf(expression));
}

struct WrongValue {
  std::string_view mistake;
  int value;
};
// What the mistakes lead to, the most telling ones first, each value once, the right one never.
std::vector<WrongValue> WrongValuesOf(const ValuedExpression& expression);

}  // namespace course::substitution
