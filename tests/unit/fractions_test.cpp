#include "display/fractions.h"

#include "display/answer_text.h"
#include "display/exponents.h"
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
  // The printed fragment with this text, the last one of several.
  static Fragment Find(const std::string& text) {
    for (auto it = Text().Transcript().rbegin(); it != Text().Transcript().rend(); ++it)
      if (it->text == text) return *it;
    ADD_FAILURE() << "\"" << text << "\" was not printed";
    return {};
  }
  static void ExpectAt(const std::string& text, double row, double col) {
    const Fragment fragment = Find(text);
    EXPECT_NEAR(fragment.row, row, 0.03) << text;
    EXPECT_NEAR(fragment.col, col, 0.04) << text;
  }
};

TEST_F(FractionTest, PartsAreCentredByHalfCellsAndTheCursorEndsBehindTheBar) {
  isPrintFraction("1", "12");
  ExpectAt("1", 9, 5.5);
  ExpectAt("12", 11, 5);
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
  ExpectAt("a", 9, 7);
  Locate(15, 5);
  isPrintFraction("x^2^", "y", 0, 0, 0.2);
  EXPECT_EQ(Col(), 7);  // carets take no cell
  ExpectAt("x", 14.2, 5);
  ExpectAt("y", 15.8, 5.5);
}

TEST_F(FractionTest, ExponentFractionsClearOneBlankOnly) {
  frmPR->pnlLesson.FillRect({0, 0, 672, 589}, platform::colour::Red);
  isPrintFractionExp("x^2^", "3");
  EXPECT_EQ(Panel().Pixel(112 + 2, 10 * 25), platform::colour::Red);
  EXPECT_EQ(Col(), 7);
}

TEST_F(FractionTest, ValuesAreReducedAndKeepTheirSign) {
  isPrintFractionValue(6, 4);
  ExpectAt("3", 9, 5);
  ExpectAt("2", 11, 5);
  Locate(10, 10);
  isPrintFractionValue(3, -6);
  ExpectAt("-", 9.9, 10);
  ExpectAt("1", 9, 11);
  EXPECT_EQ(Col(), 12);
  Locate(10, 20);
  isPrintFractionValue(-8, 4);
  ExpectAt("-", 10, 20);
  EXPECT_EQ(Col(), 22);
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
  ExpectAt("-", 10, 4.9);
  ExpectAt("3", 9, 6);
}

class RadicalTest : public FractionTest {};

TEST_F(RadicalTest, RadicandsStandBehindTheirSignUnderABar) {
  isPrintRadicalText("3`5x` + 1");
  EXPECT_EQ(Lines(), Texts{"    3" + tutor::SquareRoot + "5x + 1"});
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
  ExpectAt("5", 11, 6);
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
  EXPECT_EQ(BoxLines().size(), 3u);
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
  picAnswerSetFont(1, "tnr", true, 18);
  EXPECT_EQ(frmPR->picAnswer[1].FontName, "Times New Roman");
}

}  // namespace
}  // namespace course::testing
