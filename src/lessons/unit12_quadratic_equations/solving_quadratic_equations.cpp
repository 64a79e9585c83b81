// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/factoring/factor_trials.h"
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;
using namespace polynomials;
using namespace quadratics;

constexpr int kLargest = 10;  // size of the numbers in the factors

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

void Screen2() {
  NewScreen();
  Say("Screen 2 is not written yet.");
  PageEnd();
}

void Screen3() {
  NewScreen();
  Say("Screen 3 is not written yet.");
  PageEnd();
}

void Screen4() {
  NewScreen();
  Say("Screen 4 is not written yet.");
  PageEnd();
}

void Screen5() {
  NewScreen();
  Say("Screen 5 is not written yet.");
  PageEnd();
}

void Screen6() {
  NewScreen();
  Say("Screen 6 is not written yet.");
  PageEnd();
}

void Screen7() {
  NewScreen();
  Say("Screen 7 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SolvingQuadraticEquations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{Screen1}, {Screen2}, {Screen3}, {Screen4}, {Screen5}, {Screen6}, {Screen7}};
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

Fraction SolutionOf(const Binomial& factor) {
  return Reduced(-factor.constant, factor.lead);
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
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<SolvingQuadraticEquations> kRegistration("Solving Quadratic Equations");

}  // namespace
}  // namespace course
