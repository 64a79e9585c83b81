// The student can solve an equation with the letter on both sides, such as 5x + 7 = 2x + 19: bring
// the letters to one side and the numbers to the other, divide, and check both sides.
#include "lessons/families/equations/equation_explanation.h"
#include "lessons/families/equations/equation_machine.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace equations;

constexpr int kSmallestDifference = 2;  // of the coefficients' sizes

// --- Teaching screen ---------------------------------------------------------

// A side of an equation as a bar; a piece is as many columns long as it is worth.
struct Piece {
  int units;
  std::string text;
  platform::Colour colour = platform::colour::White;
};
constexpr double kBarCol = 7.5;
constexpr double kLeftBarRow = 6;  // of the left side; that of the right side stands under it
constexpr double kRightBarRow = 8.5;
constexpr double kEquationRow = 12;  // of the first one under the bars
constexpr double kWordsRow = 19.5;

void DrawBar(double row, double col, const std::vector<Piece>& pieces) {
  for (const Piece& piece : pieces) {
    Locate(row, col + (piece.units - static_cast<double>(piece.text.size())) / 2);
    isColorPrints(piece.text, piece.colour);
    isDrawBox(row - 0.2, col, row + 0.3, col + piece.units - 1, platform::colour::Cyan, 2);
    col += piece.units;
  }
}

// The same columns of both bars, with their frames, go aside.
void TakeAway(double col, double width, double columns) {
  constexpr double kPixel = 1.0 / gCellWidth;  // a line begins one pixel before its cell
  const Cells cells = {kLeftBarRow - 0.5, col - kPixel, width + kPixel,
                       kRightBarRow - kLeftBarRow + 1.9};
  (columns < 0 ? SlideLeft : SlideRight)(cells, std::abs(columns), Leaving::Nothing, Pace::Usual);
}

void SayUnderBars(const std::string& text) {
  ClearBelow(kWordsRow);
  SayAt(kWordsRow, text);
}

const Piece kX = {4, "x"};
const Piece kMarkedX = {4, "x", platform::colour::Yellow};
const Piece kSeven = {7, "7"};
const Piece kMarkedSeven = {7, "7", platform::colour::Yellow};

void EqualBars() {
  NewScreen();
  Say("Which parts are the same in both bars?");
  ShowAt(kEquationRow, "5x + 7 = 2x + 19", 12);
  DrawBar(kLeftBarRow, kBarCol, {kX, kX, kX, kX, kX, kSeven});
  DrawBar(kRightBarRow, kBarCol, {kX, kX, {19, "19"}});
  PageEnd();
  SayUnderBars(
      R"(Both have \y2x\z:  now x is on both sides.  The sides are equal, so the bars are equally )"
      "long.  Are they still, if we take 2x from both?");
  PageEnd();
}

void ShorterBars() {
  const double rest = kBarCol + 2 * kX.units;
  const double sevens = rest + 3 * kX.units;
  DrawBar(kLeftBarRow, kBarCol, {kMarkedX, kMarkedX});
  DrawBar(kRightBarRow, kBarCol, {kMarkedX, kMarkedX});
  TakeAway(kBarCol, rest - kBarCol, -6);
  DrawBar(kLeftBarRow, rest, {kX, kX, kX, kSeven});
  DrawBar(kRightBarRow, rest, {{19, "19"}});
  ShowAt(kEquationRow + 2, "3x + 7 = 19", 12);
  SayUnderBars(R"(Yes, both lost \y2x\z.  What is next?)");
  PageEnd();
  ClearCells(kRightBarRow, rest + 1, 17, 1);
  DrawBar(kLeftBarRow, sevens, {kMarkedSeven});
  DrawBar(kRightBarRow, rest, {{12, "12"}, kMarkedSeven});
  TakeAway(sevens, kSeven.units, 5);
  DrawBar(kLeftBarRow, rest, {kX, kX, kX});
  DrawBar(kRightBarRow, rest, {{12, "12"}});
  ShowAt(kEquationRow + 4, "3x = 12", 16);
  SayUnderBars(R"(We take away \y7\z.  How long is one x?)");
  PageEnd();
  ClearCells(kRightBarRow, rest + 1, 10, 1);
  const Piece four = {4, "4"};
  DrawBar(kRightBarRow, rest, {four, four, four});
  ShowAt(kEquationRow + 6, "x = 4", 17);
  SayUnderBars(Text(R"({} is 4.  So \yx is 4\z.)", "12 " + tutor::Divided + " 3"));
  PageEnd();
}

void StepUnderStep() {
  const LinearStatement equation = {"x", {5, 7}, "=", {2, 19}};
  const std::vector<Addition> additions = AdditionsOf(equation);
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("On paper we take the same steps.");
  WriteStatement(sheet, equation);
  OpenWordBox();
  SayInBox("Which term with x must leave the right side, and how?");
  PageEnd();
  WriteAddend(sheet, additions[0]);
  SayInBoxAnew(R"(The \bopposite\z of 2x is -2x.  To remove 2x, we add \b-2x\z to both sides.)");
  SayInBox("What does each side become?");
  PageEnd();
  WriteSum(sheet, additions[0]);
  SayInBoxAnew(Text("{} is 3x.  On the right side 2x and -2x add up to 0.", "5x + (-2x)"));
  SayInBox("What do we add now?");
  PageEnd();
  WriteAddition(sheet, additions[1]);
  SayInBoxAnew(Text(R"(We add \b-7\z:  {})", "19 - 7 = 12."));
  SayInBox("Watch out:  it is not 7 - 19.");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(equation), "=");
  sheet.WriteSolved("x", "=", "4");
  sheet.MarkSolution();
  SayInBoxAnew(R"(We divide by the coefficient \b3\z.)");
  SayInBox("How do we check the answer?");
  PageEnd();
  SayInBoxAnew("We put 4 in place of each x.");
  SaySubstituted(equation, 4);
  PageEnd();
}

void OrderOfSteps() {
  NewScreen();
  RuleBox("Letters Left, Numbers Right",
          {"1. Remove the letter's term from the right:", "add its opposite to both sides."},
          {.row = 3, .width = 38});
  Say("What do we do next?");
  PageEnd();
  PaperBox({"2. Remove the number from the left the same way.",
            "3. Divide both sides by the coefficient.  Check."});
  Say("Could we remove 5x from the left side?");
  Show("5x + 7 = 2x + 19", 7);
  PageEnd();
  constexpr double kEqualCol = 14;
  constexpr double kStepCol = 26;
  const std::pair<std::string, std::string> lines[] = {
      {"7 = -3x + 19", "add -5x"}, {"-12 = -3x", "add -19"}, {"4 = x", "divide by -3"}};
  double row = NextRow();
  for (const auto& [line, step] : lines) {
    ShowAt(row, line, kEqualCol - static_cast<double>(line.find('=')));
    ShowAt(row, R"(\y)" + step + R"(\z)", kStepCol);
    ++row;
  }
  Say("We may:  4 = x  says the same as  x = 4.");
  PageEnd();
}

void KeptSign() {
  constexpr double kSumCol = 28;
  NewScreen();
  Say("Suzy and Paul remove 4x.  Who is right?");
  ShowAt(5, "-7x - 5 = 4x + 17", 9);
  ShowAt(7, "Suzy:  -11x - 5 = 17");
  ShowAt(9, "Paul:   -3x - 5 = 17");
  PageEnd();
  ShowAt(7, R"(\y-7x + (-4x)\z)", kSumCol);
  ShowAt(9, R"(\y-7x + 4x\z)", kSumCol);
  SayAt(11, "Suzy is right.  To remove 4x, she added -4x to both sides.");
  PageEnd();
  PaperBox({"Paul added 4x.  On the right that makes", R"(\r4x + 4x = 8x\z, not 0.)"});
  Say(R"(\yWatch out:\z  two negative terms add up to a negative one, to -11x, not to 11x.)");
  PageEnd();
}

void NegativeTerms() {
  const LinearStatement equation = {"x", {-7, -5}, "=", {4, 17}};
  const std::vector<Addition> additions = AdditionsOf(equation);
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("We go on with Suzy's equation.");
  WriteStatement(sheet, equation);
  WriteAddition(sheet, additions[0]);
  OpenWordBox();
  SayInBox("What do we add next?");
  PageEnd();
  WriteAddition(sheet, additions[1]);
  SayInBoxAnew(R"(We add \b+5\z.)");
  SayInBox("What do we divide by?");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(equation), "=");
  sheet.WriteSolved("x", "=", "-2");
  sheet.MarkSolution();
  SayInBoxAnew(R"(By \b-11\z.  The signs differ, so x is -2.)");
  SayInBox("To check, what is -7x when x is -2?");
  PageEnd();
  SayInBoxAnew(Text(R"(It is {}, not \r{}\z:)", "-7" + tutor::Dot + "(-2)", "-7 - 2"));
  SaySubstituted(equation, -2);
  PageEnd();
}

void NegativeTermOnTheRight() {
  const LinearStatement equation = {"x", {6, 3}, "=", {-1, -18}};
  const std::vector<Addition> additions = AdditionsOf(equation);
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say("What removes -x from the right side?");
  WriteStatement(sheet, equation);
  PageEnd();
  OpenWordBox();
  WriteAddition(sheet, additions[0]);
  SayInBox(R"(Adding \b+x\z does:  6x + 1x is 7x.)");
  SayInBox("Then we add -3.  What is -18 + (-3)?");
  PageEnd();
  WriteAddition(sheet, additions[1]);
  SayInBoxAnew("It is -21.  We go 3 more to the left.");
  SayInBox("Watch out:  it is not 21 and not -15.");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(equation), "=");
  sheet.WriteSolved("x", "=", "-3");
  sheet.MarkSolution();
  SayInBoxAnew(R"(The signs differ, so -21 over \b7\z is -3.)");
  SayInBox("To check, what is -x when x is -3?");
  PageEnd();
  SayInBoxAnew(Text("-x is -1x, so it is {}.", "-(-3) = 3"));
  SaySubstituted(equation, -3);
  PageEnd();
}

void BothTermsNegative() {
  const LinearStatement equation = {"x", {-9, 5}, "=", {-2, -9}};
  const std::vector<Addition> additions = AdditionsOf(equation);
  EquationSheet sheet = SheetFor(equation);
  NewScreen();
  Say(R"(\yTry it:\z  Solve this one on paper.  Which two terms do we add?  What is x?)");
  WriteStatement(sheet, equation);
  PageEnd();
  OpenWordBox();
  WriteAddition(sheet, additions[0]);
  SayInBox(R"(First \b+2x\z.  Why is the sum -7x?)");
  PageEnd();
  SayInBoxAnew(
      Text("The signs of -9x and +2x differ, so we subtract:  {}.  9 is the larger, so the sum has "
           "the minus sign of -9x:  -7x.",
           "9 - 2 = 7"));
  PageEnd();
  WriteAddition(sheet, additions[1]);
  SayInBoxAnew(R"(Then \b-5\z.)");
  SayInBox("What is x?");
  PageEnd();
  WriteDivision(sheet, IsolatedOf(equation), "=");
  sheet.WriteSolved("x", "=", "2");
  sheet.MarkSolution();
  SayInBoxAnew(R"(We divide by \b-7\z.  The signs are the same, so x is positive.)");
  PageEnd();
  SayInBoxAnew("Check:  we put 2 in place of each x.");
  SaySubstituted(equation, 2);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class MoreComplexEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{EqualBars, ShorterBars, StepUnderStep, OrderOfSteps, KeptSign, NegativeTerms,
             NegativeTermOnTheRight, BothTermsNegative}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  LinearStatement equation_;  // a x + b = d x + c
};

// --- Generator ---------------------------------------------------------------

// One draw in twenty is accepted: most answers are not whole.
void MoreComplexEquations::DrawProblem(RandomStream& random) {
  equation_ = {};
  equation_.letter = random.OneOf("mnrtxy");
  auto& [a, b] = equation_.left;
  auto& [d, c] = equation_.right;
  const auto fits = [&] {
    return a != 0 && d != 0 && b != 0 && c != 0 &&              // a step less
           std::abs(a) - std::abs(d) >= kSmallestDifference &&  // something to divide by
           SizesDiffer(equation_) &&                            // mistakes that agree
           HasWholeSolution(equation_);                         // solved by hand
  };
  do {
    a = DrawCoefficient(random);
    d = DrawCoefficient(random);
    b = DrawNumber(random);
    c = DrawNumber(random);
  } while (!fits());

  SetLinearProblem(problem, equation_, random);
}

// --- Problem page ------------------------------------------------------------

void MoreComplexEquations::ShowProblem() {
  ShowStatement(equation_, problem);
  ShowAnswersInThreeColumns(problem, {.row = 16.5});
}

// --- Worked explanation ------------------------------------------------------

void MoreComplexEquations::ExplainProblem() {
  ExplainLinear(equation_, problem);
}

const LessonRegistration<MoreComplexEquations> kRegistration(
    "Solving More Complex Linear Equations");

}  // namespace
}  // namespace course
