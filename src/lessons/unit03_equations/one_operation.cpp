// The student can solve an equation in which one thing was done to the letter, such as x + 4 = 19
// or 3x = 15: undo it on both sides by the inverse operation, and check.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/families/equations/substitution.h"
#include "lessons/families/equations/walk_line.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace equations;

// --- Tables ------------------------------------------------------------------

// Three columns of print cells, of which some rows are filled later.
using TableRow = std::array<std::string, 3>;
constexpr double kCellFontSize = 16;  // points

void ShowTable(const TableRow& captions, int rows, double row) {
  constexpr double kLefts[] = {2, 35, 68};
  constexpr double kWidth = 30;
  const double step = 86.0 / rows;
  PrintCellTable table;
  table.heightPixels = 35 + 48 * rows;
  for (std::size_t column = 0; column < captions.size(); ++column)
    table.labels.push_back(
        {kLefts[column], 2, kWidth, 12, captions[column], 14, platform::colour::Blue, true});
  for (int i = 0; i < rows; ++i)
    for (const double left : kLefts) table.cells.push_back({left, 15 + step * i, kWidth, step - 2});
  CellTable(table, row);
}

// An empty text leaves its cell as it is.
void FillRow(int row, const TableRow& texts, platform::Colour colour = platform::colour::Black) {
  int cell = 3 * (row - 1);
  for (const std::string& text : texts) {
    ++cell;
    if (text.empty()) continue;
    picPrintCellCls(cell);
    picPrintCellPrint(cell, text, colour, kCellFontSize);
  }
}

const std::string kTimes3 = tutor::Times + " 3";
const std::string kBy3 = tutor::Divided + " 3";

// --- Screen 1: undoing -------------------------------------------------------

constexpr double kTableRow = 6;
const TableRow kMachineCaptions = {"goes in", "machine", "comes out"};

std::string Forward(const std::string& operation) {
  return tutor::RightArrow + " " + operation + " " + tutor::RightArrow;
}
std::string Backward(const std::string& operation) {
  return tutor::LeftArrow + " " + operation + " " + tutor::LeftArrow;
}

void MachineThatAdds() {
  NewScreen();
  Say("This machine adds 4 to each number.  10 goes in.  What comes out?");
  ShowTable(kMachineCaptions, 4, kTableRow);
  FillRow(1, {"3", Forward("+ 4"), "7"});
  FillRow(2, {"10", Forward("+ 4"), "?"}, platform::colour::Blue);
  PageEnd();
  FillRow(2, {"10", Forward("+ 4"), "14"});
  FillRow(3, {"x", Forward("+ 4"), "19"}, platform::colour::Blue);
  Say(Text(R"(14 comes out.  Then x goes in, and 19 comes out:  \y{}\z)", "x + 4 = 19."));
  Say("Which number is x?");
  PageEnd();
  FillRow(4, {"15", Backward("- 4"), "19"}, platform::colour::Blue);
  ClearBelow(18);
  SayAt(18,
        Text(R"(We let the machine run \ybackward\z.  Then it subtracts 4:  {})", "19 - 4 = 15."));
  Say(Text("So x is 15.  Check:  {}", "15 + 4 = 19."));
  PageEnd();
}

void MachineThatMultiplies() {
  NewScreen();
  Say("The next machine multiplies by 3.  Which number is x here?");
  ShowTable(kMachineCaptions, 3, kTableRow);
  FillRow(1, {"2", Forward(kTimes3), "6"});
  FillRow(2, {"x", Forward(kTimes3), "15"}, platform::colour::Blue);
  PageEnd();
  FillRow(3, {"5", Backward(kBy3), "15"}, platform::colour::Blue);
  Say(Text(R"(Backward it \ydivides\z by 3:  {})", "15 " + kBy3 + " = 5."));
  Say(R"(Operations that undo each other are called \cinverse operations\z:)");
  PaperBox({"+ 4  and  - 4      " + kTimes3 + "  and  " + kBy3});
  PageEnd();
}

void WhatUndoesIt() {
  NewScreen();
  Say("What was done to x?  What undoes it?");
  ShowTable({"expression", "was done", "undoes it"}, 4, 5);
  FillRow(1, {"x + 3", "+ 3", "- 3"});
  FillRow(2, {"x - 7", "?", "?"});
  FillRow(3, {"5x", "?", "?"});
  FillRow(4, {"-2x", "?", "?"});
  PageEnd();
  FillRow(2, {"", "- 7", "+ 7"}, platform::colour::Blue);
  FillRow(3, {"", tutor::Times + " 5", tutor::Divided + " 5"}, platform::colour::Blue);
  FillRow(4, {"", tutor::Times + " (-2)", tutor::Divided + " (-2)"}, platform::colour::Blue);
  Say("5x is 5 times x, and -2x is -2 times x.  So we divide.");
  PageEnd();
}

// --- Screen 2: adding to both sides ------------------------------------------

void AddingToBothSides() {
  const LinearStatement equation = {"x", {1, 4}, "=", {0, 19}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("We write what we do under the equation.");
  WriteStatement(sheet, equation);
  OpenWordBox();
  SayInBox("4 was added to x.  What do we add to both sides to remove it?");
  PageEnd();
  WriteAddend(sheet, addition);
  SayInBoxAnew(R"(We add \b-4\z.  That is the same as subtracting 4.)");
  SayInBox("Why do we add it to both sides?");
  PageEnd();
  WriteSum(sheet, addition);
  sheet.MarkSolution();
  SayInBoxAnew("So both sides stay equal.");
  SayInBox(R"(x is the \bvariable\z.  It stands alone:  we have \bisolated the variable\z.)");
  PageEnd();
  SayInBoxAnew(R"(15 is the \bsolution\z, the number that makes the equation true:)");
  SaySubstituted(equation, 15);
  PageEnd();
}

// -3 + 7: unlike signs.
void AddingPositive() {
  const LinearStatement equation = {"x", {1, -7}, "=", {0, -3}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("What do we add?  What is the right side?");
  WriteStatement(sheet, equation);
  DrawWalkLine(-3);
  PageEnd();
  OpenWordBox();
  WriteAddend(sheet, addition);
  WalkFrom(-3, 7);
  WriteSum(sheet, addition);
  sheet.MarkSolution();
  SayInBox(R"(We go 7 to the \bright\z, to 4.)");
  PageEnd();
  SayInBox(Text("-3 and 7 have different signs:  {}.  7 is farther from 0, so the sum is positive.",
                "7 - 3 = 4"));
  PageEnd();
}

// -3 + (-5): two negatives.
void AddingNegative() {
  const LinearStatement equation = {"x", {1, 5}, "=", {0, -3}};
  const Addition addition = AdditionsOf(equation)[0];
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("What do we add, and which way do we go?");
  WriteStatement(sheet, equation);
  DrawWalkLine(-3);
  PageEnd();
  OpenWordBox();
  WriteAddend(sheet, addition);
  WalkFrom(-3, -5);
  WriteSum(sheet, addition);
  sheet.MarkSolution();
  SayInBox(R"(We go 5 to the \bleft\z, to -8.)");
  PageEnd();
  SayInBox(
      "Watch out:  two negative numbers make a positive when we multiply them, not when we "
      "add them.");
  PageEnd();
}

// What students write in solving an equation, a row each; behind it what comes out when they check.
constexpr double kFirstStudentsRow = 6;
constexpr double kStudentRows = 2;

void ShowStudents(const std::vector<std::string>& texts, double col = 3) {
  double row = kFirstStudentsRow;
  for (const std::string& text : texts) {
    ShowAt(row, text, col);
    row += kStudentRows;
  }
}

void ShowChecks(const std::vector<std::string>& checks) {
  constexpr double kCol = 29;
  ShowStudents(checks, kCol);
}

void ThreeStudents() {
  NewScreen();
  Say(Text("Who is right about  {}?  Check.", "x + 9 = 4"));
  ShowStudents({"Suzy:  x = 4 - 9 = -5", "Paul:  x = 9 - 4 = 5", "Sam:   x + 9 + 4 = 0, x = -13"});
  PageEnd();
  ShowChecks({R"(\y-5 + 9 = 4\z)", R"(\y5 + 9 = 14\z)"});
  SayAt(12, R"(Sam's check:  \y-13 + 9 = -4\z)", {.col = 3});
  Say("Suzy is right.  She took 9 away from 4.");
  PageEnd();
  PaperBox({R"(\r5 + 9 = 14\z:  Paul subtracts in the wrong order.)"});
  Say("Sam:  when 4 leaves the right side, we must add -4 to both sides:");
  Show("x + 9 - 4 = 0");
  PageEnd();
}

// --- Screen 3: dividing both sides -------------------------------------------

void DividingBothSides() {
  const LinearStatement equation = {"x", {3, 0}, "=", {0, 15}};
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("x was multiplied.  What undoes it?");
  WriteStatement(sheet, equation);
  OpenWordBox();
  SayInBox(R"(The number in front of the letter is its \bcoefficient\z.)");
  PageEnd();
  WriteDivision(sheet, equation, "=");
  SayInBoxAnew(R"(We divide both sides by the coefficient \b3\z.)");
  SayInBox("What is left of 3x over 3?");
  PageEnd();
  sheet.WriteSolved("x", "=", "5");
  sheet.MarkSolution();
  SayInBoxAnew("");
  SayBullet("3 over 3 is 1, so 1x is left, and 1x is just x.");
  SayBullet(Text("15 over 3 is 5, because {}.", ProductText(3, 5) + " = 15"));
  PageEnd();
}

void SumForProduct() {
  NewScreen();
  Say("Suzy and Paul solve  3x = 15.  Check both answers.  Who is right?");
  ShowStudents({"Suzy:  x = 15 - 3 = 12", "Paul:  x = 15 " + kBy3 + " = 5"});
  PageEnd();
  ShowChecks(
      {R"(\y)" + ProductText(3, 12) + R"( = 36\z)", R"(\y)" + ProductText(3, 5) + R"( = 15\z)"});
  PaperBox({R"(\r)" + ProductText(3, 12) + R"( = 36\z, not 15.  x was multiplied by 3,)",
            "so subtracting 3 does not undo it.  Paul is right."},
           10.5);
  PageEnd();
}

void NegativeCoefficient() {
  const LinearStatement equation = {"x", {-4, 0}, "=", {0, 12}};
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("What do we divide by here?");
  WriteStatement(sheet, equation);
  PageEnd();
  OpenWordBox();
  WriteDivision(sheet, equation, "=");
  SayInBox(R"(By \b-4\z.  The minus sign is a part of the coefficient.)");
  SayInBox("Is the answer positive or negative?");
  PageEnd();
  sheet.WriteSolved("x", "=", "-3");
  sheet.MarkSolution();
  SayInBoxAnew(R"(\bNegative\z:  12 and -4 have different signs.)");
  PageEnd();
  SayInBoxAnew("Check:  we put -3 in parentheses.");
  SaySubstituted(equation, -3);
  SayInBox(Text(R"(Watch out:  \r{}\z is a subtraction.)", "-4 - 3"));
  PageEnd();
}

void OneOperationInShort() {
  NewScreen();
  RuleBox("One Operation",
          {"1. What was done to the letter?", "2. Undo it on both sides.", "3. Check."},
          {.row = 3, .width = 34});
  PageEnd();
  Say(R"(\yTry it:\z  Solve these three.)");
  const char* const kAsked[] = {"A   m + 8 = -2", "B   -6n = -42", "C   y - 9 = -4"};
  const char* const kAnswers[] = {"m = -10", "n = 7", "y = 5"};
  const std::string checks[] = {"-10 + 8 = -2", ProductText(-6, 7) + " = -42", "5 - 9 = -4"};
  const double first = NextRow() + 1;
  for (int i = 0; i < 3; ++i) ShowAt(first + 2 * i, kAsked[i], 2);
  PageEnd();
  for (int i = 0; i < 3; ++i) {
    ShowAt(first + 2 * i, std::string(R"(\y)") + kAnswers[i] + R"(\z)", 18);
    ShowAt(first + 2 * i, checks[i], 28);
  }
  Say("We add -8, divide by -6, and add 9.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class OneOperation final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{MachineThatAdds, MachineThatMultiplies, WhatUndoesIt},
            {AddingToBothSides, AddingPositive, AddingNegative, ThreeStudents},
            {DividingBothSides, SumForProduct, NegativeCoefficient, OneOperationInShort}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawNumbers(RandomStream& random);

  LinearStatement equation_;  // x + b = c, or a x = c
};

// --- Generator ---------------------------------------------------------------

void OneOperation::DrawNumbers(RandomStream& random) {
  auto& [a, b] = equation_.left;
  const bool adds = random.Rand(1, 2) == 1;
  a = 1;
  b = 0;
  if (!adds) {
    do a = DrawCoefficient(random);
    while (std::abs(a) == 1);  // nothing to divide by, or a mere sign
  }
  if (adds) b = DrawNumber(random);
  equation_.right.number = DrawNumber(random);
}

// Half of the draws are accepted.  Few quotients are whole: five problems in six are of the first
// kind.
void OneOperation::DrawProblem(RandomStream& random) {
  equation_ = {};
  equation_.letter = random.OneOf("mnrtxy");
  const auto fits = [this] {
    const auto [a, b] = equation_.left;
    return a != 0 && (a != 1 || b != 0) &&  // nothing was done to the letter
           equation_.right.number != 0 &&   // an answer at sight
           SizesDiffer(equation_) &&        // mistakes that agree
           HasWholeSolution(equation_);     // solved by hand
  };
  do DrawNumbers(random);
  while (!fits());

  SetLinearProblem(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void OneOperation::ShowProblem() {
  ShowStatement(equation_, problem);
  ShowAnswersInThreeColumns(problem, {.row = 16.5});
}

// --- Worked explanation ------------------------------------------------------

void OneOperation::ExplainProblem() {
  ExplainLinear(equation_, problem);
}

const LessonRegistration<OneOperation> kRegistration("Solving Linear Equations With 1 Operation");

}  // namespace
}  // namespace course
