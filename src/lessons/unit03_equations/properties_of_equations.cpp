// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/families/principles/both_sides.h"
#include "lessons/families/principles/step_explanation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace principles;

constexpr double kEquationCol = 18;  // beside "Second equation:"

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

void Screen7() {
  NewScreen();
  Say("Screen 7 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PropertiesOfEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}, {Screen2}, {Screen3}, {Screen4}, {Screen5}, {Screen6}, {Screen7}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  StepProblem step_;
};

// --- Generator ---------------------------------------------------------------

void PropertiesOfEquations::DrawProblem(RandomStream& random) {
  step_ = DrawStepProblem(random);
  SetStepProblem(problem, step_, random);
}

// --- Problem page ------------------------------------------------------------

void PropertiesOfEquations::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(5, problem.question[1], kEquationCol);
  if (step_.asksForStep) {
    SayAt(6.5, problem.question[2]);
    ShowAt(6.5, problem.question[3], kEquationCol);
  }
  SayAt(8, problem.question.back());
  if (step_.asksForStep)  // "multiplying by -14" is long
    ShowAnswersInTwoColumns(problem, {.width = 20, .fontSize = 18});
  else
    ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void PropertiesOfEquations::ExplainProblem() {
  ExplainStep(step_, problem);
}

const LessonRegistration<PropertiesOfEquations> kRegistration("Properties of Equations");

}  // namespace
}  // namespace course
