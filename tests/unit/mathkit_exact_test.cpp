// Exact fractions and square roots.
#include <gtest/gtest.h>

#include "mathkit/fraction.h"
#include "mathkit/square_roots.h"
#include "mathkit/tutor_codes.h"

namespace course {
namespace {

TEST(ExactTest, FractionsStayInLowestTermsAndKeepZero) {
  EXPECT_EQ(Reduced(6, -8), (Fraction{-3, 4}));
  EXPECT_EQ(Reduced(0, -5), (Fraction{0, 1}));
  EXPECT_EQ((Fraction{5, 6} + Fraction{-3, 4}), (Fraction{1, 12}));
  EXPECT_EQ((Fraction{1, 2} + Fraction{-1, 2}), (Fraction{0, 1}));
  EXPECT_TRUE((Fraction{-3, 4} < Fraction{-2, 3}));
}

TEST(ExactTest, FractionsPrintTheirSignOnce) {
  EXPECT_EQ(ValueText({0, 1}), "0");
  EXPECT_EQ(ValueText({-7, 3}), "-7/3");
  EXPECT_EQ(MixedText({-7, 3}), "-2" + tutor::Gap + "1/3");
  EXPECT_EQ(MixedText({-2, 3}), "-2/3");
  EXPECT_EQ(MixedText({-4, 1}), "-4");
}

TEST(ExactTest, SquareRootsLeaveNoSquareUnderTheSign) {
  EXPECT_EQ(RootOf(0), (Radical{0, 1}));
  for (int n = 1; n <= 2000; ++n) {
    const Radical root = RootOf(n);
    ASSERT_EQ(root.outside * root.outside * root.radicand, n);
    for (int k = 2; k * k <= root.radicand; ++k) ASSERT_NE(root.radicand % (k * k), 0) << n;
  }
  EXPECT_EQ(RadicalText(RootOf(72)), "6" + tutor::SquareRoot + "2");
  EXPECT_EQ(RadicalText(RootOf(6)), tutor::SquareRoot + "6");
  EXPECT_EQ(RadicalText(RootOf(49)), "7");
}

}  // namespace
}  // namespace course
