// A unit test from its dialog through its problems to its results, and every way out of it.
#include <algorithm>
#include <set>

#include "assessment/unit_test_results.h"
#include "journeys/assessment_fixture.h"
#include "lessons/registry.h"
#include "mathkit/draws.h"
#include "platform/form_inspection.h"
#include "records/activity_records.h"

namespace course::testing {
namespace {

using platform::Answer;
using platform::inspection::EdgesOf;

constexpr const char* kStart = "frmChapterTestStart";
constexpr const char* kResults = "frmChapterTestResults";
constexpr const char* kReview = "frmTestProbReview";

class UnitTest : public AssessmentJourney {
 protected:
  static bool Offers(int problems) {
    return FindControl("optNumProbs(" + std::to_string(problems - 1) + ")").Enabled();
  }
  static bool Chosen(int problems) {
    return dynamic_cast<platform::OptionButton&>(
               FindControl("optNumProbs(" + std::to_string(problems - 1) + ")"))
        .Value();
  }
  void ExpectNothingLeft() {
    EXPECT_FALSE(TestRunning(session));
    EXPECT_EQ(session.gChapterTestStatus, 0);
    EXPECT_EQ(session.gHideNav, kFalse);
    EXPECT_EQ(session.gProblemsAttempted, 0);
    EXPECT_EQ(frmPR, nullptr);
  }
};

TEST_F(UnitTest, OffersAsManyProblemsAsTheResultsHaveRowsFor) {
  const auto see = [this](int unit, int lessons, int most) {
    Check(kStart, [=] {
      EXPECT_EQ(CaptionOf("lblTitle"), "Unit Test");
      EXPECT_EQ(CaptionOf("lblChapterName"), session.gUnitName[unit]);
      EXPECT_EQ(CaptionOf("lblNum1"), std::to_string(lessons));
      for (int problems = 2; problems <= 4; ++problems)
        EXPECT_EQ(Offers(problems), problems <= most) << problems << " in unit " << unit;
    });
    Click(kStart, "optNumProbs(1)");
    Check(kStart, [=] {
      EXPECT_EQ(CaptionOf("lblNum2"), std::to_string(2 * lessons));
      EXPECT_TRUE(Chosen(2));
    });
    Click(kStart, "cmdCancel");
    RunUnitTest(unit);
  };
  see(11, 2, 4);
  see(5, 5, 4);
  see(4, 6, 3);
  see(7, 7, 2);
}

TEST_F(UnitTest, WantsAChoiceEachTimeAndDrawsNewProblems) {
  session.gChapterTestProbsPerLesson = 3;  // of an earlier test
  session.gChapterTestProbCount = 6;
  user.Answer(Answer::Ok);
  Click(kStart, "cmdStart");
  Check(kStart, [this] {
    EXPECT_EQ(user.messages.at(0).text,
              "You must select the number of problems from each lesson\n"
              "that will appear on the test.");
    EXPECT_EQ(user.messages.at(0).icon, platform::Icon::Warning);
    EXPECT_EQ(CaptionOf("lblNum2"), "");
    EXPECT_FALSE(Chosen(2) || Chosen(3) || Chosen(4));
  });
  Click(kStart, "optNumProbs(3)");
  Click(kStart, "optNumProbs(1)");
  user.At(kStart).Press(13);  // Enter begins
  PickBoxes("AAAA");
  Click(kResults, "cmdContinue");
  RunUnitTest(11);
  EXPECT_EQ(titles.size(), 4u);
  // The same test again asks other problems.
  const std::vector<std::string> first = runs;
  runs.clear();
  BeginUnitTest(2);
  PickBoxes("AAAA");
  Click(kResults, "cmdContinue");
  RunUnitTest(11);
  EXPECT_NE(first, runs);
}

TEST_F(UnitTest, AsksOtherProblemsAfterEveryStartOfTheProgram) {
  std::set<std::string> seeds;
  for (int start = 1; start <= 2; ++start) {
    ProblemStream() = RandomStream();
    BeginUnitTest(2);
    PickBoxes("AAAA");
    Click(kResults, "cmdContinue");
    RunUnitTest(11);
    for (int i = 1; i <= 4; ++i) seeds.insert(session.gChapterTestData[i][unit_test_column::Seed]);
  }
  EXPECT_GE(seeds.size(), 7u) << "two may meet by chance";
}

TEST_F(UnitTest, CancelCloseBoxAndEscLeaveNoTrace) {
  Click(kStart, "cmdCancel");
  RunUnitTest(11);
  ExpectNothingLeft();
  user.At(kStart).CloseBox();
  RunUnitTest(11);
  ExpectNothingLeft();
  Click(kStart, "optNumProbs(2)");
  user.At(kStart).Press(27);
  RunUnitTest(11);
  ExpectNothingLeft();
  EXPECT_TRUE(saved.empty());
  EXPECT_TRUE(titles.empty());
  Check("PageEnd", [] { EXPECT_TRUE(frmPR->fraNav.Visible()); });
  Leave("PageEnd");
  RunRow(11, 1);
}

TEST_F(UnitTest, AsksEveryLessonInItsOrderAndSavesOnce) {
  BeginUnitTest(4);
  Check("AnswerWait", [] {
    EXPECT_EQ(BannerText(), "Unit Test Problem 1");
    EXPECT_EQ(frmPR->lblTestProbNo2.Caption(), "1");
    EXPECT_FALSE(frmPR->fraNav.Visible());
    EXPECT_EQ(frmPR->form.Caption(), "Simplifying Radicals");
  });
  PickBoxes("ABAAACA");
  Check("AnswerWait", [this] {
    EXPECT_EQ(BannerText(), "Unit Test Problem 8");
    EXPECT_TRUE(saved.empty());
  });
  PickBoxes("D");
  Check(kResults, [this] {
    EXPECT_EQ(CaptionOf("lblTitle"), "Unit Test");
    EXPECT_EQ(CaptionOf("lblChapterName"), "Radicals");
    EXPECT_EQ(CaptionOf("lblPercent"), " Percent Correct: 63% (5 out of 8)");
    EXPECT_EQ(ResultRow(1), "1 A A Y");
    EXPECT_EQ(ResultRow(2), "2 A B N");
    EXPECT_EQ(ResultRow(8), "8 A D N");
    EXPECT_EQ(CaptionOf("lblLessonDesc(4)"), "Simp Radicals");
    EXPECT_EQ(CaptionOf("lblLessonDesc(5)"), "Simp Radical Expr");
    EXPECT_EQ(saved, std::vector<std::string>{"5/8"});
    EXPECT_EQ(session.gHideNav, kTrue);
  });
  Click(kResults, "cmdContinue");
  RunUnitTest(11);
  const std::vector<std::string> first(4, "Simplifying Radicals");
  EXPECT_TRUE(std::equal(first.begin(), first.end(), titles.begin()));
  EXPECT_EQ(titles.size(), 8u);
  EXPECT_EQ(std::count(titles.begin(), titles.end(), "Simplifying Radical Expressions"), 4);
  EXPECT_EQ(saved.size(), 1u);
  ExpectNothingLeft();
}

// Rows of 40 pixels; the title, not the short one, tells where a name stands.
TEST_F(UnitTest, FillsTheLeftSheetFirst) {
  const auto take = [this](int unit, const std::vector<std::pair<int, int>>& tops) {
    BeginUnitTest(2);
    PickBoxes("AAAAAAAAAAAAAA");
    Check(kResults, [tops] {
      for (int i = 1; i <= 20; ++i)
        for (const std::string name : {"lblTestProbNo", "lblLessonDesc", "lblCorrectAns",
                                       "lblYourAns", "lblIsCorrect", "cmdReview"})
          EXPECT_EQ(FindControl(name + "(" + std::to_string(i) + ")").Visible(), i <= 14)
              << name << " " << i;
      const int right = EdgesOf(FindControl("picRight")).left;
      for (int i = 1; i <= 14; ++i)
        EXPECT_EQ(EdgesOf(FindControl("lblLessonDesc(" + std::to_string(i) + ")")).left < right,
                  i <= 10)
            << i;
      for (const auto& [row, top] : tops)
        EXPECT_EQ(FindControl("lblLessonDesc(" + std::to_string(row) + ")").Top() /
                      platform::TwipsPerPixelY,
                  top)
            << row;
    });
    Click(kResults, "cmdContinue");
    RunUnitTest(unit);
  };
  // "Prime Factorization" has 19 letters.
  take(7, {{1, 14}, {10, 9 * 40 + 14}, {11, 14}, {12, 40 + 14}});
  take(3, {{1, 18}, {2, 40 + 18}, {3, 2 * 40 + 14}});  // "Like Terms" stands lower
}

TEST_F(UnitTest, EveryProblemIsReviewedAndExplained) {
  std::vector<std::string> posed;
  BeginUnitTest(2);
  for (int i = 1; i <= 4; ++i) {
    Check("AnswerWait", [&] { posed.push_back(ProblemOnScreen()); });
    PickBoxes(i == 3 ? "C" : "A");
  }
  for (const int i : {4, 3, 3}) {
    Click(kResults, "cmdReview(" + std::to_string(i) + ")");
    Check(kReview, [&, i] {
      EXPECT_EQ(ProblemOnScreen(), posed[static_cast<std::size_t>(i - 1)]);
      EXPECT_EQ(BannerText(), "Unit Test Problem " + std::to_string(i));
      EXPECT_EQ(CaptionOf("lblHeading"), "Unit Test Problem Review");
      EXPECT_EQ(CaptionOf("lblTestProbNo2"), std::to_string(i));
      EXPECT_EQ(CaptionOf("lblCorrectAns2"), "A");
      EXPECT_EQ(CaptionOf("lblYourAns2"), i == 3 ? "C" : "A");
      EXPECT_FALSE(frmPR->fraNav.Visible());
    });
    Click(kReview, "cmdContinue");
  }
  Click(kResults, "cmdReview(3)");
  Click(kReview, "cmdExplanation");
  Check("PageEnd", [] { EXPECT_EQ(BannerText(), "Explanation: Unit Test Problem 3"); });
  Click("PageEnd", "cmdNavigate(10)");  // BEGIN EXPLANATION
  Continue(2);
  Check("PageEnd", [] { EXPECT_TRUE(MistakesTold().starts_with("You chose ")); });
  Continue();
  Check(kResults, [this] {
    EXPECT_EQ(session.gChapterTestReviewNum + session.gChapterTestReviewExplain, 0);
    EXPECT_EQ(CaptionOf("lblPercent"), " Percent Correct: 75% (3 out of 4)");
  });
  Click(kResults, "cmdReview(1)");
  user.At(kReview).CloseBox();
  user.At(kResults).CloseBox();
  RunUnitTest(11);
  EXPECT_EQ(ModesOfRuns(), "10 10 10 10 11 11 11 11 12 12 11 ");
  for (const std::size_t run : {8u, 9u}) EXPECT_EQ(NumberOf(run), NumberOf(2));
  EXPECT_EQ(titles.at(9), titles.at(2));
  EXPECT_EQ(saved, std::vector<std::string>{"3/4"});
  ExpectNothingLeft();
}

TEST_F(UnitTest, AsksBeforeItEndsAndThenLeavesNothing) {
  BeginUnitTest(2);
  user.Answer(Answer::No).Answer(Answer::No).Answer(Answer::Yes);
  Leave("AnswerWait");
  Click("AnswerWait", "cmdNavigate(3)");
  PickBoxes("AAA");
  user.At("AnswerWait").CloseBox();
  RunUnitTest(11);
  EXPECT_EQ(user.messages.size(), 3u);
  EXPECT_EQ(user.messages[0].text, "You are doing a Unit Test.\n\nDo you want to end the test?");
  EXPECT_TRUE(saved.empty());
  ExpectNothingLeft();
}

TEST_F(UnitTest, TheFileMenuEndsItWithoutAQuestionAndGivesTheTabsBack) {
  BeginUnitTest(2);
  user.At("AnswerWait").Menu("mnuFileReturn");
  RunUnitTest(11);
  ExpectNothingLeft();
  BeginUnitTest(2);
  PickBoxes("A");
  user.At("AnswerWait").Menu("mnuFileRestart");
  Check("PageEnd", [] {
    EXPECT_EQ(session.gMode, mode::Lesson);
    EXPECT_TRUE(frmPR->fraNav.Visible());
    EXPECT_FALSE(frmPR->lblTestProbNo1.Visible());
  });
  Leave("PageEnd");
  RunUnitTest(11);
  ExpectNothingLeft();
  EXPECT_TRUE(user.messages.empty());
  EXPECT_TRUE(saved.empty());
}

TEST_F(UnitTest, SetsTheMarkOfItsOwnRow) {
  engineHooks.SaveTestRecord = records::SaveTestRecord;
  session.gversion = 1;
  BeginUnitTest(4);
  PickBoxes("AAAAAAAAAAAABBBBBBBB");  // 12 of 20 at 60 percent
  Check(kResults, [] { EXPECT_EQ(session.gProgressCodes[5][6], "C"); });
  Click(kResults, "cmdContinue");
  RunUnitTest(5);
  ASSERT_EQ(session.gSessionRecordCount, 1);
  EXPECT_EQ(session.gSessionRecords[0].substr(12, 10), "5506020012");
}

// The lessons of unit 10 that the course has, and the test's own in place of the others.
TEST_F(UnitTest, RunsTheLessonsOfTheCourse) {
  BeginUnitTest(2);
  PickBoxes("ABCDAB");
  Check(kResults, [] {
    const auto lesson = MakeLesson("Simple Inequalities");
    for (int i = 1; i <= 2; ++i) {
      const auto& row = session.gChapterTestData[static_cast<std::size_t>(i)];
      const int box = lesson->Draw(std::stoi(row[unit_test_column::Seed])).CorrectBox();
      EXPECT_EQ(row[unit_test_column::CorrectLetter], std::string(1, "ABCDE"[box - 1]));
    }
  });
  Click(kResults, "cmdReview(2)");
  Check(kReview, [] {
    EXPECT_EQ(platform::Form::ShownForms().back()->Caption(), "Simple Inequalities");
    EXPECT_TRUE(frmPR->picGraph2D[1].Visible());
  });
  Click(kReview, "cmdExplanation");
  Click("PageEnd", "cmdNavigate(7)");
  Click(kResults, "cmdContinue");
  RunRow(10, session.gLessonCount[10], [this](const std::string& title) {
    if (const auto lesson = MakeLesson(title)) return lesson->Run();
    plan.title = title;
    TestLesson(plan, runs).Run();
  });
  EXPECT_EQ(saved.size(), 1u);
  ExpectNothingLeft();
}

TEST_F(UnitTest, StopsAtAStageThatNeedsNoForm) {
  session.gUnitNum = 11;
  LoadLessonWindow();
  session.gChapterTestStatus = 1;
  session.gChapterTestType = 1;
  ExpectStop("Stop Point 4\ngChapterTestStatus% = 1", Chapter_Test);
  session.gChapterTestStatus = 0;
  session.gChapterTestType = 3;
  ExpectStop("Stop Point 5\ngChapterTestStatus% = 0", Chapter_Test);
  session.gChapterTestType = 2;  // ready without the dialog
  Chapter_Test();
  EXPECT_EQ(session.gChapterTest + session.gChapterTestStatus + session.gRunAgain, 3);
  EXPECT_EQ(session.gActivity, activity::UnitTest);
  EXPECT_EQ(frmPR->form.Caption(), "Unit Test - Unit 11");
  session.gChapterTestProbCount = 21;
  ExpectStop("frmChapterTestResults: the test has 21 problems", ShowUnitTestResultsForm);
}

}  // namespace
}  // namespace course::testing
