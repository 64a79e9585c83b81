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

struct WrongFactors {
  std::string mistake;
  Factors factors;
};
// Five shuffled choices: the right factors, those with one sign reversed, with exchanged last
// numbers, and two of these three: both signs reversed, one of the others that are given, a random
// number, which is there in a third of the problems.  Factors with the product of another choice
// give way to a random number as well.
void FillFactorChoices(Problem& problem, const Factors& right,
                       const std::vector<WrongFactors>& others, int largest, RandomStream& random);

// "6x^2^ + 7x - 10 = (x + 2)(6x - 5)".
std::string Identity(const Factors& factors);
// The four products and their sum, on three rows from this one on, and in words that it is right.
void CheckByMultiplying(double row, const Factors& factors);

}  // namespace course::factoring
