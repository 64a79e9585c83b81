#include "display/special_characters.h"

#include "display/comment_box.h"
#include "display/drawing.h"
#include "display/notes.h"
#include "display/print_cells.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"
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

// Where a face has no such letter the signs are drawn all the same: in headings, cells and
// comments.
TEST_F(SpecialCharacterTest, SignsInOtherFacesAndSizes) {
  const std::string text = "x" + tutor::GreaterOrEqual + "2" + tutor::LessOrEqual + "3" +
                           tutor::NotEqual + tutor::SquareRoot + "5" + tutor::Infinity + tutor::Pi;
  platform::Surface chart(320, 200);
  PrintNiceHeading(0, text, 2, 1, "", true, false, 20, platform::colour::White, 0, 0);
  picPrintCellBoxPrepare1(4);
  picPrintCellPrint(1, text, platform::colour::Black, 10);
  chart.BitBlt(0, 0, 320, 40, Panel(), 0, 0);
  chart.BitBlt(0, 40, 160, 40, frmPR->picPrintCell[1], 0, 0);
  int top = 80;
  for (const int size : {10, 12, 15, 18}) {
    picCommentBoxPrepare2(1, 3, 1, 20, 2, platform::colour::White, 0, size, 2);
    picCommentBoxisPrint(1, text + tutor::PlusOrMinus + tutor::Divided + tutor::Degree);
    chart.BitBlt(0, top, 320, 30, frmPR->picCommentBox[1], 0, 0);
    top += 30;
  }
  ExpectGolden(chart, "signs_in_other_faces");
  lblNotesPrepare(1, 3, 3, text, platform::colour::White, 0, false, false, 12);
  EXPECT_EQ(frmPR->lblNotes[1].Caption(), "x?2?3??5??") << "letters beyond Latin-1";
  ExpectStop("InPlainFace: no face of letters has the character 169",
             [] { picPrintCellPrint(1, "a " + Chr(169) + " b", 0, 10); });
}

}  // namespace
}  // namespace course::testing
