// Checks the page behind an explanation that tells which mistakes lead to the wrong choices.
#pragma once

#include <string>
#include <vector>

#include "engine/lesson_script.h"
#include "lesson_check/pages/page_text.h"

namespace lesson_check {

// Whether a page tells of mistakes in the words of the frame.
bool IsMistakesPage(const PageText& page);

// Takes the pages that tell of mistakes from the end of an explanation: all that they show, or an
// empty page when there is none.
PageText TakeMistakesPage(std::vector<PageText>& explanation);

// What is wrong with such a page of a student who picked a box, 1 to 5: a named mistake of a box
// that is not spoken of in whole sentences, or one that no box has.  "" for nothing.
std::string FaultOfMistakesPage(const PageText& page,
                                const course::LessonScript::DrawnProblem& drawn, int pickedBox,
                                bool choicesAreWords = false);

}  // namespace lesson_check
