// The page behind an explanation that tells to which mistakes the wrong boxes belong.
#pragma once

#include <functional>
#include <vector>

#include "engine/problem.h"

namespace course {

// The problem's figure, which stands above the sentences in place of the question.
struct MistakesFigure {
  double rows = 0;                       // that it takes; 0 shows none
  std::function<void(double row)> draw;  // from that row on
};

// A screen with a sentence for each named mistake, the student's own first, and the wait at its
// end; nothing when the boxes of the order show none.  studentsBox is 1 to 5, or 0 for none.
// Choices that are words stand in quotation marks, and someone "chooses" them.  More
// sentences than one screen holds are shared out to two; what leaves these stops the program.
void TellMistakes(const Problem& problem, const std::vector<int>& order, int studentsBox,
                  const MistakesFigure& figure = {}, bool choicesAreWords = false);

}  // namespace course
