// What the rooms above hand down to the engine: forms of the tests and of the help, and the saving of
// records.  A hook that is not set does nothing.
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
  std::function<void()> ToggleRules;            // the button of the rules panel
};

extern EngineHooks engineHooks;

// Calls a hook if it is set.
template <class... Args>
void CallHook(const std::function<void(Args...)>& hook, Args... args) {
  if (hook) hook(args...);
}

}  // namespace course
