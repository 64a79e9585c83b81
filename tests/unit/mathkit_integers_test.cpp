#include <gtest/gtest.h>

#include <limits>
#include <numeric>

#include "mathkit/integers.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course {
namespace {

using testing::ExpectStop;

class IntegersTest : public testing::CourseTest {};

struct Fraction {
  int n, d;
  bool operator==(const Fraction&) const = default;
};

Fraction Reduced(int n, int d) {
  ReduceFraction(n, d);
  return {n, d};
}

TEST_F(IntegersTest, PrimesAreReadFromTheirString) {
  EXPECT_EQ(kPrimeCount, 25);
  EXPECT_EQ(PrimeAt(1), 2);
  EXPECT_EQ(PrimeAt(5), 11);
  EXPECT_EQ(PrimeAt(25), 97);
  for (int i = 2; i <= kPrimeCount; ++i) EXPECT_LT(PrimeAt(i - 1), PrimeAt(i));
  ExpectStop("PrimeAt: there is no prime 26", [] { PrimeAt(26); });
}

TEST(GcfTest, BothRoutinesAgreeWithTheLibrary) {
  for (int a = 1; a <= 60; ++a) {
    for (int b = 1; b <= 60; ++b) {
      ASSERT_EQ(Gcf(a, b), std::gcd(a, b)) << a << " " << b;
      ASSERT_EQ(GcfReal(a, b), std::gcd(a, b)) << a << " " << b;
      ASSERT_EQ(Lcm(a, b), std::lcm(a, b)) << a << " " << b;
      ASSERT_EQ(NeitherDivides(a, b), a % b != 0 && b % a != 0) << a << " " << b;
    }
  }
}

TEST_F(IntegersTest, FactorsOfZeroAndOfNegativeNumbers) {
  EXPECT_EQ(Gcf(0, 7), 0);
  EXPECT_EQ(Gcf(7, 0), 0);
  EXPECT_EQ(Gcf(6, -8), -2);  // callers fix the sign
  EXPECT_EQ(Gcf(std::numeric_limits<int>::min(), -1), -1);
  EXPECT_EQ(Lcm(-4, 6), 12);
  EXPECT_EQ(Lcm(4, 0), 0);
  EXPECT_EQ(GcfReal(16777217.0 * 2, 16777217.0 * 3), 16777217.0);
  ExpectStop("GcfReal: a is 0", [] { Lcm(0, 5); });
}

TEST(ReduceFractionTest, LowestTermsWithThePlusBelow) {
  EXPECT_EQ(Reduced(6, -8), (Fraction{-3, 4}));
  EXPECT_EQ(Reduced(-6, 8), (Fraction{-3, 4}));
  EXPECT_EQ(Reduced(-6, -8), (Fraction{3, 4}));
  EXPECT_EQ(Reduced(6, 3), (Fraction{2, 1}));
  EXPECT_EQ(Reduced(0, 5), (Fraction{0, 0}));  // a zero is not kept on either side
  EXPECT_EQ(Reduced(5, 0), (Fraction{0, 0}));
}

TEST_F(IntegersTest, SharedPrimeFactorsAreCountedWithRepetition) {
  EXPECT_EQ(CommonPrimeFactors(12, 18), 2);
  EXPECT_EQ(CommonPrimeFactors(8, 12), 2);
  EXPECT_EQ(CommonPrimeFactors(7, 11), 0);
  EXPECT_EQ(CommonPrimeFactors(16, 16), 4);
  EXPECT_EQ(CommonPrimeFactors(211 * 2, 211 * 3), 1);
  EXPECT_EQ(CommonPrimeFactors(223 * 2, 223 * 2), 1);  // 223 is beyond the table
  EXPECT_EQ(CommonPrimeFactors(-12, 18), 2);
  ExpectStop("CommonPrimeFactors: of 0 and 5", [] { CommonPrimeFactors(0, 5); });
}

TEST(RoundingTest, TheTwoKindsDifferWhereBinaryFractionsFallShort) {
  EXPECT_DOUBLE_EQ(RoundHundredths(2.675), 2.68);
  EXPECT_DOUBLE_EQ(RoundHundredths(1.005), 1.01);
  EXPECT_DOUBLE_EQ(RoundHundredthsPlain(1.005), 1.00);
  EXPECT_DOUBLE_EQ(RoundTenthsPlain(0.25), 0.3);
  EXPECT_DOUBLE_EQ(RoundTenthsPlain(-0.25), -0.2);
  EXPECT_EQ(RoundWhole(79.5), 80);
  EXPECT_EQ(RoundWhole(79.49999995), 80);
  EXPECT_EQ(RoundWhole(79.4999), 79);
  EXPECT_EQ(RoundWhole(-2.5), -2);
}

TEST_F(IntegersTest, WholePartsAndSigns) {
  EXPECT_EQ(IntOf(-2.9), -3);
  EXPECT_EQ(IntOf(-3), -3);
  EXPECT_EQ(IntOf(2.9), 2);
  ExpectStop("IntOf: ", [] { IntOf(3e9); });
  ExpectStop("IntOf: ", [] { IntOf(std::numeric_limits<double>::quiet_NaN()); });
  EXPECT_EQ(Sgn(-0.1), -1);
  EXPECT_EQ(Sgn(-0.0), 0);
  EXPECT_EQ(Sgn(7), 1);
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-0.5), 0);
  EXPECT_EQ(RoundHalfEven(-1.5), -2);
  EXPECT_EQ(RoundHalfEven(-1.2), -1);
  EXPECT_EQ(RoundHalfEven(2.51), 3);
  EXPECT_EQ(SmallerOf(3, -4), -4);
  EXPECT_EQ(SmallerOf(2, 5), 2);
}

TEST_F(IntegersTest, DropLastCharsKeepsTheFirst) {
  EXPECT_EQ(DropLastChars("12.50", 3), "12");
  EXPECT_EQ(DropLastChars("12", 3), "");
  EXPECT_EQ(DropLastChars("12", 0), "12");
}

}  // namespace
}  // namespace course
