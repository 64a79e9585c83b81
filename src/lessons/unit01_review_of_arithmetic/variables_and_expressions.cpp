// The student knows what a variable, an expression and a term are, and finds the value of an
// expression in one or two letters: puts numbers in place of the letters, negative ones in
// parentheses, then works out powers, products and sums in this order.
#include "lessons/families/substitution/value_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace substitution;
using arithmetic::kSteppingRows;

// What stands in the terms: exponents of the first and the second letter.
struct Shape {
  std::size_t count;  // of terms
  std::array<int, kLetters> exponents[3];
};
constexpr std::array<Shape, 7> kShapes = {{
    {2, {{1, 0}, {0, 0}}},          // 3x + 4
    {2, {{0, 0}, {1, 0}}},          // 4 + 3x
    {2, {{2, 0}, {0, 0}}},          // 3x^2 + 4
    {2, {{1, 0}, {0, 1}}},          // 3x + 4y
    {1, {{1, 1}}},                  // 3xy
    {1, {{2, 1}}},                  // 3x^2 y, or x y^2
    {3, {{2, 0}, {0, 1}, {0, 0}}},  // 3x^2 + 4y + 5
}};
constexpr std::size_t kSquareOfALetter = 5;

constexpr std::string_view kTenLetters = "abcdhkmnxy";  // that cannot be taken for digits
constexpr int kLargestNumber = 9;
constexpr int kLargestInTheHead = 100;  // of products and sums on the way
constexpr int kLargestWrong = 300;      // beyond, nobody believes it
constexpr int kFewestMistakes = 3;      // so that at most one box of five is drawn at random

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
  Say("That may differ.  A letter keeps its value in one problem.  In the next one it may have "
      "another.  This is n on four days:");
  ShowValueTable("n", "dollars");
  constexpr int kPens[kColumns] = {3, 5, 0, 8};
  for (int day = 1; day <= kColumns; ++day)
    FillColumn(day, NumStr(kPens[day - 1]), NumStr(2 * kPens[day - 1]));
  PageEnd();
}

// The 3 drops from "x = 3" into the place of the x below it.
void DropIntoPlace() {
  constexpr double kRow = 10;
  constexpr double kCol = 18;
  ShowAt(kRow - 2, R"(x = \y3\z)", kCol - 4);
  ShowAt(kRow, "x + 4", kCol);
  PageEnd();
  SlideDown({kRow - 2, kCol, 1}, 2, Leaving::Copy);
  ShowAt(kRow, R"(\y3\z + 4 = 7)", kCol);
  SayAt(12, R"(3 takes the place of x.  The \cvalue\z of the expression is 7 if x is 3.)");
  PageEnd();
}

void ValueOfAnExpression() {
  NewScreen();
  SayAt(3, R"(Numbers, variables and operations make an \cexpression\z.  What is it if x is 3?)");
  DropIntoPlace();
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
  SayAt(18.5, "We multiply before we add.  From left to right, or as 11x, it would be 110.",
        {.col = 19});
  PageEnd();
}

void NegativeValues() {
  NewScreen();
  SayAt(3, "What is 3x + 5 if x = -2?  We write the negative number in parentheses:");
  const NumberLine line = LineOf(InXY({TermOf(3, 1), TermOf(5, 0)}, -2));
  ValueSteps steps(line, 6.5, CentredCol(line));
  PageEnd();
  steps.Finish();
  SayAt(12, R"(\yWatch out:\z  -2 without them would say:)");
  PaperBox({R"(\r3 - 2 + 5\z)"});
  PageEnd();
  Say(Text("A lone minus sign means -1 times.  If x is -4, then -x is {}.",
           "-1 " + tutor::Times + " (-4) = 4"));
  PageEnd();
  SayAt(18, Text(R"(\yTry it:\z  What is 7 - 3x if {}?)", "x = -2"));
  ValueSteps answer(LineOf(InXY({TermOf(7, 0), TermOf(-3, 1)}, -2)), 19.4, 4);
  PageEnd();
  answer.Finish();
  SayAt(19.4, R"(3x is -6.  To subtract -6 means to \yadd 6\z.)", {.col = 20});
  PageEnd();
}

void Exponents() {
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3, Text("{} means {}.  Let's put in -3:", "x^2^", "x" + times + "x"));
  ShowAt(5, "(-3)^2^ = (-3)" + times + "(-3)", 10);
  SayAt(7, "Is that 9 or -9?");
  PageEnd();
  SayAt(9, "The signs are the same:  positive.");
  AddLine("-3 times 2 would be -6.");
  PaperBox({R"((-3)^2^ = 9,  \rnot -9 and not -6\z)"});
  Say(Text(R"(\yTry it:\z  What is {} if x = 3?)", "2x^2^"));
  PageEnd();
  const NumberLine line = LineOf(InXY({TermOf(2, 2)}, 3));
  ValueSteps(line, 15.5, 4).Finish();
  SayAt(15.5, "The exponent belongs to x alone.  (2x)^2^ would be 36.", {.col = 18});
  PageEnd();
  NewScreen();
  PaperBox({"First powers, then products,", "then sums and differences."}, 3);
  Say(Text(R"(\yTry it:\z  What is {} if x = -5?)", "-x^2^"));
  const NumberLine minus = LineOf(InXY({TermOf(-1, 2)}, -5));
  ValueSteps steps(minus, 9, CentredCol(minus));
  PageEnd();
  steps.Finish();
  SayAt(14.5, "The minus sign in front of x is not squared.");
  PageEnd();
}

void TwoLetters() {
  NewScreen();
  SayAt(3, "Where there are two variables, each letter gets its own number:");
  ShowAt(6, "3x - 2y", 12);
  ShowAt(7, "x = 4 and y = -5", 12);
  PageEnd();
  ValueSteps steps(LineOf(InXY({TermOf(3, 1), TermOf(-2, 0, 1)}, 4, -5)), 9, 12);
  SayAt(16.5, "4 goes in for x and (-5) for y, not the other way around.  What is the value?");
  PageEnd();
  steps.Finish();
  ClearBelow(16.5);
  SayAt(17, R"(\yTry it:\z  May x and y be the same number?)");
  PageEnd();
  SayAt(18.5, "Yes.  Two letters may stand for the same number, say 4:  12 - 8 = 4.");
  SayAt(21, Text(R"(\yTry it:\z  In {}, may one x be 2 and the other one 3?)", "x^2^ + 5x"));
  PageEnd();
  SayAt(23, "No.  Every x is the same number here.");
  PageEnd();
}

// An expression whose terms are underlined by brackets.
void ShowTerms() {
  constexpr double kRow = 6;
  constexpr double kCol = 12;
  ShowAt(kRow, "2x^2^ - 3xy + 4", kCol);
  constexpr std::pair<double, double> kTerms[] = {{0, 3}, {6, 3}, {12, 1}};  // column and width
  for (const auto& [col, width] : kTerms) Bracket(kRow + 0.75, kCol + col, width, 2, 1);
}

void Terms() {
  NewScreen();
  SayAt(3, R"(The parts between plus and minus signs are called \cterms\z.)");
  ShowTerms();
  Say("How many terms are there here?");
  PageEnd();
  SayAt(10, "Three.  In each term we multiply.");
  SayAt(12, R"(\yTry it:\z  Find -3xy if x = 2, y = -4.)");
  PageEnd();
  const NumberLine product = LineOf(InXY({TermOf(-3, 1, 1)}, 2, -4));
  ValueSteps(product, 15, CentredCol(product)).Finish();
  SayAt(20.5, "-6 and -4 have the same sign:  positive.");
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
  SayAt(20, R"(At last we add and subtract, from left to right.  The value is \y7\z.)");
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

  void DrawShape(RandomStream& random);
  void DrawLetters(RandomStream& random);
  void DrawNumbers(RandomStream& random);
  bool IsWorthSolving() const;
  bool IsTerm() const { return expression_.terms.size() == 1; }
  void FillChoices(RandomStream& random);
  void ShowQuestion(double row) const;
  std::string PuttingIn() const;

  ValuedExpression expression_;
};

// --- Generator ---------------------------------------------------------------

void VariablesAndExpressions::DrawProblem(RandomStream& random) {
  DrawShape(random);
  DrawLetters(random);
  do {
    DrawNumbers(random);
  } while (!IsWorthSolving());

  problem.question = {IsTerm() ? "Multiply to determine the value of the term."
                               : "Find the value of this expression:",
                      expression_.Text(), "if " + expression_.ValuesText()};
  FillChoices(random);
}

void VariablesAndExpressions::DrawShape(RandomStream& random) {
  const auto kind = static_cast<std::size_t>(random.Rand(0, 6));
  const Shape& shape = kShapes[kind];
  expression_ = {};
  for (std::size_t i = 0; i < shape.count; ++i)
    expression_.terms.push_back({1, shape.exponents[i]});
  const bool second = random.Rand(0, 1) == 1;
  if (kind == kSquareOfALetter && second)
    std::swap(expression_.terms[0].exponents[0], expression_.terms[0].exponents[1]);
}

void VariablesAndExpressions::DrawLetters(RandomStream& random) {
  auto& [first, second] = expression_.letters;
  first = random.OneOf(kTenLetters);
  do {
    second = random.OneOf(kTenLetters);
  } while (second == first);
  if (second < first) std::swap(first, second);  // in a term they stand by the alphabet
}

void VariablesAndExpressions::DrawNumbers(RandomStream& random) {
  for (Term& term : expression_.terms) term.coef = random.Rand(-kLargestNumber, kLargestNumber);
  for (int& value : expression_.values) value = random.Rand(-kLargestNumber, kLargestNumber);
}

// A twelfth of the draws at 3x^2 y, a quarter and more at all others.
bool VariablesAndExpressions::IsWorthSolving() const {
  const auto fits = [](int number) { return std::abs(number) <= kLargestInTheHead; };
  for (const Term& term : expression_.terms) {
    if (term.coef == 0) return false;
    // x + 4 has nothing to multiply.
    if (term.coef == 1 && term.exponents[0] + term.exponents[1] == 1) return false;
  }
  for (std::size_t i = 0; i < kLetters; ++i)
    // With 0, 1 or -1 most mistakes lead to the same.
    if (expression_.Has(i) && std::abs(expression_.values[i]) < 2) return false;
  for (const Product& product : LineOf(expression_))
    if (!fits(product.Value())) return false;
  const int value = ValueOf(expression_);
  if (value == 0 || !fits(value)) return false;  // 0 has no sign to be lost
  return std::ranges::count_if(WrongValuesOf(expression_), [](const WrongValue& wrong) {
           return std::abs(wrong.value) <= kLargestWrong;
         }) >= kFewestMistakes;
}

void VariablesAndExpressions::FillChoices(RandomStream& random) {
  const int right = ValueOf(expression_);
  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(right);
  for (const WrongValue& wrong : WrongValuesOf(expression_))
    if (std::abs(wrong.value) <= kLargestWrong)
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
    if (term.coef == -1 && term.HasLetter()) return text + "A lone minus sign means -1 times.";
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
