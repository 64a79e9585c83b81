#include "shell/test_hooks.h"

#include "assessment/lesson_test_results.h"
#include "assessment/test_prob_review.h"
#include "engine/hooks.h"

namespace course {

void BindTests() {
  engineHooks.ShowLessonTestResults = ShowLessonTestResultsForm;
  engineHooks.ShowTestProbReview = ShowTestProbReviewForm;
}

}  // namespace course
