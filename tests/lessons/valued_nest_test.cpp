// The numbers with which a translated expression is checked.
#include "lessons/families/stories/valued_nest.h"

#include <algorithm>
#include <set>

#include "lessons/families/stories/nest_draws.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

using namespace stories;

class ValuedNestTest : public CourseTest {};

TEST_F(ValuedNestTest, LettersGetDifferentNumbersWithWholeValuesWherePossible) {
  constexpr int kNests = 2000;
  int friendly = 0;
  RandomStream random(1);
  for (int i = 0; i < kNests; ++i) {
    const Nest nest = DrawNest(random);
    const ValuedNest valued = WithNumbers(nest, {});
    std::set<std::string> numbers = {valued.nest.start};
    for (const Nest::Level& level : valued.nest.levels) numbers.insert(level.operand);
    EXPECT_EQ(numbers.size(), nest.levels.size() + 1) << nest.Symbols();
    EXPECT_EQ(valued.nest.Symbols().find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), std::string::npos);
    friendly += std::ranges::all_of(
        valued.values, [](const Fraction& value) { return value.den == 1 && value.num > 0; });
  }
  EXPECT_GT(friendly, kNests * 9 / 10);
}

// Of the rivals that are other expressions.
TEST_F(ValuedNestTest, NearlyAllRivalsHaveAnotherValue) {
  constexpr int kNests = 2000;
  int rivalCount = 0;
  int equal = 0;
  RandomStream random(2);
  for (int i = 0; i < kNests; ++i) {
    const Nest nest = DrawNest(random);
    std::vector<Nest> rivals;
    for (const NestSlip& slip : DrawSlips(nest, random))
      if (!nest.SameValue(slip.nest)) rivals.push_back(slip.nest);
    const ValuedNest valued = WithNumbers(nest, rivals);
    for (Nest rival : rivals) {
      const auto put = [&](std::string& operand) {
        std::string number = valued.nest.start;
        for (std::size_t level = 0; level < nest.levels.size(); ++level)
          if (nest.levels[level].operand == operand) number = valued.nest.levels[level].operand;
        operand = number;
      };
      put(rival.start);
      for (Nest::Level& level : rival.levels) put(level.operand);
      const std::vector<Fraction> values = WithNumbers(rival, {}).values;
      ++rivalCount;
      equal += !values.empty() && values.back() == valued.values.back();
    }
  }
  EXPECT_LT(equal, rivalCount / 1000) << equal << " of " << rivalCount;
}

// (C / B - S) / Q and (CB - S) / Q are equal where B is 1.
TEST_F(ValuedNestTest, ARivalHasAnotherValue) {
  const auto quotient = [](Operation innermost) {
    return Nest{"C",
                {{{innermost, 1}, "B", true},
                 {{Operation::Subtract, 4}, "S", true},
                 {{Operation::Divide, 3}, "Q", true}}};
  };
  const Nest nest = quotient(Operation::Divide);
  const ValuedNest valued = WithNumbers(nest, {quotient(Operation::Multiply)});
  EXPECT_NE(valued.nest.levels[0].operand, "1");
  EXPECT_EQ(valued.values.back().den, 1);
}

// 7 - (9 + A) is negative for any A.
TEST_F(ValuedNestTest, NegativeValuesBehindASignTakeParentheses) {
  const Nest nest = {"A",
                     {{{Operation::Add, 2}, "9", true},
                      {{Operation::Subtract, 1}, "7", false},
                      {{Operation::Multiply, 3}, "B", false}}};
  const ValuedNest valued = WithNumbers(nest, {});
  EXPECT_EQ(valued.LettersText(), WithoutBreaks("B is 3") + " and " + WithoutBreaks("A is 2"));
  EXPECT_EQ(valued.From(2).Symbols(), "3 " + tutor::Dot + " (-4)");
}

}  // namespace
}  // namespace course::testing
