// Reads the course's printed mathematics as a student does: signs, marked exponents, products
// without a sign, mixed numbers, fractions with "/", radicals, brackets.
//
// Multiplication and division are worked from left to right, an exponent before the minus in front
// of its base.  Blanks and gaps part nothing but the whole part of a mixed number from its
// fraction.
#pragma once

#include <string>
#include <vector>

#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

struct Expression {
  enum class Kind { Number, Letter, Sum, Product, Quotient, Power, Root, Minus, PlusOrMinus };

  Kind kind = Kind::Number;
  Rational number;                // of a number
  char letter = 0;                // of a letter
  std::vector<Expression> parts;  // operands, at least one; of a power: base and exponent
  bool bracketed = false;
};

// Unreadable when the text is no expression as a whole.
Expression ParseExpression(const std::string& text);

// The value; where the expression has the sign "plus or minus", that of the given sign, 1 or -1.
Polynomial ValueOf(const Expression& expression, int sign = 1);
bool HasPlusOrMinus(const Expression& expression);

// Both at once.
Polynomial ValueOf(const std::string& text);

// The text without blanks and gaps at its ends, and every gap a blank.
std::string Trimmed(const std::string& text);
// Nothing but the characters that are neither blank nor gap.
std::string WithoutBlanks(const std::string& text);

// A text in the form in which texts are compared: exponents between carets, gaps as blanks, never
// two blanks in a row.
std::string Comparable(const std::string& text);

// The whole numbers of a text, in its order.
std::vector<std::string> NumbersIn(const std::string& text);

// The expression that stands in a sentence, such as the one in "What is the value of 3 + 4?": the
// longest stretch of whole words that can be read and has a digit and no two letters side by side.
// Unreadable when there is none.
std::string ExpressionIn(const std::string& sentence);

}  // namespace lesson_check
