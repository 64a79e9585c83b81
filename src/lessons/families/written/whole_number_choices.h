// Choices of the lessons on whole numbers: what slips of written arithmetic lead to, and numbers
// near the right one.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course::written {

// A slip and the number that it leads to.
struct NumberMistake {
  std::string name;
  int value;
};

// Five shuffled choices: the right one, mistakes at random, and where they do not suffice numbers
// at most 51 away.  How many of the wrong ones are smaller than the right one is drawn first, so
// that its place in the order of size tells nothing.  Mistakes that lead to a number below 1 are
// passed over.
void FillWholeNumberChoices(Problem& problem, int right, const std::vector<NumberMistake>& mistakes,
                            RandomStream& random);

}  // namespace course::written
