// Lines, points and labels on the plane, pixel by pixel.
#include "lessons/families/graphs/plane_figure.h"

#include <cstdlib>

#include "display/graphs.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace graphs;

namespace colour = platform::colour;

constexpr platform::Colour kInk = platform::Rgb(200, 0, 0);

class PlaneFigureTest : public DisplayTest {
 protected:
  static platform::PictureBox& Box() { return frmPR->picGraph2D[1]; }
  // A place in grid squares, which must be the middle of a pixel's square.
  static platform::Colour At(int x, int y, int square) {
    return Box().Pixel(x * square + 13 * square / 2, 13 * square / 2 - y * square);
  }
};

TEST_F(PlaneFigureTest, EveryLineRunsThroughTheCrossingsOfTheGrid) {
  for (const int square : {16, 20}) {
    for (int m = -3; m <= 3; ++m) {
      for (int b = -5; b <= 5; ++b) {
        ShowPlane(1, 4, 23.75, square);
        ASSERT_EQ(Box().PixelWidth(), 13 * square);
        ASSERT_EQ(Box().PixelHeight(), 13 * square);
        ASSERT_EQ(At(3, -4, square), colour::Cyan);
        DrawPlaneLine(1, m, b, kInk);
        for (int x = -5; x <= 5; ++x)
          for (int y = -5; y <= 5; ++y)
            EXPECT_EQ(At(x, y, square) == kInk, y == m * x + b)
                << "y = " << m << "x + " << b << " at (" << x << "," << y << "), " << square;
      }
    }
  }
}

TEST_F(PlaneFigureTest, APointIsRoundAboutItsCrossing) {
  ShowPlane(1, 4, 23.75, 20);
  picGraph2DPlotPoint(1, 3, -2, kInk);
  const int x = 3 * 20 + 130;
  const int y = 130 + 2 * 20;
  int width = 0;
  while (Box().Pixel(x + width, y) == kInk) ++width;
  for (int i = 1; i < width; ++i) {
    EXPECT_EQ(Box().Pixel(x - i, y), kInk);
    EXPECT_EQ(Box().Pixel(x, y - i), kInk);
    EXPECT_EQ(Box().Pixel(x, y + i), kInk);
  }
  EXPECT_GE(width, 3);
}

// A label that were cut would reach the outermost pixels.
TEST_F(PlaneFigureTest, TheLabelOfALineIsWholeAndBesideIt) {
  for (const int m : {-3, -2, -1, 0, 1, 2, 3}) {
    for (int b = -5; b <= 5; ++b) {
      SCOPED_TRACE("y = " + std::to_string(m) + "x + " + std::to_string(b));
      picGraph2DPrepare(1, 4, 23.75, 13 * 20 / 16.0, 13 * 20 / 25.0);
      Box().Scale(-6.5, 6.5, 6.5, -6.5);
      LabelPlaneLine(1, m, b, "y = -2x - 3", kInk);
      EXPECT_TRUE(HasInk(Box(), 1, 1, 259, 259, colour::White));
      EXPECT_FALSE(HasInk(Box(), 0, 0, 260, 1, colour::White) ||
                   HasInk(Box(), 0, 259, 260, 260, colour::White) ||
                   HasInk(Box(), 0, 0, 1, 260, colour::White) ||
                   HasInk(Box(), 259, 0, 260, 260, colour::White));
      const auto pixelsOfLabel = [&] {
        int count = 0;
        for (int y = 0; y < 260; ++y)
          for (int x = 0; x < 260; ++x) count += Box().Pixel(x, y) != colour::White;
        return count;
      };
      const int alone = pixelsOfLabel();
      DrawPlaneLine(1, m, b, colour::White);  // what the line covers of the label is gone
      EXPECT_EQ(pixelsOfLabel(), alone);
    }
  }
}

TEST_F(PlaneFigureTest, OddSquaresStop) {
  ExpectStop("ShowPlane: square = 15", [] { ShowPlane(1, 4, 20, 15); });
}

}  // namespace
}  // namespace course::testing
