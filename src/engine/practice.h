// The wait for an answer, grading, and the dialog that follows it in practice.
#pragma once

#include <string>
#include <vector>

namespace course {

// Waits until a box is picked or the student wants to go elsewhere; returns the box, 0 for none.
// Forgets a wish to go elsewhere that is older than the wait.
int AnswerWait(int kind);
// Grades a pick by the test flags: shows the verdict in practice, writes the letters down in a
// test. A correct choice that stands in no box stops the program, and so do two tests at a time.
void AnswerGrade(int pickedBox, int correctChoice, const std::vector<int>& order);
// The dialog at the end of an explanation: the choices without a verdict.
void ExplanationEndChoices();

// The tally as lblPracticeResults shows it.
std::string PracticeResultsText(int attempted, int correct);

// The box, 1 to 5, that the student picked at the problem that is explained now; 0 when that is not
// known.
int StudentsBox();

}  // namespace course
