// Text and pictures on a surface: where their ink may lie, and that it is the same every time.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "platform/surface.h"
#include "platform/user.h"
#include "unit/surface_ink.h"

namespace platform {
namespace {

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

struct Stopped : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Somebody before whom the program may stop without ending.
class StopWitness final : public User {
 public:
  void AtWait(const std::string&) override {}
  void AtPause(double) override {}
  Answer AtMessage(const Message&) override { return Answer::Ok; }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  [[noreturn]] void AtStop(const std::string& message) override { throw Stopped(message); }
  [[noreturn]] void AtEnd() override { throw Stopped("end"); }
};

TEST(SurfacePictures, ANameThatDoesNotExistStopsTheProgramAndIsTold) {
  StopWitness witness;
  User* const before = InstalledUser();
  InstallUser(&witness);
  Surface s(10, 10);
  try {
    s.DrawPicture("no_such_picture", 0, 0);
    ADD_FAILURE() << "the program went on";
  } catch (const Stopped& stopped) {
    EXPECT_NE(std::string(stopped.what()).find("no_such_picture"), std::string::npos);
  }
  InstallUser(before);
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

}  // namespace
}  // namespace platform
