// The student can solve a system of two linear equations by elimination: choose the letter that is
// easy to eliminate, multiply until its terms are opposites, add the equations, and go back for the
// second number of the pair.
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/elimination_board.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace systems;

// The systems of the teaching screens.
constexpr LinearSystem kIdea = {{1, 1, 7}, {1, -1, 3}, 5, 2};
constexpr LinearSystem kOneFactor = {{3, 2, 4}, {5, -4, 14}, 2, -1};
constexpr LinearSystem kSameTerms = {{3, 2, 5}, {3, 4, 1}, 3, -2};
constexpr LinearSystem kWorked = {{4, 2, -2}, {-3, 3, 15}, -2, 3};
constexpr LinearSystem kParallel = {{2, 1, 3}, {4, 2, 10}};
constexpr LinearSystem kOneLine = {{2, 1, 3}, {4, 2, 6}};

constexpr double kBelowEquations = EliminationBoard::kBelowEquations;
constexpr double kBelow = EliminationBoard::kBelow;
constexpr double kFewRows = 8;  // of a white box for a few words
constexpr double kBelowPlane = 18.3;

// --- Teaching screens --------------------------------------------------------

void WhatASystemIs() {
  NewScreen();
  SayAt(2.5, R"(x + y = 7 and x - y = 3 make a \csystem\z.)");
  ShowPlaneAtRight(4);
  DrawOnPlane(1, {LineItem(-1, 7, "x + y = 7")}, platform::colour::Blue);
  DrawOnPlane(1, {Broken(LineItem(1, -3, "x - y = 3"))}, platform::colour::Red);
  DrawOnPlane(1, {PointItem(5, 2, "(5,2)")});
  SayAt(15.5, R"(A pair that makes both true is its \csolution\z, here (5,2).)");
  Say(R"(\yCheck:\z  5 + 2 = 7 and 5 - 2 = 3.)");
  PageEnd();
}

void Principle() {
  NewScreen();
  Say("The method of elimination depends upon the following important principle:");
  Show("9 = 5 + 4  and  3 = 2 + 1");
  Say(R"(\yTry it:\z  Add both equations.)");
  PageEnd();
  Say("9 + 3 = 12, and 5 + 4 + 2 + 1 = 12.");
  RuleBox("Addition Principle of Equality", {"If a = b and c = d, then a + c = b + d."});
  PageEnd();
}

void AddTwoEquations() {
  const EliminationBoard board(kIdea);
  NewScreen();
  SayAt(2, "And now with letters:");
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  What is the sum of y and -y?)");
  PageEnd();
  board.OpenWorkBox(kFewRows);
  board.MoveDown(1);
  board.MoveDown(2);
  board.ShowSum();
  SayInBox(R"(It is 0, so we have \beliminated\z y.)");
  PageEnd();
  SayInBoxAnew("y has dropped out.  Only x is left.");
  SayInBox("2x = 10, so x = 5.");
  SayInBox("Is 5 the whole solution?");
  PageEnd();
  SayInBoxAnew("No.  With x = 5 in Equation 1 we have 5 + y = 7, so y = 2.");
  SayInBox("Check:  5 + 2 = 7 and 5 - 2 = 3.");
  SayInBox(R"(The solution is the pair \b(5,2)\z.)");
  PageEnd();
}

void OneMultiplication() {
  const EliminationBoard board(kOneFactor);
  NewScreen();
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  Which number times 2y is the opposite of -4y?)");
  PageEnd();
  ClearBelow(kBelowEquations);
  SayAt(kBelowEquations, "2, for 4y.  We multiply every term:");
  Show("2(3x + 2y) = 2(4),  so  6x + 4y = 8");
  PaperBox({R"(\r6x + 2y = 8:\z  2y was not multiplied.)",
            R"(\r6x + 4y = 4:\z  4 was not multiplied.)"});
  PageEnd();
  board.OpenWorkBox(kFewRows);
  board.MoveDown(1);
  board.MoveDown(2);
  board.ShowSum();
  SayInBox("11x = 22, so x = 2.  What is y?");
  PageEnd();
  SayInBoxAnew("3(2) + 2y = 4, so 6 + 2y = 4.");
  SayInBox("2y = -2, and y = -1.");
  SayInBox("Check in Equation 2:  5(2) - 4(-1) = 14.");
  SayInBox(R"(The solution is \b(2,-1)\z.)");
  PageEnd();
}

void EqualTerms() {
  const EliminationBoard board(kSameTerms);
  NewScreen();
  board.ShowEquations();
  SayAt(kBelowEquations, "3x and 3x add up to 6x, not to 0.");
  Say(R"(\yTry it:\z  Multiply Equation 2 by -1.)");
  PageEnd();
  board.OpenWorkBox(kFewRows);
  board.MoveDown(1);
  board.MoveDown(2);
  SayInBox(R"(\bWatch out:\z  All three signs change, also the one on the right side.)");
  PageEnd();
  board.ShowSum();
  SayInBoxAnew("-2y = 4, so y = -2.");
  SayInBox("Equation 1:  3x + 2(-2) = 5.  What is x?");
  PageEnd();
  SayInBoxAnew("3x - 4 = 5, so 3x = 9, and x = 3.");
  SayInBox("Check in Equation 2:  3(3) + 4(-2) = 1.");
  SayInBox(R"(We found y first, but x is written first:  \b(3,-2)\z.)");
  PageEnd();
}

void ThePlan() {
  NewScreen();
  Say("We compare the terms of each letter:");
  PaperBox({R"(\bOpposites?\z  We add the equations.)",
            R"(\bEqual?\z  We multiply one of them by -1.)",
            R"(\bNeither?\z  We multiply one or both.)"});
  PageEnd();
  Say(R"(\yTry it:\z  Which letter is easy to eliminate?)");
  Show("3x + 4y = 2");
  Show("5x - 2y = 12");
  PageEnd();
  Say("y is, since 2 divides 4.  We multiply the second equation by 2.");
  Say(Text(R"(\yTry it:\z  And in {} with {}?)", EquationText(kWorked.first),
           EquationText(kWorked.second)));
  PageEnd();
}

void WorkedExample() {
  const EliminationBoard board(kWorked);
  NewScreen();
  board.ShowEquations();
  SayAt(kBelowEquations, "y is easier:  for x we need 12x.");
  Say(R"(\yTry it:\z  How do we get 6y and -6y?)");
  PageEnd();
  board.OpenWorkBox();
  board.BringDown();
  board.Add();
  board.SolveForLetter();
  PageEnd();
  board.SubstituteBack();
  ClearBelow(kBelow);
  board.Check();
  SayAt(EliminationBoard::kBelowCheck, R"(The solution is \y(-2,3)\z:  x comes first.)");
  PageEnd();
}

// A plane in place of sum and white box.
void ShowLinesBelow() {
  constexpr double kSumRow = 7;
  ClearBelow(kSumRow);
  ShowPlaneAtRight(kBelowEquations - 0.5);
}

// Both letters can drop out.
void NoLetterLeft() {
  const EliminationBoard board(kParallel);
  NewScreen();
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  By which number do we multiply Equation 1?)");
  PageEnd();
  board.OpenWorkBox(kFewRows);
  board.MoveDown(1);
  board.MoveDown(2);
  board.ShowSum();
  SayInBox("By -2.  For which pairs is 0 = 4 true?");
  PageEnd();
  ShowLinesBelow();
  DrawOnPlane(1, {LineItem(-2, 3, "2x + y = 3")}, platform::colour::Blue);
  DrawOnPlane(1, {Broken(LineItem(-2, 5, "4x + 2y = 10"))}, platform::colour::Red);
  SayAt(kBelowPlane, "For none.  The lines are parallel:  no point is on both.");
  Say(SolutionSentence(SystemClass::NoSolution));
  PageEnd();
}

void EveryPointOfTheLine() {
  const EliminationBoard board(kOneLine);
  NewScreen();
  board.ShowEquations();
  SayAt(kBelowEquations, R"(\yTry it:\z  What is the sum this time?)");
  PageEnd();
  board.OpenWorkBox(kFewRows);
  board.MoveDown(1);
  board.MoveDown(2);
  board.ShowSum();
  SayInBox("0 = 0 is true.  Is (0,0) a solution?");
  PageEnd();
  ShowLinesBelow();
  DrawOnPlane(1, {LineItem(-2, 3, "2x + y = 3")}, platform::colour::Blue);
  DrawOnPlane(1, {PointItem(1, 1, "(1,1)")});
  SayAt(kBelowPlane,
        "No:  2(0) + 0 is not 3.  But each point of their common line is one, such as (1,1).");
  Say(SolutionSentence(SystemClass::SameLine));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SystemsByElimination final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{WhatASystemIs, Principle, AddTwoEquations},
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
  return IsAtMostOne(system.x) || IsAtMostOne(system.y);                        // could be guessed
}

// One try in thirty is accepted.
void SystemsByElimination::DrawProblem(RandomStream& random) {
  system_ = DrawSystem(random, LeavesTooLittle);
  AskForSolution(problem, system_, random);
}

// --- Problem page ------------------------------------------------------------

void SystemsByElimination::ShowProblem() {
  SayAt(5, problem.question[0] + " " + problem.question[1]);
  const std::string& first = problem.question[2];
  const std::string& second = problem.question[3];
  ShowAt(8, first, 7 + ColumnsToAlign(first, second));
  ShowAt(9, second, 7 + ColumnsToAlign(second, first));
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void SystemsByElimination::ExplainProblem() {
  const EliminationBoard board(system_);
  ProblemBanner();
  board.ShowEquations();
  board.ShowFactors();
  SayAt(kBelowEquations, ReasonOfPlan(system_, board.Plan()));
  PageEnd();
  board.OpenWorkBox();
  board.BringDown();
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
