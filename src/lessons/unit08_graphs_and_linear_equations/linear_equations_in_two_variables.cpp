// The student knows what an ordered pair and a solution of an equation in x and y are, tries a pair
// in an equation, makes a table of pairs, and sees the pairs as points of one line.
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/tried_equation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;
using namespace systems;

// The equations of the teaching screens.
constexpr TriedEquation kLeftSide = {{3, -2, 0}, {0, 0, 8}};
constexpr TriedEquation kSolvedForY = {{0, 1, 0}, {2, 0, -3}};
constexpr TriedEquation kTwoSides = {{3, 0, 0}, {0, 2, 1}};
constexpr TriedEquation kOpposite = {{-1, 0, 0}, {0, -2, -8}};

constexpr double kCellSize = 14;  // points

// --- Teaching screens --------------------------------------------------------

// The rows x and y of a table, four pairs side by side.
void ShowPairsInRows() {
  constexpr int kPairs[][2] = {{1, 4}, {2, 3}, {5, 0}, {7, -2}};
  PrintCellTable table;
  table.heightPixels = 100;
  for (const double top : {6.0, 53.0})
    for (int i = 0; i < 4; ++i) table.cells.push_back({15.0 + 21 * i, top, 19, 41});
  table.labels = {{6, 16, 8, 30, "x", kCellSize}, {6, 63, 8, 30, "y", kCellSize}};
  CellTable(table);
  for (int i = 0; i < 4; ++i) {
    picPrintCellPrint(i + 1, NumStr(kPairs[i][0]), platform::colour::Black, kCellSize);
    picPrintCellPrint(i + 5, NumStr(kPairs[i][1]), platform::colour::Blue, kCellSize);
  }
}

void ManyPairs() {
  NewScreen();
  SayAt(3, Text("One number makes {} true:  3.  Now there are two variables:", "x + 2 = 5"));
  Show("x + y = 5", 15);
  Say(R"(\yTry it:\z  Find x and y to make it true.)");
  PageEnd();
  ShowPairsInRows();
  Say(Text("All of these do, and many more.  x and y need not be equal.  In the last pair {} is 5.",
           "7 + (-2)"));
  PageEnd();
}

void OrderedPairs() {
  NewScreen();
  SayAt(3, R"(We write two such numbers as an \cordered pair\z (x,y).  A pair that makes the )"
           R"(equation true is called a \csolution\z.)");
  PageEnd();
  Say(Text("x comes first:  (1,4) means {} and {}.", "x = 1", "y = 4"));
  Say(Text(R"(\yTry it:\z  Is (1,4) or (4,1) a solution of {}?)", "x - y = 3"));
  PageEnd();
  PaperBox({R"((4,1):  4 - 1 = 3   \btrue\z)", R"((1,4):  1 - 4 = -3, not 3   \rfalse\z)"});
  Say("Only (4,1) is one.  The order matters.");
  PageEnd();
}

void WhatLinearMeans() {
  NewScreen();
  SayAt(
      3,
      Text(
          R"({} is \clinear\z.  It has the form {}:  a is 3, b is -2, c is 8.  a or b may be 0, but not both.)",
          kLeftSide.Text(), "ax + by = c"));
  Say(Text(R"(\yTry it:\z  Is {} linear?)", "x^2^ + y = 5"));
  PageEnd();
  Say("No.  x\xB2 has the exponent 2.  A linear equation has no x\xB2.");
  Say(Text("But {} is linear:  we subtract 2x from both sides, and get {}.", "y = 2x + 1",
           "-2x + y = 1"));
  PageEnd();
}

// The equation with the numbers beside it, and on a row below the numbers in their places.
constexpr double kRow = 6;
constexpr double kDown = 1.5;
constexpr double kCol = 5;    // of the equation
constexpr double kXCol = 28;  // of the numbers
constexpr double kYCol = 36;

void ShowEquationAndPair(int x, int y) {
  ShowAt(kRow, kLeftSide.Text(), kCol);
  ShowAt(kRow, Text(R"(x = \y{}\z)", x), kXCol - 4);
  ShowAt(kRow, Text(R"(y = \y{}\z)", y), kYCol - 4);
}
void ShowNumbersInPlace(int x, int y) {
  ShowAt(kRow + kDown, Text(R"(3(\y{}\z) - 2(\y{}\z) = 8)", x, y), kCol);
}

void BringNumbersIntoPlace() {
  ShowEquationAndPair(2, -1);
  SayAt(9.5, R"(\yTry it:\z  Which number comes where?)");
  PageEnd();
  SlideDown({kRow, kXCol, 1}, kDown, Leaving::Copy);
  SlideLeft({kRow + kDown, kXCol, 1}, kXCol - kCol - 2);
  SlideDown({kRow, kYCol, 2}, kDown, Leaving::Copy);
  SlideLeft({kRow + kDown, kYCol, 2}, kYCol - kCol - 9);
  ShowNumbersInPlace(2, -1);
}

void TryOnTheLeft() {
  NewScreen();
  SayAt(3, "Is the ordered pair (2,-1) a solution of the following equation?");
  BringNumbersIntoPlace();
  ClearBelow(9.5);
  SayAt(9.5, "The parentheses keep the minus sign.");
  WhiteBox({.row = 11.5, .rows = 6});
  SayInBox(R"(\bEvaluate the expression on the left side of the equal sign.\z)");
  PageEnd();
  SayInBox(R"(6 - (-2) = 6 + 2 = 8)");
  SayInBox(R"(8 = 8   \btrue\z:  (2,-1) is a solution.)");
  PaperBox({R"(6 - 2 = 4   \rloses the minus of -1\z)"}, 18);
  SayAt(21.5, R"(\yTry it:\z  Is (-1,2) a solution, too?)");
  PageEnd();
  ClearRows(kRow, 3);
  ClearBelow(18);
  ShowEquationAndPair(-1, 2);
  ShowNumbersInPlace(-1, 2);
  SayInBoxAnew(R"(-3 - 4 = -7, and -7 = 8 is \rfalse\z.)");
  SayInBox("Exchanged, it is no solution.");
  PageEnd();
}

void ShowTrial(const TriedEquation& equation, int x, int y) {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Put {} into {}.)", PairText(x, y), equation.Text()));
  WhiteBox({.row = 5, .rows = 10});
  SayEvaluation(equation, x, y);
  SayVerdict(equation, x, y);
}

void TryOnBothSides() {
  ShowTrial(kSolvedForY, 0, -3);
  SayAt(16, R"(\yWatch out:\z  2(0) is 0, and not 2.)");
  PageEnd();
  ShowTrial(kTwoSides, -1, 2);
  SayAt(16, "Putting the numbers in always tells.");
  PageEnd();
  ShowTrial(kOpposite, -4, -6);
  SayAt(16, Text("{} is the opposite:  {} is 4.", "-x", "-(-4)"));
  PageEnd();
}

// x, the expression, and y, four rows; nothing is filled in yet.
void ShowTableOfY(double row) {
  PrintCellTable table;
  table.heightPixels = 190;
  for (int i = 0; i < 4; ++i)
    for (const auto& [left, width] : {std::pair(6.0, 20.0), {28.0, 44.0}, {74.0, 20.0}})
      table.cells.push_back({left, 18.0 + 20 * i, width, 17});
  table.labels = {{6, 3, 20, 14, "x", 12, platform::colour::Black, true},
                  {28, 3, 44, 14, "2x + 1", 12, platform::colour::Black, true},
                  {74, 3, 20, 14, "y", 12, platform::colour::Black, true}};
  CellTable(table, row);
}
void FillX(int row, int x) {
  picPrintCellPrint(3 * row - 2, NumStr(x), platform::colour::Black, kCellSize);
}
void FillY(int row, int x) {
  picPrintCellPrint(3 * row - 1, "2(" + NumStr(x) + ") + 1", platform::colour::Black, kCellSize);
  picPrintCellPrint(3 * row, NumStr(2 * x + 1), platform::colour::Blue, kCellSize);
}

void TableOfPairs() {
  constexpr double kBelowTable = 16.5;
  NewScreen();
  SayAt(3, "A ride costs 1 dollar, plus 2 dollars a mile.  For x miles we pay y dollars:");
  Show("y = 2x + 1", 15);
  Say(R"(\yTry it:\z  Do miles or price come first?)");
  PageEnd();
  ClearBelow(6.5);
  SayAt(6.5, R"(The miles.  So y \ydepends\z on x.  We choose x, and the equation tells y:)");
  ShowTableOfY(9);
  FillX(1, 0);
  FillY(1, 0);
  SayAt(kBelowTable + 0.7, "0 miles cost 1 dollar:  the pair (0,1).");
  FillX(2, 1);
  Say(R"(\yTry it:\z  What is y for x = 1?)");
  PageEnd();
  FillY(2, 1);
  Say("2 times 1 is 2, and 1 more is 3:  (1,3).");
  PageEnd();
  ClearRows(kBelowTable + 0.7, 6);
  FillX(3, 2);
  FillX(4, -2);
  SayAt(kBelowTable + 0.7, "No ride has -2 miles.  But the equation takes negative numbers, too.");
  Say(R"(\yTry it:\z  Find y for 2 and for -2.)");
  PageEnd();
  FillY(3, 2);
  FillY(4, -2);
  Say(Text("For -3 we get {}.", "2(-3) + 1 = -5"));
  PageEnd();
}

// The pairs of y = 2x + 1 beside the plane, five rows.
constexpr std::array<int, 5> kXs = {0, 1, 2, -2, -3};
constexpr double kBelowPlane = 14;

int YOf(int x) {
  return 2 * x + 1;
}
FigureItem PointFor(int x) {
  return PointItem(x, YOf(x), PairText(x, YOf(x)));
}

void ShowTableBesidePlane() {
  PrintCellTable table;
  table.widthPixels = 200;
  table.heightPixels = 180;
  for (int i = 0; i < 5; ++i)
    for (const double left : {8.0, 52.0}) table.cells.push_back({left, 17.0 + 16.2 * i, 40, 14});
  table.labels = {{8, 2, 40, 14, "x", 12, platform::colour::Black, true},
                  {52, 2, 40, 14, "y", 12, platform::colour::Black, true}};
  CellTable(table, 6.2);
  int cell = 0;
  for (const int x : kXs) {
    picPrintCellPrint(++cell, NumStr(x), platform::colour::Black, kCellSize);
    picPrintCellPrint(++cell, NumStr(YOf(x)), platform::colour::Blue, kCellSize);
  }
}

FigureItem WalkTo(int x) {
  return StepItem(0, 0, x, YOf(x));
}

// The plane with the points of the first pairs; labels keep clear of all that comes, so that they
// keep their places.
void ShowPoints(std::size_t count) {
  ShowPlaneAtRight();
  KeepLabelsClearOf(1, {LineItem(2, 1)});
  for (const int x : kXs) KeepLabelsClearOf(1, {PointItem(x, YOf(x)), WalkTo(x)});
  for (std::size_t i = 0; i < count; ++i) DrawOnPlane(1, {PointFor(kXs[i])});
}
// The way to the last of them.
void WalkToLast(std::size_t count) {
  ShowPoints(count - 1);
  DrawArrows(1, WalkTo(kXs[count - 1]), platform::colour::Blue);
  DrawOnPlane(1, {PointFor(kXs[count - 1])});
}

void PairsBecomePoints() {
  NewScreen();
  SayAt(3, "Each pair becomes a point.", kBesidePlane);
  ShowTableBesidePlane();
  ShowPoints(0);
  SayAt(kBelowPlane, "Two number lines cross at 0.  x tells how far right we go, y how far up.");
  PageEnd();
  ClearBelow(kBelowPlane);
  SayAt(kBelowPlane, "For (0,1) we go 0 right and 1 up.");
  WalkToLast(1);
  Say(R"(\yTry it:\z  Where is (1,3)?)");
  PageEnd();
  WalkToLast(2);
  Say("1 right, then 3 up.");
  PaperBox({R"((1,3) is \bnot\z (3,1), which is 3 right, 1 up.)"});
  PageEnd();
  ClearBelow(kBelowPlane);
  WalkToLast(3);
  SayAt(kBelowPlane, "(2,5) is 2 right, 5 up.");
  Say(R"(\yTry it:\z  Which way is (-2,-3)?)");
  PageEnd();
  WalkToLast(4);
  Say("Negative numbers lead to the left and down:  2 left, 3 down.");
  PageEnd();
}

void PointsBecomeALine() {
  NewScreen();
  SayAt(3, "Here are the points of all five pairs.", kBesidePlane);
  ShowTableBesidePlane();
  ShowPlaneAtRight();
  for (const int x : kXs) DrawOnPlane(1, {PointItem(x, YOf(x))});
  SayAt(kBelowPlane, R"(\yTry it:\z  What do you notice about them?)");
  PageEnd();
  DrawOnPlane(1, {LineItem(2, 1, "y = 2x + 1")}, platform::colour::Blue);
  Say(R"(They lie on one straight line, the \cgraph\z of the equation.  That is why we call it )"
      "linear.");
  PageEnd();
  Say(R"(\yTry it:\z  The line passes through (0.5,2), too.  Is that pair a solution?)");
  PageEnd();
  ClearBelow(kBelowPlane);
  DrawOnPlane(1, {PointItem(0.5, 2, "(0.5,2)")});
  SayAt(kBelowPlane,
        Text("Yes:  {}.  Each point of the line is a solution.", "2(0.5) + 1 = 1 + 1 = 2"));
  Say(R"(\yTry it:\z  And (4,-2), beside the line?)");
  PageEnd();
  DrawOnPlane(1, {PointItem(4, -2, "(4,-2)")});
  Say(Text("No:  {}, not -2.", "2(4) + 1 = 9"));
  CommentBox(
      "The table shows some solutions, the line shows all of them.  It has no end:  there are "
      "infinitely many.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class LinearEquationsInTwoVariables final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }
  bool ChoicesAreWords() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{ManyPairs, OrderedPairs}, {WhatLinearMeans, TryOnTheLeft},
            {TryOnBothSides},          {TableOfPairs},
            {PairsBecomePoints},       {PointsBecomeALine}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawEquation(RandomStream& random);
  std::string MistakeForNo() const;
  std::string MistakeForYes() const;
  bool IsTrueWithLostMinus(bool wanted) const;

  TriedEquation equation_;
  int x_ = 0;  // -6 to 6
  int y_ = 0;
};

// --- Generator ---------------------------------------------------------------

void LinearEquationsInTwoVariables::DrawEquation(RandomStream& random) {
  constexpr int kLargest = 6;
  const int type = random.Rand(1, 3);
  int a = 0;
  int b = 0;
  do {
    a = random.Rand(-kLargest, kLargest);
    b = random.Rand(-kLargest, kLargest);
    x_ = random.Rand(-kLargest, kLargest);
    y_ = random.Rand(-kLargest, kLargest);
  } while (a == 0 || b == 0);  // a letter would be missing
  const bool fits = random.Rnd() < 0.5;
  const int more = fits ? 0 : random.Rand(1, 9);
  if (type == 1)
    equation_ = {{a, b, 0}, {0, 0, a * x_ + b * y_ + more}};
  else if (type == 2)
    equation_ = {{a, 0, 0}, {0, b, a * x_ - b * y_ + more}};
  else  // without b
    equation_ = {{0, 1, 0}, {a, 0, y_ - a * x_ + more}};
}

// Whether the equation comes out as wanted when a minus sign of the pair or a coefficient is
// overlooked.
bool LinearEquationsInTwoVariables::IsTrueWithLostMinus(bool wanted) const {
  const auto comesOut = [&](const TriedEquation& equation, int x, int y) {
    return equation.IsTrueFor(x, y) == wanted;
  };
  if (x_ < 0 && comesOut(equation_, -x_, y_)) return true;
  if (y_ < 0 && comesOut(equation_, x_, -y_)) return true;
  for (int Side::*coefficient : {&Side::x, &Side::y}) {
    for (Side TriedEquation::*side : {&TriedEquation::left, &TriedEquation::right}) {
      TriedEquation other = equation_;
      int& number = (other.*side).*coefficient;
      if (number >= 0) continue;
      number = -number;
      if (comesOut(other, x_, y_)) return true;
    }
  }
  return false;
}

// Of a pair that is a solution.
std::string LinearEquationsInTwoVariables::MistakeForNo() const {
  const bool loses = IsTrueWithLostMinus(false);
  if (loses && y_ < 0) return "loses a minus sign";  // as often as the other mistake
  if (!equation_.IsTrueFor(y_, x_)) return "exchanges x and y";
  return loses ? "loses a minus sign" : kFiller;
}

// Of a pair that is none.
std::string LinearEquationsInTwoVariables::MistakeForYes() const {
  if (equation_.IsTrueFor(y_, x_)) return "exchanges x and y";
  if (IsTrueWithLostMinus(true)) return "loses a minus sign";
  return "does not compare the two sides";
}

void LinearEquationsInTwoVariables::DrawProblem(RandomStream& random) {
  DrawEquation(random);
  problem.question = {"Is the ordered pair " + PairText(x_, y_) + " a solution",
                      "of the following equation?", equation_.Text()};
  problem.kind = choice_kind::FourInOrder;
  problem.Wrong(3, "thinks that x and y must be equal", "Only if x = y");
  problem.Wrong(4, "does not put the numbers into the equation", "Cannot be told");
  if (equation_.IsTrueFor(x_, y_)) {
    problem.Wrong(2, MistakeForNo(), "No");
    problem.Right(1, "Yes");
  } else {
    problem.Wrong(1, MistakeForYes(), "Yes");
    problem.Right(2, "No");
  }
}

// --- Problem page ------------------------------------------------------------

void LinearEquationsInTwoVariables::ShowProblem() {
  SayAt(5, problem.question[0] + " " + problem.question[1]);
  ShowAt(8.5, problem.question[2], 13);
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 19});
}

// --- Worked explanation ------------------------------------------------------

void LinearEquationsInTwoVariables::ExplainProblem() {
  ProblemBanner();
  SayAt(4.5, problem.question[0] + " " + problem.question[1]);
  ShowAt(7, problem.question[2], 13);
  WhiteBox({.row = 9, .rows = 11});
  SayPairMeans(x_, y_);
  SayInBox("We put both numbers into the equation.");
  PageEnd();
  SayInBoxAnew("");
  SayEvaluation(equation_, x_, y_);
  PageEnd();
  SayVerdict(equation_, x_, y_);
  ConcludeAt(21.5, problem);
}

const LessonRegistration<LinearEquationsInTwoVariables> kRegistration(
    "Linear Equations in Two Variables");

}  // namespace
}  // namespace course
