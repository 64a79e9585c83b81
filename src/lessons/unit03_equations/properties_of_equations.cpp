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
  PageEnd();
  SayUnderBalance(
      R"(= means "is the same as", not "the answer is".  3 + 4 is the \cleft side\z, 7 )"
      R"(the \cright side\z.)");
  Say("May we exchange the sides?");
  PageEnd();
  balance.Show("7", "3 + 4");
  SayUnderBalance(Text("We may:  {} is just as good.", "7 = 3 + 4"));
  Say("What is wrong with this line?");
  PaperBox({R"(\r3 + 4 = 7 + 1 = 8\z)"});
  PageEnd();
  balance.Show("3 + 4", "8", Heavier::Right);
  GoBelow();  // the line that is spoken of stays in view
  Say(Text("It says that 3 + 4 is 8.  We need two equations:  {} and {}.", "3 + 4 = 7",
           "7 + 1 = 8"));
  PageEnd();
}

// What is tried for x in x + 3 = 8.
constexpr int kTrials[] = {4, 5, 6};
constexpr std::size_t kTrialColumns = 3;
constexpr double kCellFont = 16;  // points

void ShowTrials() {
  PrintCellTable table;
  table.heightPixels = 170;
  constexpr double kLefts[kTrialColumns] = {2, 35, 68};
  constexpr double kWidth = 30;
  const char* const kCaptions[kTrialColumns] = {"x", "x + 3", "x + 3 = 8"};
  for (std::size_t column = 0; column < kTrialColumns; ++column)
    table.labels.push_back(
        {kLefts[column], 2, kWidth, 14, kCaptions[column], 14, platform::colour::Blue, true});
  for (std::size_t row = 0; row < std::size(kTrials); ++row)
    for (const double left : kLefts)
      table.cells.push_back({left, 18.0 + 27 * static_cast<double>(row), kWidth, 25});
  CellTable(table, 7);
}

void FillTrials(std::size_t column) {
  using namespace platform::colour;
  for (std::size_t row = 0; row < std::size(kTrials); ++row) {
    const int x = kTrials[row];
    const bool fits = x + 3 == 8;
    const std::string texts[] = {NumStr(x), NumStr(x + 3), fits ? "true" : "false"};
    picPrintCellPrint(static_cast<int>(kTrialColumns * row + column) + 1, texts[column],
                      fits && column == 2 ? Blue : Black, kCellFont);
  }
}

void Solutions() {
  NewScreen();
  SayAt(3,
        R"(In \yx + 3 = 8\z the letter holds a place for a number.  Which number makes it true?)");
  ShowTrials();
  FillTrials(0);
  PageEnd();
  FillTrials(1);
  FillTrials(2);
  Say(R"(Only 5.  A number that makes an equation true is a \csolution\z of it.)");
  Say("Now look at x + 3 = 10.  Is x 5 here, too?");
  PageEnd();
  NewScreen();
  SayAt(3, "No, here x is 7.  It is a new equation.");
  Say(Text(R"(\yTry it:\z  Is {} a way to solve {}?)", "2 + 4 = 6", "x + x = 6"));
  PageEnd();
  Say(R"(No:  within one equation x \ykeeps its value\z.  Both x are 3.)");
  Say(R"(\yTry it:\z  Is -2 a solution?)");
  ShowAt(14, "3x + 10 = 4", 8);
  PageEnd();
  ShowAt(15.5, "3(-2) + 10 = 4", 5);
  ShowAt(16.5, "-6 + 10 = 4", 8);
  Say("Both sides are 4, so -2 is a solution.  Without parentheses 3 - 2 would be 1.");
  PageEnd();
}

void AddingOnBothSides() {
  NewScreen();
  SayAt(3, "May we put 4 on both pans?");
  Balance balance(kBalanceRow + 1);
  balance.Show("x - 4", "5");
  PageEnd();
  balance.PutOnBoth("+ 4");
  RuleBox(PrincipleOf(Operation::Add), {"Add the same number to both sides."},
          {.row = 14, .width = 36});
  Say("It is level.  And 4 on the left only?");
  PageEnd();
  ClearBelow(14);
  balance.Show("x - 4", "5");
  balance.PutOnLeft("+ 4");
  SayAt(14, "The left pan sinks:  they are not equal.");
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
  EquationSheet sheet(4, 16, {RowOf(given), AddendRow({0, 4}, "x"), RowOf(solved)});
  equations::WriteStatement(sheet, given);
  AddOnSheet(sheet, 4, solved);
  equations::OpenWordBox();
  SayInBox("Now x stands alone.  What if we add 1?");
  PageEnd();
  const LinearStatement other = {"x", {1, -3}, "=", {0, 6}};
  EquationSheet second(10, 16, {RowOf(given), AddendRow({0, 1}, "x"), RowOf(other)});
  equations::WriteStatement(second, given);
  AddOnSheet(second, 1, other);
  SayInBoxAnew(Text("Any number is allowed:  {}.  But only + 4 leaves x alone.", "9 - 3 = 6"));
  PageEnd();
}

void SubtractingOnBothSides() {
  const LinearStatement given = {"x", {1, 12}, "=", {0, 5}};
  const LinearStatement solved = {"x", {1, 0}, "=", {0, -7}};
  NewScreen();
  RuleBox(PrincipleOf(Operation::Subtract), {"Subtract the same number from both sides."},
          {.row = 3, .width = 36});
  EquationSheet sheet(7.5, 13, {RowOf(given), AddendRow({0, -12}, "x"), RowOf(solved)});
  equations::WriteStatement(sheet, given);
  SayAt(12, "Subtract 12:  is it 5 - 12 or 12 - 5?");
  PageEnd();
  AddOnSheet(sheet, -12, solved);
  ClearBelow(11);
  SayAt(13, Text(R"(12 is taken from 5.  \yTry it:\z  Subtract -6 from both sides of {}.)",
                 "x - 10 = -4"));
  PageEnd();
  const LinearStatement tried = {"x", {1, -10}, "=", {0, -4}};
  const LinearStatement after = {"x", {1, -4}, "=", {0, 2}};
  EquationSheet second(17, 20, {RowOf(tried), AddendRow({0, 6}, "x"), RowOf(after)});
  equations::WriteStatement(second, tried);
  AddOnSheet(second, 6, after);
  SayAt(21.5, "Subtracting -6 is the same as adding 6.");
  PageEnd();
}

void MultiplyingBothSides() {
  NewScreen();
  RuleBox(PrincipleOf(Operation::Multiply), {"Multiply both sides by the same number, not 0."},
          {.row = 3, .width = 38});
  SolutionLines lines(8);
  lines.Write("2x + 5", "11");
  SayAt(10.5, "Multiply by 3:  what becomes of the 5?");
  PageEnd();
  ClearBelow(9);
  lines.Write("3(2x + 5)", "3" + tutor::Gap + tutor::Dot + tutor::Gap + "11");
  lines.Write("6x + 15", "33");
  SayAt(13, R"(\yEvery\z term is multiplied, so it is 15.)");
  PaperBox({R"(\r6x + 5 = 33\z  is wrong.)"});
  PageEnd();
  ClearBelow(12);
  SayAt(13, "Why not 0?  We get 0 = 0, true for every x.  It no longer tells what x is.");
  SayAt(15.5, R"(\yTry it:\z  Multiply both sides by -1.)");
  SolutionLines tried(17);
  tried.Write("2", "x - 3");
  PageEnd();
  tried.Write("-1(2)", "-1(x - 3)");
  tried.Write("-2", "-x + 3");
  SayAt(21.5, "Every sign changes, on both sides.  And 5 was the solution, and still is.");
  PageEnd();
}

void DividingBothSides() {
  NewScreen();
  RuleBox(PrincipleOf(Operation::Divide), {"Divide both sides by the same number, not 0."},
          {.row = 3, .width = 38});
  SolutionLines lines(8);
  lines.Write("20", "-4x + 12");
  SayAt(10.5, "Divide by -4:  what becomes of the 12?");
  PageEnd();
  ClearBelow(10);
  lines.Write("20/(-4)", "(-4x + 12)/(-4)");
  lines.Write("-5", "x - 3");
  SayAt(14.5, R"(\yEvery\z term is divided:  12 becomes -3.)");
  Say("Why may we not divide by 0?");
  PageEnd();
  SayAt(19, "20 over 0 has no value, for no number times 0 is 20.");
  Say(Text("-2 solves both equations:  {}, and {}.", "8 + 12 = 20", "-2 - 3 = -5"));
  PageEnd();
}

void WhichStepWasIt() {
  NewScreen();
  SayAt(3, "Which step leads from the first equation to the second one?");
  ShowAt(6, "2x + 5 = 11", 5);
  ShowAt(6, "2x + 8 = 14", 23);
  isDrawArrowPointingRightWithColor(6, 20, platform::colour::Yellow, 3);
  PageEnd();
  SayAt(8,
        "2x stayed 2x.  So nothing was multiplied or divided.  From 11 to 14 it is 3 more, and "
        "from 5 "
        "to 8, too:  3 was added.");
  ShowAt(13, "2x + 6 = 10", 5);
  ShowAt(13, "x + 3 = 5", 23);
  isDrawArrowPointingRightWithColor(13, 20, platform::colour::Yellow, 3);
  PageEnd();
  SayAt(15, "2x became x.  So both sides were divided by 2:  2, 6 and 10 all were.");
  PageEnd();

  NewScreen();
  SayAt(3, "Here 5 was added to both sides:");
  ShowAt(5.5, "2x + 3 = 9", 5);
  ShowAt(5.5, "2x + 8 = 14", 23);
  isDrawArrowPointingRightWithColor(5.5, 20, platform::colour::Yellow, 3);
  SayAt(7.5, R"(\yTry it:\z  Which subtraction does the same?)");
  PageEnd();
  Say(R"(\ySubtracting -5\z does.  In the same way, adding -5 is subtracting 5.)");
  Say(Text(R"(\yWatch out:\z  Adding 3 to {} gives {}, not {}.)", "2x + 5", "2x + 8", "5x + 5"));
  PageEnd();
}

void WhichStepComesFirst() {
  const LinearStatement given = {"x", {2, 3}, "=", {0, 11}};
  const LinearStatement middle = {"x", {2, 0}, "=", {0, 8}};
  NewScreen();
  SayAt(3, "Some steps bring us nearer to x alone.");
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
  SayInBox("Check:  2 times 4, plus 3, is 11.");
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
            {SubtractingOnBothSides},
            {MultiplyingBothSides},
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
