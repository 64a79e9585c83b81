// The student knows what a variable, an expression and a term are, and finds the value of an
// expression in one or two letters: puts numbers in place of the letters, negative ones in
// parentheses, then works out powers, products and sums in this order.
#include "lessons/families/substitution/expression_draw.h"
#include "lessons/families/substitution/value_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace substitution;
using arithmetic::kSteppingRows;

constexpr double kLineRow = 8.5;  // of a line of numbers in an explanation

// One term, x and y.
Term TermOf(int coef, int x, int y = 0) {
  return {coef, {x, y}};
}
ValuedExpression InXY(std::vector<Term> terms, int x, int y = 0) {
  return {std::move(terms), {"x", "y"}, {x, y}};
}

// --- Teaching screens --------------------------------------------------------

double CentredCol(const NumberLine& line) {
  const double width = static_cast<double>(StripExponentMarks(LineText(line)).size());
  return std::floor((40 - width) / 2) + 1;
}

// Two rows of a table: what stands in the first, and what comes out.  Nothing is filled in yet.
constexpr int kColumns = 4;
constexpr double kCellSize = 14;  // points
void ShowValueTable(const std::string& above, const std::string& below) {
  PrintCellTable table;
  table.heightPixels = 110;
  for (const double top : {8.0, 54.0})
    for (int i = 0; i < kColumns; ++i) table.cells.push_back({24.0 + 19 * i, top, 17, 38});
  table.labels = {{2, 16, 22, 24, above, kCellSize}, {2, 62, 22, 24, below, kCellSize}};
  CellTable(table);
}
void FillColumn(int column, const std::string& above, const std::string& below) {
  picPrintCellCls(column);
  picPrintCellCls(kColumns + column);
  picPrintCellPrint(column, above, platform::colour::Black, kCellSize);
  picPrintCellPrint(kColumns + column, below, platform::colour::Blue, kCellSize);
}

void LetterForANumber() {
  NewScreen();
  SayAt(3, "One pen costs 2 dollars.  What do 3 pens cost?  What do 10 pens cost?");
  ShowValueTable("pens", "dollars");
  FillColumn(1, "1", "2");
  FillColumn(2, "3", "");
  FillColumn(3, "10", "");
  PageEnd();
  FillColumn(2, "3", "6");
  FillColumn(3, "10", "20");
  Say("We do the same each time:  2 times the number of pens.  How do we write that for any "
      "number of pens?");
  PageEnd();
  FillColumn(4, "n", "2 " + tutor::Times + " n");
  Say(R"(We take a letter, such as n.  A \cvariable\z is a letter that stands for a number.)");
  GoBelow();
  AddLine("Is n short for a word, such as ~notebook~?");
  PageEnd();
  NewScreen();
  SayAt(3, R"(No.  n stands for a \ynumber\z.)");
  PaperBox({"n is the number of pens,", R"(\rnot a pen, and not 14, the 14th letter\z)"});
  Say(R"(\yTry it:\z  n is 3 today.  And tomorrow?)");
  PageEnd();
  Say("We do not know.  Each day n may be another number.  But in one calculation n keeps its "
      "value.  This is n on four days:");
  ShowValueTable("n", "dollars");
  constexpr int kPens[kColumns] = {3, 5, 0, 8};
  for (int day = 1; day <= kColumns; ++day)
    FillColumn(day, NumStr(kPens[day - 1]), NumStr(2 * kPens[day - 1]));
  PageEnd();
}

// The 3 of "x = 3" comes into the place of the x, on the row below.
void BringIntoPlace() {
  constexpr double kRow = 7;
  constexpr double kCol = 12;
  constexpr double kValueCol = 26;
  constexpr double kDown = 1.5;
  ShowAt(kRow, "x + 4", kCol);
  ShowAt(kRow, R"(x = \y3\z)", kValueCol - 4);
  PageEnd();
  SlideDown({kRow, kValueCol, 1}, kDown, Leaving::Copy);
  SlideLeft({kRow + kDown, kValueCol, 1}, kValueCol - kCol);
  ShowAt(kRow + kDown, R"(\y3\z + 4 = 7)", kCol);
  SayAt(10.5, R"(3 takes the place of x.  The \cvalue\z of the expression is 7 if x is 3.)");
}

void ValueOfAnExpression() {
  NewScreen();
  SayAt(3,
        R"(x + 4 is an \cexpression\z:  numbers and variables joined by operations.  What is it )"
        "if x is 3?");
  BringIntoPlace();
  ShowValueTable("x", "x + 4");
  FillColumn(1, "3", "7");
  FillColumn(2, "0", "4");
  FillColumn(3, "-6", "-2");
  FillColumn(4, "10", "");
  Say(R"(\yTry it:\z  What belongs in the last box?)");
  PageEnd();
  FillColumn(4, "10", "14");
  Say(R"(10 + 4 is 14.  Each value of x gives the expression a value of its own.)");
  PageEnd();
}

void NumberBesideALetter() {
  NewScreen();
  SayAt(3, Text("In 2x there is no sign between 2 and x.  We multiply:  2x means {}.",
                "2 " + tutor::Times + " x"));
  SayAt(6, R"(The number 2 is the \ccoefficient\z of x.)");
  SayAt(8, R"(\yTry it:\z  What is 2x if x = 3?)");
  PageEnd();
  ShowAt(10, "2 " + tutor::Times + " 3 = 6", 15);
  SayAt(12, R"(\yWatch out:\z  Do not set the digits side by side, and do not add them.)");
  PaperBox({R"(2x is 6,  \rnot 23 and not 2 + 3\z)"});
  PageEnd();
}

void ProductsBeforeSums() {
  SayAt(17, R"(\yTry it:\z  What is 5 + 6x if x = 10?)");
  const NumberLine line = LineOf(InXY({TermOf(5, 0), TermOf(6, 1)}, 10));
  ValueSteps steps(line, 18.5, 4);
  PageEnd();
  steps.Finish();
  SayAt(18.5,
        Text("We multiply before we add.  Adding 5 and 6 first gives {}.  That is wrong.",
             Words{"11 " + tutor::Times + " 10 = 110"}),
        {.col = 19});
  PageEnd();
}

void NegativeValues() {
  NewScreen();
  PaperBox({"same signs:  the product is positive", "different signs:  it is negative"}, 3);
  SayAt(6.5, Text(R"(\yTry it:\z  What is 3x + 5 if {}?)", "x = -2"));
  const NumberLine line = LineOf(InXY({TermOf(3, 1), TermOf(5, 0)}, -2));
  ValueSteps steps(line, 8.5, CentredCol(line));
  PageEnd();
  steps.Finish();
  SayAt(13.8, "3 and -2 have different signs, so the product is -6.");
  PageEnd();
  Say(R"(\yWatch out:\z  If we put -2 right behind the 3, we read a subtraction:)");
  PaperBox({R"(\r3 - 2 + 5 = 6\z,  not -1)"});
  Say(Text(R"(\yTry it:\z  What is -x if {}?)", "x = -4"));
  PageEnd();
  NewScreen();
  SayAt(3, "A minus sign in front of a letter means -1 times the letter:");
  ShowAt(6, "-x = -1 " + tutor::Times + " (-4) = 4", 12);
  SayAt(8, Text(R"(\yTry it:\z  What is 7 - 3x if {}?)", "x = -2"));
  PageEnd();
  ValueSteps answer(LineOf(InXY({TermOf(7, 0), TermOf(-3, 1)}, -2)), 10, 4);
  answer.Finish();
  SayAt(10, R"(3x is -6.  To subtract -6 means to \yadd 6\z.)", {.col = 20});
  PageEnd();
}

void Exponents() {
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3, Text(R"({} is a \cpower\z:  {}.  The small 2 is the \cexponent\z.  We put in -3:)",
                "x^2^", "x" + times + "x"));
  ShowAt(6, "(-3)^2^ = (-3)" + times + "(-3)", 10);
  SayAt(8, R"(\yTry it:\z  Is that 9 or -9?)");
  PageEnd();
  SayAt(10, "The signs are the same:  positive.");
  AddLine("-3 times 2 would be -6.");
  PaperBox({R"((-3)^2^ = 9,  \rnot -9 and not -6\z)"});
  Say(Text(R"(\yTry it:\z  What is {} if x = 3?)", "2x^2^"));
  PageEnd();
  const NumberLine line = LineOf(InXY({TermOf(2, 2)}, 3));
  ValueSteps(line, 16.5, 4).Finish();
  SayAt(16.5, "The exponent belongs to x alone.  (2x)^2^ would be 36.", {.col = 18});
  PageEnd();
  NewScreen();
  PaperBox({"First powers, then products,", "then sums and differences."}, 3);
  Say(Text(R"(\yTry it:\z  What is {} if x = -5?)", "-x^2^"));
  const NumberLine minus = LineOf(InXY({TermOf(-1, 2)}, -5));
  ValueSteps steps(minus, 9, CentredCol(minus));
  PageEnd();
  steps.Finish();
  SayAt(14.5, Text("The square takes in only (-5).  The minus sign in front stays:  {}.",
                   "-1" + times + "25"));
  PageEnd();
}

void TwoLetters() {
  NewScreen();
  SayAt(3, "What is 3x - 2y if x = 4 and y = -5?");
  Say("Each letter gets its own number:  4 goes in for x, and (-5) for y.");
  const NumberLine line = LineOf(InXY({TermOf(3, 1), TermOf(-2, 0, 1)}, 4, -5));
  ValueSteps steps(line, 8, CentredCol(line));
  PageEnd();
  steps.Finish();
  SayAt(15.2, R"(\yTry it:\z  May x and y be the same number?)");
  PageEnd();
  SayAt(17, "Yes.  Two letters may stand for the same number, say 4:  12 - 8 = 4.");
  Say(Text(R"(\yTry it:\z  In {}, may one x be 2 and the other one 3?)", "x^2^ + 5x"));
  PageEnd();
  Say("No.  Every x is the same number here.");
  PageEnd();
}

// The terms of a printed expression are underlined by brackets, with the signs before them.
void UnderlineTerms(double row, double col) {
  constexpr std::pair<double, double> kTerms[] = {{0, 3}, {4, 5}, {10, 3}};  // column and width
  for (const auto& [at, width] : kTerms) Bracket(row + 0.75, col + at, width, 2, 1);
}

void Terms() {
  NewScreen();
  constexpr double kRow = 7;
  constexpr double kCol = 12;
  SayAt(3, R"(Plus and minus signs separate \cterms\z.  The sign in front belongs to the term.  )"
           "How many terms are there here?");
  ShowAt(kRow, "2x^2^ - 3xy + 4", kCol);
  PageEnd();
  UnderlineTerms(kRow, kCol);
  SayAt(9, Text("Three:  {}, -3xy and 4.  Inside a term, numbers and letters side by side are "
                "multiplied.",
                "2x^2^"));
  Say(R"(\yTry it:\z  Find -3xy if x = 2, y = -4.)");
  PageEnd();
  const NumberLine product = LineOf(InXY({TermOf(-3, 1, 1)}, 2, -4));
  ValueSteps(product, 15.5, CentredCol(product)).Finish();
  SayAt(21, "-6 and -4 have the same sign:  positive.");
  PageEnd();
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What is {} if {} and {}?)", "2x^2^ - 3y + 4", "x = -3", "y = 5"));
  const NumberLine line = LineOf(InXY({TermOf(2, 2), TermOf(-3, 0, 1), TermOf(4, 0)}, -3, 5));
  ValueSteps steps(line, 6.5, CentredCol(line));
  PageEnd();
  for (int i = 0; i < 3; ++i) steps.Step();
  SayAt(18, "First powers, then products.");
  PageEnd();
  steps.Finish();
  SayAt(20, R"(Then we add and subtract, from left to right.  The value is \y7\z.)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class VariablesAndExpressions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{LetterForANumber},
            {ValueOfAnExpression},
            {NumberBesideALetter, ProductsBeforeSums},
            {NegativeValues},
            {Exponents},
            {TwoLetters},
            {Terms}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsTerm() const { return expression_.terms.size() == 1; }
  void FillChoices(RandomStream& random);
  void ShowQuestion(double row) const;
  std::string PuttingIn() const;

  ValuedExpression expression_;
};

// --- Generator ---------------------------------------------------------------

void VariablesAndExpressions::DrawProblem(RandomStream& random) {
  expression_ = DrawExpression(random);
  problem.question = {IsTerm() ? "Multiply to determine the value of the term."
                               : "Find the value of this expression:",
                      expression_.Text(), "if " + expression_.ValuesText()};
  FillChoices(random);
}

void VariablesAndExpressions::FillChoices(RandomStream& random) {
  const int right = ValueOf(expression_);
  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(right);
  for (const WrongValue& wrong : BelievableMistakes(expression_))
    choices.Wrong(std::string(wrong.mistake), wrong.value);
  const int reach = 2 * std::abs(right);
  choices.Fill([&] { return random.Rand(-reach, reach); });
}

// --- Problem page ------------------------------------------------------------

void VariablesAndExpressions::ShowQuestion(double row) const {
  ShowAt(row, problem.question[1], 10);
  ShowAt(row + 1, problem.question[2], 10);
}

void VariablesAndExpressions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowQuestion(7.5);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

// What is written in place of the letters, and the signs that were not printed.
std::string VariablesAndExpressions::PuttingIn() const {
  std::string text;
  bool negative = false;
  for (std::size_t i = 0; i < kLetters; ++i) {
    if (!expression_.Has(i)) continue;
    negative = negative || expression_.values[i] < 0;
    text += text.empty() ? "We write " : " and ";
    text += Text(R"(\y{}\z for {})", InParentheses(expression_.values[i]), expression_.letters[i]);
  }
  text += negative ? ".  Negative numbers take parentheses.  " : ".  ";
  for (const Term& term : expression_.terms)
    if (term.coef == -1 && term.HasLetter()) {
      Term positive = term;
      positive.coef = 1;
      const std::string letters = ValuedExpression{{positive}, expression_.letters}.Text();
      return text + Text("{} means -1 times {}.", "-" + letters, letters);
    }
  return text + "Where no sign stands, we multiply.";
}

void VariablesAndExpressions::ExplainProblem() {
  ProblemBanner();
  ShowQuestion(5);
  SayAt(kLineRow, "What do we write in place of the letters?");
  PageEnd();
  ClearBelow(kLineRow);
  const NumberLine line = LineOf(expression_);
  ValueSteps steps(line, kLineRow, CentredCol(line));
  const double reasonRow = kLineRow + kSteppingRows * steps.StepsLeft() + 2;
  SayAt(reasonRow, PuttingIn());
  PageEnd();
  while (!steps.Done()) {
    steps.PickOut();
    ClearBelow(reasonRow);
    SayAt(reasonRow, steps.Reason() + R"(What is \y)" + steps.OperationText() + R"(\z?)");
    PageEnd();
    steps.ShowResult();
  }
  ClearBelow(reasonRow);
  ConcludeAt(reasonRow, problem);
}

const LessonRegistration<VariablesAndExpressions> kRegistration("Variables and Expressions");

}  // namespace
}  // namespace course
