// Practice: verdict, tally, retry, explanation; and the problem that a seed stands for.
#include "display/answer_text.h"
#include "engine/practice.h"
#include "journeys/engine_fixture.h"
#include "mathkit/draws.h"
#include "platform/picture_box.h"
#include "platform/robot.h"

namespace course::testing {
namespace {

using Practice = LessonJourney;

std::string Tally() {
  return frmPR->lblPracticeResults.Caption();
}

TEST_F(Practice, AnswersAreJudgedAndCountedOnce) {
  Check("AnswerWait", [] { EXPECT_EQ(Tally(), " Practice Probs Attempted: 0  Correct: 0 "); });
  Pick(1);
  Check("frmCorrect", [] {
    EXPECT_EQ(dynamic_cast<platform::Label&>(FindControl("lblInfo2")).Caption(), "Correct");
    EXPECT_EQ(Tally(), " Practice Probs Attempted: 1  Correct: 1 ");
    EXPECT_TRUE(frmPR->picAnswer[1].Visible());
    EXPECT_FALSE(frmPR->picAnswer[1].CanBeClicked());
  });
  Click("frmCorrect", kSame);
  Pick(2);  // a retry is not counted, right or wrong
  Check("frmCorrect", [] {
    EXPECT_EQ(dynamic_cast<platform::Label&>(FindControl("lblInfo2")).Caption(), "Incorrect");
  });
  Click("frmCorrect", kSame);
  Pick(1);
  Check("frmCorrect", [] { EXPECT_EQ(Tally(), " Practice Probs Attempted: 1  Correct: 1 "); });
  Click("frmCorrect", kDifferent);
  Pick(3);
  Check("frmCorrect", [] { EXPECT_EQ(Tally(), " Practice Probs Attempted: 2  Correct: 1 "); });
  Click("frmCorrect", kLeave);
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 1 1 2 ");
  EXPECT_EQ(NumberOf(0), NumberOf(2));
  EXPECT_NE(NumberOf(0), NumberOf(3));
  EXPECT_EQ(session.gProblemsGenerated[1][2], 2);
}

TEST_F(Practice, TheExplanationIsThatOfTheProblemAndKeepsTheTally) {
  Pick(2);
  Click("frmCorrect", kExplain);
  Continue(2);
  Check("PageEnd", [this] {
    const int number = std::stoi(NumberOf(1));
    EXPECT_EQ(MistakesTold(), "You chose " + std::to_string(number + 2) +
                                  ".  That is what we get when we add 2 and keep it. Someone who "
                                  "takes 3 for 2 gets " +
                                  std::to_string(number + 3) + ". ");
  });
  Continue();
  Check("frmCorrect", [] {
    EXPECT_FALSE(FindControl("lblInfo2").Visible());
    EXPECT_FALSE(FindControl("picResult").Visible());
    EXPECT_EQ(BannerText(), "Explanation of previous problem");
  });
  Click("frmCorrect", kSame);
  Check("AnswerWait", [] { EXPECT_EQ(Tally(), " Practice Probs Attempted: 1  Correct: 0 "); });
  Pick(1);
  Click("frmCorrect", kLeave);
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 3 1 ");
  EXPECT_EQ(NumberOf(0), NumberOf(1));
  EXPECT_EQ(NumberOf(0), NumberOf(2));
}

TEST_F(Practice, TheVerdictCanOnlyBeLeftByAnOption) {
  Pick(1);
  user.At("frmCorrect").Press(27);
  user.At("frmCorrect").CloseBox();
  user.At("frmCorrect").ClickRefused("cmdOption(3)");
  user.At("frmCorrect").ClickRefused("picNav(1)");
  Click("frmCorrect", kLeave);
  Run(activity::Practice);
}

TEST_F(Practice, AWayToPrintChoicesHoldsForItsPageAlone) {
  plan.onProblemPage = [this] {
    if (runs.size() > 1) return;
    answerParameters.printChoice = [](int box, const std::string&) {
      picAnswerPrintExponentExpression(box, "own");
    };
  };
  Check("AnswerWait", [] { EXPECT_EQ(TextInBox(1), "own"); });
  Click("AnswerWait", "picAnswer(1)");
  Click("frmCorrect", kDifferent);
  Check("AnswerWait", [] { EXPECT_NE(TextInBox(1), "own"); });
  Leave("AnswerWait");
  Run(activity::Practice);
}

TEST_F(Practice, ATabDuringTheWaitCountsNothing) {
  Click("AnswerWait", "picNav(3)");
  Click("AnswerWait", "picNav(3)");
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 2 2 ");
  EXPECT_EQ(session.gProblemsAttempted, 0);
  EXPECT_NE(NumberOf(0), NumberOf(1));
}

TEST_F(Practice, TheSeriesIsSavedWhenPracticeIsLeft) {
  std::vector<std::string> saved;
  engineHooks.SavePracticeRecord = [&] {
    saved.push_back(std::to_string(session.gProblemsAttempted));
    session.gProblemsAttempted = 0;
    session.gProblemsCorrect = 0;
  };
  Pick(1);
  Click("frmCorrect", kDifferent);
  Click("AnswerWait", "picNav(1)");
  Click("PageEnd", "picNav(3)");
  Check("AnswerWait", [] { EXPECT_EQ(Tally(), " Practice Probs Attempted: 0  Correct: 0 "); });
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(saved, (std::vector<std::string>{"1", "0"}));  // the second as the lesson is left
}

TEST_F(Practice, TheScreenShowsTheProblemOfItsSeed) {
  for (const int kind : {1, 2, 3, -1, -2, -3}) {
    plan.kind = kind;
    runs.clear();
    Check("AnswerWait", [&, this] {
      const auto drawn = TestLesson(plan, runs).Draw(session.gProblemSeed);
      EXPECT_EQ(session.gChoiceCount, kind == 1 || kind == -1 ? 4 : 5);
      EXPECT_EQ(frmPR->picAnswer[5].Visible(), session.gChoiceCount == 5);
      for (int box = 1; box <= session.gChoiceCount; ++box) {
        const auto at = static_cast<std::size_t>(box);
        EXPECT_EQ(TextInBox(box), ChoiceText(drawn.problem, drawn.order[at])) << "kind " << kind;
      }
    });
    Leave("AnswerWait");
    Run(activity::Practice);
  }
}

TEST_F(Practice, AnUnattendedRunDrawsProblemAfterProblem) {
  session.gTestingCounter = 3;
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 2 2 2 ");
  EXPECT_EQ(session.gTestingCounter, 0);
  EXPECT_EQ(user.pausedSeconds, 1.5);
}

TEST_F(Practice, EscEndsAnUnattendedRun) {
  session.gTestingCounter = 25;
  user.OnPause = [](double) { FindControl("pnlLesson").OwnForm()->Press(27); };
  Run(activity::Practice);
  EXPECT_EQ(runs.size(), 1u);
}

TEST_F(Practice, TheKeyboardAloneReachesTheAnswers) {
  Check("AnswerWait", [] {
    platform::robot::Type(frmPR->form, ' ');  // on the panel, as behind a CONTINUE: nothing
    platform::robot::Type(frmPR->form, 13);
  });
  Check("AnswerWait", [] {
    EXPECT_EQ(session.gAnswerPicked, 0);
    for (int i = 1; i <= 2; ++i) platform::robot::Type(frmPR->form, platform::robot::Key::Tab);
    platform::robot::Type(frmPR->form, ' ');
  });
  Check("frmCorrect", [] { EXPECT_EQ(session.gAnswerPicked, 2); });
  Click("frmCorrect", kLeave);
  Run(activity::Practice);
}

TEST_F(Practice, RulesAreOfferedInPracticeOnly) {
  struct Case {
    int mode;
    Bool hasRules;
    bool shown;
  };
  Check("AnswerWait", [] {
    for (const Case& c :
         {Case{1, kTrue, true}, {2, kTrue, true}, {2, kFalse, false}, {3, kTrue, false}}) {
      session.gMode = c.mode;
      session.gHasRules = c.hasRules;
      Header("");
      EXPECT_EQ(frmPR->cmdShowRulesandReminders.Visible(), c.shown) << c.mode;
    }
  });
  Leave("AnswerWait");
  Run(activity::Practice);
}

// --- Author's errors ---------------------------------------------------------

TEST_F(Practice, AuthorsErrorsStopTheProgram) {
  const auto stops = [this](const std::string& message) {
    ExpectStop(message, [this] { Run(activity::Practice); });
  };
  plan.setsParameters = false;
  stops("SUB picAnswerSetParameters was not called");
  plan.setsParameters = true;
  plan.onProblemPage = [] { session.gRepeatProblem = session.gExplainProblem = 1; };
  Click("AnswerWait", "picNav(3)");
  stops("SetUpScriptRun: gRepeatProblem% and gExplainProblem% are both 1");
  plan.onProblemPage = nullptr;
  session.gRepeatProblem = session.gExplainProblem = 0;

  plan.kind = choice_kind::FourShuffled;
  plan.correct = 5;
  user.At("AnswerWait").Click("picAnswer(1)");
  stops("AnswerGrade: correct choice 5 stands in no answer box");
  plan.correct = 1;
  user.At("AnswerWait").Do("two tests at a time", [] {
    session.gLessonTest = session.gChapterTest = 1;
    session.gAnswerPicked = 1;
  });
  stops("Not clear if you are doing a test or not");
}

TEST_F(Practice, WrongEntriesStopTheProgram) {
  ExpectStop("SetUpScriptRun: gActivity% = 7", [this] { Run(7); });
  ExpectStop("SetUpScriptRun: the lesson test has no problem 0", [this] { Run(4); });
  plan.screens = 0;
  ExpectStop("LessonScript::Run: gScreenNum% = 1, not 1 to 0", [this] { Run(); });
  plan.onLastPage = [] { session.gMode = mode::Leave; };
  Continue();
  user.At("PageEnd").Click("pnlLesson");
  ExpectStop("ExampleEnd: gMode = 5", [this] { Run(activity::Example); });
}

}  // namespace
}  // namespace course::testing
