// The graph of "Complex Inequalities" on the screen, pixel by pixel, against the right choice.
#include <cmath>
#include <set>
#include <sstream>

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lessons/registry.h"
#include "mathkit/tutor_codes.h"
#include "support/course_fixture.h"

namespace course::testing {
namespace {

// The number line's own pixels: 0, a unit, and the row of the line.
constexpr int kZeroX = 264;
constexpr int kUnit = 33;
constexpr int kLineY = 36;

class ComplexInequalitiesTest : public CourseTest {
 protected:
  void SetUp() override {
    CourseTest::SetUp();
    LoadLessonWindow();
  }
  void TearDown() override {
    UnloadLessonWindow();
    CourseTest::TearDown();
  }

  // Shows the problem page of a seed, looks at it and leaves.
  void OnProblemPage(int seed, const std::function<void()>& look) {
    session.gActivity = activity::Practice;
    session.gRepeatProblem = 1;
    session.gProblemSeed = static_cast<std::int16_t>(seed);
    user.At("AnswerWait").Do("look at the graph", [&] {
      look();
      session.gLeaveLesson = 1;
    });
    lesson_->Run();
  }
  static platform::Colour At(double number, int aboveLine) {
    const int x = kZeroX + static_cast<int>(std::floor(number * kUnit));
    return frmPR->picGraph2D[1].Pixel(x, kLineY - aboveLine);
  }

  std::unique_ptr<LessonScript> lesson_ = MakeLesson("Complex Inequalities");
};

bool Holds(double left, const std::string& relation, double right) {
  if (relation == "<") return left < right;
  if (relation == ">") return left > right;
  if (relation == tutor::LessOrEqual) return left <= right;
  if (relation == tutor::GreaterOrEqual) return left >= right;
  ADD_FAILURE() << "no relation: \"" << relation << "\"";
  return false;
}

// "-3 < x <= 5" or "x < -3 or x >= 5", for a number in place of x.
bool Covers(const std::string& inequality, double x) {
  std::istringstream words(inequality);
  std::string first, relation, middle, word;
  words >> first >> relation >> middle >> word;
  const auto value = [&](const std::string& text) { return text == "x" ? x : std::stod(text); };
  const bool holds = Holds(value(first), relation, value(middle));
  if (word != "or") {
    words >> first;
    return holds && Holds(value(middle), word, value(first));
  }
  words >> first >> relation >> middle;
  return holds || Holds(value(first), relation, value(middle));
}

TEST_F(ComplexInequalitiesTest, TheGraphCoversJustTheNumbersOfTheRightChoice) {
  std::set<std::string> kindsSeen;
  for (int seed = 0; seed < 150; ++seed) {
    SCOPED_TRACE("Complex Inequalities#" + std::to_string(seed));
    const Problem problem = lesson_->Draw(seed).problem;
    const std::string right = ChoiceText(problem, problem.correct);
    std::string kind;
    for (const char c : right)
      if (!std::isdigit(c) && c != '-') kind += c;
    kindsSeen.insert(kind);
    OnProblemPage(seed, [&] {
      for (double x = -7.5; x <= 7.5; ++x)
        EXPECT_EQ(At(x, 1) == platform::colour::Black, Covers(right, x)) << right << " at " << x;
      for (const FigureItem& item : problem.figure) {
        for (const auto& [name, value] : item.values) {
          if (name != "from" && name != "to") continue;
          EXPECT_EQ(At(value, 0) == platform::colour::Black, Covers(right, value)) << right;
        }
      }
    });
  }
  // A segment or two arrows, each end open or filled.
  EXPECT_EQ(kindsSeen.size(), 8u);
}

}  // namespace
}  // namespace course::testing
