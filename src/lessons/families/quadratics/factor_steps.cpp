#include "lessons/families/quadratics/factor_steps.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/factoring/factor_trials.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"

namespace course::quadratics {
namespace {

using namespace page;
using factoring::Trial;
using polynomials::NumberPair;
using polynomials::Trinomial;

constexpr double kLeftCol = 3;
constexpr double kRightCol = 22;

constexpr double kTermAlone = 2.25;  // rows below the factor: what its number leaves
constexpr double kDivided = 5.5;

// The factor is 0, and its number goes to the other side.
void MoveNumber(double row, double col, const Binomial& factor) {
  const int moved = -factor.constant;
  ShowAt(row, BinomialText(factor) + " = 0", col);
  SayAt(row + 1.25, Text(moved < 0 ? "subtract {}:" : "add {}:", std::abs(moved)), {.col = col});
  const std::string start = factor.lead == 1 ? R"(\y)" : "";
  ShowAt(row + kTermAlone, start + CoefText(factor.lead) + "x = " + NumStr(moved), col);
}

// Nothing where x stands alone.
void Divide(double row, double col, const Binomial& factor) {
  if (factor.lead == 1) return;
  SayAt(row + kTermAlone + 1.25, Text("divide by {}:", factor.lead), {.col = col});
  ShowAt(row + kDivided, R"(\yx = )" + ValueText(SolutionOf(factor)), col);
}

// What the lesson and its explanation do with one equation.
class FactorSteps {
 public:
  FactorSteps(const Quadratic& equation, const Factors& factors)
      : equation_(equation),
        factors_(factors),
        left_(factors.Product()),
        common_(equation.a / left_.square) {}
  void Solve() const;

 private:
  void StartPage(const std::string& left) const;
  void FactorOut() const;
  void TellSquares() const;
  void TryPairs() const;
  void TryFactors() const;
  void GoThroughTrials() const;
  void PutSignsIn() const;
  void SetFactorsToZero() const;

  // What is left when the common factor is out.
  std::string LeftText() const {
    return EquationText({left_.square, left_.middle, left_.constant});
  }
  std::string LinearSize() const { return CoefText(std::abs(left_.middle)) + "x"; }

  const Quadratic equation_;
  const Factors factors_;
  const Trinomial left_;
  const int common_;
};

void FactorSteps::Solve() const {
  StartPage("");
  FactorOut();
  if (left_.middle == 0)
    TellSquares();
  else if (left_.square == 1)
    TryPairs();
  else
    TryFactors();
  SetFactorsToZero();
}

// The problem, and under it what it has become.
void FactorSteps::StartPage(const std::string& left) const {
  NewScreen();
  ProblemBanner();
  ShowAt(5, EquationText(equation_));
  if (!left.empty() && left != EquationText(equation_)) ShowAt(6.25, left);
}

void FactorSteps::FactorOut() const {
  const int size = std::abs(common_);
  if (common_ == 1) {
    Say("The right side is 0.  The terms of the left side have no common factor.");
    return PageEnd();
  }
  if (size > 1) Say(Text("{} is a factor of all the terms.", size));
  if (common_ < 0)
    Say(size > 1 ? "The first term is negative, so the minus sign comes out, too."
                 : "The first term is negative, so the minus sign comes out.");
  PageEnd();
  Say(Text("Factoring out a factor of {}:", common_));
  Show(NumStr(common_) + "(" + TrinomialText(left_) + ") = 0");
  PageEnd();
  Say(Text("{} is not 0.  So what stands in the parentheses is 0:", common_));
  Show(R"(\y)" + LeftText());
  PageEnd();
  StartPage(LeftText());
  Say("Now we factor the left side.");
  PageEnd();
}

void FactorSteps::TellSquares() const {
  const int last = std::abs(factors_.first.constant);
  Say(
      Text("{} is the square of {}, and {} is the square of {}.  This is a difference of two "
           "squares:",
           SquareTerm(left_.square), CoefText(factors_.first.lead) + "x", last * last, last));
  Show(R"(\y)" + IsZero(factors_));
  PageEnd();
}

void FactorSteps::TryPairs() const {
  Say(Text("We look for two numbers with the product {} and the sum {}.", left_.constant,
           left_.middle));
  PageEnd();
  Say(factoring::SignSentence(left_.constant, left_.middle));
  PageEnd();
  StartPage(LeftText());
  Say(Text("Product {}, sum {}:", left_.constant, left_.middle));
  constexpr int kAPage = 3;
  int listed = 0;
  for (const NumberPair& pair : polynomials::PairsWithProduct(left_.constant, Sgn(left_.middle))) {
    if (listed > 0 && listed % kAPage == 0) PageEnd();
    ++listed;
    const bool found = pair.Sum() == left_.middle;
    AddLine((found ? R"(  \y)" : "  ") + WithoutBreaks(factoring::PairLine(pair)));
    if (found) break;
  }
  PageEnd();
  Say("These are the numbers in the factors:");
  Show(R"(\y)" + IsZero(factors_));
  PageEnd();
}

void FactorSteps::TryFactors() const {
  Say(Text(R"(The \yfirst\z numbers have the product {}:)", left_.square));
  AddLine("  " + factoring::PairsText(left_.square));
  PageEnd();
  Say(Text(left_.constant > 0 ? R"(The \ylast\z numbers have the product {}:)"
                              : R"(Without signs the \ylast\z numbers have the product {}:)",
           std::abs(left_.constant)));
  AddLine("  " + factoring::PairsText(left_.constant));
  PageEnd();
  Say(left_.constant > 0
          ? Text("The last number is positive, so both signs are the same.  The outer and the "
                 "inner product are added.  We need {}.",
                 LinearSize())
          : Text("The last number is negative, so the signs are different.  The smaller product "
                 "is subtracted from the larger.  We need {}.",
                 LinearSize()));
  PageEnd();
  GoThroughTrials();
  PutSignsIn();
}

// Two a page; the box is wiped when it is full.
void FactorSteps::GoThroughTrials() const {
  constexpr std::size_t kAPage = 2;
  constexpr std::size_t kInBox = 4;
  constexpr double kTrialRows = 1.5;
  StartPage(LeftText());
  Say(Text("We try the closest numbers first, until the result is {}:", LinearSize()));
  const std::vector<Trial> trials = factoring::TrialsUntilFound(left_);
  const std::size_t lines = std::min(kInBox, trials.size());
  WhiteBox({.rows = kTrialRows * static_cast<double>(lines) + 0.5});
  for (std::size_t i = 0; i < trials.size(); ++i) {
    if (i > 0 && i % kAPage == 0) PageEnd();
    if (i > 0 && i % kInBox == 0) SayInBoxAnew("");
    const bool found = i + 1 == trials.size();
    SayInBox((found ? R"(\b)" : "") + TrialLine(trials[i]));
  }
  PageEnd();
}

void FactorSteps::PutSignsIn() const {
  const Trial found = factoring::TrialsUntilFound(left_).back();
  const Words sign = {left_.middle > 0 ? "plus" : "minus"};
  if (found.added) {
    Say(Text("The middle term has a {} sign, so both signs are {}:", sign, sign));
  } else {
    const bool outer = found.Outer() > found.Inner();
    const Factors& sizes = found.sizes;
    const int lead = outer ? sizes.first.lead : sizes.second.lead;
    const int last = outer ? sizes.second.constant : sizes.first.constant;
    Say(
        Text("The larger product, {}, comes from {} and {}.  It must be {}, so this {} gets the {} "
             "sign:",
             CoefText(lead * last) + "x", last, CoefText(lead) + "x",
             Words{left_.middle > 0 ? "positive" : "negative"}, last, sign));
  }
  Show(R"(\y)" + IsZero(factoring::WithSigns(found, left_)));
  PageEnd();
}

// The factors in view; then each of them is 0.
void FactorSteps::SetFactorsToZero() const {
  StartPage(IsZero(factors_));
  Say("A product is 0 only when one of its factors is 0.");
  PageEnd();
  Say(factors_.first == factors_.second ? "They are the same, so we solve one:"
                                        : "We set each factor to 0:");
  SolveFactors(NextRow() + 0.5, factors_);
  PageEnd();
}

}  // namespace

std::string IsZero(const Factors& factors) {
  return FactorsText(factors) + " = 0";
}

Fraction SolutionOf(const Binomial& factor) {
  return Reduced(-factor.constant, factor.lead);
}

void SolveFactors(double row, const Factors& factors) {
  const bool twice = factors.first == factors.second;
  MoveNumber(row, kLeftCol, factors.first);
  if (!twice) MoveNumber(row, kRightCol, factors.second);
  GoBelow();
  if (factors.first.lead == 1 && factors.second.lead == 1) return;
  PageEnd();
  Divide(row, kLeftCol, factors.first);
  if (!twice) Divide(row, kRightCol, factors.second);
  GoBelow();
}

void SolveByFactoring(const Quadratic& equation, const Factors& factors) {
  FactorSteps(equation, factors).Solve();
}

}  // namespace course::quadratics
