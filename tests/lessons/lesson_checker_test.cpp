// The checker must find what it is there for: each test hands it a lesson, a report or a worker
// with one fault.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "engine/answers.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lesson_check/check_state.h"
#include "lesson_check/lesson_check.h"
#include "lesson_check/not_yet.h"
#include "lesson_check/pages/page_check.h"
#include "lesson_check/pages/page_layout.h"
#include "lesson_check/problem_check.h"
#include "lesson_check/workers.h"
#include "lessons/registry.h"
#include "mathkit/expressions.h"
#include "platform/stop.h"
#include "session/session.h"
#include "support/scratch_folder.h"

namespace lesson_check {
namespace {

using ::testing::Test;
using Faults = std::vector<std::string>;

// 2 + N, with the faults that a test asks for.
class FaultyLesson final : public course::LessonScript {
 public:
  struct Faults {
    int extraDraws = 0;            // random numbers thrown away
    bool remembers = false;        // the draw depends on the one before
    bool endsElsewhere = false;    // the explanation ends at another number
    bool explainsAnother = false;  // or at another problem
    bool hidesQuestion = false;
    bool stops = false;
  };
  explicit FaultyLesson(Faults faults) : LessonScript("Blank Lesson"), faults_(faults) {}

 private:
  std::vector<Screen> Screens() override {
    return {{[] {
      course::NewScreen();
      course::Locate(24, 1);
      course::isPrint("below the grid");
      course::PageEnd();
    }}};
  }
  void DrawProblem(course::RandomStream& random) override {
    if (faults_.stops) platform::Stop("FaultyLesson: stopped");
    for (int i = 0; i < faults_.extraDraws; ++i) random.Rnd();
    second_ = random.Rand(20, 90) + (faults_.remembers ? ++drawn_ : 0);
    problem.question = {"What is 2 + " + course::NumStr(second_) + "?"};
    for (int slot = 2; slot <= 4; ++slot)
      problem.Wrong(slot, kFiller, course::NumStr(second_ - slot));
    problem.Right(1, course::NumStr(second_ + 2));
  }
  void ShowProblem() override {
    course::Locate(6, 1);
    course::isPrint(faults_.hidesQuestion ? "What is it?" : problem.question[0]);
    course::picAnswerSetParameters(2, 10, 1, 21, 0, 16, 50, 27);
  }
  void ExplainProblem() override {
    course::ProblemBanner();
    course::Locate(5, 1);
    const int second = faults_.explainsAnother ? 100 : second_;
    course::isPrint("2 + " + course::NumStr(second) + " is");
    course::PageEnd();
    course::isPrint(faults_.endsElsewhere ? "1" + problem.choices[1].text
                                          : problem.choices[1].text);
  }

  Faults faults_;
  int second_ = 0;
  int drawn_ = 0;
};

class LessonCheckTest : public Test {
 protected:
  void TearDown() override { course::session = course::Session{}; }

  static MakeScript Make(FaultyLesson::Faults faults) {
    return [faults] { return std::make_unique<FaultyLesson>(faults); };
  }
  static std::vector<std::string> FaultsIn(const Report& report) {
    std::vector<std::string> faults;
    for (const Finding& finding : report.findings) faults.push_back(finding.fault);
    return faults;
  }
};

TEST_F(LessonCheckTest, WithoutAFaultNothingIsFound) {
  EXPECT_EQ(FaultsIn(CheckDrawing(Make({}), {0, 20})), Faults{});
  EXPECT_EQ(FaultsIn(CheckPages(Make({}), {0, 4})), Faults{});
}

TEST_F(LessonCheckTest, ASecondDrawThatDiffersIsFound) {
  int made = 0;
  const Report report = CheckDrawing(
      [&] {
        return std::make_unique<FaultyLesson>(FaultyLesson::Faults{.remembers = made++ == 0});
      },
      {0, 0});
  EXPECT_EQ(FaultsIn(report), Faults{"a second draw gives another problem"});
}

TEST_F(LessonCheckTest, TooManyRejectedDrawsAreFound) {
  Report few = CheckDrawing(Make({.extraDraws = 900}), {0, 9});
  CheckAcceptance(few);
  EXPECT_EQ(few.faults, 0);
  Report many = CheckDrawing(Make({.extraDraws = 1100}), {0, 9});
  CheckAcceptance(many);
  ASSERT_EQ(many.faults, 1);
  EXPECT_EQ(many.findings[0].seed, kNoSeed);
}

TEST_F(LessonCheckTest, ASlowDrawIsFound) {
  const Report report = CheckDrawing(Make({.extraDraws = 20'000'000}), {0, 0});
  ASSERT_EQ(report.faults, 1);
  EXPECT_EQ(report.findings[0].fault.substr(0, 13), "the draw took");
}

TEST_F(LessonCheckTest, AnExplanationThatEndsElsewhereIsFound) {
  const Report report = CheckPages(Make({.endsElsewhere = true}), {1, 1});
  ASSERT_EQ(report.faults, 1);
  EXPECT_EQ(report.findings[0].fault.substr(0, 31), "explanation: it does not end at");
}

TEST_F(LessonCheckTest, AnExplanationOfAnotherProblemIsFound) {
  const Report report = CheckPages(Make({.explainsAnother = true}), {1, 1});
  ASSERT_EQ(report.faults, 1);
  EXPECT_EQ(report.findings[0].fault.substr(0, 35), "explanation: the question's number ");
}

TEST_F(LessonCheckTest, AQuestionThatIsNotShownIsFound) {
  const Report report = CheckPages(Make({.hidesQuestion = true}), {1, 1});
  ASSERT_EQ(report.faults, 1);
  EXPECT_EQ(report.findings[0].fault.substr(0, 31), "problem: the page does not show");
}

TEST_F(LessonCheckTest, AReviewOfAnotherProblemIsFound) {
  const Report report = CheckPages(Make({.remembers = true}), {1, 1});  // its third way is a review
  const Faults faults = FaultsIn(report);
  const std::string other = "review in a lesson test: it is not the page of the practice problem";
  EXPECT_EQ(std::ranges::count(faults, other), 1);
}

TEST_F(LessonCheckTest, ATeachingPageOutsideTheGridIsFound) {
  EXPECT_EQ(
      FaultsIn(CheckTeaching(Make({}))),
      Faults{
          "teaching, page 1: text outside the grid: \"below the grid\" at row 24.0, column 1.0"});
}

TEST_F(LessonCheckTest, AnAuthorsErrorIsAFaultOfItsProblem) {
  EXPECT_EQ(FaultsIn(CheckDrawing(Make({.stops = true}), {7, 7})),
            Faults{"the draw stops the program: FaultyLesson: stopped"});
}

TEST_F(LessonCheckTest, AReportSurvivesItsWayThroughAPipe) {
  Report report = CheckDrawing(Make({.extraDraws = 1}), {0, 5});
  report.Add(3, "a fault: \"x\" and more");
  report.Add(kNoSeed, "another");
  report.tally.mistakes["a name with blanks"] = {5, 2};
  report.tally.kinds["0 + 0"] = 3;
  const Report read = Report::FromText(report.Text());
  EXPECT_EQ(read.Text(), report.Text());
  EXPECT_EQ(read.findings.at(0).fault, "a fault: \"x\" and more");
  EXPECT_EQ(read.tally.mistakes.at("a name with blanks").derived, 2);
}

TEST_F(LessonCheckTest, UnpaintedPagesReadAsPaintedOnes) {
  const auto lesson = course::MakeLesson("Solving Systems by Graphing");
  const auto read = [&](WindowLook look) {
    PageReader reader(look);
    std::vector<std::vector<std::string>> pages;
    reader.Read(*lesson, course::mode::Explanation, 17, [&] {
      const PageText page = ReadPage(*course::frmPR);
      pages.push_back(page.lines);
      pages.push_back(PageLayout().FaultsOf(*course::frmPR));
    });
    return pages;
  };
  const auto painted = read(WindowLook::Shown);
  EXPECT_GT(painted.size(), 20u);
  EXPECT_EQ(read(WindowLook::Hidden), painted);
}

TEST(CheckStateTest, APieceOnceDoneIsKeptAndAStopLosesTheUnfinishedOneOnly) {
  const course::testing::ScratchFolder folder;
  const std::string path = folder.Path() + "check.state";
  Report report;
  report.problems = 8192;
  report.Add(5, "a fault");
  {
    CheckState state(path);
    EXPECT_EQ(state.Find("A#0-8191"), nullptr);
    state.Keep("A#0-8191", report);
    state.Keep("A#8192-16383", report);
  }
  std::filesystem::resize_file(path, std::filesystem::file_size(path) - 3);
  const CheckState state(path);
  EXPECT_EQ(state.Find("A#8192-16383"), nullptr);
  ASSERT_NE(state.Find("A#0-8191"), nullptr);
  EXPECT_EQ(state.Find("A#0-8191")->Text(), report.Text());
  std::ofstream(path) << "check of another program\nA#0-8191\n3\n1 2";
  EXPECT_EQ(CheckState(path).Find("A#0-8191"), nullptr);
}

TEST(WorkersTest, SharesAreAddedUp) {
  long last = 0;
  const Report report = ShareOut(
      3,
      [](const Share& share, const std::function<void(int)>& tick) {
        Report part;
        for (int piece = share.number; piece < 10; piece += share.count) {
          ++part.problems;
          tick(piece);
        }
        return part;
      },
      [&](long done) { last = done; });
  EXPECT_EQ(report.problems, 10);
  EXPECT_EQ(last, 10);
}

TEST(WorkersTest, AProcessThatDiesIsAFaultOfItsPiece) {
  const Report report = ShareOut(
      2,
      [](const Share& share, const std::function<void(int)>& tick) {
        tick(share.number);
        if (share.number == 1) std::_Exit(3);
        return Report{};
      },
      [](long) {});
  ASSERT_EQ(report.faults, 1);
  EXPECT_EQ(report.findings[0].seed, 3);  // behind 1, of two shares
  EXPECT_EQ(report.findings[0].fault, "the checking process ended with status 3");
}

TEST(NotYet, KnownFaultsArePardonedUntilTheyAreGone) {
  Report report;
  for (int seed = 0; seed < 20; ++seed) report.Add(seed, "explanation, page 3: red on blue \"x\"");
  report.Add(7, "\"2\" is not right");
  const NotYet notYet = {{"A Lesson", {"red on blue", "an exclamation mark"}}};
  Report other = Report::FromText(report.Text());
  Pardon(notYet, "Another Lesson", true, other);
  EXPECT_EQ(other.faults, 21);
  Pardon(notYet, "A Lesson", true, report);
  EXPECT_EQ(report.faults, 2);
  ASSERT_EQ(report.findings.size(), 2u);
  EXPECT_EQ(report.findings[0].fault, "\"2\" is not right");
  EXPECT_TRUE(report.findings[1].fault.starts_with("is listed as not yet brought over"));
}

}  // namespace
}  // namespace lesson_check
