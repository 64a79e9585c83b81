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

// "-3 < x <= 5".
std::string Between(double low, double high) {
  return AtLeft(low) + AtRight(high).substr(1);
}

// "x < -3 or x >= 5".
std::string Outside(double low, double high) {
  return AtRight(low) + " or x " + Greater(high) + " " + Number(high);
}

// The same end with the other circle.
double Flipped(double end) {
  return IsOpen(end) ? WholeOf(end) : end + kOpenEnd;
}

// --- Teaching screen, in five parts ------------------------------------------

void BothAtOnce() {
  NewScreen();
  Locate(3, 1);
  WordWrap(R"(A \ccomplex inequality\z joins two simple inequalities.)");
  Locate(5.7, 5);
  isPrint("x > -3");
  DrawNumberLine(6.9, kGraphCol, 1);
  DrawGraphOnLine(-3 + kOpenEnd, kFarRight, 1);
  PageEnd();
  Locate(10.1, 5);
  isPrint("x " + tutor::LessOrEqual + " 4");
  DrawNumberLine(11.3, kGraphCol, 2);
  DrawGraphOnLine(4, kFarLeft, 2);
  PageEnd();
  Locate(14.8, 1);
  WordWrap(R"(Which numbers do \yboth\z arrows cover?)");
  PageEnd();
  Locate(16.2, 5);
  isPrint("x > -3 and x " + tutor::LessOrEqual + " 4");
  DrawNumberLine(17.4, kGraphCol, 3);
  DrawGraphOnLine(-3 + kOpenEnd, 4, 3);
  PageEnd();
  Locate(21, 1);
  WordWrap("Both at once, with x in the middle:");
  Locate(22.5, 14);
  WordWrap(R"(\y-3 < x )" + tutor::LessOrEqual + R"( 4\z)");
  PageEnd();
}

void ReadingTheEnds() {
  NewScreen();
  DrawNumberLine(3, kGraphCol);
  DrawGraphOnLine(-3 + kOpenEnd, 4);
  Locate(6.5, 14);
  isPrint("-3 < x " + tutor::LessOrEqual + " 4");
  Locate(8, 1);
  WordWrap(R"(The graph is one piece.  It holds the numbers \ybetween\z -3 and 4.)");
  PageEnd();
  isPrint();
  WordWrap(R"(The \yopen\z circle leaves -3 out, so the symbol beside -3 is \y<\z.)");
  PageEnd();
  isPrint();
  WordWrap(R"(The \yfilled\z circle takes 4 in, so the symbol beside 4 is \y)" +
           tutor::LessOrEqual + R"(\z.)");
  PageEnd();
  isPrint();
  WordWrap(
      "The smaller number stands on the left, as it does on the number line, and both symbols "
      "point to the left.");
  PageEnd();
  isPrint();
  WordWrap(R"(\rWatch out:\z  4 < x < -3 has no graph.  No number is greater than 4 and also less )"
           "than -3.");
  PageEnd();
}

// x <= -2 or x > 3.
void ShowTwoArrows() {
  DrawNumberLine(3, kGraphCol);
  DrawGraphOnLine(-2, kFarLeft);
  DrawGraphOnLine(3 + kOpenEnd, kFarRight);
}

void OneOrTheOther() {
  const std::string left = "x " + tutor::LessOrEqual + " -2";
  NewScreen();
  ShowTwoArrows();
  Locate(6.5, 1);
  WordWrap(R"(This graph is in \ytwo pieces\z.  What does each arrow say?)");
  PageEnd();
  isPrint();
  isPrint("  left arrow:   " + left);
  isPrint("  right arrow:  x > 3");
  PageEnd();
  isPrint();
  WordWrap(
      "A number is on the graph when one arrow or the other covers it.  We join the two with "
      R"(the word \cor\z:)");
  Locate(17, 13);
  WordWrap(R"(\y)" + left + R"( or x > 3\z)");
  PageEnd();
}

void TryNumbers() {
  const std::string left = "x " + tutor::LessOrEqual + " -2";
  NewScreen();
  ShowTwoArrows();
  Locate(6.5, 13);
  isPrint(left + " or x > 3");
  Locate(8.5, 1);
  WordWrap("Is 0 on the graph?  Is 5?");
  PageEnd();
  isPrint();
  WordWrap("0 is not.  0 " + tutor::LessOrEqual + R"( -2 is false, and 0 > 3 is \yfalse too\z.)");
  PageEnd();
  isPrint();
  WordWrap("5 is.  5 " + tutor::LessOrEqual +
           R"( -2 is false, but 5 > 3 is true, and \yone of the two is enough\z.)");
  PageEnd();
  isPrint();
  WordWrap(R"(\rWatch out:\z  two pieces are never written as one.  3 < x )" + tutor::LessOrEqual +
           " -2 is true for no number at all.");
  PageEnd();
}

void WriteOneYourself() {
  NewScreen();
  DrawNumberLine(3, kGraphCol, 1);
  DrawGraphOnLine(-5, 1 + kOpenEnd, 1);
  Locate(6.5, 1);
  WordWrap("Which inequality has this graph?");
  PageEnd();
  isPrint();
  WordWrap("x is in the middle of one piece.  -5 is taken in and 1 is left out:");
  isPrint();
  isPrint("              -5 " + tutor::LessOrEqual + " x < 1");
  PageEnd();
  DrawNumberLine(13.4, kGraphCol, 2);
  DrawGraphOnLine(kOpenEnd, kFarLeft, 2);
  DrawGraphOnLine(6, kFarRight, 2);
  Locate(17, 1);
  WordWrap("And which inequality has this one?");
  PageEnd();
  isPrint();
  WordWrap(R"(Two pieces need the word "or".  0 is left out and 6 is taken in:)");
  isPrint();
  isPrint("            x < 0 or x " + tutor::GreaterOrEqual + " 6");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class ComplexInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{BothAtOnce, ReadingTheEnds, OneOrTheOther, TryNumbers, WriteOneYourself}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawEnds(RandomStream& random);
  void DescribeFigure();
  void DrawGraph() const;
  void BeginExplanation() const;
  void ExplainEnd(double end, bool isLow);
  void JoinParts();
  void JoinArrows();
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

void ComplexInequalities::DescribeFigure() {
  const double lowClosed = IsOpen(low_) ? 0 : 1;
  const double highClosed = IsOpen(high_) ? 0 : 1;
  const int low = WholeOf(low_);
  const int high = WholeOf(high_);
  if (union_) {
    problem.figure = {{"ray", {{"from", low}, {"closed", lowClosed}, {"direction", -1}}},
                      {"ray", {{"from", high}, {"closed", highClosed}, {"direction", 1}}}};
  } else {
    problem.figure = {
        {"segment",
         {{"from", low}, {"to", high}, {"fromClosed", lowClosed}, {"toClosed", highClosed}}}};
  }
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
    problem.Wrong(5, "turns the symbols around",
                  "x " + Greater(low_) + " " + Number(low_) + " or " + AtRight(high_));
  } else {
    problem.Wrong(4, "takes the numbers outside the ends", Outside(low_, high_));
    problem.Wrong(
        5, "turns the symbols around",
        Number(low_) + " " + Greater(low_) + " x " + Greater(high_) + " " + Number(high_));
  }
  DescribeFigure();
}

// --- Problem page ------------------------------------------------------------

void ComplexInequalities::DrawGraph() const {
  DrawNumberLine(OnProblemPage() ? kProblemGraphRow : kExplanationGraphRow, kGraphCol);
  DrawOnLine(problem.figure);
}

void ComplexInequalities::ShowProblem() {
  Locate(4.8, 1);
  WordWrapNarrow(problem.question[0], 30);
  DrawGraph();
  picAnswerSetParameters(1, 11.5, 9, 0, 0, 21, 44, 12, -3);
}

// --- Worked explanation ------------------------------------------------------

void ComplexInequalities::BeginExplanation() const {
  ProblemBanner();
  Locate(4.1, 1);
  isPrint("Find the inequality.");
  DrawGraph();
}

// What the circle of an end says, and the simple inequality that follows from it.
void ComplexInequalities::ExplainEnd(double end, bool isLow) {
  const std::string number = Number(end);
  const bool less = isLow == union_;
  isPrint();
  WordWrap("The circle at " + number + " is " +
           (IsOpen(end) ? R"(\yopen\z, so )" + number + " is left out"
                        : R"(\yfilled\z, so )" + number + " is taken in") +
           ".  x is " + (less ? "less" : "greater") + " than " +
           (IsOpen(end) ? "" : "or equal to ") + number + ":");
  if (union_)
    isPrint("    x " + (less ? Less(end) : Greater(end)) + " " + number);
  else
    isPrint("    " + (isLow ? AtLeft(end) : AtRight(end)));
  PageEnd();
}

// The second inequality slides onto the first one until both share their x.
void ComplexInequalities::JoinParts() {
  constexpr int kRow = 12;
  constexpr int kCol = 10;
  constexpr int kGap = 5;  // " and "
  const std::string left = AtLeft(low_);
  const std::string right = AtRight(high_);
  const int rightCol = kCol + static_cast<int>(left.size()) + kGap;
  Locate(9.5, 1);
  WordWrap(R"(For every number of the graph \yboth\z inequalities are true:)");
  Locate(kRow, kCol);
  isPrint(left + " and " + right);
  PageEnd();
  AnimHere(kRow, rightCol, static_cast<double>(right.size()), 1, 3, kGap + 1, 50, 1);
  Locate(kRow + 2, 1);
  WordWrap("Now x is written only once.");
  PageEnd();
}

void ComplexInequalities::JoinArrows() {
  Locate(9.5, 1);
  WordWrap(R"(For every number of the graph one inequality \yor\z the other is true:)");
  Locate(12, 10);
  isPrint(problem.choices[1].text);
  PageEnd();
}

// Each end in place of x: the statement is true just when the circle is filled.
void ComplexInequalities::CheckEnds() {
  Locate(14, 1);
  WordWrap("We check the two ends in place of x.");
  for (const double end : {low_, high_}) {
    std::string statement = problem.choices[1].text;
    for (std::size_t at; (at = statement.find('x')) != std::string::npos;)
      statement.replace(at, 1, Number(end));
    isPrint();
    isPrint("  " + statement);
    isPrint(IsOpen(end) ? "  is false, and the circle is open."
                        : "  is true, and the circle is filled.");
    PageEnd();
  }
}

void ComplexInequalities::ExplainProblem() {
  BeginExplanation();
  Locate(9, 1);
  WordWrap(union_ ? R"(The graph is in two pieces: an arrow to the \yleft\z of )" + Number(low_) +
                        R"( and one to the \yright\z of )" + Number(high_) + "."
                  : R"(The graph is one piece.  It holds the numbers \ybetween\z )" + Number(low_) +
                        " and " + Number(high_) + ".");
  PageEnd();
  ExplainEnd(low_, true);
  ExplainEnd(high_, false);
  NewScreen();
  BeginExplanation();
  if (union_)
    JoinArrows();
  else
    JoinParts();
  CheckEnds();
  Locate(21.5, 1);
  isPrint("The inequality of the graph is:");
  Locate(23, 10);
  isColorPrint(problem.choices[1].text, platform::colour::Yellow);
  PageEnd();
}

const LessonRegistration<ComplexInequalities> kRegistration("Complex Inequalities");

}  // namespace
}  // namespace course
