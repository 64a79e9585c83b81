// The wait for an answer, grading, and the dialog that follows it in practice.
#pragma once

#include <vector>

namespace course {

// Waits until a box is picked or the student wants to go elsewhere; returns the box, 0 for none.
int AnswerWait(int kind);
// Grades a pick by the test flags: shows the verdict in practice, writes the letters down in a test.
void AnswerGrade(int pickedBox, int correctChoice, const std::vector<int>& order);
// The dialog at the end of an explanation: the choices without a verdict.
void ExplanationEndChoices();

}  // namespace course
