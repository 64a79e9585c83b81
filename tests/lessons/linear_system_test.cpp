// Systems of equations: what is drawn, and the answers to systems without just one solution.
#include "lessons/families/systems/linear_system.h"

#include <gtest/gtest.h>

#include <set>

#include "lessons/families/systems/system_steps.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"

namespace course::testing {
namespace {

using namespace systems;

bool RejectNothing(const LinearSystem&) {
  return false;
}

TEST(LinearSystem, EveryDrawnSystemHasItsSolutionAndFitsThePlane) {
  RandomStream random(11);
  for (int i = 0; i < 20000; ++i) {
    const LinearSystem system = DrawSystem(random, RejectNothing);
    for (const LinearEquation& line : {system.first, system.second}) {
      ASSERT_NE(line.a * line.b, 0);
      ASSERT_EQ(line.a * system.x + line.b * system.y, line.c);
      ASSERT_EQ(line.Slope() * line.b, -line.a);
      ASSERT_EQ(line.Intercept() * line.b, line.c);
      ASSERT_LE(std::abs(line.Slope()), 3);
      ASSERT_LE(std::abs(line.Intercept()), 5);
    }
    ASSERT_NE(system.first.Slope(), system.second.Slope());
    ASSERT_EQ(system.Class(), SystemClass::OneSolution);
  }
}

TEST(LinearSystem, EquationsAreWrittenAsInATextbook) {
  const std::string gap = tutor::Gap;
  EXPECT_EQ(EquationText({-1, 1, 0}), "-x" + gap + "+" + gap + "y = 0");
  EXPECT_EQ(EquationText({6, -3, -9}), "6x" + gap + "-" + gap + "3y = -9");
  EXPECT_EQ(SlopeInterceptText({-1, 1, 0}), "y = x");
  EXPECT_EQ(SlopeInterceptText({6, -3, -9}), "y = 2x" + gap + "+" + gap + "3");
}

// No idle parentheses, and no line twice.
TEST(LinearSystem, APairIsPutInAsOnPaper) {
  const struct {
    LinearEquation equation;
    int x, y;
    std::string text;
  } kCases[] = {
      {{1, -1, 1}, 2, 1, "2 - 1 = 1"},
      {{1, -1, 3}, 3, 0, "3 - 0 = 3"},
      {{1, -1, 3}, 1, -2, "1 - (-2) = 1 + 2 = 3"},
      {{-1, 1, 3}, -2, 1, "-(-2) + 1 = 2 + 1 = 3"},
      {{4, -2, -4}, 0, 2, "4(0) - 2(2) = 0 - 4 = -4"},
      {{4, -2, -4}, -1, 0, "4(-1) - 2(0) = -4 - 0 = -4"},
  };
  for (const auto& [equation, x, y, text] : kCases)
    EXPECT_EQ(ToUtf8(SubstitutedText(equation, x, y)), text);
}

TEST(LinearSystem, WithoutJustOneSolutionNoneOfThePairsIsRight) {
  const LinearSystem same = {{1, 1, 2}, {-2, -2, -4}, 1, 1};
  const LinearSystem parallel = {{1, 1, 2}, {2, 2, 1}, 1, 1};
  EXPECT_EQ(same.Class(), SystemClass::SameLine);
  EXPECT_EQ(parallel.Class(), SystemClass::NoSolution);
  RandomStream random(1);
  for (const LinearSystem& system : {same, parallel}) {
    Problem problem;
    AskForSolution(problem, system, random);
    EXPECT_EQ(problem.correct, 5);
    EXPECT_EQ(ChoiceText(problem, 5), kNoneOfTheAbove);
    for (std::size_t slot = 1; slot <= 4; ++slot) EXPECT_NE(problem.choices[slot].mistake, "");
    EXPECT_EQ(problem.choices[5].text, system.Class() == SystemClass::SameLine
                                           ? "There are infinite solutions."
                                           : "There are zero solutions.");
  }
}

// Both numbers from -2 to 2, and never the origin: each of the other solutions is met.  (2,2) and
// its like would need an intercept that the lesson does not draw.
TEST(LinearSystem, TheGraphingLessonAsksForEverySolutionThatCanBeRead) {
  const auto lesson = MakeLesson("Solving Systems by Graphing");
  std::set<std::string> solutions;
  for (int seed = 0; seed < 5000; ++seed) {
    const Problem problem = lesson->Draw(seed).problem;
    solutions.insert(ChoiceText(problem, problem.correct));
  }
  std::set<std::string> readable;
  for (int x = -2; x <= 2; ++x)
    for (int y = -2; y <= 2; ++y)
      if (x * x + y * y != 0 && x * x + y * y != 8) readable.insert(PairText(x, y));
  EXPECT_EQ(solutions, readable);
}

}  // namespace
}  // namespace course::testing
