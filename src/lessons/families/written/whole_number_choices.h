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

// Five shuffled choices: the right one, the first mistake, two or three of the others at random,
// and where a box is free a filler at most 51 away.  Mistakes that lead to a number below 1, or to
// that of another choice, are passed over.
void FillWholeNumberChoices(Problem& problem, int right, const std::vector<NumberMistake>& mistakes,
                            RandomStream& random);

}  // namespace course::written
