// Marks on the lesson screen: where their pixels are, and what they leave as it was.
#include "display/drawing.h"

#include <gtest/gtest.h>

#include "display/print.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/golden.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;
using Strings = PixelPicture;

class DrawingTest : public DisplayTest {
 protected:
  // What was drawn in a colour on the lesson panel, and nothing else.
  static std::string Extent(platform::Colour drawn) { return PlaceOf(ExtentOf(Panel(), drawn)); }
  static std::size_t CountOf(platform::Colour drawn) {
    std::size_t count = 0;
    for (const std::string& row : PictureOf(Panel()))
      count += static_cast<std::size_t>(std::count(row.begin(), row.end(), PixelLetter(drawn)));
    return count;
  }
};

TEST_F(DrawingTest, BarsFillTheirCellsThroughTheMiddle) {
  isDrawHorizLine(19, 27, 37, 1);
  EXPECT_EQ(Extent(colour::White), "(432, 442) 176 x 1");
  isDrawHorizLineWithColor(18, 1, 40, 3, colour::Red);  // 417.5 rounds half to even
  EXPECT_EQ(Extent(colour::Red), "(16, 418) 640 x 3");
  isDrawHorizLineWithColor(4.5, 2.5, 3, 1, colour::Green);
  EXPECT_EQ(Extent(colour::Green), "(40, 80) 24 x 1");
  Panel().ForeColor = colour::Yellow;
  isDrawVertLine(2, 3, 4, 2);
  EXPECT_EQ(Extent(colour::Yellow), "(40, 30) 2 x 47");
  isDrawVertLineWithColor(3, 3, 3, 1, colour::Cyan);
  EXPECT_EQ(Extent(colour::Cyan), "(56, 30) 1 x 22");
}

TEST_F(DrawingTest, ColouredLinesGoToTheTargetInItsOwnCells) {
  frmPR->picWiperBox.Move(0, 0, 100 * 15, 100 * 15);
  frmPR->picCommentBox[2].Move(0, 0, 100 * 15, 100 * 15);
  TextPanel& comment = *frmPR->commentText[2];
  comment.layout.cellWidth = 10;
  comment.layout.cellHeight = 14;
  comment.layout.leftMargin = comment.layout.topMargin = 3;

  screenState.gDrawTarget = -1;
  isDrawHorizLineWithColor(1, 1, 2, 1, colour::Red);
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picWiperBox, colour::Red)), "(16, 18) 32 x 1");
  screenState.gDrawTarget = 2;
  isDrawHorizLineWithColor(2, 1, 2, 1, colour::Red);
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picCommentBox[2], colour::Red)), "(3, 24) 20 x 1");
  isDrawBoxFilled(1, 1, 1, 1, colour::Green);
  EXPECT_EQ(PlaceOf(ExtentOf(frmPR->picCommentBox[2], colour::Green)), "(3, 3) 10 x 14");
  EXPECT_EQ(CountOf(colour::Red), 0u);

  screenState.gDrawTarget = 6;
  ExpectStop("gDrawTarget: comment box 6", [] { isDrawHorizLineWithColor(2, 1, 2, 1, 0); });
}

TEST_F(DrawingTest, BoxesHoldBothCornerCells) {
  isDrawBoxFilled(2.3, 1, 2.6, 24, colour::Cyan);  // the strip behind a banner
  EXPECT_EQ(Extent(colour::Cyan), "(16, 12) 384 x 33");
  isDrawBox(5, 2, 5, 3, colour::Yellow, 1);
  EXPECT_EQ(Extent(colour::Yellow), "(32, 80) 32 x 25");
  EXPECT_EQ(CountOf(colour::Yellow), 2u * 32 + 2 * 23);
  isDrawBox(8, 2, 8, 3, colour::Red, 3);  // a thick line lies around the edge
  EXPECT_EQ(Extent(colour::Red), "(31, 154) 34 x 27");
  EXPECT_EQ(Panel().DrawWidth, 1);
}

TEST_F(DrawingTest, AnInvertedAreaComesBack) {
  Locate(5, 1);
  isPrint("x + 2 = 7");
  const Strings before = PictureOf(Panel());
  isDrawBoxInverse(5, 1, 5, 5);
  EXPECT_EQ(Panel().Pixel(16, 80), colour::Yellow);
  EXPECT_EQ(Panel().Pixel(16 + 5 * 16, 80), colour::Blue);
  EXPECT_EQ(Panel().DrawMode, platform::DrawModes::CopyPen);
  isDrawBoxInverse(5, 1, 5, 5);
  EXPECT_EQ(PictureOf(Panel()), before);
}

TEST_F(DrawingTest, RoundRectanglesAreFilledToTheirLineAndLeaveTheCornersFree) {
  isDrawRoundRectFilled(3, 2, 5, 10, 2, colour::White, colour::Red);
  EXPECT_EQ(Extent(colour::White), "(32, 30) 144 x 75");
  EXPECT_EQ(Extent(colour::Red), "(34, 32) 140 x 71");
  EXPECT_EQ(Panel().Pixel(32, 30), colour::Blue);
  EXPECT_EQ(Panel().Pixel(175, 104), colour::Blue);
  isDrawRoundRect(8, 2, 9, 10, 1, colour::Green);
  EXPECT_EQ(Panel().Pixel(100, 180), colour::Blue);
}

TEST_F(DrawingTest, AnArrowEndsInAFilledTriangle) {
  gArrowheadSmall = 1;
  isDrawArrow1Segment(2, 1, 2, 2, colour::Yellow, "NA", "A");
  gArrowheadSmall = 0;
  // From the centre (24, 17) of one cell to the centre (40, 17) of the next.
  EXPECT_EQ(PictureOf(Panel(), 23, 13, 19, 9), (Strings{
                                                   "...................",
                                                   "............Y......",
                                                   "............YYY....",
                                                   "............YYYYY..",
                                                   ".YYYYYYYYYYYYYYYYY.",
                                                   "............YYYYY..",
                                                   "............YYY....",
                                                   "............Y......",
                                                   "...................",
                                               }));
}

TEST_F(DrawingTest, ArrowsAreTheSameDrawnFromEitherEnd) {
  isDrawArrow1Segment(4, 5, 4, 9, colour::Yellow, "A", "NA");
  isDrawArrow1Segment(9, 3, 6, 3, colour::Yellow, "NA", "A");
  const Strings forwards = PictureOf(Panel());
  Panel().Cls();
  isDrawArrow1Segment(4, 9, 4, 5, colour::Yellow, "NA", "A");
  isDrawArrow1Segment(6, 3, 9, 3, colour::Yellow, "A", "NA");
  EXPECT_EQ(PictureOf(Panel()), forwards);
  EXPECT_EQ(ExtentOf(Panel(), colour::Yellow).left, ArrowPixelX(3) - 4);
}

TEST_F(DrawingTest, ABentArrowTakesTheWayItWasTold) {
  isDrawArrow2Segment(4, 4, 6, 8, colour::Yellow, "NA", "NA", "h");
  EXPECT_EQ(Panel().Pixel(ArrowPixelX(8), ArrowPixelY(5)), colour::Yellow);
  EXPECT_EQ(Panel().Pixel(ArrowPixelX(4), ArrowPixelY(5)), colour::Blue);
  Panel().Cls();
  isDrawArrow2Segment(4, 4, 6, 8, colour::Yellow, "A", "A", "V");
  EXPECT_EQ(Panel().Pixel(ArrowPixelX(4), ArrowPixelY(5)), colour::Yellow);
  EXPECT_EQ(Panel().Pixel(ArrowPixelX(8), ArrowPixelY(5)), colour::Blue);
  // Heads at the two free ends alone: one points up, one to the right.
  EXPECT_EQ(Extent(colour::Yellow), "(68, 67) 69 x 55");
  Panel().Cls();
  isDrawArrow3Segment(6, 4, 4, 4, 4, 8, 6, 8, colour::Yellow, "NA", "A");
  EXPECT_EQ(Extent(colour::Yellow), "(72, 67) 69 x 51");
}

TEST_F(DrawingTest, AnArrowThatCannotBeDrawnStops) {
  const auto draw = [](double rp2, double cp2, const char* end) {
    return [=] { isDrawArrow1Segment(3, 4, rp2, cp2, colour::White, "NA", end); };
  };
  ExpectStop("isDrawArrow1Segment: no horizontal or vertical line from (3, 4) to (5.5, 6)",
             draw(5.5, 6, "A"));
  ExpectStop("isDrawArrow1Segment: no horizontal or vertical line from (3, 4) to (3, 4)",
             draw(3, 4, "A"));
  ExpectStop("isDrawArrow1Segment: \"B\" is neither \"A\" nor \"NA\"", draw(3, 6, "B"));
  ExpectStop("isDrawArrow2Segment: direction = \"X\"",
             [] { isDrawArrow2Segment(3, 4, 5, 6, 0, "A", "A", "X"); });
  ExpectStop("isDrawArrow3Segment: no horizontal or vertical line",
             [] { isDrawArrow3Segment(3, 4, 3, 6, 5, 7, 5, 9, 0, "A", "A"); });
}

TEST_F(DrawingTest, APrintedArrowsTailStandsAtTheHeightOfItsPoint) {
  SetColor(colour::White);
  isDrawArrowPointingRightWithColor(5, 20, colour::Cyan, 4);
  EXPECT_EQ(Panel().ForeColor, colour::White);
  EXPECT_NEAR(Col(), 21, 0.1);
  // The columns of the tail: from column 17 to 0.3 column inside the head's.
  const platform::PixelRect arrow = ExtentOf(Panel(), colour::Cyan);
  EXPECT_EQ(arrow.left, 16 + 16 * 16);
  int lastColumn = 0;  // of the head's ink
  for (int x = 0; x < Panel().PixelWidth(); ++x)
    if (HasInk(Panel(), x, 80, x + 1, 110, colour::Blue)) lastColumn = x;
  int first = 80;  // rows of the point
  while (Panel().Pixel(lastColumn, first) == colour::Blue) ++first;
  int last = 110;
  while (Panel().Pixel(lastColumn, last) == colour::Blue) --last;
  int tail = 0;
  while (Panel().Pixel(arrow.left, tail) != colour::Cyan) ++tail;
  EXPECT_NEAR((first + last) / 2.0, tail + 0.5, 1);
  Panel().Cls();
  isDrawArrowPointingLeftWithColor(5, 20, colour::Cyan);
  const platform::PixelRect left = ExtentOf(Panel(), colour::Cyan);
  EXPECT_EQ(left.left + left.width, 16 + 21 * 16);
}

TEST_F(DrawingTest, BracketsHaveTicksOfThreePixels) {
  Bracket(3, 1, 0.5, 1);
  EXPECT_EQ(PictureOf(Panel(), 15, 40, 10, 7), (Strings{
                                                   "..........",
                                                   "..........",
                                                   ".########.",
                                                   ".#......#.",
                                                   ".#......#.",
                                                   ".#......#.",
                                                   "..........",
                                               }));
  Bracket(6, 1, 0.5, 2, 1);
  EXPECT_EQ(PictureOf(Panel(), 15, 114, 10, 8), (Strings{
                                                    "..........",
                                                    ".##....##.",
                                                    ".##....##.",
                                                    ".##....##.",
                                                    ".########.",
                                                    ".########.",
                                                    "..........",
                                                    "..........",
                                                }));
  ExpectStop("Bracket: dir = 3", [] { Bracket(3, 1, 2, 1, 3); });
  Panel().Cls();
  Bracket2(10, 20, 3, 0.4, "l");  // opens to the left: its ends lie left of the upright
  const platform::PixelRect upright = ExtentOf(Panel(), colour::White);
  EXPECT_EQ(upright.width, 6);
  EXPECT_NEAR(upright.height, 75, 1);
  EXPECT_EQ(Panel().Pixel(upright.left, 217), colour::Blue);
  EXPECT_EQ(Panel().Pixel(upright.left + 5, 217), colour::White);
  Panel().Cls();
  Bracket2(10, 20, 3, 0.4, "R");
  EXPECT_EQ(Panel().Pixel(ExtentOf(Panel(), colour::White).left, 217), colour::White);
}

TEST_F(DrawingTest, MarksStayInTheirCells) {
  isDrawArcLabel(5, 3, 2);
  const platform::PixelRect arc = ExtentOf(Panel(), colour::White);
  EXPECT_GE(arc.left, 48);
  EXPECT_LE(arc.left + arc.width, 48 + 32);
  EXPECT_LE(arc.top + arc.height, 80 + 6);  // capital letters begin below
  Panel().Cls();
  isDrawRayLabel(5, 3, 2);
  EXPECT_EQ(ExtentOf(Panel(), colour::White).left, 48);
  EXPECT_EQ(ExtentOf(Panel(), colour::White).width, 32);
  Panel().Cls();
  isIntegralSign(10, 20, 3);
  const platform::PixelRect sign = ExtentOf(Panel(), colour::White);
  EXPECT_NEAR(sign.height, 75, 2);
  EXPECT_NEAR(sign.left + sign.width / 2.0, 16 * 19 + 24, 1);
  EXPECT_NEAR(sign.top + sign.height / 2.0, 25 * 8 + 17.5, 1);
}

TEST_F(DrawingTest, ARaysHeadFollowsItOrTurnsAsTold) {
  isDrawRay("", 5, 5, 5, 10, false);
  EXPECT_EQ(Extent(colour::White), "(88, 89) 81 x 9");
  Panel().Cls();
  isDrawRay("U", 9, 5, 5, 5, true);  // a point of 3 pixels at the start
  const platform::PixelRect ray = ExtentOf(Panel(), colour::White);
  EXPECT_EQ(ray.top, 93);
  EXPECT_EQ(ray.top + ray.height - 1, 193 + 3);
  ExpectStop("isDrawRay: rayDir = \"NE\"", [] { isDrawRay("NE", 9, 5, 5, 5, true); });
}

TEST_F(DrawingTest, BulletsAreRoundAndLeaveTheFillAsItWas) {
  isDrawBullet(20, 30, colour::Cyan);
  EXPECT_EQ(Extent(colour::Cyan), "(482, 462) 13 x 13");
  Panel().Cls();
  isDrawBullet(20, 30, colour::Cyan, 0.5);  // no bullet is smaller than a pixel
  EXPECT_EQ(ExtentOf(Panel(), colour::Cyan).width, 13);
  Panel().Cls();
  isDrawBullet(20, 30, colour::Cyan, 3);
  EXPECT_EQ(ExtentOf(Panel(), colour::Cyan).width, 7);
  EXPECT_EQ(Panel().FillStyle, platform::FillStyles::Transparent);
  EXPECT_EQ(Panel().FillColor, colour::Black);
}

TEST_F(DrawingTest, PaintStaysInsideItsBoundary) {
  gPoly[1] = {5, 5};
  gPoly[2] = {5, 10};
  gPoly[3] = {9, 10};
  gPoly[4] = {9, 5};
  isDrawPoly(4, colour::Green);
  Paint2(8.5, 6, colour::Magenta, colour::Green);
  EXPECT_EQ(Extent(colour::Green), "(88, 93) 81 x 101");
  EXPECT_EQ(Extent(colour::Magenta), "(89, 94) 79 x 99");
  EXPECT_EQ(CountOf(colour::Magenta), 79u * 99);
  ExpectStop("isDrawPoly: np = 31", [] { isDrawPoly(31, colour::Green); });
}

TEST_F(DrawingTest, MarksLookAsTheyWereDesigned) {
  Locate(3, 1);
  isPrint("AB ABC A  AB XY X  f(x) = 3x + 4x");
  isDrawArcLabel(3, 1, 2);
  isDrawArcLabel(3, 4, 3);
  isDrawArcLabel(3, 8, 1);
  isDrawRayLabel(3, 11, 2);
  isDrawRayLabel(3, 14, 2);
  isDrawRayLabel(3, 17, 1);
  Bracket(2.1, 27, 7, 2, 2);
  Bracket(3.8, 27, 7, 2, 1);
  Bracket2(3, 35, 3, 0.4, "R");
  Bracket2(3, 36, 3, 0.4, "L");
  isIntegralSign(3, 38, 3);
  isDrawBullet(5, 2, colour::Cyan);
  isDrawRay("", 6, 4, 5, 12, true);
  isDrawRoundRectFilled(5, 14, 6, 18, 2, colour::Yellow, colour::Red);
  isDrawArrowPointingLeftWithColor(5, 21, colour::Cyan);
  isDrawArrowPointingRightWithColor(6, 23, colour::Cyan, 4);
  isDrawArrow2Segment(5, 26, 6, 30, colour::Green, "A", "A", "H");
  isDrawArrow3Segment(6, 32, 5, 32, 5, 38, 6, 38, colour::Yellow, "NA", "A");
  platform::Surface marks(656, 131);
  marks.BitBlt(0, 0, 656, 131, Panel(), 0, 0);
  ExpectGolden(marks, "drawing_marks");
}

}  // namespace
}  // namespace course::testing
