// What drawing leaves on a surface, to the pixel.
#include "platform/surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <vector>

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

// Pixels that are not the ground's, as the smallest rectangle; nothing has width 0.
PixelRect InkBounds(const Surface& surface, Colour ground) {
  int left = surface.PixelWidth();
  int right = -1;
  int top = surface.PixelHeight();
  int bottom = -1;
  for (int y = 0; y < surface.PixelHeight(); ++y)
    for (int x = 0; x < surface.PixelWidth(); ++x) {
      if (surface.Pixel(x, y) == ground) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  if (right < 0) return {};
  return {left, top, right - left + 1, bottom - top + 1};
}

void SetTutorFont(Surface& surface, double points = 20) {
  surface.FontName = "Courier New";
  surface.FontBold = true;
  surface.FontSize = points;
}

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

TEST(SurfaceText, InkStaysInsideItsCellAndTheErasedBand) {
  Surface s(64, 48);
  s.BackColor = colour::Black;
  s.ForeColor = colour::White;
  SetTutorFont(s);
  for (int code = 33; code < 127; ++code) {
    s.Cls();
    s.TextOut(16, 8, std::string(1, static_cast<char>(code)));
    const PixelRect ink = InkBounds(s, colour::Black);
    EXPECT_GT(ink.width, 0) << code;
    EXPECT_GE(ink.left, 16) << code;
    EXPECT_LE(ink.left + ink.width, 32) << code;
    EXPECT_GE(ink.top, 8 + 4) << code;
    EXPECT_LE(ink.top + ink.height, 8 + 29) << code;
  }
}

TEST(SurfaceText, SmallSizesStandOnTheirBaselinesAndInTheirCells) {
  struct {
    double points;
    int cellWidth;
    int baseline;
  } const sizes[] = {{9, 7, 10},   {10, 8, 11},  {12, 10, 13}, {14, 16, 16},
                     {15, 12, 17}, {18, 16, 20}, {20, 16, 23}};
  Surface s(64, 48);
  for (const auto& size : sizes) {
    SetTutorFont(s, size.points);
    s.Cls();
    s.TextOut(20, 8, "H", size.cellWidth);
    const PixelRect letter = InkBounds(s, colour::White);
    EXPECT_EQ(letter.top + letter.height, 8 + size.baseline) << size.points;
    s.Cls();
    s.TextOut(20, 8, "W", size.cellWidth);
    const PixelRect wide = InkBounds(s, colour::White);
    EXPECT_GE(wide.left, 20) << size.points;
    EXPECT_LE(wide.left + wide.width, 20 + size.cellWidth) << size.points;
  }
}

TEST(SurfaceText, CharactersStandAtTheirCellsWhateverStandsBeforeThem) {
  Surface line(96, 40);
  Surface single(96, 40);
  SetTutorFont(line);
  SetTutorFont(single);
  line.TextOut(16, 5, "il W\xFFx");
  single.TextOut(16 + 5 * 16, 5, "x");
  single.TextOut(16, 5, "i");
  single.TextOut(32, 5, "l");
  single.TextOut(64, 5, "W");
  for (int x = 0; x < 80; ++x)
    for (int y = 0; y < 40; ++y) EXPECT_EQ(line.Pixel(x, y), single.Pixel(x, y));
}

TEST(SurfaceText, ClippedTextShowsTheSamePixels) {
  Surface whole(120, 60);
  SetTutorFont(whole);
  whole.TextOut(30, 20, "Wgx");
  Surface part(40, 18);
  SetTutorFont(part);
  part.TextOut(30 - 36, 20 - 26, "Wgx");
  for (int y = 0; y < 18; ++y)
    for (int x = 0; x < 40; ++x)
      EXPECT_EQ(part.Pixel(x, y), whole.Pixel(x + 36, y + 26)) << x << ", " << y;
}

TEST(SurfaceText, TheSamePrintGivesTheSamePixelsOverAnyGroundsBefore) {
  Surface first(200, 40);
  Surface second(200, 40);
  SetTutorFont(first);
  SetTutorFont(second);
  first.ForeColor = second.ForeColor = colour::Red;
  first.TextOut(8, 4, "6x - 12 < 0");
  Surface other(40, 40);
  SetTutorFont(other);
  other.FillRect({0, 0, 40, 40}, colour::Blue);
  other.TextOut(0, 0, "6x");
  second.TextOut(8, 4, "6x - 12 < 0");
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 200; ++x) ASSERT_EQ(first.Pixel(x, y), second.Pixel(x, y));
}

TEST(SurfaceText, CodesWithoutALetterPrintNothingAndOthersTheirOwnLetter) {
  Surface s(40, 40);
  SetTutorFont(s);
  for (const int code : {0, 9, 13, 32, 127, 129, 141, 143, 144, 157, 160}) {
    s.Cls();
    s.TextOut(8, 5, std::string(1, static_cast<char>(code)));
    EXPECT_EQ(InkBounds(s, colour::White).width, 0) << code;
  }
  s.TextOut(8, 5, "\xB7");  // a dot in the middle of its cell
  const PixelRect dot = InkBounds(s, colour::White);
  EXPECT_LE(dot.width, 6);
  EXPECT_LE(dot.height, 6);
  EXPECT_NEAR(dot.left + dot.width / 2, 16, 1);
  EXPECT_NEAR(dot.top + dot.height / 2, 5 + 15, 2);
}

TEST(SurfaceText, PrintMovesBehindTheTextAndStartsAtItsTop) {
  Surface s(300, 60);
  s.FontName = "Times New Roman";
  s.FontSize = 18;
  s.CurrentX = 10;
  s.CurrentY = 20;
  s.Print("None of ");
  s.Print("the above");
  EXPECT_NEAR(s.CurrentX, 10 + s.TextWidth("None of the above"), 0.01);
  EXPECT_EQ(s.CurrentY, 20);
  const PixelRect ink = InkBounds(s, colour::White);
  EXPECT_GE(ink.top, 20);
  EXPECT_LE(ink.top + ink.height, 20 + s.TextHeight("N"));
  EXPECT_NEAR(ink.width, s.TextWidth("None of the above"), 3);
  EXPECT_EQ(s.TextWidth(""), 0);
}

TEST(SurfaceText, SizesDoNotDependOnTheScreen) {
  Surface s(10, 10);
  s.FontName = "Arial";
  s.FontSize = 12;  // 16 pixels: the twin's digits are 1139/2048 of the size wide
  EXPECT_NEAR(s.TextWidth("0000"), 4 * 16 * 1139 / 2048.0, 0.1);
  s.Scale(0, 10, 20, 0);
  EXPECT_NEAR(s.TextWidth("0000"), 8 * 16 * 1139 / 2048.0, 0.1);
  EXPECT_GT(s.TextHeight("0"), 0);
}

TEST(SurfaceText, SymbolsShowTheirSignsOnTheLineOfTheOtherCharacters) {
  for (const char code : {char(112), char(165), char(174)}) {
    Surface s(60, 60);
    s.FontName = "Symbol";
    s.FontSize = 18;
    s.FontBold = true;
    s.CurrentX = 10;
    s.CurrentY = 10;
    s.Print(std::string(1, code));
    const PixelRect ink = InkBounds(s, colour::White);
    EXPECT_GE(ink.width, 10) << int(code);
    EXPECT_GE(ink.height, 6) << int(code);
    EXPECT_LE(ink.top + ink.height, 10 + 26) << int(code);
    EXPECT_GE(ink.top, 10 + 6) << int(code);
  }
}

TEST(SurfaceText, RotatedTextTurnsCounterClockwiseAroundItsTopLeft) {
  Surface s(200, 200);
  s.PrintRotated("y = 2x", 100, 100, 0, colour::Black, "Arial", 10, false);
  const PixelRect level = InkBounds(s, colour::White);
  EXPECT_GE(level.left, 100);
  EXPECT_GE(level.top, 100);
  s.Cls();
  s.PrintRotated("y = 2x", 100, 100, 90, colour::Black, "Arial", 10, false);
  const PixelRect upright = InkBounds(s, colour::White);
  EXPECT_GE(upright.left, 100);
  EXPECT_LE(upright.top + upright.height, 100 + 1);
  EXPECT_NEAR(upright.height, level.width, 1);
}

TEST(SurfaceText, UnderlineAndStrikethruRunUnderWholeCells) {
  Surface s(64, 40);
  SetTutorFont(s);
  s.FontUnderline = true;
  s.TextOut(16, 5, "  ");
  PixelRect ink = InkBounds(s, colour::White);
  EXPECT_EQ(ink.left, 16);
  EXPECT_EQ(ink.width, 32);
  EXPECT_GT(ink.top, 5 + 23);
  EXPECT_LE(ink.top + ink.height, 5 + 29);
  s.Cls();
  s.FontUnderline = false;
  s.FontStrikethru = true;
  s.TextOut(16, 5, "  ");
  ink = InkBounds(s, colour::White);
  EXPECT_EQ(ink.width, 32);
  EXPECT_LT(ink.top, 5 + 20);
}

TEST(SurfacePictures, ArePaintedAtTheirOwnSizeFittedOrInParts) {
  Surface s(80, 80);
  s.DrawPicture("letter_a", 10, 10);
  const PixelRect own = InkBounds(s, colour::White);
  EXPECT_GE(own.left, 10);
  EXPECT_LE(own.left + own.width, 10 + 34);
  EXPECT_GT(own.width, 25);
  Surface part(80, 80);
  part.DrawPicturePart("letter_a", 20, 20, {10, 10, 15, 15});
  for (int y = 20; y < 35; ++y)
    for (int x = 20; x < 35; ++x) EXPECT_EQ(part.Pixel(x, y), s.Pixel(x, y));
  EXPECT_EQ(part.Pixel(19, 25), colour::White);
  EXPECT_EQ(part.Pixel(35, 25), colour::White);
  s.Cls();
  s.DrawPicture("letter_a", {0, 0, 68, 68});
  EXPECT_GT(InkBounds(s, colour::White).width, 50);
}

TEST(SurfaceFiles, APngIsWrittenOrRefused) {
  const auto file = std::filesystem::temp_directory_path() / "surface_test.png";
  Surface s(20, 10);
  EXPECT_TRUE(s.SavePng(file.string()));
  EXPECT_GT(std::filesystem::file_size(file), 0u);
  std::filesystem::remove(file);
  EXPECT_FALSE(s.SavePng("/nowhere/at/all.png"));
}

}  // namespace
}  // namespace platform
