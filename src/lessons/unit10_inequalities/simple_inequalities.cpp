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
  Locate(3, 1);
  WordWrap(R"(An \cinequality\z is a statement which shows that two quantities are not equal.  )"
           R"(If two quantities are not equal, then one must be greater than the other.)");
  PageEnd();
  isPrint();
  WordWrap(R"(The \csymbol for equality\z is =.)");
  isPrint("  examples:  6 = 6 and 7-1 = 5+1.");
  PageEnd();
  isPrint();
  WordWrap(R"(The \csymbol for inequality\z is )" + tutor::NotEqual + ".");
  isPrint("  examples:  3 " + tutor::NotEqual + " 5, -6-2 " + tutor::NotEqual + " -5-2.");
  PageEnd();
  isPrint();
  WordWrap(R"(The \csymbol for less than\z is <.)");
  isPrint("  examples:  3 < 5, -6 < -4, and -7 < 2.");
  PageEnd();
  isPrint();
  WordWrap(R"(The \csymbol for greater than\z is >.)");
  isPrint("  examples:  5 > 3, -4 > -6, and 2 > -7.");
  PageEnd();
}

void FourSymbols() {
  NewScreen();
  Locate(3, 1);
  isPrint("Examine the following examples closely.");
  PageEnd();
  isPrint();
  WordWrap(" x > 6 means x is greater than 6.");
  PageEnd();
  isPrint();
  WordWrapIndentNarrow(" x " + tutor::GreaterOrEqual + " 6 means x is greater than or equal to 6.",
                       8, 38);
  PageEnd();
  isPrint();
  WordWrap(" x < 6 means x is less than 6.");
  PageEnd();
  isPrint();
  WordWrapIndentNarrow(" x " + tutor::LessOrEqual + " 6 means that x is less than or equal to 6.",
                       8, 38);
  PageEnd();
  isPrint();
  WordWrap("On the number line, x > 6 represents all numbers to the right of 6, while x " +
           tutor::GreaterOrEqual +
           R"( 6 represents all numbers to the right of 6 \cand\z 6 itself.)");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class SimpleInequalities final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

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
  problem.figure = {{"ray",
                     {{"from", WholeOf(startValue_)},
                      {"closed", Open() ? 0 : 1},
                      {"direction", PointsRight() ? 1 : -1}}}};
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
  DrawGraphOnLine(startValue_, endValue_);
}

void SimpleInequalities::ShowProblem() {
  ShowGraph();
  Locate(9, 1);
  for (const std::string& line : problem.question) isPrint(line);
  picAnswerSetParameters(2, 14, 1, 21, 0, 16, 50, 27);
}

// --- Worked explanation ------------------------------------------------------

void SimpleInequalities::ExplainProblem() {
  ShowGraph();
  Locate(6.5, 1);
  WordWrap("Let's make an inequality for the above graph.");
  PageEnd();
  ExplainDirection();
  ExplainStart();
  WriteAnswer();
}

void SimpleInequalities::ExplainDirection() {
  const std::string side = PointsRight() ? "right" : "left";
  Locate(9, 1);
  WordWrap("We can see that the arrow contains points to the " + side + " of " + Number() + ".");
  PageEnd();
  isPrint();
  WordWrap("We know from studying the number line that points to the " + side +
           " of a given point are " + (PointsRight() ? "greater" : "less") +
           " than the point.  So the arrow covers points " + (PointsRight() ? "GREATER" : "LESS") +
           " THAN " + Number() + ".");
  PageEnd();
}

void SimpleInequalities::ExplainStart() {
  isPrint();
  WordWrap("Does the arrow include " + Number() + "?");
  PageEnd();
  isPrint();
  WordWrap(Open() ? "No, because there is an open circle over the number."
                  : "Yes, because the beginning point is covered.");
  PageEnd();
  isPrint();
  WordWrap("The arrow's range includes " + (Open() ? "" : Number() + " and ") + "all numbers " +
           (PointsRight() ? "greater" : "less") + " than " + Number() + ".");
  PageEnd();
}

void SimpleInequalities::WriteAnswer() {
  // The last sentence stands on rows 22 and 23; it slides up to row 9 and wipes the steps away.
  AnimHere(22, 1, 40, 2, 1, 13, 30, 1);
  PageEnd();
  Locate(12, 3);
  isPrint("This is written as:");
  Locate(14, 17);
  isPrint("x " + kRelations[problem.correct] + " " + Number());
}

const LessonRegistration<SimpleInequalities> kRegistration("Simple Inequalities");

}  // namespace
}  // namespace course
