// Two terms in x and y over a monomial, (24x^5^y^4^ - 18x^3^y^2^)/(6x^2^y): the quotient, and the
// sums to which students' mistakes lead.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/sum_of_terms.h"
#include "mathkit/random_stream.h"

namespace course::polynomials {

struct MonomialQuotient {
  Sum terms;  // two, in falling powers of x
  Term divisor;

  // Built up when it is shown.
  std::string Text() const;
  Sum Value() const;
};

// The numbers divide exactly, with quotients 2 to 6, and the powers as well.
MonomialQuotient DrawMonomialQuotient(RandomStream& random);

int ExponentOf(const Term& term, char letter);
// "24x^5^y^4^/(6x^2^y)"; a lone number stands below the bar without parentheses.
std::string FractionText(const Sum& above, const Term& below);

// How two terms are divided; as it stands here, rightly.
struct Division {
  enum class Exponents { Subtracted, Added, Kept, Divided, XCancelled, YCancelled };
  enum class Numbers { Divided, Subtracted, Kept };
  enum class Terms { Both, FirstOnly, SecondOnly };
  Exponents exponents = Exponents::Subtracted;
  Numbers numbers = Numbers::Divided;
  Terms terms = Terms::Both;
  bool losesMinus = false;

  // In the order of the terms; nothing when it does not come out, or leaves like terms.
  Sum Of(const MonomialQuotient& quotient) const;
};

struct DivisionSlip {
  std::string mistake;
  Division division;
};
// Those that lead to another sum than the right one.  A slip with the exponents, which leaves too
// many or too few letters, can come together with another one.
std::vector<DivisionSlip> TooManyLetters(const MonomialQuotient& quotient);
std::vector<DivisionSlip> TooFewLetters(const MonomialQuotient& quotient);
std::vector<DivisionSlip> OtherSlips(const MonomialQuotient& quotient);
DivisionSlip Both(const DivisionSlip& exponents, const DivisionSlip& other);

}  // namespace course::polynomials
