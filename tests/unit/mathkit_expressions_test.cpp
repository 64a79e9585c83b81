#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course {
namespace {

using testing::ExpectStop;

class ExpressionsTest : public testing::CourseTest {};

// Texts of the tables below, with "_" for the gap, so that they can be read.
std::string Shown(std::string text) {
  for (char& c : text) {
    if (c == '\xFF') c = '_';
  }
  return text;
}

struct NumberCase {
  double value;
  const char* text;
};

TEST(NumStrTest, PlainDecimalText) {
  const NumberCase cases[] = {
      {0, "0"},
      {-0.0, "0"},
      {5, "5"},
      {-7, "-7"},
      {100, "100"},
      {0.5, ".5"},
      {-0.5, "-.5"},
      {12.25, "12.25"},
      {0.1 + 0.2, ".3"},  // fifteen digits hide what a sum adds behind them
      {RoundHundredths(0.35), ".35"},
      {1.0 / 3, ".333333333333333"},
      {-200.0 / 3, "-66.6666666666667"},
      {0.00001, ".00001"},  // small and large numbers of scientific notation are written out
      {-0.00000123, "-.00000123"},
      {602000000000000, "602000000000000"},
      {3.2e17, "320000000000000000"},
      {999999999999999.9, "1000000000000000"},
      {2.5e-16, "2.5E-16"},
      {1e21, "1E+21"},
  };
  for (const NumberCase& c : cases) EXPECT_EQ(NumStr(c.value), c.text);
}

TEST_F(ExpressionsTest, WhatIsNoNumberStops) {
  ExpectStop("NumStr: ", [] { NumStr(std::numeric_limits<double>::infinity()); });
  ExpectStop("NumStr: ", [] { NumStr(std::numeric_limits<double>::quiet_NaN()); });
}

TEST(CoefficientTest, SignsDigitsAndGaps) {
  struct Case {
    double value;
    const char* head;
    const char* inside;
    const char* constant;
  };
  const Case cases[] = {
      {0, "0", "0_", "+_0"},        {-0.0, "0", "0_", "+_0"},
      {1, "", "_+_", "+_1"},        {-1, "-", "_-_", "-_1"},
      {3, "3", "_+_3", "+_3"},      {-12, "-12", "_-_12", "-_12"},
      {0.5, ".5", "_+_.5", "+_.5"}, {-2.5, "-2.5", "_-_2.5", "-_2.5"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(CoefText(c.value), c.head) << c.value;
    EXPECT_EQ(Shown(SignedCoefText(c.value)), c.inside) << c.value;
    EXPECT_EQ(Shown(SignedNumberText(c.value)), c.constant) << c.value;
  }
}

TEST(FractionTextTest, ReducedWithItsSignInFront) {
  EXPECT_EQ(FractionText(6, -8), "-3/4");
  EXPECT_EQ(FractionText(-6, -8), "3/4");
  EXPECT_EQ(FractionText(5, 5), "1");
  EXPECT_EQ(FractionText(-5, 5), "-1");
  EXPECT_EQ(FractionText(4, 2), "2");
  EXPECT_EQ(FractionText(3, 0), "undefined");
  EXPECT_EQ(FractionText(0, 5), "undefined");
  EXPECT_EQ(FractionOfTexts("4", "8"), "4/8");
}

TEST(MixedNumberTest, SmallestDenominatorThatFits) {
  const NumberCase cases[] = {
      {3, "3"},
      {-3, "-3"},
      {0, "0"},
      {0.75, "3/4"},
      {-0.75, "-3/4"},
      {2.5, "2_1/2"},
      {-1.25, "-1_1/4"},
      {17.0 / 18, "17/18"},
      {-2.0 / 3, "-2/3"},
      {7 + 5.0 / 17, "7_5/17"},
      {2.99999, "3"},
      {-0.00001, "0"},
      {0.3333, "1/3"},
      {3.1415, "3.1415"},
      {1.0 / 19, ".0526315789473684"},
  };
  for (const NumberCase& c : cases) EXPECT_EQ(Shown(MixedNumberText(c.value)), c.text) << c.value;
}

// Every mixed number of the course reads back as the value that it stands for.
TEST(MixedNumberTest, EveryFractionUpTo18IsFoundInLowestTerms) {
  for (int d = 1; d <= 18; ++d) {
    for (int n = -5 * d; n <= 5 * d; ++n) {
      const int whole = std::abs(n) / d;
      const int rest = std::abs(n) % d;
      std::string expected = n < 0 ? "-" : "";
      if (whole > 0 || rest == 0) expected += std::to_string(whole);
      if (whole > 0 && rest > 0) expected += "_";
      if (rest > 0) expected += FractionText(rest, d);
      ASSERT_EQ(Shown(MixedNumberText(static_cast<double>(n) / d)), expected) << n << "/" << d;
    }
  }
}

TEST(MoneyTextTest, CentsAreFilledAndNeverCut) {
  EXPECT_EQ(MoneyText(12), "$12.00");
  EXPECT_EQ(MoneyText(12.5), "$12.50");
  EXPECT_EQ(MoneyText(12.25), "$12.25");
  EXPECT_EQ(MoneyText(0.5), "$.50");
  EXPECT_EQ(MoneyText(12.345), "$12.345");
  EXPECT_EQ(MoneyText(0), "$0.00");
}

TEST(SmallTextsTest, PluralsAndExponents) {
  EXPECT_EQ(PluralSuffix(1), "");
  EXPECT_EQ(PluralSuffix(0), "s");
  EXPECT_EQ(PluralSuffix(2), "s");
  EXPECT_EQ("x" + ExponentText(2) + "y" + ExponentText(1), "x^2^y");
  EXPECT_EQ(ExponentText(0) + ExponentText(-12), "^0^^-12^");
}

TEST(ToUtf8Test, TheCoursesCharactersBecomeLetters) {
  EXPECT_EQ(ToUtf8("x " + tutor::LessOrEqual + " -5"), "x ≤ -5");
  EXPECT_EQ(ToUtf8("2x" + tutor::Gap + "+" + tutor::Gap + "1"), "2x + 1");
  EXPECT_EQ(ToUtf8("ax" + tutor::SquaredSign + "+bx"), "ax²+bx");
  EXPECT_EQ(ToUtf8(tutor::SquareRoot + "2" + tutor::Dot + tutor::Pi + tutor::NotEqual + "3"),
            "√2·π≠3");
  EXPECT_EQ(ToUtf8("6" + tutor::Divided + "2" + tutor::Times + "4"), "6÷2×4");
  EXPECT_EQ(ToUtf8(Chr(162) + Chr(250) + "1"), "a\u0304_1");
  EXPECT_EQ(ToUtf8("\\cx^2^\\z"), "\\cx^2^\\z");          // marks stay
  EXPECT_EQ(ToUtf8("x" + Chr(145) + Chr(153)), "x^2m^");  // neighbours are one exponent
  EXPECT_EQ(ToUtf8("x" + Chr(145) + "^3^"), "x^2^^3^");   // marks of the text are left alone
  EXPECT_EQ(ToUtf8(Chr(233) + Chr(128)), "\u00E9\uFFFD");
}

TEST(UpperCaseTest, OnlyAsciiLettersChange) {
  EXPECT_EQ(UpperCase("Trinomials: ax\xB2+bx\xFF\xE9"), "TRINOMIALS: AX\xB2+BX\xFF\xE9");
}

}  // namespace
}  // namespace course
