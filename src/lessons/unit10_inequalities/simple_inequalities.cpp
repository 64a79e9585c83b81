// The student can say in words and in symbols which numbers an arrow on the number line covers, and
// whether its starting point is one of them.
#include "lessons/families/graphs/interval_figure.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace graphs;

// The four relations, in the order of the answer boxes.
const std::string kRelations[] = {"", tutor::LessOrEqual, tutor::GreaterOrEqual, "<", ">"};

// --- Teaching screens --------------------------------------------------------

void MeaningOfInequality() {
  NewScreen();
  Say(R"(An \cinequality\z is a statement which shows that two quantities are not equal.  If two )"
      R"(quantities are not equal, then one must be greater than the other.)");
  PageEnd();
  Say(R"(The \csymbol for equality\z is =.)");
  Show("examples:  6 = 6 and 7-1 = 5+1.");
  PageEnd();
  Say(Text(R"(The \csymbol for inequality\z is {}.)", tutor::NotEqual));
  Show("examples:  3 " + tutor::NotEqual + " 5, -6-2 " + tutor::NotEqual + " -5-2.");
  PageEnd();
  Say(R"(The \csymbol for less than\z is <.)");
  Show("examples:  3 < 5, -6 < -4, and -7 < 2.");
  PageEnd();
  Say(R"(The \csymbol for greater than\z is >.)");
  Show("examples:  5 > 3, -4 > -6, and 2 > -7.");
  PageEnd();
}

constexpr TextPlace kMeaning = {.indent = 8, .lastCol = 38};  // under "means"

void FourSymbols() {
  NewScreen();
  Say("Examine the following examples closely.");
  PageEnd();
  Say(" x > 6 means x is greater than 6.");
  PageEnd();
  Say(Text(" x {} 6 means x is greater than or equal to 6.", tutor::GreaterOrEqual), kMeaning);
  PageEnd();
  Say(" x < 6 means x is less than 6.");
  PageEnd();
  Say(Text(" x {} 6 means that x is less than or equal to 6.", tutor::LessOrEqual), kMeaning);
  PageEnd();
  Say(
      Text("On the number line, x > 6 represents all numbers to the right of 6, while x {} 6 "
           R"(represents all numbers to the right of 6 \cand\z 6 itself.)",
           tutor::GreaterOrEqual));
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class SimpleInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }
  bool TellsMistakes() const override { return false; }

 private:
  std::vector<Screen> Screens() override { return {{MeaningOfInequality}, {FourSymbols}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool PointsRight() const { return endValue_ == kFarRight; }
  bool Open() const { return IsOpen(startValue_); }
  std::string Number() const { return NumStr(WholeOf(startValue_)); }
  std::string MistakeOf(int slot) const;
  void ShowGraph();
  void ExplainDirection();
  void ExplainStart();
  void WriteAnswer();

  double startValue_ = 0;  // where the arrow starts, -6 to 6; + 0.1 when the circle is open
  int endValue_ = 0;       // kFarLeft or kFarRight
};

// --- Generator: three draws, none rejected -----------------------------------

void SimpleInequalities::DrawProblem(RandomStream& random) {
  startValue_ = random.Rand(-6, 6);
  endValue_ = random.Sign() * kFarRight;
  if (random.Rnd() < 0.5) startValue_ += 0.1;

  problem.question = {"Which of the inequalities shown below", "represents the graph above?"};
  problem.kind = choice_kind::FourInOrder;
  problem.correct = (Open() ? 3 : 1) + (PointsRight() ? 1 : 0);
  for (int slot = 1; slot <= 4; ++slot) {
    const std::string text = "x " + kRelations[slot] + " " + Number();
    if (slot == problem.correct)
      problem.Right(slot, text);
    else
      problem.Wrong(slot, MistakeOf(slot), text);
  }
  problem.figure = {GraphItem(startValue_, endValue_)};
}

std::string SimpleInequalities::MistakeOf(int slot) const {
  const bool wrongWay = (slot % 2 == 0) != PointsRight();
  const bool wrongCircle = (slot > 2) != Open();
  if (wrongWay && wrongCircle) return "reads the arrow and the circle the wrong way";
  return wrongWay ? "reads the arrow the wrong way" : "reads the circle the wrong way";
}

// --- Problem page ------------------------------------------------------------

// An explanation needs the room below the graph, and gets it higher up.
void SimpleInequalities::ShowGraph() {
  if (OnProblemPage())
    DrawNumberLine(5, 3);
  else
    DrawNumberLine(3, 4);
  DrawOnLine(problem.figure);
}

void SimpleInequalities::ShowProblem() {
  ShowGraph();
  SayAt(9, problem.question[0]);
  AddLine(problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.row = 14});
}

// --- Worked explanation ------------------------------------------------------

void SimpleInequalities::ExplainProblem() {
  ShowGraph();
  SayAt(6.5, "Let's make an inequality for the above graph.");
  PageEnd();
  ExplainDirection();
  ExplainStart();
  WriteAnswer();
}

void SimpleInequalities::ExplainDirection() {
  const std::string side = PointsRight() ? "right" : "left";
  SayAt(9, Text("We can see that the arrow contains points to the {} of {}.", side, Number()));
  PageEnd();
  Say(Text(
      "We know from studying the number line that points to the {} of a given point are {} than "
      "the point.  So the arrow covers points {} THAN {}.",
      side, PointsRight() ? "greater" : "less", PointsRight() ? "GREATER" : "LESS", Number()));
  PageEnd();
}

void SimpleInequalities::ExplainStart() {
  Say(Text("Does the arrow include {}?", Number()));
  PageEnd();
  Say(Open() ? "No, because there is an open circle over the number."
             : "Yes, because the beginning point is covered.");
  PageEnd();
  Say(Text("The arrow's range includes {}all numbers {} than {}.",
           Words{Open() ? "" : Number() + " and "}, PointsRight() ? "greater" : "less", Number()));
  PageEnd();
}

void SimpleInequalities::WriteAnswer() {
  // The last sentence stands on rows 22 and 23; it slides up to row 9 and wipes the steps away.
  SlideUp(WholeRows(22, 2), 13, Leaving::Nothing, Pace::Brisk);
  PageEnd();
  SayAt(12, "This is written as:", {.col = 3});
  ShowAt(14, RightText(problem), 17);
}

const LessonRegistration<SimpleInequalities> kRegistration("Simple Inequalities");

}  // namespace
}  // namespace course
