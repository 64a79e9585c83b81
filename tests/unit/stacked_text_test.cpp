#include "display/stacked_text.h"

#include "display/answer_text.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using Texts = std::vector<std::string>;

class StackedTextTest : public DisplayTest {};

Texts Pieces(const std::string& s) {
  Texts pieces;
  for (const StackedPiece& piece : CutAtFractions(s))
    pieces.push_back(piece.den.empty() ? piece.text : piece.text + " over " + piece.den);
  return pieces;
}

TEST_F(StackedTextTest, PartsReachToTheNextBlankOrOverTheirParentheses) {
  EXPECT_EQ(Pieces("no fraction"), Texts{"no fraction"});
  EXPECT_EQ(Pieces("5/12 + (-7/18) ="), (Texts{"5 over 12", " + (-", "7 over 18", ") ="}));
  EXPECT_EQ(Pieces("(2(a + 1) - 3)/(2" + tutor::Dot + "2)"),
            Texts{"2(a + 1) - 3 over 2" + tutor::Dot + "2"});
  EXPECT_EQ(Pieces(R"(x = 3x^2^\y4\z/2)"), (Texts{"x = ", R"(3x^2^\y4\z over 2)"}));
  for (const char* unfinished : {"/3", "3/ 4", "3/", "1/2/3"})
    ExpectStop("CutAtFractions: a fraction lacks a part", [&] { CutAtFractions(unfinished); });
  ExpectStop("CutAtFractions: no \"(\"", [] { CutAtFractions("a + 3)/4"); });
}

TEST_F(StackedTextTest, RadicalSignsReachOverTheirDigits) {
  const std::string& root = tutor::SquareRoot;
  EXPECT_EQ(RadicalsMarked("2" + root + "10 + " + root + "7"), "2`10` + `7`");
  EXPECT_EQ(RadicalsMarked(root + "5" + root + "6"), "`5``6`");
  EXPECT_EQ(RadicalsMarked("2x" + root + "(10x^3^)" + root + "xy"), "2x`10x^3^``x`y");
  // (-3 + v17)/4: the numerator is the longer part, the sign takes one cell.
  EXPECT_EQ(StackedTextWidth("x = (-3 + " + root + "17)/4"), 4 + 8);
  EXPECT_EQ(StackedTextWidth(R"(\y1\z/24)"), 2);
}

TEST_F(StackedTextTest, ALineStandsOnTheFractionsMiddleRow) {
  Locate(10, 3);
  isPrintStackedText("1/24 + x");
  EXPECT_EQ(Row(), 10);
  EXPECT_EQ(Col(), 3 + 2 + 4);
  EXPECT_EQ(Lines(), Texts{"  1/24 + x"});
  // As it is typed: no colours, the signs' extra room and narrow parts make no blanks.
  for (const std::string typed :
       {"1/4 + 5/6 = 13/12 = 1 1/12", "(-3)/4 - (-7/18) or -1/2", "(2(a + 1) - 3)/(2x) = 1/100"}) {
    Text().Cls();
    Locate(10, 3);
    isPrintStackedText(typed);
    EXPECT_EQ(Lines(), Texts{"  " + typed});
  }
  Text().Cls();
  isPrintStackedText(R"(\y3\z/4x^2^)");
  EXPECT_EQ(Text().Transcript().back().text, "3/4x^2^");
}

TEST_F(StackedTextTest, ABoxHoldsTheSameText) {
  picAnswerLocate(2, 2, 3);
  const std::string text = "x = (-3 + " + tutor::SquareRoot + "17)/4 or -1/2";
  picAnswerPrintStackedText(2, text);
  EXPECT_EQ(TranscriptLines(*frmPR->answerText[2]), Texts{"  " + text});
  EXPECT_EQ(frmPR->answerText[2]->Transcript()[1].width, 8);
  picAnswerUpdateCursorCell(2);
  EXPECT_EQ(frmPR->answerText[2]->cursorCol, 3 + 4 + 8 + 5 + 1.25);
}

}  // namespace
}  // namespace course::testing
