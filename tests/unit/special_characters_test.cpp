#include "display/special_characters.h"

#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/golden.h"

namespace course::testing {
namespace {

constexpr int kCodes[] = {127, 129, 130, 131, 132, 133, 134, 135, 136, 141, 157, 161, 162,
                          163, 164, 165, 166, 167, 168, 169, 170, 171, 173, 174, 176, 177,
                          191, 216, 217, 218, 219, 221, 226, 230, 231, 248, 249, 253, 255};

class SpecialCharacterTest : public DisplayTest {};

TEST_F(SpecialCharacterTest, EachLeavesInkInItsCellAndTheBlankOnesNone) {
  for (const int code : kCodes) {
    Panel().FillRect({0, 0, 672, 589}, platform::colour::Blue);
    Locate(10, 10);
    Text().TextOut(Chr(code));
    const bool blank = code == 230 || code == 231 || code == 255;
    EXPECT_EQ(HasInk(Panel(), 160, 200, 176, 240, platform::colour::Blue), !blank) << code;
    EXPECT_EQ(Panel().DrawWidth, 1) << code;
  }
}

TEST_F(SpecialCharacterTest, SurfacesDrawTheirOwnVariants) {
  frmPR->picWiperBox.Move(0, 0, 400 * 15, 200 * 15);
  wbLocate(2, 2);
  frmPR->wiperText.TextOut(Chr(161));
  EXPECT_EQ(frmPR->picWiperBox.DrawWidth, 2);
  EXPECT_THROW(DrawSprite(Panel(), 126, 0, 0, 1), StoppedProgram);
  EXPECT_THROW(DrawSprite(Panel(), 200, 0, 0, 4), StoppedProgram);
}

// All characters on the three kinds of surface, as a student sees them.
TEST_F(SpecialCharacterTest, ChartOfAllCharacters) {
  struct Ground {
    platform::PictureBox& box;
    TextPanel& text;
    int top;
  };
  frmPR->picWiperBox.Move(0, 0, 672 * 15, 130 * 15);
  frmPR->picAnswer[1].Move(0, 0, 672 * 15, 130 * 15);
  frmPR->picAnswer[1].Cls();
  platform::Surface chart(672, 390);
  int top = 0;
  for (TextPanel* text : {&frmPR->lessonText, &frmPR->wiperText, frmPR->answerText[1].get()}) {
    for (int i = 0; i < 39; ++i) {
      text->Locate(text->layout.firstRow + 0.2 + i / 13 * 1.6, 1.5 + i % 13 * 3);
      text->TextOut("a" + Chr(kCodes[i]));
    }
    chart.BitBlt(0, top, 672, 130, text->surface, 0, 0);
    top += 130;
  }
  ExpectGolden(chart, "special_characters");
}

}  // namespace
}  // namespace course::testing
