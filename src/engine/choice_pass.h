// The pass that makes the choices of a problem differ: the later of two that are the same is drawn
// anew, and the comparison starts again at the first pair.  The right choice stands in the first
// slot, so it is never the later one.
#pragma once

#include "engine/problem.h"

namespace course {

// same(i, j) compares slots 1 to count, i before j; redraw(j) fills slot j with another choice.
template <class Same, class Redraw>
void ReplaceRepeated(int count, Same same, Redraw redraw) {
  const auto repeated = [&] {
    for (int i = 1; i <= count; ++i)
      for (int j = i + 1; j <= count; ++j)
        if (same(i, j)) return j;
    return 0;
  };
  for (int slot; (slot = repeated()) != 0;) redraw(slot);
}

// For choices whose values are the same just when their texts are.
template <class Redraw>
void ReplaceRepeatedTexts(const Problem& problem, Redraw redraw) {
  ReplaceRepeated(
      ChoiceCountOf(problem.kind) - (HasNoneOfTheAbove(problem.kind) ? 1 : 0),
      [&](int i, int j) {
        return problem.choices[static_cast<std::size_t>(i)].text ==
               problem.choices[static_cast<std::size_t>(j)].text;
      },
      redraw);
}

}  // namespace course
