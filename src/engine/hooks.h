// What the rooms above hand down to the engine: forms of the tests and of the help, and the saving
// of records.  They set the hooks at start.
#pragma once

#include <functional>

namespace course {

struct EngineHooks {
  std::function<void()> ShowLessonTestResults;  // frmLessonTestResults, modal
  std::function<void()> ShowTestProbReview;     // frmTestProbReview, modal
  std::function<void()> SavePracticeRecord;
  std::function<void()> SaveTestRecord;
  std::function<void(int recordNum)> SaveDiagnosticRecord;
  std::function<void()> ShowProgramOverview;
  std::function<void()> ShowTechSupport;
  std::function<void()> ShowAbout;
};

extern EngineHooks engineHooks;

// Calls a hook if it is set.
template <class... Parameters, class... Args>
void CallHook(const std::function<void(Parameters...)>& hook, Args... args) {
  if (hook) hook(args...);
}

// The calls that leave something behind in the session.  Without a hook they leave what its
// plainest outcome would: results and review as after their Continue, a saved record as a tally of
// 0.
void ShowLessonTestResults();
void ShowTestProbReview();
void SavePracticeRecord();
void SaveTestRecord();

}  // namespace course
