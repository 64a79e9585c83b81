// A trinomial ax^2 + bx + c whose middle term is split, so that its four terms can be grouped:
//
//   6x^2 + 11x - 10 = 6x^2 - 4x + 15x - 10          the four terms
//                   = (6x^2 - 4x) + (15x - 10)      two groups
//                   = 2x(3x - 2) + 5(3x - 2)        taken out of each
//                   = (3x - 2)(2x + 5)              taken out once more
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/trinomial.h"

namespace course::factoring {

using polynomials::Binomial;
using polynomials::Factors;
using polynomials::NumberPair;
using polynomials::Trinomial;

class SplitTrinomial {
 public:
  // The two numbers have the product a c; whether their sum is b is not asked, so that a wrong pair
  // can be followed to its end.  Another product stops the program.
  SplitTrinomial(const Trinomial& trinomial, const NumberPair& numbers);

  const NumberPair& Numbers() const { return numbers_; }
  // Taken out of the first group, with an x, and of the second, with the sign of its first term.
  int FirstOutside() const { return firstOutside_; }
  int SecondOutside() const { return trinomial_.constant / common_.constant; }
  // What is left of both groups.
  const Binomial& Common() const { return common_; }
  // The common factor first.
  Factors Factored() const { return {common_, {FirstOutside(), SecondOutside()}}; }

  std::string FourTerms() const;
  std::string Groups() const;
  std::string TakenOut() const;

 private:
  Trinomial trinomial_;
  NumberPair numbers_;
  int firstOutside_ = 1;
  Binomial common_;
};

// Where a search begins: at 1, for a large sum, or at the numbers that are closest, for a small
// one.
enum class SearchFrom { One, CloseNumbers };
// The pairs with the product a c, smaller size first, up to the one with the sum b.  A trinomial
// that does not factor stops the program.
std::vector<NumberPair> PairsUntilFound(const Trinomial& trinomial, SearchFrom from);
// From where the pair is found sooner.
SearchFrom ShorterSearch(const Trinomial& trinomial);
// The next pairs on both sides of it, as far as there are any.
std::vector<NumberPair> PairsBesideFound(const Trinomial& trinomial);
// With that pair.  A negative number stands before a positive one: then nothing negative has to be
// taken out of the second group.
SplitTrinomial SplitMiddle(const Trinomial& trinomial);

// Prints what is taken out of the groups on a row from the column on; the common factor slides down
// to the row two below, where the product appears.
void TakeOutTwice(double row, double col, const SplitTrinomial& split);

}  // namespace course::factoring
