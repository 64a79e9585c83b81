// Sums of numbers times square roots, term by term as they are written.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/radicals/root_term.h"

namespace course::radicals {

using RootSum = std::vector<RootTerm>;

// "3v8 + 5v2 - v3" (v is the radical sign).
std::string RootSumText(const RootSum& sum);
// The square brought out of a term without letters: 3v8 gives 6v2.
RootTerm Simplified(const RootTerm& term);
RootSum Simplified(RootSum sum);
// Like radicals, with the same number inside, added up in the order in which they first occur; what
// comes to 0 is left out.
RootSum Combined(const RootSum& sum);

}  // namespace course::radicals
