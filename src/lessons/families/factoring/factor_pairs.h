// The search for two numbers by their product and their sum, as the pages of lessons show it.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/polynomials/trinomial.h"

namespace course::factoring {

using polynomials::NumberPair;

inline constexpr std::size_t kSumColumn = 19;  // of a pair's line, where its sum begins

// Product and sum of a pair, each in its column: "-2 x 5 = -10      -2 + 5 = 3", with the
// multiplication sign.
std::string PairLine(const NumberPair& pair, std::size_t sumColumn = kSumColumn);
// Wide enough for the products of all these pairs.
std::size_t SumColumnOf(const std::vector<NumberPair>& pairs);
// The pairs that are tried, below a blank row of the page; the last one is found.
void ListTried(const std::vector<NumberPair>& pairs);

// Which signs the two numbers have, and why.
std::string SignSentence(int product, int sum);

}  // namespace course::factoring
