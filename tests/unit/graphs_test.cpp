// Number lines and coordinate planes: where their ticks, grids, points and lines are.
#include "display/graphs.h"

#include <gtest/gtest.h>

#include "display/drawing.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/golden.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class GraphsTest : public DisplayTest {
 protected:
  static platform::PictureBox& Box() { return frmPR->picGraph2D[1]; }
  static void Plane(const std::string& numbers = "") {
    picGraph2DPrepare(1, 5, 3, 13, 8);
    picGraph2DShowPlane(1, numbers);
  }
  static void NumberLine(const std::string& style, double u) {
    picGraph2DPrepare(1, 5, 3, 33, 2.9);
    picGraph2DShowNumberLine(1, style, u);
  }
  static platform::Colour At(double x, double y) {  // user coordinates of the plane
    return Box().Pixel(static_cast<int>((x + 6.5) * Box().PixelWidth() / 13),
                       static_cast<int>((6.5 - y) * Box().PixelHeight() / 13));
  }
};

TEST_F(GraphsTest, ABoxIsPlacedHiddenAndClean) {
  Box().FilledBox(0, 0, 5, 5, colour::Red);
  Box().SetVisible(true);
  picGraph2DPrepare(1, 5, 3, 33, 2.9);
  EXPECT_FALSE(Box().Visible());
  EXPECT_EQ(Box().Left(), Panel().Left() + 64 * 15);  // one column right of column 3
  EXPECT_EQ(Box().Top(), Panel().Top() + 80 * 15);
  EXPECT_EQ(Box().PixelWidth(), 528);
  EXPECT_EQ(Box().PixelHeight(), 72);
  EXPECT_EQ(PlaceOf(ExtentOf(Box(), colour::White)), "(0, 0) 528 x 72");
}

TEST_F(GraphsTest, AnyOtherBoxStops) {
  ExpectStop("picGraph2DPrepare: index = 0", [] { picGraph2DPrepare(0, 5, 3, 13, 8); });
  ExpectStop("picGraph2DShowPlane: index = 6", [] { picGraph2DShowPlane(6, ""); });
  ExpectStop("PaintGraph: index = -1", [] { PaintGraph(-1, 0, 0, 0, 0); });
}

TEST_F(GraphsTest, ATickStandsAtEveryHalfOfEveryStep) {
  for (const double u : {2.0, 5.0, 0.1}) {
    NumberLine("NoArrows", u);
    std::vector<int> ticks;
    for (int x = 0; x < 528; ++x)
      if (Box().Pixel(x, 32) == colour::Black) ticks.push_back(x);
    std::vector<int> expected;
    for (int x = 33; x < 528; x += 33) expected.push_back(x);  // 0 at 264
    EXPECT_EQ(ticks, expected) << u;
    EXPECT_EQ(Box().FontSize, 12);
    EXPECT_TRUE(Box().Visible());
  }
}

TEST_F(GraphsTest, TheLineOfANumberLineEndsAsItsStyleWants) {
  NumberLine("noarrows", 2);
  EXPECT_EQ(Box().Pixel(15, 36), colour::White);
  EXPECT_EQ(Box().Pixel(16, 36), colour::Black);
  NumberLine("ARROWS", 2);
  EXPECT_EQ(Box().Pixel(8, 36), colour::Black);
  ExpectStop("picGraph2DShowNumberLine: style = \"none\"",
             [] { picGraph2DShowNumberLine(1, "none", 2); });
  ExpectStop("picGraph2DShowNumberLine: u = 0", [] { picGraph2DShowNumberLine(1, "arrows", 0); });
}

TEST_F(GraphsTest, NumbersStandUnderEverySecondTick) {
  NumberLine("noarrows", 5);
  platform::Surface expected(528, 72);
  expected.FontSize = 8;
  for (int n = -3; n <= 3; ++n) {
    expected.CurrentX = 264 + 66 * (n < 0 ? n - 0.2 : n - 0.05);
    expected.CurrentY = 36 + 0.7 * 12;
    expected.Print(std::to_string(5 * n));
  }
  // Ticks end above the labels.
  EXPECT_EQ(PictureOf(Box(), 0, 46, 528, 26), PictureOf(expected, 0, 46, 528, 26));
}

TEST_F(GraphsTest, APlaneHasElevenLinesEachWayAndAxes) {
  Plane();
  std::vector<int> columns;
  for (int x = 0; x < 208; ++x)
    if (Box().Pixel(x, 20) == colour::Cyan) columns.push_back(x);
  EXPECT_EQ(columns, (std::vector{24, 40, 56, 72, 88, 120, 136, 152, 168, 184}));
  EXPECT_EQ(At(0, 3.5), colour::Black);
  EXPECT_EQ(Box().Pixel(105, 30), colour::Black);  // the axis is a bar
  EXPECT_EQ(At(6, 0), colour::White);              // the grid ends at 5.5
  picGraph2DPrepare(1, 5, 3, 13, 8);
  picGraph2DShowPlane(1, "", true);
  EXPECT_EQ(Box().Pixel(104, 30), colour::Black);
  EXPECT_NE(Box().Pixel(105, 30), colour::Black);
}

TEST_F(GraphsTest, NumbersOnThePlaneAreWantedInAnyCase) {
  Plane();
  const PixelPicture bare = PictureOf(Box());
  Plane("shownumbers");
  const PixelPicture labelled = PictureOf(Box());
  EXPECT_NE(labelled, bare);
  Plane("SHOWNUMBERS");
  EXPECT_EQ(PictureOf(Box()), labelled);
  Plane("numbers");
  EXPECT_EQ(PictureOf(Box()), bare);
}

TEST_F(GraphsTest, APointIsFilledWithinABlackLine) {
  Plane();
  Box().FillColor = colour::Green;
  picGraph2DPlotPoint(1, -3, 2, colour::Red);
  EXPECT_EQ(Box().FillStyle, platform::FillStyles::Transparent);
  EXPECT_EQ(Box().FillColor, colour::Green);
  const int x = 56;  // 3.5 units of 16 pixels
  const int y = 69;  // 4.5 units of 200 / 13 pixels
  EXPECT_EQ(PictureOf(Box(), x - 4, y - 4, 9, 9), (PixelPicture{
                                                      "####C####",
                                                      "###KKK###",
                                                      "##KRRRK##",
                                                      "#KRRRRRK#",
                                                      "CKRRRRRKC",
                                                      "#KRRRRRK#",
                                                      "##KRRRK##",
                                                      "###KKK###",
                                                      "####C####",
                                                  }));
}

TEST_F(GraphsTest, ALineRunsThroughItsPointsToTheEdges) {
  Plane();
  picGraph2DLine(1, 2, 1, colour::Red, 2);
  EXPECT_EQ(Box().DrawWidth, 1);
  const platform::PixelRect line = ExtentOf(Box(), colour::Red);
  EXPECT_EQ(line.top, 0);
  EXPECT_EQ(line.height, Box().PixelHeight());
  for (const double x : {-3.0, 0.0, 1.0, 2.0}) EXPECT_EQ(At(x, 2 * x + 1), colour::Red) << x;
  picGraph2DLine(1, 1e6, 0, colour::Green);  // as good as upright
  EXPECT_LE(ExtentOf(Box(), colour::Green).width, 2);
}

TEST_F(GraphsTest, ALabelLiesAlongItsLine) {
  EXPECT_NEAR(Atn2Degrees(1), 44.999895, 0.000001);
  Plane();
  picGraph2DPrintRotated(1, 0, -5, 5, "y = 1", colour::Red, 8);
  const platform::PixelRect flat = ExtentOf(Box(), colour::Red);
  Plane();
  picGraph2DPrintRotated(1, 90, -5, -3, "y = 1", colour::Red, 8);
  const platform::PixelRect upright = ExtentOf(Box(), colour::Red);
  EXPECT_GT(flat.width, flat.height);
  EXPECT_GT(upright.height, upright.width);
  EXPECT_EQ(Box().ForeColor, colour::Black);
  EXPECT_EQ(Box().FontName, "MS Sans Serif");
}

TEST_F(GraphsTest, FiguresLookAsTheyWereDesigned) {
  Plane("SHOWNUMBERS");
  picGraph2DLine(1, 2, 1, colour::Red, 2);
  picGraph2DPlotPoint(1, 0, 1, colour::Red);
  picGraph2DPlotPoint(1, -3, -2, colour::Green, 0.3);
  picGraph2DPrintRotated(1, Atn2Degrees(2), 1.5, 2.5, "y = 2x + 1", colour::Red, 8);
  ExpectGolden(Box(), "coordinate_plane");
  NumberLine("arrows", 2);
  ExpectGolden(Box(), "number_line");
}

TEST_F(GraphsTest, PaintFillsAFigureUpToItsLines) {
  Plane();
  PaintGraph(1, 48, 66, colour::Yellow, colour::Cyan);  // inside one square of the grid
  EXPECT_EQ(PlaceOf(ExtentOf(Box(), colour::Yellow)), "(41, 55) 15 x 14");
}

TEST_F(GraphsTest, OlderCoordinatesAreConverted) {
  OldPSet(7, 16);
  EXPECT_EQ(Panel().Pixel(Pixel7X(7), Pixel8Y1(16)), colour::White);
  OldBox(14, 40, 70, 80, colour::Yellow);
  const platform::PixelRect box = ExtentOf(Panel(), colour::Yellow);
  EXPECT_EQ(box.left, Pixel7X(14));
  EXPECT_EQ(box.left + box.width - 1, Pixel7X(70));
  EXPECT_EQ(box.top + box.height - 1, Pixel8Y1(80));
  EXPECT_EQ(Panel().Pixel(box.left + 5, box.top + 5), colour::Blue);
  OldLine(14, 100, 70, 100, colour::Red);
  EXPECT_EQ(ExtentOf(Panel(), colour::Red).height, 1);
}

TEST_F(GraphsTest, TheOldHighlightIsTakenAwayByASecondCall) {
  OldFilledBox(14, 40, 70, 80, 1);
  // Blue turns white, 4 pixels below the converted corners.
  EXPECT_EQ(ExtentOf(Panel(), colour::White).top, Pixel8Y1(40) + 4);
  EXPECT_EQ(Panel().DrawMode, platform::DrawModes::CopyPen);
  OldFilledBox(14, 40, 70, 80, 1);
  EXPECT_EQ(ExtentOf(Panel(), colour::White).width, 0);
  OldFilledBox(14, 40, 70, 40, 2);
  EXPECT_EQ(ExtentOf(Panel(), colour::White).top, Pixel8Y1(40));
}

TEST_F(GraphsTest, AnglesOfTheOldCircleAreBroughtIntoOneTurn) {
  const auto circle = [](double start, double end) {
    Panel().Cls();
    OldCircle(140, 96, 35, 5 / 6.0, colour::White, start, end);
    return PictureOf(Panel());
  };
  const PixelPicture whole = circle(0, 360);
  EXPECT_EQ(ExtentOf(Panel(), colour::White).width, 121);  // 35 * 480 / 280 = 60 pixels
  EXPECT_EQ(ExtentOf(Panel(), colour::White).height, 121);
  EXPECT_EQ(circle(-90, 270), whole);
  EXPECT_EQ(circle(450, -180), circle(90, 180));
  EXPECT_NE(circle(90, 180), whole);
}

}  // namespace
}  // namespace course::testing
