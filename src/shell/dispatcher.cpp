#include "shell/dispatcher.h"

#include <cmath>
#include <string_view>

#include "display/lesson_window.h"
#include "engine/hooks.h"
#include "engine/navigation.h"
#include "lessons/registry.h"
#include "mathkit/draws.h"
#include "mathkit/tutor_codes.h"
#include "platform/clock.h"
#include "platform/stop.h"
#include "session/catalogue.h"
#include "session/session.h"

namespace course {
namespace {

constexpr std::string_view kUnitTest = "UNIT TEST";
constexpr std::string_view kDiagnosticTest = "DIAGNOSTIC TEST";
constexpr std::string_view kDocumentation = "OurDocumentation";

// Stages of a unit test, gChapterTestStatus.
namespace unit_test {
constexpr int StartForm = 0;
constexpr int TableToBuild = 1;
constexpr int Running = 2;
constexpr int Results = 3;
}  // namespace unit_test

// Stages of the diagnostic test, gDiagnosticStatus.
namespace diagnostic_test {
constexpr int TableToBuild = 0;
constexpr int Running = 1;
constexpr int Finished = 2;
}  // namespace diagnostic_test

// The lesson window stands open before the disabled menu for as long as one of these lives.
class OpenLesson {
 public:
  explicit OpenLesson(const LessonCalls& calls) : calls_(calls) {
    LoadLessonWindow();
    if (session.gDiagnosticTest == 1) frmPR->cmdNavigate[3].SetCaption("End Diagnostic Test");
    CallHook(calls_.EnableMenu, false);
  }
  ~OpenLesson() {
    // In this order, so that there is always a window that can take the keyboard.
    CallHook(calls_.EnableMenu, true);
    UnloadLessonWindow();
  }
  OpenLesson(const OpenLesson&) = delete;
  OpenLesson& operator=(const OpenLesson&) = delete;

 private:
  const LessonCalls& calls_;
};

void ResetLesson(const LessonChoice& choice) {
  session.gActivity = activity::None;
  session.gMode = 0;
  session.gLastActivity.clear();
  session.gRetryProblem = 0;
  // Wishes of the lesson before: a stale one would make the first problem a retry.
  session.gRepeatExample = 0;
  session.gRepeatProblem = 0;
  session.gExplainProblem = 0;
  session.gProblemsAttempted = 0;
  session.gProblemsCorrect = 0;
  session.gScratchFlag = 0;
  session.gLessonStartTime = std::lrint(platform::TheClock().SecondsSinceMidnight());
  session.gUnitNum = choice.unit;
  session.gLessonNum = choice.row;
  session.gScreenNum = 0;
  session.gDrawnPointCount = 0;
  session.gHasRules = kFalse;
  session.gRulesShown = kFalse;
  session.gExampleRunLength = 0;
  session.gExampleRunIndex = 0;
  // The tabs are hidden in unit and diagnostic tests only, and a test may have been left by any
  // road.
  session.gHideNav = session.gDiagnosticTest == 1 ? kTrue : kFalse;
}

void ChooseTitle(const LessonChoice& choice) {
  session.gChosenTitle = choice.title;
  if (session.gShowDocumentation == kTrue) session.gChosenTitle = kDocumentation;
  if (session.gDiagnosticTest == 1) session.gChosenTitle = kDiagnosticTest;
}

void StartTestOfTitle() {
  const std::string title = UpperCase(session.gChosenTitle);
  if (title == kUnitTest) {
    session.gChapterTest = 1;
    session.gChapterTestStatus = unit_test::StartForm;
  } else if (title == kDiagnosticTest) {
    session.gDiagnosticStatus = diagnostic_test::TableToBuild;
  }
}

void ClearWindow() {
  frmPR->lessonText.Cls();
  for (int i = 0; i <= 4; ++i) frmPR->cmdAnswer[i].SetVisible(false);
  for (int i = 1; i <= 5; ++i) frmPR->picAnswer[i].SetVisible(false);
  frmPR->lblSelect.SetVisible(false);
}

// Problems grouped by lesson, in the order of the lessons, each from a seed of its own.
void BuildUnitTestTable() {
  Randomize();
  int row = 0;
  for (int lesson = 1; lesson <= session.gChapterTestLessonCount; ++lesson) {
    for (int problem = 1; problem <= session.gChapterTestProbsPerLesson; ++problem) {
      auto& columns = session.gChapterTestData.at(++row);
      columns[unit_test_column::Title] = session.gLessonTitle[session.gUnitNum][lesson];
      columns[unit_test_column::Seed] = std::to_string(ProblemStream().Rand(0, 32766));
      columns[unit_test_column::ShortTitle] = session.gLessonShortTitle[session.gUnitNum][lesson];
    }
  }
  session.gChapterTestStatus = unit_test::Running;
  session.gChapterTestProb = 1;
}

const std::string& UnitTestTitle(int problem) {
  return session.gChapterTestData.at(problem)[unit_test_column::Title];
}

void ChooseUnitTestTitle() {
  if (session.gChapterTestReviewNum > 0) {
    session.gChosenTitle = UnitTestTitle(session.gChapterTestReviewNum);
    return;
  }
  switch (session.gChapterTestStatus) {
    case unit_test::TableToBuild:
      BuildUnitTestTable();
      [[fallthrough]];
    case unit_test::Running:
      session.gChosenTitle = UnitTestTitle(session.gChapterTestProb);
      break;
    case unit_test::StartForm:
    case unit_test::Results:
      session.gChosenTitle = kUnitTest;
      break;
    default:
      platform::Stop("RunLesson: gChapterTestStatus% = " +
                     std::to_string(session.gChapterTestStatus) + ", not 0 to 3");
  }
}

// False when the test is over.
bool ChooseDiagnosticTitle() {
  switch (session.gDiagnosticStatus) {
    case diagnostic_test::TableToBuild:
      FillDiagnosticTable();
      [[fallthrough]];
    case diagnostic_test::Running:
      session.gChosenTitle =
          session.gDiagnosticData.at(session.gDiagnosticProb)[diagnostic_column::Title];
      session.gActivity = activity::DiagnosticTest;
      return true;
    case diagnostic_test::Finished:
      return false;
    default:
      platform::Stop("RunLesson: gDiagnosticStatus% = " +
                     std::to_string(session.gDiagnosticStatus) + ", not 0 to 2");
  }
}

void RunChosenScript(const LessonCalls& calls) {
  const std::string title = UpperCase(session.gChosenTitle);
  if (title == kUnitTest) {
    session.gHideNav = kTrue;
    CallHook(calls.Chapter_Test);
    if (session.gChapterTest == 0) session.gHideNav = kFalse;
  } else if (title == UpperCase(std::string(kDocumentation))) {
    CallHook(calls.Docs);
  } else if (calls.RunScript) {
    calls.RunScript(session.gChosenTitle);
  }
}

// One pass of the loop; false when it was the last one.
bool RunOnce(const LessonCalls& calls) {
  ClearWindow();
  session.gChoiceCount = 0;
  session.gRunAgain = 0;
  session.gInDelay = 0;
  if (session.gChapterTest == 1) ChooseUnitTestTitle();
  if (session.gDiagnosticTest == 1 && !ChooseDiagnosticTitle()) return false;
  RunChosenScript(calls);
  return session.gRunAgain == 1;
}

}  // namespace

void RunScriptOf(const std::string& title) {
  if (const auto script = MakeLesson(title)) script->Run();
}

void RunLesson(const LessonChoice& choice, const LessonCalls& calls) {
  ChooseTitle(choice);
  const OpenLesson open(calls);
  ResetLesson(choice);
  StartTestOfTitle();
  while (RunOnce(calls)) {
  }
  // A test that ran into a title without a script was ended by nobody: left standing, it would take
  // the next lesson for its problem.
  ClearTestBlock(session);
  if (session.gDiagnosticTest != 1) session.gHideNav = kFalse;
  CallHook(engineHooks.SavePracticeRecord);
  CallHook(calls.RefreshProgress);
}

}  // namespace course
