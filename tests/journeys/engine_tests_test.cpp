// Lesson test, unit test and diagnostic test, as far as the engine carries them.
#include "journeys/engine_fixture.h"

namespace course::testing {
namespace {

using platform::Answer;

class Tests : public LessonJourney {
 protected:
  void SetUp() override {
    LessonJourney::SetUp();
    engineHooks.SaveTestRecord = [this] {
      saved.push_back(std::to_string(session.gProblemsCorrect) + "/" +
                      std::to_string(session.gProblemsAttempted));
    };
  }
  // Clicks box A so many times, one a problem.
  void PickA(int problems) {
    for (int i = 0; i < problems; ++i) Click("AnswerWait", "picAnswer(1)");
  }
  // Two rows of this lesson, with seeds of their own.
  static void FillUnitTest() {
    session.gChapterTest = 1;
    session.gChapterTestStatus = 2;
    session.gChapterTestProb = 1;
    session.gChapterTestProbCount = 2;
    session.gChapterTestData[1] = {"", "Test Lesson", "0", "", "", "Test"};
    session.gChapterTestData[2] = {"", "Test Lesson", "32766", "", "", "Test"};
    session.gHideNav = kTrue;
  }

  std::vector<std::string> saved;
};

TEST_F(Tests, ALessonTestAsksFiveProblemsAndSavesBeforeItsResults) {
  plan.kind = choice_kind::FourInOrder;  // box A is right
  engineHooks.ShowLessonTestResults = [this] {
    runs.push_back("results");
    EXPECT_EQ(saved, std::vector<std::string>{"4/5"});
    EXPECT_EQ(session.gLessonTestAnswers[2].correct + session.gLessonTestAnswers[2].student, "AB");
    ClearTestBlock(session);
    session.gActivity = activity::None;
  };
  Check("PageEnd", [this] {
    clock.Advance(1);
    picNav_Click(4);
  });
  Check("AnswerWait", [] {
    EXPECT_EQ(BannerText(), "Lesson Test Problem 1");
    EXPECT_EQ(frmPR->lblTestProbNo2.Caption(), "1");
    EXPECT_TRUE(frmPR->lblTestProbNo1.Visible());
    EXPECT_FALSE(frmPR->fraAnimSpeed.Visible());
    EXPECT_TRUE(frmPR->fraNav.Visible());
  });
  PickA(1);
  Click("AnswerWait", "picAnswer(2)");
  PickA(3);
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 6 6 results screen 1 ");
}

TEST_F(Tests, WithoutAResultsFormALessonTestEndsInTheLesson) {
  Click("PageEnd", "picNav(4)");
  PickA(5);
  Check("PageEnd", [] {
    EXPECT_EQ(session.gLessonTest, 0);
    EXPECT_FALSE(frmPR->lblTestProbNo1.Visible());
  });
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 6 6 screen 1 ");
}

TEST_F(Tests, AReviewShowsTheProblemAndItsExplanationAgain) {
  int results = 0;
  engineHooks.ShowLessonTestResults = [&] {
    session.gLessonTestReviewExplain = 0;
    session.gLessonTestReviewNum = ++results < 3 ? 2 : 0;
    if (results < 3) return;
    ClearTestBlock(session);
    session.gActivity = activity::None;
  };
  engineHooks.ShowTestProbReview = [&] {
    EXPECT_EQ(BannerText(), "Lesson Test Problem 2");
    session.gLessonTestReviewExplain = results == 1 ? 1 : 0;
  };
  Click("PageEnd", "picNav(4)");
  PickA(5);
  Check("PageEnd", [] { EXPECT_EQ(BannerText(), "Explanation: Lesson Test Problem 2"); });
  Click("PageEnd", "cmdNavigate(10)");  // BEGIN EXPLANATION
  Continue();
  Click("PageEnd", "cmdNavigate(7)");  // END EXPLANATION
  Leave("PageEnd");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 6 6 7 8 8 7 screen 1 ");
  for (const std::size_t run : {6u, 7u, 8u, 9u}) EXPECT_EQ(NumberOf(run), NumberOf(2));
}

TEST_F(Tests, TabsButtonAndEscAskBeforeATestEnds) {
  Click("PageEnd", "picNav(4)");
  user.Answer(Answer::No).Answer(Answer::No).Answer(Answer::No);
  Leave("AnswerWait");
  Click("AnswerWait", "picNav(1)");
  Click("AnswerWait", "cmdNavigate(3)");
  PickA(1);
  user.Answer(Answer::Yes).Answer(Answer::Yes);
  Click("AnswerWait", "picNav(4)");  // Yes: a new test with new seeds
  Leave("AnswerWait");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 ");
  EXPECT_NE(NumberOf(1), NumberOf(3));
  EXPECT_TRUE(saved.empty());
  EXPECT_EQ(user.messages[0].text, "You are doing a Lesson Test.\n\nDo you want to end the test?");
  EXPECT_EQ(session.gLessonTest, 0);
}

TEST_F(Tests, TheFileMenuEndsATestWithoutAQuestion) {
  Click("PageEnd", "picNav(4)");
  user.At("AnswerWait").Menu("mnuFileRestart");
  Click("PageEnd", "picNav(4)");
  user.At("AnswerWait").Menu("mnuFileReturn");
  Run();
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 screen 1 6 ");
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(Tests, AUnitTestTakesItsSeedsFromTheTable) {
  plan.kind = choice_kind::FourInOrderAndNone;
  plan.correct = 5;
  Check("AnswerWait", [] {
    EXPECT_EQ(BannerText(), "Unit Test Problem 1");
    EXPECT_EQ(frmPR->lblTestProbNo2.Caption(), "1");
    EXPECT_FALSE(frmPR->fraNav.Visible());
  });
  FillUnitTest();
  session.gActivity = activity::UnitTest;
  PickA(1);
  Click("AnswerWait", "picAnswer(5)");
  LoadLessonWindow();
  TestLesson(plan, runs).Run();
  EXPECT_EQ(session.gMode, 0);
  EXPECT_EQ(NumberOf(0), std::to_string(RandomStream(0).Rand(1, 1000000)));
  session.gRunAgain = 0;
  TestLesson(plan, runs).Run();
  EXPECT_EQ(session.gChapterTestData[1][3] + session.gChapterTestData[1][4], "EA");
  EXPECT_EQ(session.gChapterTestData[2][3] + session.gChapterTestData[2][4], "EE");
  EXPECT_EQ(session.gChapterTestStatus, 3);
  EXPECT_EQ(saved, std::vector<std::string>{"1/2"});
  session.gChapterTestReviewNum = 2;
  session.gChapterTestReviewExplain = 1;
  session.gRunAgain = 0;
  Click("PageEnd", "cmdNavigate(7)");
  TestLesson(plan, runs).Run();
  EXPECT_EQ(ModesOfRuns(), "10 10 12 ");
  EXPECT_EQ(NumberOf(1), NumberOf(2));
  EXPECT_EQ(session.gChapterTestReviewNum, 0);
  EXPECT_EQ(session.gRunAgain, 1);
}

TEST_F(Tests, ADiagnosticTestWritesTheLettersTheOtherWayRound) {
  plan.kind = choice_kind::FourInOrder;
  int savedRecord = 0;
  engineHooks.SaveDiagnosticRecord = [&](int record) { savedRecord = record; };
  session.gDiagnosticTest = 1;
  session.gDiagnosticProb = 30;
  session.gDiagnosticProbCount = 30;
  session.gDiagnosticRecordNum = 7;
  session.gDiagnosticData[30] = {"", "Test Lesson", "28024", " ", " ", ""};
  session.gActivity = activity::DiagnosticTest;
  session.gHideNav = kTrue;
  LoadLessonWindow();
  user.Answer(Answer::No);
  Leave("AnswerWait");
  Click("AnswerWait", "picAnswer(3)");
  TestLesson(plan, runs).Run();
  EXPECT_EQ(user.messages[0].text,
            "You are doing a Diagnostic Test.\n\nDo you want to end the test?");
  EXPECT_EQ(session.gDiagnosticData[30][3] + session.gDiagnosticData[30][4], "CA");
  EXPECT_EQ(session.gDiagnosticStatus, 2);
  EXPECT_EQ(savedRecord, 7);
  EXPECT_EQ(session.gDiagnosticEndedEarly, 0);
}

TEST_F(Tests, AUnitTestThatIsLeftGivesTheTabsBack) {
  LoadLessonWindow();
  const auto leave = [this](const std::function<void()>& step) {
    FillUnitTest();
    session.gActivity = activity::UnitTest;
    session.gRunAgain = session.gLeaveLesson = 0;
    step();
    TestLesson(plan, runs).Run();
    EXPECT_EQ(session.gChapterTest, 0);
    EXPECT_EQ(session.gHideNav, kFalse);
  };
  leave([this] { user.At("AnswerWait").Menu("mnuFileRestart"); });
  EXPECT_EQ(session.gActivity, activity::Lesson);
  leave([this] { user.At("AnswerWait").Menu("mnuFileReturn"); });
  leave([this] {
    user.Answer(Answer::Yes);
    Leave("AnswerWait");
  });
  EXPECT_EQ(user.messages[0].text, "You are doing a Unit Test.\n\nDo you want to end the test?");
}

TEST_F(Tests, ADiagnosticTestThatIsLeftCountsAsEndedEarly) {
  LoadLessonWindow();
  const auto leave = [this](const std::function<void()>& step) {
    session.gDiagnosticTest = session.gDiagnosticProb = 1;
    session.gDiagnosticData[1] = {"", "Test Lesson", "1", " ", " ", ""};
    session.gDiagnosticEndedEarly = session.gLeaveLesson = 0;
    session.gActivity = activity::DiagnosticTest;
    step();
    TestLesson(plan, runs).Run();
    EXPECT_EQ(session.gLeaveLesson, 1);
    EXPECT_EQ(session.gDiagnosticEndedEarly, 1);
  };
  leave([this] { user.At("AnswerWait").Menu("mnuFileReturn"); });
  leave([this] {
    user.Answer(Answer::Yes);
    user.At("AnswerWait").CloseBox();
  });
}

TEST_F(Tests, ASeedThatIsNoNumberStopsTheProgram) {
  FillUnitTest();
  session.gChapterTestData[1][unit_test_column::Seed] = "";
  session.gActivity = activity::UnitTest;
  LoadLessonWindow();
  ExpectStop("SetUpScriptRun: seed \"\" of problem 1", [this] { TestLesson(plan, runs).Run(); });
}

}  // namespace
}  // namespace course::testing
