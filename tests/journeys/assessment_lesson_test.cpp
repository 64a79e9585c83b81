// A lesson test from its tab to its results, and from there to every problem and back.
#include "journeys/assessment_fixture.h"
#include "lessons/registry.h"
#include "platform/record_file.h"
#include "records/activity_records.h"
#include "records/patience.h"

namespace course::testing {
namespace {

using platform::Answer;

constexpr const char* kResults = "frmLessonTestResults";
constexpr const char* kReview = "frmTestProbReview";

class LessonTest : public AssessmentJourney {
 protected:
  static constexpr int kUnit = 10;
  static constexpr int kRow = 1;

  // The lesson on simple inequalities, as the course has it.
  void RunInequalities() {
    RunRow(kUnit, kRow, [this](const std::string&) {
      runs.push_back(std::to_string(session.gActivity));
      MakeLesson("Simple Inequalities")->Run();
    });
  }
  void ClickTab() { Click("PageEnd", "picNav(4)"); }
  // The test's own lesson, in which box A is right.
  void TakeTest(const std::string& boxes) {
    ClickTab();
    PickBoxes(boxes);
  }
  void LeaveAfterResults() {
    Click(kResults, "cmdContinue");
    Leave("PageEnd");
  }
};

// The letters of the problems' own boxes, read from the seeds.
std::string CorrectLetters() {
  std::string letters;
  const auto lesson = MakeLesson("Simple Inequalities");
  for (int i = 1; i <= kLessonTestProblems; ++i)
    letters += "ABCDE"[lesson->Draw(session.gTestSeeds[i]).CorrectBox() - 1];
  return letters;
}

TEST_F(LessonTest, OfTheCourseIsAskedGradedShownAndReviewed) {
  std::string correct;
  std::vector<std::string> posed;
  ClickTab();
  Check("AnswerWait", [&] { correct = CorrectLetters(); });
  // Steps come one at a wait: the first answer follows the look at the seeds.
  for (const char box : std::string("?ABCD")) {
    Check("AnswerWait", [&] { posed.push_back(ProblemOnScreen()); });
    user.At("AnswerWait").Do("answer, the first one rightly", [&, box] {
      FindControl("picAnswer(" + std::to_string((box == '?' ? correct[0] : box) - 'A' + 1) + ")")
          .Click();
    });
  }
  Check(kResults, [&] {
    EXPECT_EQ(CaptionOf("lblTitle"), "Lesson Test");
    EXPECT_EQ(CaptionOf("lblLessonName"), "Simple Inequalities");
    const std::string picked = std::string(1, correct[0]) + "ABCD";
    int right = 0;
    for (int i = 1; i <= 5; ++i) {
      const char shouldBe = correct[static_cast<std::size_t>(i - 1)];
      const char was = picked[static_cast<std::size_t>(i - 1)];
      right += shouldBe == was;
      EXPECT_EQ(ResultRow(i), std::to_string(i) + " " + shouldBe + " " + was +
                                  (shouldBe == was ? " Yes" : " No"));
    }
    EXPECT_EQ(CaptionOf("lblPercent"), "Percent Correct: " + std::to_string(right * 20) + "% (" +
                                           std::to_string(right) + " out of 5)");
    EXPECT_EQ(saved, std::vector<std::string>{std::to_string(right) + "/5"});
  });
  for (const int i : {5, 2, 2, 1, 4, 3}) {
    Click(kResults, "cmdReview(" + std::to_string(i) + ")");
    Check(kReview, [&, i] {
      EXPECT_EQ(ProblemOnScreen(), posed[static_cast<std::size_t>(i - 1)]);
      EXPECT_EQ(BannerText(), "Lesson Test Problem " + std::to_string(i));
      EXPECT_EQ(CaptionOf("lblHeading"), "Lesson Test Problem Review");
      EXPECT_EQ(platform::Form::ShownForms().back()->Caption(), "Simple Inequalities");
      EXPECT_EQ(frmPR->lblTestProbNo2.Caption(), std::to_string(i));
      EXPECT_FALSE(frmPR->lblSelect.Visible());
      EXPECT_FALSE(frmPR->picAnswer[1].CanBeClicked());
    });
    Click(kReview, "cmdContinue");
  }
  Click(kResults, "cmdContinue");
  Check("PageEnd", [] {
    EXPECT_EQ(session.gMode, mode::Lesson);
    EXPECT_EQ(session.gScreenNum, 1);
    EXPECT_EQ(session.gLessonTest + session.gLessonTestProb, 0);
    EXPECT_TRUE(frmPR->fraNav.Visible());
  });
  Leave("PageEnd");
  RunInequalities();
  EXPECT_EQ(saved.size(), 1u);
}

TEST_F(LessonTest, AReviewShowsTheLettersAndLeadsToTheExplanationAndBack) {
  TakeTest("ABAAC");
  std::string results;
  const auto read = [] {
    std::string text = CaptionOf("lblPercent");
    for (int i = 1; i <= 5; ++i) text += "\n" + ResultRow(i);
    return text;
  };
  Check(kResults, [&] { results = read(); });
  Click(kResults, "cmdReview(2)");
  Check(kReview, [] {
    EXPECT_EQ(CaptionOf("lblTestProbNo1") + CaptionOf("lblTestProbNo2"), "Test Problem No.:2");
    EXPECT_EQ(CaptionOf("lblCorrectAns1") + CaptionOf("lblCorrectAns2"), "Correct Answer:A");
    EXPECT_EQ(CaptionOf("lblYourAns1") + CaptionOf("lblYourAns2"), "Your Answer:B");
  });
  Click(kReview, "cmdExplanation");
  Check("PageEnd", [] { EXPECT_EQ(BannerText(), "Explanation: Lesson Test Problem 2"); });
  Continue();
  Click("PageEnd", "cmdNavigate(10)");  // BEGIN EXPLANATION
  Continue(2);
  Check("PageEnd", [] { EXPECT_TRUE(MistakesTold().starts_with("You chose ")); });
  Continue();  // to its end
  Check(kResults, [&] {
    EXPECT_EQ(read(), results);
    EXPECT_EQ(session.gLessonTestReviewNum + session.gLessonTestReviewExplain, 0);
  });
  Click(kResults, "cmdReview(5)");
  Click(kReview, "cmdExplanation");
  Click("PageEnd", "cmdNavigate(7)");  // END EXPLANATION
  LeaveAfterResults();
  RunRow(kUnit, kRow);
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 6 6 7 8 8 7 8 screen 1 ");
  for (const std::size_t run : {6u, 7u, 8u}) EXPECT_EQ(NumberOf(run), NumberOf(2));
  EXPECT_EQ(NumberOf(10), NumberOf(5));
  EXPECT_EQ(saved, std::vector<std::string>{"3/5"});
}

TEST_F(LessonTest, CloseBoxAndEscContinue) {
  TakeTest("AAAAA");
  for (int i = 0; i < 2; ++i) {
    Click(kResults, "cmdReview(1)");
    i == 0 ? user.At(kReview).CloseBox() : user.At(kReview).Press(27);
  }
  user.At(kResults).CloseBox();
  TakeTest("AAAAA");
  user.At(kResults).Press(27);
  Leave("PageEnd");
  RunRow(kUnit, kRow);
  EXPECT_EQ(ModesOfRuns(), "screen 1 6 6 6 6 6 7 7 screen 1 6 6 6 6 6 screen 1 ");
  EXPECT_NE(NumberOf(1), NumberOf(9)) << "a test taken again has problems of its own";
  EXPECT_EQ(saved.size(), 2u);
  EXPECT_TRUE(user.messages.empty());
}

TEST_F(LessonTest, EndedEarlyLeavesNothingBehind) {
  TakeTest("AAAA");
  user.Answer(Answer::No).Answer(Answer::Yes);
  Click("AnswerWait", "picNav(2)");
  Leave("AnswerWait");
  RunRow(kUnit, kRow);
  EXPECT_TRUE(saved.empty());
  EXPECT_EQ(session.gProblemsAttempted, 0);
  EXPECT_EQ(user.messages.back().text,
            "You are doing a Lesson Test.\n\nDo you want to end the test?");
  EXPECT_EQ(user.messages.back().buttons, platform::Buttons::YesNo);
  EXPECT_FALSE(TestRunning(session));
}

TEST_F(LessonTest, LeftInTheMiddleOfAnExplanationKeepsItsRecord) {
  TakeTest("AAAAB");
  Click(kResults, "cmdReview(5)");
  Click(kReview, "cmdExplanation");
  user.Answer(Answer::Yes);
  Leave("PageEnd");
  RunRow(kUnit, kRow);
  EXPECT_EQ(saved, std::vector<std::string>{"4/5"});
  EXPECT_FALSE(TestRunning(session));
  EXPECT_EQ(session.gLessonTestReviewNum + session.gLessonTestReviewExplain, 0);
}

// Without a login the file is left alone: entry and mark are those of this run of the program.
TEST_F(LessonTest, SetsTheMarkByTheLastTest) {
  engineHooks.SaveTestRecord = records::SaveTestRecord;
  session.gversion = 1;
  std::vector<std::string> marks;
  const auto look = [&] {
    marks.push_back(session.gProgressCodes[kUnit][kRow]);
    EXPECT_EQ(session.gProblemsAttempted + session.gProblemsCorrect, 0);
  };
  for (const std::string boxes : {"AAABB", "AABBB"}) {
    TakeTest(boxes);
    Check(kResults, look);
    Click(kResults, "cmdContinue");
  }
  Leave("PageEnd");
  RunRow(kUnit, kRow);
  EXPECT_EQ(marks, (std::vector<std::string>{"C", "T"}));
  ASSERT_EQ(session.gSessionRecordCount, 2);
  EXPECT_EQ(session.gSessionRecords[0].substr(12, 10), "1051005003");
  EXPECT_EQ(session.gSessionRecords[1].substr(12, 10), "1051005002");
  EXPECT_EQ(session.gSessionRecords[0][25], 'T');
}

TEST_F(LessonTest, AReviewOutsideATestStopsTheProgram) {
  ExpectStop("frmTestProbReview: neither gLessonTest% nor gChapterTest% is 1",
             [] { engineHooks.ShowTestProbReview(); });
}

// A file is held by somebody else for three attempts, and the student wants to leave meanwhile.
class LeavingDuringASave : public AssessmentJourney {
 protected:
  static constexpr int kUnit = 10;

  void SetUp() override {
    AssessmentJourney::SetUp();
    const auto save = [this] {
      if (session.gProblemsAttempted == 0) return;
      int attempts = 0;
      user.OnPause = [this](double) {
        clock.Advance(60);  // the question stands open for longer than a save is tried
        EXPECT_TRUE(frmPR->form.Press(27));
      };
      EXPECT_FALSE(TryFor45Seconds([&] {
        if (++attempts < 2) throw platform::FileError(EAGAIN, "The file is in use");
      }));
      user.OnPause = nullptr;
      saved.push_back(std::to_string(session.gProblemsAttempted));
      session.gProblemsAttempted = 0;
    };
    engineHooks.SavePracticeRecord = save;
    engineHooks.SaveTestRecord = save;
    user.Answer(Answer::Yes);  // to "Do you want to end the test?"
  }
  using Answer = platform::Answer;
};

TEST_F(LeavingDuringASave, OnTheWayFromPracticeToTheTestLeaves) {
  Click("PageEnd", "picNav(3)");
  AssessmentJourney::Answer("picAnswer(1)", kDifferent);
  Click("AnswerWait", "picNav(4)");
  RunRow(kUnit, 1);
  EXPECT_EQ(saved, std::vector<std::string>{"1"});
  EXPECT_EQ(user.messages.size(), 1u);
  EXPECT_EQ(runs.back().substr(0, 2), "2:") << "nothing runs behind the save";
}

TEST_F(LeavingDuringASave, BehindTheLastAnswerOfATestLeaves) {
  Click("PageEnd", "picNav(4)");
  PickBoxes("AAAAA");
  RunRow(kUnit, 1);
  EXPECT_EQ(saved, std::vector<std::string>{"5"});
  EXPECT_EQ(user.messages.size(), 1u);
  EXPECT_EQ(runs.size(), 6u) << "a screen and five problems";
  EXPECT_EQ(session.gLessonTest, 0);
}

TEST_F(LeavingDuringASave, BehindTheLastAnswerOfAUnitTestLeaves) {
  BeginUnitTest(2);
  PickBoxes("AAAAAA");
  RunUnitTest(kUnit);
  EXPECT_EQ(saved, std::vector<std::string>{"6"});
  EXPECT_EQ(titles.size(), 6u);
  EXPECT_EQ(session.gChapterTest, 0);
}

}  // namespace
}  // namespace course::testing
