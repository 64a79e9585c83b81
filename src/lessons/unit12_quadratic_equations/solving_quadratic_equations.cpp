// The student can solve a quadratic equation by factoring: brings all its terms to one side, takes
// the common factor out, factors what is left, sets each factor to 0, and knows why a product has
// to be 0 for that.
#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/factoring/factor_trials.h"
#include "lessons/families/quadratics/factor_steps.h"
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

constexpr double kLeftCol = 3;
constexpr double kRightCol = 22;

using namespace factoring;
using namespace polynomials;
using namespace quadratics;

constexpr int kLargest = 10;  // size of the numbers in the factors

const std::string kTimes = tutor::Gap + tutor::Dot + tutor::Gap;

// --- Screen 1: when a product is 0 ---------------------------------------------------------------

constexpr int kColumns = 4;

// Rows: x, x - 3, x + 2, and their product.
PrintCellTable ProductTable() {
  constexpr double kFirst = 26;
  constexpr double kStep = 18;
  const char* kHeads[] = {"x - 3", "x + 2", "product"};
  PrintCellTable table;
  table.widthPixels = 480;
  table.heightPixels = 150;
  for (int row = 0; row < 3; ++row) {
    const double top = 27.0 + 24 * row;
    for (int i = 0; i < kColumns; ++i) table.cells.push_back({kFirst + kStep * i, top, 15, 21});
    table.labels.push_back({2, top + 4, 22, 14, kHeads[row], 14, platform::colour::Black});
  }
  table.labels.push_back({2, 6, 22, 14, "x", 14, platform::colour::Black});
  const char* kValues[] = {"-2", "0", "1", "3"};
  for (int i = 0; i < kColumns; ++i) table.marks.push_back({kFirst + kStep * i + 6, 6, kValues[i]});
  return table;
}

void FillRow(int row, const std::array<int, kColumns>& values) {
  constexpr double kSize = 16;  // points
  for (int i = 0; i < kColumns; ++i) {
    const int value = values[static_cast<std::size_t>(i)];
    picPrintCellPrint(kColumns * row + i + 1, NumStr(value),
                      value == 0 ? platform::colour::Blue : platform::colour::Black, kSize);
  }
}

void ZeroProduct() {
  constexpr Factors kExample = {{1, -3}, {1, 2}};
  NewScreen();
  SayAt(3, Text(R"(When is the product {} equal to 0?  We try four values of x:)",
                FactorsText(kExample)));
  CellTable(ProductTable(), 6);
  FillRow(0, {-5, -3, -2, 0});
  FillRow(1, {0, 2, 3, 5});
  Say(R"(\yTry it:\z  What are the four products?)");
  PageEnd();
  FillRow(2, {0, -6, -6, 0});
  ClearBelow(13);
  SayAt(13,
        "The product is 0 where one of the factors is 0, at -2 and at 3.  Two numbers that are "
        "not 0 never have the product 0.");
  RuleBox("Zero Product", {"When a product is 0,", "one of its factors is 0."}, {.width = 30});
  PageEnd();

  NewScreen();
  SayAt(3, "So an equation with a product and 0 falls into two short equations:");
  ShowAt(5.5, IsZero(kExample));
  SayAt(7, "The first factor is 0, or the second one is:");
  PageEnd();
  SolveBothFactors(9, kExample);
  Say(R"(\yWatch out:\z  The solutions are 3 and -2, not -3 and 2.  Their signs are not those in )"
      "the factors.");
  PageEnd();
  Say(Text(R"(\yTry it:\z  Solve  {}.)", IsZero({{1, -5}, {2, 3}})));
  PageEnd();

  NewScreen();
  SayAt(3, Text("We solve {}.  Each factor gives a solution:", IsZero({{1, -5}, {2, 3}})));
  SolveBothFactors(6, {{1, -5}, {2, 3}});
  Say(R"(\yWatch out:\z  2x = -3 is not solved yet.  We still divide by 2, and -3 stands on top.)");
  PageEnd();
}

// --- Screen 2: all terms on one side -------------------------------------------------------------

void TermsToOneSide() {
  constexpr double kRow = 9;
  const std::string asked = "x^2^ + 2x      = 15";
  NewScreen();
  SayAt(3, R"(A \cquadratic equation\z has a term with x^2^ and no higher power.  Here is one:)");
  ShowAt(5.5, "x^2^ + 2x = 15");
  Say("Ben writes x(x + 2) = 15, and sets x = 15 and x + 2 = 15.");
  Say(R"(\yTry it:\z  Is he right?)");
  PageEnd();
  ClearBelow(7);
  SayAt(7,
        "No.  3 times 5 is 15, and neither of them is 15.  Only a product of 0 tells us a "
        "factor.  So first all the terms go to one side:");
  ShowAt(kRow + 2, asked);
  PageEnd();
  CarryAcross(kRow + 2, kMathCol + 15, 2, -7);
  ShowAt(kRow + 2, R"(x^2^ + 2x \y- 15\z = 0 )");
  SayAt(13,
        "We have subtracted 15 from both sides.  0 is left on the right side.  Now we factor "
        "and solve:");
  ShowAt(16, IsZero({{1, -3}, {1, 5}}));
  Say(R"(\yTry it:\z  Which numbers are the solutions?)");
  PageEnd();
  SayAt(20, R"(They are \y3\z and \y-5\z.  \yCheck:\z)");
  ShowAt(21.5, "3^2^ + 2" + kTimes + "3 = 9 + 6 = 15");
  ShowAt(22.75, "(-5)^2^ + 2(-5) = 25 - 10 = 15");
  PageEnd();
}

// --- Screen 3: common factors --------------------------------------------------------------------

void CommonFactorX() {
  NewScreen();
  SayAt(3, Text("Let's solve {}.  Both terms have the factor 2x:", EquationText({2, -6, 0})));
  ShowAt(6, "2x(x - 3) = 0");
  PageEnd();
  Say("The factors are 2x and x - 3.  One of them is 0:");
  ShowAt(10, "2x = 0", kLeftCol);
  ShowAt(10, "x - 3 = 0", kRightCol);
  ShowAt(11.5, R"( \yx = 0)", kLeftCol);
  ShowAt(11.5, R"(    \yx = 3)", kRightCol);
  GoBelow();
  PageEnd();
  Say(R"(\yWatch out:\z  Who divides both sides by x gets 2x - 6 = 0 and finds only 3.  The )"
      "solution 0 is lost.  The factor x stays.");
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({5, 20, 0})));
  PageEnd();
  Say(R"(5x(x + 4) = 0, so x is \y0\z or \y-4\z.)");
  PageEnd();
}

void CommonNumber() {
  NewScreen();
  SayAt(3, Text("In {} all three terms have the factor 3.", EquationText({3, -3, -18})));
  Say("Factoring out a factor of 3:");
  Show("3(x^2^ - x - 6) = 0");
  PageEnd();
  Say("3 is a factor, too, but it is never 0.  So the parentheses are 0:");
  Show("x^2^ - x - 6 = 0");
  Say(R"(\yWatch out:\z  3 is not a solution because of that factor.)");
  Say(Text(R"(\yTry it:\z  What can we factor out of {}?)", EquationText({-2, -6, 8})));
  PageEnd();
  Say("-2, so that x^2^ stands alone.  Each term changes its sign:");
  Show("-2(x^2^ + 3x - 4) = 0");
  PageEnd();
}

// --- Screen 4: two squares -----------------------------------------------------------------------

void TwoSquares() {
  NewScreen();
  ShowAt(3, "Solve: y^2^ - 36 = 0", 1);
  Say("y^2^ is the square of y, and 36 is the square of 6.  This is a difference of two squares:");
  Show("(y + 6)(y - 6) = 0");
  Say(R"(\yTry it:\z  Which two numbers is y?)");
  PageEnd();
  Say(R"(y is \y-6\z or \y6\z.  Both have the square 36.)");
  Say(R"(\yWatch out:\z  Who thinks "the square of what is 36" finds 6 at once, and forgets -6.)");
  PageEnd();

  NewScreen();
  SayAt(3, Text("With a number in front of x^2^ we look for its square root, too:  {}.",
                EquationText({9, 0, -25})));
  Say("9x^2^ is the square of 3x, and 25 is the square of 5.");
  Show(IsZero({{3, 5}, {3, -5}}));
  PageEnd();
  SolveBothFactors(NextRow() + 0.5, {{3, 5}, {3, -5}});
  PageEnd();
}

// --- Screens 5 and 6: trinomials -----------------------------------------------------------------

void TrinomialWithoutNumber() {
  NewScreen();
  SayAt(3, Text("Let's solve {}.  The product of the two numbers is -15, and their sum is -2:",
                EquationText({1, -2, -15})));
  ListTried({{1, -15}, {3, -5}});
  Show(IsZero({{1, 3}, {1, -5}}));
  PageEnd();
  SolveBothFactors(NextRow() + 0.5, {{1, 3}, {1, -5}});
  PageEnd();
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({1, -9, 20})));
  PageEnd();
  Say(R"(-4 and -5 have the product 20 and the sum -9.  So (x - 4)(x - 5) = 0, and x is \y4\z or )"
      R"(\y5\z.)");
  PageEnd();
}

void TrinomialWithNumber() {
  constexpr Trinomial kAsked = {2, 5, -12};
  NewScreen();
  SayAt(3, Text("Let's solve {}.  Three steps lead to the solutions.", EquationText({4, 10, -24})));
  Say(R"(\yFirst\z the common factor.  Factoring out a factor of 2, which is not 0:)");
  Show(EquationText({2, 5, -12}));
  PageEnd();
  Say(R"(\yThen\z the factors.  We try pairs until the middle term is right:)");
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  WhiteBox({.rows = 1.5 * static_cast<double>(trials.size()) + 0.5});
  for (const Trial& trial : trials) SayInBox(TrialLine(trial));
  Say(R"(\yTry it:\z  5x is positive.  Which number gets the minus sign?)");
  PageEnd();

  NewScreen();
  SayAt(3,
        "8x comes from 4 and 2x.  It must be positive, so 4 has the plus sign and 3 the minus "
        "sign:");
  Show(IsZero({{2, -3}, {1, 4}}));
  Say(R"(\yLast\z each factor is set to 0:)");
  SolveBothFactors(NextRow() + 0.5, {{2, -3}, {1, 4}});
  PageEnd();
  Say(R"(\yWatch out:\z  x is 3/2, not 3 and not 2/3.  2x = 3 is divided by 2.)");
  PageEnd();
}

// --- Screen 7: one solution ----------------------------------------------------------------------

void DoubleRoot() {
  NewScreen();
  SayAt(3, Text("Let's solve {}.  -3 and -3 have the product 9 and the sum -6:",
                EquationText({1, -6, 9})));
  Show(IsZero({{1, -3}, {1, -3}}));
  Say(R"(\yTry it:\z  How many solutions does it have?)");
  PageEnd();
  Say(R"(One.  Both factors say the same:  x is \y3\z.  Such a solution is called a \cdouble )"
      R"(root\z, because it comes twice.)");
  PageEnd();
  RuleBox("Solving by Factoring",
          {"1. All terms go to one side.", "2. Factor out the common factor.",
           "3. Factor what is left.", "4. Set each factor to 0 and solve."});
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({4, 4, 1})));
  PageEnd();
  Say(Text(R"({} is the square of 2x + 1, so x is \y-1/2\z.)", TrinomialText({4, 4, 1})));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SolvingQuadraticEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{ZeroProduct}, {TermsToOneSide},         {CommonFactorX, CommonNumber},
            {TwoSquares},  {TrinomialWithoutNumber}, {TrinomialWithNumber},
            {DoubleRoot}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<Factors> OtherFactors() const;
  void DrawChoices(RandomStream& random);

  Factors factors_;  // their numbers have no common factor, and x is positive in both
  Quadratic equation_;
};

// --- Generator ---------------------------------------------------------------

// The one or two solutions of an equation that factors.
struct Solutions {
  Fraction smaller;
  Fraction larger;
  bool operator==(const Solutions&) const = default;
};

Solutions InOrder(const Fraction& first, const Fraction& second) {
  return second < first ? Solutions{second, first} : Solutions{first, second};
}

std::string SolutionsText(const Solutions& solutions) {
  const std::string smaller = ValueText(solutions.smaller);
  return solutions.smaller == solutions.larger ? smaller
                                               : smaller + " or " + ValueText(solutions.larger);
}

// (-6x + 4) becomes (3x - 2).
Binomial WithoutCommonFactor(const Binomial& factor) {
  const int common = Gcf(std::abs(factor.lead), std::abs(factor.constant)) * Sgn(factor.lead);
  return {factor.lead / common, factor.constant / common};
}

void SolvingQuadraticEquations::DrawProblem(RandomStream& random) {
  const Binomial first = DrawBinomial(random, kLargest);
  const Binomial second = DrawBinomial(random, kLargest);
  const Trinomial product = Factors{first, second}.Product();
  equation_ = {product.square, product.middle, product.constant};
  factors_ = {WithoutCommonFactor(first), WithoutCommonFactor(second)};
  problem.question = {"Solve the following quadratic equation by factoring:",
                      EquationText(equation_)};
  DrawChoices(random);
}

// Factors with the right first and last terms and another middle term; none where the middle term
// is 0.
std::vector<Factors> SolvingQuadraticEquations::OtherFactors() const {
  std::vector<Factors> others;
  const Trinomial product = factors_.Product();
  if (product.middle == 0) return others;
  for (const Trial& trial : AllTrials(product))
    if (trial.Middle() != std::abs(product.middle)) others.push_back(WithSigns(trial, product));
  return others;
}

// The mistakes in a random order; those that lead to the same solutions as one before are passed
// over.
void SolvingQuadraticEquations::DrawChoices(RandomStream& random) {
  const Fraction first = SolutionOf(factors_.first);
  const Fraction second = SolutionOf(factors_.second);
  const Fraction minus = {-1, 1};
  std::vector<std::pair<const char*, Solutions>> mistakes = {
      {"keeps the signs of the numbers in the factors", InOrder(minus * first, minus * second)},
      {"changes the sign of only one number", InOrder(first, minus * second)},
      {"finds only one of the two solutions", InOrder(first, first)},
      {"forgets to divide by the number in front of x", InOrder({first.num, 1}, {second.num, 1})},
      {"takes the numbers in the factors for the solutions",
       InOrder({-first.num, 1}, {-second.num, 1})},
      {"divides the wrong way round",
       InOrder(Reduced(first.den, first.num), Reduced(second.den, second.num))},
  };
  if (const std::vector<Factors> others = OtherFactors(); !others.empty()) {
    const int place = random.Index(static_cast<int>(others.size()));
    const Factors& other = others[static_cast<std::size_t>(place - 1)];
    mistakes.push_back({"checks only the first and last terms of the factors",
                        InOrder(SolutionOf(other.first), SolutionOf(other.second))});
  }
  if (factors_.Product().middle == 0)
    mistakes.push_back(
        {"forgets to take the square root", InOrder(first * first, minus * first * first)});
  Choices choices(problem, choice_kind::FiveShuffled, SolutionsText);
  choices.Right(InOrder(first, second));
  const int count = static_cast<int>(mistakes.size());
  for (const int place : random.RandSeq(count, count)) {
    const auto& [mistake, solutions] = mistakes[static_cast<std::size_t>(place - 1)];
    choices.Wrong(mistake, solutions);
  }
  choices.Fill([&] {
    const int one = random.Rand(-9, 9);
    const int other = random.Rand(-9, 9);
    return InOrder({one, 1}, {other, 1});
  });
}

// --- Problem page ------------------------------------------------------------

void SolvingQuadraticEquations::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 7);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SolvingQuadraticEquations::ExplainProblem() {
  SolveByFactoring(equation_, factors_);
  CheckRoot(equation_);
  Conclude(problem);
}

const LessonRegistration<SolvingQuadraticEquations> kRegistration("Solving Quadratic Equations");

}  // namespace
}  // namespace course
