// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/families/formulas/literal_equation.h"
#include "lessons/families/formulas/literal_explanation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace formulas;

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SolvingLiteralEquationsAndFormulas final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LiteralEquation equation_;
};

// --- Generator ---------------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::DrawProblem(RandomStream& random) {
  equation_ = DrawLiteralEquation(random);
  SetLiteralProblem(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 6);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::ExplainProblem() {
  ExplainLiteral(equation_, problem);
}

const LessonRegistration<SolvingLiteralEquationsAndFormulas> kRegistration("Solving Literal Equations and Formulas");

}  // namespace
}  // namespace course
