// Trinomials such as 6x^2 + 7x - 10 that begin with another number than 1: how their factors are
// drawn, which wrong factors are offered, and how the right ones are checked.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/polynomials/trinomial.h"
#include "mathkit/random_stream.h"

namespace course::factoring {

using polynomials::Factors;
using polynomials::Trinomial;

// Two factors with numbers up to the largest: the terms of neither have a common factor, so those
// of the trinomial have none.  It begins with a number greater than 1 and has a middle term.  The
// factor with the smaller numbers stands first: the one in front of x decides, then the other.
Factors DrawFactors(RandomStream& random, int largest);

Factors BothSignsReversed(const Factors& factors);

// Where the sign of one last number is reversed, and what the student did who reverses it.
struct WrongSign {
  bool ofFirst = true;
  std::string mistake = "reverses one sign";
};
// A mistake and the factors to which it can lead, in no order.  Without a last number in the second
// factor the x stands in front: 2x(3x - 2).
struct WrongFactors {
  std::string mistake;
  std::vector<Factors> factors;
};
// Five shuffled choices: the right factors, those with the wrong sign, those with exchanged last
// numbers, and two mistakes of the list, drawn at random, as is what they lead to; with different
// signs the first one stands there more often.  Where the exchange gives the trinomial again, or
// the list less than two, a random number takes the place.
void FillFactorChoices(Problem& problem, const Factors& right, const WrongSign& wrongSign,
                       std::vector<WrongFactors> others, int largest, RandomStream& random);

// "6x^2^ + 7x - 10 = (x + 2)(6x - 5)".
std::string Identity(const Factors& factors);
// The four products and their sum, on three rows from this one on, and in words that it is right.
void CheckByMultiplying(double row, const Factors& factors);

}  // namespace course::factoring
