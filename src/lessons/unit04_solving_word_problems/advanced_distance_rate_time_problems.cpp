// The student can find when one vehicle catches up with another, and when two that go in opposite
// directions are so far apart, or how far: how fast does the distance between them change?
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/two_vehicles.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace stories;

// --- Teaching screens --------------------------------------------------------

void OppositeDirections() {
  NewScreen();
  SayAt(3, "Two trains leave Northton at the same time in opposite directions.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AdvancedDistanceRateTimeProblems final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{OppositeDirections}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  TwoVehicles vehicles_;
};

// --- Problem -----------------------------------------------------------------

void AdvancedDistanceRateTimeProblems::DrawProblem(RandomStream& random) {
  vehicles_ = TwoVehicles::Draw(random);
  problem.question = vehicles_.Question();
  FillChoices(vehicles_, problem, random);
}

void AdvancedDistanceRateTimeProblems::ShowProblem() {
  SayAt(5, OneParagraph(problem.question));
  // "11 hours & 45 minutes" is long.
  const bool isTime = vehicles_.Relative().asked == MotionPart::Time;
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 19, .fontSize = isTime ? 13.0 : 18.0});
}

// --- Worked explanation ------------------------------------------------------

void AdvancedDistanceRateTimeProblems::ExplainProblem() {
  ProblemBanner();
  SayAt(4, OneParagraph(problem.question));
  PageEnd();
  GoBelow();
  Conclude(problem);
}

const LessonRegistration<AdvancedDistanceRateTimeProblems> kRegistration(
    "Advanced Distance-Rate-Time Problems");

}  // namespace
}  // namespace course
