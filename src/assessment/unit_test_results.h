// frmChapterTestResults: what came out of a unit test, a row a problem, on two sheets.
#pragma once

namespace course {

// Shows the results modally, as they stand in session.gChapterTestData.  Returns with
// gChapterTestReviewNum set to the problem that the student wants to see again and gRunAgain 1, or
// with the test over.  A test of more problems than the sheets have rows stops the program.
void ShowUnitTestResultsForm();

}  // namespace course
