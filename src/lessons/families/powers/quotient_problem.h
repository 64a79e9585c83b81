// Fractions of powers in seven forms: their draw, their simplified quotient, and the quotients to
// which students' mistakes lead.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/powers/power_text.h"
#include "mathkit/random_stream.h"

namespace course::powers {

enum class QuotientForm {
  MoreAbove = 1,   // b^7/b^3
  MoreBelow,       // n^3/n^7
  AsMany,          // k^4/k^4
  TwoLetters,      // x^5 y^2/(x^3 y^6)
  Numbers,         // 12c^6/(4c^2)
  ZeroExponent,    // p^5 q^0/p^2
  NegativeAnswer,  // t^3/t^7, to be written without a fraction
};

struct QuotientMistake {
  std::string name;
  std::string quotient;
};

struct QuotientProblem {
  QuotientForm form = QuotientForm::MoreAbove;
  std::string letter;  // fixed by the form
  std::string other;   // of two letters, and the one with exponent 0; else empty
  int above = 2;       // exponents of the letter, 2 to 9
  int below = 2;
  int otherAbove = 0;  // of the other letter: 2 to 9, or 0 when there is none below
  int otherBelow = 0;
  int numberAbove = 1;  // the number below times 2 to 9, or 1
  int numberBelow = 1;

  int Number() const { return numberAbove / numberBelow; }
  int Difference() const { return above - below; }
  // As it is asked for, "12c^6^/(4c^2^)".
  std::string Expression() const;
  std::string Simplified() const;
  // At least four that differ from each other and from the right one; one draw at most.
  std::vector<QuotientMistake> Mistakes(RandomStream& random) const;

 private:
  // The number in front, and so many factors of the letter; negative for those below the bar.
  std::string Quotient(int number, int exponent) const;
  std::string Quotient(int exponent) const { return Quotient(Number(), exponent); }
  // The exponents divided or, where that does not come out, added.
  QuotientMistake WrongOperation() const;

  std::vector<QuotientMistake> MistakesOfMoreAbove() const;
  std::vector<QuotientMistake> MistakesOfMoreBelow() const;
  std::vector<QuotientMistake> MistakesOfAsMany() const;
  std::vector<QuotientMistake> MistakesOfTwoLetters() const;
  std::vector<QuotientMistake> MistakesOfNumbers(RandomStream& random) const;
  std::vector<QuotientMistake> MistakesOfZeroExponent(RandomStream& random) const;
  std::vector<QuotientMistake> MistakesOfNegativeAnswer(RandomStream& random) const;
};

QuotientProblem DrawQuotient(RandomStream& random);

}  // namespace course::powers
