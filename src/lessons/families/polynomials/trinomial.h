// What the lessons on factoring trinomials share: binomials and trinomials as whole numbers, their
// products, their texts, and the draw of a factor.
//
// Every problem is made backwards: the factors are drawn and multiplied out, so that each trinomial
// factors over the whole numbers.  Choices are compared by their products: (x + 2)(x + 3) and
// (x + 3)(x + 2) are the same answer.
#pragma once

#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::polynomials {

struct Binomial {
  int lead = 1;  // coefficient of the letter
  int constant = 0;
  bool operator==(const Binomial&) const = default;
};

struct Trinomial {
  int square = 1;  // coefficients of x squared and x
  int middle = 0;
  int constant = 0;
  bool operator==(const Trinomial&) const = default;
};

struct Factors {
  Binomial first;
  Binomial second;
  Trinomial Product() const;
  bool SameProductAs(const Factors& other) const { return Product() == other.Product(); }
};

// "x + 3", its sign between gaps, and the same in parentheses.
std::string BinomialText(const Binomial& binomial);
std::string FactorText(const Binomial& binomial);
// "(x + 3)(x - 2)".
std::string FactorsText(const Factors& factors);
// "x^2^ + x - 6"; terms of 0 are left out.
std::string TrinomialText(const Trinomial& trinomial);

// Lead and constant from 1 to largest, in this order, and then a sign for each of them.
Binomial DrawBinomial(RandomStream& random, int largest);
// A constant of the same range, with a sign drawn after it.
int DrawConstant(RandomStream& random, int largest);

// Two numbers with a given product.
struct NumberPair {
  int first = 0;
  int second = 0;
  int Sum() const { return first + second; }
};
// All pairs whose product is this one, smaller size first, and of these the ones that can have
// a sum of this sign: with a positive product both have the sum's sign, with a negative one the
// larger has it.
std::vector<NumberPair> PairsWithProduct(int product, int signOfSum);

}  // namespace course::polynomials
