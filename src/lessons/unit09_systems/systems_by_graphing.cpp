// The student can solve a system of two linear equations by graphing both lines and reading the
// point at which they cross, and knows what parallel lines and one line drawn twice mean.
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/graphing_board.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace systems;

// The systems of the teaching screens.
constexpr LinearSystem kFirstExample = {{1, 1, 3}, {1, -1, 1}, 2, 1};
constexpr LinearSystem kStepsExample = {{2, 1, 4}, {1, -1, -1}, 1, 2};

const LinearEquation& EquationOf(const LinearSystem& system, int line) {
  return line == 1 ? system.first : system.second;
}

// --- Teaching screens --------------------------------------------------------

struct CommentPlace {
  double row, col, wd, ht;  // cells of the screen
  int size = 15;            // points
};

void ShowComment(int box, const CommentPlace& place, const std::string& text) {
  constexpr platform::Colour kGround = platform::Rgb(255, 255, 204);
  constexpr int kPadding = 8;  // pixels
  picCommentBoxPrepare2(box, place.row, place.col, place.wd, place.ht, kGround,
                        platform::colour::Black, place.size, kPadding);
  picCommentBoxWordWrap(box, text);
  picCommentBoxShow(box);
}

// A pair tried in both equations of the first example.
void ShowTry(const std::string& pair, const std::string& first, const std::string& second) {
  wbisPrint("Try " + pair + " in both equations:");
  wbLocate(2.5, 3);
  wbisPrint(EquationText(kFirstExample.first) + "      " + first);
  wbLocate(3.5, 3);
  wbisPrint(EquationText(kFirstExample.second) + "      " + second);
}

void TwoEquations() {
  NewScreen();
  Locate(3, 1);
  WordWrap(R"(Two equations that belong together are called a \csystem of equations\z:)");
  Locate(5.5, 14);
  isPrint(EquationText(kFirstExample.first));
  Locate(6.5, 14);
  isPrint(EquationText(kFirstExample.second));
  PageEnd();
  Locate(8, 1);
  WordWrap(R"(A \csolution\z of the system is a pair of numbers, (x,y), that makes \yboth\z )"
           "equations true.");
  PageEnd();
  Locate(12, 1);
  WordWrap("Is (2,1) a solution?  Is (3,0)?");
  PageEnd();
  wbPrepare(14.5, 36, 7.5, platform::colour::White, platform::colour::Black);
  wbShow();
  ShowTry("(2,1)", "2 + 1 = 3", "2 - 1 = 1");
  PageEnd();
  wbLocate(5, 1);
  wbWordWrap(R"(Both are true, so (2,1) is a \bsolution\z of the system.)");
  PageEnd();
  wbWipeAndErase();
  ShowTry("(3,0)", "3 + 0 = 3", "3 - 0 = 3");
  PageEnd();
  wbLocate(5, 1);
  wbWordWrap(R"(The second is false.  (3,0) is \rno solution\z of the system.)");
  PageEnd();
}

void GraphOfOneEquation() {
  NewScreen();
  board::ShowEmptyPlane();
  Locate(3, 1);
  board::Write("Which pairs make the equation x + y = 3 true?");
  PageEnd();
  isPrint();
  board::Write("Some are (-1,4), (0,3) and (2,1).");
  board::Plot(-1, 4, ColourOfLine(1));
  board::Plot(0, 3, ColourOfLine(1));
  board::Plot(2, 1, ColourOfLine(1));
  PageEnd();
  isPrint();
  board::Write(R"(They lie on one line, the \cgraph\z of the equation.)");
  board::DrawLine(kFirstExample.first, 1, EquationText(kFirstExample.first));
  PageEnd();
  Locate(15, 1);
  WordWrap("Does (2,3) lie on the line?");
  PageEnd();
  WordWrap("No.  2 + 3 is 5, and it should be 3.");
  board::Plot(2, 3, platform::colour::Black);
  PageEnd();
  ShowComment(1, {18, -1, 36, 2.2},
              "A point lies on the line just when its pair of numbers makes the equation true.");
  PageEnd();
}

void CrossingPoint() {
  NewScreen();
  board::ShowEmptyPlane();
  board::DrawLine(kFirstExample.first, 1, EquationText(kFirstExample.first));
  Locate(3, 1);
  board::Write("Each point of this line makes x + y = 3 true.");
  PageEnd();
  isPrint();
  board::Write("Each point of this one makes x - y = 1 true.");
  board::DrawLine(kFirstExample.second, 2, EquationText(kFirstExample.second));
  PageEnd();
  isPrint();
  board::Write(R"(Which point makes \yboth\z true?)");
  PageEnd();
  Locate(15, 1);
  WordWrap("The point where the lines cross lies on both of them.  It is (2,1).");
  board::MarkCrossing(2, 1);
  PageEnd();
  ShowComment(1, {17.7, -1, 36, 2.2},
              "The solution of a system is the point where its two lines cross.");
  PageEnd();
  Locate(21, 1);
  WordWrap(R"(\rWatch out:\z  x comes first.  (1,2) is another point, and not the solution.)");
  PageEnd();
}

void LinesThatDoNotCross() {
  constexpr int kSquare = 16;  // pixels
  constexpr double kPlaneRow = 4.6;
  constexpr double kCommentRow = 13.3;
  NewScreen();
  Locate(3, 1);
  WordWrap("Do these two lines cross?");
  ShowPlane(1, kPlaneRow, 3.5, kSquare);
  DrawPlaneLine(1, 1, 3, ColourOfLine(1));
  LabelPlaneLine(1, 1, 3, "y = x + 3", ColourOfLine(1));
  DrawPlaneLine(1, 1, -2, ColourOfLine(2));
  LabelPlaneLine(1, 1, -2, "y = x - 2", ColourOfLine(2));
  PageEnd();
  ShowComment(1, {kCommentRow, 1.5, 18, 3.6, 14},
              R"(Equal slopes, different intercepts: the lines are \bparallel\z.  )" +
                  SolutionSentence(SystemClass::NoSolution));
  PageEnd();
  ShowPlane(2, kPlaneRow, 23.5, kSquare);
  DrawPlaneLine(2, -1, 2, ColourOfLine(1));
  LabelPlaneLine(2, -1, 2, "y = -x + 2", ColourOfLine(1));
  ShowComment(2, {kCommentRow, 21.5, 18, 3.6, 14},
              WithoutBreaks("x + y = 2") + " and " + WithoutBreaks("2x + 2y = 4") +
                  R"( share \bthis line\z.  )" + SolutionSentence(SystemClass::SameLine));
  PageEnd();
  Locate(17.3, 1);
  WordWrap("How many solutions has this system?");
  Locate(18.5, 14);
  isPrint("y = 3x + 4");
  Locate(19.5, 14);
  isPrint("y = 3x - 1");
  PageEnd();
  Locate(21, 1);
  WordWrap("None.  The slopes are equal and the intercepts differ, so the lines are parallel.");
  PageEnd();
}

void WriteStep(double row, const std::string& text) {
  Locate(row, 1);
  board::Write(text);
}

void FourSteps() {
  const LinearSystem& system = kStepsExample;
  NewScreen();
  board::ShowTable(system);
  board::ShowEmptyPlane();
  WriteStep(3, "Four steps lead to the solution of a system.");
  PageEnd();
  WriteStep(5.5, R"(\y1.\z Solve for y.)");
  board::ShowWiper(board::kBelowRow);
  wbisPrint("Line 1:  subtract 2x on both sides,");
  wbLocate(2.2, 10);
  wbisPrint(SlopeInterceptText(system.first));
  board::FillTable(system, 1);
  PageEnd();
  wbWipeAndErase();
  wbisPrint("Line 2:  subtract x, divide by -1,");
  wbLocate(2.2, 10);
  wbisPrint(SlopeInterceptText(system.second));
  board::FillTable(system, 2);
  PageEnd();
  wbHide();
}

void CheckLine(const LinearSystem& system, int line) {
  const LinearEquation& equation = EquationOf(system, line);
  wbisPrint("Check line " + NumStr(line) + ":  " + EquationText(equation));
  wbLocate(2.2, 3);
  wbWordWrap(board::Substituted(equation, system.x, system.y) + R"(, \btrue\z)");
  PageEnd();
}

// The last three steps.
void GraphReadAndCheck() {
  const LinearSystem& system = kStepsExample;
  WriteStep(7, R"(\y2.\z Graph the lines.)");
  for (const int line : {1, 2}) {
    const LinearEquation& equation = EquationOf(system, line);
    board::PlotTwoPoints(equation, line);
    board::DrawLine(equation, line, SlopeInterceptText(equation));
    PageEnd();
  }
  WriteStep(8.5, R"(\y3.\z Read the point.)");
  board::ShowBothLines(system);
  board::MarkCrossing(system.x, system.y);
  PageEnd();
  WriteStep(10, R"(\y4.\z Check it.)");
  board::ShowWiper(board::kBelowRow);
  CheckLine(system, 1);
  wbWipeAndErase();
  CheckLine(system, 2);
  wbHide();
  Locate(15, 1);
  WordWrap(R"(The solution of the system is \y)" + PairText(system.x, system.y) + R"(\z.)");
  PageEnd();
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
            {LinesThatDoNotCross},
            {FourSteps, GraphReadAndCheck}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void ShowSystem() const;
  void SolveForY(int line);
  void GraphLine(int line);
  void ReadAndCheck();
  void ExplainNoSinglePoint();

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
  Locate(board::kTextRow, 1);
  board::Write(problem.question[0] + " " + problem.question[1]);
  Locate(8.5, 3);
  isPrint(problem.question[2]);
  Locate(10, 3);
  isPrint(problem.question[3]);
  board::ShowEmptyPlane();
  picAnswerSetParameters(3, 15.2, 3, 22, 0, 17, 50, 13);
}

// --- Worked explanation ------------------------------------------------------

void SystemsByGraphing::ShowSystem() const {
  ProblemBanner();
  Locate(4.3, 1);
  isPrint(problem.question[0]);
  isPrint(problem.question[1]);
  Locate(7, 3);
  isPrint("Line 1:  " + problem.question[2]);
  Locate(8, 3);
  isPrint("Line 2:  " + problem.question[3]);
}

// From ax + by = c to y = mx + b, a step a page, in the wiper box.
void SystemsByGraphing::SolveForY(int line) {
  const LinearEquation& equation = EquationOf(system_, line);
  const std::string term = CoefText(std::abs(equation.a)) + "x";
  const std::string constant = equation.c == 0 ? "" : tutor::Gap + SignedNumberText(equation.c);
  wbSetColor(ColourOfLine(line));
  wbisPrint("Line " + NumStr(line) + ":");
  wbSetColor(platform::colour::Black);
  board::WriteAligned(1, EquationText(equation));
  PageEnd();
  wbLocate(2.2, 1);
  wbWordWrap((equation.a > 0 ? R"(\bSubtract )" + term + " from" : R"(\bAdd )" + term + " to") +
             R"( both sides:\z)");
  board::WriteAligned(3.2, CoefText(equation.b) + "y = " + CoefText(-equation.a) + "x" + constant);
  PageEnd();
  if (equation.b != 1) {
    wbLocate(4.4, 1);
    wbWordWrap(R"(\bDivide both sides by )" + NumStr(equation.b) + R"(:\z)");
    board::WriteAligned(5.4, SlopeInterceptText(equation));
    PageEnd();
  }
  wbLocate(6.6, 1);
  wbisPrint("The slope is " + NumStr(equation.Slope()) + ", the intercept is " +
            NumStr(equation.Intercept()) + ".");
  board::FillTable(system_, line);
  PageEnd();
}

void SystemsByGraphing::GraphLine(int line) {
  const LinearEquation& equation = EquationOf(system_, line);
  const int slope = equation.Slope();
  const int intercept = equation.Intercept();
  board::ClearTexts();
  Locate(board::kTextRow, 1);
  board::Write(R"(\yLine )" + NumStr(line) + R"(\z has the intercept )" + NumStr(intercept) +
               ", so it crosses the y axis at " + PairText(0, intercept) + ".");
  board::Plot(0, intercept, ColourOfLine(line));
  PageEnd();
  isPrint();
  board::Write("Its slope is " + NumStr(slope) + ".  We go 1 to the right and " +
               NumStr(std::abs(slope)) + (slope > 0 ? " up." : " down."));
  board::PlotTwoPoints(equation, line);
  PageEnd();
  isPrint();
  board::Write("We draw the line through both points.");
  board::DrawLine(equation, line, SlopeInterceptText(equation));
  PageEnd();
}

void SystemsByGraphing::ReadAndCheck() {
  board::ClearTexts();
  Locate(board::kTextRow, 1);
  board::Write(R"(Both equations are true where the lines \ycross\z.)");
  board::ShowBothLines(system_);
  board::MarkCrossing(system_.x, system_.y);
  PageEnd();
  isPrint();
  board::Write("From there we go straight to the x axis and to the y axis:");
  board::Write("x = " + NumStr(system_.x) + " and y = " + NumStr(system_.y));
  PageEnd();
  board::ShowWiper(board::kBelowRow);
  CheckLine(system_, 1);
  wbWipeAndErase();
  CheckLine(system_, 2);
  wbHide();
  board::ClearTexts();
  Locate(board::kTextRow, 1);
  board::Write("Both equations are true.  The solution of the system is");
  Locate(9, 8);
  isColorPrint(problem.choices[1].text, platform::colour::Yellow);
  PageEnd();
}

// The lines of all systems that are drawn cross; the explanation knows the other ones, too.
void SystemsByGraphing::ExplainNoSinglePoint() {
  board::ClearTexts();
  Locate(board::kTextRow, 1);
  board::Write(system_.Class() == SystemClass::SameLine
                   ? "Both equations have the same line."
                   : "The lines are parallel and have no point in common.");
  isPrint();
  board::Write(problem.choices[5].text);
  isPrint();
  board::Write("This is not among the choices:");
  board::Write(kNoneOfTheAbove);
  PageEnd();
}

void SystemsByGraphing::ExplainProblem() {
  ShowSystem();
  Locate(10, 1);
  WordWrap(
      "We graph both lines and read the point where they cross.  A line is easy to graph from "
      "the form y = mx + b, so we solve both equations for y.");
  PageEnd();
  isDrawBoxFilled(9.5, 1, 15, 40, platform::colour::Blue);
  board::ShowTable(system_);
  board::ShowWiper(9.6);
  SolveForY(1);
  wbWipeAndErase();
  SolveForY(2);
  NewScreen();
  ProblemBanner();
  board::ShowTable(system_);
  board::FillTable(system_, 1);
  board::FillTable(system_, 2);
  board::ShowEmptyPlane();
  GraphLine(1);
  GraphLine(2);
  if (system_.Class() == SystemClass::OneSolution)
    ReadAndCheck();
  else
    ExplainNoSinglePoint();
}

const LessonRegistration<SystemsByGraphing> kRegistration("Solving Systems by Graphing");

}  // namespace
}  // namespace course
