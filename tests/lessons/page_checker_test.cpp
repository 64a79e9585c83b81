// The checker must find what it is there for: each test hands it a page with one fault.
#include <gtest/gtest.h>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "display/stacked_text.h"
#include "engine/answers.h"
#include "lesson_check/pages/mistakes_check.h"
#include "lesson_check/pages/page_check.h"
#include "lesson_check/pages/page_layout.h"
#include "lesson_check/pages/page_style.h"
#include "lesson_check/problem_check.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

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
  EXPECT_EQ(MissingAtEnd({page}, problem, course::mode::Example), "");
  EXPECT_NE(MissingAtEnd({page, told}, problem, course::mode::Example), "");
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
