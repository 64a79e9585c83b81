// Trinomials and their factors, and the choices of "Trinomials of the Form x^2+bx+c".
#include <gtest/gtest.h>

#include "lessons/families/polynomials/trinomial.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"

namespace course::testing {
namespace {

using namespace polynomials;

const std::string kTitle = "Trinomials of the Form x" + tutor::SquaredSign + "+bx+c";

std::string Readable(const std::string& text) {
  return ToUtf8(text);
}

TEST(Trinomial, FactorsAreMultipliedOutAndComparedByTheirProduct) {
  const Factors factors = {{2, -3}, {1, 5}};
  EXPECT_EQ(factors.Product(), (Trinomial{2, 7, -15}));
  EXPECT_TRUE(factors.SameProductAs({{1, 5}, {2, -3}}));
  EXPECT_TRUE(factors.SameProductAs({{-2, 3}, {-1, -5}}));
  EXPECT_FALSE(factors.SameProductAs({{2, 3}, {1, -5}}));
}

TEST(Trinomial, TextsHaveNoOnesNoZerosAndNoDoubleSigns) {
  EXPECT_EQ(Readable(TrinomialText({1, 1, -6})), "x^2^ + x - 6");
  EXPECT_EQ(Readable(TrinomialText({-1, -1, 1})), "-x^2^ - x + 1");
  EXPECT_EQ(Readable(TrinomialText({3, 0, -12})), "3x^2^ - 12");
  EXPECT_EQ(Readable(TrinomialText({2, -5, 0})), "2x^2^ - 5x");
  EXPECT_EQ(Readable(FactorsText({{1, 1}, {-2, -10}})), "(x + 1)(-2x - 10)");
}

TEST(Trinomial, PairsHaveTheProductAndTheSignOfTheSum) {
  const auto sums = [](int product, int sign) {
    std::vector<int> result;
    for (const NumberPair& pair : PairsWithProduct(product, sign)) {
      EXPECT_EQ(pair.first * pair.second, product);
      result.push_back(pair.Sum());
    }
    return result;
  };
  EXPECT_EQ(sums(12, 1), (std::vector{13, 8, 7}));
  EXPECT_EQ(sums(12, -1), (std::vector{-13, -8, -7}));
  EXPECT_EQ(sums(-12, 1), (std::vector{11, 4, 1}));
  EXPECT_EQ(sums(-12, -1), (std::vector{-11, -4, -1}));
  EXPECT_EQ(sums(-1, 1), (std::vector{0}));
}

// A last number of 1 or a prime one has no second pair of this sign: that choice is drawn.
TEST(TrinomialsX2BxC, WithoutASecondPairTheMistakeIsNotClaimed) {
  const auto lesson = MakeLesson(kTitle);
  int drawn = 0;
  for (int seed = 0; seed <= 32766; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    const std::string asked = problem.question.at(1);
    const std::string last = asked.substr(asked.rfind(tutor::Gap) + 1);
    const bool single = last == "1" || last == "2" || last == "3" || last == "5" || last == "7";
    ASSERT_EQ(problem.choices[5].mistake == "filler", single) << seed << " " << ToUtf8(asked);
    drawn += single ? 1 : 0;
  }
  EXPECT_GT(drawn, 1000);
}

}  // namespace
}  // namespace course::testing
