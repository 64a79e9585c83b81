// Quadratic equations and their roots as text, and the problems of "The Quadratic Formula".
#include <set>

#include "lessons/families/quadratics/quadratic.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"
#include "support/expect_stop.h"

namespace course::testing {
namespace {

using namespace quadratics;

const std::string kBoth = tutor::PlusOrMinus;
const std::string kRoot = tutor::SquareRoot;

class QuadraticFormulaTest : public CourseTest {};

TEST_F(QuadraticFormulaTest, EquationsHaveNoDigitForOneAndNoZeroTerm) {
  EXPECT_EQ(EquationText({-1, 1, -1}), "-x^2^ + x - 1 = 0");
  EXPECT_EQ(EquationText({1, 0, 9}), "x^2^ + 9 = 0");
  EXPECT_EQ(EquationText({-8, -9, 0}), "-8x^2^ - 9x = 0");
}

TEST_F(QuadraticFormulaTest, RootsAreReducedAndShareOneText) {
  EXPECT_EQ(RootsText(RootsOf(4, 40, 4)), "(2 " + kBoth + " " + kRoot + "10)/2");
  EXPECT_EQ(RootsText(RootsOf(4, 40, -4)), "(-2 " + kBoth + " " + kRoot + "10)/2");
  EXPECT_EQ(RootsText(RootsOf(6, 72, 6)), "1 " + kBoth + " " + kRoot + "2");
  EXPECT_EQ(RootsText(RootsOf(0, 28, 14)), kBoth + kRoot + "7/7");
  EXPECT_EQ(RootsText(RootsOf(0, 28, 2)), kBoth + kRoot + "7");
  EXPECT_EQ(RootsText(RootsOf(7, 169, 12)), "-1/2 or 5/3");
  EXPECT_EQ(RootsText(RootsOf(-7, 49, 8)), "-7/4 or 0");
  EXPECT_EQ(RootsText(RootsOf(-4, 0, -6)), "2/3");
  EXPECT_EQ(RootsText(RootsOf(4, -16, 2)), "No real roots");
  EXPECT_EQ(RootsOf(4, 40, 4), RootsOf(-8, 160, -8));
  ExpectStop("RootsOf", [] { RootsOf(1, 1, 0); });
}

TEST_F(QuadraticFormulaTest, NoRealRootsAreAlwaysOfferedAndRightInAQuarterOfTheProblems) {
  const auto lesson = MakeLesson("The Quadratic Formula");
  constexpr int kDrawn = 8000;
  int none = 0;
  int doubled = 0;
  for (int seed = 0; seed < kDrawn; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    std::set<std::string> texts;
    for (int i = 1; i <= 5; ++i) texts.insert(ChoiceText(problem, i));
    ASSERT_EQ(texts.size(), 5u) << problem.question.back();
    ASSERT_TRUE(texts.contains(kNoRealRoots)) << problem.question.back();
    const std::string right = ChoiceText(problem, problem.correct);
    none += right == kNoRealRoots;
    doubled += right.find(' ') == std::string::npos && right.find(kBoth) == std::string::npos;
  }
  EXPECT_NEAR(none / double{kDrawn}, 0.255, 0.015);
  EXPECT_GT(doubled, 0);
}

}  // namespace
}  // namespace course::testing
