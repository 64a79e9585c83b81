// The wiper box: where it stands, what it erases with, when it is empty.
#include "display/wiper_box.h"

#include <gtest/gtest.h>

#include "display/print.h"
#include "support/display_fixture.h"
#include "support/pixel_picture.h"

namespace course::testing {
namespace {

namespace colour = platform::colour;

class WiperBoxTest : public DisplayTest {
 protected:
  static platform::PictureBox& Box() { return frmPR->picWiperBox; }
  // In pixels of the lesson panel.
  static std::string Place() {
    return PlaceOf({(Box().Left() - Panel().Left()) / 15, (Box().Top() - Panel().Top()) / 15,
                    Box().PixelWidth(), Box().PixelHeight()});
  }
  static std::string Cursor() {
    return std::to_string(frmPR->wiperText.cursorX) + "," +
           std::to_string(frmPR->wiperText.cursorY);
  }
};

TEST_F(WiperBoxTest, StandsInTheMiddleOrAtItsColumn) {
  wbPrepare(15, 38, 0, colour::White, colour::Black);  // down to the last row
  EXPECT_EQ(Place(), "(16, 330) 640 x 250");
  EXPECT_EQ(screenState.gWbWidth, 38);
  EXPECT_EQ(screenState.gWbHeight, 10);
  EXPECT_EQ(Cursor(), "16,5");
  EXPECT_FALSE(Box().Visible());
  wbPrepare(4.5, 20, 3, colour::White, colour::Black);
  EXPECT_EQ(Place(), "(160, 68) 352 x 75");
  wbPrepareAtColumn(12, 20, 18, 6.5, colour::White, colour::Black);
  EXPECT_EQ(Place(), "(320, 255) 320 x 162");
}

TEST_F(WiperBoxTest, ShowsUpEmptyAndANewScreenHidesIt) {
  wbPrepare(15, 38, 0, colour::Yellow, colour::Black);
  wbWordWrap("printed too early");
  wbShow();
  EXPECT_TRUE(Box().Visible());
  EXPECT_TRUE(frmPR->wiperText.Transcript().empty());
  EXPECT_FALSE(HasInk(Box(), 0, 0, 640, 250, colour::Yellow));
  EXPECT_EQ(Cursor(), "16,5");
  frmPR->wiperText.dontEraseBackground = 1;
  ResetScreen();
  EXPECT_FALSE(Box().Visible());
  EXPECT_EQ(frmPR->wiperText.dontEraseBackground, 0);
  EXPECT_EQ(frmPR->wiperText.textColour, colour::Black);
}

TEST_F(WiperBoxTest, ItsColoursReachTheBandAndTheReturnCode) {
  wbPrepare(15, 10, 4, colour::Yellow, colour::Black);
  wbShow();
  wbSetColor(colour::Red);
  wbSetBackColor(colour::Green);
  wbWordWrap(R"(\k \z-)");
  // The band behind both cells, four pixels below their top, and the minus in the box's colour.
  EXPECT_EQ(Box().Pixel(16, 5 + 3), colour::Yellow);
  EXPECT_EQ(Box().Pixel(16, 5 + 4), colour::Green);
  EXPECT_EQ(Box().Pixel(16 + 31, 5 + 28), colour::Green);
  ASSERT_EQ(frmPR->wiperText.Transcript().size(), 2u);
  EXPECT_EQ(frmPR->wiperText.Transcript()[1].colour, colour::Red);
  wbShow();
  EXPECT_EQ(Box().Pixel(16, 5 + 3), colour::Green);
}

}  // namespace
}  // namespace course::testing
