// Terms with a coefficient and one letter, and their sums, products and quotients as text:
// "z - 4y", "(z - 4y)/3", "-3z/2 - y", "4/3 (y - 5z)".
//
// A sum begins with a positive term where it has one.  Fractions are written with "/", as
// display/stacked_text.h takes them.
#pragma once

#include <string>

#include "mathkit/fraction.h"

namespace course::formulas {

struct LetterTerm {
  Fraction coef;
  std::string letter;
};
LetterTerm operator-(const LetterTerm& term);

// "4y", "-y", "3z/2", "-z/2".
std::string TermText(const LetterTerm& term);
// The same behind another term: " + 4y", with hard blanks around the sign.
std::string SignedTermText(const LetterTerm& term);

struct LetterSum {
  LetterTerm first;
  LetterTerm second;
};
LetterSum operator-(const LetterSum& sum);

std::string SumText(const LetterSum& sum);
// The sum over a divisor, a whole number other than 0 or a letter.  No sign stands in the divisor,
// and none in front of both terms.
std::string QuotientText(const LetterSum& sum, int divisor);
std::string QuotientText(const LetterSum& sum, const std::string& letter);
// The factor in front of the sum in parentheses; a fraction is written as it is, above 1 too.
std::string ProductText(const Fraction& factor, const LetterSum& sum);
std::string ProductText(const std::string& letter, const LetterSum& sum);

}  // namespace course::formulas
