#include "engine/hooks.h"

#include "session/session.h"

namespace course {

EngineHooks engineHooks;

namespace {

void ClearTally() {
  session.gProblemsAttempted = 0;
  session.gProblemsCorrect = 0;
}

void ContinueFromResults() {
  ClearTestBlock(session);
  session.gActivity = activity::None;
}

// The review number of a lesson test stays: its results clear it.
void ContinueFromReview() {
  session.gChapterTestReviewNum = 0;
  session.gChapterTestReviewExplain = 0;
  session.gLessonTestReviewExplain = 0;
}

void CallOr(const std::function<void()>& hook, void (*otherwise)()) {
  if (hook)
    hook();
  else
    otherwise();
}

}  // namespace

void ShowLessonTestResults() {
  CallOr(engineHooks.ShowLessonTestResults, ContinueFromResults);
}

void ShowTestProbReview() {
  CallOr(engineHooks.ShowTestProbReview, ContinueFromReview);
}

void SavePracticeRecord() {
  CallOr(engineHooks.SavePracticeRecord, ClearTally);
}

void SaveTestRecord() {
  CallOr(engineHooks.SaveTestRecord, ClearTally);
}

}  // namespace course
