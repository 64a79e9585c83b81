// Texts of powers, and the problems of "Multiplying with Exponents" that need special care.
#include <gtest/gtest.h>

#include "lessons/families/powers/power_text.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"

namespace course::testing {
namespace {

using namespace powers;

TEST(PowerText, LeavesOutWhatATextbookLeavesOut) {
  EXPECT_EQ(PowerText({"b", 12}), "b^12^");
  EXPECT_EQ(PowerText({"b", 1}), "b");
  EXPECT_EQ(ProductText(1, {{"t", 2}, {"a", 1}}), "at^2^");
  EXPECT_EQ(ProductText(7, {{"t", 2}}), "7t^2^");
  EXPECT_EQ(ProductText(-1, {{"t", 2}}), "-t^2^");
  EXPECT_EQ(WrittenOut({"b", 3}), "b" + tutor::Dot + "b" + tutor::Dot + "b");
}

TEST(PowerText, AnotherLetterIsNeverTheOneTaken) {
  RandomStream random(1);
  for (int i = 0; i < 50; ++i) EXPECT_EQ(DrawOtherLetter(random, "xy", "x"), "y");
}

// 2 and 2 have the same sum and product: that mistake gives way, and the right choice stays.
TEST(MultiplyingWithExponents, EqualSumAndProductLeaveOneRightChoice) {
  const auto lesson = MakeLesson("Multiplying with Exponents");
  int met = 0;
  for (int seed = 0; seed <= 32766; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    const std::string expression = problem.question.at(1);
    const std::size_t first = expression.find("^2^");
    if (first == std::string::npos || !expression.ends_with("^2^") ||
        first + 3 == expression.size() || problem.choices[2].mistake == "multiplies the exponents")
      continue;
    ++met;
    ASSERT_NE(problem.choices[1].text.find("^4^"), std::string::npos) << seed;
    for (int slot = 2; slot <= 5; ++slot)
      ASSERT_NE(problem.choices[slot].mistake, "multiplies the exponents") << seed;
  }
  EXPECT_GT(met, 100);
}

TEST(MultiplyingWithExponents, ANumberInFrontIsNeverOne) {
  const auto lesson = MakeLesson("Multiplying with Exponents");
  int withoutNumber = 0;
  for (int seed = 0; seed <= 32766; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    ASSERT_NE(problem.question.at(1)[0], '1') << seed;
    withoutNumber += problem.question.at(1)[0] >= 'a' ? 1 : 0;
  }
  EXPECT_GT(withoutNumber, 3000);  // one problem in nine
}

}  // namespace
}  // namespace course::testing
