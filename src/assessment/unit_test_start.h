// frmChapterTestStart: how many problems of each lesson a unit test is to have.
#pragma once

namespace course {

// Shows the dialog modally for the unit gUnitNum.  Returns with the test's counts set, its status 1
// and gRunAgain 1, or, when the student thought better of it, with no test running and gLeaveLesson
// 1.
void ShowUnitTestStartForm();

// The greatest number of problems a lesson, 2 to 4, with which a unit of so many lessons stays
// within the rows of the results.
int MostProblemsPerLesson(int lessons);

}  // namespace course
