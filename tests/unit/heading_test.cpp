// The shadowed heading of a banner or a comment box.
#include <gtest/gtest.h>

#include "display/drawing.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class HeadingTest : public DisplayTest {
 protected:
  // The rectangle of all ink, whatever its colour.
  static platform::PixelRect Ink() {
    platform::Surface mask(Panel().PixelWidth(), Panel().PixelHeight());
    for (int y = 0; y < mask.PixelHeight(); ++y)
      for (int x = 0; x < mask.PixelWidth(); ++x)
        if (Panel().Pixel(x, y) != colour::Blue) mask.PSet(x, y, colour::Red);
    return ExtentOf(mask, colour::Red);
  }
  static void Print(const std::string& text, double row, double col, int thickness = 0) {
    PrintNiceHeading(0, text, row, col, "", true, false, 18, colour::White, colour::Black,
                     thickness);
  }
};

TEST_F(HeadingTest, StandsAtItsCellAndRestoresThePrintFont) {
  Locate(7, 3);
  SetColor(colour::Yellow);
  Print("Equations", 4, 1.5);
  const platform::PixelRect ink = Ink();
  EXPECT_NEAR(ink.left, 24, 2);
  EXPECT_GE(ink.top, 55);
  EXPECT_LE(ink.top + ink.height, 55 + 29);
  EXPECT_EQ(Panel().FontName, "Courier New");
  EXPECT_EQ(Panel().FontSize, 20);
  EXPECT_EQ(Text().textColour, colour::White);
  EXPECT_EQ(Row(), 7);
  EXPECT_EQ(Col(), 3);
  ASSERT_EQ(Text().Transcript().size(), 1u);
  EXPECT_EQ(Text().Transcript()[0].text, "Equations");
  EXPECT_EQ(Text().Transcript()[0].row, 4);
}

TEST_F(HeadingTest, CentresTheWordsWithoutTheirMarks) {
  for (const char* text : {"Equations", "Say ~yes~"}) {
    Panel().Cls();
    Print(text, 4, -1);
    const platform::PixelRect ink = Ink();
    EXPECT_NEAR(ink.left + ink.width / 2.0, Panel().PixelWidth() / 2.0, 2) << text;
  }
  EXPECT_EQ(Text().Transcript().back().text, "Say \"yes\"");
}

TEST_F(HeadingTest, TheShadowLiesBehind) {
  Print("L", 4, 2);
  const platform::PixelRect plain = ExtentOf(Panel(), colour::White);
  const platform::PixelRect ink = Ink();
  Panel().Cls();
  Print("L", 4, 2, 3);
  EXPECT_EQ(PlaceOf(ExtentOf(Panel(), colour::White)), PlaceOf(plain));
  const platform::PixelRect both = Ink();
  EXPECT_EQ(both.left + both.width, ink.left + ink.width + 3);
  EXPECT_EQ(both.top + both.height, ink.top + ink.height + 3);
}

TEST_F(HeadingTest, ExponentsAreSmallerAndEndHigher) {
  Print("2", 4, 2);
  const platform::PixelRect base = Ink();
  Panel().Cls();
  Print("^2^", 4, 2);
  const platform::PixelRect exponent = Ink();
  EXPECT_LT(exponent.height, base.height);
  EXPECT_LT(exponent.top + exponent.height, base.top + base.height - 4);
  EXPECT_LE(exponent.top, base.top);
  Panel().Cls();
  Print(".", 4, 2);
  const int low = Ink().top;
  Panel().Cls();
  Print("^^.", 4, 2);
  EXPECT_LT(Ink().top, low);
}

TEST_F(HeadingTest, GoesToAnyCommentBox) {
  frmPR->picCommentBox[3].Move(0, 0, 200 * 15, 60 * 15);
  PrintNiceHeading(3, "Rule", 1, -1, "Arial", true, false, 14, colour::Red, colour::Red, 0);
  EXPECT_GT(ExtentOf(frmPR->picCommentBox[3], colour::Red).width, 0);
  EXPECT_EQ(Ink().width, 0);
  ExpectStop("PrintNiceHeading: comment box 6",
             [] { PrintNiceHeading(6, "Rule", 1, 1, "", true, false, 14, 0, 0, 0); });
}

}  // namespace
}  // namespace course::testing
