// The student can find the equation of the line through two points: its slope m, then its y
// intercept b from one of the points, and knows the equations of horizontal and vertical lines.
#include "lessons/families/graphs/line_board.h"
#include "lessons/families/graphs/line_through_points.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

// The lines of the teaching screens.
// The way from point to point crosses no axis, and so none of its numbers.
constexpr LineThroughPoints kWhole = {{-3, 5}, {-1, 1}};
constexpr LineThroughPoints kFraction = {{2, 3}, {-2, 2}};
constexpr LineThroughPoints kLevel = {{-3, 2}, {4, 2}};
constexpr LineThroughPoints kUpright = {{3, -2}, {3, 4}};

constexpr double kBelowPlane = LineBoard::kBelowPlane;

// --- Teaching screens --------------------------------------------------------

void SayBelowPlane(const std::string& text) {
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane, text);
}

void SlopeAndIntercept() {
  NewScreen();
  ShowPlaneAtRight(LineBoard::kPlaneRow);
  SayAt(LineBoard::kTextRow, R"(The equation of a line is \yy = mx + b\z.)", kBesidePlane);
  SayBelowPlane("It fits all lines but the vertical ones.");
  Say("m is the slope, b is the y intercept.");
  PageEnd();
  KeepLabelsClearOf(1, {StepItem(0, -1, 1, 2), LineItem(-1, 2)});
  DrawOnPlane(1, {LineItem(2, -1)}, platform::colour::Blue);
  SayBelowPlane(R"(The \cy intercept\z b tells where the line crosses the y axis.)");
  Say(R"(\yTry it:\z  Where is that here?)");
  PageEnd();
  DrawOnPlane(1, {PointItem(0, -1, "(0,-1)")});
  SayBelowPlane(R"(At -1, so b is -1.  The \cslope\z m tells how far up the line goes for 1 to )"
                "the right.");
  Say(R"(\yTry it:\z  How far is it here?)");
  PageEnd();
  DrawOnPlane(1, {StepItem(0, -1, 1, 2)});
  DrawOnPlane(1, {LineItem(2, -1, "y = 2x - 1")}, platform::colour::Blue);
  SayBelowPlane("1 right, 2 up:  the slope m is 2.  So the line is " +
                WithoutBreaks("y = 2x - 1."));
  Say(R"(\yTry it:\z  Is it y = -x + 2, too?)");
  PageEnd();
  DrawOnPlane(1, {Broken(LineItem(-1, 2, "y = -x + 2"))}, platform::colour::Red);
  SayBelowPlane("No.  There slope and intercept are exchanged:  see the dashed line.");
  Say(R"(\yTry it:\z  What is b when a line passes through the origin?)");
  PageEnd();
  SayBelowPlane("b is 0.  Then we write only y = mx, such as y = 2x.");
  PageEnd();
}

// What a student gets who ...
void WarnOfWrongSlopes() {
  SayBelowPlane(R"(\yWatch out:\z  These are wrong.)");
  PaperBox({R"(\r(5 - 1)/(-1 - (-3)) = 2\z  mixes the order.)",
            R"(\r2/(-4) = -1/2\z  puts run over rise.)"});
  PageEnd();
  SayBelowPlane("A false m makes b false, too.  With m = -1/2 the point (-3,5) gives:");
  Show("5 = -1/2 (-3) + b");
  Show("b = 5 - 3/2 = 7/2");
  PageEnd();
}

void ShowWayToSecondPoint() {
  DrawArrows(1, StepItem(-3, 5, 2, -4), platform::colour::Blue);
  LabelPlace(1, -2, 5, "run 2", platform::colour::Blue);
  LabelPlace(1, 0.15, 3, "rise -4", platform::colour::Blue);
}

void FromTwoPoints() {
  const LineBoard board(kWhole);
  NewScreen();
  board.ShowPoints();
  SayAt(LineBoard::kTextRow, "We know two points.", kBesidePlane);
  AddLine("Solve for m and b.", kBesidePlane);
  SayBelowPlane(R"(\yTry it:\z  How do we go from (-3,5) to (-1,1)?)");
  PageEnd();
  ShowWayToSecondPoint();
  SayBelowPlane("2 right and 4 down.  The run is 2, the rise is -4.");
  Say(R"(The slope m is rise over run.  \yTry it:\z  What is it here?)");
  PageEnd();
  SayBelowPlane("rise = second y - first y = 1 - 5");
  AddLine("run = second x - first x = -1 - (-3)");
  Say("We keep this order in the fraction.");
  PageEnd();
  board.FindSlope();
  PageEnd();
  WarnOfWrongSlopes();
  board.PutFirstPointIn();
  Say(R"(\yTry it:\z  What is b?)");
  PageEnd();
  board.SolveForIntercept();
  Say(R"(\yWatch out:\z  It is 5 - 6, not 6 - 5.)");
  PageEnd();
  board.ShowEquationAndCheck();
  PageEnd();
}

void WithFractions() {
  const LineBoard board(kFraction);
  NewScreen();
  board.ShowPoints();
  SayAt(LineBoard::kTextRow, "m and b can be fractions.", kBesidePlane);
  SayBelowPlane(R"(\yTry it:\z  What is the slope of this line?)");
  PageEnd();
  board.FindSlope();
  Say("We go left and down:  both are negative.");
  PageEnd();
  board.PutFirstPointIn();
  PageEnd();
  board.SolveForIntercept();
  PageEnd();
  board.ShowEquationAndCheck();
  PageEnd();
}

void HorizontalLines() {
  const LineBoard board(kLevel);
  NewScreen();
  board.ShowPoints();
  SayAt(LineBoard::kTextRow, R"(This line is \chorizontal\z.)", kBesidePlane);
  SayBelowPlane(R"(\yTry it:\z  What is the rise?)");
  PageEnd();
  board.FindSlope();
  PageEnd();
  board.ShowHorizontal();
  Say(R"(\yTry it:\z  Is it x = 2, too?  Or y = -3?)");
  PageEnd();
  DrawOnPlane(1, {Broken(UprightItem(2, "x = 2"))}, platform::colour::Red);
  SayBelowPlane("No.  x = 2 is vertical (dashed), and -3 is only the x coordinate of (-3,2).");
  Say(R"(\yTry it:\z  Which line goes through (-1,0) and (4,0)?)");
  PageEnd();
  SayBelowPlane("m is 0, and b is 0:  y = 0.  It is the x axis.");
  Say(R"(\yWatch out:\z  x = 0 is the y axis.)");
  PageEnd();
}

void VerticalLines() {
  const LineBoard board(kUpright);
  NewScreen();
  board.ShowPoints();
  SayAt(LineBoard::kTextRow, R"(This line is \cvertical\z.)", kBesidePlane);
  SayBelowPlane(R"(\yTry it:\z  What is the run?)");
  PageEnd();
  board.FindSlope();
  PageEnd();
  board.ShowVertical();
  Say(R"(\yTry it:\z  Is it y = 3, too?)");
  PageEnd();
  DrawOnPlane(1, {Broken(LineItem(0, 3, "y = 3"))}, platform::colour::Red);
  SayBelowPlane(
      "No.  On the dashed line y = 3 each point has the y coordinate 3.  That line is "
      "horizontal.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class EquationOfALine final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SlopeAndIntercept, FromTwoPoints, WithFractions, HorizontalLines, VerticalLines}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LineThroughPoints line_;
};

// --- Generator ---------------------------------------------------------------

constexpr Fraction kZero = {0, 1};
constexpr Fraction kOne = {1, 1};
constexpr int kFarthest = 5;  // of the drawn x
constexpr int kHighest = 3;   // and of the drawn y

GridPoint DrawPoint(RandomStream& random) {
  GridPoint point;
  point.x = random.Rand(-kFarthest, kFarthest);
  point.y = random.Rand(-kHighest, kHighest);
  return point;
}

// Five points, of which two neighbors are asked about: 1 and 2, 2 and 3, or 4 and 5.
LineThroughPoints DrawLine(RandomStream& random) {
  GridPoint first;
  do {
    first = DrawPoint(random);
  } while (first.x == 0 || first.y == 0);  // on an axis the line shows too soon
  const GridPoint second = {-first.x, std::abs(first.y) - 1};
  const GridPoint third = {-first.x + 1, first.y - 1};
  GridPoint fourth;
  GridPoint fifth;
  do {
    fourth = DrawPoint(random);
    fifth = {random.Rand(-kFarthest, kFarthest), -fourth.y};
  } while (fourth == fifth);  // no line
  // The last two give the most lines, and the vertical ones.
  const LineThroughPoints last = {fourth, fifth};
  const std::array<LineThroughPoints, 4> lines = {{{first, second}, {second, third}, last, last}};
  return lines.at(static_cast<std::size_t>(random.Index(4)) - 1);
}

struct NamedPoint {
  GridPoint place;
  std::string name;
};
std::array<NamedPoint, 2> NamedPoints(const LineThroughPoints& line) {
  return {{{line.first, "the first point"}, {line.second, "the second point"}}};
}

struct WrongLine {
  std::string mistake;
  std::string withOtherSign;  // the name when the sign of its intercept is reversed, too
  LineEquation line;
};

LineEquation WithInterceptReversed(const LineEquation& line) {
  return WithSlope(line.slope, kZero - line.constant);
}

// Two lines come with both signs of their intercept, and in half of the problems the right one is
// none of them: else it would be the one most like the others.
void OfferSloping(const LineThroughPoints& line, int pair, bool oneLikeRight,
                  Choices<LineEquation>& choices) {
  const Fraction m = line.Slope();
  const std::array<WrongLine, 3> wrongLines = {
      {{"exchanges slope and intercept", "exchanges slope and intercept and reverses a sign",
        WithSlope(line.Intercept(), m)},
       {"puts run over rise and uses this slope for b",
        "puts run over rise, uses this slope for b and reverses the sign of b",
        line.ThroughFirst(kOne / m)},
       {"reverses the sign of the slope and uses it for b",
        "reverses the sign of the slope, uses it for b and reverses the sign of b",
        line.ThroughFirst(kZero - m)}}};
  const auto offer = [&](int number, bool bothSigns) {
    const WrongLine& wrong = wrongLines.at(static_cast<std::size_t>(number % 3));
    choices.Wrong(wrong.mistake, wrong.line);
    if (bothSigns) choices.Wrong(wrong.withOtherSign, WithInterceptReversed(wrong.line));
  };
  offer(pair, true);
  if (oneLikeRight)
    choices.Wrong("reverses the sign of the intercept", WithInterceptReversed(line.Equation()));
  offer(pair + 1, !oneLikeRight);
  // Where some of these are the same line:
  offer(pair + 2, false);
  for (const auto& [point, name] : NamedPoints(line)) {
    choices.Wrong("takes the y of " + name + " for the intercept", WithSlope(m, {point.y, 1}));
    choices.Wrong("takes the x of " + name + " for the intercept", WithSlope(m, {point.x, 1}));
  }
}

void OfferHorizontal(const LineThroughPoints& line, bool oneLikeRight,
                     Choices<LineEquation>& choices) {
  const Fraction b = line.Intercept();
  choices.Wrong("mixes up x and y", Upright(line.first.y));
  const auto offerX = [&](const NamedPoint& point) {
    choices.Wrong("takes the line for a vertical one through " + point.name,
                  Upright(point.place.x));
    choices.Wrong("takes the x of " + point.name + " for the intercept",
                  WithSlope(kZero, {point.place.x, 1}));
  };
  const auto [first, second] = NamedPoints(line);
  offerX(first);
  if (oneLikeRight) {
    choices.Wrong("exchanges slope and intercept", WithSlope(b, kZero));
    choices.Wrong("reverses the sign of the intercept", WithSlope(kZero, kZero - b));
  }
  offerX(second);
  choices.Wrong("takes 1 for the slope", WithSlope(kOne, b));
}

void OfferVertical(const LineThroughPoints& line, bool oneLikeRight,
                   Choices<LineEquation>& choices) {
  const Fraction x = {line.first.x, 1};
  choices.Wrong("mixes up x and y", WithSlope(kZero, x));
  const auto offerY = [&](const NamedPoint& point) {
    choices.Wrong("takes the line for a horizontal one through " + point.name,
                  WithSlope(kZero, {point.place.y, 1}));
    choices.Wrong("exchanges the coordinates of " + point.name, Upright(point.place.y));
  };
  const auto [first, second] = NamedPoints(line);
  offerY(first);
  if (oneLikeRight) choices.Wrong("reverses the sign of the number", Upright(-line.first.x));
  offerY(second);
  choices.Wrong("takes the number for the slope", WithSlope(x, kZero));
}

void EquationOfALine::DrawProblem(RandomStream& random) {
  line_ = DrawLine(random);
  const int pair = random.Index(3);
  const bool oneLikeRight = random.Rand(0, 1) == 1;
  problem.question = {
      "What is the equation of the line",
      Text("through the points {} and {}?", PointText(line_.first), PointText(line_.second))};
  Choices<LineEquation> choices(problem, choice_kind::FiveShuffled, EquationText);
  choices.Right(line_.Equation());
  if (line_.IsVertical())
    OfferVertical(line_, oneLikeRight, choices);
  else if (line_.IsHorizontal())
    OfferHorizontal(line_, oneLikeRight, choices);
  else
    OfferSloping(line_, pair, oneLikeRight, choices);
}

// --- Problem page ------------------------------------------------------------

void EquationOfALine::ShowProblem() {
  SayAt(5, problem.question[0] + " " + problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.row = 9, .width = 19});
}

// --- Worked explanation ------------------------------------------------------

void EquationOfALine::ExplainProblem() {
  const LineBoard board(line_);
  ProblemBanner();
  SayAt(LineBoard::kTextRow, problem.question[0] + " " + problem.question[1], kBesidePlane);
  board.ShowPoints();
  SayBelowPlane("The equation of a line is y = mx + b.");
  AddLine("m is the slope, b is the y intercept.");
  Say("Solve for m and b.");
  PageEnd();
  board.FindSlope();
  PageEnd();
  if (line_.IsVertical()) {
    board.ShowVertical();
    return Conclude(problem);
  }
  if (line_.IsHorizontal()) {
    board.ShowHorizontal();
    return Conclude(problem);
  }
  board.PutFirstPointIn();
  PageEnd();
  board.SolveForIntercept();
  PageEnd();
  board.ShowEquationAndCheck();
  PageEnd();
  ClearBelow(kBelowPlane);
  ConcludeAt(kBelowPlane, problem);
}

const LessonRegistration<EquationOfALine> kRegistration("The Equation of a Line");

}  // namespace
}  // namespace course
