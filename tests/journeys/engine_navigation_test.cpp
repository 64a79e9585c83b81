// The student's side of the lesson window: every button, tab, number, key and menu entry.
#include <set>

#include "display/animation.h"
#include "engine/screen_reader.h"
#include "journeys/engine_fixture.h"
#include "mathkit/draws.h"
#include "mathkit/tutor_codes.h"
#include "platform/robot.h"

namespace course::testing {
namespace {

using Navigation = LessonJourney;
using platform::Answer;

TEST_F(Navigation, ALessonLeadsThroughItsScreensToExamplesAndPractice) {
  Check("PageEnd", [] {
    EXPECT_EQ(frmPR->form.Caption(), "Test Lesson");
    EXPECT_EQ(frmPR->lblScreenNumber.Caption(), "Lesson\nConcept\nScreen\n1 of 3");
    EXPECT_TRUE(frmPR->fraAnimSpeed.Visible());
    EXPECT_TRUE(frmPR->fraNav.Visible());
    EXPECT_FALSE(frmPR->lblPracticeResults.Visible());
    EXPECT_EQ(session.gFirstPageOfScreen, 1);
    EXPECT_EQ(frmPR->pnlLesson.AccessibleText(), "screen 1, first page");
  });
  Continue();
  Check("PageEnd", [] { EXPECT_EQ(session.gFirstPageOfScreen, 0); });
  Continue(5);
  Check("PageEnd", [] {
    EXPECT_EQ(BannerText(), "Here's an example");
    EXPECT_FALSE(frmPR->lblScreenNumber.Visible());
  });
  Continue(2);
  user.Answer(Answer::Yes);
  Continue(2);
  user.Answer(Answer::No);
  Leave("AnswerWait");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 screen 2 screen 3 4 4 2 ");
  EXPECT_NE(NumberOf(3), NumberOf(4));
  EXPECT_EQ(user.messages[0].text, "Would you like to see another example?");
  EXPECT_EQ(session.gExampleRunLength, 0);
}

TEST_F(Navigation, APageWaitsForContinueOrAClickOnThePanel) {
  user.At("PageEnd").ClickRefused("cmdNavigate(5)");
  user.At("PageEnd").Press('x');
  user.At("PageEnd").Click("pnlLesson");
  Check("PageEnd", [] { EXPECT_EQ(TranscriptLines(frmPR->lessonText).size(), 2u); });
  Leave("PageEnd");
  Run();
}

TEST_F(Navigation, ButtonsAndNumbersRestATenthOfASecond) {
  user.At("PageEnd").Click("cmdNavigate(2)");  // too early: nothing happens
  user.At("PageEnd").Click("picScreenNum(3)");
  Check("PageEnd", [this] { clock.Advance(0.05); });
  user.At("PageEnd").Click("cmdNavigate(2)");
  Check("PageEnd", [this] {
    EXPECT_EQ(session.gProceed, 0);
    clock.Advance(0.05);
  });
  user.At("PageEnd").Click("cmdNavigate(2)");
  user.At("PageEnd").Click("pnlLesson");  // the panel has no guard
  Leave("PageEnd");                       // nor has Esc
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 screen 2 ");
}

TEST_F(Navigation, AWaitOverMidnightTakesButtons) {
  clock.secondsSinceMidnight = 86399.95;
  Check("PageEnd", [this] { clock.Advance(0.06); });
  user.At("PageEnd").Click("cmdNavigate(2)");  // 0.06 seconds: too early still
  Check("PageEnd", [this] { clock.Advance(0.05); });
  user.At("PageEnd").Click("cmdNavigate(2)");
  Check("PageEnd", [] { EXPECT_EQ(session.gFirstPageOfScreen, 0); });
  Leave("PageEnd");
  Run();
}

TEST_F(Navigation, NumbersJumpToTheStartOfAScreen) {
  Check("PageEnd", [] {
    EXPECT_EQ(frmPR->cmdNavigate[2].Left(), 6480);
    EXPECT_EQ(frmPR->picScreenNum[1].PixelWidth(), 26);
    EXPECT_EQ(frmPR->picScreenNum[2].PixelWidth(), 27);
    EXPECT_EQ(frmPR->picScreenNum[2].Left(), 67 * 15);
    EXPECT_EQ(frmPR->picScreenNum[1].Pixel(2, 2), platform::colour::Red);
    EXPECT_EQ(frmPR->picScreenNum[2].Pixel(2, 2), platform::colour::White);
    EXPECT_FALSE(frmPR->picScreenNum[4].Visible());
  });
  Click("PageEnd", "picScreenNum(3)");
  Continue();
  Click("PageEnd", "picScreenNum(3)");  // the current one: from its start
  Click("PageEnd", "picScreenNum(2)");
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 screen 3 screen 3 screen 2 ");
}

TEST_F(Navigation, ButtonsThatAreNeverShownKeepTheirMeaning) {
  const auto press = [this](int index) {
    Check("PageEnd", [=, this] {
      EXPECT_FALSE(frmPR->cmdNavigate[index].Visible());
      clock.Advance(1);
      cmdNavigate_Click(index);
    });
  };
  press(1);
  press(1);
  Continue();
  press(0);  // on the second page: the screen's own start
  press(0);
  press(4);
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 screen 2 screen 3 screen 3 screen 2 screen 1 ");
}

TEST_F(Navigation, UpToNineNumbersStandInTheirBox) {
  plan.screens = 10;
  for (const int screens : {6, 7, 8, 9, 10}) {
    Check("PageEnd", [=, this] {
      session.gScreenCount = screens;
      ShowNavButtons();
      const int last = std::min(screens, 9);
      const platform::PictureBox& number = frmPR->picScreenNum[last];
      EXPECT_TRUE(number.Visible());
      EXPECT_LE(number.Left() + number.Width(), frmPR->picScreenBox.Width());
      EXPECT_LE(frmPR->picScreenNum[last - 1].Left() + frmPR->picScreenNum[last - 1].Width(),
                number.Left());
    });
  }
  Leave("PageEnd");
  Run();
}

TEST_F(Navigation, TabsSwitchTheActivity) {
  Continue();
  Click("PageEnd", "picNav(3)");
  Check("AnswerWait", [] { EXPECT_FALSE(frmPR->picScreenBox.Visible()); });
  Click("AnswerWait", "picNav(2)");
  Click("PageEnd", "picNav(1)");
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 2 4 screen 1 ");
  EXPECT_EQ(session.gProblemsAttempted, 0);
}

TEST_F(Navigation, EveryWayOutLeadsToTheMenu) {
  Leave("PageEnd");
  Run();
  user.At("PageEnd").CloseBox();
  Run();
  user.At("PageEnd").Menu("mnuFileReturn");
  Run();
  Click("PageEnd", "cmdNavigate(3)");
  Run();
  Leave("AnswerWait");
  Run(activity::Practice);
  Click("AnswerWait", "cmdNavigate(3)");
  Run(activity::Practice);
  EXPECT_EQ(frmPR, nullptr);
  EXPECT_EQ(runs.size(), 6u);
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(Navigation, RestartGoesBackToTheScreenLastReached) {
  Click("PageEnd", "picScreenNum(2)");
  user.At("PageEnd").Menu("mnuFileRestart");
  Click("PageEnd", "picNav(3)");
  user.At("AnswerWait").Menu("mnuFileRestart");
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 screen 2 screen 2 2 screen 1 ");
}

TEST_F(Navigation, NumbersOfATeachingScreenDifferFromRunToRun) {
  std::set<double> drawn;
  plan.onScreen = [&] { drawn.insert(Rnd()); };
  for (int run = 1; run <= 2; ++run) {
    ReseedProblem(4711);
    clock.Advance(1);
    Leave("PageEnd");
    Run();
  }
  EXPECT_EQ(drawn.size(), 2u);
}

TEST_F(Navigation, ExitEndsTheProgramAtOnce) {
  user.At("PageEnd").Menu("mnuFileExit");
  EXPECT_THROW(Run(), ProgramEnded);
}

TEST_F(Navigation, HelpEntriesWaitForTheirForms) {
  int shown = 0;
  engineHooks.ShowAbout = [&] { ++shown; };
  Check("PageEnd", [] {
    EXPECT_FALSE(frmPR->mnuHelpProgramOverview->Click());
    EXPECT_TRUE(frmPR->mnuHelpAbout->Click());
  });
  Leave("PageEnd");
  Run();
  EXPECT_EQ(shown, 1);
}

TEST_F(Navigation, TheSpeedOfAnimationsCarriesOver) {
  const struct {
    int option;
    const char* caption;
    double unit;  // seconds a step
  } speeds[] = {{1, "Slower", 0.005}, {2, "Faster", 0.002}, {3, "Turbo", 0}};
  for (const auto& speed : speeds) {
    user.At("PageEnd").Click("optAnimSpeed(" + std::to_string(speed.option) + ")");
    Check("PageEnd", [&speed] {
      EXPECT_EQ(platform::robot::Spoken(frmPR->optAnimSpeed[speed.option]), speed.caption);
      EXPECT_EQ(session.gAnimDelayUnit, speed.unit) << speed.caption;
    });
  }
  Leave("PageEnd");
  Run();
  Check("PageEnd", [] { EXPECT_TRUE(frmPR->optAnimSpeed[3].Value()); });
  Leave("PageEnd");
  Run();
}

// --- Input during a delay or an animation ------------------------------------

TEST_F(Navigation, ClicksDuringDelaysAndAnimationsAreDropped) {
  plan.onLastPage = [] {
    Delay(1);
    Anim(18, 1, 3, 1, 2, 1, 50, 1);
  };
  user.OnPause = [this](double) {
    clock.Advance(1);
    session.gProceed = 0;
    for (const char* name : {"pnlLesson", "cmdNavigate(3)", "picNav(3)", "optAnimSpeed(3)"})
      FindControl(name).Click();
    FindMenuItem("mnuFileReturn").Click();
    FindMenuItem("mnuFileExit").Click();
    EXPECT_EQ(session.gProceed + session.gLeaveLesson + session.gRunAgain, 0);
  };
  Continue();
  Check("PageEnd", [] { EXPECT_EQ(session.gAnimSpeedOption, 1); });
  Leave("PageEnd");
  Run(activity::Example);
  EXPECT_GT(user.pauses, 25);
}

TEST_F(Navigation, NoAnswerIsTakenWhileSomethingMoves) {
  user.OnPause = [](double) {
    FindControl("picAnswer(1)").Click();
    frmPR->cmdAnswer[0].SetVisible(true);
    FindControl("cmdAnswer(0)").Click();
  };
  Check("AnswerWait", [] {
    Delay(1);
    Anim(18, 1, 3, 1, 2, 1, 50, 1);
    EXPECT_EQ(session.gAnswerPicked, 0);
    FindControl("picAnswer(1)").Click();
    EXPECT_EQ(session.gAnswerPicked, 1) << "behind it the same click counts";
    session.gAnswerPicked = 0;
  });
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_GT(user.pauses, 25);
}

TEST_F(Navigation, EscDuringAnAnimationLeavesAtTheNextWait) {
  plan.onLastPage = [] { Anim(18, 1, 3, 1, 2, 1, 50, 1); };
  user.OnPause = [](double) { FindControl("pnlLesson").OwnForm()->Press(27); };
  Continue();
  Run(activity::Example);  // no further click, and no question
  EXPECT_GE(user.pauses, 25);
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(Navigation, AWishOlderThanTheProblemIsForgotten) {
  Check("AnswerWait", [] { session.gLeaveLesson = session.gRunAgain = 1; });
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 2 ");
}

TEST_F(Navigation, EscWhileAProblemIsDrawnIsNotForgotten) {
  plan.onProblemPage = [] { Delay(1); };
  user.OnPause = [](double) { FindControl("pnlLesson").OwnForm()->Press(27); };
  Run(activity::Practice);
  EXPECT_EQ(runs.size(), 1u);
}

// --- END and BEGIN buttons ---------------------------------------------------

TEST_F(Navigation, AnExampleCanBeEndedAndBegunAgain) {
  Check("PageEnd", [] { EXPECT_EQ(frmPR->cmdNavigate[2].Left(), 5805); });
  Continue();
  Click("PageEnd", "cmdNavigate(8)");  // BEGIN EXAMPLE: the same one
  Click("PageEnd", "cmdNavigate(5)");  // END EXAMPLE on its first page
  user.Answer(Answer::Yes);
  Click("PageEnd", "cmdNavigate(5)");
  user.Answer(Answer::No);
  Leave("AnswerWait");
  Run(activity::Example);
  EXPECT_EQ(ModesOfRuns(), "4 4 4 2 ");
  EXPECT_EQ(NumberOf(0), NumberOf(1));
  EXPECT_NE(NumberOf(1), NumberOf(2));
}

TEST_F(Navigation, TheLastLineWaitsOnceAndAnExampleTellsOfNoBoxes) {
  plan.onLastPage = [this] {
    if (runs.size() == 1) PageEnd();
  };
  for (int run = 1; run <= 2; ++run) {
    Continue(2);
    user.Answer(run == 1 ? Answer::Yes : Answer::No);
  }
  Leave("AnswerWait");
  Run(activity::Example);
  EXPECT_EQ(ModesOfRuns(), "4 4 2 ");
}

TEST_F(Navigation, AnExplanationCanBeEndedAndBegunAgain) {
  Answer("picAnswer(1)", kExplain);
  Check("PageEnd", [] { EXPECT_FALSE(frmPR->lblPracticeResults.Visible()); });
  Continue();
  Click("PageEnd", "cmdNavigate(9)");
  Click("PageEnd", "cmdNavigate(6)");
  Click("frmCorrect", kLeave);
  Run(activity::Practice);
  EXPECT_EQ(ModesOfRuns(), "2 3 3 ");
  EXPECT_EQ(NumberOf(0), NumberOf(2));
}

// --- What a screen reader is told --------------------------------------------

TEST_F(Navigation, TheLessonCanBeHeard) {
  Check("AnswerWait", [this] {
    EXPECT_EQ(frmPR->pnlLesson.AccessibleText(),
              "Try the following problem\nWhat is " + NumberOf(0) + "?");
    EXPECT_EQ(frmPR->picAnswer[5].AccessibleName(), "Answer E");
    EXPECT_EQ(frmPR->picAnswer[5].AccessibleText(), "E: None of the above");
  });
  Leave("AnswerWait");
  Run(activity::Practice);
  EXPECT_EQ(SpokenText("x " + tutor::LessOrEqual + " 6"), "x less than or equal to 6");
  EXPECT_EQ(SpokenText("2x^3^ + 1"), "2x to the power 3 + 1");
  EXPECT_EQ(SpokenText("2" + tutor::Pi + tutor::Gap + "r"), "2 pi r");
}

}  // namespace
}  // namespace course::testing
