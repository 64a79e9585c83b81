// Every problem of "Simple Inequalities", read as the student reads it.
#include <set>

#include "lessons/lesson_table.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

constexpr int kSeeds = 32767;

class SimpleInequalitiesTest : public CourseTest {
 protected:
  std::unique_ptr<LessonScript> lesson_ = MakeLesson("Simple Inequalities");
};

double ValueOf(const FigureItem& item, const std::string& name) {
  for (const auto& [key, value] : item.values)
    if (key == name) return value;
  ADD_FAILURE() << "the figure has no " << name;
  return 0;
}

// Whether the number lies on the drawn ray.
bool Covers(const FigureItem& ray, double x) {
  const double from = ValueOf(ray, "from");
  if (x == from) return ValueOf(ray, "closed") == 1;
  return (x > from) == (ValueOf(ray, "direction") > 0);
}

// Whether a choice such as "x < -3" holds for the number.
bool Holds(const std::string& choice, double x) {
  const std::size_t blank = choice.rfind(' ');
  const std::string relation = choice.substr(2, blank - 2);
  const double bound = std::stod(choice.substr(blank + 1));
  if (relation == "<") return x < bound;
  if (relation == ">") return x > bound;
  if (relation == tutor::LessOrEqual) return x <= bound;
  if (relation == tutor::GreaterOrEqual) return x >= bound;
  ADD_FAILURE() << "unknown relation in \"" << choice << "\"";
  return false;
}

// A choice is right when it holds for just the numbers that the ray covers; halves tell all cases apart.
bool DescribesRay(const std::string& choice, const FigureItem& ray) {
  for (int halves = -20; halves <= 20; ++halves)
    if (Holds(choice, halves / 2.0) != Covers(ray, halves / 2.0)) return false;
  return true;
}

TEST_F(SimpleInequalitiesTest, OfFourChoicesInOrderJustTheRightOneDescribesTheRay) {
  std::set<std::string> drawn;
  for (int seed = 0; seed < kSeeds; ++seed) {
    SCOPED_TRACE("Simple Inequalities#" + std::to_string(seed));
    const auto problem = lesson_->Draw(seed);
    ASSERT_EQ(problem.order, (std::vector<int>{0, 1, 2, 3, 4, 5}));
    ASSERT_EQ(problem.problem.figure.size(), 1u);
    const FigureItem& ray = problem.problem.figure[0];
    for (int choice = 1; choice <= 4; ++choice) {
      const std::string text = ChoiceText(problem.problem, choice);
      ASSERT_EQ(DescribesRay(text, ray), choice == problem.problem.correct) << text;
      ASSERT_EQ(problem.problem.choices[choice].mistake.empty(), choice == problem.problem.correct);
    }
    drawn.insert(ChoiceText(problem.problem, problem.problem.correct));
  }
  // 13 starting points, open or closed, in two directions: each is met.
  EXPECT_EQ(drawn.size(), 52u);
}

TEST_F(SimpleInequalitiesTest, TheSameSeedGivesTheSameProblem) {
  for (int seed = 0; seed < kSeeds; seed += 97) {
    const auto once = lesson_->Draw(seed);
    const auto again = MakeLesson("SIMPLE INEQUALITIES")->Draw(seed);
    SCOPED_TRACE("Simple Inequalities#" + std::to_string(seed));
    EXPECT_EQ(once.problem.correct, again.problem.correct);
    for (int choice = 1; choice <= 4; ++choice)
      EXPECT_EQ(ChoiceText(once.problem, choice), ChoiceText(again.problem, choice));
  }
}

}  // namespace
}  // namespace course::testing
