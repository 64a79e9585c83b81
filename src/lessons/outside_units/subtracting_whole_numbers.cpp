// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/lesson.h"

namespace course {
namespace {

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SubtractingWholeNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // The numbers of one problem.
  int first_ = 0;  // 2 to 9
};

// --- Generator ---------------------------------------------------------------

void SubtractingWholeNumbers::DrawProblem(RandomStream& random) {
  first_ = random.Rand(2, 9);

  problem.question = {"Not written yet: what is " + NumStr(first_) + " + 1?"};
  Choices choices(problem, choice_kind::FourShuffled, NumStr);
  choices.Right(first_ + 1);
  choices.Wrong("forgets to add", first_);
  choices.Wrong("subtracts", first_ - 1);
  choices.Wrong("adds twice", first_ + 2);
}

// --- Problem page ------------------------------------------------------------

void SubtractingWholeNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void SubtractingWholeNumbers::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<SubtractingWholeNumbers> kRegistration("Subtracting Whole Numbers");

}  // namespace
}  // namespace course
