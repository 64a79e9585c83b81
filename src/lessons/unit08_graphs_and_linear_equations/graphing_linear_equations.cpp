// The student can graph a linear equation:  y = mx + b by its intercept and its slope, Ax + By = C
// by a table of points, and can tell its graph from others by the signs of slope and intercept.
#include "lessons/families/graphs/coordinates.h"
#include "lessons/families/graphs/graph_choices.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/lines/graphing_sheet.h"
#include "lessons/families/lines/slope_steps.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace lines;
using namespace systems;

constexpr double kBelowPlane = 14.2;  // row
constexpr page::TextPlace kBesideFourGraphs = {.col = kBesideGraphs};

// --- Teaching screens --------------------------------------------------------

void InterceptAndSlope() {
  const GraphingSheet sheet({-2, 1, -3});
  NewScreen();
  sheet.ShowEmptyPlane(3.2);
  Say(R"(The \cgraph\z of a linear equation is a line.  Two points are enough to draw it.)",
      kBesidePlane);
  PageEnd();
  Say(Text(R"(Here is {}.  It has the form {}.)", "y = 2x - 3", "y = mx + b"), kBesidePlane);
  PageEnd();
  SayAt(kBelowPlane, R"(\yTry it:\z  What is y when x is 0?)");
  PageEnd();
  Say(Text(R"(2(0) - 3 = -3.  So the line crosses the y axis at {}.  This is why b = -3 is called )"
           R"(the \cintercept\z.)",
           GraphPointText({0, -3})));
  sheet.PlotIntercept();
  PageEnd();
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane,
        R"(m = 2 is the \cslope\z, rise over run.  2 is 2/1:  1 to the right and 2 up.)");
  Say(Text(R"(\yTry it:\z  Where does this lead from {}?)", GraphPointText({0, -3})));
  PageEnd();
  Say(Text("To {}.  Not 2 to the right and 1 up:  that is run over rise.",
           GraphPointText({1, -1})));
  sheet.DrawStep();
  PageEnd();
  AddLine("We draw the line through both points.");
  sheet.DrawLine("y = 2x - 3");
  PageEnd();
}

void NegativeSlope() {
  const GraphingSheet sheet({3, 1, 1});
  NewScreen();
  sheet.ShowEmptyPlane(3.2);
  Say(Text(R"(\yTry it:\z  Now {}.  Where does it cross the y axis?)", "y = -3x + 1"),
      kBesidePlane);
  PageEnd();
  Say("At (0,1), not at (1,0).  x comes first.", kBesidePlane);
  sheet.PlotIntercept();
  PageEnd();
  SayAt(kBelowPlane, "The slope is -3, which is -3/1.");
  AddLine(R"(\yTry it:\z  How do we go on from (0,1)?)");
  PageEnd();
  Say(Text("1 to the right and 3 down, to {}.", GraphPointText({1, -2})));
  sheet.DrawStep();
  PageEnd();
  Say(R"(A line with a negative slope \yfalls\z to the right.)");
  sheet.DrawLine("y = -3x + 1");
  PageEnd();
}

// The equation in view above the table.
void ShowStandardForm(const GraphingSheet& sheet) {
  NewScreen();
  SayAt(2.4, "Here is another form, Ax + By = C:");
  ShowAt(4, "3x - 2y = 2");
  sheet.ShowEmptyPlane(4);
  sheet.ShowTable(5.5);
  WhiteBox({.row = 14.4});
}

void TableOfPoints() {
  const GraphingSheet sheet({3, -2, 2});
  ShowStandardForm(sheet);
  PageEnd();
  SayInBox("We make a table:  for an x of our choice we find its y.  x = 0 is the easiest one.");
  PageEnd();
  sheet.FindPoint(kFirstPoint, 0);
  SayInBoxAnew(R"(\bTry it:\z  What is y when x is 1?)");
  PageEnd();
  sheet.SolveForY(1);
  PageEnd();
  SayInBoxAnew(
      "This is right, but a point between the grid lines is hard to plot.  We choose "
      "another x.");
  PageEnd();
  sheet.FindPoint(kSecondPoint, 2);
  SayInBoxAnew("Each pair of the table is a point.  We draw the line through them.");
  sheet.DrawLine("3x - 2y = 2");
  PageEnd();
  SayInBoxAnew(R"(\bCheck:\z  x = 1 gave us y = 1/2.  The line passes through this point, too.)");
  sheet.Enter(kThirdPoint, 1);
  PageEnd();
  SayInBox("Equation, table and graph tell the same:  which pairs belong together.");
  PageEnd();
}

void WhichGraph() {
  NewScreen();
  ShowGraphsInSquare({LineItem(-2, -1), LineItem(2, 1), LineItem(2, -1), LineItem(-2, 1)}, 3);
  SayAt(3, Text(R"(\yTry it:\z  Which graph is that of {}?)", "y = 2x - 1"), kBesideFourGraphs);
  PageEnd();
  Say("Its slope is 2, so it rises:  Graph 2 or Graph 3.", kBesideFourGraphs);
  PageEnd();
  Say("Its intercept is -1, so it crosses the y axis below 0:  Graph 3.", kBesideFourGraphs);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

enum class Form { Standard = 1, SlopeIntercept = 3 };

class GraphingLinearEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }
  bool ChoicesAreWords() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{InterceptAndSlope, NegativeSlope, TableOfPoints, WhichGraph}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;
  MistakesFigure FigureOfMistakes() override;
  int TypeOfProblem() const override { return static_cast<int>(form_); }

  void GraphSlopeForm() const;
  void GraphStandardForm() const;
  void FindAmongGraphs() const;

  Form form_ = Form::Standard;
  LinearEquation equation_;
};

// --- Generator ---------------------------------------------------------------

int DrawCoefficient(RandomStream& random) {
  int coefficient = 0;
  do {
    coefficient = random.Rand(-4, 4);
  } while (std::abs(coefficient) < 2);  // nothing to multiply by
  return coefficient;
}

int DrawCoordinate(RandomStream& random) {
  int coordinate = 0;
  do {
    coordinate = random.Rand(-2, 2);
  } while (coordinate == 0);  // the point would lie on an axis
  return coordinate;
}

// ax + by = c through a point near the origin.  One try in five is accepted.
LinearEquation DrawStandard(RandomStream& random) {
  LinearEquation equation;
  do {
    equation.a = DrawCoefficient(random);
    do {
      equation.b = DrawCoefficient(random);
    } while (equation.b == equation.a);  // one number would divide both sides
    const int x = DrawCoordinate(random);
    const int y = DrawCoordinate(random);
    equation.c = equation.a * x + equation.b * y;
    // Thirds cannot be read on the grid; through the origin, or far from it, the signs do not show.
  } while (std::abs(equation.b) == 3 || equation.c == 0 || std::abs(equation.c) > 2);
  return equation;
}

// y = mx + b as -mx + y = b.
LinearEquation DrawSlopeIntercept(RandomStream& random) {
  LinearEquation equation;
  do {
    const int slope = DrawCoefficient(random);
    const int x = DrawCoordinate(random);
    const int y = DrawCoordinate(random);
    equation = {-slope, 1, y - slope * x};
    // Too steep for the grid; an intercept of 0 has no sign to mistake.
  } while (std::abs(equation.a) > 3 || equation.c == 0 || std::abs(equation.c) > 2);
  return equation;
}

void GraphingLinearEquations::DrawProblem(RandomStream& random) {
  int form = 0;
  do {
    form = random.Rand(1, 3);
  } while (form == 2);  // there is no such form
  form_ = static_cast<Form>(form);
  equation_ = form_ == Form::Standard ? DrawStandard(random) : DrawSlopeIntercept(random);
  const bool exchanged = random.Rnd() < 0.5;

  const auto divided = [&](int number) { return static_cast<double>(number) / equation_.b; };
  const double slope = divided(-equation_.a);
  const double intercept = divided(equation_.c);
  problem.question = {
      "Which graph below is a graph of the following linear equation?",
      form_ == Form::Standard ? EquationText(equation_) : SlopeInterceptText(equation_)};
  problem.kind = choice_kind::FourInOrder;
  problem.figure = {LineItem(slope, intercept), LineItem(-slope, intercept),
                    LineItem(slope, -intercept), LineItem(-slope, -intercept)};
  if (exchanged) std::swap(problem.figure[0], problem.figure[1]);
  problem.Right(exchanged ? 2 : 1, GraphName(exchanged ? 2 : 1));
  problem.Wrong(exchanged ? 1 : 2, "takes the wrong sign for the slope",
                GraphName(exchanged ? 1 : 2));
  problem.Wrong(3, "takes the wrong sign for the intercept", GraphName(3));
  problem.Wrong(4, "takes both signs wrong", GraphName(4));
}

// --- Problem page ------------------------------------------------------------

void GraphingLinearEquations::ShowProblem() {
  SayAt(4.2, problem.question[0]);
  ShowGraphsInSquare(problem.figure, 6.5);
  ShowAt(8.5, problem.question[1], kBesideGraphs);
  picAnswerSetParameters(1, 11, kBesideGraphs, 0, 0, 14, 50, 25);
}

// --- Worked explanation ------------------------------------------------------

constexpr double kQuestionRow = 4.4;
constexpr double kPlaneRow = 4;
constexpr double kWorkRow = 14.4;

void GraphingLinearEquations::GraphSlopeForm() const {
  const GraphingSheet sheet(equation_);
  const int slope = sheet.Slope();
  const GridPoint first = {0, sheet.Intercept()};
  const GridPoint second = {1, sheet.Intercept() + slope};
  sheet.ShowEmptyPlane(kPlaneRow);
  PageEnd();
  SayAt(8.6,
        Text("It has the form {} with m = {} and b = {}.", "y = mx + b", slope, sheet.Intercept()),
        kBesidePlane);
  PageEnd();
  Say(Text("Intercept:  {}.", GraphPointText(first)), kBesidePlane);
  sheet.PlotIntercept();
  PageEnd();
  SayAt(kWorkRow,
        Text("The slope is {}, which is {}:  we go {} and {}, to {}.", slope, NumStr(slope) + "/1",
             Words{RunWords(1)}, Words{RiseWords(slope)}, GraphPointText(second)));
  sheet.DrawStep();
  PageEnd();
  Say("We draw the line through both points.");
  sheet.DrawLine(problem.question[1]);
  PageEnd();
  Say(Text(R"(\yCheck:\z  {} means x = 1 and y = {}:)", GraphPointText(second), second.y));
  Show(TermText(slope, 1) + tutor::Gap + SignedNumberText(first.y) + " = " + NumStr(second.y) +
       ", true");
  PageEnd();
}

void GraphingLinearEquations::GraphStandardForm() const {
  const GraphingSheet sheet(equation_);
  const std::vector<int> numbers = sheet.GoodXs();
  // A third point: one more of the grid, or the one on the y axis.
  const int third = numbers[0] == 0 ? numbers[2] : 0;
  sheet.ShowEmptyPlane(kPlaneRow);
  PageEnd();
  sheet.ShowTable(8);
  WhiteBox({.row = kWorkRow});
  SayInBox(
      "It has the form Ax + By = C.  We choose numbers for x and find their y's.  Whole "
      "numbers for y are easy to plot.");
  PageEnd();
  sheet.FindPoint(kFirstPoint, numbers[0]);
  sheet.FindPoint(kSecondPoint, numbers[1]);
  SayInBoxAnew("We draw the line through both points.");
  sheet.DrawLine(problem.question[1]);
  PageEnd();
  const int rest = equation_.c - equation_.a * third;
  SayInBox(Text(R"(\bCheck:\z  x = {} gives {} and {}.  The line passes through this point, too.)",
                third, CoefText(equation_.b) + "y = " + NumStr(rest), "y = " + sheet.YText(third)));
  sheet.Enter(kThirdPoint, third);
  PageEnd();
}

// By the signs of its slope and its intercept.
void GraphingLinearEquations::FindAmongGraphs() const {
  const GraphingSheet sheet(equation_);
  const std::string right = RightText(problem);
  NewScreen();
  ProblemBanner();
  ShowGraphsInSquare(problem.figure, kQuestionRow);
  SayAt(kQuestionRow, Text("Which graph is that of {}?", problem.question[1]), kBesideFourGraphs);
  PageEnd();
  Say(Text("Our line {}:  {} or {}.", Words{sheet.Rises() ? "rises" : "falls"}, right,
           GraphName(3)),
      kBesideFourGraphs);
  PageEnd();
  Say(Text("It crosses the y axis {} 0:  {}.", Words{sheet.CrossesAboveZero() ? "above" : "below"},
           right),
      kBesideFourGraphs);
  ConcludeAt(22.5, problem);
}

void GraphingLinearEquations::ExplainProblem() {
  ProblemBanner();
  SayAt(kQuestionRow, "Graph the following linear equation:", kBesidePlane);
  ShowAt(6.8, problem.question[1]);
  if (form_ == Form::Standard)
    GraphStandardForm();
  else
    GraphSlopeForm();
  FindAmongGraphs();
}

MistakesFigure GraphingLinearEquations::FigureOfMistakes() {
  return {kRowOfGraphs + 1.5, [this](double row) {
            ShowAt(row - 0.5, problem.question[1]);
            ShowGraphsInRow(problem.figure, row + 0.7);
          }};
}

const LessonRegistration<GraphingLinearEquations> kRegistration("Graphing Linear Equations");

}  // namespace
}  // namespace course
