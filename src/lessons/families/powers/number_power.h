// Powers of whole numbers: as text, worked out, and the wrong choices that go with them.
#pragma once

#include <string>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course::powers {

struct NumberPower {
  int base = 2;
  int exponent = 2;
  bool minusOutside = false;  // -3^4: the base is 3, and the value is negative
};

// The exponent is not negative; of 9 and below with a base up to 10 the value fits.
long long ValueOfPower(int base, int exponent);
int ValueOf(const NumberPower& power);
// "2^5^", "(-3)^4^"; the exponent is written also when it is 1 or 0.
std::string PowerOf(int base, int exponent);
// The same with the minus sign in front, if there is one: "-3^4^".
std::string TextOf(const NumberPower& power);
// "3 x 3 x 3"; negative factors stand side by side in their parentheses.  At least one factor.
std::string FactorsOf(int base, int exponent);

// Fills the choices of a problem: values when that of the power is asked for, powers when the
// product is to be written as one.  Their first draw tells which of two miscounts is offered.
void OfferValues(Problem& problem, const NumberPower& power, RandomStream& random);
void OfferPowers(Problem& problem, const NumberPower& power, RandomStream& random);

}  // namespace course::powers
