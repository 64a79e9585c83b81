// The student can solve any quadratic equation with the quadratic formula: read off a, b and c, put
// them in, simplify the radical and the fraction, and see from the discriminant when there are no
// real roots.
//
// A choice shows both roots: two numbers, one expression with the plus-or-minus sign and a reduced
// radical, or one number for a double root.  "No real roots" is always among the five, so that it
// gives nothing away.  Beside it and the right roots stand those of three mistakes: the sign of b
// is kept, 4ac is added, the division by 2a is forgotten or reaches the radical alone; where two of
// these agree, a neighbouring mistake takes the place.  When there are no real roots the mistakes
// also lose the minus sign under the radical.
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace quadratics;

using Roots = std::optional<RootPair>;

const Quadratic kRationalExample = {1, -5, -6};
const Quadratic kRadicalExample = {2, -4, -3};

// The table of discriminants: an equation, its discriminant as it is worked out, its real roots.
// The work begins at such a column that its value ends up in the table's column.
constexpr double kWorkRow = 17;
constexpr int kValueColumn = 31;
constexpr int kRootsColumn = 36;
struct DiscriminantRow {
  int row;
  const char* equation;
  Quadratic coefficients;
  const char* difference;
  const char* value;
  const char* roots;
};
constexpr DiscriminantRow kDiscriminants[] = {
    {8, "x^2^ - 5x + 6 = 0", {1, -5, 6}, "25 - 24", "1", "two"},
    {10, "x^2^ - 6x + 9 = 0", {1, -6, 9}, "36 - 36", "0", "one"},
    {12, "x^2^ + 2x + 5 = 0", {1, 2, 5}, "4 - 20", "-16", "none"}};

// --- Teaching screens --------------------------------------------------------

void StandardForm() {
  NewScreen();
  SayAt(3, R"(A \cquadratic equation\z has a term with x^2^ and no higher power.  In \cstandard )"
           R"(form\z, with 0 on the right side and a not 0:)");
  ShowStandardForm(7);
  PageEnd();
  ShowSpreadEquation(kRadicalExample);
  SayAt(14.5, "What are a, b and c here?");
  PageEnd();
  TurnTermsIntoValues(kRadicalExample);
  ClearBelow(14);
  SayAt(14.5, R"(\yWatch out:\z  b is -4, not 4.)");
  constexpr double kRow = 18.5;
  SayAt(16.5, R"(\yTry it:\z  What are a, b and c here?)");
  ShowAt(kRow, "x^2^ - 5x     = 6");
  PageEnd();
  // The 6 goes from column 17 to the left side, where it is subtracted.
  CarryAcross(kRow, 17, 1, -4);
  ShowAt(kRow, R"(x^2^ - 5x \y- 6\z = 0)");
  SayAt(20.5, "We subtract 6 from both sides first.  Then a is 1, b is -5 and c is -6.");
  PageEnd();
}

void WhereItComesFrom() {
  NewScreen();
  SayAt(3, "We can solve the standard form itself.");
  ShowAt(4, "ax^2^ + bx + c = 0");
  SayAt(5.5, R"(We multiply both sides by \y4a\z:)");
  ShowAt(6.5, "4a^2^x^2^ + 4abx + 4ac = 0");
  PageEnd();
  SayAt(8, R"(We subtract \y4ac\z from both sides:)");
  ShowAt(9, "4a^2^x^2^ + 4abx + 4ac = 0");
  // 4ac goes from column 18 to the right side, and its sign is turned.
  CarryAcross(9, 18, 3, 7);
  ShowAt(9, R"(4a^2^x^2^ + 4abx       = \y-4ac\z)");
  PageEnd();
  SayAt(10.5, R"(We add \yb^2^\z.  The left side is a square:)");
  ShowAt(11.5, "4a^2^x^2^ + 4abx + b^2^ = b^2^ - 4ac");
  ShowAt(12.5, "(2ax + b)^2^ = b^2^ - 4ac");
  PageEnd();
  SayAt(14, "We take the square root of both sides:");
  ShowAt(15.5, "2ax + b = " + tutor::PlusOrMinus + "`b^2^ - 4ac`");
  PageEnd();
  SayAt(17, R"(We subtract \yb\z, then we divide by \y2a\z:)");
  ShowAt(18.5, "2ax = -b " + tutor::PlusOrMinus + " `b^2^ - 4ac`");
  ShowAt(21, QuadraticFormulaText());
  PageEnd();
}

void NameTheFormula() {
  NewScreen();
  SayAt(3, R"(The last line is the \cquadratic formula\z.)");
  picGalleryImagePrepare(1, gallery::QuadraticFormula, 4.5, 12);
  picGalleryImageShow(1);
  SayAt(13, Text(R"(\y{}\z stands for both signs:  one solution has +, the other one has -.  The )"
                 R"(solutions are called \croots\z.)",
                 tutor::PlusOrMinus));
  PageEnd();
  SayAt(17, R"(\yWatch out:\z  The whole numerator is divided by 2a, -b as well as the radical.)");
  SayAt(20.5, Text(R"(\yTry it:\z  What is -b in  {}?)", EquationText(kRationalExample)));
  PageEnd();
  SayAt(22.5, "b is -5, so -b is -(-5) = 5.");
  PageEnd();
}

void RationalRoots() {
  SolveWithFormula(kRationalExample);
  Say(R"(The roots are \y-1\z and \y6\z.)");
  PageEnd();
}

void RadicalRoots() {
  SolveWithFormula(kRadicalExample);
  Say(Text(R"(The roots are \y{}\z.)", RootsText(RootsOf(4, 40, 4))));
  PageEnd();
}

// The equation, and its discriminant below the table.
void AskDiscriminant(const DiscriminantRow& row) {
  const auto [a, b, c] = row.coefficients;
  const std::string work =
      InParentheses(b) + "^2^ - " + ProductText(4, a, c) + " = " + row.difference + " = ";
  constexpr int kExponentCodes = 2;
  ShowAt(row.row, row.equation, 1);
  ClearBelow(kWorkRow - 1);
  ShowAt(kWorkRow, work + row.value,
         kValueColumn - static_cast<double>(work.size()) + kExponentCodes);
  PageEnd();
}

// The value slides from its computation up into the table.
void FillRow(const DiscriminantRow& row) {
  const auto width = static_cast<double>(std::string_view(row.value).size());
  SlideUp({kWorkRow, kValueColumn, width}, kWorkRow - row.row, Leaving::Copy);
  ShowAt(row.row, row.roots, kRootsColumn);
  ClearBelow(kWorkRow - 1);
}

void TheDiscriminant() {
  NewScreen();
  SayAt(3, R"(The \cdiscriminant\z tells how many roots:)");
  ShowAt(6, R"(\yb^2^ - 4ac\z)", kValueColumn - 5);
  ShowAt(6, R"(\yroots\z)", kRootsColumn);
  AskDiscriminant(kDiscriminants[0]);
  FillRow(kDiscriminants[0]);
  SayAt(15, "+1 and -1 give two roots.  How many now?");
  AskDiscriminant(kDiscriminants[1]);
  FillRow(kDiscriminants[1]);
  ClearBelow(14.5);
  SayAt(15, "+0 and -0 give one root.  How many now?");
  AskDiscriminant(kDiscriminants[2]);
  FillRow(kDiscriminants[2]);
  ClearBelow(14.5);
  SayAt(15, "No real number times itself is -16:");
  ShowAt(16.5, "4(4) = 16      (-4)(-4) = 16");
  SayAt(18, R"(\yNegative\z discriminant:  no real roots.)");
  PageEnd();
  SayAt(20, Text(R"(\yTry it:\z  How many real roots does  {}  have?)", "x^2^ + x + 1 = 0"));
  PageEnd();
  SayAt(22.5, "None:  1 - 4 = -3 is negative.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TheQuadraticFormula final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{StandardForm, WhereItComesFrom, NameTheFormula},
            {RationalRoots, RadicalRoots},
            {TheDiscriminant}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawChoices(RandomStream& random);

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
  if (real)
    choices.Wrong("takes the discriminant to be negative", {});
  else
    choices.Wrong("loses the minus sign under the radical", RootsOf(-b, under, 2 * a));
  choices.Wrong(lost + "keeps the sign of b", RootsOf(b, under, 2 * a));
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
  Conclude(problem);
}

const LessonRegistration<TheQuadraticFormula> kRegistration("The Quadratic Formula");

}  // namespace
}  // namespace course
