// The student can read the slope of a line as rise over run, with its sign, from a drawing or from
// two points; knows lines with positive, negative, zero and undefined slope; and can find a
// coordinate that is missing when the slope is known.
#include "lessons/families/graphs/coordinates.h"
#include "lessons/families/graphs/graph_choices.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/lines/missing_coordinate.h"
#include "lessons/families/lines/slope_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace lines;

constexpr double kBelowPlane = 14.2;  // row

// --- Teaching screens --------------------------------------------------------

void RunAndRise() {
  const SlopeStep step = {{-3, -1}, {1, 2}};
  const SlopeStep next = {{1, 2}, {5, 5}};
  NewScreen();
  ShowPlaneAtRight();
  KeepClearOf(step);
  KeepClearOf(next);
  DrawLineOf(step);
  PlotNamed(step.from);
  PlotNamed(step.to);
  Say(R"(The \cslope\z tells how steep a line is.)", kBesidePlane);
  PageEnd();
  Say(Text(R"(From {} we go 4 to the right.  This is the \crun\z.)", GraphPointText(step.from)),
      kBesidePlane);
  DrawRun(step);
  PageEnd();
  Say(R"(Then we go 3 up.  This is the \crise\z.)", kBesidePlane);
  DrawRise(step);
  PageEnd();
  ShowAt(15, "slope = rise/run = 3/4");
  AddLine(R"(The slope is \yrise over run\z.)");
  Say(R"(\yTry it:\z  From (1,2) we go 4 to the right and 3 up again.  Where are we?)");
  PageEnd();
  AddLine("At (5,5), on the line again.  A line has the same slope everywhere.");
  DrawOnPlane(1, {StepItem(next.from.x, next.from.y, next.Run(), next.Rise())}, kStepColour);
  PlotNamed(next.to);
  PageEnd();
}

void FallingLine() {
  const SlopeStep step = {{-2, 3}, {4, -1}};
  NewScreen();
  ShowPlaneAtRight();
  KeepClearOf(step);
  DrawLineOf(step);
  PlotNamed(step.from);
  PlotNamed(step.to);
  Say(Text(R"(\yTry it:\z  What are run and rise from {} to {}?)", GraphPointText(step.from),
           GraphPointText(step.to)),
      kBesidePlane);
  PageEnd();
  Say("The run is 6.  We go 4 down, so the rise is -4.", kBesidePlane);
  DrawRun(step);
  DrawRise(step);
  PageEnd();
  SayAt(kBelowPlane, "We divide, and reduce the fraction:");
  Show(SlopeWorkedOut(step));
  AddLine(R"(\yWatch out:\z  We count spaces, not grid lines, and we keep the minus sign.)");
  PageEnd();
}

void DifferencesOfCoordinates() {
  const SlopeStep step = {{2, -3}, {-4, 1}};
  NewScreen();
  Say(Text("We can find a slope without a drawing.  Here are two points:  {} and {}.",
           GraphPointText(step.from), GraphPointText(step.to)));
  Show("rise = second y - first y");
  Say(R"(\yTry it:\z  What is the rise here?)");
  PageEnd();
  Show("rise = " + DifferenceText(1, -3) + " = 4");
  Show("run = second x - first x");
  Show("run = " + DifferenceText(-4, 2) + " = -6");
  PageEnd();
  Show(SlopeWorkedOut(step));
  Say(R"(\yTry it:\z  A student gets -3/2 instead.  What went wrong?)");
  PageEnd();
  PaperBox({R"(\r-3/2\z  is run over rise.)", R"(\bThese are wrong, too:\z)",
            R"(\r1 - (-3) over 2 - (-4)\z  changes the order.)",
            R"(\r-3 - 2\z  subtracts the numbers of one point.)"});
  PageEnd();
}

void RisingAndFalling() {
  const SlopeStep rising = {{-1, -1}, {1, 3}};
  const SlopeStep falling = {{-4, 1}, {2, -2}};
  NewScreen();
  ShowPlaneAtRight();
  KeepClearOf(rising);
  KeepClearOf(falling);
  DrawLineOf(rising);
  PlotNamed(rising.from);
  PlotNamed(rising.to);
  Say(R"(This line rises to the right.)", kBesidePlane);
  Say(R"(\yTry it:\z  Is its slope positive or negative?)", kBesidePlane);
  PageEnd();
  SayAt(kBelowPlane, R"(It is \ypositive\z.  Run and rise are positive:)");
  Show(SlopeWorkedOut(rising));
  PageEnd();
  DrawOnPlane(1, {Broken(LineOf(falling))}, kStepColour);
  PlotNamed(falling.from);
  PlotNamed(falling.to);
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane, R"(The dashed line falls.  Its slope is \ynegative\z:)");
  Show(SlopeWorkedOut(falling));
  PageEnd();
}

void HorizontalAndVertical() {
  const SlopeStep horizontal = {{-4, 3}, {2, 3}};
  const SlopeStep vertical = {{3, -4}, {3, 1}};
  NewScreen();
  ShowPlaneAtRight();
  KeepClearOf(horizontal);
  KeepClearOf(vertical);
  DrawLineOf(horizontal);
  PlotNamed(horizontal.from);
  PlotNamed(horizontal.to);
  Say(R"(This line is \chorizontal\z.)", kBesidePlane);
  Say(R"(\yTry it:\z  What are its rise and slope?)", kBesidePlane);
  PageEnd();
  SayAt(kBelowPlane, "The rise is 3 - 3 = 0, and the run is 6:");
  Show("slope = 0/6 = " + SlopeText(horizontal));
  PageEnd();
  ClearBelow(kBelowPlane);
  DrawOnPlane(1, {Broken(UprightItem(vertical.from.x))}, kStepColour);
  PlotNamed(vertical.from);
  PlotNamed(vertical.to);
  SayAt(kBelowPlane, R"(The dashed line is \cvertical\z.)");
  AddLine(R"(\yTry it:\z  What are its rise and its run?)");
  PageEnd();
  Say("The rise is 5, and the run is 0.  We cannot divide by 0.");
  Say(R"(The slope of a vertical line is \c)" + SlopeText(vertical) + R"(\z, not 0.)");
  PageEnd();

  NewScreen();
  ShowGraphsInRow({LineItem(2, 1), LineItem(-0.5, 1), LineItem(0, 3), UprightItem(3)}, 3);
  GoBelow();
  Say(R"(\yTry it:\z  Which slope is 0?  Which slope is undefined?)");
  PageEnd();
  PaperBox({R"(Graph 1 rises.  Its slope is \bpositive\z.)",
            R"(Graph 2 falls.  Its slope is \bnegative\z.)",
            R"(Graph 3 is horizontal.  Its slope is \b)" + SlopeText(horizontal) + R"(\z.)",
            R"(Graph 4 is vertical.  Its slope is \b)" + SlopeText(vertical) + R"(\z.)"});
  PageEnd();
}

void WorkedMissingCoordinate() {
  const MissingCoordinate missing({{-1, -2}, {5, 2}}, true);
  NewScreen();
  SayAt(2.5, missing.Question() + "  What is the value of a?");
  missing.Find(6);
  missing.Check();
  AddLine("So a is 5.");
  PageEnd();

  NewScreen();
  const SlopeStep step = {{1, 3}, {3, -1}};
  const MissingCoordinate asked(step, false);
  SayAt(2.5, asked.Question());
  ShowPlaneAtRight(5);
  KeepClearOf(step);
  PlotNamed(step.from);
  SayAt(5.4, R"(\yTry it:\z  What is the run?  What must the rise be?)", kBesidePlane);
  PageEnd();
  Say("The run is 3 - 1 = 2.  So the rise must be -2(2) = -4.", kBesidePlane);
  PageEnd();
  SayAt(16, "The rise is a - 3, too:");
  Show("a - 3 = -4");
  AddLine("Adding 3 to both sides:");
  Show("a = -1");
  DrawLineOf(step);
  DrawRun(step);
  DrawRise(step);
  PlotNamed(step.to);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

constexpr int kWidest = 5;  // of the coordinates
constexpr int kHighest = 3;

enum class Kind { DrawnLine = 0, MissingCoordinate = 2 };

class TheSlopeOfALine final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{RunAndRise, FallingLine, DifferencesOfCoordinates},
            {RisingAndFalling, HorizontalAndVertical, WorkedMissingCoordinate}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;
  MistakesFigure FigureOfMistakes() override;

  void DrawNumbers(RandomStream& random);
  void AskForSlope(RandomStream& random);
  void AskForCoordinate(RandomStream& random);
  bool ChoicesDiffer() const;
  SlopeStep StepToTheRight() const;
  MissingCoordinate Missing() const;
  void ExplainDrawnLine() const;
  void ExplainMissingCoordinate() const;

  Kind kind_ = Kind::DrawnLine;
  GridPoint first_;
  GridPoint second_;
  int missing_ = 0;  // of x1, y1, x2, y2: 1 to 4
};

// --- Generator ---------------------------------------------------------------

// A quarter of the pairs of points is accepted for a drawn line, seven in nine for a missing
// coordinate.
void TheSlopeOfALine::DrawNumbers(RandomStream& random) {
  int kind = 0;
  do {
    kind = random.Rand(0, 2);
  } while (kind == 1);  // there is no such kind
  kind_ = static_cast<Kind>(kind);
  while (true) {
    first_.x = random.Rand(-kWidest, kWidest);
    first_.y = random.Rand(-kHighest, kHighest);
    second_.x = random.Rand(-kWidest, kWidest);
    second_.y = random.Rand(-kHighest, kHighest);
    if (first_.x == second_.x || first_.y == second_.y) continue;  // upright, level, or one point
    // Both points stay off the axes, in one quadrant or in opposite ones.
    if (kind_ == Kind::DrawnLine && first_.x * first_.y * second_.x * second_.y <= 0) continue;
    return;
  }
}

// Two draws in three give choices that differ.
void TheSlopeOfALine::DrawProblem(RandomStream& random) {
  do {
    problem = Problem{};
    DrawNumbers(random);
    if (kind_ == Kind::DrawnLine)
      AskForSlope(random);
    else
      AskForCoordinate(random);
  } while (!ChoicesDiffer());
}

bool TheSlopeOfALine::ChoicesDiffer() const {
  for (std::size_t i = 1; i <= 4; ++i)
    for (std::size_t j = 1; j < i; ++j)
      if (problem.choices[i].text == problem.choices[j].text) return false;
  return true;
}

void TheSlopeOfALine::AskForSlope(RandomStream& random) {
  const SlopeStep step = {first_, second_};
  const Fraction slope = Reduced(step.Rise(), step.Run());
  const Fraction counted = Reduced(random.Rand(1, 5), slope.den);
  // One step more or less than the rise is a miscount; other values come from no mistake.
  const Fraction steps = counted * Fraction{std::abs(step.Run()), 1};
  const bool isMiscounted = steps.den == 1 && std::abs(steps.num - std::abs(step.Rise())) == 1;
  const auto comesFrom = [&](const GridPoint& point) {
    return counted == Reduced(std::abs(point.y - point.x), std::abs(step.Run()));
  };

  problem.question = {"What is the slope of the line shown?"};
  problem.figure = {LineOf(step), PointItem(first_.x, first_.y), PointItem(second_.x, second_.y)};
  problem.kind = choice_kind::FourShuffled;
  problem.Right(1, SlopeText(step));
  problem.Wrong(2, "divides the run by the rise", SlopeText(step.Run(), step.Rise()));
  problem.Wrong(3, "takes the wrong sign", SlopeText(-step.Rise(), step.Run()));
  problem.Wrong(4,
                comesFrom(first_) || comesFrom(second_) ? "subtracts the coordinates of one point"
                : !isMiscounted                         ? kFiller
                : slope.num < 0                         ? "miscounts the rise and loses its sign"
                                                        : "miscounts the rise",
                ValueText(counted));
}

// The step from the point that is known in full.
MissingCoordinate TheSlopeOfALine::Missing() const {
  const bool inSecond = missing_ > 2;
  const bool isX = missing_ % 2 == 1;
  return {inSecond ? SlopeStep{first_, second_} : SlopeStep{second_, first_}, isX, inSecond};
}

void TheSlopeOfALine::AskForCoordinate(RandomStream& random) {
  missing_ = random.Index(4);
  const MissingCoordinate missing = Missing();
  const int value = missing.Value();
  problem.question = {missing.Question(), "What is the value of a?"};
  problem.kind = choice_kind::FourShuffled;
  problem.Right(1, NumStr(value));
  problem.Wrong(2, "takes the wrong sign for a", NumStr(-value));
  problem.Wrong(3, "copies the coordinate of the other point", NumStr(missing.Partner()));
  problem.Wrong(4, kFiller, NumStr(value + random.Rand(1, 5)));
}

// --- Problem page ------------------------------------------------------------

constexpr double kQuestionRow = 4.4;
constexpr double kPlaneRow = 4;
constexpr double kBelowDrawing = 15;
constexpr double kPlaneUnderQuestion = 7.3;

void TheSlopeOfALine::ShowProblem() {
  if (kind_ == Kind::DrawnLine) {
    SayAt(kQuestionRow, problem.question[0], kBesidePlane);
    ShowPlaneAtRight(kPlaneRow);
    DrawOnPlane(1, problem.figure);
    ShowAnswersInTwoColumns(problem, {.row = 16});
    return;
  }
  SayAt(5, problem.question[0]);
  Say(problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

// So that the run is positive.
SlopeStep TheSlopeOfALine::StepToTheRight() const {
  return first_.x < second_.x ? SlopeStep{first_, second_} : SlopeStep{second_, first_};
}

void TheSlopeOfALine::ExplainDrawnLine() const {
  const SlopeStep step = StepToTheRight();
  SayAt(kQuestionRow, problem.question[0], kBesidePlane);
  ShowPlaneAtRight(kPlaneRow);
  DrawOnPlane(1, problem.figure);
  KeepClearOf(step);
  PlotNamed(step.from);
  PlotNamed(step.to);
  Say(Text("We go to the right, from {} to {}.", GraphPointText(step.from),
           GraphPointText(step.to)),
      kBesidePlane);
  PageEnd();
  Say(Text("The run is {}.", step.Run()), kBesidePlane);
  DrawRun(step);
  PageEnd();
  AddLine(Text("The rise is {}:  we go {}.", step.Rise(), Words{RiseWords(step.Rise())}),
          kBesidePlane);
  DrawRise(step);
  PageEnd();
  SayAt(kBelowDrawing, R"(The slope is \yrise over run\z:)");
  Show(SlopeWorkedOut(step));
  PageEnd();
  Say(Text(R"(\yCheck:\z  The line {} to the right, so its slope is {}.)",
           Words{step.Rise() > 0 ? "rises" : "falls"},
           Words{step.Rise() > 0 ? "positive" : "negative"}));
  Conclude(problem);
}

void TheSlopeOfALine::ExplainMissingCoordinate() const {
  const MissingCoordinate missing = Missing();
  SayAt(kQuestionRow, problem.question[0] + "  " + problem.question[1]);
  missing.Find(kPlaneUnderQuestion);
  missing.Check();
  Conclude(problem);
}

void TheSlopeOfALine::ExplainProblem() {
  ProblemBanner();
  if (kind_ == Kind::DrawnLine)
    ExplainDrawnLine();
  else
    ExplainMissingCoordinate();
}

MistakesFigure TheSlopeOfALine::FigureOfMistakes() {
  constexpr int kSquare = 12;  // pixels
  constexpr double kRows = 6.6;
  constexpr double kCol = 13;
  if (kind_ != Kind::DrawnLine) return {};
  return {kRows,
          [this](double row) { ShowSmallPlane(1, problem.figure, row - 0.4, kCol, kSquare); }};
}

const LessonRegistration<TheSlopeOfALine> kRegistration("The Slope of a Line");

}  // namespace
}  // namespace course
