// frmTestProbReview: the small form beside a problem that is looked at again after a test.
#pragma once

namespace course {

// Shows the right answer and the student's modally, beside the lesson panel, so that the problem
// stays in sight.  Returns with the explain flag of the running test set when the student wants the
// explanation.  Without a lesson or unit test the program stops.
void ShowTestProbReviewForm();

}  // namespace course
