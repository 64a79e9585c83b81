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

void Screen2() {
  NewScreen();
  Say("Screen 2 is not written yet.");
  PageEnd();
}

void Screen3() {
  NewScreen();
  Say("Screen 3 is not written yet.");
  PageEnd();
}

void Screen4() {
  NewScreen();
  Say("Screen 4 is not written yet.");
  PageEnd();
}

void Screen5() {
  NewScreen();
  Say("Screen 5 is not written yet.");
  PageEnd();
}

void Screen6() {
  NewScreen();
  Say("Screen 6 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class LinearEquationsInTwoVariables final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{Screen1}, {Screen2}, {Screen3}, {Screen4}, {Screen5}, {Screen6}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // The numbers of one problem.
  int first_ = 0;  // 2 to 9
};

// --- Generator ---------------------------------------------------------------

void LinearEquationsInTwoVariables::DrawProblem(RandomStream& random) {
  first_ = random.Rand(2, 9);

  problem.question = {"Not written yet: what is " + NumStr(first_) + " + 1?"};
  Choices choices(problem, choice_kind::FourShuffled, NumStr);
  choices.Right(first_ + 1);
  choices.Wrong("forgets to add", first_);
  choices.Wrong("subtracts", first_ - 1);
  choices.Wrong("adds twice", first_ + 2);
}

// --- Problem page ------------------------------------------------------------

void LinearEquationsInTwoVariables::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void LinearEquationsInTwoVariables::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<LinearEquationsInTwoVariables> kRegistration(
    "Linear Equations in Two Variables");

}  // namespace
}  // namespace course
