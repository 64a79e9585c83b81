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
  ShowAt(row, text, station.col + (width - static_cast<int>(text.size())) / 2.0);
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
  ShowAt(row - 0.9, R"(\y)" + operation + R"(\z)",
         (start + end - static_cast<double>(operation.size()) + 1) / 2);
  isDrawArrow1Segment(row + 0.05, start, row + 0.05, end, platform::colour::White,
                      there ? "NA" : "A", there ? "A" : "NA");
}

void ReverseOrder() {
  NewScreen();
  Say(R"(These equations need \yone\z operation:)");
  Show("x + 4 = 19     3x = 15", 4);
  Say(Text("How many does  {}  need?", "3x + 4 = 19"));
  PageEnd();
  ClearBelow(3);
  SayAt(3, Text(R"(In  {}  there are \ytwo\z.)", "3x + 4 = 19"));
  Say("This is what was done to x:");
  DrawStation(kThereRow, 0, "x");
  DrawWay(kThereRow, 0, 1, tutor::Times + " 3");
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
  SayAt(21, Text("Then we undo the first:  {}", "15 " + tutor::Divided + " 3 = 5."));
  PageEnd();
}

void InverseOperations() {
  NewScreen();
  Say(R"(Operations that undo each other are called \cinverse operations\z:)");
  Show("+ 4  and  - 4", 8);
  Show(tutor::Times + " 3  and  " + tutor::Divided + " 3", 8);
  PageEnd();
  Say(Text(R"(\yTry it:\z  In  {}  which operation do we undo first, and how?)", "2x - 7 = 9"));
  PageEnd();
  Say(R"(Subtracting 7 came last.  So we \yadd 7\z:)");
  Show("9 + 7 = 16");
  Say(R"(Then we \ydivide by 2\z:)");
  Show("16 " + tutor::Divided + " 2 = 8");
  PageEnd();
  Say("So x = 8.  Let us check it:");
  Show(Text("2{}8 - 7 = 16 - 7 = 9", tutor::Gap + tutor::Dot + tutor::Gap));
  PageEnd();
}

void RowUnderRow() {
  const LinearStatement equation = {"x", {3, 4}, "=", {0, 19}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("On paper we write step under step.");
  WriteStatement(sheet, equation);
  OpenWordBox();
  SayInBox("4 was added last.  What do we add to both sides to remove it?");
  PageEnd();
  SayInBoxAnew(R"(We add \b-4\z to both sides, so they stay equal.  Adding -4 is subtracting 4.)");
  WriteAddend(sheet, addition);
  PageEnd();
  WriteSum(sheet, addition);
  SayInBoxAnew("+4 and -4 add up to 0, so only 3x is left on the left side.");
  SayInBox("What do we undo next?");
  PageEnd();
  WriteDivision(sheet, addition.after, "=");
  SayInBoxAnew(R"(x is multiplied by 3, so we divide both sides by \b3\z.)");
  PageEnd();
  SayInBox(R"(The number in front of the letter is its \bcoefficient\z.)");
  SayInBox("What is left of 3x over 3?");
  PageEnd();
  sheet.WriteSolved("x", "=", "5");
  sheet.MarkSolution();
  SayInBoxAnew("");
  SayBullet("We know that 1x is equal to just x.");
  SayInBox(R"(x stands alone.  We have \bisolated the variable\z.)");
  PageEnd();
  SayInBoxAnew("Check:  5 for x.  A dot means times.");
  SaySubstituted(equation, 5);
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
  Say(R"(\yWatch out:\z  the usual mistake is to divide 3x and 19, and to forget the 4.)");
  PaperBox({R"(\rx + 4 = 19/3\z  is wrong.)"});
  PageEnd();
  NewScreen();
  Say("So we keep to this order:");
  RuleBox("Two Operations", {"1. Remove the number behind x.", "2. Divide by the coefficient."},
          {.width = 32});
  PageEnd();
}

void NegativeCoefficient() {
  const LinearStatement equation = {"x", {-2, -5}, "=", {0, -11}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet(13.5, 23, RowsOf(equation));
  Say(R"(\yTry it:\z  What do we add to both sides here?  What do we divide them by?)");
  WriteStatement(sheet, equation);
  PageEnd();
  WriteAddition(sheet, addition);
  SayAt(23, R"(\yWatch out:\z  only +5 removes -5.)");
  PageEnd();
  WriteDivision(sheet, addition.after, "=");
  sheet.WriteSolved("x", "=", "3");
  SayAt(23, R"(Then we divide by the coefficient \y-2\z.)");
  PageEnd();
}

void MinusX() {
  const LinearStatement equation = {"x", {-1, 9}, "=", {0, 4}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("What if there is only a minus sign?");
  WriteStatement(sheet, equation);
  OpenWordBox();
  SayInBox("Which number is the coefficient of -x?");
  PageEnd();
  SayInBoxAnew(Text(R"({} means {}.  The coefficient is \b-1\z.)", "-x", "-1" + tutor::Dot + "x"));
  SayInBox("First we remove the 9.");
  WriteAddition(sheet, addition);
  PageEnd();
  SayInBoxAnew("Watch out:  we want x, not -x.  So we are not done yet.");
  SayInBox("What do we divide both sides by?");
  PageEnd();
  WriteDivision(sheet, addition.after, "=");
  sheet.WriteSolved("x", "=", "5");
  sheet.MarkSolution();
  SayInBoxAnew(R"(We divide by \b-1\z, and both signs change.)");
  PageEnd();
  SayInBoxAnew("Check:  we put 5 in place of x.");
  SaySubstituted(equation, 5);
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TwoOperations final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{ReverseOrder, InverseOperations},
            {RowUnderRow, DividingFirst, NegativeCoefficient, MinusX}};
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

  SetLinearProblem(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void TwoOperations::ShowProblem() {
  ShowStatement(equation_, problem);
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
