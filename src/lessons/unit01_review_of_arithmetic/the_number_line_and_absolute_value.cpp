// The student can read a number line by its scale, find a number on it, and say which number is the
// opposite or the absolute value of another, which is less, and which is farther from 0.
//
// What a tick is worth is told by the printed numbers and the spaces between them.  Where these
// allow it, it is more than 1.
#include "lessons/families/graphs/scale_line.h"
#include "lessons/families/graphs/scale_question.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

constexpr double kProblemLineRow = 7.5;
constexpr double kExplanationLineRow = 6.5;
constexpr double kBelowLine = kExplanationLineRow + ScaleLine::kRows + 0.5;

std::string Counted(int n, const std::string& what) {
  return NumStr(n) + " " + what + PluralSuffix(n);
}

// What each tick is worth, and why.
std::string ScaleSentence(const LineScale& scale) {
  return Text(R"(From 0 to {} there are {}, so each tick is worth {}.)", scale.numbers,
              Counted(scale.Spaces(), "space"),
              NumStr(scale.numbers) + " " + tutor::Divided + " " + NumStr(scale.Spaces()) + " = " +
                  NumStr(scale.ticks));
}

// How a number is reached from the printed number before it.
std::string CountingSentence(const ScalePlace& place) {
  std::string numbers;
  for (int n = place.Start() + place.Way() * place.scale.ticks; n != place.number;
       n += place.Way() * place.scale.ticks)
    numbers += NumStr(n) + ", ";
  return Text(R"(From {} we count {} to the {}:  {}\y{}\z.)", place.Start(),
              Counted(place.Ticks(), "tick"), place.Way() < 0 ? "left" : "right", Words{numbers},
              place.number);
}

// --- Teaching screens --------------------------------------------------------

constexpr double kLineRow = 7;
constexpr double kUnderLine = 11.5;

void PositiveAndNegative() {
  NewScreen();
  SayAt(3,
        R"(On a \cnumber line\z each number has its place.  Positive numbers stand to the right )"
        "of 0, negative ones to the left.");
  const ScaleLine line({2, 1}, kLineRow);
  PageEnd();
  line.Add({PointOnLineItem(3, "K")});
  SayAt(kUnderLine, R"(\yTry it:\z  Which number does K represent?)");
  PageEnd();
  line.Hop(2, 3);
  Say(ScaleSentence({2, 1}) + R"(  K is one tick to the right of 2:  \y3\z.)");
  PageEnd();
  line.Add({PointOnLineItem(-5, "M")});
  Say(R"(\yTry it:\z  Which number is M:  -3 or -5?)");
  PageEnd();
  line.Hop(-4, -5);
  Say(R"(M is one tick to the left of -4.  There the numbers go down:  M is \y-5\z.)");
  PageEnd();
}

void OtherScales() {
  NewScreen();
  SayAt(3, R"(The numbers under the line, the \cscale\z, tell what each tick is worth.)");
  const ScaleLine line({4, 2}, 5.2);
  line.Add({PointOnLineItem(6, "K")});
  SayAt(9.2, R"(\yTry it:\z  How many spaces are there from 0 to 4?  Which number is K?)");
  PageEnd();
  line.Hop(4, 6);
  SayAt(11.5, ScaleSentence({4, 2}) + R"(  From 4 we count one tick:  \y6\z, not 5.)");
  PageEnd();
  const ScaleLine other({6, 2}, 14.9, 2);
  other.Add({PointOnLineItem(-10, "M")});
  SayAt(18.9, R"(\yTry it:\z  Which number does M represent?)");
  PageEnd();
  other.Hop(-6, -10);
  SayAt(20, R"(Each tick is worth 2.  From -6 we count two ticks to the left:  -8, \y-10\z.  )"
            "Check:  one tick to the right of -12 is -10.");
  PageEnd();
}

void Opposites() {
  NewScreen();
  SayAt(3, R"(Two numbers that lie equally far from 0, one on each side, are \copposites\z.)");
  const ScaleLine line({5, 1}, kLineRow - 1);
  line.Add({PointOnLineItem(-4, "A"), PointOnLineItem(4, "B")});
  line.Distance(-4);
  line.Distance(4);
  SayAt(kUnderLine - 1, "What is the opposite of 4?  And of -4?");
  PageEnd();
  Say("The opposite of 4 is -4, and the opposite of -4 is 4.  The opposite of 0 is 0.");
  PageEnd();
  NewScreen();
  SayAt(3, R"(We write a minus sign for ~the opposite of~.  So -K means the opposite of K.)");
  const ScaleLine other({5, 1}, kLineRow - 1);
  other.Add({PointOnLineItem(-7, "K")});
  SayAt(kUnderLine - 1, R"(\yTry it:\z  Which number is K?  Which number is -K?)");
  PageEnd();
  other.Distance(-7);
  other.Distance(7);
  Say(R"(K is -7, so -K is \y7\z, the number as far from 0 on the other side.  -K is not always )"
      "negative.");
  PageEnd();
  ClearBelow(kUnderLine - 1);
  other.Add({PointOnLineItem(-4, "A"), PointOnLineItem(4, "B")});
  SayAt(kUnderLine - 1, R"(\yTry it:\z  Which letter represents the opposite of 4?)");
  PageEnd();
  Say(R"(The opposite of 4 is -4.  \yA\z stands there.  B stands at 4 itself.)");
  PageEnd();
}

void AbsoluteValue() {
  NewScreen();
  SayAt(3, R"(The \cabsolute value\z of a number is its distance from 0.  We write two bars:)");
  const ScaleLine line({5, 1}, kLineRow);
  line.Add({PointOnLineItem(-7, "A")});
  line.Distance(-7);
  ShowAt(kUnderLine, "|-7| = 7", 16);
  SayAt(kUnderLine + 2, "Can an absolute value be negative?");
  PageEnd();
  Say("No.  A distance is never negative.");
  PaperBox({R"(|-7| = 7,  \rnot -7\z)"});
  PageEnd();
  ClearBelow(kUnderLine);
  line.Add({PointOnLineItem(9, "B")});
  SayAt(kUnderLine,
        Text(R"(\yTry it:\z  What is {}?  Do the bars change a positive number?)", "|9|"));
  PageEnd();
  line.Distance(9);
  Say(Text(R"(They do not.  9 lies 9 units from 0, so {}.  Only a negative number changes:  {}.  )"
           "And {}.",
           "|9| = 9", "|-7| = 7", "|0| = 0"));
  PageEnd();
}

void LessAndGreater() {
  NewScreen();
  SayAt(3, R"(To the right, numbers get \cgreater\z.  To the left, they get \cless\z.)");
  const ScaleLine line({5, 1}, 5.5);
  line.Add({PointOnLineItem(-8, "A"), PointOnLineItem(-3, "B"), PointOnLineItem(6, "C")});
  SayAt(10, R"(\yTry it:\z  Which is less, -8 or -3?)");
  PageEnd();
  Say("A lies to the left of B.  So -8 is less.");
  PaperBox({R"(-8 < -3,  \rnot -3 < -8\z)"});
  AddLine("We read:  -8 is less than -3.");
  PageEnd();
  ClearBelow(10);
  SayAt(10, R"(\yTry it:\z  Which point is the greatest negative number?)");
  PageEnd();
  Say(R"(It is \yB\z.  -3 is the negative number farthest to the right.)");
  Say(R"(\yTry it:\z  Which is the least of all?)");
  PageEnd();
  Say(R"(It is \yA\z, the point farthest left.)");
  Say(R"(\yWatch out:\z  B is nearest to 0, but it is not the least.  -8 is less than -3.)");
  PageEnd();
}

void OrderOfDistances() {
  NewScreen();
  SayAt(
      3,
      "Absolute values are distances from 0.  We compare them.  Which point has the greatest one?");
  const ScaleLine line({5, 1}, 6.5);
  line.Add({PointOnLineItem(-8, "A"), PointOnLineItem(-3, "B"), PointOnLineItem(6, "C")});
  PageEnd();
  line.Distance(-8);
  line.Distance(6);
  SayAt(11, Text("A has.  {}, and {} only.  A is the least number, but it lies farthest from 0.",
                 "|-8| = 8", "|6| = 6"));
  PageEnd();
  Say(R"(\yTry it:\z  Which one has the least absolute value?)");
  PageEnd();
  Say(Text(R"(It is \yB\z.  -3 lies nearest to 0:  {})", "|-3| = 3."));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class NumberLineAndAbsoluteValue final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{PositiveAndNegative, OtherScales},
            {Opposites, AbsoluteValue},
            {LessAndGreater, OrderOfDistances}};
  }
  void DrawProblem(RandomStream& random) override { question_.Draw(random, problem); }
  void ShowProblem() override;
  void ExplainProblem() override;
  MistakesFigure FigureOfMistakes() override;

  ScaleLine ShowLine(double row) const;
  std::string LetterAt(int number) const;
  void BeginBelowLine() const;
  void Count(const ScaleLine& line, int number) const;
  void ExplainNumber(const ScaleLine& line) const;
  void ExplainPlace(const ScaleLine& line) const;
  void ExplainOrder(const ScaleLine& line) const;
  void ExplainDistances(const ScaleLine& line) const;

  ScaleQuestion question_;
};

// --- Problem page ------------------------------------------------------------

ScaleLine NumberLineAndAbsoluteValue::ShowLine(double row) const {
  const ScaleLine line(question_.Scale(), row);
  line.Add(problem.figure);
  return line;
}

void NumberLineAndAbsoluteValue::ShowProblem() {
  SayAt(4.5, problem.question[0]);
  ShowLine(kProblemLineRow);
  ShowAnswersInThreeColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

std::string NumberLineAndAbsoluteValue::LetterAt(int number) const {
  for (const FigureItem& item : problem.figure)
    if (item.shape == "point" && item.Value("x") == number) return item.label;
  return "";
}

void NumberLineAndAbsoluteValue::ExplainProblem() {
  ProblemBanner();
  SayAt(4, problem.question[0]);
  const ScaleLine line = ShowLine(kExplanationLineRow);
  BeginBelowLine();
  if (question_.Kind() == ScaleKind::LetterByOrder)
    ExplainOrder(line);
  else if (question_.Kind() == ScaleKind::LetterByDistance)
    ExplainDistances(line);
  else if (question_.AsksForNumber())
    ExplainNumber(line);
  else
    ExplainPlace(line);
  Conclude(problem);
}

// The texts below the line begin anew.
void NumberLineAndAbsoluteValue::BeginBelowLine() const {
  ClearBelow(kBelowLine);
  Locate(kBelowLine - 1, 1);
}

// From the printed number on, in hops from tick to tick.
void NumberLineAndAbsoluteValue::Count(const ScaleLine& line, int number) const {
  const ScalePlace place = {number, question_.Scale()};
  Say(ScaleSentence(question_.Scale()));
  PageEnd();
  line.Hop(place.Start(), place.number);
  Say(CountingSentence(place));
}

void NumberLineAndAbsoluteValue::ExplainNumber(const ScaleLine& line) const {
  const int number = question_.Number();
  const std::string letter = LetterAt(number);
  Say("What is each tick worth?");
  PageEnd();
  Count(line, number);
  PageEnd();
  if (question_.Kind() == ScaleKind::NumberOfLetter) return;
  BeginBelowLine();
  const std::string value = letter + " = " + NumStr(number);
  if (question_.Kind() == ScaleKind::AbsoluteOfLetter) {
    Say(Text("So {}.  The bars ask for its distance from 0.  What is it?", value));
    PageEnd();
    line.Distance(number);
    Say(Text("{} lies {} from 0:  {}.", number, Counted(std::abs(number), "unit"),
             InBars(NumStr(number)) + " = " + NumStr(std::abs(number))));
  } else {
    Say(Text("So {}.  {} means the opposite:  as far from 0, on the other side.", value,
             "-" + letter));
    PageEnd();
    line.Distance(number);
    line.Distance(-number);
    Say(Text("The opposite of {} is {}.", number, -number));
  }
  PageEnd();
}

void NumberLineAndAbsoluteValue::ExplainPlace(const ScaleLine& line) const {
  const int number = question_.Number();
  const int target = question_.Target();
  if (question_.Kind() == ScaleKind::LetterOfAbsolute) {
    Say("The bars ask for the distance from 0.  What is it?");
    PageEnd();
    line.Distance(number);
    Say(Text(R"({} lies {} from 0.  So we look for \y{}\z.)", number,
             Counted(std::abs(number), "unit"), target));
  } else if (question_.Kind() == ScaleKind::LetterOfOpposite) {
    Say("The opposite lies as far from 0, on the other side.  What is it?");
    PageEnd();
    Say(Text(R"(The opposite of {} is {}.  So we look for \y{}\z.)", number, target, target));
  } else {
    Say(Text("On which side of 0 does {} lie?", number));
    PageEnd();
    Say(target < 0 ? "It is negative, so it lies to the left of 0."
                   : "It is positive, so it lies to the right of 0.");
  }
  Say("What is each tick worth?");
  PageEnd();
  BeginBelowLine();
  Count(line, target);
  Say(Text("{} stands there.", LetterAt(target)));
  PageEnd();
}

void NumberLineAndAbsoluteValue::ExplainOrder(const ScaleLine& line) const {
  const int number = question_.Number();
  Say("Numbers get less to the left, and greater to the right.");
  if (question_.Greatest()) {
    Say("Negative numbers stand to the left of 0.  Which of them is farthest to the right?");
    PageEnd();
    Say(Text("{} is the last point before 0.  All points to its left are less.", LetterAt(number)));
  } else {
    Say("Which point is farthest to the left?");
    PageEnd();
    Say(Text("{} is.  All other points lie to its right, so they are greater.", LetterAt(number)));
  }
  line.Add({PointOnLineItem(number, LetterAt(number))}, platform::colour::Blue);
  PageEnd();
}

void NumberLineAndAbsoluteValue::ExplainDistances(const ScaleLine& line) const {
  const int number = question_.Number();
  Say(Text("The absolute value is the distance from 0.  Which point lies {} 0?",
           Words{question_.Greatest() ? "farthest from" : "nearest to"}));
  PageEnd();
  std::vector<int> otherSide;
  for (const FigureItem& item : problem.figure)
    if (item.shape == "point" && item.Value("x") * number < 0)
      otherSide.push_back(static_cast<int>(item.Value("x")));
  std::ranges::sort(otherSide, {}, [](int n) { return std::abs(n); });
  const int rival = question_.Greatest() ? otherSide.back() : otherSide.front();
  line.Distance(number);
  line.Distance(rival);
  Say(Text("{} lies {} from 0.  On the other side {} lies {} from 0.", LetterAt(number),
           Counted(std::abs(number), "unit"), LetterAt(rival), Counted(std::abs(rival), "unit")));
  PageEnd();
}

// The question stays with its line.
MistakesFigure NumberLineAndAbsoluteValue::FigureOfMistakes() {
  constexpr double kQuestionRows = 2.5;
  return {kQuestionRows + ScaleLine::kRows + 0.7, [this](double row) {
            SayAt(row - 1, problem.question[0]);
            ShowLine(row - 1 + kQuestionRows);
          }};
}

const LessonRegistration<NumberLineAndAbsoluteValue> kRegistration(
    "The Number Line and Absolute Value");

}  // namespace
}  // namespace course