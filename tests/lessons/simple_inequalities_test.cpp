// Every problem of "Simple Inequalities", read as the student reads it.
#include <map>
#include <set>

#include "display/lesson_window.h"
#include "engine/navigation.h"
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

// A choice is right when it holds for just the numbers that the ray covers; halves tell all cases
// apart.
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

// A reader who turns every page of an explanation and keeps its lines.
class Reader final : public platform::User {
 public:
  std::vector<std::vector<std::string>> pages;

  void AtWait(const std::string&) override {
    pages.push_back(TranscriptLines(frmPR->lessonText));
    if (platform::Form* dialog = platform::Form::ModalForm())
      dialog->Find("cmdOption(4)")->Click();
    else
      frmPR->pnlLesson.Click();
  }
  void AtPause(double) override {}
  platform::Answer AtMessage(const platform::Message&) override { return platform::Answer::No; }
  std::optional<std::string> AtInput(const std::string&) override { return {}; }
  [[noreturn]] void AtStop(const std::string& message) override { throw StoppedProgram{message}; }
  [[noreturn]] void AtEnd() override { throw ProgramEnded{}; }
};

// One seed for each of the 52 problems.
std::map<std::string, int> SeedsOfAllProblems(LessonScript& lesson) {
  std::map<std::string, int> seeds;
  for (int seed = 0; seed < kSeeds && seeds.size() < 52; ++seed) {
    const Problem problem = lesson.Draw(seed).problem;
    seeds.emplace(ChoiceText(problem, problem.correct), seed);
  }
  return seeds;
}

TEST_F(SimpleInequalitiesTest, EveryExplanationKeepsToTheScreenAndEndsAtTheRightChoice) {
  const auto seeds = SeedsOfAllProblems(*lesson_);
  ASSERT_EQ(seeds.size(), 52u);
  LoadLessonWindow();
  for (const auto& [answer, seed] : seeds) {
    SCOPED_TRACE("Simple Inequalities#" + std::to_string(seed));
    Reader reader;
    platform::InstallUser(&reader);
    session.gActivity = activity::Practice;
    session.gProblemSeed = seed;
    session.gExplainProblem = 1;
    session.gLeaveLesson = 0;
    MakeLesson("Simple Inequalities")->Run();
    platform::InstallUser(&user);
    ASSERT_EQ(reader.pages.size(), 8u);
    const std::string last = reader.pages.back().back();
    EXPECT_EQ(last, std::string(16, ' ') + answer);
    // The sentence that has slid up is the only one left between the graph and the answer.
    const std::vector<std::string>& end = reader.pages.back();
    ASSERT_EQ(end.size(), 6u);
    EXPECT_EQ(end[2].substr(0, 20), "The arrow's range in");
    EXPECT_EQ(end[4], "  This is written as:");
    for (const Fragment& fragment : frmPR->lessonText.Transcript()) EXPECT_LE(fragment.row, 23);
  }
  UnloadLessonWindow();
}

}  // namespace
}  // namespace course::testing
