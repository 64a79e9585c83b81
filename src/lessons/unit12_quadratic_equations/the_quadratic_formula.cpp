// The student can solve any quadratic equation with the quadratic formula: read off a, b and c, put
// them in, simplify the radical and the fraction, and see from the discriminant when there are no
// real roots.
//
// A choice shows both roots: two numbers, one expression with the plus-or-minus sign and a reduced
// radical, or one number for a double root.  "No real roots" is always among the five, so that it
// gives nothing away.  Beside it and the right roots stand those of three mistakes: b stands where
// -b belongs, 4ac is added, the division by 2a is forgotten or reaches the radical alone; where two
// of these agree, a neighbouring mistake takes the place.  When there are no real roots the
// mistakes also lose the minus sign under the radical.
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace quadratics;

using Roots = std::optional<RootPair>;

const Quadratic kRationalExample = {1, -5, -6};
const Quadratic kRadicalExample = {2, -4, -3};
const Quadratic kDoubleRootExample = {4, 4, 1};

const std::string kTimes = tutor::Gap + tutor::Dot + tutor::Gap;

// --- Teaching screens --------------------------------------------------------

void StandardForm() {
  NewScreen();
  SayAt(3, R"(A \cquadratic equation\z has a term with x^2^ and no higher power.  Its )"
           R"(\cstandard form\z has 0 on the right side, and a is not 0:)");
  ShowStandardForm(7);
  PageEnd();
  const Quadratic withoutNumber = {3, -4, 0};
  ShowSpreadEquation(withoutNumber);
  SayAt(14.5, "What are a, b and c here?");
  PageEnd();
  TurnTermsIntoValues(withoutNumber);
  ClearBelow(14);
  SayAt(14, R"(\yWatch out:\z  b is -4, not 4.  And no number stands alone, so c is 0.)");
  constexpr double kRow = 17.5;
  constexpr double kNewRow = 19;
  constexpr double kCol = 22;
  const std::string asked = "x^2^ - 5x     = 6";
  SayAt(kRow, R"(\yTry it:\z  And here?)");
  ShowAt(kRow, asked, kCol);
  PageEnd();
  // In a copy of the line the 6 goes to the left side, where it is subtracted.
  ShowAt(kNewRow, asked, kCol);
  CarryAcross(kNewRow, kCol + 14, 1, -4);
  ShowAt(kNewRow, R"(x^2^ - 5x \y- 6\z = 0)", kCol);
  SayAt(21, "We subtract 6 from both sides first.  Then a is 1, b is -5 and c is -6.");
  PageEnd();
}

constexpr double kNumbersCol = 25;  // of numbers beside the letters

// A line of the standard form, and under it the same line with numbers in place of its letters.
void ShowTwice(double row, const std::string& letters, const std::string& numbers) {
  ShowAt(row, letters);
  ShowAt(row + 1, R"(\y)" + numbers + R"(\z)");
}

void CompleteTheSquare() {
  NewScreen();
  SayAt(3, R"(We solve the standard form itself, and with it an equation with \ynumbers\z.)");
  ShowAt(5.5, "ax^2^ + bx + c = 0");
  ShowAt(5.5, R"(\y2x^2^ + 3x - 2 = 0\z)", kNumbersCol);
  SayAt(7, "We multiply both sides by 4a, here by 8:");
  PageEnd();
  ShowTwice(8, "4a^2^x^2^ + 4abx + 4ac = 0", "16x^2^ + 24x - 16 = 0");
  SayAt(10.5, "Then we subtract 4ac, here -16:");
  PageEnd();
  constexpr double kRow = 11.5;
  ShowAt(kRow, "4a^2^x^2^ + 4abx + 4ac = 0");
  // 4ac goes from column 18 to the right side, and its sign is turned.
  CarryAcross(kRow, 18, 3, 7);
  ShowTwice(kRow, "4a^2^x^2^ + 4abx = -4ac        ", "16x^2^ + 24x = 16");
  SayAt(14, R"(16x^2^ is the square of 4x.  24x is twice 4x times 3, so 3^2^ completes the )"
            "square:");
  PageEnd();
  ShowTwice(17, "4a^2^x^2^ + 4abx + b^2^ = b^2^ - 4ac", "16x^2^ + 24x + 9 = 25");
  ShowTwice(19.5, "(2ax + b)^2^ = b^2^ - 4ac", "(4x + 3)^2^ = 25");
  PageEnd();
}

void TakeTheRoot() {
  NewScreen();
  ShowTwice(3, "(2ax + b)^2^ = b^2^ - 4ac", "(4x + 3)^2^ = 25");
  SayAt(5.5, Text(R"(25 is the square of 5 and of -5.  So the square root has both signs, \y{}\z:)",
                  tutor::PlusOrMinus));
  ShowTwice(8.5, "2ax + b = " + tutor::PlusOrMinus + "`b^2^ - 4ac`",
            "4x + 3 = " + tutor::PlusOrMinus + "5");
  PageEnd();
  SayAt(11, "We subtract b, then we divide by 2a:");
  ShowAt(12.5, "2ax = -b " + tutor::PlusOrMinus + " `b^2^ - 4ac`");
  ShowAt(12.5, R"(\y4x = -3 )" + tutor::PlusOrMinus + R"( 5\z)", kNumbersCol);
  ShowAt(15.5, QuadraticFormulaText());
  ShowAt(15.5, R"(\yx = (-3 )" + tutor::PlusOrMinus + R"( 5)/4\z)", kNumbersCol);
  SayAt(18.5, R"(\yTry it:\z  Which two numbers is x?)");
  PageEnd();
}

void NameTheFormula() {
  NewScreen();
  SayAt(3,
        "With + x is 2/4 = 1/2.  With - it is -8/4 = -2.  The line with letters is the "
        R"(\cquadratic formula\z:)");
  picGalleryImagePrepare(1, gallery::QuadraticFormula, 6.5, 12);
  picGalleryImageShow(1);
  SayAt(15, Text(R"(\yTry it:\z  What is -b in  {}?)", EquationText(kRationalExample)));
  PageEnd();
  SayAt(17, "b is -5, so -b is -(-5) = 5.");
  SayAt(18.5,
        R"(\yWatch out:\z  The whole numerator is divided by 2a, -b as well as the radical.)");
  PageEnd();
}

void RationalRoots() {
  SolveWithFormula(kRationalExample, Asked::Discriminant);
  NewScreen();
  ShowAt(5, "Solve:  " + EquationText(kRationalExample));
  SayAt(7.5, R"(The solutions are called \croots\z.  Each of them makes the left side 0:)");
  ShowAt(10.5, "6^2^ - 5" + kTimes + "6 - 6 = 36 - 30 - 6 = 0");
  ShowAt(12.5, "(-1)^2^ - 5(-1) - 6 = 1 + 5 - 6 = 0");
  PageEnd();
}

void RadicalRoots() {
  SolveWithFormula(kRadicalExample, Asked::ValuesToo);
  PageEnd();
}

void NegativeLeadingTerm() {
  const std::string both = tutor::PlusOrMinus;
  const std::string root = tutor::SquareRoot;
  NewScreen();
  ShowAt(5, "Solve:  " + EquationText({-1, 4, 1}));
  SayAt(7, "Here a is -1, so 2a is -2:");
  ShowAt(9.5, "x = (-4 " + both + " " + root + "20)/(-2) = (-4 " + both + " 2" + root + "5)/(-2)");
  SayAt(12, R"(\yTry it:\z  Divide by -2.)");
  PageEnd();
  SayAt(14.5, Text("Dividing by -2 turns + into - and - into +.  Both signs are still there, so "
                   R"(\y{}\z stays:)",
                   both));
  ShowRoots("  x = ", *RootsOf(-4, 20, -2));
  PageEnd();
}

// No term with x, and a discriminant of 0.
void OneValueIsZero() {
  const std::string both = tutor::PlusOrMinus;
  const std::string root = tutor::SquareRoot;
  NewScreen();
  ShowAt(5, "Solve:  " + EquationText({2, 0, -6}));
  SayAt(7, "There is no term with x, so b is 0:");
  ShowAt(10, "x = (0 " + both + " `0^2^ - 4" + kTimes + "2" + kTimes + "(-6)`)/(2" + kTimes + "2)");
  SayAt(12.5, R"(\yTry it:\z  Find the discriminant.)");
  PageEnd();
  SayAt(14.5, Text("0 - (-48) = 48 is {}, and 4/4 is 1:", "4^2^" + kTimes + "3"));
  ShowAt(17.5, "x = (" + both + root + "48)/4 = (" + both + "4" + root + R"(3)/4 = \y)" + both +
                   root + R"(3\z)");
  SayAt(20,
        Text(R"(\yTry it:\z  What is the discriminant of {}?)", EquationText(kDoubleRootExample)));
  PageEnd();

  NewScreen();
  ShowAt(5, "Solve:  " + EquationText(kDoubleRootExample));
  ShowAt(8.5, "x = (-4 " + both + " `4^2^ - 4" + kTimes + "4" + kTimes + "1`)/(2" + kTimes +
                  "4) = (-4 " + both + " " + root + "0)/8");
  SayAt(11.5, R"(16 - 16 = 0.  \y+ 0\z and \y- 0\z are the same:)");
  ShowAt(14.5, R"(x = (-4)/8 = \y-1\z/\y2\z,  the only root)");
  PageEnd();
}

// --- The discriminant --------------------------------------------------------

// Cells row by row: an equation, its discriminant, the number of its real roots.
PrintCellTable DiscriminantTable() {
  constexpr double kLefts[] = {2, 41, 79};
  constexpr double kWidths[] = {37, 36, 19};
  constexpr double kTops[] = {19, 46, 73};
  const char* kHeads[] = {"Equation", "Discriminant", "Real roots"};
  PrintCellTable table;
  table.heightPixels = 140;
  for (const double top : kTops)
    for (int i = 0; i < 3; ++i) table.cells.push_back({kLefts[i], top, kWidths[i], 24});
  for (int i = 0; i < 3; ++i)
    table.labels.push_back(
        {kLefts[i], 4, kWidths[i], 14, kHeads[i], 12, platform::colour::Black, true});
  return table;
}

void PrintInTable(int cell, const std::string& text, platform::Colour colour) {
  constexpr double kSize = 14;  // points
  picPrintCellPrint(cell, text, colour, kSize);
}

void FillRow(int row, const std::string& equation, const std::string& discriminant) {
  const int cell = 3 * row - 2;
  PrintInTable(cell, equation, platform::colour::Black);
  PrintInTable(cell + 1, discriminant, platform::colour::Black);
}
void CountRoots(int row, const std::string& roots) {
  PrintInTable(3 * row, roots, platform::colour::Blue);
}

void TheDiscriminant() {
  NewScreen();
  SayAt(3, R"(The \cdiscriminant\z tells how many real roots there are:)");
  CellTable(DiscriminantTable(), 5.5);
  FillRow(1, "x^2^ - 5x - 6 = 0", "25 + 24 = 49");
  CountRoots(1, "two");
  FillRow(2, "4x^2^ + 4x + 1 = 0", "16 - 16 = 0");
  CountRoots(2, "one");
  FillRow(3, "x^2^ + 2x + 5 = 0", "4 - 20 = -16");
  SayAt(12, R"(\yTry it:\z  What about the last equation?)");
  ShowAt(15, "x = (-2 " + tutor::PlusOrMinus + " `-16`)/2");
  PageEnd();
  CountRoots(3, "none");
  ClearBelow(12);
  SayAt(12, R"(4(4) and (-4)(-4) are 16.  No \creal number\z, that is, no number on the number )"
            "line, times itself is -16.");
  SayAt(15.5, Text(R"(\yTry it:\z  What about  {}?)", "x^2^ + x + 1 = 0"));
  PageEnd();
  SayAt(17, "None:  1 - 4 = -3 is negative.");
  PaperBox({"Positive:  two real roots", "0:         one real root", "Negative:  no real roots"});
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TheQuadraticFormula final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{StandardForm, CompleteTheSquare, TakeTheRoot, NameTheFormula},
            {RationalRoots, RadicalRoots, NegativeLeadingTerm, OneValueIsZero},
            {TheDiscriminant}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawChoices(RandomStream& random);
  void TellAnswer() const;

  Quadratic equation_;
};

// --- Generator ---------------------------------------------------------------

// 77 % of the draws are accepted.
void TheQuadraticFormula::DrawProblem(RandomStream& random) {
  for (;;) {
    const int size = random.Rand(1, 9);
    equation_.a = size * random.Sign();
    equation_.b = random.Rand(-9, 9);
    equation_.c = random.Rand(-9, 9);
    if (equation_.b == 0 && equation_.c == 0) continue;  // only x^2^ is left
    if (equation_.Discriminant() > 0) break;
    // No real roots, or a double one: not in as many problems as they would be.
    if (random.Rnd() <= 0.56) break;
  }
  problem.question = {"Solve the quadratic equation below using the quadratic formula.",
                      EquationText(equation_)};
  DrawChoices(random);
}

void TheQuadraticFormula::DrawChoices(RandomStream& random) {
  const auto [a, b, c] = equation_;
  const int discriminant = equation_.Discriminant();
  const bool real = discriminant >= 0;
  const int under = std::abs(discriminant);
  // One of the two slips in dividing comes first.
  const bool radicalAlone = random.Rand(0, 1) == 1;
  // Without real roots a student who finds some has lost the minus sign first.
  const std::string lost = real ? "" : "loses the minus sign under the radical and ";
  Choices choices(problem, choice_kind::FiveShuffled, RootsText);
  choices.Right(RootsOf(-b, discriminant, 2 * a));
  // 4ac with the wrong sign, or -5^2^ in place of (-5)^2^.
  const bool signMistake = b * b + 4 * a * c < 0 || (b < 0 && -b * b - 4 * a * c < 0);
  if (real)
    choices.Wrong(signMistake ? "gets a negative discriminant by a sign mistake" : kFiller, {});
  else
    choices.Wrong("loses the minus sign under the radical", RootsOf(-b, under, 2 * a));
  choices.Wrong(lost + "puts b where -b belongs", RootsOf(b, under, 2 * a));
  choices.Wrong("adds 4ac", RootsOf(-b, b * b + 4 * a * c, 2 * a));
  if (radicalAlone)
    choices.Wrong(lost + "divides only the radical by 2a", RootsOf(-2 * a * b, under, 2 * a));
  choices.Wrong(lost + "forgets to divide by 2a", RootsOf(-b, under, 1));
  choices.Wrong(lost + "divides by a", RootsOf(-b, under, a));
  choices.Wrong("leaves out the 4 of 4ac", RootsOf(-b, b * b - a * c, 2 * a));
  choices.Wrong(lost + "divides by 2", RootsOf(-b, under, 2));
  choices.Fill([&] {
    const int first = random.Rand(-9, 9);
    const int second = random.Rand(-9, 9);
    return RootsOf(first + second, (first - second) * (first - second), 2);
  });
}

// --- Problem page ------------------------------------------------------------

void TheQuadraticFormula::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 7);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void TheQuadraticFormula::ExplainProblem() {
  ProblemBanner();
  ReadOff(equation_);
  SolveWithFormula(equation_);
  TellAnswer();
}

void TheQuadraticFormula::TellAnswer() const {
  const Roots roots = RootsOf(-equation_.b, equation_.Discriminant(), 2 * equation_.a);
  if (!roots) {
    Say(Text(R"(So this is the answer:  \y{}\z.)", RootsText(roots)));
  } else if (roots->Rational()) {
    CheckRoot(equation_);
    Conclude(problem);
  } else {
    ShowRoots("The answer is ", *roots, ".");
  }
}

const LessonRegistration<TheQuadraticFormula> kRegistration("The Quadratic Formula");

}  // namespace
}  // namespace course
