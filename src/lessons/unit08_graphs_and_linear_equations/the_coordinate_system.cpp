// The student can name the parts of a coordinate plane, read the coordinates of a point, find the
// point of given coordinates, also on an axis, and tell the quadrant from the signs.
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/graphs/point_question.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

constexpr int kPlane = 1;
constexpr double kBelowPlane = 14;  // row, on a teaching screen

FigureItem PointOf(GridPoint point, const std::string& label) {
  return PointItem(point.x, point.y, label);
}

// "3 right", "5 down".
Words Across(int x) {
  return {NumStr(std::abs(x)) + (x < 0 ? " left" : " right")};
}
Words Upward(int y) {
  return {NumStr(std::abs(y)) + (y < 0 ? " down" : " up")};
}

// The way from the origin along the x axis, and the rest of the way to the point.
void WalkAcross(int x) {
  DrawArrows(kPlane, StepItem(0, 0, x, 0), platform::colour::Blue);
}
void WalkUp(GridPoint to) {
  DrawArrows(kPlane, StepItem(to.x, 0, 0, to.y), platform::colour::Blue);
}
// The point at the end of the way.
void Arrive(GridPoint at, const std::string& label) {
  DrawOnPlane(kPlane, {PointOf(at, label)}, platform::colour::Blue);
}

// Room for the labels of what comes on later pages.
void Expect(const std::vector<GridPoint>& points) {
  for (const GridPoint& point : points)
    KeepLabelsClearOf(kPlane, {StepItem(0, 0, point.x, 0), StepItem(point.x, 0, 0, point.y),
                               PointItem(point.x, point.y)});
}

// --- Teaching screens --------------------------------------------------------

void TwoAxes() {
  NewScreen();
  ShowPlaneAtRight();
  Say(R"(Two number lines that cross at 0 make a \ccoordinate plane\z.)", kBesidePlane);
  PageEnd();
  SayAt(kBelowPlane, R"(The horizontal one (left to right) is the \cx axis\z, the vertical one )"
                     R"((up and down) the \cy axis\z.)");
  PageEnd();
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane, R"(They cross at the \corigin\z.)");
  DrawOnPlane(kPlane, {PointItem(0, 0, "origin")}, platform::colour::Blue);
  Say(R"(\yTry it:\z  Where are the negative numbers on each axis?)");
  PageEnd();
  Say("On the x axis they are to the left of the origin, as on every number line.  On the y axis "
      "they are below it.");
  Say("One square is one step.");
  PageEnd();
}

void TwoCoordinates() {
  constexpr GridPoint kFirst = {4, 2};
  NewScreen();
  ShowPlaneAtRight();
  Expect({kFirst});
  DrawOnPlane(kPlane, {PointOf(kFirst, "K")});
  Say("Where is the point K?", kBesidePlane);
  Say(R"(\yTry it:\z  How far right from the origin, then how far up?)", kBesidePlane);
  PageEnd();
  WalkAcross(kFirst.x);
  SayAt(kBelowPlane, R"(4 to the right:  the \cx coordinate\z of K is 4.)");
  PageEnd();
  WalkUp(kFirst);
  Say(R"(Then 2 up:  the \cy coordinate\z of K is 2.)");
  Say(R"(Both are the \ccoordinates\z of K, (4,2).  The x coordinate always comes first.)");
  PageEnd();
}

void NegativeCoordinates() {
  constexpr GridPoint kFirst = {-3, 1};
  constexpr GridPoint kExchanged = {1, -3};
  NewScreen();
  ShowPlaneAtRight();
  Expect({kFirst, kExchanged});
  DrawOnPlane(kPlane, {PointOf(kFirst, "L")});
  Say("To the left and down are negative numbers.", kBesidePlane);
  Say(R"(\yTry it:\z  What are the coordinates of L?)", kBesidePlane);
  PageEnd();
  WalkAcross(kFirst.x);
  WalkUp(kFirst);
  SayAt(kBelowPlane, Text(R"(3 left, then 1 up:  L has the coordinates \y{}\z.  We write the )"
                          "minus of a coordinate a little higher:  {} is the number -3.",
                          GraphPointText(kFirst), RaisedNumberText(kFirst.x)));
  PageEnd();
  ShowPlaneAtRight();  // without the first way
  Expect({kFirst, kExchanged});
  DrawOnPlane(kPlane, {PointOf(kFirst, "L"), PointOf(kExchanged, "M")});
  Say(R"(\yTry it:\z  And the coordinates of M?)");
  PageEnd();
  WalkAcross(kExchanged.x);
  WalkUp(kExchanged);
  Say(Text(R"(1 right, then 3 down:  \y{}\z.)", GraphPointText(kExchanged)));
  PaperBox({Text("L is {}, M is {}.", GraphPointText(kFirst), GraphPointText(kExchanged)),
            "The same numbers in another order:  another point."});
  PageEnd();
}

void Plotting() {
  constexpr GridPoint kFirst = {-2, -4};
  constexpr GridPoint kSecond = {5, -3};
  NewScreen();
  ShowPlaneAtRight();
  Expect({kFirst, kSecond});
  Say(R"(To \cplot\z a point means to mark its place.)", kBesidePlane);
  Say(Text(R"(\yTry it:\z  Plot {}.  Which way do we go?)", GraphPointText(kFirst)), kBesidePlane);
  PageEnd();
  WalkAcross(kFirst.x);
  SayAt(kBelowPlane, Text("x is {}.  So we go 2 to the left.", RaisedNumberText(kFirst.x)));
  PageEnd();
  WalkUp(kFirst);
  Arrive(kFirst, "P");
  Say(Text("y is {}.  So we go 4 down.  There is the point, P.", RaisedNumberText(kFirst.y)));
  PageEnd();
  ClearBelow(kBelowPlane);
  ShowPlaneAtRight();  // without the first way
  Expect({kFirst, kSecond});
  Arrive(kFirst, "P");
  SayAt(kBelowPlane, Text(R"(\yTry it:\z  Put your finger on {}.)", GraphPointText(kSecond)));
  PageEnd();
  WalkAcross(kSecond.x);
  WalkUp(kSecond);
  Arrive(kSecond, "Q");
  Say("5 right, then 3 down.  That is Q.");
  PaperBox({"Right and up are plus, left and down are minus.",
            Text(R"(\r(5,3)\z would be 3 up, not {})", "3 down.")});
  PageEnd();
}

void PointsOnTheAxes() {
  constexpr GridPoint kOnX = {3, 0};
  constexpr GridPoint kOnY = {0, -4};
  constexpr GridPoint kAsked = {-5, 0};
  NewScreen();
  ShowPlaneAtRight();
  Expect({kOnX, kOnY, kAsked});
  Say("A coordinate can be 0.", kBesidePlane);
  Say(Text(R"(\yTry it:\z  Where are {} and {}?)", GraphPointText(kOnX), GraphPointText(kOnY)),
      kBesidePlane);
  PageEnd();
  DrawOnPlane(kPlane, {PointOf(kOnX, "R"), PointOf(kOnY, "S")});
  SayAt(kBelowPlane, Text("{} is R, on the x axis:  3 right, and y is 0, so no way up or down.",
                          GraphPointText(kOnX)));
  Say(Text("{} is S, on the y axis:  4 down from the origin.", GraphPointText(kOnY)));
  PageEnd();
  DrawOnPlane(kPlane, {PointOf(kAsked, "T")});
  Say(Text(R"(\yTry it:\z  Is T {} or {}?)", GraphPointText(kAsked), GraphPointText({0, -5})));
  PageEnd();
  Say(Text(R"(T is \y{}\z:  5 left, so x is {}.)", GraphPointText(kAsked), RaisedNumberText(-5)));
  PageEnd();
}

// In the middle of each quadrant, counted from I on.
void PrintInQuadrants(const std::array<std::string, 4>& texts, double down) {
  constexpr std::array<GridPoint, 4> kMiddles = {{{3, 3}, {-3, 3}, {-3, -3}, {3, -3}}};
  constexpr double kSize = 16;      // points
  constexpr double kLetter = 0.27;  // half of the usual width of one, in squares
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const double left = kMiddles[i].x - kLetter * static_cast<double>(texts[i].size());
    picGraph2DPrintRotated(kPlane, 0, left, kMiddles[i].y - down, texts[i], platform::colour::Blue,
                           kSize);
  }
}

void Quadrants() {
  NewScreen();
  ShowPlaneAtRight();
  Say(R"(The axes divide the plane into four \cquadrants\z.)", kBesidePlane);
  SayAt(kBelowPlane, "We number them counterclockwise from I.");
  PrintInQuadrants({"I", "II", "III", "IV"}, -1);
  PageEnd();
  Say("In I both coordinates are positive.  In II x is negative and y is positive.");
  PrintInQuadrants({"(+,+)", "(-,+)", "", ""}, 0.2);
  Say(R"(\yTry it:\z  Which signs do III and IV have?)");
  PageEnd();
  Say("In III both are negative.  In IV x is positive and y is negative.");
  PrintInQuadrants({"", "", "(-,-)", "(+,-)"}, 0.2);
  PageEnd();
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane,
        Text(R"(\yTry it:\z  Which quadrants hold {}, {} and {}?)", GraphPointText({4, -1}),
             GraphPointText({-1, 4}), GraphPointText({0, 3})));
  PageEnd();
  DrawOnPlane(kPlane, {PointItem(4, -1, "U"), PointItem(-1, 4, "V"), PointItem(0, 3, "W")});
  Say(
      Text("{} is U in IV, and {} is V in II.  {} is W on the y axis, and a point on an axis is in "
           "no quadrant.",
           GraphPointText({4, -1}), GraphPointText({-1, 4}), GraphPointText({0, 3})));
  PageEnd();
}

// Five points of which one is looked for, on the lower plane.
void WhichOfFive() {
  constexpr GridPoint kAsked = {-3, 2};
  NewScreen();
  ShowPlaneAtRight(3.2, PlaneHeight::Low);
  Expect({kAsked});
  DrawOnPlane(kPlane, {PointItem(3, 2, "F"), PointItem(2, -3, "G"), PointItem(3, -2, "H"),
                       PointOf(kAsked, "J"), PointItem(-3, -2, "K")});
  Say(Text("Which point has the coordinates {}?", GraphPointText(kAsked)), kBesidePlane);
  Say(R"(\yTry it:\z  In which quadrant is it?)", kBesidePlane);
  PageEnd();
  constexpr double kBelow = 11.2;
  SayAt(kBelow, "x is negative and y is positive:  in II.  There J stands alone.");
  PageEnd();
  WalkAcross(kAsked.x);
  WalkUp(kAsked);
  Arrive(kAsked, "J");
  Say(Text(R"(\yCheck:\z  3 left, then 2 up.  The answer is \yJ\z.)"));
  Say(R"(\yTry it:\z  Which mistake leads to F, to G, to H and to K?)");
  PageEnd();
  ClearBelow(kBelow);
  SayAt(kBelow, Text("J is {}.", GraphPointText(kAsked)));
  Say("F has the wrong sign for x, K for y.  H has both signs wrong.  At G, 2 right and 3 down, "
      "the coordinates are exchanged.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class TheCoordinateSystem final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{TwoAxes, TwoCoordinates, NegativeCoordinates},
            {Plotting, PointsOnTheAxes},
            {Quadrants, WhichOfFive}};
  }
  void DrawProblem(RandomStream& random) override { question_.Draw(random, problem); }
  void ShowProblem() override;
  void ExplainProblem() override;
  MistakesFigure FigureOfMistakes() override;

  void ShowPlaneInTheMiddle(double row, int square) const;
  void ExplainReading() const;
  void ExplainPlotting() const;

  PointQuestion question_;
};

// --- Problem page ------------------------------------------------------------

// square is the side of a grid square in pixels.
void TheCoordinateSystem::ShowPlaneInTheMiddle(double row, int square) const {
  constexpr double kColumns = 42;  // of the panel with its margins
  const double columns = 13.0 * square / gCellWidth;
  ShowPlane(kPlane, row, (kColumns - columns) / 2 - 1, square, question_.Plane());
  DrawOnPlane(kPlane, problem.figure);
}

void TheCoordinateSystem::ShowProblem() {
  SayAt(4.2, problem.question[0]);
  ShowPlaneInTheMiddle(5.8, question_.Plane() == PlaneHeight::Low ? 28 : 22);
  ShowAnswersInThreeColumns(problem, {.row = 18});
}

// --- Worked explanation ------------------------------------------------------

// The signs fit the place.
void CheckQuadrant(GridPoint point, const std::string& letter) {
  const std::string quadrant =
      point.y > 0 ? (point.x > 0 ? "I" : "II") : (point.x < 0 ? "III" : "IV");
  const bool sameSign = (point.x > 0) == (point.y > 0);
  const auto signOf = [](int n) { return Words{n < 0 ? "negative" : "positive"}; };
  const double row = RowBelow() + 0.5;
  if (sameSign)
    SayAt(row, Text(R"(\yCheck:\z  {} is in quadrant {}, where both coordinates are {}.)", letter,
                    quadrant, signOf(point.x)));
  else
    SayAt(row, Text(R"(\yCheck:\z  {} is in quadrant {}, where x is {} and y is {}.)", letter,
                    quadrant, signOf(point.x), signOf(point.y)));
}

constexpr double kTextRow = 4.6;
constexpr double kPlaneRow = 6.6;

void TheCoordinateSystem::ExplainProblem() {
  ProblemBanner();
  SayAt(kTextRow, problem.question[0]);
  ShowPlaneAtRight(kPlaneRow, question_.Plane());
  Expect({question_.Point()});
  DrawOnPlane(kPlane, problem.figure);
  Locate(kPlaneRow - 0.6, 1);
  if (question_.AsksForPoint())
    ExplainPlotting();
  else
    ExplainReading();
  CheckQuadrant(question_.Point(), question_.Letter());
  Conclude(problem);
}

void TheCoordinateSystem::ExplainReading() const {
  const GridPoint point = question_.Point();
  const std::string& letter = question_.Letter();
  Say(Text("x comes first.  Is {} right or left of the y axis, and how far?", letter),
      kBesidePlane);
  PageEnd();
  WalkAcross(point.x);
  Say(Text(R"({}, so the x coordinate is \y{}\z.)", Across(point.x), RaisedNumberText(point.x)),
      kBesidePlane);
  PageEnd();
  WalkUp(point);
  Say(Text(R"(Then {}, so the y coordinate is \y{}\z.)", Upward(point.y),
           RaisedNumberText(point.y)),
      kBesidePlane);
  PageEnd();
}

void TheCoordinateSystem::ExplainPlotting() const {
  const GridPoint point = question_.Point();
  Say(Text("The first number, {}, is x.  Which way do we go?", RaisedNumberText(point.x)),
      kBesidePlane);
  PageEnd();
  WalkAcross(point.x);
  Say(Text("It is {}, so we go {} from the origin.", Words{point.x < 0 ? "negative" : "positive"},
           Across(point.x)),
      kBesidePlane);
  PageEnd();
  WalkUp(point);
  Say(Text("The second number, {}, is y.  So we go {}, to {}.", RaisedNumberText(point.y),
           Upward(point.y), question_.Letter()),
      kBesidePlane);
  PageEnd();
}

// The question stays with its plane.
MistakesFigure TheCoordinateSystem::FigureOfMistakes() {
  constexpr int kSquare = 16;
  constexpr double kQuestionRows = 1.5;
  const bool isLow = question_.Plane() == PlaneHeight::Low;
  const double planeRows = (isLow ? 9.0 : 13.0) * kSquare / gCellHeight;
  return {kQuestionRows + planeRows + 0.5, [this](double row) {
            SayAt(row - 1, problem.question[0]);
            ShowPlaneInTheMiddle(row - 1 + kQuestionRows, kSquare);
          }};
}

const LessonRegistration<TheCoordinateSystem> kRegistration("The Coordinate System");

}  // namespace
}  // namespace course
