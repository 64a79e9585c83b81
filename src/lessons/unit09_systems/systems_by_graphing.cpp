// The student can solve a system of two linear equations by graphing both lines and reading the
// point at which they cross, and knows what parallel lines and one line drawn twice mean.
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/graphing_board.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/families/systems/system_table.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace systems;

// The systems of the teaching screens.
constexpr LinearSystem kFirstExample = {{1, 1, 3}, {1, -1, 1}, 2, 1};
constexpr LinearSystem kStepsExample = {{4, 2, -4}, {1, -1, -1}, -1, 0};

constexpr double kBelowPlane = 14.2;  // row

// --- Teaching screens --------------------------------------------------------

// Asks about a pair on a row that is cleared before.
void AskForPair(double row, int x, int y) {
  ClearRows(row, 1);
  SayAt(row, Text(R"(\yTry it:\z  Is {} a solution?)", PairText(x, y)));
}

// The pair put into both equations of the first example.
void TryInFirstExample(int x, int y) {
  TryPairInBox(kFirstExample.first, x, y);
  TryPairInBox(kFirstExample.second, x, y);
}

void TwoEquations() {
  NewScreen();
  Say(R"(Two equations that belong together are called a \csystem of equations\z:)");
  Show(EquationText(kFirstExample.first), 14);
  Show(EquationText(kFirstExample.second), 14);
  PageEnd();
  Say(R"(A \csolution\z of the system is a pair of numbers, (x,y), that makes \yboth\z equations )"
      "true.");
  const double askedRow = NextRow() + 1;
  AskForPair(askedRow, 2, 1);
  PageEnd();
  WhiteBox({.rows = 6.5});
  SayPairInBox(2, 1);
  TryInFirstExample(2, 1);
  SayInBox(R"((2,1) is a \bsolution\z.  Is (3,0)?)");
  PageEnd();
  AskForPair(askedRow, 3, 0);
  SayInBoxAnew("");
  TryInFirstExample(3, 0);
  SayInBox(R"((3,0) is \rnot a solution\z.  Is (1,2)?)");
  PageEnd();
  AskForPair(askedRow, 1, 2);
  SayInBoxAnew("");
  TryInFirstExample(1, 2);
  SayInBox(R"((1,2) is \rnot one\z.  The order matters.)");
  PageEnd();
}

void GraphOfOneEquation() {
  const LinearEquation& equation = kFirstExample.first;
  const platform::Colour colour = ColourOfLine(1);
  NewScreen();
  ShowPlaneAtRight();
  Say(Text("Which pairs make  {}  true?", EquationText(equation)), kBesidePlane);
  Say(R"(\yTry it:\z  Find three of them.)", kBesidePlane);
  PageEnd();
  ClearCells(3, 1, kBesidePlane.lastCol, 10);
  board::ExpectBothGraphs(kFirstExample);
  SayAt(3, "Many pairs do, for example (-1,4), (0,3) and (2,1).", kBesidePlane);
  SayAt(kBelowPlane, "For (-1,4) we go 1 left and 4 up.");
  board::Plot(-1, 4, colour);
  board::Plot(0, 3, colour);
  board::Plot(2, 1, colour);
  PageEnd();
  ClearRows(kBelowPlane, 1);
  SayAt(7, R"(They lie on one line, the \cgraph\z of the equation.)", kBesidePlane);
  board::DrawGraph(equation, 1, EquationText(equation));
  SayAt(kBelowPlane, R"(\yTry it:\z  Does (2,3) lie on the line?)");
  PageEnd();
  Say("No.  2 + 3 is 5, and it should be 3.");
  board::Plot(2, 3, platform::colour::Black);
  CommentBox("A point lies on the line exactly when its pair makes the equation true.");
  PageEnd();
}

void CrossingPoint() {
  NewScreen();
  ShowPlaneAtRight();
  board::ExpectBothGraphs(kFirstExample);
  board::DrawGraph(kFirstExample.first, 1, EquationText(kFirstExample.first));
  board::DrawGraph(kFirstExample.second, 2, EquationText(kFirstExample.second));
  Say(Text("Solid:  {}.  Dashed:  {}.", EquationText(kFirstExample.first),
           EquationText(kFirstExample.second)),
      kBesidePlane);
  Say(R"(\yTry it:\z  Which point makes both true?)", kBesidePlane);
  PageEnd();
  Say("(2,1) lies on both lines, so it makes both true.", kBesidePlane);
  SayAt(kBelowPlane, R"(There the lines \ycross\z:  2 right, 1 up.)");
  board::MarkCrossing(2, 1);
  board::NameCrossing(2, 1);
  PageEnd();
  CommentBox("The solution of a system is the point where its two lines cross.");
  Say(R"(\yTry it:\z  Is (1,2) the same point?)");
  PageEnd();
  Say(R"(No.  \yx comes first:\z  1 right and 2 up.  That point is on the solid line only.)");
  board::Plot(1, 2, platform::colour::Black);
  PageEnd();
}

void ParallelLines() {
  const LinearSystem system = {{-1, 1, 3}, {-1, 1, -2}};
  NewScreen();
  ShowPlaneAtRight();
  board::ExpectBothGraphs(system);
  for (const int line : {1, 2})
    board::DrawGraph(system.Line(line), line, SlopeInterceptText(system.Line(line)));
  Say("Here are both lines of another system.", kBesidePlane);
  SayAt(kBelowPlane, R"(\yTry it:\z  Where do these two lines cross?)");
  PageEnd();
  Say(R"(Nowhere.  Both have the slope 1, but different intercepts.  Such lines are \cparallel\z.)");
  Say(SolutionSentence(SystemClass::NoSolution));
  PageEnd();
}

void OneLineTwice() {
  const LinearSystem system = {{1, 1, 2}, {2, 2, 4}};
  NewScreen();
  ShowPlaneAtRight();
  for (const int line : {1, 2})
    board::DrawGraph(system.Line(line), line, EquationText(system.Line(line)));
  Say(Text("Solved for y, both equations are {}.", SlopeInterceptText(system.first)), kBesidePlane);
  SayAt(kBelowPlane, R"(\yTry it:\z  How many solutions are there?)");
  PageEnd();
  Say("Each point of the line is a solution.");
  AddLine(SolutionSentence(SystemClass::SameLine));
  Say(R"(\yTry it:\z  How many are there now?)");
  Show("y = 3x + 4   and   y = 3x - 1");
  PageEnd();
  Say("None.  Same slope, different intercepts.");
  PageEnd();
}

void ThreeSteps() {
  NewScreen();
  board::ShowTable(kStepsExample);
  SayAt(3,
        "Now we solve a whole system.  A line is easy to graph from y = mx + b:  m is the slope, "
        "and b is the intercept.");
  Say(R"(\yTry it:\z  What is b in y = 2x?)");
  PageEnd();
  Say("It is 0.  The line passes through (0,0).");
  PageEnd();
  PaperBox({R"(\bThree steps lead to the solution:\z)", "1. Solve both equations for y.",
            "2. Graph both lines.", "3. Read the point, and check it."},
           11);
  PageEnd();
}

void SolveGraphReadCheck() {
  const LinearSystem& system = kStepsExample;
  NewScreen();
  board::ShowTable(system);
  SayAt(3, R"(\yStep 1:\z  We solve for y.)");
  board::OpenWorkBox(5);
  board::SolveForY(system, 1);
  board::SolveForY(system, 2);
  board::ShowBoard(system, R"(\yStep 2:\z  We graph both lines.)");
  board::GraphLine(system, 1);
  board::GraphLine(system, 2);
  board::ShowCrossing(system, R"(\yStep 3:\z  We read the point.)");
  SayAt(board::kTextRow, R"(\yTry it:\z  Is it (-1,0) or (0,-1)?)", kBesidePlane);
  PageEnd();
  Say("x comes first.", kBesidePlane);
  Say(R"(The solution is \y(-1,0)\z.)", kBesidePlane);
  board::NameCrossing(-1, 0);
  PageEnd();
  board::WriteHeading(R"(\yCheck:\z  We try (-1,0) in both equations.)");
  ClearCells(board::kTextRow, 1, kBesidePlane.lastCol, 10);
  SayAt(board::kTextRow, R"(The solution is \y(-1,0)\z.)", kBesidePlane);
  board::CheckSolution(system);
}

// --- The lesson ------------------------------------------------------------

class SystemsByGraphing final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{TwoEquations},
            {GraphOfOneEquation},
            {CrossingPoint},
            {ParallelLines, OneLineTwice},
            {ThreeSteps, SolveGraphReadCheck}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void ReadCrossing() const;

  LinearSystem system_;
};

// --- Generator ---------------------------------------------------------------

bool SameSign(int a, int b) {
  return (a > 0) == (b > 0);
}

// Such a line runs along a diagonal of the grid and is lost among its squares.
bool IsDiagonalOfGrid(const LinearEquation& line) {
  return line.Intercept() == 0 && std::abs(line.Slope()) == 1;
}

// What cannot be read on the plane with ease.
bool IsHardToRead(const LinearSystem& system) {
  constexpr int kFarthest = 2;  // of the solution
  constexpr int kSteepest = 2;
  constexpr int kHighest = 3;  // of the intercepts
  const int m1 = system.first.Slope();
  const int m2 = system.second.Slope();
  if (std::abs(system.x) > kFarthest || std::abs(system.y) > kFarthest) return true;
  if (system.x == 0 && system.y == 0) return true;  // nothing is left to be read
  if (std::abs(m1) > kSteepest || std::abs(m2) > kSteepest) return true;
  if (std::abs(m1 - m2) <= 1) return true;  // too close to tell apart
  if (SameSign(m1, m2)) return true;        // only opposite tilts cross clearly
  if (IsDiagonalOfGrid(system.first) || IsDiagonalOfGrid(system.second)) return true;
  return std::abs(system.first.Intercept()) > kHighest ||
         std::abs(system.second.Intercept()) > kHighest;
}

// One try in fifty is accepted.
void SystemsByGraphing::DrawProblem(RandomStream& random) {
  system_ = DrawSystem(random, IsHardToRead);
  AskForSolution(problem, system_, random);
}

// --- Problem page ------------------------------------------------------------

// The empty plane is there to imagine the lines on.
void SystemsByGraphing::ShowProblem() {
  SayAt(board::kTextRow, problem.question[0] + " " + problem.question[1], kBesidePlane);
  ShowAt(8.5, problem.question[2]);
  ShowAt(10, problem.question[3]);
  ShowPlaneAtRight(board::kPlaneRow);
  ShowAnswersInTwoColumns(problem, {.row = 15.2, .width = 17});
}

// --- Worked explanation ------------------------------------------------------

void SystemsByGraphing::ReadCrossing() const {
  board::ShowCrossing(system_);
  const auto [x, y] = std::pair(system_.x, system_.y);
  board::NameCrossing(x, y);
  SayAt(board::kTextRow, "Their common point makes both true.", kBesidePlane);
  Say(Text(x == 0   ? "It is on the y axis:  {} and {}."
           : y == 0 ? "It is on the x axis:  {} and {}."
                    : "From the axes we read {} and {}.",
           "x = " + NumStr(x), "y = " + NumStr(y)),
      kBesidePlane);
  PageEnd();
  board::CheckSolution(system_);
}

void SystemsByGraphing::ExplainProblem() {
  constexpr double kSystemCol = 14;
  constexpr double kBelowSystem = 9;  // row
  ProblemBanner();
  board::ShowTable(system_);
  SayAt(board::kTextRow, problem.question[0] + " " + problem.question[1]);
  ShowAt(board::kTextRow + 2.3, problem.question[2], kSystemCol);
  ShowAt(board::kTextRow + 3.3, problem.question[3], kSystemCol);
  Say("We graph both lines and read the point where they cross.");
  Say("A line is easy to graph from y = mx + b, so we solve both equations for y.");
  PageEnd();
  ClearRows(kBelowSystem, 10);
  board::OpenWorkBox(kBelowSystem);
  board::SolveForY(system_, 1);
  board::SolveForY(system_, 2);
  board::ShowBoard(system_);
  board::GraphLine(system_, 1);
  board::GraphLine(system_, 2);
  if (system_.Class() == SystemClass::OneSolution) ReadCrossing();
  ConcludeSystem(problem, system_, 15.5);
}

const LessonRegistration<SystemsByGraphing> kRegistration("Solving Systems by Graphing");

}  // namespace
}  // namespace course
