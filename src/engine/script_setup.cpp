#include "engine/script_setup.h"

#include <charconv>
#include <string>

#include "display/lesson_window.h"
#include "engine/hooks.h"
#include "engine/practice.h"
#include "engine/run_exit.h"
#include "mathkit/draws.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

const std::string kPracticeText = std::to_string(activity::Practice);

void ShowTabs() {
  const bool shown = session.gHideNav != kTrue;
  frmPR->fraNav.SetVisible(shown);
  if (!shown) return;
  for (int i = 1; i <= 4; ++i) frmPR->ShowTab(i, i == session.gActivity);
}

void ShowStatusLabels() {
  const bool practice = session.gActivity == activity::Practice;
  if (practice) {
    const bool goesOn = session.gLastActivity == kPracticeText;
    frmPR->lblPracticeResults.SetCaption(
        goesOn ? PracticeResultsText(session.gProblemsAttempted, session.gProblemsCorrect)
               : PracticeResultsText(0, 0));
  }
  frmPR->lblPracticeResults.SetVisible(practice);
  if (session.gActivity != activity::LessonTest) {
    frmPR->lblTestProbNo1.SetVisible(false);
    frmPR->lblTestProbNo2.SetVisible(false);
  }
}

void ShowTestProblemNumber(int number) {
  frmPR->lblTestProbNo2.SetCaption(std::to_string(number));
  frmPR->lblTestProbNo1.SetVisible(true);
  frmPR->lblTestProbNo2.SetVisible(true);
}

void TakeNewSeed() {
  NewProblemSeed();
  session.gSeedIsNew = 1;
}

void EnterExample() {
  session.gMode = mode::Example;
  if (session.gRepeatExample != 1) TakeNewSeed();
  ReseedProblem(session.gProblemSeed);
  session.gRepeatExample = 0;
}

void EnterPractice() {
  if (session.gRepeatProblem == 1 && session.gExplainProblem == 1)
    platform::Stop("SetUpScriptRun: gRepeatProblem% and gExplainProblem% are both 1");
  if (session.gRepeatProblem == 1) {
    session.gMode = mode::SameProblem;
  } else if (session.gExplainProblem == 1) {
    session.gMode = mode::Explanation;
    frmPR->lblPracticeResults.SetVisible(false);
  } else {
    TakeNewSeed();
    session.gMode = mode::NewProblem;
  }
  ReseedProblem(session.gProblemSeed);
  session.gRepeatProblem = 0;
  session.gExplainProblem = 0;
}

[[noreturn]] void StopAtProblem(const std::string& test, int number) {
  platform::Stop("SetUpScriptRun: " + test + " has no problem " + std::to_string(number));
}

void EnterLessonTest() {
  const bool review = session.gLessonTestReviewNum >= 1;
  const int number = review ? session.gLessonTestReviewNum : session.gLessonTestProb;
  if (number < 1 || number > kLessonTestProblems) StopAtProblem("the lesson test", number);
  ReseedProblem(session.gTestSeeds[static_cast<std::size_t>(number)]);
  ShowTestProblemNumber(number);
  if (!review)
    session.gMode = mode::LessonTestProblem;
  else
    session.gMode = session.gLessonTestReviewExplain == 1 ? mode::LessonTestExplanation
                                                          : mode::LessonTestReview;
}

// Tables of unit and diagnostic tests hold their seeds as text.
void ReseedFromTable(const std::string& test, int number, const std::string& seedText) {
  int seed = 0;
  const auto [end, error] =
      std::from_chars(seedText.data(), seedText.data() + seedText.size(), seed);
  if (error != std::errc{})
    platform::Stop("SetUpScriptRun: seed \"" + seedText + "\" of problem " +
                   std::to_string(number) + " of " + test + " is no number");
  ReseedProblem(seed);
}

void EnterUnitTest() {
  const bool review = session.gChapterTestReviewNum >= 1;
  const int number = review ? session.gChapterTestReviewNum : session.gChapterTestProb;
  if (number < 1 || number > kMaxTestProblems) StopAtProblem("the unit test", number);
  ReseedFromTable(
      "the unit test", number,
      session.gChapterTestData[static_cast<std::size_t>(number)][unit_test_column::Seed]);
  // A review shows the number of the lesson test's, which is 0: no part of the review needs it.
  ShowTestProblemNumber(review ? session.gLessonTestReviewNum : number);
  if (!review)
    session.gMode = mode::UnitTestProblem;
  else
    session.gMode =
        session.gChapterTestReviewExplain == 1 ? mode::UnitTestExplanation : mode::UnitTestReview;
}

void EnterDiagnosticTest() {
  const int number = session.gDiagnosticProb;
  if (number < 1 || number > kMaxTestProblems) StopAtProblem("the diagnostic test", number);
  session.gMode = mode::DiagnosticProblem;
  ReseedFromTable(
      "the diagnostic test", number,
      session.gDiagnosticData[static_cast<std::size_t>(number)][diagnostic_column::Seed]);
}

void EnterActivity() {
  switch (session.gActivity) {
    case activity::Lesson:
      session.gMode = mode::Lesson;
      if (session.gScreenNum == 0) session.gScreenNum = 1;
      return;
    case activity::Example:
      return EnterExample();
    case activity::Practice:
      return EnterPractice();
    case activity::LessonTest:
      return EnterLessonTest();
    case activity::UnitTest:
      return EnterUnitTest();
    case activity::DiagnosticTest:
      return EnterDiagnosticTest();
    default:
      platform::Stop("SetUpScriptRun: gActivity% = " + std::to_string(session.gActivity) +
                     ", not 1 to 6");
  }
}

}  // namespace

void SetUpScriptRun() {
  if (session.gActivity == activity::None) session.gActivity = activity::Lesson;
  if (session.gActivity != activity::Practice && session.gLastActivity == kPracticeText)
    SaveThenExitIfLeft(SavePracticeRecord);
  ShowTabs();
  ShowStatusLabels();
  session.gSeedIsNew = 0;
  session.gLastActivity = std::to_string(session.gActivity);
  EnterActivity();
}

}  // namespace course
