// Sums in which products such as 3(2x - 5) stand, as they are simplified: the factor is carried to
// each term in the parentheses.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::polynomials {

// A term, or a factor in front of a sum of terms in parentheses.
struct Part {
  Sum inside;
  int factor = 1;
  bool IsProduct() const { return inside.size() > 1; }
};
using SumWithProducts = std::vector<Part>;

// "3(2x - 5) - 4(x + 1)", "7 - (x + 2)".
std::string SumText(const SumWithProducts& sum);
// Its terms without parentheses, in their order, not yet combined.
Sum MultipliedOut(const SumWithProducts& sum);
// What goes wrong before the terms are combined, that of reading them included.
std::vector<Slip> ProductSlips(const SumWithProducts& sum);
// The same of two sums in parentheses that are added or subtracted.
std::vector<Slip> BracketSlips(const SumWithProducts& sum);

}  // namespace course::polynomials
