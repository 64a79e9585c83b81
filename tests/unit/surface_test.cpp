// What drawing leaves on a surface, to the pixel.
#include "platform/surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "support/scratch_folder.h"
#include "unit/surface_ink.h"

namespace platform {
namespace {

using Picture = std::vector<std::string>;

char Letter(Colour colour) {
  switch (colour) {
    case colour::White:
      return '.';
    case colour::Black:
      return '#';
    case colour::Red:
      return 'r';
    case colour::Blue:
      return 'b';
    default:
      return '?';
  }
}

// A row of text for each row of pixels.
Picture Shown(const Surface& surface) {
  Picture picture;
  for (int y = 0; y < surface.PixelHeight(); ++y) {
    std::string& row = picture.emplace_back();
    for (int x = 0; x < surface.PixelWidth(); ++x) row += Letter(surface.Pixel(x, y));
  }
  return picture;
}

class WatchedSurface : public Surface {
 public:
  using Surface::Surface;
  std::vector<PixelRect> shown;

 protected:
  void ShowRect(const PixelRect& changed) override { shown.push_back(changed); }
};

TEST(SurfaceLines, BothEndPointsAreDrawnInEveryDirection) {
  Surface s(7, 5);
  s.Line(0, 0, 6, 0);
  s.Line(6, 4, 0, 2);
  s.Line(3, 1, 3, 1, colour::Red);
  EXPECT_EQ(Shown(s), (Picture{"#######",  //
                               "...r...",  //
                               "##.....",  //
                               "..###..",  //
                               ".....##"}));
  Surface back(7, 5);
  back.Line(6, 0, 0, 0);
  back.Line(0, 2, 6, 4);
  back.PSet(3, 1, colour::Red);
  EXPECT_EQ(Shown(back), Shown(s));
}

TEST(SurfaceLines, SteepLinesTakeOnePixelARow) {
  Surface s(5, 7);
  s.Line(0, 0, 2, 6);
  EXPECT_EQ(Shown(s), (Picture{"#....", "#....", ".#...", ".#...", ".#...", "..#..", "..#.."}));
}

TEST(SurfaceLines, ClippingDoesNotBendALine) {
  Surface whole(60, 40);
  whole.Line(0, 3, 59, 37);
  Surface window(20, 12);
  window.Line(0 - 20, 3 - 12, 59 - 20, 37 - 12);
  for (int y = 0; y < 12; ++y)
    for (int x = 0; x < 20; ++x)
      EXPECT_EQ(window.Pixel(x, y), whole.Pixel(x + 20, y + 12)) << x << ", " << y;
  window.Cls();
  window.Line(-1e9, -1e9, 1e9, 1e9);
  EXPECT_EQ(window.Pixel(5, 5), colour::Black);
}

TEST(SurfaceLines, ThickLinesAreCentredAndEvenOnesLieUpAndLeft) {
  Surface s(9, 7);
  s.DrawWidth = 3;
  s.Line(2, 2, 6, 2);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               ".#######.",  //
                               ".#######.",  //
                               ".#######.",  //
                               ".........", ".........", "........."}));
  s.Cls();
  s.DrawWidth = 2;
  s.Line(2, 2, 2, 5);
  s.PSet(7, 3);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               ".##......",  //
                               ".##...##.",  //
                               ".##...##.",  //
                               ".##......",  //
                               ".##......", "........."}));
  s.Cls();
  s.DrawWidth = 5;
  s.PSet(4, 3);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               "...###...",  //
                               "..#####..",  //
                               "..#####..",  //
                               "..#####..",  //
                               "...###...", "........."}));
}

TEST(SurfaceBoxes, CornersAreInsideAndTheirOrderDoesNotMatter) {
  Surface s(9, 6);
  s.Box(1, 1, 4, 4);
  s.FilledBox(7, 3, 6, 0, colour::Red);
  EXPECT_EQ(Shown(s), (Picture{"......rr.",  //
                               ".####.rr.",  //
                               ".#..#.rr.",  //
                               ".#..#.rr.",  //
                               ".####....",  //
                               "........."}));
  EXPECT_EQ(s.CurrentX, 6);
  EXPECT_EQ(s.CurrentY, 0);
  s.Cls();
  s.DrawWidth = 3;
  s.Box(2, 1, 6, 4);
  EXPECT_EQ(Shown(s), (Picture{".#######.", ".#######.", ".#######.",  //
                               ".#######.", ".#######.", ".#######."}));
  s.FilledBox(-5, -5, 50, 50, colour::Blue);
  EXPECT_EQ(Shown(s), Picture(6, std::string(9, 'b')));
}

TEST(SurfaceBoxes, ExclusiveOrTwiceRestoresEverything) {
  Surface s(30, 20);
  s.FilledBox(3, 3, 12, 12, colour::Red);
  s.Circle(15, 10, 6, colour::Blue);
  const Picture before = Shown(s);
  const auto invert = [&s] {
    s.DrawMode = DrawModes::Xor;
    for (const int width : {1, 2, 3}) {
      s.DrawWidth = width;
      s.Line(2, 2, 25, 17, colour::White);
      s.Box(4, 4, 20, 15, colour::White);
      s.Box(22, 4, 23, 5, colour::White);
      s.Circle(15, 10, 7, colour::White);
    }
    s.FilledBox(0, 5, 29, 12, colour::White);
    s.DrawMode = DrawModes::CopyPen;
  };
  invert();
  EXPECT_EQ(s.Pixel(0, 6), colour::Black);
  invert();
  EXPECT_EQ(Shown(s), before);
}

TEST(SurfaceCircles, OutlineFillAndArcs) {
  Surface s(9, 9);
  s.FillStyle = FillStyles::Solid;
  s.FillColor = colour::Red;
  s.Circle(4, 4, 3);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               "...###...",  //
                               "..#rrr#..",  //
                               ".#rrrrr#.",  //
                               ".#rrrrr#.",  //
                               ".#rrrrr#.",  //
                               "..#rrr#..",  //
                               "...###...", "........."}));
  s.Cls();
  s.Circle(4, 4, 3, {}, 0, 90);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               "....##...",  //
                               "......#..",  //
                               ".......#.",  //
                               ".......#.",  //
                               ".........", ".........", ".........", "........."}));
  s.Cls();
  s.Circle(4, 4, 3, {}, 270, 90);
  EXPECT_EQ(s.Pixel(7, 5), colour::Black);
  EXPECT_EQ(s.Pixel(1, 4), colour::White);
  s.Cls();
  s.Circle(4, 4, 3, {}, 0, 0);  // a whole turn
  EXPECT_EQ(s.Pixel(1, 4), colour::Black);
  EXPECT_EQ(s.Pixel(4, 4), colour::Red);
}

TEST(SurfaceCircles, AspectFlattensAndThickOutlinesGrowBothWays) {
  Surface s(21, 21);
  s.Circle(10, 10, 8, {}, 0, 360, 0.5);
  PixelRect ink = InkBounds(s, colour::White);
  EXPECT_EQ(ink.width, 17);
  EXPECT_EQ(ink.height, 9);
  s.Cls();
  s.Circle(10, 10, 8, {}, 0, 360, 2);
  ink = InkBounds(s, colour::White);
  EXPECT_EQ(ink.width, 9);
  EXPECT_EQ(ink.height, 17);
  s.Cls();
  s.DrawWidth = 3;
  s.Circle(10, 10, 6);
  EXPECT_EQ(Shown(s)[10], "...###.........###...");
}

TEST(SurfaceScale, MapsBothAxesAndGivesTrueCircles) {
  Surface s(208, 104);
  s.Scale(-6.5, 6.5, 6.5, -6.5);
  EXPECT_EQ(s.ScaleWidth(), 13);
  EXPECT_EQ(s.ScaleHeight(), -13);
  s.PSet(0, 0, colour::Red);
  s.PSet(-6.5, 6.5, colour::Red);
  EXPECT_EQ(s.Pixel(104, 52), colour::Red);
  EXPECT_EQ(s.Pixel(0, 0), colour::Red);
  s.Line(1, 5.5, 1, -5.5);
  EXPECT_EQ(s.Pixel(120, 8), colour::Black);
  EXPECT_EQ(s.Pixel(120, 96), colour::Black);
  EXPECT_EQ(s.Pixel(120, 97), colour::White);
  s.Cls();
  s.Circle(0, 0, 0.5);  // 8 pixels
  const PixelRect ink = InkBounds(s, colour::White);
  EXPECT_EQ(ink.width, 17);
  EXPECT_EQ(ink.height, 17);
  s.ScalePixels();
  EXPECT_EQ(s.ScaleWidth(), 208);
}

TEST(SurfaceScale, HalvesAreRoundedToEven) {
  Surface s(6, 1);
  s.PSet(0.5, 0);
  s.PSet(1.5, 0, colour::Red);
  s.PSet(2.5, 0, colour::Blue);
  EXPECT_EQ(Shown(s)[0], "#.b...");
}

TEST(SurfaceBlit, OverlapsAreCopiedAsIfThroughABuffer) {
  for (const int dx : {-1, 0, 1})
    for (const int dy : {-1, 0, 1}) {
      Surface original(12, 10);
      for (int i = 0; i < 10; ++i)
        original.Line(i, (i * 7) % 10, (i * 5) % 12, i, i % 2 ? colour::Red : colour::Blue);
      Surface moved(12, 10);
      moved.BitBlt(0, 0, 12, 10, original, 0, 0);
      moved.BitBlt(3 + dx, 2 + dy, 7, 6, moved, 3, 2);
      for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 7; ++x)
          EXPECT_EQ(moved.Pixel(3 + dx + x, 2 + dy + y), original.Pixel(3 + x, 2 + y));
    }
}

TEST(SurfaceBlit, WhatLiesOutsideTheSourceIsNotCopied) {
  Surface source(4, 3);
  source.FillRect({0, 0, 4, 3}, colour::Red);
  Surface s(8, 5);
  s.BitBlt(1, 1, 6, 4, source, -1, -1);
  s.BitBlt(7, -2, 5, 3, source, 0, 0);
  s.BitBlt(0, 0, -3, 2, source, 0, 0);
  EXPECT_EQ(Shown(s), (Picture{".......r",  //
                               "........",  //
                               "..rrrr..",  //
                               "..rrrr..",  //
                               "..rrrr.."}));
}

TEST(SurfaceFloodFill, StopsAtTheBoundaryOnlyAndPassesOverOtherColours) {
  Surface s(9, 6);
  s.Box(1, 1, 7, 4);
  s.PSet(3, 2, colour::Blue);
  s.FloodFill(2, 2, colour::Red, colour::Black);
  EXPECT_EQ(Shown(s), (Picture{".........",  //
                               ".#######.",  //
                               ".#rrrrr#.",  //
                               ".#rrrrr#.",  //
                               ".#######.", "........."}));
  const Picture before = Shown(s);
  s.FloodFill(1, 1, colour::Blue, colour::Black);  // on the boundary
  s.FloodFill(20, 1, colour::Blue, colour::Black);
  EXPECT_EQ(Shown(s), before);
  s.FloodFill(0, 0, colour::White, colour::Blue);  // nothing stops it; its own colour is no end
  EXPECT_EQ(Shown(s), Picture(6, std::string(9, '.')));
}

TEST(SurfaceShapes, PolygonHasItsOutlineAndItsInside) {
  Surface s(9, 6);
  const std::array<PixelPoint, 3> head{{{1, 2}, {7, 0}, {7, 4}}};
  s.Polygon(head, colour::Red);
  EXPECT_EQ(Shown(s), (Picture{"......rr.",  //
                               "...rrrrr.",  //
                               ".rrrrrrr.",  //
                               "...rrrrr.",  //
                               "......rr.", "........."}));
}

TEST(SurfaceShapes, RoundRectCutsItsCornersAndKeepsToItsRectangle) {
  Surface s(12, 10);
  s.RoundRect({1, 1, 10, 8}, 4, 4, colour::Black, 1, colour::Red);
  EXPECT_EQ(Shown(s), (Picture{"............",  //
                               "...######...",  //
                               "..#rrrrrr#..",  //
                               ".#rrrrrrrr#.",  //
                               ".#rrrrrrrr#.",  //
                               ".#rrrrrrrr#.",  //
                               ".#rrrrrrrr#.",  //
                               "..#rrrrrr#..",  //
                               "...######...", "............"}));
}

TEST(SurfaceRefresh, ShowsOnlyWhatChangedAndOnlyOnce) {
  WatchedSurface s(100, 80);
  s.Refresh();
  ASSERT_EQ(s.shown.size(), 1u);
  EXPECT_EQ(s.shown[0].width, 100);
  s.Refresh();
  EXPECT_EQ(s.shown.size(), 1u);
  s.FillRect({90, 70, 50, 50}, colour::Red);
  s.FilledBox(60, 75, 70, 78);
  s.Refresh();
  ASSERT_EQ(s.shown.size(), 2u);
  EXPECT_EQ(s.shown[1].left, 60);
  EXPECT_EQ(s.shown[1].top, 70);
  EXPECT_EQ(s.shown[1].width, 40);
  EXPECT_EQ(s.shown[1].height, 10);
}

// Whatever is drawn lies inside the rectangle that Refresh hands on.
TEST(SurfaceRefresh, NothingIsDrawnOutsideTheShownRectangle) {
  const std::vector<void (*)(Surface&)> drawings = {
      [](Surface& s) { s.DrawWidth = 4, s.Line(30, 20, 60, 44); },
      [](Surface& s) { s.DrawWidth = 4, s.Box(30, 20, 60, 44); },
      [](Surface& s) { s.DrawWidth = 5, s.Circle(40, 40, 15.4); },
      [](Surface& s) {
        s.RoundRect({20, 20, 40, 30}, 9, 9, colour::Red, 3);
      },
      [](Surface& s) { SetTutorFont(s), s.TextOut(20, 20, "gW@|"); },
      [](Surface& s) { s.FontSize = 14, s.FontItalic = true, s.TextOut(20, 20, "fjW", 0); },
      [](Surface& s) { s.CurrentX = 30, s.CurrentY = 30, s.Print("fjg_"); },
      [](Surface& s) { s.PrintRotated("y = 2x", 40, 60, 63, 0, "Arial", 10, true); },
      [](Surface& s) { s.FloodFill(1, 1, colour::Red, colour::Black); },
  };
  for (std::size_t i = 0; i < drawings.size(); ++i) {
    WatchedSurface s(100, 90);
    s.Refresh();
    drawings[i](s);
    s.Refresh();
    ASSERT_EQ(s.shown.size(), 2u) << i;
    const PixelRect ink = InkBounds(s, colour::White);
    const PixelRect& shown = s.shown[1];
    EXPECT_GT(ink.width, 0) << i;
    EXPECT_GE(ink.left, shown.left) << i;
    EXPECT_GE(ink.top, shown.top) << i;
    EXPECT_LE(ink.left + ink.width, shown.left + shown.width) << i;
    EXPECT_LE(ink.top + ink.height, shown.top + shown.height) << i;
  }
}

TEST(SurfaceFiles, APngIsWrittenOrRefused) {
  const course::testing::ScratchFolder folder;
  Surface s(20, 10);
  EXPECT_TRUE(s.SavePng(folder.Path() + "surface.png"));
  EXPECT_EQ(folder.Bytes("surface.png").substr(0, 4), "\x89PNG");
  EXPECT_FALSE(s.SavePng("/nowhere/at/all.png"));
}

}  // namespace
}  // namespace platform
