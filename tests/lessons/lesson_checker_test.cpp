// The checker must find what it is there for: each test hands it a lesson, a problem or a page with
// one fault.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "display/stacked_text.h"
#include "engine/answers.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lesson_check/check_state.h"
#include "lesson_check/lesson_check.h"
#include "lesson_check/not_yet.h"
#include "lesson_check/pages/mistakes_check.h"
#include "lesson_check/pages/page_check.h"
#include "lesson_check/pages/page_layout.h"
#include "lesson_check/pages/page_style.h"
#include "lesson_check/problem_check.h"
#include "lesson_check/workers.h"
#include "lessons/registry.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"
#include "session/session.h"
#include "support/scratch_folder.h"

namespace lesson_check {
namespace {

using course::Problem;
using ::testing::Test;
namespace choice_kind = course::choice_kind;

// 1/2 + 1/4, without a fault.
Problem SumOfFractions() {
  Problem problem;
  problem.question = {"What is 1/2 + 1/4?"};
  problem.kind = choice_kind::FourShuffled;
  problem.Right(1, "3/4");
  problem.Wrong(2, kFiller, "2/7");
  problem.Wrong(3, kFiller, "1/8");
  problem.Wrong(4, kFiller, "5/4");
  return problem;
}

using Faults = std::vector<std::string>;

// --- Lessons -------------------------------------------------------------------------------------

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

// --- Pages ---------------------------------------------------------------------------------------

class PageLayoutTest : public Test {
 protected:
  void SetUp() override { course::ResetScreen(); }
  void TearDown() override { course::session = course::Session{}; }

  static void Print(double row, double col, const std::string& text) {
    course::Locate(row, col);
    course::isPrint(text);
  }
  static std::vector<std::string> Found() { return PageLayout().FaultsOf(*course::frmPR); }

  PageReader reader_;
};

TEST_F(PageLayoutTest, APageOfLinesFractionsAndColoursHasNoFault) {
  for (int row = 2; row <= 23; ++row) Print(row, 1, std::string(40, 'x'));
  course::frmPR->lessonText.Cls();
  course::Locate(5, 1);
  course::isPrintStackedText("x = 3/4 - 1/12");
  Print(8, 3, "a word in white");
  course::Locate(8, 5);
  course::isColorPrint("word", platform::colour::Yellow);
  EXPECT_EQ(Found(), Faults{});
}

TEST_F(PageLayoutTest, AWordThatIsPrintedOverInPartIsFound) {
  Print(5, 3, "abcde fgh");
  Print(5, 5, "xyz");
  EXPECT_EQ(Found(), Faults{"of a word that was printed over there still stands \"ab\" at row 5.0, "
                            "column 3.0"});
  Print(5, 1, "a longer line");
  EXPECT_EQ(Found(), Faults{});
}

TEST_F(PageLayoutTest, AFractionIsOneThingOfItsOwnSize) {
  const auto fraction = [](double row, double col, const std::string& text) {
    course::Locate(row, col);
    course::isPrintStackedText(text);
  };
  fraction(5, 5, "12/345");
  fraction(5, 5, "\\y12\\z/345");  // another colour
  Print(5, 8, "x");
  Print(7, 5, "abc");
  EXPECT_EQ(Found(), Faults{});
  Print(6.3, 7, "d");
  EXPECT_EQ(Found(), Faults{"\"d\" over \"12/345\" at row 6.3, column 7.0"});
  course::frmPR->lessonText.Cls();
  fraction(5, 5, "12/345");
  fraction(5, 4, "67/8");
  EXPECT_EQ(Found(), Faults{"\"67/8\" over \"12/345\" at row 5.0, column 4.0"});
}

TEST_F(PageLayoutTest, TextBetweenRowsLiesOverTheirs) {
  Print(5, 3, "abc");
  Print(5.5, 4, "x yz");
  EXPECT_EQ(Found(), Faults{"\"x\" over \"b\" at row 5.5, column 4.0"});
}

TEST_F(PageLayoutTest, BlanksEraseWhatStoodThere) {
  Print(5, 3, "abc");
  Print(5, 3, "   ");
  Print(5, 3, "xyz");
  EXPECT_EQ(Found(), Faults{});
}

TEST_F(PageLayoutTest, TextOutsideTheGridIsFound) {
  Print(24, 1, "too low");
  course::Locate(3, 39);
  course::frmPR->lessonText.TextOut("wide");
  EXPECT_EQ(Found().size(), 2u);
}

TEST_F(PageLayoutTest, TextUnderABoxIsFound) {
  Print(5, 1, "under the figure");
  platform::PictureBox& figure = course::frmPR->picGraph2D[1];
  const platform::PictureBox& lesson = course::frmPR->pnlLesson;
  figure.Move(lesson.Left() + 100 * 15, lesson.Top() + 70 * 15, 100 * 15, 60 * 15);
  EXPECT_EQ(Found(), Faults{});  // hidden
  figure.SetVisible(true);
  EXPECT_EQ(Found(), Faults{"text under picGraph2D(1): \"thefi\""});
}

TEST_F(PageLayoutTest, TextWiderThanItsAnswerBoxIsFound) {
  Problem problem = SumOfFractions();
  course::picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27);
  course::AnswerChoicesShow(problem);
  EXPECT_EQ(Found(), Faults{});
  problem.choices[2].text = "2/6 of all there is";
  problem.kind = choice_kind::FourInOrderAndNone;
  course::AnswerChoicesShow(problem);
  EXPECT_EQ(Found(), Faults{"text outside picAnswer(2): \"2/6 of all there is\" at row 1.5, "
                            "column 4.4"});
}

TEST_F(PageLayoutTest, AnswerBoxesOverEachOtherAndOutsideThePanelAreFound) {
  const Problem problem = SumOfFractions();
  course::picAnswerSetParameters(2, 20, 1, 12, 0, 16, 50, 90);
  course::AnswerChoicesShow(problem);
  EXPECT_EQ(Found(), (Faults{"picAnswer(3) reaches out of the lesson panel",
                             "picAnswer(4) reaches out of the lesson panel",
                             "picAnswer(1) and picAnswer(2) lie over each other",
                             "picAnswer(3) and picAnswer(4) lie over each other"}));
}

TEST_F(PageLayoutTest, AnyTwoBoxesThatOverlapAreFound) {
  const platform::PictureBox& lesson = course::frmPR->pnlLesson;
  platform::PictureBox& note = course::frmPR->picNotes[1];
  platform::PictureBox& image = course::frmPR->picGalleryImage[2];
  note.Move(lesson.Left() + 100 * 15, lesson.Top() + 100 * 15, 100 * 15, 60 * 15);
  image.Move(lesson.Left() + 190 * 15, lesson.Top() + 150 * 15, 100 * 15, 60 * 15);
  note.SetVisible(true);
  EXPECT_EQ(Found(), Faults{});
  image.SetVisible(true);
  EXPECT_EQ(Found(), Faults{"picGalleryImage(2) and picNotes(1) lie over each other"});
  Print(6, 8, "note");
  EXPECT_EQ(Found().size(), 2u);
}

// --- Style ---------------------------------------------------------------------------------------

class PageStyleTest : public PageLayoutTest {
 protected:
  std::vector<std::string> Style() { return style_.FaultsOf(*course::frmPR); }
  static void PrintIn(platform::Colour colour, double row, double col, const std::string& text) {
    course::Locate(row, col);
    course::isColorPrint(text, colour);
  }

  PageStyle style_;
};

TEST_F(PageStyleTest, MoreThanFourNewLinesAreFound) {
  for (int row = 5; row <= 8; ++row) Print(row, 1, "line " + std::to_string(row));
  Print(3, 1, "Line 1:  2x + y = 5");  // the question's
  Print(9.3, 1, "3");
  style_.Begin({"2x + y = 5"});
  EXPECT_EQ(Style(), Faults{"more than four new lines: 5"});
  EXPECT_EQ(Style(), Faults{});  // nothing new
  for (int row = 11; row <= 14; ++row) Print(row, 1, "again " + std::to_string(row));
  Print(13.3, 12, "1");  // part of a line that is built up
  Print(12.7, 12, "2");
  EXPECT_EQ(Style(), Faults{});
}

TEST_F(PageStyleTest, ColoursAndProseAreJudged) {
  using namespace platform::colour;
  struct Row {
    std::vector<std::pair<platform::Colour, const char*>> parts;
    const char* fault;
  };
  const std::string dot = course::tutor::Dot;
  const std::string dotted = "3" + dot + "5";
  const std::string fine = "3 " + dot + " 5 = 1.5, 2" + dot + "(3)";
  const Row rows[] = {
      {{{White, "one "}, {Yellow, "two"}}, ""},
      {{{White, "one "}, {Yellow, "two "}, {Cyan, "three"}}, "more than two colours in a line"},
      {{{Red, "wrong"}}, "red on blue"},
      {{{White, "The answer is: "}, {Red, "5"}}, ""},
      {{{White, "This is so. Then"}}, "one blank behind a full stop"},
      {{{White, "This is so.  Then, 2. or 3."}}, ""},
      {{{White, "2. Divide both sides."}}, ""},
      {{{White, "Good!"}}, "an exclamation mark"},
      {{{White, dotted.c_str()}}, "a dot between two digits"},
      {{{White, fine.c_str()}}, ""},
  };
  for (const Row& row : rows) {
    course::frmPR->lessonText.Cls();
    int col = 1;
    for (const auto& [colour, text] : row.parts) {
      PrintIn(colour, 5, col, text);
      col += static_cast<int>(std::string(text).size());
    }
    const Faults faults = Style();
    ASSERT_EQ(faults.empty(), std::string(row.fault).empty()) << row.parts[0].second;
    for (const std::string& fault : faults) EXPECT_TRUE(fault.starts_with(row.fault)) << fault;
  }
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

// --- Words ---------------------------------------------------------------------------------------

TEST(PageText, TheRightTextIsFoundAsAWholeOnly) {
  EXPECT_TRUE(ContainsAsWords("so x = 5.", "5"));
  EXPECT_FALSE(ContainsAsWords("so x = 15.", "5"));
  EXPECT_FALSE(ContainsAsWords("so x = -5.", "5"));
  EXPECT_FALSE(ContainsAsWords("so x = 5/2.", "5"));
  EXPECT_FALSE(ContainsAsWords("so x = 5^2^.", "5"));
  EXPECT_TRUE(ContainsAsWords("15 and 5", "5"));
  EXPECT_TRUE(ContainsAsWords("(x + 2)(x + 3)", "(x + 2)(x + 3)"));
}

TEST(PageText, NoneOfTheAboveNeedsTheTrueAnswerAndTheWords) {
  Problem problem = SumOfFractions();
  problem.kind = choice_kind::FourShuffledAndNone;
  problem.Right(5, "3/4");
  PageText page;
  page.panels = {{"pnlLesson", {{5, 1, 0, 0, "1/2 + 1/4 = 3/4", 15}}}};
  page.lines = {"1/2 + 1/4 = 3/4"};
  EXPECT_NE(MissingAtEnd({page}, problem), "");
  PageText told = page;
  told.panels[0].fragments.push_back({7, 1, 0, 0, course::kNoneOfTheAbove, 17});
  told.lines.push_back(course::kNoneOfTheAbove);
  EXPECT_EQ(MissingAtEnd({page, told}, problem), "");
}

TEST(PageText, EveryNamedMistakeIsToldWhole) {
  course::LessonScript::DrawnProblem drawn{SumOfFractions(), {0, 1, 2, 3, 4, 5}};
  drawn.problem.Wrong(2, "adds the denominators too", "2/6");
  drawn.problem.Wrong(3, "multiplies", "8");
  const auto told = [&](const std::vector<const char*>& printed, int box) {
    PageText page;
    page.panels = {{"pnlLesson", {}}};
    for (const char* text : printed) page.panels[0].fragments.push_back({5, 1, 0, 0, text, 1});
    return FaultOfMistakesPage(page, drawn, box);
  };
  const char* const first = "Someone who adds the denominators too gets";
  const char* const second = "Someone who multiplies gets 8.";
  EXPECT_EQ(told({first, "2/6", second}, 1), "");
  EXPECT_EQ(told({"You chose", "2/6", "That is what we get when we add.", second}, 2), "");
  EXPECT_NE(told({first, "2/6", second}, 2), "") << "the student's own is not told as his";
  EXPECT_NE(told({first, "2", second}, 1), "") << "a cut value";
  EXPECT_NE(told({"Someone who adds the gets", "2/6", second}, 1), "") << "a cut sentence";
  EXPECT_NE(told({first, "2/6"}, 1), "") << "a box is left out";
  EXPECT_NE(told({first, "2/6", second, "Someone who guesses gets 3."}, 1), "");
  EXPECT_NE(told({"You chose", "2/6", second}, 2), "") << "no reason";
  PageText quoted;
  quoted.panels = {{"pnlLesson", {}}};
  for (const char* text : {"Someone who adds the denominators too chooses \"2/6\".",
                           "Someone who multiplies chooses \"8\"."})
    quoted.panels[0].fragments.push_back({5, 1, 0, 0, text, 1});
  EXPECT_EQ(FaultOfMistakesPage(quoted, drawn, 1, true), "");
  EXPECT_NE(FaultOfMistakesPage(quoted, drawn, 1), "") << "values are not quoted";
  PageText plain;
  plain.lines = {"x = 5"};
  PageText page;
  page.lines = {"  Someone who multiplies gets 8."};
  std::vector<PageText> pages = {plain, page, page};
  EXPECT_EQ(TakeMistakesPage(pages).lines, page.lines);
  EXPECT_EQ(pages.size(), 1u);
}

}  // namespace
}  // namespace lesson_check
