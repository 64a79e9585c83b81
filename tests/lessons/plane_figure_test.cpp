// Lines, points and labels on the plane, pixel by pixel.
#include "lessons/families/graphs/plane_figure.h"

#include "display/graphs.h"
#include "lessons/families/systems/linear_system.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace graphs;
using namespace systems;

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
        DrawOnPlane(1, {LineItem(m, b)}, kInk);
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

// What labels cover of a figure that was drawn without them: pixels that are neither paper nor
// grid, and the outermost ones, which a label that were cut would reach.
int CoveredByLabels(const std::vector<FigureItem>& items,
                    PlaneHeight planeHeight = PlaneHeight::Full) {
  constexpr int square = 20;
  const platform::PictureBox& box = frmPR->picGraph2D[1];
  const int width = 13 * square;
  const int height = (2 * static_cast<int>(planeHeight) + 3) * square;
  std::vector<FigureItem> unnamed = items;
  for (FigureItem& item : unnamed) item.label = "";
  ShowPlane(1, 4, 23.75, square, planeHeight);
  DrawOnPlane(1, unnamed, kInk);
  std::vector<platform::Colour> before;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) before.push_back(box.Pixel(x, y));
  ShowPlane(1, 4, 23.75, square, planeHeight);
  DrawOnPlane(1, items, kInk);
  int covered = 0;
  int labelled = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const platform::Colour old = before[static_cast<std::size_t>(y * width + x)];
      if (box.Pixel(x, y) == old) continue;
      ++labelled;
      const bool atEdge = x == 0 || y == 0 || x == width - 1 || y == height - 1;
      covered += atEdge || (old != colour::White && old != colour::Cyan) ? 1 : 0;
    }
  }
  EXPECT_GT(labelled, 100);
  return covered;
}

TEST_F(PlaneFigureTest, TheLabelOfALineIsWholeAndCoversNothing) {
  for (int m = -3; m <= 3; ++m)
    for (int b = -5; b <= 5; ++b)
      EXPECT_EQ(CoveredByLabels({LineItem(m, b, "y = -2x - 3")}), 0) << "y = " << m << "x + " << b;
  for (const int x : {-5, -1, 1, 5})
    EXPECT_EQ(CoveredByLabels({Broken(UprightItem(x, "x = -5"))}), 0) << x;
}

FigureItem NamedPoint(int x, int y) {
  return PointItem(x, y, PairText(x, y));
}

FigureItem NamedLine(int slope, int intercept) {
  return LineItem(slope, intercept, SlopeInterceptText({-slope, 1, intercept}));
}

// Both lines of a system whose point is on the grid: with the point, and as they are graphed.
void ExpectSystemIsLabelled(int m1, int b1, int m2, int b2) {
  if ((b2 - b1) % (m1 - m2) != 0) return;
  SCOPED_TRACE(SlopeInterceptText({-m1, 1, b1}) + " and " + SlopeInterceptText({-m2, 1, b2}));
  const int x = (b2 - b1) / (m1 - m2);
  const int y = m1 * x + b1;
  const FigureItem first = NamedLine(m1, b1);
  const FigureItem second = Broken(NamedLine(m2, b2));
  EXPECT_EQ(CoveredByLabels({first, second, GuidesItem(x, y), NamedPoint(x, y)}), 0);
  EXPECT_EQ(
      CoveredByLabels({NamedPoint(0, b1), StepItem(0, b1, 1, m1), NamedPoint(1, b1 + m1), first,
                       NamedPoint(0, b2), StepItem(0, b2, 1, m2), NamedPoint(1, b2 + m2), second}),
      0);
}

TEST_F(PlaneFigureTest, TheLabelsOfASystemCoverNothing) {
  for (const int m1 : {-2, -1})
    for (const int m2 : {1, 2})
      for (int b1 = -3; b1 <= 3; ++b1)
        for (int b2 = -3; b2 <= 3; ++b2) {
          ExpectSystemIsLabelled(m1, b1, m2, b2);
          ExpectSystemIsLabelled(m2, b1, m1, b2);
        }
}

TEST_F(PlaneFigureTest, ALowPlaneHasThreeSquaresUpAndDown) {
  constexpr int square = 20;
  ShowPlane(1, 4, 23.75, square, PlaneHeight::Low);
  ASSERT_EQ(Box().PixelHeight(), 9 * square);
  const auto at = [&](int x, int y) {
    return Box().Pixel(x * square + 13 * square / 2, 9 * square / 2 - y * square);
  };
  for (const int y : {-3, 3}) {
    EXPECT_EQ(at(4, y), colour::Cyan);
    EXPECT_EQ(at(4, y + y / 3), colour::White);
  }
  for (const int x : {-5, -2, 2, 5})
    for (const int y : {-3, -2, 2, 3})
      EXPECT_EQ(CoveredByLabels({PointItem(x, y, "(-2,-3)")}, PlaneHeight::Low), 0)
          << x << "," << y;
}

TEST_F(PlaneFigureTest, AnArrowLiesOnItsLineAndEndsAtItsPoint) {
  constexpr int square = 20;
  constexpr int zero = 13 * square / 2;
  ShowPlane(1, 4, 23.75, square);
  DrawArrows(1, StepItem(0, 0, -3, 4), kInk);
  for (const int x : {-1, -2}) EXPECT_EQ(At(x, 0, square), kInk);
  for (const int y : {1, 2, 3}) EXPECT_EQ(At(-3, y, square), kInk);
  EXPECT_NE(At(-4, 0, square), kInk);
  EXPECT_NE(Box().Pixel(zero - 3 * square, zero - 4 * square - 1), kInk);
  // As far above its line as below, and to both sides.
  for (int away = 1; away < square / 2; ++away) {
    const int x = zero - square - square / 2;
    EXPECT_EQ(Box().Pixel(x, zero - away) == kInk, Box().Pixel(x, zero + away) == kInk) << away;
    const int column = zero - 3 * square;
    const int y = zero - 2 * square - square / 2;
    EXPECT_EQ(Box().Pixel(column - away, y) == kInk, Box().Pixel(column + away, y) == kInk) << away;
  }
}

TEST_F(PlaneFigureTest, OddSquaresStop) {
  ExpectStop("ShowPlane: square = 15", [] { ShowPlane(1, 4, 20, 15); });
}

}  // namespace
}  // namespace course::testing
