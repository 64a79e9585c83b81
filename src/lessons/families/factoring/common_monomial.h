// A sum of two terms whose greatest common factor is taken out, and what comes out where a student
// goes wrong.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::factoring {

// A term in front of parentheses.
struct TakenOut {
  polynomials::Term factor;
  polynomials::Sum inside;
};
// "6x^2^(3x^3^ - 2)".
std::string TakenOutText(const TakenOut& taken);

struct FactoringMistake {
  const char* name;
  TakenOut taken;
};

// 18x^5^ - 12x^2^: two terms in one letter, the higher power first.
struct CommonMonomial {
  char letter = 'x';
  int numbers[2] = {1, 1};  // positive
  int powers[2] = {2, 1};   // falling, 1 or more
  bool minus = false;       // between the terms

  polynomials::Term TermAt(int i) const;  // 0 or 1, without the sign between them
  polynomials::Term SignedTermAt(int i) const { return Signed(TermAt(i), i); }
  std::string Text() const;
  int CommonNumber() const;
  // The greatest common factor, and a factor with another number and power.
  polynomials::Term CommonFactor() const { return Factor(CommonNumber(), powers[1]); }
  polynomials::Term Factor(int number, int power) const;
  // Both terms divided by a factor that both have.
  TakenOut Take(const polynomials::Term& factor) const;
  TakenOut Right() const { return Take(CommonFactor()); }

  // A term 0 or 1 divided by the greatest common factor, without the sign between the terms.
  polynomials::Term Quotient(int i) const;
  polynomials::Term SignedQuotient(int i) const { return Signed(Quotient(i), i); }
  // Whether the second term divided is 1, which has to be written.
  bool LeavesOne() const { return numbers[1] == CommonNumber(); }

  // What students' mistakes lead to, a wrong sign and a 1 left out aside; none is the right one.
  // Three or more each, the likeliest first: the powers are not divided as they should be, or the
  // numbers, or the factor is not the greatest one.
  std::vector<FactoringMistake> PowerMistakes() const;
  std::vector<FactoringMistake> NumberMistakes() const;
  std::vector<FactoringMistake> FactorMistakes() const;

 private:
  polynomials::Term Signed(polynomials::Term term, int i) const;
  TakenOut Rest(const polynomials::Term& factor, const polynomials::Term& first,
                polynomials::Term second) const;
  FactoringMistake TakesOnlyNumber() const;
  FactoringMistake TakesOnlyPower() const;
  // Where the common number has a divisor.
  void AddNumberLeft(std::vector<FactoringMistake>& mistakes) const;
};

// The sign in the parentheses reversed.
TakenOut Reversed(TakenOut taken);

}  // namespace course::factoring
