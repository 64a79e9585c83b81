#include "display/print.h"

#include "display/animation.h"
#include "display/drawing.h"
#include "display/exponents.h"
#include "mathkit/tutor_codes.h"
#include "support/display_fixture.h"

namespace course::testing {
namespace {

using platform::colour::Blue;

class PrintTest : public DisplayTest {};

TEST_F(PrintTest, TheErasedBandLeavesFourRowsAboveAndTakesFourBelow) {
  Panel().FillRect({0, 0, 672, 589}, platform::colour::Red);
  Locate(5, 3);
  isPrints("  ");
  const int x = 48, y = 80;
  EXPECT_EQ(Panel().Pixel(x, y + 3), platform::colour::Red);
  EXPECT_EQ(Panel().Pixel(x, y + 4), Blue);
  EXPECT_EQ(Panel().Pixel(x + 31, y + 28), Blue);
  EXPECT_EQ(Panel().Pixel(x + 31, y + 29), platform::colour::Red);
  EXPECT_EQ(Panel().Pixel(x + 32, y + 10), platform::colour::Red);
  EXPECT_EQ(Panel().Pixel(x - 1, y + 10), platform::colour::Red);
}

TEST_F(PrintTest, WithoutErasingTheGroundShowsBetweenTheStrokes) {
  Panel().FillRect({0, 0, 672, 589}, platform::colour::Red);
  SetDontEraseBackground();
  isPrints(".");
  EXPECT_EQ(Panel().Pixel(17, 10), platform::colour::Red);
  EXPECT_TRUE(HasInk(Panel(), 16, 9, 32, 34, platform::colour::Red));
}

TEST_F(PrintTest, MeasuringDrawsNothingUnlessTheBackgroundIsKept) {
  screenState.gMeasureOnly = 1;
  isPrint("measured");
  EXPECT_FALSE(HasInk(Panel(), 0, 0, 672, 60, Blue));
  EXPECT_TRUE(Lines().empty());
  SetDontEraseBackground();
  isPrint("drawn");
  EXPECT_TRUE(HasInk(Panel(), 0, 30, 672, 60, Blue));
  EXPECT_EQ(Lines(), std::vector<std::string>{"drawn"});
}

TEST_F(PrintTest, ThirtyRunsPrintAndThirtyOneStopTheProgram) {
  std::string thirty;
  for (int i = 0; i < 30; ++i) thirty += tutor::Gap;
  isPrints(thirty);
  EXPECT_EQ(Col(), 31);
  Locate(3, 1);
  EXPECT_THROW(isPrint(thirty + "x"), StoppedProgram);
}

TEST_F(PrintTest, LinesBreakAtTheRightMarginWhateverStandsThere) {
  isPrint(std::string(100, 'a'));
  EXPECT_EQ(Lines(), (std::vector<std::string>{std::string(40, 'a'), std::string(40, 'a'),
                                               std::string(20, 'a')}));
  EXPECT_EQ(Row(), 5);
  EXPECT_EQ(Col(), 1);
}

TEST_F(PrintTest, ANudgedCharacterKeepsThePlaceInTheLastColumn) {
  Locate(4, 40.2);
  isPrints("p");
  EXPECT_EQ(Text().Transcript()[0].text, "p");
  EXPECT_EQ(Text().Transcript()[0].row, 4);
  Locate(6, 41);
  isPrints("x");  // past the margin: the character goes to the next row
  EXPECT_EQ(Row(), 7);
  EXPECT_EQ(Col(), 2);
}

TEST_F(PrintTest, CarriageReturnsBreakLinesUnlessTheCursorIsKept) {
  isPrint("one\rtwo");
  EXPECT_EQ(Row(), 4);
  isPrints("a\rb");
  EXPECT_EQ(Row(), 4);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"one", "two", "ab"}));
  EXPECT_THROW(isPrint("1\r2\r3\r4\r5\r6\r7\r8\r9\r10\r11"), StoppedProgram);
}

TEST_F(PrintTest, KeepingTheCursorNestsAndIsPutBack) {
  screenState.gNoNewline = 1;
  isPrints("a");
  EXPECT_EQ(screenState.gNoNewline, 1);
  isPrint("b");
  EXPECT_EQ(Col(), 3);
}

TEST_F(PrintTest, ColouredPrintGoesBackToTheCurrentColour) {
  SetColor(platform::colour::Yellow);
  isColorPrint("red", platform::colour::Red);
  isPrint("yellow");
  ASSERT_EQ(Text().Transcript().size(), 2u);
  EXPECT_EQ(Text().Transcript()[0].colour, platform::colour::Red);
  EXPECT_EQ(Text().Transcript()[1].colour, platform::colour::Yellow);
}

TEST_F(PrintTest, APiTurnsTheRestOfItsRunWhite) {
  SetColor(platform::colour::Red);
  isPrints("a" + tutor::Pi + "b");
  EXPECT_EQ(Panel().ForeColor, platform::colour::White);
  EXPECT_EQ(Text().textColour, platform::colour::White);
}

class TranscriptTest : public DisplayTest {};

TEST_F(TranscriptTest, FollowsTextThatMovesAndLosesWhatIsSweptAway) {
  Locate(5, 1);
  isPrint("first");
  isPrint("second");
  isPrint("third");
  Anim(7, 1, 40, 1, 1, 2, 50, 1);
  EXPECT_EQ(Lines(), std::vector<std::string>{"third"});
  EXPECT_EQ(Text().Transcript()[0].row, 5);
}

TEST_F(TranscriptTest, KeepsTheOriginalOfACopyAndSplitsLines) {
  Locate(5, 1);
  isPrints("2x + 3");
  Anim(5, 1, 2, 1, 2, 2, 50, 0);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2x + 3", "2x"}));
  Anim(5, 6, 1, 1, 4, 4, 50, 1);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"2x +     3", "2x"}));
  isDrawBoxFilled(5, 1, 5, 4, Blue);
  EXPECT_EQ(Lines(), (std::vector<std::string>{"         3", "2x"}));
}

class ExponentTest : public DisplayTest {};

// Each size and some signs stand a little beside their cell: by so many pixels to the right and
// down from where the same letter stands on the line.
TEST_F(ExponentTest, EverySizeAndSignHasItsNudge) {
  struct Case {
    int size;
    char sign;
    std::string raised, lowered;
  };
  const Case cases[] = {
      {10, '2', "1,1", "1,19"},  {10, 'p', "4,1", "1,19"},  {10, '.', "1,-3", "1,15"},
      {11, '2', "0,0", "0,17"},  {12, '2', "0,-8", "0,10"}, {12, 'p', "3,-8", "0,10"},
      {12, '.', "0,-8", "0,10"}, {14, '2', "0,0", "2,17"},  {14, 'p', "3,0", "2,17"},
      {14, '.', "1,-3", "1,15"}, {15, '2', "0,-3", "0,15"}, {15, 'p', "3,-3", "0,15"}};
  const auto inkOf = [](const std::function<void()>& print) {
    Panel().FillRect({0, 0, 672, 589}, platform::colour::Blue);
    Locate(10, 10);
    print();
    int left = 672;
    int top = 589;
    for (int y = 150; y < 300; ++y)
      for (int x = 150; x < 200; ++x)
        if (Panel().Pixel(x, y) != Blue) {
          left = std::min(left, x);
          top = std::min(top, y);
        }
    return platform::PixelPoint{left, top};
  };
  for (const Case& c : cases) {
    const std::string text(1, c.sign);
    const platform::PixelPoint plain = inkOf([&] {
      SetFontSize(c.size);
      Text().TextOut(text);
    });
    const auto nudge = [&](void (*print)(const std::string&, int, double)) {
      const platform::PixelPoint at = inkOf([&] { print(text, c.size, 0); });
      return std::to_string(at.x - plain.x) + "," + std::to_string(at.y - plain.y);
    };
    EXPECT_EQ(nudge(isPrintExponent1), c.raised) << c.size << c.sign;
    EXPECT_EQ(nudge(isPrintSubscript1), c.lowered) << c.size << c.sign;
  }
}

TEST_F(ExponentTest, EachCharacterTakesACellAndTheCursorEndsOnTheBaseRow) {
  Locate(10, 5);
  isPrintExponent1("23", 12);
  EXPECT_EQ(Row(), 10);
  EXPECT_EQ(Col(), 7);
  EXPECT_EQ(Panel().FontSize, 20);
  EXPECT_EQ(Lines(), std::vector<std::string>{"    ^23^"});
}

TEST_F(ExponentTest, MarksMustBalance) {
  EXPECT_TRUE(MarksBalanced("x^2^ + y^3^"));
  EXPECT_TRUE(MarksBalanced("x" + tutor::SubscriptMark + "1" + tutor::SubscriptMark));
  EXPECT_FALSE(MarksBalanced("x^2"));
  EXPECT_FALSE(MarksBalanced("x^" + tutor::SubscriptMark + "^" + tutor::SubscriptMark));
  try {
    isPrintExponentExpression("x^2", 14);
    FAIL() << "an open exponent was printed";
  } catch (const StoppedProgram& stopped) {
    EXPECT_EQ(stopped.message,
              "An incorrect number of ^ or Chr$(250) characters appears in the string \r"
              "supplied to SUB isPrintExponentExpression");
  }
  EXPECT_THROW(isPrintExponent1("2", 9), StoppedProgram);
  EXPECT_THROW(isPrintExponent1("2", 16), StoppedProgram);
}

TEST_F(ExponentTest, AnExpressionIsCutAtItsMarks) {
  const std::vector<ScriptPart> parts = CutAtMarks("x^a^x^b^=x^a+b^");
  std::vector<std::string> texts;
  for (const ScriptPart& part : parts) texts.push_back((part.level > 0 ? "^" : "") + part.text);
  EXPECT_EQ(texts, (std::vector<std::string>{"x", "^a", "x", "^b", "=x", "^a+b"}));
}

TEST_F(ExponentTest, SingleExponentCharactersBecomeMarkedText) {
  EXPECT_EQ(ExponentCharsToCarets(Chr(145) + Chr(146)), "^23^");
  EXPECT_EQ(ExponentCharsToCarets("x" + Chr(130) + Chr(143)), "x^-0^");
  EXPECT_EQ(ExponentCharsToCarets("a" + Chr(153) + Chr(157) + Chr(154) + "b"), "a^m+n^b");
  EXPECT_EQ(ExponentCharsToCarets("x" + Chr(179) + Chr(220) + Chr(180)), "x^(x)^");
  EXPECT_EQ(ExponentCharsToCarets("x^2^^3^"), "x^23^");
}

TEST_F(ExponentTest, BlanksInsideExponentsAreProtected) {
  EXPECT_EQ(ProtectExponentSpaces("a b^c d^ e"), "a b^cXd^ e");
  EXPECT_EQ(StripExponentMarks("x^2^y" + tutor::SubscriptMark + "1"), "x2y1");
}

}  // namespace
}  // namespace course::testing
