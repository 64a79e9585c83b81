// A number and letters times a square root, as they are written: 2v18 and 6v2 (v is the radical
// sign) are the same number and two values here, since the task is to simplify.
//
//   RootTermText(Simplified({72, "xxx"}));  // "6xv(2x)"
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/sum_of_terms.h"

namespace course::radicals {

using polynomials::Term;

// Both are positive where letters occur; the number outside may be negative in a sum.
struct RootTerm {
  Term outside = {1, ""};
  Term inside = {1, ""};  // 1 stands for no radical
  bool operator==(const RootTerm&) const = default;
};

// The square root of a positive term without a square under the radical.
RootTerm Simplified(const Term& radicand);
bool IsSimple(const Term& radicand);

// "v72", "vx", "v(2x)", for Show.
std::string RadicalOf(const Term& radicand);
// "6xv(2x)", "-v5", "6".
std::string RootTermText(const RootTerm& term);

// The prime factors of a positive number in ascending order, with repetition; none for 1.
std::vector<int> PrimesOf(int number);

}  // namespace course::radicals
