// What the slips of written subtraction lead to.
#pragma once

#include <vector>

#include "lessons/families/written/whole_number_choices.h"

namespace course::written {

// Whether a digit is smaller than the one that is taken from it.
bool MustBorrowSomewhere(int from, int taken);

// from is larger than taken.
std::vector<NumberMistake> DifferenceMistakes(int from, int taken);

}  // namespace course::written
