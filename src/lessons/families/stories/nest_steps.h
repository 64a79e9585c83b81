// A nest is translated step by step, from the inside out, on the page of an explanation: the
// problem above, under it what has become of it, and a white box for the words.
#pragma once

#include <vector>

#include "lessons/families/stories/worded_nest.h"

namespace course::stories {

// From words to symbols, and from symbols to words, each with a check by numbers.  The banner
// stands there already; the white box stays for what is said last.  The wrong choices are other
// numbers in the check, where that is possible.
void ExplainWords(const Nest& nest, const std::vector<Nest>& wrong);
void ExplainSymbols(const Nest& nest, const std::vector<Nest>& wrong);

}  // namespace course::stories
