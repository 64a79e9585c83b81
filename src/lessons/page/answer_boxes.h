// Where the answer boxes of a problem stand.  Choices with fractions or radicals are printed built
// up, and their boxes are high enough for it.
#pragma once

#include "engine/problem.h"

namespace course::page {

// Sizes in cells of the lesson screen, the font in points.
struct AnswerBoxes {
  double row = 11;   // of the first box
  double width = 0;  // of each box; its letter takes three and a half columns.  0 is the usual one
  double fontSize = 20;
  const char* font = "";  // "TNR" for words; "" is the font of mathematics
};

// Called by ShowProblem.  Boxes that leave the screen are an author's error and stop the program.
//
// A, B / C, D / E: 16 columns wide, at most 20.
void ShowAnswersInTwoColumns(const Problem& problem, const AnswerBoxes& boxes = {});
// A, B, C / D, E: 12.5 columns wide, at most 13.
void ShowAnswersInThreeColumns(const Problem& problem, const AnswerBoxes& boxes = {});
// One under the other, in the middle: 21 columns wide, at most 40, and a little lower.
void ShowAnswersInOneColumn(const Problem& problem, const AnswerBoxes& boxes = {});

}  // namespace course::page
