#include "display/lesson_window.h"
#include "engine/hooks.h"
#include "session/catalogue.h"
#include "session/session.h"
#include "shell/dispatcher.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

// The loop with scripts that only note that they ran.
class DispatcherTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    engineHooks = EngineHooks{};
    FillCourseTables();
    calls.EnableMenu = [this](bool enabled) {
      EXPECT_NE(frmPR, nullptr) << "one of the two windows always takes the keyboard";
      log.push_back(enabled ? "menu on" : "menu off");
    };
    calls.RefreshProgress = [this] { log.push_back("marks"); };
    calls.RunScript = [this](const std::string& title) { log.push_back(title); };
    engineHooks.SavePracticeRecord = [this] { log.push_back("save"); };
  }
  void TearDown() override {
    engineHooks = EngineHooks{};
    EXPECT_EQ(frmPR, nullptr);
    CourseTest::TearDown();
  }
  void Run(const std::string& title, int unit = 2, int row = 1) {
    RunLesson({.title = title, .unit = unit, .row = row}, calls);
  }
  // A unit test of two problems a lesson, answered to the end.
  void AnswerUnitTest() {
    calls.Chapter_Test = [this] {
      log.push_back("test stage " + std::to_string(session.gChapterTestStatus));
      EXPECT_EQ(session.gHideNav, kTrue);
      if (session.gChapterTestStatus == 0) {
        session.gChapterTestLessonCount = session.gLessonCount[session.gUnitNum] - 1;
        session.gChapterTestProbsPerLesson = 2;
        session.gChapterTestStatus = 1;
        session.gRunAgain = 1;
      } else {
        session.gChapterTest = 0;
      }
    };
    calls.RunScript = [this](const std::string& title) {
      log.push_back(title);
      EXPECT_EQ(session.gHideNav, kTrue);
      if (++session.gChapterTestProb > 6) session.gChapterTestStatus = 3;
      session.gRunAgain = 1;
    };
  }

  LessonCalls calls;
  std::vector<std::string> log;
};

using Log = std::vector<std::string>;

TEST_F(DispatcherTest, RunsAScriptForAsLongAsItIsWanted) {
  int runs = 0;
  calls.RunScript = [&](const std::string&) {
    EXPECT_EQ(session.gRunAgain, 0);
    EXPECT_EQ(session.gChoiceCount, 0);
    EXPECT_EQ(session.gInDelay, 0);
    EXPECT_FALSE(frmPR->picAnswer[5].Visible());
    EXPECT_FALSE(frmPR->lblSelect.Visible());
    EXPECT_EQ(frmPR->lessonText.Transcript().size(), 0u);
    log.push_back("run");
    session.gRunAgain = ++runs < 3 ? 1 : 0;
    session.gLeaveLesson = 1;  // unwinds the script; it does not end the loop
    session.gChoiceCount = 5;
    session.gInDelay = 1;
    frmPR->picAnswer[5].SetVisible(true);
    frmPR->lblSelect.SetVisible(true);
    frmPR->lessonText.TextOut("left over");
  };
  Run("Properties of Addition");
  EXPECT_EQ(log, (Log{"menu off", "run", "run", "run", "save", "marks", "menu on"}));
}

TEST_F(DispatcherTest, StartsEveryLessonAfresh) {
  clock.secondsSinceMidnight = 3600.6;
  session.gMode = 9;
  session.gActivity = 3;
  session.gLastActivity = "3";
  session.gScreenNum = 2;
  session.gRetryProblem = 1;
  session.gRepeatExample = session.gRepeatProblem = session.gExplainProblem = 1;
  session.gProblemsAttempted = session.gProblemsCorrect = 7;
  session.gHasRules = session.gRulesShown = session.gHideNav = kTrue;
  session.gScratchFlag = session.gDrawnPointCount = session.gExampleRunLength = 1;
  calls.RunScript = [](const std::string&) {
    EXPECT_EQ(session.gMode, 0);
    EXPECT_EQ(session.gActivity, 0);
    EXPECT_EQ(session.gLastActivity, "");
    EXPECT_EQ(session.gScreenNum, 0);
    EXPECT_EQ(session.gRetryProblem, 0);
    EXPECT_EQ(session.gRepeatExample + session.gRepeatProblem + session.gExplainProblem, 0);
    EXPECT_EQ(session.gProblemsAttempted + session.gProblemsCorrect, 0);
    EXPECT_EQ(session.gHasRules | session.gRulesShown | session.gHideNav, kFalse);
    EXPECT_EQ(session.gScratchFlag + session.gDrawnPointCount + session.gExampleRunLength, 0);
    EXPECT_EQ(session.gUnitNum, 7);
    EXPECT_EQ(session.gLessonNum, 3);
    EXPECT_EQ(session.gLessonStartTime, 3601);
  };
  Run("Trinomials of the Form x\xB2+bx+c", 7, 3);
}

TEST_F(DispatcherTest, RunsAUnitTestFromItsFormToItsResults) {
  AnswerUnitTest();
  Run("Unit Test", 2, 4);
  EXPECT_EQ(log, (Log{"menu off", "test stage 0", "Properties of Addition",
                      "Properties of Addition", "Properties of Multiplication",
                      "Properties of Multiplication", "The Distributive Property",
                      "The Distributive Property", "test stage 3", "save", "marks", "menu on"}));
  for (int row = 1; row <= 6; ++row) {
    const auto& columns = session.gChapterTestData[row];
    const int seed = std::stoi(columns[unit_test_column::Seed]);
    EXPECT_TRUE(seed >= 0 && seed <= 32766) << seed;
    EXPECT_EQ(columns[unit_test_column::ShortTitle], session.gLessonShortTitle[2][(row + 1) / 2]);
  }
  EXPECT_EQ(session.gHideNav, kFalse);
}

TEST_F(DispatcherTest, ShowsTheProblemUnderReview) {
  AnswerUnitTest();
  calls.RunScript = [this](const std::string& title) {
    log.push_back(title);
    // In place of the answers: the results are in, and the fifth problem is looked at.
    session.gChapterTestReviewNum = session.gChapterTestReviewNum == 0 ? 5 : 0;
    session.gChapterTestStatus = 3;
    session.gRunAgain = 1;
  };
  Run("Unit Test", 2, 4);
  EXPECT_EQ(log, (Log{"menu off", "test stage 0", "Properties of Addition",
                      "The Distributive Property", "test stage 3", "save", "marks", "menu on"}));
}

TEST_F(DispatcherTest, LeavesNoTestBehindWhenAScriptIsMissing) {
  Run("Unit Test", 2, 4);
  EXPECT_EQ(session.gChapterTest, 0);
  EXPECT_EQ(session.gHideNav, kFalse);

  AnswerUnitTest();
  calls.RunScript = nullptr;
  Run("UNIT TEST", 2, 4);
  EXPECT_EQ(session.gChapterTest, 0);
  EXPECT_EQ(session.gChapterTestStatus, 0);
  EXPECT_EQ(session.gHideNav, kFalse);
}

TEST_F(DispatcherTest, RunsTheDiagnosticTestOverAllItsProblems) {
  session.gDiagnosticTest = 1;
  session.gDiagnosticProb = 1;
  session.gDiagnosticStatus = 2;  // of the test before
  std::vector<std::string> titles;
  calls.RunScript = [&](const std::string& title) {
    EXPECT_EQ(frmPR->cmdNavigate[3].Caption(), "End Diagnostic Test");
    EXPECT_EQ(session.gActivity, activity::DiagnosticTest);
    EXPECT_EQ(session.gHideNav, kTrue);
    titles.push_back(title);
    if (++session.gDiagnosticProb > session.gDiagnosticProbCount) session.gDiagnosticStatus = 2;
    session.gRunAgain = 1;
  };
  Run("Properties of Addition", 2, 1);
  ASSERT_EQ(titles.size(), 30u);
  EXPECT_EQ(titles.front(), "ADDING WHOLE NUMBERS");
  EXPECT_EQ(titles.back(), "MULTIPLYING WITH EXPONENTS");
  EXPECT_EQ(session.gUnitNum, 2);
  EXPECT_EQ(session.gLessonNum, 1);
}

TEST_F(DispatcherTest, StopsAtAnUnknownStageWithTheWindowClosed) {
  calls.Chapter_Test = [] {
    session.gChapterTestStatus = 7;
    session.gRunAgain = 1;
  };
  ExpectStop("RunLesson: gChapterTestStatus% = 7", [&] { Run("Unit Test", 2, 4); });
  EXPECT_EQ(log, (Log{"menu off", "menu on"}));

  session = Session{};
  FillCourseTables();
  session.gDiagnosticTest = 1;
  session.gDiagnosticProb = 1;
  calls.RunScript = [](const std::string&) {
    session.gDiagnosticStatus = -1;
    session.gRunAgain = 1;
  };
  ExpectStop("RunLesson: gDiagnosticStatus% = -1", [&] { Run("Properties of Addition"); });
}

TEST_F(DispatcherTest, RunsTheWritersGuide) {
  session.gShowDocumentation = kTrue;
  calls.Docs = [this] { log.push_back("guide"); };
  Run("Properties of Addition");
  EXPECT_EQ(log, (Log{"menu off", "guide", "save", "marks", "menu on"}));
}

}  // namespace
}  // namespace course::testing
