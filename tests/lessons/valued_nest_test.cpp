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
    const ValuedNest valued = WithNumbers(nest);
    std::set<std::string> numbers = {valued.nest.start};
    for (const Nest::Level& level : valued.nest.levels) numbers.insert(level.operand);
    EXPECT_EQ(numbers.size(), nest.levels.size() + 1) << nest.Symbols();
    EXPECT_EQ(valued.nest.Symbols().find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), std::string::npos);
    friendly += std::ranges::all_of(
        valued.values, [](const Fraction& value) { return value.den == 1 && value.num > 0; });
  }
  EXPECT_GT(friendly, kNests * 9 / 10);
}

// 7 - (9 + A) is negative for any A.
TEST_F(ValuedNestTest, NegativeValuesBehindASignTakeParentheses) {
  const Nest nest = {"A",
                     {{{Operation::Add, 2}, "9", true},
                      {{Operation::Subtract, 1}, "7", false},
                      {{Operation::Multiply, 3}, "B", false}}};
  const ValuedNest valued = WithNumbers(nest);
  EXPECT_EQ(valued.LettersText(), WithoutBreaks("B is 3") + " and " + WithoutBreaks("A is 2"));
  EXPECT_EQ(valued.From(2).Symbols(), "3 " + tutor::Dot + " (-4)");
}

}  // namespace
}  // namespace course::testing
