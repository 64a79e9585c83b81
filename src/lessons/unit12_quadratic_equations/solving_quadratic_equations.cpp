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
  constexpr Factors kAsked = {{1, -5}, {2, 3}};
  NewScreen();
  SayAt(3, Text("When is the product {} equal to 0?  We try four values of x:",
                FactorsText(kExample)));
  CellTable(ProductTable(), 6);
  FillRow(0, {-5, -3, -2, 0});
  FillRow(1, {0, 2, 3, 5});
  constexpr double kBelowTable = 13;
  SayAt(kBelowTable, R"(\yTry it:\z  What are the four products?)");
  PageEnd();
  FillRow(2, {0, -6, -6, 0});
  ClearBelow(kBelowTable);
  SayAt(kBelowTable, "The product is 0 where a factor is 0.");
  RuleBox("Zero Product", {"When a product is 0,", "one of its factors is 0."}, {.width = 30});
  PageEnd();

  NewScreen();
  SayAt(3, Text("So {} tells us:", IsZero(kExample)));
  SolveFactors(5, kExample);
  PageEnd();
  Say(R"(\yWatch out:\z  The solutions are 3 and -2, not -3 and 2.  Their signs are not those in )"
      "the factors.");
  Say(Text(R"(\yTry it:\z  Solve  {}.)", IsZero(kAsked)));
  PageEnd();

  NewScreen();
  ShowAt(3, IsZero(kAsked));
  SolveFactors(5, kAsked);
  Say(R"(\yWatch out:\z  2x = -3 is not solved before we divide by 2.)");
  PageEnd();
}

// --- Screen 2: all terms on one side -------------------------------------------------------------

void TermsToOneSide() {
  constexpr double kRow = 12;
  NewScreen();
  SayAt(3, Text(R"(A \cquadratic equation\z has a term with x^2^ and no higher power:  {})",
                "x^2^ + 2x = 15"));
  ShowAt(6, "Ben writes:  x(x + 2) = 15, so x = 15", 1);
  SayAt(8, R"(\yTry it:\z  Is he right?)");
  PageEnd();
  SayAt(9,
        "No.  3 times 5 is 15, too.  Only a product of 0 tells us a factor.  So all the terms "
        "go to one side:");
  ShowAt(kRow + 1, "x^2^ + 2x      = 15");
  PageEnd();
  constexpr double kRight = kMathCol + 15;  // column of the number on the right side
  CarryAcross(kRow + 1, kRight, 2, -6);
  ShowAt(kRow + 1, R"(x^2^ + 2x \y- 15\z = 0 )");
  SayAt(15, "We have subtracted 15.  Now we factor:");
  ShowAt(16.25, IsZero({{1, -3}, {1, 5}}));
  Say(R"(\yTry it:\z  Which are the solutions?)");
  PageEnd();
  SayAt(20, R"(They are \y3\z and \y-5\z.)");
  SayAt(21, R"(\yCheck:\z)");
  ShowAt(21, "3^2^ + 2" + kTimes + "3 = 9 + 6 = 15", 9);
  ShowAt(22.25, "(-5)^2^ + 2(-5) = 25 - 10 = 15", 9);
  PageEnd();
}

// --- Screen 3: common factors --------------------------------------------------------------------

void CommonFactorX() {
  NewScreen();
  SayAt(3, Text("In {} both terms have the factor 2x.  We take it out:", EquationText({2, -6, 0})));
  ShowAt(6, "2x(x - 3) = 0");
  Say(R"(\yTry it:\z  Which two numbers is x?)");
  PageEnd();
  Say("One of the two factors is 0:");
  const double row = NextRow() + 0.5;
  ShowAt(row, "2x = 0", kLeftCol);
  ShowAt(row, "x - 3 = 0", kRightCol);
  ShowAt(row + 1.25, R"(\yx = 0)", kLeftCol);
  ShowAt(row + 1.25, R"(\yx = 3)", kRightCol);
  GoBelow();
  PageEnd();
  Say(R"(\yWatch out:\z  Who divides both sides by x gets 2x - 6 = 0 and finds only 3.  The )"
      "solution 0 is lost.  The factor x stays.");
  PageEnd();
}

void CommonNumber() {
  NewScreen();
  SayAt(3, Text("In {} all three terms have the factor 3.  Factoring out a factor of 3:",
                EquationText({3, -3, -18})));
  ShowAt(6.5, "3(x^2^ - x - 6) = 0");
  PageEnd();
  Say("3 is never 0, so it gives no solution.  The parentheses are 0:");
  Show("x^2^ - x - 6 = 0");
  Say(Text(R"(\yTry it:\z  And in  {}?)", EquationText({-2, -6, 8})));
  PageEnd();
  Say("We factor out -2, so that x^2^ has no number.  Each term changes its sign:");
  Show("-2(x^2^ + 3x - 4) = 0");
  PageEnd();
}

// --- Screen 4: two squares -----------------------------------------------------------------------

void TwoSquares() {
  NewScreen();
  ShowAt(3, "Solve: y^2^ - 36 = 0", 1);
  Say("36 is 6^2^:  a difference of two squares.");
  Show("(y + 6)(y - 6) = 0");
  Say(R"(\yTry it:\z  Which two numbers is y?)");
  PageEnd();
  Say(R"(y is \y-6\z or \y6\z.  Both have the square 36.)");
  Say(R"(\yWatch out:\z  y^2^ = 36 makes us think of 6, and -6 is forgotten.)");
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({9, 0, -25})));
  PageEnd();
  Say("9x^2^ is the square of 3x, 25 that of 5:");
  Show(IsZero({{3, 5}, {3, -5}}));
  SayAt(19.5, "3x is -5 or 5.  We divide by 3:");
  ShowAt(21.75, R"(\yx = -5/3  or  x = 5/3)");
  PageEnd();
}

// --- Screens 5 and 6: trinomials -----------------------------------------------------------------

void TrinomialWithoutNumber() {
  NewScreen();
  SayAt(3, Text("Let's solve {}.  The number in front of x^2^ is 1.", EquationText({1, -2, -15})));
  Say(R"(\yTry it:\z  Which two numbers have the product -15 and the sum -2?)");
  PageEnd();
  ListTried({{1, -15}, {3, -5}});
  Say(Text(R"({}, so x is \y-3\z or \y5\z.)", IsZero({{1, 3}, {1, -5}})));
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({1, -9, 20})));
  PageEnd();
  Say("-4 and -5 have the product 20 and the sum -9:");
  Show(IsZero({{1, -4}, {1, -5}}));
  Say(R"(So x is \y4\z or \y5\z.)");
  PageEnd();
}

void TrinomialWithNumber() {
  constexpr Trinomial kAsked = {2, 5, -12};
  NewScreen();
  SayAt(3, Text(R"(Let's solve {}.  \yFirst\z the common factor.  Factoring out a factor of 2:)",
                EquationText({4, 10, -24})));
  ShowAt(6.5, "2(" + TrinomialText(kAsked) + ") = 0");
  PageEnd();
  Say("2 is never 0, so the parentheses are 0:");
  Show(EquationText({2, 5, -12}));
  PageEnd();
  Say(R"(\yThen\z the other factors, by trying:)");
  const std::vector<Trial> trials = TrialsUntilFound(kAsked);
  WhiteBox({.rows = 1.5 * static_cast<double>(trials.size()) + 0.5});
  for (const Trial& trial : trials) SayInBox(TrialLine(trial));
  Say(R"(\yTry it:\z  Which number is positive?)");
  PageEnd();
  Say("8x comes from 4 and 2x.  It is larger, and 5x is positive.  So 4 gets the plus sign:");
  Show(IsZero({{2, -3}, {1, 4}}));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yLast\z we set each factor to 0:)");
  SolveFactors(5, {{2, -3}, {1, 4}});
  Say(R"(\yWatch out:\z  x is 3/2, not 3 or 2/3.)");
  Say(Text(R"(\yTry it:\z  Solve  {}.)", IsZero({{3, 1}, {4, -5}})));
  PageEnd();
  Say(R"(3x = -1 and 4x = 5, so x is \y-1/3\z or \y5/4\z.)");
  PageEnd();
}

// --- Screen 7: one solution ----------------------------------------------------------------------

void DoubleRoot() {
  NewScreen();
  SayAt(3, Text("Let's solve {}.  -3 and -3 have the product 9 and the sum -6:",
                EquationText({1, -6, 9})));
  ShowAt(6.5, IsZero({{1, -3}, {1, -3}}));
  Say(R"(\yTry it:\z  How many solutions are there?)");
  PageEnd();
  Say("One.  Both factors say that x is 3.");
  Say(R"(A solution that comes twice is called a \cdouble root\z.)");
  Say(Text(R"(\yTry it:\z  Solve  {}.)", EquationText({4, 4, 1})));
  PageEnd();
  Say(Text("{} is the square of 2x + 1, so 2x = -1:", TrinomialText({4, 4, 1})));
  Show(R"(\yx = -1/2,\z  the only solution)");
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
  CheckEveryRoot(equation_);
  Conclude(problem);
}

const LessonRegistration<SolvingQuadraticEquations> kRegistration("Solving Quadratic Equations");

}  // namespace
}  // namespace course
