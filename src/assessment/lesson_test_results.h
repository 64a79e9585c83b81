// frmLessonTestResults: what came out of a lesson test, a row a problem.
#pragma once

namespace course {

// Shows the results modally, as they stand in session.gLessonTestAnswers.  Returns with
// gLessonTestReviewNum set to the problem that the student wants to see again, or with the test
// over and gActivity 0, which starts the lesson anew.
void ShowLessonTestResultsForm();

}  // namespace course
