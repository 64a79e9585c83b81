// A nest with a number for each of its letters, so that words and symbols can be worked out side by
// side.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "lessons/families/stories/worded_nest.h"
#include "mathkit/fraction.h"

namespace course::stories {

struct ValuedNest {
  Nest nest;                                              // of numbers alone
  std::vector<Fraction> values;                           // of each level, the innermost first
  std::vector<std::pair<std::string, std::string>> made;  // "A" of "12", as read in the symbols

  // "A is 12, R is 2 and H is 5".
  std::string LettersText() const;
  // The nest from a level on, around the value of what is inside of it.
  Nest From(std::size_t level) const;
};

// Small numbers, all different, with which no rival of the same operands has the value of the nest,
// and every operation gives a positive whole number, where that is possible.
ValuedNest WithNumbers(const Nest& nest, const std::vector<Nest>& rivals);

}  // namespace course::stories
