// The page behind an explanation that tells to which mistakes the wrong boxes belong.
#pragma once

#include <vector>

#include "engine/problem.h"

namespace course {

// A screen with a sentence for each named mistake, the student's own first, and the wait at its
// end; nothing when the boxes of the order show none.  studentsBox is 1 to 5, or 0 for none.
// Sentences that leave the screen stop the program.
void TellMistakes(const Problem& problem, const std::vector<int>& order, int studentsBox);

}  // namespace course
