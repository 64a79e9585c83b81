// The student knows what an equation and its solution are, can do the same operation on both sides,
// and sees which operation leads from one equation to the next, and which one to take first.
//
// Half of the problems ask for the equation that a step gives, half for the step between two
// equations; in either half x stands on the left as often as on the right.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_sheet.h"
#include "lessons/families/formulas/solution_lines.h"
#include "lessons/families/principles/balance.h"
#include "lessons/families/principles/both_sides.h"
#include "lessons/families/principles/step_explanation.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace principles;
using equations::AddendRow;
using equations::EquationSheet;
using equations::RowOf;
using formulas::SolutionLines;

constexpr double kEquationCol = 18;  // beside "Second equation:"

// --- Teaching screens --------------------------------------------------------

constexpr double kBalanceRow = 7;
constexpr double kBelowBalance = 13;

void SayUnderBalance(const std::string& text) {
  ClearBelow(kBelowBalance);
  SayAt(kBelowBalance, text);
}

void EqualSides() {
  NewScreen();
  SayAt(3, R"(An \cequation\z says that two expressions name the same number.)");
  Balance balance(kBalanceRow);
  balance.Show("3 + 4", "7");
  SayUnderBalance(R"(= means "is the same as".  The balance is level: its \cleft side\z is 3 + 4, )"
                  R"(its \cright side\z 7.)");
  PageEnd();
  Say("May we exchange the sides?");
  PageEnd();
  balance.Show("7", "3 + 4");
  SayUnderBalance("We may:  it stays level.  7 = 3 + 4 is as good an equation as 3 + 4 = 7.");
  Say("What is wrong with this line?");
  PaperBox({R"(\r3 + 4 = 7 + 1 = 8\z)"});
  PageEnd();
  balance.Show("3 + 4", "8", Heavier::Right);
  ClearBelow(kBelowBalance);
  SayAt(kBelowBalance, Text("It says that 3 + 4 is 8.  = does not mean \"the answer is\".  We "
                            "write two equations:  {} and {}.",
                            "3 + 4 = 7", "7 + 1 = 8"));
  PageEnd();
}

// What is tried for x in x + 3 = 8.
constexpr int kTrials[] = {4, 5, 6};
constexpr double kCellFont = 16;  // points

void ShowTrials() {
  PrintCellTable table;
  table.heightPixels = 170;
  constexpr double kLefts[] = {2, 35, 68};
  constexpr double kWidth = 30;
  const char* const kCaptions[] = {"x", "x + 3", "x + 3 = 8"};
  for (std::size_t column = 0; column < std::size(kLefts); ++column)
    table.labels.push_back(
        {kLefts[column], 2, kWidth, 14, kCaptions[column], 14, platform::colour::Blue, true});
  for (std::size_t row = 0; row < std::size(kTrials); ++row)
    for (const double left : kLefts)
      table.cells.push_back({left, 18.0 + 27 * static_cast<double>(row), kWidth, 25});
  CellTable(table, 7);
}

void FillTrials() {
  using namespace platform::colour;
  int cell = 1;
  for (const int x : kTrials) {
    const bool fits = x + 3 == 8;
    picPrintCellPrint(cell++, NumStr(x), Black, kCellFont);
    picPrintCellPrint(cell++, NumStr(x + 3), Black, kCellFont);
    picPrintCellPrint(cell++, fits ? "true" : "false", fits ? Blue : Black, kCellFont);
  }
}

void Solutions() {
  NewScreen();
  SayAt(3, R"(In \yx + 3 = 8\z the letter holds a place for a number.  Which number makes it true?)");
  PageEnd();
  ShowTrials();
  FillTrials();
  Say(R"(Only 5.  It is the \csolution\z of the equation.)");
  Say("Now look at x + 3 = 10.  Is x 5 here, too?");
  PageEnd();
  NewScreen();
  SayAt(3, "No, here x is 7.  A new equation may have another solution.");
  Say(R"(\yWatch out:\z  Within one equation x keeps its value.  Is 2 + 4 = 6 a way to solve )"
      "x + x = 6?");
  PageEnd();
  Say("It is not, for then x would be 2 and also 4.  Both x are 3:  3 + 3 = 6.");
  Say(R"(\yTry it:\z  Is -2 a solution?)");
  ShowAt(14, "3x + 10 = 4", 8);
  PageEnd();
  ShowAt(15.5, "3(-2) + 10 = 4", 5);
  ShowAt(16.5, "-6 + 10 = 4", 8);
  Say("Both sides are 4, so -2 is the solution.  The parentheses keep its sign.");
  PageEnd();
}

void AddingOnBothSides() {
  NewScreen();
  SayAt(3, "May we put 4 on both pans?");
  Balance balance(kBalanceRow + 1);
  balance.Show("x - 4", "5");
  PageEnd();
  balance.PutOnBoth("+ 4");
  SayAt(14, "We may:  it stays level.");
  RuleBox(PrincipleOf(Operation::Add), {"The same number may be added", "to both sides."},
          {.width = 32});
  Say("What if we put 4 on the left pan only?");
  PageEnd();
  ClearBelow(14);
  balance.Show("x - 4", "5");
  balance.PutOnLeft("+ 4");
  SayAt(14, "The left pan sinks.  The sides are no longer equal.");
  PaperBox({R"(\rx - 4 + 4 = 5\z  is wrong.)"});
  PageEnd();
}

// A sheet that writes an equation, and the same number under both sides.
void AddOnSheet(EquationSheet& sheet, int number, const LinearStatement& after) {
  sheet.AddUnder(AddendRow({0, number}, "x"));
  sheet.WriteSum(RowOf(after), "=");
}

void AddingOnPaper() {
  const LinearStatement given = {"x", {1, -4}, "=", {0, 5}};
  const LinearStatement solved = {"x", {1, 0}, "=", {0, 9}};
  NewScreen();
  SayAt(3, "On paper we write it like this.");
  EquationSheet sheet(5.5, 16, {RowOf(given), AddendRow({0, 4}, "x"), RowOf(solved)});
  equations::WriteStatement(sheet, given);
  AddOnSheet(sheet, 4, solved);
  equations::OpenWordBox();
  SayInBox("Must it be 4?  What do we get if we add 1 to both sides?");
  PageEnd();
  const LinearStatement other = {"x", {1, -3}, "=", {0, 6}};
  EquationSheet second(11, 16, {RowOf(given), AddendRow({0, 1}, "x"), RowOf(other)});
  equations::WriteStatement(second, given);
  AddOnSheet(second, 1, other);
  SayInBoxAnew("It may be any number.  9 is the solution again:  9 - 3 = 6.");
  PageEnd();
}

void SubtractingOnBothSides() {
  const LinearStatement given = {"x", {1, 12}, "=", {0, 5}};
  const LinearStatement solved = {"x", {1, 0}, "=", {0, -7}};
  NewScreen();
  RuleBox(PrincipleOf(Operation::Subtract), {"The same number may be subtracted", "from both sides."},
          {.row = 3, .width = 36});
  EquationSheet sheet(9, 16, {RowOf(given), AddendRow({0, -12}, "x"), RowOf(solved)});
  equations::WriteStatement(sheet, given);
  equations::OpenWordBox();
  SayInBox("What must we subtract, so that x stands alone?");
  PageEnd();
  sheet.AddUnder(AddendRow({0, -12}, "x"));
  SayInBoxAnew(R"(We subtract \b12\z.)");
  SayInBox("Is the right side 5 - 12 or 12 - 5?");
  PageEnd();
  sheet.WriteSum(RowOf(solved), "=");
  SayInBoxAnew("12 is taken from 5:  5 - 12 = -7.");
  SayInBox("Check:  -7 + 12 = 5.  It is true.");
  PageEnd();
}

void SubtractingNegativeNumber() {
  const LinearStatement given = {"x", {1, -10}, "=", {0, -4}};
  const LinearStatement after = {"x", {1, -4}, "=", {0, 2}};
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Subtract -6 from both sides.)");
  EquationSheet sheet(6, 16, {RowOf(given), AddendRow({0, 6}, "x"), RowOf(after)});
  equations::WriteStatement(sheet, given);
  PageEnd();
  AddOnSheet(sheet, 6, after);
  SayAt(11, "Subtracting -6 is the same as adding 6.  -10 + 6 is -4, and -4 + 6 is 2.");
  PageEnd();
}

void MultiplyingBothSides() {
  NewScreen();
  RuleBox(PrincipleOf(Operation::Multiply), {"Both sides may be multiplied", "by the same number, not 0."},
          {.row = 3, .width = 36});
  SolutionLines lines(8.5);
  lines.Write("2x + 5", "11");
  SayAt(11, "Multiply both sides by 3.  What becomes of the 5?");
  PageEnd();
  lines.Write("3(2x + 5)", "3" + tutor::Gap + tutor::Dot + tutor::Gap + "11");
  ClearBelow(11);
  lines.Write("6x + 15", "33");
  SayAt(13, R"(It becomes 15:  \yevery\z term is multiplied.)");
  PaperBox({R"(\r6x + 5 = 33\z  is wrong:)", "the 5 was left as it was."});
  PageEnd();
  SayAt(18.5, "Check:  the solution stays 3.  2 times 3 is 6, and 6 + 5 = 11.  6 times 3 is 18, and "
              "18 + 15 = 33.");
  PageEnd();
}

void MultiplyingByMinusOne() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Multiply both sides by -1.)");
  SolutionLines lines(6);
  lines.Write("2", "x - 3");
  PageEnd();
  lines.Write("-1(2)", "-1(x - 3)");
  lines.Write("-2", "-x + 3");
  SayAt(11, "Every sign changes, on both sides.");
  PageEnd();
}

void DividingBothSides() {
  NewScreen();
  RuleBox(PrincipleOf(Operation::Divide), {"Both sides may be divided", "by the same number, not 0."},
          {.row = 3, .width = 36});
  SolutionLines lines(8.5);
  lines.Write("4x + 12", "20");
  SayAt(10.5, "Divide both sides by 4.  What becomes of the 12?");
  PageEnd();
  ClearBelow(10);
  lines.Write("(4x + 12)/4", "20/4");
  lines.Write("x + 3", "5");
  SayAt(15, R"(It becomes 3:  \yevery\z term is divided.)");
  PaperBox({R"(\rx + 12 = 5\z  is wrong.)"});
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Divide both sides by -3.)");
  SolutionLines other(6);
  other.Write("-6", "-3x + 9");
  PageEnd();
  other.Write("(-6)/(-3)", "(-3x + 9)/(-3)");
  other.Write("2", "x - 3");
  SayAt(13, "-6 and -3 have the same sign: 2 is positive.  9 and -3 have different signs: -3.");
  PageEnd();
}

void WhichStepWasIt() {
  NewScreen();
  SayAt(3, "Which step leads from the first equation to the second one?");
  ShowAt(6, "2x + 5 = 11", 5);
  ShowAt(6, "2x + 8 = 14", 23);
  isDrawArrowPointingRightWithColor(6, 20, platform::colour::Yellow, 3);
  PageEnd();
  Say("2x stayed 2x.  So nothing was multiplied or divided.  From 11 to 14 it is 3 more, and from 5 "
      "to 8, too:  3 was added.");
  ShowAt(13.5, "2x + 6 = 10", 5);
  ShowAt(13.5, "x + 3 = 5", 23);
  isDrawArrowPointingRightWithColor(13.5, 20, platform::colour::Yellow, 3);
  PageEnd();
  Say("2x became x.  So something was divided.  2, 6 and 10 were all divided by 2.");
  PageEnd();
}

void WhichStepComesFirst() {
  const LinearStatement given = {"x", {2, 3}, "=", {0, 11}};
  const LinearStatement middle = {"x", {2, 0}, "=", {0, 8}};
  NewScreen();
  SayAt(3, "Every step keeps the solution, but some of them bring us nearer to it.");
  EquationSheet sheet(6, 16, {RowOf(given), AddendRow({0, -3}, "x"), RowOf(middle)});
  equations::WriteStatement(sheet, given);
  equations::OpenWordBox();
  SayInBox("x was multiplied by 2, then 3 was added.  Which do we undo first?");
  PageEnd();
  AddOnSheet(sheet, -3, middle);
  SayInBoxAnew("What was done last:  we subtract 3.");
  SayInBox("Which step comes next?");
  PageEnd();
  equations::WriteDivision(sheet, middle, "=");
  sheet.WriteSolved("x", "=", "4");
  SayInBoxAnew("We divide both sides by 2.");
  SayInBox("Check:  2 times 4 is 8, and 8 + 3 = 11.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PropertiesOfEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{EqualSides},
            {Solutions},
            {AddingOnBothSides, AddingOnPaper},
            {SubtractingOnBothSides, SubtractingNegativeNumber},
            {MultiplyingBothSides, MultiplyingByMinusOne},
            {DividingBothSides},
            {WhichStepWasIt, WhichStepComesFirst}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  StepProblem step_;
};

// --- Generator ---------------------------------------------------------------

void PropertiesOfEquations::DrawProblem(RandomStream& random) {
  step_ = DrawStepProblem(random);
  SetStepProblem(problem, step_, random);
}

// --- Problem page ------------------------------------------------------------

void PropertiesOfEquations::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(5, problem.question[1], kEquationCol);
  if (step_.asksForStep) {
    SayAt(6.5, problem.question[2]);
    ShowAt(6.5, problem.question[3], kEquationCol);
  }
  SayAt(8, problem.question.back());
  if (step_.asksForStep)  // "multiplying by -14" is long
    ShowAnswersInTwoColumns(problem, {.width = 20, .fontSize = 18});
  else
    ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void PropertiesOfEquations::ExplainProblem() {
  ExplainStep(step_, problem);
}

const LessonRegistration<PropertiesOfEquations> kRegistration("Properties of Equations");

}  // namespace
}  // namespace course
