// The student can solve any quadratic equation with the quadratic formula: read off a, b and c, put
// them in, simplify the radical and the fraction, and see from the discriminant when there are no
// real roots.
//
// A choice shows both roots: two numbers, one expression with the plus-or-minus sign and a reduced
// radical, or one number for a double root.  "No real roots" is always among the five, so that it
// gives nothing away.  Beside it and the right roots stand those of three mistakes: the sign of b
// is kept, 4ac is added, the division by 2a is forgotten; where two of these agree, a neighbouring
// mistake takes the place.  When there are no real roots the mistakes also lose the minus sign
// under the radical.
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace quadratics;

using Roots = std::optional<RootPair>;

const Quadratic kExample = {2, -4, -3};

// The table of discriminants: an equation, its discriminant as it is worked out, its real roots.
// The work begins at such a column that its value ends up in the table's column.
constexpr int kValueColumn = 27;
constexpr int kRootsColumn = 35;
struct DiscriminantRow {
  int row;
  const char* equation;
  int workColumn;
  const char* work;
  const char* value;
  const char* roots;
};
constexpr DiscriminantRow kDiscriminants[] = {
    {9, "x^2^ - 5x + 6 = 0", 1, R"((-5)^2^ - 4\248\1\248\6 = 25 - 24 = )", "1", "two"},
    {11, "x^2^ - 6x + 9 = 0", 1, R"((-6)^2^ - 4\248\1\248\9 = 36 - 36 = )", "0", "one"},
    {13, "x^2^ + 2x + 5 = 0", 5, R"(2^2^ - 4\248\1\248\5 = 4 - 20 = )", "-16", "none"}};

// --- Teaching screens --------------------------------------------------------

void StandardForm() {
  NewScreen();
  WrapAt(3, R"(A \cquadratic equation\z has a term with x^2^.  In \cstandard form\z its terms )"
            "stand in this order, with 0 on the right side:");
  PrintStandardForm(7);
  PageEnd();
  PrintSpreadEquation(kExample);
  PageEnd();
  TurnTermsIntoValues(kExample);
  WrapAt(14, R"(\rThe sign belongs to the number\z: here b is -4, not 4.)");
  PageEnd();
}

void BringToStandardForm() {
  constexpr int kRow = 18;
  WrapAt(16.5, "Other equations are put into it first:");
  PrintRow(kRow, "x^2^ - 5x     = 6");
  PageEnd();
  // The 6 goes from column 17 to the left side, where it is subtracted.
  CarryAcross(kRow, 17, 1, -4);
  PrintRow(kRow, R"(x^2^ - 5x \y- 6\z = 0)");
  WrapAt(19.5, R"(We \ysubtract 6\z from both sides.  What are a, b and c now?)");
  PageEnd();
  WrapAt(22, "a is 1, b is -5 and c is -6.");
  PageEnd();
}

void WhereItComesFrom() {
  NewScreen();
  WrapAt(3, "We can solve the standard form itself.");
  PrintRow(4, "ax^2^ + bx + c = 0");
  WrapAt(5.5, R"(First we multiply both sides by \y4a\z.)");
  PrintRow(6.5, "4a^2^x^2^ + 4abx + 4ac = 0");
  PageEnd();
  WrapAt(8, R"(Then we subtract \y4ac\z from both sides.)");
  PrintRow(9, "4a^2^x^2^ + 4abx + 4ac = 0");
  PageEnd();
  // 4ac goes from column 18 to the right side, and its sign is turned.
  CarryAcross(9, 18, 3, 7);
  PrintRow(9, R"(4a^2^x^2^ + 4abx       = \y-4ac\z)");
  PageEnd();
  WrapAt(10.5, R"(We add \yb^2^\z: the left side is a square.)");
  PrintRow(11.5, "4a^2^x^2^ + 4abx + b^2^ = b^2^ - 4ac");
  PrintRow(12.5, "(2ax + b)^2^ = b^2^ - 4ac");
  PageEnd();
  WrapAt(14, "What is squared may have either sign.");
  PrintStackedRow(15.5, "2ax + b = " + tutor::PlusOrMinus + "`b^2^ - 4ac`");
  PageEnd();
  WrapAt(17, R"(We subtract \yb\z and divide by \y2a\z.)");
  PrintStackedRow(21, QuadraticFormulaText());
  PageEnd();
}

// The last line of the derivation slides to the top and stays alone.
void NameTheFormula() {
  AnimHere(19, 1, 40, 4, 1, 16, 30, 1);
  isDrawRoundRect(3.2, 2, 6.6, 22, 2, platform::colour::Cyan);
  WrapAt(9, R"(This is the \cquadratic formula\z.  The sign \c)" + tutor::PlusOrMinus +
                R"(\z stands for both signs: one root has +, the other one has -.)");
  PageEnd();
  WrapAt(13, R"(\rThe whole numerator is divided by 2a\z, -b as well as the radical.)");
  PageEnd();
  WrapAt(16, "For x^2^ - 5x - 6 = 0, what is -b?");
  PageEnd();
  WrapAt(18, "b is -5, so -b is -(-5) = 5.");
  PageEnd();
}

void UsingTheFormula() {
  NewScreen();
  WrapAt(3, "Let's solve " + EquationText(kExample) + ".");
  SolveByFormula(kExample);
}

// The value slides from its computation up into the table.
void FillRow(const DiscriminantRow& row) {
  constexpr int kWorkRow = 17;
  const std::string value = row.value;
  PrintRow(row.row, row.equation, 1);
  ClearRows(kWorkRow, 1);
  PrintRow(kWorkRow, row.work + value, row.workColumn);
  PageEnd();
  const auto width = static_cast<int>(value.size());
  AnimHere(kWorkRow, kValueColumn, width, 1, 1, kWorkRow - row.row, 50, 0);
  PrintRow(row.row, row.roots, kRootsColumn);
  PageEnd();
}

void TheDiscriminant() {
  NewScreen();
  WrapAt(3, "The number under the radical, b^2^" + tutor::Gap + "-" + tutor::Gap +
                R"(4ac, is the \cdiscriminant\z.  It tells how many real roots there are.)");
  PrintRow(7, R"(\yb^2^ - 4ac\z)", kValueColumn - 3);
  PrintRow(7, R"(\yroots\z)", kRootsColumn);
  PageEnd();
  for (const DiscriminantRow& row : kDiscriminants) FillRow(row);
  ClearRows(17, 1);
  WrapAt(16, R"(When it is \ypositive\z, + and - give two different roots.)");
  PageEnd();
  WrapAt(19, R"(When it is \y0\z, nothing is added or taken away, and both signs give one root.)");
  PageEnd();
}

void NoRootOfANegative() {
  NewScreen();
  PrintStackedRow(5, "x = " + RootsOver(-2, "`-16`", 2));
  WrapAt(8, R"(Why are there no roots when the discriminant is \ynegative\z?)");
  PageEnd();
  WrapAt(11, "Because no real number times itself is negative:");
  PrintRow(13.5, "4" + tutor::Dot + "4 = 16      (-4)" + tutor::Dot + "(-4) = 16");
  PageEnd();
  WrapAt(16, "So the radical is no real number, and the equation has no real roots.");
  PageEnd();
  WrapAt(19, "How many real roots has x^2^ + x + 1 = 0?");
  PageEnd();
  WrapAt(21.5, "None, because 1 - 4 = -3 is negative.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class TheQuadraticFormula final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{StandardForm, BringToStandardForm, WhereItComesFrom, NameTheFormula},
            {UsingTheFormula},
            {TheDiscriminant, NoRootOfANegative}};
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
  WrapAt(5, problem.question[0]);
  PrintRow(8, problem.question[1], 7);
  picAnswerSetParameters(2, 11, 1, 21, 0, 19, 68, 16, 9);
  answerParameters.printChoice = picAnswerPrintStackedText;
}

// --- Worked explanation ------------------------------------------------------

void TheQuadraticFormula::ExplainProblem() {
  ProblemBanner();
  SolveByFormula(equation_);
}

const LessonRegistration<TheQuadraticFormula> kRegistration("The Quadratic Formula");

}  // namespace
}  // namespace course
