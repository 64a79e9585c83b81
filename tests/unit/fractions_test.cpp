#include "display/fractions.h"

#include <algorithm>
#include <cmath>

#include "display/answer_text.h"
#include "display/exponents.h"
#include "display/print.h"
#include "display/radicals.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"

namespace course::testing {
namespace {

using platform::colour::Blue;
using Texts = std::vector<std::string>;

class FractionTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    Locate(10, 5);
  }
  // Where the middle of a row's ink lies, in columns; 0 without ink.
  static double MiddleOf(double row) {
    const int top = static_cast<int>(Text().CellY(row)) + 6;
    int left = 0;
    int right = 0;
    for (int x = 0; x < Panel().PixelWidth(); ++x) {
      if (!HasInk(Panel(), x, top, x + 1, top + 16, Blue)) continue;
      if (left == 0) left = x;
      right = x + 1;
    }
    return left == 0 ? 0 : (left + right - 32) / 2.0 / 16 + 1;
  }
  static void ExpectOneFragment(const std::string& text, double col, double width, double top,
                                double bottom) {
    const auto found = std::ranges::find(Text().Transcript(), text, &Fragment::text);
    ASSERT_NE(found, Text().Transcript().end()) << "\"" << text << "\" was not printed";
    const Fragment& fragment = *found;
    EXPECT_NEAR(fragment.col, col, 0.04) << text;
    EXPECT_NEAR(fragment.width, width, 0.04) << text;
    EXPECT_NEAR(fragment.Top(), top, 0.03) << text;
    EXPECT_NEAR(fragment.Bottom(), bottom, 0.03) << text;
  }
};

TEST_F(FractionTest, PartsAreCentredByHalfCellsAndTheCursorEndsBehindTheBar) {
  isPrintFraction("1", "12");
  EXPECT_NEAR(MiddleOf(9), 6, 0.2);
  EXPECT_NEAR(MiddleOf(11), 6, 0.2);
  ExpectOneFragment("1/12", 5, 2, 9, 12);
  EXPECT_EQ(Row(), 10);
  EXPECT_EQ(Col(), 7);
  EXPECT_EQ(screenState.gLastFractionWidth, 2);
  // The bar: three pixels through the middle of the row, as wide as the fraction.
  const int y = 5 + 8 * 25 + 14;  // row 10.05, rounded
  EXPECT_TRUE(HasInk(Panel(), 80, y - 1, 112, y + 4, Blue));
  EXPECT_EQ(Panel().Pixel(79, y), Blue);
  EXPECT_EQ(Panel().Pixel(112, y), Blue);
}

TEST_F(FractionTest, WidthsAndShiftsAreTakenAsGiven) {
  isPrintFraction("a", "b", 5);
  EXPECT_EQ(Col(), 10);
  EXPECT_NEAR(MiddleOf(9), 7.5, 0.2);
  ExpectOneFragment("a/b", 5, 5, 9, 12);
  Locate(15, 5);
  isPrintFraction("x^2^", "y", 0, 0, 0.2);
  EXPECT_EQ(Col(), 7);  // carets take no cell
  EXPECT_NEAR(MiddleOf(15.8), 6, 0.2);
  ExpectOneFragment("x^2^/y", 5, 2, 14.2, 16.8);
}

TEST_F(FractionTest, ExponentFractionsClearOneBlankOnly) {
  frmPR->pnlLesson.FillRect({0, 0, 672, 589}, platform::colour::Red);
  isPrintFractionExp("x^2^", "3");
  EXPECT_EQ(Panel().Pixel(112 + 2, 10 * 25), platform::colour::Red);
  EXPECT_EQ(Col(), 7);
}

TEST_F(FractionTest, ValuesAreReducedAndKeepTheirSign) {
  isPrintFractionValue(6, 4);
  ExpectOneFragment("3/2", 5, 1, 9, 12);
  Locate(10, 10);
  isPrintFractionValue(3, -6);
  ExpectOneFragment("1/2", 11, 1, 9, 12);
  EXPECT_NEAR(Text().Transcript().end()[-2].row, 9.9, 0.03);  // the minus
  EXPECT_EQ(Col(), 12);
  Locate(10, 20);
  isPrintFractionValue(-8, 4);
  EXPECT_EQ(Text().Transcript().end()[-2].row, 10);
  EXPECT_EQ(Col(), 22);
  EXPECT_EQ(Lines(), Texts{"    3/2    -1/2        -2"});
  for (auto [n, d] : {std::pair{0, 7}, {7, 0}, {0, -3}}) {
    Text().Cls();
    Locate(10, 5);
    isPrintFractionValue(n, d);
    EXPECT_EQ(Lines(), Texts{"    0"}) << n << "/" << d;
  }
}

TEST_F(FractionTest, TheOtherPrinterMovesTheMinusAndReducesInPlace) {
  int n = 6, d = -8;
  PrintFraction(n, d);
  EXPECT_EQ(n, -3);
  EXPECT_EQ(d, 4);
  EXPECT_NEAR(Text().Transcript().end()[-2].col, 4.9, 0.04);
  ExpectOneFragment("3/4", 6, 1, 9, 12);
}

TEST_F(FractionTest, CompositePartsKeepTheirParentheses) {
  const std::string& root = tutor::SquareRoot;
  struct Case {
    std::string num, den, typed;
  };
  const Case cases[] = {{"x + 1", "x - 2", "(x + 1)/(x - 2)"},
                        {R"(\y-7\z)", "12", "-7/12"},
                        {"3x", "2x", "3x/(2x)"},
                        {"5(x + 1)", "(x - 2)", "5(x + 1)/(x - 2)"},
                        {"x^n + 1^", "y^2^", "x^n + 1^/y^2^"},
                        {"-3 " + tutor::PlusOrMinus + " `17`", "`5`",
                         "(-3 " + tutor::PlusOrMinus + " " + root + "17)/" + root + "5"},
                        {"`x + 1`", "2`3`", root + "(x + 1)/(2" + root + "3)"}};
  for (const Case& c : cases) {
    Text().Cls();
    Locate(10, 5);
    isPrintRadicalFraction(c.num, c.den);
    EXPECT_EQ(Lines(), Texts{"    " + c.typed});
  }
}

// A fraction goes as a whole, by the middle of its own box, not by the letters of its text.
TEST_F(FractionTest, MovesAndGoesAsAWhole) {
  isPrints("x = ");
  isPrintFraction("12345", "6");  // columns 9 to 13
  isPrints(" y");
  const auto cells = [](double row, double col, int wd, int ht) {
    return platform::PixelRect{static_cast<int>(Text().CellX(col)),
                               static_cast<int>(Text().CellY(row)) + 4, wd * 16, ht * 25};
  };
  Text().EraseTranscript(cells(11, 9, 5, 1));  // the denominator's row alone
  EXPECT_EQ(Lines(), Texts{"    x = 12345/6 y"});
  Text().MoveTranscript(cells(9, 9, 5, 3), 0, 4 * 25, false);
  EXPECT_EQ(Lines(), (Texts{"    x =       y", "        12345/6"}));
  ExpectOneFragment("12345/6", 9, 5, 13, 16);
  Text().MoveTranscript(cells(13, 9, 5, 3), -16, 0, true);
  EXPECT_EQ(Text().Transcript().size(), 3u) << "the copy lies over the original";
  Text().EraseTranscript(cells(14, 10, 1, 1));  // the middle of the bar
  EXPECT_EQ(Lines(), Texts{"    x =       y"});
}

TEST_F(FractionTest, WhatIsPrintedOverAFractionStandsInItsPlace) {
  isPrintFraction("1", "2");
  isPrints(" + 1");
  isPrintFraction("3", "4");
  EXPECT_EQ(Lines(), Texts{"    1/2 + 1 3/4"});
  Locate(10, 5);
  isPrintFraction("5", "6");
  EXPECT_EQ(Lines(), Texts{"    5/6 + 1 3/4"});
  Locate(10, 5);
  isPrints("  ");
  EXPECT_EQ(Lines(), Texts{"      + 1 3/4"});
}

class RadicalTest : public FractionTest {};

TEST_F(RadicalTest, RadicandsStandBehindTheirSignUnderABar) {
  isPrintRadicalText("3`5x` + 1");
  EXPECT_EQ(Lines(), Texts{"    3" + tutor::SquareRoot + "(5x) + 1"});
  EXPECT_EQ(Row(), 10);
  EXPECT_EQ(Col(), 13);
  // The bar reaches from the sign over both characters, above the row.
  const int y = 5 + 8 * 25 - 2;
  EXPECT_EQ(Panel().Pixel(16 + 6 * 16, y), platform::colour::White);
  EXPECT_EQ(Panel().Pixel(16 + 8 * 16 - 1, y), platform::colour::White);
  EXPECT_EQ(Panel().Pixel(16 + 8 * 16, y), Blue);
}

TEST_F(RadicalTest, BackquotesMustPair) {
  EXPECT_THROW(isPrintRadicalText("`2"), StoppedProgram);
  EXPECT_THROW(isPrintRadicalText("`1``2``3``4``5``6`"), StoppedProgram);
  isPrintRadicalText("`1``2``3``4``5`");
  EXPECT_EQ(Col(), 15);
}

TEST_F(RadicalTest, FractionsCountTheSignAsOneCell) {
  isPrintRadicalFraction("2`3`", "5");
  EXPECT_EQ(Col(), 8);
  EXPECT_NEAR(MiddleOf(11), 6.5, 0.2);
  ExpectOneFragment("2" + tutor::SquareRoot + "3/5", 5, 3, 9, 12);
}

class AnswerTextTest : public DisplayTest {
 protected:
  void SetUp() override {
    DisplayTest::SetUp();
    frmPR->picAnswer[1].Move(0, 0, 16 * 16 * 15, 60 * 15);
    frmPR->picAnswer[1].Cls();
    gAnswerBaseY = 0;
  }
  static Texts BoxLines() { return TranscriptLines(*frmPR->answerText[1]); }
  static double BoxCol() {
    picAnswerUpdateCursorCell(1);
    return frmPR->answerText[1]->cursorCol;
  }
};

TEST_F(AnswerTextTest, ABoxHasNoMargins) {
  picAnswerLocate(1, 1, 1);
  EXPECT_EQ(frmPR->answerText[1]->cursorX, 0);
  EXPECT_EQ(frmPR->answerText[1]->cursorY, 0);
  gAnswerBaseY = 3;
  picAnswerLocatePixels(1, 12, 55);
  EXPECT_EQ(frmPR->answerText[1]->cursorX, 55);
  EXPECT_EQ(frmPR->answerText[1]->cursorY, 15);
  picAnswerPrintExponentExpression(1, "x^2^ + 1");
  EXPECT_EQ(frmPR->answerText[1]->cursorX, 55 + 6 * 16);
  EXPECT_THROW(picAnswerPrintExponentExpression(1, "x^2"), StoppedProgram);
}

TEST_F(AnswerTextTest, MixedNumbersSplitOffTheirWholePart) {
  picAnswerLocate(1, 2, 5);
  picAnswerPrintFractionValue(1, 6, 4, 0.5);
  EXPECT_EQ(BoxCol(), 7.5);
  EXPECT_EQ(BoxLines(), Texts{"    1 1/2"});
  EXPECT_EQ(frmPR->answerText[1]->Transcript().size(), 1u);
  frmPR->answerText[1]->Cls();
  picAnswerLocate(1, 2, 5);
  picAnswerPrintFractionValue(1, 6, 3);
  EXPECT_EQ(BoxLines(), Texts{"    2"});
  frmPR->answerText[1]->Cls();
  picAnswerLocate(1, 2, 5);
  picAnswerPrintFractionValue(1, 0, 3);
  EXPECT_EQ(BoxLines(), Texts{"    0"});
}

TEST_F(AnswerTextTest, FractionTextsNeedBothSides) {
  picAnswerLocate(1, 2, 5);
  picAnswerPrintFractionText(1, " 3 / x^2^ ");
  EXPECT_EQ(BoxCol(), 7);
  for (const char* bad : {"3", "/4", "3/ "}) {
    try {
      picAnswerPrintFractionText(1, bad);
      ADD_FAILURE() << bad << " was printed";
    } catch (const StoppedProgram& stopped) {
      EXPECT_EQ(stopped.message, std::string("Fraction format incorrect: ") + bad);
    }
  }
}

TEST_F(AnswerTextTest, ASmallerPrintFontIsNarrower) {
  picAnswerSetFont(1, "Courier New", true, 15);
  picAnswerLocate(1, 1, 1);
  picAnswerisPrints(1, "12345");
  EXPECT_EQ(frmPR->answerText[1]->cursorX, 60);
  picAnswerRestoreFont(1);
  EXPECT_EQ(frmPR->picAnswer[1].FontSize, 20);
}

TEST_F(AnswerTextTest, LongTextsAreClippedAndNeverBroken) {
  const std::string text(94, 'e');
  picAnswerLocatePixels(1, 0, 55);
  picAnswerPrintExponentExpression(1, text + "^2^");
  EXPECT_EQ(BoxLines().size(), 1u);
  EXPECT_EQ(frmPR->answerText[1]->cursorX, 55 + 95 * 16);
  // The other face has widths of its own, for the cursor too, and a size of it holds 94 letters.
  frmPR->answerText[1]->Cls();
  picAnswerSetFont(1, "tnr", true, 10);
  EXPECT_EQ(frmPR->picAnswer[1].FontName, "Times New Roman");
  picAnswerLocatePixels(1, 0, 55);
  picAnswerPrintExponentExpression(1, text + "^2^");
  const int width = static_cast<int>(std::lround(frmPR->picAnswer[1].TextWidth(text)));
  EXPECT_LT(55 + width, 640);
  const Fragment& exponent = frmPR->answerText[1]->Transcript().back();
  EXPECT_NEAR((exponent.col - 1) * 16, 55 + width, 1);
  EXPECT_LT(exponent.width, 1);
}

}  // namespace
}  // namespace course::testing
