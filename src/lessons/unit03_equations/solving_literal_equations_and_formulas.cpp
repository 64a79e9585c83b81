// The student can solve a formula, or another equation with several letters, for one of them: by
// the steps that are used for numbers, with letters in place of some of the numbers.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_sheet.h"
#include "lessons/families/formulas/literal_equation.h"
#include "lessons/families/formulas/literal_explanation.h"
#include "lessons/families/formulas/solution_lines.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace formulas;
using equations::EquationSheet;
using equations::SheetRow;

// --- Teaching screens --------------------------------------------------------

// An equation with numbers at the left of a line, and the same with letters at the right.
class TwoBoards {
 public:
  explicit TwoBoards(double row) : numbers_(row, 10), letters_(row, 31) {
    isDrawVertLine(20, row, row + 7, 2);
  }
  void Write(const std::string& numbersLeft, const std::string& numbersRight,
             const std::string& lettersLeft, const std::string& lettersRight) {
    const auto height = (lettersLeft + lettersRight).find('/') != std::string::npos
                            ? SolutionLines::Height::Fraction
                            : SolutionLines::Height::AsNeeded;
    numbers_.Write(numbersLeft, numbersRight, height);
    letters_.Write(lettersLeft, lettersRight, height);
  }

 private:
  SolutionLines numbers_;
  SolutionLines letters_;
};

void SameSteps() {
  constexpr double kWordsRow = 20.5;
  NewScreen();
  SayAt(3, R"(A \cliteral equation\z is an equation with two or more letters.  A \cformula\z is )"
           "one that tells how quantities are related:");
  ShowAt(6.5, "d = rt", 17);
  PageEnd();
  SayAt(8, R"(A distance is the rate times the time.  We know d and r, and look for \yt\z.  By )"
           "what do we divide both sides?");
  TwoBoards boards(12);
  boards.Write("12", "3t", "d", "rt");
  PageEnd();
  boards.Write("12/3", "3t/3", "d/r", "rt/r");
  SayAt(kWordsRow, "By 3, or by r, if r is not 0.  What is left on the right sides?");
  PageEnd();
  boards.Write("4", "t", "d/r", "t");
  ClearBelow(kWordsRow);
  SayAt(kWordsRow,
        R"(Only t:  it is \cisolated\z, alone on its side.  The formula is solved for t.)");
  AddLine(R"(\yTry it:\z  Solve d = rt for r.)");
  PageEnd();
  ClearBelow(kWordsRow);
  SayAt(kWordsRow, "If t is not 0, we divide both sides by t:  r = d/t.");
  PageEnd();
}

// An equation of two terms on a sheet over the white box.
EquationSheet SheetOf(const SheetRow& given, const SheetRow& addend, const SheetRow& sum) {
  EquationSheet sheet(equations::kSheetTop, 16.5, {given, addend, sum});
  sheet.Write(given, "=");
  equations::OpenWordBox();
  return sheet;
}

std::string Behind(const std::string& sign, const std::string& term) {
  return tutor::Gap + sign + tutor::Gap + term;
}

void SubtractingALetter() {
  NewScreen();
  SayAt(3, R"(Let's solve this one for \yx\z.)");
  const SheetRow addend = {"", Behind("-", "4y"), "", Behind("-", "4y")};
  const SheetRow sum = {"x", "", "z", Behind("-", "4y")};
  EquationSheet sheet = SheetOf({"x", Behind("+", "4y"), "z", ""}, addend, sum);
  SayInBox("4y is added to x.  How do we remove it from the left side?");
  PageEnd();
  sheet.AddUnder(addend);
  sheet.WriteSum(sum, "=");
  SayInBoxAnew(R"(We subtract \b4y\z from both sides.)");
  SayInBox("Could we now put z and 4y together?");
  PageEnd();
  SayInBoxAnew(R"(No:  \r-4yz\z or \r-3yz\z would be wrong.  They are not like terms.)");
  SayInBox("So the answer has two terms, and x is isolated.");
  PageEnd();
}

void DividingBothTerms() {
  NewScreen();
  SayAt(3, "Now x has a coefficient.");
  const SheetRow addend = {"", Behind("-", "4y"), "", Behind("-", "4y")};
  const SheetRow sum = {"3x", "", "z", Behind("-", "4y")};
  EquationSheet sheet = SheetOf({"3x", Behind("+", "4y"), "z", ""}, addend, sum);
  SayInBox("x was multiplied by 3, then 4y was added.  Which do we undo first?");
  PageEnd();
  sheet.AddUnder(addend);
  sheet.WriteSum(sum, "=");
  SayInBoxAnew("The last one:  we subtract 4y, which is the same as adding -4y.");
  PageEnd();
  sheet.WriteQuotients({"3x", "z - 4y", "3"}, "=");
  SayInBoxAnew(R"(We divide both sides by \b3\z.)");
  SayInBox(R"(Watch out:  the whole side is divided.  \rz/3 - 4y\z is wrong.)");
  PageEnd();
  sheet.WriteSolved("x", "=", "(z - 4y)/3");
  SayInBoxAnew(
      Text("Check:  {}, {}, {} fit, for {} is true.", "x = 2", "y = 1", "z = 10", "6 + 4 = 10"));
  SayInBox(Text("The answer gives {}.", "(10 - 4)/3 = 6/3 = 2"));
  PageEnd();
}

void NegativeCoefficient() {
  NewScreen();
  SayAt(3, "The coefficient is -5.  We divide by it:");
  const SheetRow given = {"-5x", "", "z", Behind("-", "2y")};
  EquationSheet sheet = SheetOf(given, given, given);
  sheet.WriteQuotients({"-5x", "z - 2y", "-5"}, "=");
  SayInBox("How can we write it with 5 below?");
  PageEnd();
  sheet.WriteSolved("x", "=", "(2y - z)/5");
  SayInBoxAnew("We multiply numerator and denominator by -1.  The value stays the same:");
  SayInBox("z - 2y becomes -z + 2y, or 2y - z.");
  PageEnd();
}

void LetterAsCoefficient() {
  constexpr double kWordsRow = 16;
  NewScreen();
  SayAt(3, R"(Now the coefficient is a letter, and \yx\z stands on the right side.)");
  TwoBoards boards(7);
  boards.Write("19", "3x + 4", "c", "ax + b");
  SayAt(kWordsRow, "What do we subtract from both sides?");
  PageEnd();
  boards.Write("15", "3x", "c - b", "ax");
  ClearBelow(kWordsRow);
  SayAt(
      kWordsRow,
      "We subtract 4, or b, from both sides, not only from the right side.  By what do we divide?");
  PageEnd();
  boards.Write("5", "x", "(c - b)/a", "x");
  ClearBelow(kWordsRow);
  SayAt(kWordsRow, "By 3, or by a, if a is not 0.  The sides are equal, so we may exchange them:");
  ShowAt(20, "x = (c - b)/a", 27);
  PageEnd();
}

// Sides a and b.
void DrawRectangle(double row) {
  isDrawBox(row, 29, row + 2, 36, platform::colour::Cyan, 2);
  ShowAt(row + 3, "a", 32);
  ShowAt(row + 1, "b", 38);
}

void SumInParentheses() {
  NewScreen();
  SayAt(3, "The way around a rectangle is its perimeter P:", {.lastCol = 26});
  DrawRectangle(3);
  ShowAt(6, "P = a + b + a + b", 7);
  SayAt(7.5, "How many times is a + b there?");
  PageEnd();
  ClearBelow(7.5);
  SayAt(7.5, "Two times:");
  ShowAt(7.5, "P = 2(a + b)", 13);
  SayAt(9, R"(Let's solve for \ya\z.  What was done last?)");
  PageEnd();
  SayAt(10.5, "The sum was multiplied by 2.  So we divide both sides by 2:");
  ShowAt(14, "P/2 = a + b", 10);
  PageEnd();
  SayAt(16.5, "Then we subtract b from both sides:");
  ShowAt(19, "P/2 - b = a", 6);
  ShowAt(19, "a = P/2 - b", 24);
  SayAt(21.5, "Two letters may be the same number:  in a square, a = b.");
  PageEnd();
  NewScreen();
  SayAt(3, Text("A minus alone is the factor -1:  {}.", "-(x + y) = -1(x + y)"));
  SayAt(7, R"(\yTry it:\z  Solve for x.)");
  ShowAt(9, "-4(x + y) = -6z", 6);
  PageEnd();
  SayAt(11, "Divide by -4:  -6 over -4 is 3 over 2.");
  ShowAt(14, "x + y = 3z/2", 9);
  SayAt(16.5, "Then we subtract y:");
  ShowAt(19.5, "x = 3z/2 - y", 13);
  PageEnd();
}

// Half of a rectangle: base b and height h.
void DrawTriangle(double row) {
  isDrawBox(row, 29, row + 2, 36, platform::colour::Cyan, 1);
  isDrawDiagonalLineWithColor(row + 2.45, 28.5, row - 0.5, 36.5, 2, platform::colour::Yellow);
  ShowAt(row + 3, "b", 32);
  ShowAt(row + 1, "h", 38);
}

void AreaOfATriangle() {
  NewScreen();
  SayAt(3, "Half of a rectangle is a triangle.  Its area is", {.lastCol = 26});
  DrawTriangle(3);
  ShowAt(6.5, "A = bh/2", 9);
  SayAt(9.3, R"(Let's solve for \yh\z.  What undoes the 2?)");
  PageEnd();
  SayAt(11.5, "We multiply both sides by 2:");
  ShowAt(13.5, "2A = bh", 8);
  SayAt(16, "We divide by b, which is not 0:");
  ShowAt(19, "2A/b = h", 7);
  ShowAt(19, "h = 2A/b", 22);
  PageEnd();
}

void FractionInFront() {
  NewScreen();
  SayAt(3, R"(C degrees Celsius are F degrees Fahrenheit.  We solve for \yC\z.)");
  ShowAt(6.5, "F = 9/5 C + 32", 12);
  SayAt(9, "What do we undo first?");
  PageEnd();
  SayAt(9, "We subtract 32, which was added last:");
  ShowAt(11.5, "F - 32 = 9/5 C", 7);
  SayAt(14, "By what do we multiply, so that only C is left on the right side?");
  PageEnd();
  ClearBelow(14);
  SayAt(14, Text("By 5/9, the fraction upside down:  {}.", "5/9 " + tutor::Times + " 9/5 = 1"));
  ShowAt(18, "5/9 (F - 32) = C", 3);
  ShowAt(18, "C = 5/9 (F - 32)", 23);
  PageEnd();
  SayAt(20.5, Text(R"(\yCheck:\z  F = 212 gives C = 100:  5/9 of 180 is 100.  They fit the given )"
                   "formula:  9/5 of 100 is 180, and {}.",
                   "180 + 32 = 212"));
  PageEnd();
}

void ProblemWithAFraction() {
  NewScreen();
  SayAt(3, R"(So we isolate a letter step by step, and undo \ylast things first\z.)");
  SayAt(6, R"(\yTry it:\z  Solve for x.)");
  ShowAt(8.5, "y = -3/4 x + 5z", 11);
  PageEnd();
  SayAt(11, "We subtract 5z, then we multiply by -4/3, for -4/3 times -3/4 is 1:");
  ShowAt(14.5, "y - 5z = -3/4 x", 6);
  ShowAt(18, "x = -4/3 (y - 5z)", 11);
  PageEnd();
  SayAt(20.5, R"(\yWatch out:\z  -4/3 keeps its minus sign.)");
  PaperBox({R"(\rx = -4y/3 - 5z\z  leaves 5z as it was.)"}, 22);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SolvingLiteralEquationsAndFormulas final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SameSteps, SubtractingALetter, DividingBothTerms, NegativeCoefficient,
             LetterAsCoefficient, SumInParentheses, AreaOfATriangle, FractionInFront,
             ProblemWithAFraction}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LiteralEquation equation_;
};

// --- Generator ---------------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::DrawProblem(RandomStream& random) {
  equation_ = DrawLiteralEquation(random);
  SetLiteralProblem(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 6);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SolvingLiteralEquationsAndFormulas::ExplainProblem() {
  ExplainLiteral(equation_, problem);
}

const LessonRegistration<SolvingLiteralEquationsAndFormulas> kRegistration(
    "Solving Literal Equations and Formulas");

}  // namespace
}  // namespace course
