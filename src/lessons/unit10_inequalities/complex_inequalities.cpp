// The student can write one inequality for a graph with two ends: a segment of the number line, or
// two arrows that point away from each other.
//
// The right choice stands beside four misreadings of the same two ends, so that every box carries
// both numbers and only symbols and "or" tell them apart.
#include "lessons/families/graphs/interval_figure.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

constexpr double kOpenEnd = 0.1;  // added to a value whose point is left out
constexpr double kOpenShare = 0.5;

constexpr double kProblemGraphRow = 7.6;
constexpr double kExplanationGraphRow = 5.5;
constexpr double kBelowExplainedGraph = 9;
constexpr double kGraphCol = 3;

// --- Texts of inequalities ---------------------------------------------------

std::string Number(double end) {
  return NumStr(WholeOf(end));
}

std::string Less(double end) {
  return IsOpen(end) ? "<" : tutor::LessOrEqual;
}

std::string Greater(double end) {
  return IsOpen(end) ? ">" : tutor::GreaterOrEqual;
}

std::string AtLeft(double low) {
  return Number(low) + " " + Less(low) + " x";
}

std::string AtRight(double high) {
  return "x " + Less(high) + " " + Number(high);
}

std::string FromLeft(double low) {
  return "x " + Greater(low) + " " + Number(low);
}

// "-3 < x <= 5".
std::string Between(double low, double high) {
  return AtLeft(low) + AtRight(high).substr(1);
}

// "x < -3 or x >= 5".
std::string Outside(double low, double high) {
  return AtRight(low) + " or " + FromLeft(high);
}

// The same end with the other circle.
double Flipped(double end) {
  return IsOpen(end) ? WholeOf(end) : end + kOpenEnd;
}

// The second of two inequalities slides over the "and" until both share their x.
void JoinAtX(double row, double low, double high) {
  constexpr int kCol = 10;
  const std::string gap = " and ";
  const std::string left = AtLeft(low);
  const std::string right = AtRight(high);
  ShowAt(row, left + gap + right, kCol);
  PageEnd();
  const double rightCol = kCol + static_cast<double>(left.size() + gap.size());
  SlideLeft({row, rightCol, static_cast<double>(right.size())},
            static_cast<double>(gap.size()) + 1);
}

// --- Teaching screen, in eight parts -----------------------------------------

constexpr double kGraphRow = 3;  // where a page begins with its graph
constexpr double kBelowGraph = 6.5;

void ShowSegment(double low, double high, double row = kGraphRow, int index = 1) {
  DrawNumberLine(row, kGraphCol, index);
  DrawGraphOnLine(low, high, index);
}

void ShowTwoArrows(double low, double high, double row = kGraphRow, int index = 1) {
  DrawNumberLine(row, kGraphCol, index);
  DrawGraphOnLine(low, kFarLeft, index);
  DrawGraphOnLine(high, kFarRight, index);
}

void EitherWayRound() {
  NewScreen();
  DrawNumberLine(kGraphRow, kGraphCol);
  DrawGraphOnLine(-3 + kOpenEnd, kFarRight);
  SayAt(kBelowGraph, R"(\yTry it:\z  Which inequality has this graph?)");
  PageEnd();
  Say(R"(x is greater than -3:  \yx > -3\z)");
  Say(R"(Or we begin with -3.  It is less than x:  \y-3 < x\z)");
  PageEnd();
  Say(R"(x > -3 says \ythe same\z as -3 < x.  The wide side of the symbol is at x both times: x )"
      "is greater.");
  PageEnd();
  Say(Text(R"(\yTry it:\z  How do we write {} with 4 on the left?)",
           "x " + tutor::LessOrEqual + " 4"));
  PageEnd();
  Say(Text("We write {}.  4 is greater than x or equal to it.",
           "4 " + tutor::GreaterOrEqual + " x"));
  PageEnd();
}

void BothAtOnce() {
  NewScreen();
  SayAt(2.5, R"(A \ccompound inequality\z joins two simple inequalities.  It is also called a )"
             R"(\ccomplex inequality\z.)");
  DrawNumberLine(7.4, kGraphCol, 1);
  DrawGraphOnLine(-3 + kOpenEnd, kFarRight, 1);
  ShowAt(6.2, "x > -3", 5);
  PageEnd();
  ShowAt(10.6, "x " + tutor::LessOrEqual + " 4", 5);
  DrawNumberLine(11.8, kGraphCol, 2);
  DrawGraphOnLine(4, kFarLeft, 2);
  PageEnd();
  SayAt(15.2, R"(\yTry it:\z  Which numbers do \yboth\z cover?)");
  PageEnd();
  ShowAt(17, "x > -3 and x " + tutor::LessOrEqual + " 4", 5);
  ShowSegment(-3 + kOpenEnd, 4, 18.2, 3);
  SayAt(22, "They cover the numbers between -3 and 4, and 4 itself.");
  PageEnd();
}

void OneX() {
  NewScreen();
  ShowSegment(-3 + kOpenEnd, 4);
  SayAt(kBelowGraph, "x > -3 says the same as -3 < x.  So we write:");
  JoinAtX(9.5, -3 + kOpenEnd, 4);
  Say("Now x is written only once.  We read:  -3 is less than x, and x is less than or equal to "
      "4.");
  PageEnd();
  Say(R"(\yTry it:\z  How do we write "x is greater than 2 and less than 6" with one x?)");
  PageEnd();
  Say(R"(x stands in the middle:  \y2 < x < 6\z.  2 is less than x, and x is less than 6.)");
  PageEnd();
}

void ReadingTheEnds() {
  const std::string orEqual = tutor::LessOrEqual;
  NewScreen();
  ShowSegment(-3 + kOpenEnd, 4);
  ShowAt(kBelowGraph, Between(-3 + kOpenEnd, 4), 14);
  SayAt(8.5, R"(This graph is in \yone piece\z.  It shows the numbers \ybetween\z -3 and 4.)");
  PageEnd();
  Say(R"(The \yopen\z circle leaves -3 out, so the symbol beside -3 is \y<\z.)");
  Say(Text(R"(The \yfilled\z circle takes 4 in, so the symbol beside 4 is \y{}\z.)", orEqual));
  PageEnd();
  Say(Text(R"(\yTry it:\z  What changes in {} when both circles are filled?)",
           Between(-3 + kOpenEnd, 4)));
  PageEnd();
  Say(Text(R"(Now -3 is taken in, too:  \y{}\z.)", Between(-3, 4)));
  PageEnd();
}

void WhichWay() {
  NewScreen();
  ShowSegment(-3 + kOpenEnd, 4);
  ShowAt(kBelowGraph, Between(-3 + kOpenEnd, 4), 14);
  SayAt(8.5,
        "The smaller number stands on the left, as it does on the number line.  Both symbols "
        "point to the left.");
  PageEnd();
  Say(R"(\yWatch out:\z  Do not reverse the symbols.)");
  PaperBox({Text(R"(\r-3 > x {} 4\z)", tutor::GreaterOrEqual)});
  Say(R"(\yTry it:\z  Is there a number that is less than -3 and also 4 or more?)");
  PageEnd();
  Say("No.  A number less than -3 is always less than 4.  The inequality on paper has no graph.");
  PageEnd();
}

void OneOrTheOther() {
  NewScreen();
  ShowTwoArrows(-2, 3 + kOpenEnd);
  SayAt(kBelowGraph, R"(This graph is in \ytwo pieces\z.  What does each arrow say?)");
  PageEnd();
  Say(Text("left arrow:   {}", AtRight(-2)), {.col = 3});
  AddLine("right arrow:  x > 3", {.col = 3});
  PageEnd();
  Say(R"(A number is on the graph when one arrow or the other covers it.  We join the two with )"
      R"(the word \cor\z:)");
  ShowAt(NextRow() + 0.5, Outside(-2, 3 + kOpenEnd), 12);
  PageEnd();
  SayAt(18, R"(\yTry it:\z  Why do we not write "and" here?)");
  PageEnd();
  Say(Text(R"(No number is both {} and {}.  "And" would leave us with no number at all.)",
           AtRight(-2), "x > 3"));
  PageEnd();
}

void TryNumbers() {
  const std::string orEqual = tutor::LessOrEqual;
  NewScreen();
  ShowTwoArrows(-2, 3 + kOpenEnd);
  ShowAt(kBelowGraph, Outside(-2, 3 + kOpenEnd), 12);
  SayAt(8.5, R"(\yTry it:\z  Is 0 on the graph?  Is 5?)");
  PageEnd();
  Say(Text(R"(0 is not.  {} is false, and 0 > 3 is \yfalse, too\z.)", "0 " + orEqual + " -2"));
  Say(Text(R"(5 is.  {} is false, but 5 > 3 is true, and \yone of the two is enough\z.)",
           "5 " + orEqual + " -2"));
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} shows the numbers between the arrows.  This graph leaves them )"
           "out, as it does 0.",
           Between(-2, 3 + kOpenEnd)));
  PageEnd();
}

void WriteOneYourself() {
  NewScreen();
  ShowSegment(-5, 1 + kOpenEnd);
  SayAt(kBelowGraph, R"(\yTry it:\z  Which inequality has this graph?)");
  PageEnd();
  Say("x is in the middle of one piece.  -5 is taken in and 1 is left out:");
  ShowAt(NextRow() + 0.5, Between(-5, 1 + kOpenEnd), 14);
  PageEnd();
  ShowTwoArrows(kOpenEnd, 6, 13.4, 2);
  SayAt(17, R"(\yTry it:\z  And which one has this graph?)");
  PageEnd();
  Say(R"(Two pieces need the word "or".  0 is left out and 6 is taken in:)");
  ShowAt(NextRow() + 0.5, Outside(kOpenEnd, 6), 12);
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class ComplexInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{EitherWayRound, BothAtOnce, OneX, ReadingTheEnds, WhichWay, OneOrTheOther, TryNumbers,
             WriteOneYourself}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawEnds(RandomStream& random);
  void BeginExplanation() const;
  void ExplainPieces();
  void ExplainEnd(double end, bool isLow);
  void JoinEnds();
  void CheckEnds();

  bool union_ = false;  // two arrows; otherwise the segment between the ends
  double low_ = 0;      // -6 to 6; + 0.1 when the point is left out
  double high_ = 0;     // above low_, up to 7; the same
};

// --- Generator ---------------------------------------------------------------

void ComplexInequalities::DrawEnds(RandomStream& random) {
  int low = 0;
  int high = 0;
  if (union_) {
    do {
      low = random.Rand(-6, 6);
      high = random.Rand(-6, 6);
    } while (low == high);  // two arrows from one point would leave out one number or none
    if (low > high) std::swap(low, high);
  } else {
    low = random.Rand(-6, 5);
    high = random.Rand(low + 1, 7);
  }
  low_ = low;
  if (random.Rnd() < kOpenShare) low_ += kOpenEnd;
  high_ = high;
  if (random.Rnd() < kOpenShare) high_ += kOpenEnd;
}

// The five choices are five different sets of numbers, whatever the ends.
void ComplexInequalities::DrawProblem(RandomStream& random) {
  union_ = random.Rnd() < 0.5;
  DrawEnds(random);
  const bool lowMisread = random.Rnd() < 0.5;

  problem.question = {"Which inequality represents the graph below?"};
  problem.kind = choice_kind::FiveShuffled;
  const auto right = union_ ? Outside : Between;
  problem.Right(1, right(low_, high_));
  problem.Wrong(2, "reads both circles the wrong way", right(Flipped(low_), Flipped(high_)));
  if (lowMisread)
    problem.Wrong(3, "reads the left circle the wrong way", right(Flipped(low_), high_));
  else
    problem.Wrong(3, "reads the right circle the wrong way", right(low_, Flipped(high_)));
  if (union_) {
    problem.Wrong(4, "takes the numbers between the arrows", Between(low_, high_));
    problem.Wrong(5, "reverses both symbols", FromLeft(low_) + " or " + AtRight(high_));
  } else {
    problem.Wrong(4, "takes the numbers outside the ends", Outside(low_, high_));
    problem.Wrong(
        5, "reverses both symbols",
        Number(low_) + " " + Greater(low_) + " x " + Greater(high_) + " " + Number(high_));
  }
  if (union_)
    problem.figure = {GraphItem(low_, kFarLeft), GraphItem(high_, kFarRight)};
  else
    problem.figure = {GraphItem(low_, high_)};
}

// --- Problem page ------------------------------------------------------------

void ComplexInequalities::ShowProblem() {
  SayAt(4.5, problem.question[0], {.lastCol = 30});
  DrawNumberLine(kProblemGraphRow, kGraphCol);
  DrawOnLine(problem.figure);
  ShowAnswersInOneColumn(problem, {.row = 11.5});
}

// --- Worked explanation ------------------------------------------------------

void ComplexInequalities::ExplainProblem() {
  BeginExplanation();
  ExplainPieces();
  ExplainEnd(low_, true);
  ExplainEnd(high_, false);
  NewScreen();
  BeginExplanation();
  JoinEnds();
  CheckEnds();
  Conclude(problem);
}

void ComplexInequalities::BeginExplanation() const {
  ProblemBanner();
  SayAt(4, "Find the inequality.");
  DrawNumberLine(kExplanationGraphRow, kGraphCol);
  DrawOnLine(problem.figure);
}

void ComplexInequalities::ExplainPieces() {
  SayAt(kBelowExplainedGraph, "Is the graph in one piece or in two?");
  PageEnd();
  AddLine(Text(union_ ? R"(In two: an arrow to the \yleft\z of {} and one to the \yright\z of {}.)"
                      : R"(In one: it shows the numbers \ybetween\z {} and {}.)",
               Number(low_), Number(high_)));
  PageEnd();
}

// What the circle of an end says, and the simple inequality that follows from it.
void ComplexInequalities::ExplainEnd(double end, bool isLow) {
  const bool less = isLow == union_;
  Say(Text(IsOpen(end)
               ? R"(The \yopen\z circle at {} leaves it out.  x is {} than {}:)"
               : R"(The \yfilled\z circle at {} takes it in.  x is {} than or equal to {}:)",
           Number(end), Words{less ? "less" : "greater"}, Number(end)));
  if (less)
    AddLine(AtRight(end), {.col = 5});
  else if (union_)
    AddLine(FromLeft(end), {.col = 5});
  else
    AddLine(Text("{} says the same as {}.", FromLeft(end), AtLeft(end)), {.col = 5});
  PageEnd();
}

void ComplexInequalities::JoinEnds() {
  constexpr double kJoinedRow = 12;
  if (union_) {
    SayAt(kBelowExplainedGraph,
          R"(For every number of the graph one inequality \yor\z the other is true:)");
    ShowAt(kJoinedRow, problem.choices[1].text, 10);
  } else {
    SayAt(kBelowExplainedGraph,
          R"(For every number of the graph \yboth\z are true.  We write x only once:)");
    JoinAtX(kJoinedRow, low_, high_);
  }
  PageEnd();
}

// Each end in place of x: the statement is true exactly when the circle is filled.
void ComplexInequalities::CheckEnds() {
  Say(R"(\yCheck:\z  We put each end in place of x.)");
  for (const double end : {low_, high_}) {
    std::string statement = problem.choices[1].text;
    for (std::size_t at; (at = statement.find('x')) != std::string::npos;)
      statement.replace(at, 1, Number(end));
    ShowAt(NextRow() + 0.5, statement);
    AddLine(
        IsOpen(end) ? "is false, and the circle is open." : "is true, and the circle is filled.",
        {.col = 3});
    PageEnd();
  }
}

const LessonRegistration<ComplexInequalities> kRegistration("Complex Inequalities");

}  // namespace
}  // namespace course
