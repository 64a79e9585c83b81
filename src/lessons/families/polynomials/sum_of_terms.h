// Terms and sums of terms as exact values that print themselves: what is calculated with in every
// lesson on expressions with letters.
//
//   const Sum sum = {{4, "x"}, {-3, ""}, {-2, "x"}};
//   SumText(sum);            // "4x - 3 - 2x"
//   SumText(Combined(sum));  // "2x - 3"
#pragma once

#include <string>
#include <vector>

namespace course::polynomials {

// A whole number times letters.  Each letter stands as often as it is a factor, in the order of the
// alphabet: {3, "xxy"} is 3x^2^y, {5, ""} is the number 5.
struct Term {
  int coef = 0;
  std::string letters;
  bool IsLike(const Term& other) const { return letters == other.letters; }
  bool operator==(const Term&) const = default;
};

// Terms in the order in which they are written, like ones beside unlike ones.
using Sum = std::vector<Term>;

// --- Texts ---------------------------------------------------------------------------------------

// "x^2^y" for the letters "xxy"; "" for none.
std::string LettersText(const std::string& letters);
// "-3x^2^", "x", "-x", "7".
std::string TermText(const Term& term);
// The same behind another term: sign and term, each behind a gap.
std::string LaterTermText(const Term& term);
// "3x^2^ - x + 5", term by term as they stand; "0" without a term.
std::string SumText(const Sum& sum);

// --- Values --------------------------------------------------------------------------------------

Term Product(const Term& a, const Term& b);
// The factor carried to each term.
Sum Product(const Term& factor, const Sum& sum);
// What is left of the coefficient and of the letters; a divisor that is no factor stops the
// program.
Term Quotient(const Term& term, const Term& divisor);
// Like terms added up, what comes to 0 left out, falling powers: two sums are the same value just
// when these are equal.
Sum Combined(const Sum& sum);
// Of the coefficients.
bool AllNegative(const Sum& sum);
bool HasBothSigns(const Sum& sum);
// The value with a number in place of every letter.
int ValueAt(const Sum& sum, int number);

}  // namespace course::polynomials
