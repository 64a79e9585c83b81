// Comment boxes: cells of the screen outside, cells of their own inside.
#include "display/comment_box.h"

#include <gtest/gtest.h>

#include "display/drawing.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class CommentBoxTest : public DisplayTest {
 protected:
  static platform::PictureBox& Box(int box = 1) { return frmPR->picCommentBox[box]; }
  static TextPanel& Comment(int box = 1) {
    return *frmPR->commentText[static_cast<std::size_t>(box)];
  }
  static std::vector<std::string> Lines(int box = 1) { return TranscriptLines(Comment(box)); }
  // In pixels of the lesson panel.
  static std::string Place(int box = 1) {
    return PlaceOf({(Box(box).Left() - Panel().Left()) / 15, (Box(box).Top() - Panel().Top()) / 15,
                    Box(box).PixelWidth(), Box(box).PixelHeight()});
  }
  // 160 pixels wide: 18 columns of size 10 inside a padding of 5.
  static void PrepareSmall(int padding = 5) {
    picCommentBoxPrepare2(1, 3, 1, 10, 4, colour::White, colour::Black, 10, padding);
  }
};

TEST_F(CommentBoxTest, IsPlacedInCellsOfTheScreen) {
  picCommentBoxPrepare2(1, 15, -1, 36, 6.7, colour::White, colour::Black, 12, 0);
  EXPECT_EQ(Place(), "(48, 330) 576 x 167");  // 48 pixels free on both sides
  picCommentBoxPrepare1(2, 2, 3.5, 4, 2, colour::Yellow, colour::Red, "", false, true, 9);
  EXPECT_EQ(Place(2), "(56, 5) 64 x 50");
  EXPECT_EQ(Box(2).FontName, "MS Sans Serif");
  EXPECT_EQ(Box(2).Pixel(10, 10), colour::Yellow);
  EXPECT_FALSE(Box(2).Visible());
  picCommentBoxShow(2);
  EXPECT_TRUE(Box(2).Visible());
  ResetScreen();
  EXPECT_FALSE(Box(2).Visible());
}

TEST_F(CommentBoxTest, TakesCellsAndExponentsFromItsSize) {
  const auto info = [](int size) {
    picCommentBoxPrepare2(5, 2, 1, 4, 2, colour::White, colour::Black, size, 3);
    const TextPanel::Layout& layout = gCommentBoxPrintInfo(5);
    return std::vector<int>{layout.cellWidth, layout.cellHeight, layout.exponentSize,
                            layout.leftMargin};
  };
  const std::vector<int> sizes[] = {
      // Points, and the cell's width and height, the exponent's size, the padding.
      {9, 7, 11, 8, 3},    {10, 8, 12, 8, 3},   {11, 9, 13, 8, 3},   {12, 10, 14, 10, 3},
      {13, 10, 15, 8, 3},  {14, 11, 17, 10, 3}, {15, 12, 18, 10, 3}, {16, 13, 20, 10, 3},
      {18, 14, 22, 10, 3}, {20, 16, 25, 14, 3}};
  for (const std::vector<int>& row : sizes)
    EXPECT_EQ(info(row[0]), std::vector<int>(row.begin() + 1, row.end())) << row[0];
  ExpectStop("picCommentBoxPrepare2: size 8", [&] { info(8); });
  ExpectStop("picCommentBoxPrepare2: size 21", [&] { info(21); });
  ExpectStop("picCommentBoxShow: comment box 6", [] { picCommentBoxShow(6); });
  // A plain box afterwards counts in cells of the screen again.
  picCommentBoxPrepare1(5, 2, 1, 4, 2, colour::White, colour::Black, "Arial", true, false, 12);
  EXPECT_EQ(gCommentBoxPrintInfo(5).cellWidth, 16);
}

TEST_F(CommentBoxTest, WrapsInItsOwnColumns) {
  PrepareSmall();
  picCommentBoxWordWrap(1, R"(\rThree\z plus four is x^2^ and more)");
  EXPECT_EQ(Lines(), (std::vector<std::string>{"Three plus four is", "x^2^ and more"}));
  EXPECT_EQ(Comment().Transcript()[0].colour, colour::Red);
  EXPECT_EQ(Comment().Transcript()[1].colour, colour::Black);
  picCommentBoxLocate(1, 4, 3);
  EXPECT_EQ(Comment().cursorX, 5 + 16);
  EXPECT_EQ(Comment().cursorY, 5 + 36);
}

TEST_F(CommentBoxTest, EveryWrapEndsWhereItsNameSays) {
  struct Case {
    void (*wrap)(int, const std::string&);
    std::vector<std::string> lines;
    int col;
  };
  const Case cases[] = {
      {[](int b, const std::string& s) { picCommentBoxWordWraps(b, s); },
       {"1. one two three", "four five"},
       10},
      {[](int b, const std::string& s) { picCommentBoxWordWrapIndent(b, s, 4); },
       {"1. one two three", "   four five"},
       1},
      {[](int b, const std::string& s) { picCommentBoxWordWrapIndents(b, s, 4); },
       {"1. one two three", "   four five"},
       13},
      {[](int b, const std::string& s) { picCommentBoxWordWrapNarrow(b, s, 10); },
       {"1. one two", "three four", "five"},
       1},
      {[](int b, const std::string& s) { picCommentBoxWordWrapNarrows(b, s, 10); },
       {"1. one two", "three four", "five"},
       5},
      {[](int b, const std::string& s) { picCommentBoxWordWrapIndentNarrow(b, s, 4, 10); },
       {"1. one two", "   three", "   four", "   five"},
       1},
      {[](int b, const std::string& s) { picCommentBoxWordWrapIndentNarrows(b, s, 4, 10); },
       {"1. one two", "   three", "   four", "   five"},
       8}};
  for (const Case& c : cases) {
    PrepareSmall();
    c.wrap(1, "1. one two three four five");
    EXPECT_EQ(Lines(), c.lines);
    Comment().UpdateCursorCell();
    EXPECT_EQ(Comment().cursorCol, c.col);
    EXPECT_EQ(wrapState.gIndentOn + wrapState.gNarrowOn + screenState.gNoNewline, 0);
  }
}

TEST_F(CommentBoxTest, PrintsOverWhatStandsThere) {
  PrepareSmall();
  screenState.gDrawTarget = 1;
  isDrawBoxFilled(1, 1, 2, 4, colour::Cyan);
  picCommentBoxisPrints(1, tutor::Gap + tutor::Dot);  // a blank cell, then a dot
  EXPECT_EQ(PictureOf(Box(), 13, 11, 8, 4),
            (PixelPicture{"CCCCCCCC", "CCCKKKCC", "CCCKKKCC", "CCCCCCCC"}));
  EXPECT_FALSE(HasInk(Box(), 5, 5, 13, 17, colour::Cyan));
  picCommentBoxSetColor(1, colour::Magenta);
  picCommentBoxisPrint(1);
  picCommentBoxisPrint(1, tutor::RaisedMinus);
  EXPECT_EQ(ExtentOf(Box(), colour::Magenta).top, 5 + 12 + 5);
}

TEST_F(CommentBoxTest, ExponentsStandHighInEverySize) {
  for (const int size : {9, 10, 11, 12, 13, 14, 15, 20}) {
    picCommentBoxPrepare2(1, 3, 1, 20, 4, colour::White, colour::Black, size, 8);
    picCommentBoxisPrints(1, "1");
    picCommentBoxSetColor(1, colour::Red);
    picCommentBoxisPrintExponentExpression(1, "^1^");
    const platform::PixelRect base = ExtentOf(Box(), colour::Black);
    const platform::PixelRect raised = ExtentOf(Box(), colour::Red);
    EXPECT_GE(base.top + base.height - raised.top - raised.height, size / 4) << size;
    EXPECT_EQ(Lines(), std::vector<std::string>{"1^1^"});
  }
  ExpectStop("An incorrect number of ^", [] { picCommentBoxisPrintExponentExpression(1, "x^2"); });
}

TEST_F(CommentBoxTest, ShrinksToItsText) {
  PrepareSmall(3);
  picCommentBoxWordWrap(1, "One two three four five");
  EXPECT_EQ(Box().PixelWidth(), 160);
  PrepareSmall(3);
  picCommentBoxWordWrap0(1, "gypq\rlongest");
  // Seven cells of 8 and two rows of 12 with their padding, and the depth of the last row's
  // letters.
  EXPECT_EQ(Place(), "(16, 30) 62 x 33");
  EXPECT_TRUE(HasInk(Box(), 3, 3, 35, 15, colour::White));
  EXPECT_FALSE(HasInk(Box(), 0, 0, 3, 33, colour::White));
  EXPECT_FALSE(HasInk(Box(), 59, 0, 62, 33, colour::White));
  EXPECT_FALSE(HasInk(Box(), 0, 31, 62, 33, colour::White));
  // Never beyond the size that was asked for.
  PrepareSmall(0);
  picCommentBoxWordWrap0(1, "1\r2\r3\r4\r5\r6\r7\r8\r9");
  EXPECT_EQ(Box().PixelHeight(), 100);
}

TEST_F(CommentBoxTest, AHeadingFillsABoxOfItsOwn) {
  const auto prepare = [](const std::string& text, double col, int hPad) {
    picCommentBoxWithNiceHeadingPrepare(4, text, 5, col, "", true, false, 18, colour::Blue,
                                        colour::Red, 2, hPad, 4, colour::White);
  };
  prepare("Rule ~1~", -1, 10);
  picCommentBoxWithNiceHeadingShow(4);
  EXPECT_TRUE(Box(4).Visible());
  EXPECT_EQ(Comment(4).Transcript().at(0).text, "Rule \"1\"");
  const int free = Panel().PixelWidth() - Box(4).PixelWidth();
  EXPECT_NEAR((Box(4).Left() - Panel().Left()) / 15, free / 2, 1);
  const platform::PixelRect ink = ExtentOf(Box(4), colour::Blue);
  EXPECT_NEAR(ink.left, 10, 2);
  EXPECT_NEAR(Box(4).PixelWidth() - ink.left - ink.width, 10 + 2, 5);
  EXPECT_GT(ExtentOf(Box(4), colour::Red).width, 0);  // the shadow
  const int narrow = Box(4).PixelWidth();
  prepare("Rule ~1~", 3, 20);
  EXPECT_EQ(Box(4).PixelWidth(), narrow + 20);
  EXPECT_EQ(Box(4).Left(), RowOrColumnInTwips("C", 3));
  // Marks take no room, and exponents less than letters.
  prepare("a22", 3, 10);
  const int plain = Box(4).PixelWidth();
  prepare("a^22^", 3, 10);
  EXPECT_LT(Box(4).PixelWidth(), plain);
}

}  // namespace
}  // namespace course::testing
