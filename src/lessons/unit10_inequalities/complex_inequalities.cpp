// The student can write one inequality for a graph with two ends: a segment of the number line, or
// two arrows that point away from each other.
//
// The right choice stands beside four misreadings of the same two ends, so that every box carries
// both numbers and only symbols and "or" tell them apart.
#include "lessons/families/graphs/interval_figure.h"
#include "lessons/families/graphs/interval_text.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

constexpr double kOpenShare = 0.5;

constexpr double kProblemGraphRow = 7.6;
constexpr double kExplanationGraphRow = 5.5;
constexpr double kBelowExplainedGraph = 9;
constexpr double kGraphCol = 3;

constexpr double kJoinedCol = 10;

// --- Teaching screen, in nine parts -----------------------------------------

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
  Say(R"(Both say \ythe same\z:  the wide side of the symbol is at x.)");
  Say(Text(R"(\yTry it:\z  How do we write {} with 4 on the left?)",
           "x " + tutor::LessOrEqual + " 4"));
  PageEnd();
  Say(Text("We write {}.  4 is greater than or equal to x.", "4 " + tutor::GreaterOrEqual + " x"));
  PageEnd();
}

void BothAtOnce() {
  NewScreen();
  SayAt(2.5, R"(A \ccompound inequality\z, or \ccomplex inequality\z, joins two simple ones with )"
             R"(the word "\yand\z" or the word "\yor\z".)");
  DrawNumberLine(7.4, kGraphCol, 1);
  DrawGraphOnLine(-3 + kOpenEnd, kFarRight, 1);
  ShowAt(6.2, "x > -3", 5);
  PageEnd();
  ShowAt(10.6, "x " + tutor::LessOrEqual + " 4", 5);
  DrawNumberLine(11.8, kGraphCol, 2);
  DrawGraphOnLine(4, kFarLeft, 2);
  SayAt(15.2, R"(\yTry it:\z  Which numbers do \yboth\z cover?)");
  PageEnd();
  ShowAt(17, "x > -3 and x " + tutor::LessOrEqual + " 4", 5);
  ShowSegment(-3 + kOpenEnd, 4, 18.2, 3);
  SayAt(22, "They cover the numbers between -3 and 4, and 4 itself.");
  PageEnd();
}

void OneX() {
  constexpr double kPairRow = 9;
  NewScreen();
  ShowSegment(-3 + kOpenEnd, 4);
  SayAt(kBelowGraph, "x > -3 says the same as -3 < x.  So we write:");
  ShowPair({kPairRow, kJoinedCol}, -3 + kOpenEnd, 4);
  SayAt(12.5, R"(\yTry it:\z  How do we write x only once?)");
  PageEnd();
  JoinPair({kPairRow, kJoinedCol}, 2, -3 + kOpenEnd, 4);
  SayAt(14,
        "The two share their x.  We read:  -3 is less than x, and x is less than or equal to "
        "4.");
  PageEnd();
  Say(R"(\yTry it:\z  How do we write "x is greater than 2 and less than 6" with one x?)");
  PageEnd();
  Say(R"(x stands in the middle:  \y2 < x < 6\z.  2 is less than x, and x is less than 6.)");
  PageEnd();
}

void ReadingTheEnds() {
  NewScreen();
  ShowSegment(-3 + kOpenEnd, 4);
  ShowAt(kBelowGraph, Between(-3 + kOpenEnd, 4), 14);
  SayAt(7.8, R"(This graph is in \yone piece\z.  It shows the numbers \ybetween\z -3 and 4.)");
  SayAt(10.1, R"(\yTry it:\z  Which end is left out?)");
  PageEnd();
  SayAt(11.4, R"(The \yopen\z circle leaves -3 out, so the symbol beside -3 is \y<\z.)");
  SayAt(13.7, Text(R"(The \yfilled\z circle takes 4 in, so the symbol beside 4 is \y{}\z.)",
                   tutor::LessOrEqual));
  PageEnd();
  SayAt(16, Text(R"(\yTry it:\z  What changes in {} when both circles are filled?)",
                 Between(-3 + kOpenEnd, 4)));
  PageEnd();
  ShowSegment(-3, 4, 18.5, 2);
  SayAt(22.2, Text(R"(Now -3 is taken in, too:  \y{}\z.)", Between(-3, 4)));
  PageEnd();
}

void WhichWay() {
  const double low = -3 + kOpenEnd;
  NewScreen();
  ShowSegment(low, 4);
  ShowAt(kBelowGraph, Between(low, 4), 14);
  SayAt(8.5,
        "The smaller number stands on the left, as it does on the number line.  Both symbols "
        "point to the left.");
  PageEnd();
  Say(R"(\yWatch out:\z  With the smaller number on the left, no symbol is reversed.)");
  PaperBox({R"(\r)" + BetweenReversed(low, 4) + R"(\z)"});
  Say(R"(\yTry it:\z  Which number makes this true?)");
  PageEnd();
  Say(Text("None.  A number less than -3 is always less than 4.  So {} has no graph.",
           BetweenReversed(low, 4)));
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
  Say(Text(R"(\yWatch out:\z  {} is one piece.  It covers 0, and this graph does not.)",
           Between(-2, 3 + kOpenEnd)));
  PageEnd();
}

void EveryNumber() {
  NewScreen();
  ShowTwoArrows(-2, 3 + kOpenEnd);
  ShowAt(kBelowGraph, Outside(-2, 3 + kOpenEnd), 12);
  SayAt(8.5, "Someone reverses both symbols:");
  PaperBox({R"(\r)" + OutsideReversed(-2, 3 + kOpenEnd) + R"(\z)"});
  Say(R"(\yTry it:\z  Which numbers does the inequality on paper cover?)");
  PageEnd();
  DrawNumberLine(15, kGraphCol, 2);
  DrawOnLine({GraphItem(-2, kFarRight), GraphItem(3 + kOpenEnd, kFarLeft)}, 2);
  SayAt(18.5, R"(\yEvery number\z is -2 or greater, or less than 3.)");
  Say(R"(\yWatch out:\z  The symbols of two arrows are not reversed either.)");
  PageEnd();
}

void WriteOneYourself() {
  NewScreen();
  ShowSegment(-5, 1 + kOpenEnd);
  SayAt(kBelowGraph, R"(\yTry it:\z  Which inequality has this graph?)");
  PageEnd();
  Say("One piece:  x stands in the middle.  -5 is taken in and 1 is left out:");
  ShowAt(NextRow() + 0.5, Between(-5, 1 + kOpenEnd), 14);
  PageEnd();
  ShowTwoArrows(kOpenEnd, 6, 14.3, 2);
  SayAt(17.8, R"(\yTry it:\z  And which one has this graph?)");
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
             EveryNumber, WriteOneYourself}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;
  MistakesFigure FigureOfMistakes() override;

  void DrawEnds(RandomStream& random);
  void BeginExplanation() const;
  void ExplainPieces();
  void ExplainEnd(double end, bool isLow);
  void JoinEnds();
  std::string InPlaceOfX(const std::string& number) const;
  void CheckOneBetween();
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
    problem.Wrong(5, "reverses both symbols", OutsideReversed(low_, high_));
  } else {
    problem.Wrong(4, "takes the numbers outside the ends", Outside(low_, high_));
    problem.Wrong(5, "reverses both symbols", BetweenReversed(low_, high_));
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
  NewScreen();
  BeginExplanation();
  CheckOneBetween();
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
               EndText(low_), EndText(high_)));
  PageEnd();
}

// What the circle of an end says, and the simple inequality that follows from it.
void ComplexInequalities::ExplainEnd(double end, bool isLow) {
  const bool less = isLow == union_;
  Say(Text(IsOpen(end)
               ? R"(The \yopen\z circle at {} leaves it out.  x is {} than {}:)"
               : R"(The \yfilled\z circle at {} takes it in.  x is {} than or equal to {}:)",
           EndText(end), Words{less ? "less" : "greater"}, EndText(end)));
  if (less)
    AddLine(AtRight(end), {.col = 5});
  else if (union_)
    AddLine(FromLeft(end), {.col = 5});
  else
    AddLine(Text("{} says the same as {}.", FromLeft(end), AtLeft(end)), {.col = 5});
  PageEnd();
}

void ComplexInequalities::JoinEnds() {
  constexpr double kPairRow = 12;
  constexpr double kDrop = 4;
  if (union_) {
    SayAt(kBelowExplainedGraph,
          R"(For every number of the graph one inequality \yor\z the other is true:)");
    ShowAt(kPairRow, problem.choices[1].text, kJoinedCol);
  } else {
    SayAt(kBelowExplainedGraph, R"(For every number of the graph \yboth\z are true:)");
    ShowPair({kPairRow, kJoinedCol}, low_, high_);
    PageEnd();
    JoinPair({kPairRow, kJoinedCol}, kDrop, low_, high_);
    SayAt(kPairRow + kDrop / 2, "We write x only once:");
  }
  PageEnd();
}

// The right choice with a number in place of each x.
std::string ComplexInequalities::InPlaceOfX(const std::string& number) const {
  std::string statement = problem.choices[1].text;
  for (std::size_t at; (at = statement.find('x')) != std::string::npos;)
    statement.replace(at, 1, number);
  return statement;
}

// 0 if it can be, else the next whole number, or the half one when there is none.
std::string NumberBetween(int low, int high) {
  if (low < 0 && high > 0) return "0";
  if (high - low > 1) return NumStr(low + 1);
  return low < 0 ? "-" + NumStr(-low - 1) + ".5" : NumStr(low) + ".5";
}

// A number between the ends, which tells one piece from two, and reversed symbols from right ones.
void ComplexInequalities::CheckOneBetween() {
  const std::string between = NumberBetween(WholeOf(low_), WholeOf(high_));
  ShowAt(kBelowExplainedGraph, problem.choices[1].text, kJoinedCol);
  SayAt(11, Text(R"(\yCheck:\z  {} is {}on the graph.)", between, Words{union_ ? "not " : ""}));
  AddLine(InPlaceOfX(between) + (union_ ? "  is false." : "  is true."), {.col = 3});
  PageEnd();
}

// Each end in place of x: the statement is true exactly when the circle is filled.
void ComplexInequalities::CheckEnds() {
  Say("Then we put each end in place of x.");
  for (const double end : {low_, high_}) {
    ShowAt(NextRow() + 0.5, InPlaceOfX(EndText(end)));
    AddLine(
        IsOpen(end) ? "is false, and the circle is open." : "is true, and the circle is filled.",
        {.col = 3});
    PageEnd();
  }
}

MistakesFigure ComplexInequalities::FigureOfMistakes() {
  constexpr double kRows = 3.5;
  return {kRows, [this](double row) {
            DrawNumberLine(row - 0.5, kGraphCol);
            DrawOnLine(problem.figure);
          }};
}

const LessonRegistration<ComplexInequalities> kRegistration("Complex Inequalities");

}  // namespace
}  // namespace course
