// The words with which a page is written: where each of them prints, and what it refuses.
#include <cmath>

#include "display/animation.h"
#include "display/graphs.h"
#include "display/print.h"
#include "display/print_cells.h"
#include "engine/answers.h"
#include "lessons/page/answer_boxes.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace page;
using Texts = std::vector<std::string>;

class PageWordsTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    session.gLessonName = "A Lesson";
  }
  // A row as it was meant, before it was rounded to a pixel.
  static double Halves(double row) { return std::round(2 * row) / 2; }
  // Row, column and text of all that is printed.
  static Texts Printed() {
    Texts printed;
    for (const Fragment& f : frmPR->lessonText.Transcript())
      printed.push_back(NumStr(Halves(f.row)) + "," + NumStr(f.col) + " " + f.text);
    return printed;
  }
  static double TopOf(const platform::Control& control) {
    return (control.Top() - Panel().Top()) / 15.0 / gCellHeight + 2 - 5.0 / gCellHeight;
  }
};

TEST_F(PageWordsTest, ValuesTakeTheirPlacesInASentence) {
  const std::string gap = tutor::Gap;
  EXPECT_EQ(page::Text("{} plus {}", 3, -.5), "3 plus -.5");
  EXPECT_EQ(page::Text("so {}.", "x + 3"), "so x" + gap + "+" + gap + "3.");
  EXPECT_EQ(page::Text("{}all {}", Words{"5 and "}, std::string("y")), "5 and all y");
  EXPECT_EQ(page::Text("none"), "none");
  ExpectStop("A Lesson: Text has 1 values for \"{} and {}\"", [] { page::Text("{} and {}", 1); });
  ExpectStop("A Lesson: Text has 2 values for \"{}\"", [] { page::Text("{}", 1, 2); });
}

TEST_F(PageWordsTest, AParagraphLeavesABlankRowAndALineNone) {
  Say("first");
  Say("second");
  AddLine("third");
  SayAt(12.5, "beside a figure", {.col = 5, .lastCol = 15});
  AddLine("1. an item that goes on", {.col = 2, .indent = 5, .lastCol = 14});
  EXPECT_EQ(Printed(),
            (Texts{"3,1 first", "5,1 second", "6,1 third", "12.5,5 beside a", "13.5,5 figure",
                   "14.5,2 1. an item", "15.5,5 that goes", "16.5,5 on"}));
  EXPECT_EQ(Halves(Row()), 17.5);
  isPrints("begun");
  AddLine("goes on below");
  EXPECT_EQ(Printed().back(), "18.5,1 goes on below");
}

// Below a built-up line half a row is free whatever comes next, also the words beneath.
TEST_F(PageWordsTest, BuiltUpLinesKeepHalfARowOfAir) {
  const std::string radical = tutor::SquareRoot + "7";
  const struct {
    const char* name;
    std::function<void()> first, second;
    double row;  // of the second's middle row, or its first one
  } cases[] = {
      {"plain under plain", [] { Show("x = 1"); }, [] { Show("y = 2"); }, 3},
      {"fraction under plain", [] { Show("x = 1"); }, [] { Show("1/2"); }, 4.5},
      {"fraction under fraction", [] { ShowAt(4, "1/2"); }, [] { Show("3/4"); }, 7.5},
      {"plain under fraction", [] { ShowAt(4, "1/2"); }, [] { Show("x"); }, 6.5},
      {"radical under plain", [] { Show("x = 1"); }, [=] { Show(radical); }, 3.5},
      {"plain under radical", [=] { ShowAt(4, radical); }, [] { Show("x"); }, 5},
      {"paragraph under fraction", [] { ShowAt(4, "1/2"); }, [] { Say("words"); }, 6.5},
      {"line under fraction", [] { ShowAt(4, "1/2"); }, [] { AddLine("words"); }, 6.5},
      {"printed under fraction", [] { ShowAt(4, "1/2"); }, [] { WordWrap("words"); }, 6.5},
  };
  for (const auto& pair : cases) {
    ResetScreen();
    Text().Cls();
    Locate(2, 1);
    pair.first();
    const std::size_t before = Text().Transcript().size();
    pair.second();
    double highest = 99;
    double lowest = 0;
    for (std::size_t i = before; i < Text().Transcript().size(); ++i) {
      highest = std::min(highest, Text().Transcript()[i].row);
      lowest = std::max(lowest, Text().Transcript()[i].row);
    }
    EXPECT_NEAR((highest + lowest) / 2, pair.row, 0.05) << pair.name;
  }
}

TEST_F(PageWordsTest, TextsStayOnTheirRowsAndColumns) {
  const std::string two = "this paragraph is too long for a single line of the screen";
  SayAt(23, "the last row");
  ShowAt(22, "1/2");
  ExpectStop("A Lesson: SayAt prints on rows 1.5 to 1.5, not 2 to 23: \"x\"",
             [] { SayAt(1.5, "x"); });
  ExpectStop("A Lesson: SayAt prints on rows 22.5 to 23.5", [&] { SayAt(22.5, two); });
  ExpectStop("A Lesson: ShowAt prints on rows 21.5 to 23.5", [] { ShowAt(22.5, "1/2"); });
  ExpectStop("A Lesson: ShowAt prints on columns 30 to 41", [] { ShowAt(5, "123456789012", 30); });
  ShowAt(5, R"(\y12345678901\z)", 30);  // codes take no column
}

TEST_F(PageWordsTest, BoxesStandUnderAllThatIsThere) {
  ShowAt(4, "1/2");  // on rows 3 to 5
  EXPECT_EQ(RowBelow(), 6.5);
  SayAt(6, "text");
  EXPECT_EQ(RowBelow(), 7.5);
  EXPECT_EQ(PaperBox({"2 + 2 = 4"}), 1);  // 1.56 rows high
  EXPECT_NEAR(TopOf(frmPR->picCommentBox[1]), 7.5, 0.05);
  Say("goes on");
  EXPECT_EQ(Printed().back(), "9.5,1 goes on");
  EXPECT_EQ(CommentBox("A paragraph that takes more than a line in its box.", {.width = 20}), 2);
  EXPECT_NEAR(TopOf(frmPR->picCommentBox[2]), 11, 0.05);
  EXPECT_EQ(TranscriptLines(*frmPR->commentText[2]),
            (Texts{"A paragraph that takes", "more than a line in its", "box."}));
  EXPECT_EQ(Note(3, 20, "look"), 1);
  picGraph2DPrepare(1, 15, 5, 10, 3.2);
  frmPR->picGraph2D[1].SetVisible(true);
  EXPECT_EQ(RowBelow(), 19);
  EXPECT_EQ(RuleBox("The Rule", {"a + b"}), 3);
  EXPECT_NEAR(TopOf(frmPR->picCommentBox[3]), 19, 0.05);
  ExpectStop("A Lesson: a box stands on rows 23", [] { PaperBox({"a", "b"}, 23); });
}

TEST_F(PageWordsTest, AWhiteBoxIsSaidIntoUntilItIsFull) {
  SayAt(15, "text");
  WhiteBox();
  EXPECT_NEAR(TopOf(frmPR->picWiperBox), 16.5, 0.05);
  SayInBox("one");
  SayInBox("two");
  EXPECT_EQ(TranscriptLines(frmPR->wiperText), (Texts{"one", "two"}));
  EXPECT_EQ(Halves(frmPR->wiperText.Transcript().back().row), 2.5);
  SayInBoxAnew("three");
  EXPECT_EQ(TranscriptLines(frmPR->wiperText), Texts{"three"});
  ExpectStop("A Lesson: the white box has no row 8.", [] {
    for (int i = 0; i < 6; ++i) SayInBox("more");
  });
}

TEST_F(PageWordsTest, ClearingTakesTextsAndBoxesFromARowOn) {
  SayAt(5, "stays");
  SayAt(8, "goes");
  PaperBox({"stays"}, 7);  // down to row 8.6
  PaperBox({"goes"}, 9);
  Note(10, 3, "goes");
  ClearBelow(8);
  EXPECT_EQ(Lines(), Texts{"stays"});
  EXPECT_TRUE(frmPR->picCommentBox[1].Visible());
  EXPECT_FALSE(frmPR->picCommentBox[2].Visible());
  EXPECT_FALSE(frmPR->picNotes[1].Visible());
  EXPECT_EQ(Row(), 8);
  EXPECT_EQ(PaperBox({"again"}, 9), 2);
}

TEST_F(PageWordsTest, AnswerBoxesFollowTheTexts) {
  using Show = void (*)(const Problem&, const AnswerBoxes&);
  const struct {
    Show show;
    int kind;
    std::string text;
    AnswerBoxes boxes;
    // layout, row, columns, width, height, gap, offset
    std::vector<double> expected;
    bool builtUp;
  } cases[] = {
      {ShowAnswersInTwoColumns,
       choice_kind::FourInOrder,
       "x < 3",
       {.row = 14},
       {2, 14, 1, 21, 0, 16, 50, 27, 0},
       false},
      {ShowAnswersInTwoColumns,
       choice_kind::FiveShuffled,
       "x",
       {.width = 20},
       {2, 11, .625, 21.375, 0, 20, 50, 27, 0},
       false},
      {ShowAnswersInTwoColumns,
       choice_kind::FiveShuffled,
       "3/4",
       {.width = 19},
       {2, 11, 1, 21, 0, 19, 68, 16, 9},
       true},
      {ShowAnswersInTwoColumns,
       choice_kind::FiveShuffled,
       "5`3`",
       {.fontSize = 18},
       {2, 11, 1, 21, 0, 16, 50, 27, 1},
       true},
      {ShowAnswersInThreeColumns,
       choice_kind::FiveShuffled,
       "1 3/4",
       {.row = 14},
       {4, 14, 1, 14, 27, 12.5, 68, 16, 9},
       true},
      {ShowAnswersInOneColumn,
       choice_kind::FiveShuffled,
       "x",
       {},
       {1, 11, 10.5, 0, 0, 21, 44, 12, -3},
       false},
  };
  for (const auto& c : cases) {
    answerParameters = {};
    Problem problem;
    problem.kind = c.kind;
    problem.Right(1, "7");
    problem.Wrong(2, "adds", c.text);
    c.show(problem, c.boxes);
    const AnswerParameters& p = answerParameters;
    EXPECT_EQ((std::vector<double>{double(p.layout), p.answerRow, p.column1, p.column2, p.column3,
                                   p.boxWidth, p.boxHeight, p.rowGap, p.textOffset}),
              c.expected)
        << c.text;
    EXPECT_EQ(p.printChoice != nullptr, c.builtUp) << c.text;
    EXPECT_EQ(p.lastBoxFontSize, 0);
  }
  Problem problem;
  problem.kind = choice_kind::FourShuffledAndNone;
  ShowAnswersInThreeColumns(problem, {});
  EXPECT_EQ(answerParameters.lastBoxFontSize, 13);
  ExpectStop("A Lesson: answer boxes 16 columns wide reach down to row 25.2",
             [&] { ShowAnswersInTwoColumns(problem, {.row = 17}); });
  ExpectStop("A Lesson: answer boxes 21", [&] { ShowAnswersInTwoColumns(problem, {.width = 21}); });
}

TEST_F(PageWordsTest, ASlideMovesItsCells) {
  const struct {
    void (*slide)(const Cells&, double, Leaving, Pace);
    Leaving leaving;
    Texts printed;
  } cases[] = {{SlideUp, Leaving::Nothing, {"6,10 ab"}},
               {SlideDown, Leaving::Copy, {"10,10 ab", "14,10 ab"}},
               {SlideLeft, Leaving::Nothing, {"10,6 ab"}},
               {SlideRight, Leaving::Copy, {"10,10 ab", "10,14 ab"}}};
  for (const auto& c : cases) {
    Text().Cls();
    ShowAt(10, "ab", 10);
    c.slide({10, 10, 2}, 4, c.leaving, Pace::Usual);
    EXPECT_EQ(Printed(), c.printed);
  }
  const auto seconds = [this](Pace pace) {
    user.pausedSeconds = 0;
    SlideUp(WholeRows(10, 2), 4, Leaving::Nothing, pace);
    return user.pausedSeconds;
  };
  EXPECT_GT(seconds(Pace::Usual), 1.5 * seconds(Pace::Brisk));
  ExpectStop("A Lesson: a slide by 9 ends at row 1", [] { SlideUp({10, 10, 2}, 9); });
}

}  // namespace
}  // namespace course::testing
