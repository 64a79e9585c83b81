// A printed text cut into numbers, words and signs, as far as its form can be judged without
// knowing what it means.
#pragma once

#include <string>
#include <vector>

namespace lesson_check {

struct Token {
  enum class Kind { Number, Letters, Sign };
  Kind kind = Kind::Sign;
  std::string text;    // digits with a decimal point, letters, or one character
  bool tight = false;  // no blank before it, and not the first

  bool Is(const char* wanted) const { return text == wanted; }
};

// Exponents stand between carets.  Every minus but the raised one is "-", so that a raised minus,
// the sign of a number, differs from the sign of a subtraction.
std::vector<Token> TokensOf(const std::string& text);

// The text with every number as 0, every letter that stands alone as x, and no minus before a
// number told from a plus: what kind of text it is.
std::string FormOf(const std::string& text);

}  // namespace lesson_check
