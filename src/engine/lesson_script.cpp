#include "engine/lesson_script.h"

#include <algorithm>
#include <string>
#include <utility>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/answers.h"
#include "engine/choices.h"
#include "engine/header.h"
#include "engine/hooks.h"
#include "engine/mistakes_page.h"
#include "engine/navigation.h"
#include "engine/page.h"
#include "engine/practice.h"
#include "engine/run_exit.h"
#include "engine/screen_reader.h"
#include "engine/script_setup.h"
#include "mathkit/draws.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

// The value that all scripts share, to the last bit.
constexpr double kPi = 0x1.921FB54442EEAp+1;

[[noreturn]] void RunAgainAfterResults() {
  ShowLessonTestResults();
  RunAgain();
}

bool AskAnotherExample() {
  const platform::Message question = {"Would you like to see another example?", "",
                                      platform::Buttons::YesNo, platform::Icon::None};
  return platform::MessageBox(question) == platform::Answer::Yes;
}

}  // namespace

LessonScript::LessonScript(std::string title) : title_(std::move(title)) {}
LessonScript::~LessonScript() = default;

int LessonScript::ScreenCount() {
  return static_cast<int>(Screens().size());
}

int LessonScript::DrawnProblem::CorrectBox() const {
  return BoxOfChoice(problem.correct, order, ChoiceCountOf(problem.kind));
}

LessonScript::DrawnProblem LessonScript::Draw(int seed) {
  RandomStream random(static_cast<std::uint64_t>(seed));
  return DrawFrom(random);
}

// The one place in which problems are drawn, for runs and for all who only look at them.
LessonScript::DrawnProblem LessonScript::DrawFrom(RandomStream& random) {
  problem = Problem{};
  DrawProblem(random);
  const std::uint64_t draws = random.Draws();
  return {problem, ChoiceOrder(problem.kind, random), draws};
}

// A problem of the last one's type is thrown away with its seed, so that the seed that stays gives
// the same problem to everyone who draws from it.
LessonScript::DrawnProblem LessonScript::DrawForRun() {
  DrawnProblem drawn = DrawFrom(ProblemStream());
  while (session.gSeedIsNew == 1 && RepeatsType()) {
    NewProblemSeed();
    ReseedProblem(session.gProblemSeed);
    drawn = DrawFrom(ProblemStream());
  }
  return drawn;
}

// Remembers the type of a problem that does not.
bool LessonScript::RepeatsType() {
  if (TypeOfProblem() == 0) return false;
  const std::string type = title_ + " " + std::to_string(TypeOfProblem());
  return std::exchange(session.gLastType, type) == type;
}

void LessonScript::Run() {
  while (frmPR->ready == 0) platform::WaitEvents("frmPR");
  SetDefaults();
  // Numbers outside a problem differ from run to run; the problem's own seed comes after it.
  Randomize();
  try {
    SetUpScriptRun();
    Enter();
  } catch (const RunAbandoned&) {
  }
  session.gExampleRunLength = 0;
  session.gCtrl = nullptr;
}

void LessonScript::SetDefaults() {
  session.gPi = kPi;
  session.gLessonName = title_;
  session.gHasRules = OffersRules() ? kTrue : kFalse;
}

void LessonScript::Enter() {
  using S = LessonScript;
  struct Entry {
    int mode;
    void (S::*enter)();
  };
  static constexpr Entry kEntries[] = {
      {mode::SameProblem, &S::ProblemEntry},           {mode::NewProblem, &S::ProblemEntry},
      {mode::Explanation, &S::ExampleEntry},           {mode::Example, &S::ExampleEntry},
      {mode::LessonTestProblem, &S::ProblemEntry},     {mode::LessonTestReview, &S::ProblemEntry},
      {mode::LessonTestExplanation, &S::ExampleEntry}, {mode::Lesson, &S::LessonEntry},
      {mode::UnitTestProblem, &S::ProblemEntry},       {mode::UnitTestReview, &S::ProblemEntry},
      {mode::UnitTestExplanation, &S::ExampleEntry},   {mode::DiagnosticProblem, &S::ProblemEntry},
  };
  const auto entry = std::ranges::find(kEntries, session.gMode, &Entry::mode);
  if (entry == std::end(kEntries))
    platform::Stop("LessonScript::Run: gMode = " + std::to_string(session.gMode) + " is no entry");
  (this->*entry->enter)();
}

void LessonScript::LessonEntry() {
  session.gExampleRunLength = 0;
  session.gExampleRunIndex = 0;
  const std::vector<Screen> screens = Screens();
  session.gScreenCount = static_cast<int>(screens.size());
  if (session.gScreenNum < 1 || session.gScreenNum > session.gScreenCount)
    platform::Stop("LessonScript::Run: gScreenNum% = " + std::to_string(session.gScreenNum) +
                   ", not 1 to " + std::to_string(session.gScreenCount));
  for (int number = session.gScreenNum; number <= session.gScreenCount; ++number) {
    session.gScreenNum = number;
    session.gFirstPageOfScreen = 1;
    for (const auto& draw : screens[static_cast<std::size_t>(number - 1)]) draw();
  }
  ExitIfWanted();
  GoToActivity(activity::Example);
}

void LessonScript::ExampleEntry() {
  try {
    NewScreen();
    Locate(2, 1);
    const DrawnProblem drawn = DrawForRun();
    ExplainProblem();
    FinishPages();
    ExplainMistakes(drawn);
  } catch (const PagesEnded&) {
  }
  ExampleEnd();
}

void LessonScript::ExplainMistakes(const DrawnProblem& drawn) {
  if (BoxesStood() && TellsMistakes())
    TellMistakes(drawn.problem, drawn.order, StudentsBox(), FigureOfMistakes(), ChoicesAreWords());
}

void LessonScript::ExampleEnd() {
  // Esc during a last animation: the student wants no further question.
  ExitIfWanted();
  switch (session.gMode) {
    case mode::Explanation:
      ExplanationEndChoices();
      return AfterPractice();
    case mode::Example:
      return AfterExample();
    case mode::LessonTestExplanation:
      RunAgainAfterResults();
    case mode::UnitTestExplanation:
      session.gChapterTestReviewNum = 0;
      session.gChapterTestReviewExplain = 0;
      RunAgain();
    default:
      platform::Stop("ExampleEnd: gMode = " + std::to_string(session.gMode) +
                     " is no example or explanation");
  }
}

void LessonScript::AfterExample() {
  if (session.gExampleRunLength > 0) {
    if (++session.gExampleRunIndex < session.gExampleRunLength) GoToActivity(activity::Example);
    session.gExampleRunLength = 0;
  }
  GoToActivity(AskAnotherExample() ? activity::Example : activity::Practice);
}

void LessonScript::ProblemEntry() {
  // Wishes older than the run are forgotten here; one that comes while the problem is drawn counts.
  session.gLeaveLesson = 0;
  NewScreen();
  Locate(2, 1);
  ProblemBanner();
  const DrawnProblem drawn = DrawForRun();
  ShowProblem();
  AskProblem(drawn);
  AfterProblem();
}

void LessonScript::AskProblem(const DrawnProblem& drawn) {
  AnswerChoicesShow(drawn.problem, drawn.order);
  ExitIfWanted();
  if (session.gLessonTestReviewNum > 0 || session.gChapterTestReviewNum > 0) {
    UpdateAccessibleTexts();
    return ShowTestProbReview();
  }
  const int pickedBox = AnswerWait(drawn.problem.kind);
  ExitIfWanted();
  AnswerGrade(pickedBox, drawn.problem.correct, drawn.order);
}

void LessonScript::AfterProblem() {
  if (!TestRunning(session)) return AfterPractice();
  const bool lessonTestOver = session.gChapterTest != 1 && session.gDiagnosticTest != 1 &&
                              session.gLessonTestProb > kLessonTestProblems;
  if (lessonTestOver && session.gLessonTestReviewExplain != 1) RunAgainAfterResults();
  RunAgain();
}

void LessonScript::AfterPractice() {
  switch (session.gMode) {
    case mode::SameProblem:
      session.gRepeatProblem = 1;
      break;
    case mode::Explanation:
      session.gExplainProblem = 1;
      break;
    case mode::Leave:
      cmdNavigate_Click(3);
      throw RunAbandoned{};
    default:
      break;
  }
  GoToActivity(activity::Practice);
}

int LessonScript::LetterEntryHere() {
  return LetterEntry(ChoiceCountOf(problem.kind));
}

}  // namespace course
