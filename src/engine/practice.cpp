#include "engine/practice.h"

#include <string_view>

#include "display/animation.h"
#include "display/lesson_window.h"
#include "engine/answers.h"
#include "engine/hooks.h"
#include "engine/navigation.h"
#include "engine/result_form.h"
#include "engine/run_exit.h"
#include "engine/screen_reader.h"
#include "platform/events.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

// The unattended run: the problem is looked at for a moment, then the next one is drawn.
void PressNextProblem() {
  constexpr double kGlance = 0.5;  // seconds
  Delay(kGlance);
  --session.gTestingCounter;
  // Esc ends the run: only it gets through during the delay.
  if (session.gLeaveLesson == 0) picNav_Click(activity::Practice);
}

bool WaitIsOver() {
  return session.gAnswerPicked != 0 || session.gRunAgain != 0 || session.gLeaveLesson != 0;
}

// What is graded: the box picked, and the box of the correct choice.
struct Pick {
  int box;
  int correctBox;
  bool Right() const { return box == correctBox; }
};

constexpr std::string_view kLetters = "ABCDE";

std::string LetterOf(int box) {
  return std::string(1, kLetters[static_cast<std::size_t>(box - 1)]);
}

int BoxOfLetter(const std::string& letter) {
  return letter.empty() ? 0 : static_cast<int>(kLetters.find(letter)) + 1;
}

void ForgetProblem() {
  session.gChoiceCount = 0;
  frmPR->lblSelect.SetVisible(false);
}

void GradePractice(const Pick& pick) {
  session.gRetryProblem = session.gMode == mode::SameProblem ? 1 : 0;
  // A second try must not raise the score.
  if (session.gRetryProblem == 0) {
    if (pick.Right()) ++session.gProblemsCorrect;
    ++session.gProblemsAttempted;
    frmPR->lblPracticeResults.SetCaption(
        PracticeResultsText(session.gProblemsAttempted, session.gProblemsCorrect));
  }
  ShowResultForm(pick.Right() ? Verdict::Correct : Verdict::Incorrect);
  ForgetProblem();
}

void EndTestProblem() {
  ForgetProblem();
  session.gMode = 0;
  frmPR->lblTestProbNo1.SetVisible(false);
  frmPR->lblTestProbNo2.SetVisible(false);
}

void GradeUnitTest(const Pick& pick) {
  using namespace unit_test_column;
  auto& row = session.gChapterTestData.at(static_cast<std::size_t>(session.gChapterTestProb));
  row[CorrectLetter] = LetterOf(pick.correctBox);
  row[StudentLetter] = LetterOf(pick.box);
  EndTestProblem();
  if (++session.gChapterTestProb <= session.gChapterTestProbCount) return;
  session.gProblemsAttempted = session.gChapterTestProbCount;
  session.gChapterTestStatus = 3;
  session.gProblemsCorrect = 0;
  for (int i = 1; i <= session.gChapterTestProbCount; ++i) {
    const auto& graded = session.gChapterTestData.at(static_cast<std::size_t>(i));
    if (graded[CorrectLetter] == graded[StudentLetter]) ++session.gProblemsCorrect;
  }
  SaveThenExitIfLeft(SaveTestRecord);
}

void GradeLessonTest(const Pick& pick) {
  session.gLessonTestAnswers.at(static_cast<std::size_t>(session.gLessonTestProb)) = {
      LetterOf(pick.correctBox), LetterOf(pick.box)};
  EndTestProblem();
  if (++session.gLessonTestProb <= kLessonTestProblems) return;
  session.gProblemsAttempted = kLessonTestProblems;
  session.gProblemsCorrect = 0;
  for (std::size_t i = 1; i <= kLessonTestProblems; ++i) {
    const Session::AnswerLetters& graded = session.gLessonTestAnswers[i];
    if (graded.correct == graded.student) ++session.gProblemsCorrect;
  }
  SaveThenExitIfLeft(SaveTestRecord);
}

void GradeDiagnosticTest(const Pick& pick) {
  using namespace diagnostic_column;
  auto& row = session.gDiagnosticData.at(static_cast<std::size_t>(session.gDiagnosticProb));
  row[CorrectLetter] = LetterOf(pick.correctBox);
  row[StudentLetter] = LetterOf(pick.box);
  EndTestProblem();
  if (++session.gDiagnosticProb <= session.gDiagnosticProbCount) return;
  session.gDiagnosticStatus = 2;
  SaveThenExitIfLeft(
      [] { CallHook(engineHooks.SaveDiagnosticRecord, session.gDiagnosticRecordNum); });
}

}  // namespace

std::string PracticeResultsText(int attempted, int correct) {
  return " Practice Probs Attempted: " + std::to_string(attempted) +
         "  Correct: " + std::to_string(correct) + " ";
}

int AnswerWait(int kind) {
  if (session.gChoiceCount == 0) session.gChoiceCount = ChoiceCountOf(kind);
  frmPR->lblSelect.SetVisible(true);
  session.gAnswerPicked = 0;
  session.gRunAgain = 0;
  session.gLeaveLesson = 0;
  UpdateAccessibleTexts();
  // From the panel the Tab key goes to the answers; the blank and Enter do nothing there.
  frmPR->pnlLesson.SetFocus();
  if (session.gTestingCounter > 0) PressNextProblem();
  while (!WaitIsOver()) platform::WaitEvents("AnswerWait");
  return session.gAnswerPicked;
}

void AnswerGrade(int pickedBox, int correctChoice, const std::vector<int>& order) {
  const Pick pick = {pickedBox, BoxOfChoice(correctChoice, order, session.gChoiceCount)};
  if (pick.correctBox == 0)
    platform::Stop("AnswerGrade: correct choice " + std::to_string(correctChoice) +
                   " stands in no answer box");
  const bool unit = session.gChapterTest == 1;
  const bool lesson = session.gLessonTest == 1;
  const bool diagnostic = session.gDiagnosticTest == 1;
  if (unit + lesson + diagnostic > 1) platform::Stop("Not clear if you are doing a test or not");
  if (unit) return GradeUnitTest(pick);
  if (lesson) return GradeLessonTest(pick);
  if (diagnostic) return GradeDiagnosticTest(pick);
  GradePractice(pick);
}

// The fields of a test stay until its results close, that of practice until the next wait for an
// answer.
int StudentsBox() {
  switch (session.gMode) {
    case mode::Explanation:
      return session.gAnswerPicked;
    case mode::LessonTestExplanation:
      return BoxOfLetter(
          session.gLessonTestAnswers.at(static_cast<std::size_t>(session.gLessonTestReviewNum))
              .student);
    case mode::UnitTestExplanation:
      return BoxOfLetter(
          session.gChapterTestData.at(static_cast<std::size_t>(session.gChapterTestReviewNum))
              .at(unit_test_column::StudentLetter));
    default:
      return 0;
  }
}

void ExplanationEndChoices() {
  ShowResultForm(Verdict::None);
}

}  // namespace course
