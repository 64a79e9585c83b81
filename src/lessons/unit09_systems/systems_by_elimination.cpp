// The student can solve a system of two linear equations by elimination: choose the letter that is
// easy to eliminate, multiply until its terms are opposites, add the equations, and go back for the
// second number of the pair.
#include "lessons/families/systems/elimination_board.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace systems;

// The systems of the teaching screens.
constexpr LinearSystem kIdea = {{1, 1, 7}, {1, -1, 3}, 5, 2};
constexpr LinearSystem kOneFactor = {{3, 2, 4}, {5, -4, 14}, 2, -1};
constexpr LinearSystem kSameTerms = {{2, 3, 5}, {4, 3, 1}, -2, 3};
constexpr LinearSystem kWorked = {{4, 2, -2}, {-3, 3, 15}, -2, 3};
constexpr LinearSystem kParallel = {{2, 1, 3}, {4, 2, 10}};
constexpr LinearSystem kOneLine = {{2, 1, 3}, {4, 2, 6}};

constexpr double kBelowEquations = EliminationBoard::kBelowEquations;
constexpr double kBelow = EliminationBoard::kBelow;

// --- Teaching screens --------------------------------------------------------

void Principle() {
  NewScreen();
  Say("The method of elimination depends upon the following important principle:");
  RuleBox("Addition Principle of Equality", {"If a = b and c = d,", "then a + c = b + d."});
  PageEnd();
  Say("Equal numbers, added to equal numbers, give equal sums:");
  Show("9 = 5 + 4");
  Show("3 = 2 + 1");
  Say(R"(\yTry it:\z  Add the left sides and the right sides.  What do we get?)");
  PageEnd();
  Say("12 = 12.  Both sums are 12, since we have added the same amount to both sides.");
  PageEnd();
}

void AddTwoEquations() {
  const EliminationBoard board(kIdea);
  NewScreen();
  SayAt(2, "Now we add two equations with letters.");
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  What is the sum of y and -y?)");
  PageEnd();
  board.OpenWorkBox();
  SayInBox(R"(It is 0.  So y drops out.  We say that we \beliminate\z y.)");
  board.MoveDown(1);
  board.MoveDown(2);
  PageEnd();
  board.Add();
  board.SolveForLetter();
  SayInBox("Is 5 the whole solution?");
  PageEnd();
  board.SubstituteBack();
  SayInBoxAnew("");
  SayPairInBox(kIdea.x, kIdea.y);
  TryPairInBox(kIdea.first, kIdea.x, kIdea.y);
  TryPairInBox(kIdea.second, kIdea.x, kIdea.y);
  SayInBox(R"(The solution is the pair \b(5,2)\z, not 5 alone.)");
  PageEnd();
}

void OneMultiplication() {
  const EliminationBoard board(kOneFactor);
  NewScreen();
  SayAt(2, "Here no terms are opposites.");
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  By which number do we multiply Equation 1 to get 4y?)");
  PageEnd();
  Say("By 2, since 2 times 2y is 4y.  And 4y is the opposite of -4y.");
  PaperBox({R"(\r6x + 2y = 8\z  forgets the term 2y.)",
            R"(\r6x + 4y = 4\z  forgets the right side.)", R"(\b6x + 4y = 8\z  is right.)"});
  PageEnd();
  board.OpenWorkBox();
  board.MultiplyAndMoveDown(1);
  board.MultiplyAndMoveDown(2);
  board.Add();
  board.SolveForLetter();
  SayInBox("What is y?  Use Equation 1.");
  PageEnd();
  SayInBoxAnew("3(2) + 2y = 4, so 6 + 2y = 4.");
  SayInBox("2y = -2, and y = -1.");
  SayInBox(R"(The solution is \b(2,-1)\z.)");
  PageEnd();
}

void EqualTerms() {
  const EliminationBoard board(kSameTerms);
  NewScreen();
  SayAt(2, "Both equations have the same term, 3y.");
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  Does y drop out when we add?)");
  PageEnd();
  Say("No.  3y and 3y add up to 6y.  But 3y and -3y add up to 0, so we multiply one equation by "
      "-1.");
  PageEnd();
  board.OpenWorkBox();
  board.MoveDown(1);
  board.MultiplyAndMoveDown(2);
  SayInBoxAnew(R"(\bWatch out:\z  -1 changes the sign of every term, also of the 1 on the right.)");
  SayInBox("What is the sum of both equations?");
  PageEnd();
  board.Add();
  SayInBoxAnew("-2x = 4, so x = -2.  Equation 1 gives -4 + 3y = 5, so y = 3.");
  SayInBox(R"(The solution is \b(-2,3)\z.)");
  PageEnd();
}

void ThePlan() {
  NewScreen();
  PaperBox({R"(\bThe plan\z  Look at the terms of x and of y.)",
            "Opposites?  Add the equations.", "Equal?  Multiply one by -1, then add.",
            "Does one divide the other?  Multiply", "one equation.", "Else:  multiply both."},
           2.5);
  PageEnd();
  Say(R"(\yTry it:\z  Which letter would you eliminate, and how?)");
  Show("3x + 4y = 2");
  Show("5x - 2y = 12");
  PageEnd();
  Say("y is easy:  2 divides 4.  We multiply the second equation by 2.  For x we would have to "
      "multiply both.");
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yTry it:\z  And here?)");
  Show("4x + 2y = -2");
  Show("-3x + 3y = 15");
  PageEnd();
  Say("2 and 3 both divide 6, so we can make 6y and -6y.");
  AddLine("We multiply the first equation by 3 and the second one by -2.");
  Say("x would take 12x and -12x.  Larger numbers mean more work.");
  PageEnd();
}

void WorkedExample() {
  const EliminationBoard board(kWorked);
  NewScreen();
  SayAt(2, "We solve this system.");
  board.ShowEquations();
  SayAt(kBelowEquations, ReasonOfPlan(kWorked, board.Plan()));
  PageEnd();
  board.OpenWorkBox();
  board.MultiplyAndMoveDown(1);
  board.MultiplyAndMoveDown(2);
  board.Add();
  board.SolveForLetter();
  PageEnd();
  board.SubstituteBack();
  SayInBoxAnew("Is the solution (-2,3) or (3,-2)?");
  PageEnd();
  ClearBelow(kBelow);
  board.Check();
  SayAt(EliminationBoard::kBelowCheck, R"(x comes first:  the solution is \y(-2,3)\z.)");
  PageEnd();
}

// Both letters can drop out.
void NoLetterLeft() {
  const EliminationBoard board(kParallel);
  NewScreen();
  SayAt(2, "Sometimes both letters drop out.");
  board.ShowEquations();
  board.OpenWorkBox();
  board.MultiplyAndMoveDown(1);
  board.MultiplyAndMoveDown(2);
  board.Add();
  SayInBoxAnew("Which pairs (x,y) make 0 = 4 true?");
  PageEnd();
  SayInBoxAnew("No pair does.  The lines are parallel and have no common point.");
  SayInBox(SolutionSentence(SystemClass::NoSolution));
  PageEnd();
}

void EveryPointOfTheLine() {
  const EliminationBoard board(kOneLine);
  NewScreen();
  SayAt(2, "Only one number is different here.");
  board.ShowEquations();
  board.OpenWorkBox();
  board.MoveDown(1);
  board.MoveDown(2);
  board.Add();
  SayInBoxAnew("0 = 0 is always true.  Equation 2 is Equation 1 times 2:  it has the same line.");
  SayInBox(SolutionSentence(SystemClass::SameLine));
  SayInBox("Is (0,0) one of them?");
  PageEnd();
  SayInBoxAnew("No:  2(0) + 0 is 0, not 3.  Only points of the line are, such as (1,1).");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SystemsByElimination final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{Principle, AddTwoEquations},
            {OneMultiplication, EqualTerms},
            {ThePlan},
            {WorkedExample},
            {NoLetterLeft, EveryPointOfTheLine}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LinearSystem system_;
};

// --- Generator ---------------------------------------------------------------

bool IsAtMostOne(int number) {
  return std::abs(number) <= 1;
}

// What is found too easily.
bool LeavesTooLittle(const LinearSystem& system) {
  if (IsAtMostOne(system.first.a) || IsAtMostOne(system.first.b)) return true;  // no factor to find
  return IsAtMostOne(system.x) || IsAtMostOne(system.y);  // could be guessed
}

void SystemsByElimination::DrawProblem(RandomStream& random) {
  system_ = DrawSystem(random, LeavesTooLittle);
  AskForSolution(problem, system_, random);
}

// --- Problem page ------------------------------------------------------------

void SystemsByElimination::ShowProblem() {
  SayAt(5, problem.question[0] + " " + problem.question[1]);
  ShowAt(8, problem.question[2], 7);
  ShowAt(9, problem.question[3], 7);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void SystemsByElimination::ExplainProblem() {
  const EliminationBoard board(system_);
  ProblemBanner();
  board.ShowEquations();
  SayAt(kBelowEquations, ReasonOfPlan(system_, board.Plan()));
  PageEnd();
  board.OpenWorkBox();
  board.MultiplyAndMoveDown(1);
  board.MultiplyAndMoveDown(2);
  board.Add();
  if (system_.Class() != SystemClass::OneSolution) {
    ClearBelow(kBelow);
    return ConcludeSystem(problem, system_, kBelow);
  }
  board.SolveForLetter();
  PageEnd();
  board.SubstituteBack();
  ClearBelow(kBelow);
  board.Check();
  PageEnd();
  ConcludeSystem(problem, system_, EliminationBoard::kBelowCheck);
}

const LessonRegistration<SystemsByElimination> kRegistration("Solving Systems by Elimination");

}  // namespace
}  // namespace course
