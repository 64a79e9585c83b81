// The student can solve a system of two linear equations by substitution: isolate the variable that
// is easy to isolate, put what it is equal to into the other equation, solve it, and go back for
// the second number of the pair.
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/substitution_board.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace systems;

// The systems of the teaching screens.
constexpr LinearSystem kIdea = {{-2, 1, 0}, {1, 1, 12}, 4, 8};
constexpr LinearSystem kWorked = {{-6, -3, -3}, {4, -2, -10}, -1, 3};

// --- Teaching screens --------------------------------------------------------

void OneEquationFromTwo() {
  const SubstitutionBoard board(kIdea, SubstitutionBoard::First::SolvedForY);
  NewScreen();
  board.ShowEquations();
  SayAt(SubstitutionBoard::kBelow, "Equation 1 says:  y is the same as 2x.");
  Say(R"(\yTry it:\z  What replaces y in Equation 2?)");
  PageEnd();
  ClearBelow(SubstitutionBoard::kBelow);
  SayAt(SubstitutionBoard::kBelow, R"(2x does.  This is called \csubstitution\z.)");
  Say("Two equations become one, with x alone.");
  board.Substitute();
  ClearBelow(SubstitutionBoard::kBelow);
  WhiteBox({.row = SubstitutionBoard::kBelow});
  board.SolveForX();
  SayInBox("Is 4 the whole solution?");
  PageEnd();
  board.FindY();
  SayInBoxAnew("");
  SayPairInBox(kIdea.x, kIdea.y);
  SayInBox(R"(8 = 2(4), \btrue\z)");
  TryPairInBox(kIdea.second, kIdea.x, kIdea.y);
  SayInBox(R"(The solution is \b(4,8)\z, not 4 alone.)");
  PageEnd();
}

// With the signs of equality in one column.
void ShowBelow(const std::string& math) {
  constexpr double kEqualsCol = 21;
  const auto before = static_cast<double>(math.find('='));
  ShowAt(NextRow() + (math.find('/') == std::string::npos ? 0.3 : 1.5), math, kEqualsCol - before);
}

void CoefficientOne() {
  NewScreen();
  Say(R"(\yTry it:\z  Which variable is easiest to \cisolate\z, that is, to get alone?)");
  ShowBelow("3x + y = 5");
  ShowBelow("2x + 5y = -1");
  PageEnd();
  Say("y in the first:  its coefficient is 1.");
  ShowBelow("y = -3x + 5");
  Say("x in the second brings a fraction:");
  ShowBelow("x = (-5y - 1)/2");
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  And which one here?)");
  ShowBelow("x - 4y = 2");
  ShowBelow("3x + 2y = 6");
  PageEnd();
  Say("x in the first:  we add 4y.");
  ShowBelow("x = 4y + 2");
  PageEnd();
}

void OtherCoefficients() {
  Say(R"(\yTry it:\z  Isolate y here.)");
  ShowBelow("2x - y = 4");
  PageEnd();
  Say("Subtracting 2x from both sides:");
  ShowBelow("-y = -2x + 4");
  Say("Multiplying both sides by -1:");
  ShowBelow("y = 2x - 4");
  PageEnd();

  NewScreen();
  Say(R"(\yTry it:\z  No coefficient is 1 here.  Which number divides all three?)");
  ShowBelow("6x + 2y = 8");
  PageEnd();
  Say("2 does, the coefficient of y.");
  ShowBelow("2y = -6x + 8");
  ShowBelow("y = -3x + 4");
  PageEnd();
}

void Parentheses() {
  const auto showSystem = [] {
    ShowAt(3, "Equation 1:  y = x - 2", 1);
    ShowAt(4, "Equation 2:  x - 3y = 8", 1);
  };
  NewScreen();
  showSystem();
  Say(R"(\yTry it:\z  Put x - 2 in place of y.)");
  PageEnd();
  ShowBelow("x - 3(x - 2) = 8");
  Say(R"(We need \yparentheses\z:  -3 multiplies all of x - 2.)");
  Say(R"(\yTry it:\z  What is -3(x - 2)?)");
  PageEnd();
  Say("It is -3x + 6:  -3 times -2 is +6.");
  PaperBox({R"(\rx - 3x - 2 = 8\z  forgets the parentheses.)",
            R"(\rx - 3x - 6 = 8\z  loses a sign.)", R"(\bx - 3x + 6 = 8\z  is right.)"});
  PageEnd();

  NewScreen();
  showSystem();
  Say("So -2x + 6 = 8, -2x = 2, and x = -1.");
  AddLine(R"(\yTry it:\z  Is the solution -1?)");
  PageEnd();
  Say("No, that is half of the solution.  Equation 1 gives y = -1 - 2 = -3.");
  AddLine(R"(The solution is \y(-1,-3)\z.)");
  PageEnd();
}

void WorkedExample() {
  const SubstitutionBoard board(kWorked);
  NewScreen();
  SayAt(2, R"(\ySolve one equation for one of the variables.\z)");
  board.ShowEquations();
  PageEnd();
  SayAt(SubstitutionBoard::kBelow, R"(\yTry it:\z  Which one is easy to isolate?)");
  PageEnd();
  Say("In Equation 1 the coefficient of y is -3, and 3 divides every number.  So y is easy to "
      "isolate there.");
  PageEnd();
  board.IsolateY();
  ClearRows(2, 2.4);
  SayAt(2.5, R"(\yPut -2x + 1 into the other equation.\z)");
  board.Substitute();
  SayInBoxAnew(
      R"(\bWatch out:\z  In Equation 1 itself x would drop out, and only -3 = -3 would be left.)");
  PageEnd();
  board.SolveForX();
  PageEnd();
  board.FindY();
  board.Check();
  SayInBox(R"(The solution is \b(-1,3)\z.)");
  PageEnd();
}

// The letter can drop out.
void NoLetterLeft() {
  NewScreen();
  Say(Text("Sometimes x drops out.  Here is a system:  {} and {}.", "y = x - 2", "2x - 2y = 6"));
  ShowBelow("2x - 2(x - 2) = 6");
  PageEnd();
  ShowBelow("2x - 2x + 4 = 6");
  ShowBelow("4 = 6");
  Say(R"(\yTry it:\z  Which x make this true?)");
  PageEnd();
  Say("No x does.  No point is on both lines, so the lines are parallel.");
  AddLine(SolutionSentence(SystemClass::NoSolution));
  Say(R"(\yTry it:\z  Which x make 4 = 4 true?)");
  PageEnd();
  Say("Every x does.  Both equations have the same line.");
  AddLine(SolutionSentence(SystemClass::SameLine));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SystemsBySubstitution final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{OneEquationFromTwo},
            {CoefficientOne, OtherCoefficients},
            {Parentheses},
            {WorkedExample, NoLetterLeft}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void TellWhyY() const;

  LinearSystem system_;
};

// --- Generator ---------------------------------------------------------------

bool NothingMore(const LinearSystem&) {
  return false;
}

// One try in five is accepted.
void SystemsBySubstitution::DrawProblem(RandomStream& random) {
  system_ = DrawSystem(random, NothingMore);
  AskForSolution(problem, system_, random);
}

// --- Problem page ------------------------------------------------------------

void SystemsBySubstitution::ShowProblem() {
  SayAt(5, problem.question[0] + " " + problem.question[1]);
  ShowAt(8, problem.question[2], 7);
  ShowAt(9, problem.question[3], 7);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

// The coefficient of y divides all numbers of Equation 1.
void SystemsBySubstitution::TellWhyY() const {
  const int b = system_.first.b;
  if (std::abs(b) == 1)
    Say(Text("In Equation 1 the coefficient of y is {}.  So y is easy to isolate there.", b));
  else
    Say(Text("In Equation 1 y has the coefficient {}, and {} divides each number.", b,
             std::abs(b)));
}

void SystemsBySubstitution::ExplainProblem() {
  const SubstitutionBoard board(system_);
  ProblemBanner();
  board.ShowEquations();
  SayAt(SubstitutionBoard::kBelow, R"(\ySolve one equation for one of the variables.\z)");
  TellWhyY();
  PageEnd();
  board.IsolateY();
  board.Substitute();
  board.SolveForX();
  PageEnd();
  const bool hasPair = system_.Class() == SystemClass::OneSolution;
  if (hasPair) {
    board.FindY();
    board.Check();
    PageEnd();
  } else {
    ClearBelow(SubstitutionBoard::kBelow);
  }
  ConcludeSystem(problem, system_,
                 hasPair ? SubstitutionBoard::kBelowCheck : SubstitutionBoard::kBelow);
}

const LessonRegistration<SystemsBySubstitution> kRegistration("Solving Systems by Substitution");

}  // namespace
}  // namespace course
