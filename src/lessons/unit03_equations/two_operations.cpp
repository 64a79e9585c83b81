// The student can solve an equation in which the letter was multiplied and then something was
// added, such as 3x + 4 = 19: remove the number first, then the coefficient, and check.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace equations;

// --- Teaching screens --------------------------------------------------------

// What was done to x, and under it the way back, in three boxes each.
constexpr double kThereRow = 10;
constexpr double kBackRow = 13;
struct Station {
  int col;    // of the box's text
  int width;  // of its longest text
};
constexpr Station kStations[] = {{4, 2}, {16, 2}, {29, 6}};

void DrawStation(double row, int index, const std::string& text) {
  const Station& station = kStations[index];
  const int width = station.width;
  Locate(row, station.col + (width - static_cast<int>(text.size())) / 2.0);
  isPrints(text);
  isDrawRoundRect(row - 0.2, station.col - 1, row + 0.3, station.col + width, 2,
                  platform::colour::Cyan);
}

// The arrow from one box to its neighbour, with what it stands for over it.
void DrawWay(double row, int from, int to, const std::string& operation) {
  const Station& left = kStations[std::min(from, to)];
  const Station& right = kStations[std::max(from, to)];
  const double start = left.col + left.width + 1;
  const double end = right.col - 2;
  const bool there = from < to;
  Locate(row - 0.9, (start + end - static_cast<double>(operation.size()) + 1) / 2);
  isColorPrints(operation, platform::colour::Yellow);
  isDrawArrow1Segment(row + 0.05, start, row + 0.05, end, platform::colour::White,
                      there ? "NA" : "A", there ? "A" : "NA");
}

void ReverseOrder() {
  NewScreen();
  Say(R"(These equations need \yone\z operation:)");
  Show("x + 4 = 19     3x = 15", 4);
  PageEnd();
  Say(Text(R"(In  {}  there are \ytwo\z.  This is what was done to x:)", "3x + 4 = 19"));
  DrawStation(kThereRow, 0, "x");
  DrawWay(kThereRow, 0, 1, tutor::Dot + " 3");
  DrawStation(kThereRow, 1, "3x");
  DrawWay(kThereRow, 1, 2, "+ 4");
  DrawStation(kThereRow, 2, "3x + 4");
  PageEnd();
  DrawStation(kBackRow, 2, "19");
  SayAt(15, "3x + 4 is 19, and from there we go back to x.  Which operation do we undo first?");
  PageEnd();
  DrawWay(kBackRow, 2, 1, "- 4");
  DrawStation(kBackRow, 1, "15");
  SayAt(18, Text(R"(We undo the \ylast\z one first, as shoes come off before socks:  {})",
                 "19 - 4 = 15."));
  PageEnd();
  DrawWay(kBackRow, 1, 0, tutor::Divided + " 3");
  DrawStation(kBackRow, 0, "5");
  SayAt(20, Text("Then we undo the first:  {}", "15 " + tutor::Divided + " 3 = 5."));
  PageEnd();
  Say(R"(Operations that undo each other are called \cinverse operations\z.)");
  PageEnd();
}

void RowUnderRow() {
  const LinearStatement equation = {"x", {3, 4}, "=", {0, 19}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("We solve the same equation on paper.");
  sheet.Write(RowOf(equation), "=");
  OpenWordBox();
  SayAnew(
      "We write each step under the one before, and do the same to both sides.  So they stay "
      "equal.");
  SayMore("4 was added last.  What do we add to both sides to remove it?");
  PageEnd();
  SayAnew(R"(We add \b-4\z to both sides.)");
  SayMore("That is the same as subtracting 4.");
  sheet.AddUnder(AddendRow(addition.term, "x"));
  PageEnd();
  sheet.WriteSum(RowOf(addition.after), "=");
  SayAnew("On the left-hand side +4 and -4 add up to 0, and only 3x is left.");
  SayMore("Which operation still has to be undone, and how?");
  PageEnd();
  sheet.WriteQuotients({"3x", "15", "3"}, "=");
  SayAnew(R"(x is multiplied by 3, so we divide both sides by \b3\z.)");
  SayMore(R"(The number in front of the letter is its \bcoefficient\z.)");
  PageEnd();
  sheet.WriteSolved("x", "=", "5");
  sheet.MarkSolution();
  SayAnew("");
  SayBullet("3" + tutor::Dot + "5 = 15.");
  SayBullet("We know that 1x is equal to just x.");
  SayMore(R"(x stands alone:  we have \bisolated the variable\z, and 5 is the solution.)");
  PageEnd();
  SayAnew("A solution can be checked.  Put 5 in place of x in the first equation:");
  SaySubstituted(equation, 5);
  SayMore("Both sides are the same number.");
  PageEnd();
}

void DividingFirst() {
  NewScreen();
  Say(Text("Could we divide  {}  by 3 before we remove the 4?", "3x + 4 = 19"));
  PageEnd();
  Say(R"(We may, but then \yevery\z term must be divided by 3, and fractions come up:)");
  Show("3x/3 + 4/3  =  19/3", 10);
  Show(" x + 4/3  =  19/3", 10);
  PageEnd();
  Say(R"(\rThe usual mistake\z is to divide 3x and 19, and to forget the 4.)");
  PageEnd();
  Say(R"(It is simpler to remove \yfirst the number\z, \ythen the coefficient\z.)");
  PageEnd();
}

void TryIt() {
  const LinearStatement equation = {"x", {-2, -5}, "=", {0, 7}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("Now solve this equation yourself:");
  sheet.Write(RowOf(equation), "=");
  SayAt(17, "What do we add to both sides?  What do we divide both sides by?");
  PageEnd();
  sheet.AddUnder(AddendRow(addition.term, "x"));
  sheet.WriteSum(RowOf(addition.after), "=");
  SayAt(19.5, R"(To remove \y-5\z we add \y+5\z.)");
  PageEnd();
  sheet.WriteQuotients({"-2x", "12", "-2"}, "=");
  sheet.WriteSolved("x", "=", "-6");
  sheet.MarkSolution();
  SayAt(20.5, R"(Then we divide by the coefficient \y-2\z.)");
  PageEnd();
  SayAt(22, Text("Check:  {}", "-2" + tutor::Dot + "(-6) - 5 = 12 - 5 = 7."));
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TwoOperations final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{ReverseOrder}, {RowUnderRow, DividingFirst, TryIt}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LinearStatement equation_;  // a x + b = c
};

// --- Generator ---------------------------------------------------------------

// A fifth of the draws is accepted: most answers are not whole.
void TwoOperations::DrawProblem(RandomStream& random) {
  equation_ = {};
  equation_.letter = random.OneOf("mnrtxy");
  const auto fits = [this] {
    const auto [a, b] = equation_.left;
    const int c = equation_.right.number;
    return a != 0 && a != 1 &&           // nothing to divide by
           b != 0 && c != 0 &&           // nothing to add, or an answer at sight
           SizesDiffer(equation_) &&     // mistakes that agree
           HasWholeSolution(equation_);  // solved by hand
  };
  do {
    equation_.left.coef = DrawCoefficient(random);
    equation_.left.number = DrawNumber(random);
    equation_.right.number = DrawNumber(random);
  } while (!fits());

  problem.question = {"Solve the following equation for " + equation_.letter + ".",
                      StatementText(equation_, "  ")};
  SetLinearChoices(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void TwoOperations::ShowProblem() {
  SayAt(6, problem.question[0]);
  EquationSheet(9, 9, {RowOf(equation_)}).Write(RowOf(equation_), equation_.relation);
  ShowAnswersInThreeColumns(problem, {.row = 16.5});
}

// --- Worked explanation ------------------------------------------------------

void TwoOperations::ExplainProblem() {
  ExplainLinear(equation_, problem);
}

// The window's caption writes "with" small, the menu's list "With".
const LessonRegistration<TwoOperations> kRegistration("Solving Linear Equations with 2 Operations");

}  // namespace
}  // namespace course
