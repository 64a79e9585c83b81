// The search for the factors of a trinomial ax^2 + bx + c by trial: the first numbers are a pair
// with the product a, the last ones a pair with the product c, and the trials go through them in an
// order that leaves none out.
//
// A trial has sizes alone.  When c is positive the outer and the inner product are added, when it
// is negative the smaller one is taken away; the signs are put in once the size of the middle term
// is right.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/trinomial.h"

namespace course::factoring {

using polynomials::Binomial;
using polynomials::Factors;
using polynomials::Trinomial;

struct Trial {
  Factors sizes;      // no negative number
  bool added = true;  // the outer and the inner product

  int Outer() const { return sizes.first.lead * sizes.second.constant; }
  int Inner() const { return sizes.first.constant * sizes.second.lead; }
  int Middle() const;
  // Of the terms in one of the parentheses; 1 for none.
  int CommonFactor() const;
  // In either order and with any signs.
  bool HasFirstNumbersOf(const Factors& factors) const;
  bool HasLastNumbersOf(const Factors& factors) const;
};

// All trials of a trinomial that begins with a positive number and has no zero, the pairs whose
// numbers are closest first: (2x 5)(3x 2), then (2x 2)(3x 5), then those with 1 and 10.  No two
// trials have the same factors.
std::vector<Trial> AllTrials(const Trinomial& trinomial);
// Those up to the right one, which is the last.  A trinomial that does not factor stops the
// program.
std::vector<Trial> TrialsUntilFound(const Trinomial& trinomial);

// The same numbers, with the signs that give the trinomial when its middle term has this size.
Factors WithSigns(const Trial& trial, const Trinomial& trinomial);

// "(2x   5)(3x   2)", with room for the signs.
std::string OpenText(const Trial& trial);
// What comes out: "15x - 4x = 11x", or "common factor 2" where there is no need to multiply.
std::string OutcomeText(const Trial& trial);
// Both on one line of 38 characters; the outcome begins in the same column for all that is tried.
std::string TrialLine(const Trial& trial);

// "3 x 4,  2 x 6,  1 x 12" with the multiplication sign: in the order of the trials.
std::string PairsText(int product);

}  // namespace course::factoring
