// Terms and their sums, and the mistakes of combining them.
#include "lessons/families/polynomials/sum_of_terms.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "lessons/families/polynomials/combining_mistakes.h"
#include "lessons/families/polynomials/sum_with_products.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace polynomials;

using QuotientOfTermsTest = CourseTest;

std::string Readable(const std::string& text) {
  return ToUtf8(text);
}

TEST(SumOfTerms, TextsHaveNoOnesAndOneBlankAroundASign) {
  EXPECT_EQ(Readable(SumText({{-1, "xxy"}, {1, "x"}, {-1, "y"}, {1, ""}})), "-x^2^y + x - y + 1");
  EXPECT_EQ(Readable(SumText({{1, ""}, {-12, "abbb"}})), "1 - 12ab^3^");
  EXPECT_EQ(Readable(SumText({{-1, ""}, {0, "x"}})), "-1 + 0");
  EXPECT_EQ(Readable(SumText(Sum{})), "0");
}

TEST(SumOfTerms, CombinedFallsInPowersWhateverTheOrder) {
  const Sum combined = {{2, "xx"}, {3, "xy"}, {-1, "yy"}, {4, "x"}, {7, ""}};
  EXPECT_EQ(Combined({{7, ""}, {4, "x"}, {-1, "yy"}, {5, "xx"}, {3, "xy"}, {-3, "xx"}}), combined);
  EXPECT_EQ(Combined({{3, "x"}, {5, ""}, {-3, "x"}}), (Sum{{5, ""}}));
  EXPECT_TRUE(Combined({{3, "x"}, {-3, "x"}}).empty());
}

TEST(SumOfTerms, ProductsKeepTheirLettersInOrder) {
  EXPECT_EQ(Product(Term{2, "yy"}, Term{-3, "xy"}), (Term{-6, "xyyy"}));
  EXPECT_EQ(Product({-2, "x"}, {{3, "x"}, {-4, ""}}), (Sum{{-6, "xx"}, {8, "x"}}));
  EXPECT_EQ(ValueAt({{2, "xx"}, {-3, "x"}, {1, ""}}, -2), 15);
}

TEST_F(QuotientOfTermsTest, IsExactOrStops) {
  EXPECT_EQ(Quotient({-24, "xxxyy"}, {6, "xy"}), (Term{-4, "xxy"}));
  EXPECT_EQ(Quotient({24, "x"}, {-6, "x"}), (Term{-4, ""}));
  ExpectStop("Quotient: 6xy does not divide 24x", [] { Quotient({24, "x"}, {6, "xy"}); });
  ExpectStop("Quotient: 5 does not divide 24x", [] { Quotient({24, "x"}, {5, ""}); });
}

TEST(SumWithProducts, TheFactorIsCarriedToEachTermWithItsSign) {
  const SumWithProducts sum = {{{{5, ""}}}, {{{3, "x"}, {-4, ""}}, -2}, {{{1, "x"}, {2, ""}}, -1}};
  EXPECT_EQ(Readable(SumText(sum)), "5 - 2(3x - 4) - (x + 2)");
  EXPECT_EQ(Combined(MultipliedOut(sum)), (Sum{{-7, "x"}, {11, ""}}));
}

// A wrong choice that vanishes or is right would be no choice.
TEST(CombiningMistakes, LeaveOutWhatVanishesOrIsRight) {
  const auto has = [](const Sum& sum, const std::string& mistake) {
    return std::ranges::count(CombiningMistakes(sum), mistake, &WrongSum::mistake) != 0;
  };
  EXPECT_TRUE(has({{4, "x"}, {3, ""}, {2, "x"}}, "combines unlike terms"));
  EXPECT_FALSE(has({{4, "x"}, {-6, ""}, {2, "x"}}, "combines unlike terms"));  // 0x
  EXPECT_FALSE(has({{4, "x"}, {2, "x"}}, "combines unlike terms"));
  EXPECT_FALSE(has({{4, "x"}, {2, "x"}}, "takes the wrong sign in a sum of unlike signs"));
  EXPECT_TRUE(has({{-4, "x"}, {-2, "x"}}, "makes two negatives a positive"));
  EXPECT_FALSE(has({{4, ""}, {2, ""}, {1, "x"}}, "adds the exponents too"));
}

}  // namespace
}  // namespace course::testing
