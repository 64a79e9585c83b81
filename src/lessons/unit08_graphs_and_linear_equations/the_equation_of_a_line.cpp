// The student can find the equation of the line through two points: its slope m, then its y
// intercept b from one of the points, and knows the equations of horizontal and vertical lines.
#include "lessons/families/graphs/line_through_points.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class EquationOfALine final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}}; }
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
  } while (first.x == 0 || first.y == 0);  // its mirror image would be no other line
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

struct WrongLine {
  std::string mistake;
  std::string withOtherSign;  // the name when the sign of its intercept is turned, too
  LineEquation line;
};

LineEquation WithInterceptTurned(const LineEquation& line) {
  return WithSlope(line.slope, kZero - line.constant);
}

// Two lines come with both signs of their intercept, and in half of the problems the right one is
// none of them: else it would be the one most like the others.
void OfferSloping(const LineThroughPoints& line, int pair, bool oneLikeRight,
                  Choices<LineEquation>& choices) {
  const Fraction m = line.Slope();
  const std::array<WrongLine, 3> wrongLines = {
      {{"exchanges slope and intercept", "exchanges slope and intercept and turns a sign",
        WithSlope(line.Intercept(), m)},
       {"puts run over rise", "puts run over rise and turns the sign of the intercept",
        line.ThroughFirst(kOne / m)},
       {"turns the sign of the slope", "turns both signs", line.ThroughFirst(kZero - m)}}};
  const auto offer = [&](int number, bool bothSigns) {
    const WrongLine& wrong = wrongLines.at(static_cast<std::size_t>(number % 3));
    choices.Wrong(wrong.mistake, wrong.line);
    if (bothSigns) choices.Wrong(wrong.withOtherSign, WithInterceptTurned(wrong.line));
  };
  offer(pair, true);
  if (oneLikeRight)
    choices.Wrong("turns the sign of the intercept", WithInterceptTurned(line.Equation()));
  offer(pair + 1, !oneLikeRight);
  // Where some of these are the same line:
  offer(pair + 2, false);
  for (const GridPoint& point : {line.first, line.second}) {
    choices.Wrong("takes the y of a point for the intercept", WithSlope(m, {point.y, 1}));
    choices.Wrong("takes the x of a point for the intercept", WithSlope(m, {point.x, 1}));
  }
}

void OfferHorizontal(const LineThroughPoints& line, bool oneLikeRight,
                     Choices<LineEquation>& choices) {
  const Fraction b = line.Intercept();
  choices.Wrong("mixes up x and y", Upright(line.first.y));
  choices.Wrong("takes the line for a vertical one", Upright(line.first.x));
  choices.Wrong("takes the x of a point for the intercept", WithSlope(kZero, {line.first.x, 1}));
  if (oneLikeRight) {
    choices.Wrong("exchanges slope and intercept", WithSlope(b, kZero));
    choices.Wrong("turns the sign of the intercept", WithSlope(kZero, kZero - b));
  }
  choices.Wrong("takes the line for a vertical one", Upright(line.second.x));
  choices.Wrong("takes the x of a point for the intercept", WithSlope(kZero, {line.second.x, 1}));
  choices.Wrong("takes 1 for the slope", WithSlope(kOne, b));
}

void OfferVertical(const LineThroughPoints& line, bool oneLikeRight,
                   Choices<LineEquation>& choices) {
  const Fraction x = {line.first.x, 1};
  choices.Wrong("mixes up x and y", WithSlope(kZero, x));
  choices.Wrong("takes the line for a horizontal one", WithSlope(kZero, {line.first.y, 1}));
  choices.Wrong("exchanges the coordinates", Upright(line.first.y));
  if (oneLikeRight) choices.Wrong("turns the sign of the number", Upright(-line.first.x));
  choices.Wrong("takes the line for a horizontal one", WithSlope(kZero, {line.second.y, 1}));
  choices.Wrong("exchanges the coordinates", Upright(line.second.y));
  choices.Wrong("takes the number for the slope", WithSlope(x, kZero));
  choices.Wrong("takes 1 for the slope", WithSlope(kOne, x));
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
  ProblemBanner();
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<EquationOfALine> kRegistration("The Equation of a Line");

}  // namespace
}  // namespace course
