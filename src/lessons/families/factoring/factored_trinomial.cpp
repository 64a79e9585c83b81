#include "lessons/families/factoring/factored_trinomial.h"

#include <cstdlib>
#include <tuple>
#include <utility>

#include "engine/choices.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::factoring {
namespace {

using polynomials::Binomial;

// In either order, and with both factors reversed, they are the same answer.
struct Answer : Factors {
  bool operator==(const Answer& other) const { return SameProductAs(other); }
};

std::string AnswerText(const Answer& answer) {
  return FactorsText(answer);
}

// A factor that is drawn with a negative number in front of x is written the other way round:
// (-2x + 3) becomes (2x - 3).
Binomial DrawFactor(RandomStream& random, int largest) {
  Binomial factor = polynomials::DrawBinomial(random, largest);
  if (factor.lead < 0) factor = {-factor.lead, -factor.constant};
  return factor;
}

bool HasCommonFactor(const Binomial& factor) {
  return Gcf(factor.lead, std::abs(factor.constant)) > 1;
}

// Whether such a problem is asked: with numbers up to 9, 44 % of the draws are.
bool IsAsked(const Factors& factors) {
  const Trinomial product = factors.Product();
  return product.square != 1                 // a lesson of its own
         && product.middle != 0              // the difference of two squares has one as well
         && !HasCommonFactor(factors.first)  // it would have to be taken out first
         && !HasCommonFactor(factors.second);
}

Factors InOrder(const Factors& factors) {
  const auto size = [](const Binomial& factor) {
    return std::tuple(factor.lead, std::abs(factor.constant));
  };
  return size(factors.second) < size(factors.first) ? Factors{factors.second, factors.first}
                                                    : factors;
}

Factors OneSignReversed(Factors factors, bool ofFirst) {
  int& constant = ofFirst ? factors.first.constant : factors.second.constant;
  constant = -constant;
  return factors;
}

Factors ConstantsExchanged(Factors factors) {
  std::swap(factors.first.constant, factors.second.constant);
  return factors;
}

// One sign reversed, and a random number in the other factor: beside the right numbers it would
// make the right factors the box most like the others.
Factors WithRandomNumber(const Factors& right, bool signOfFirst, int largest,
                         RandomStream& random) {
  Factors factors = OneSignReversed(right, signOfFirst);
  int& constant = signOfFirst ? factors.second.constant : factors.first.constant;
  constant = polynomials::DrawConstant(random, largest);
  return factors;
}

}  // namespace

Factors DrawFactors(RandomStream& random, int largest) {
  Factors factors;
  do {
    factors.first = DrawFactor(random, largest);
    factors.second = DrawFactor(random, largest);
  } while (!IsAsked(factors));
  return InOrder(factors);
}

void FillFactorChoices(Problem& problem, const Factors& right,
                       const std::vector<WrongFactors>& others, int largest, RandomStream& random) {
  const bool signOfFirst = random.Rand(1, 2) == 1;
  const bool hasRandomNumber = random.Rand(1, 3) == 1;
  const bool otherComesFirst = random.Rand(1, 2) == 1;
  const auto drawn = [&] { return Answer{WithRandomNumber(right, signOfFirst, largest, random)}; };
  Choices<Answer> choices(problem, choice_kind::FiveShuffled, AnswerText);
  choices.Right({right});
  choices.Wrong("reverses one sign", {OneSignReversed(right, signOfFirst)});
  const Factors exchanged = ConstantsExchanged(right);
  if (exchanged.SameProductAs(right))  // as in (2x + 1)(2x + 5)
    choices.Wrong(kFiller, drawn());
  else
    choices.Wrong("exchanges the last numbers", {exchanged});
  if (hasRandomNumber) choices.Wrong(kFiller, drawn());
  const Factors bothReversed = OneSignReversed(OneSignReversed(right, true), false);
  if (!otherComesFirst) choices.Wrong("reverses both signs", {bothReversed});
  if (!others.empty()) {
    const int place = random.Index(static_cast<int>(others.size()));
    const WrongFactors& other = others[static_cast<std::size_t>(place - 1)];
    choices.Wrong(other.mistake, {other.factors});
  }
  choices.Wrong("reverses both signs", {bothReversed});
  choices.Fill(drawn);
}

std::string Identity(const Factors& factors) {
  return TrinomialText(factors.Product()) + " = " + FactorsText(factors);
}

void CheckByMultiplying(double row, const Factors& factors) {
  const Trinomial product = factors.Product();
  page::SayAt(row, R"(\yCheck:\z  We multiply out.)");
  page::AddLine("     " +
                WithoutBreaks(CoefText(product.square) + "x^2^" +
                              SignedCoefText(factors.first.lead * factors.second.constant) + "x" +
                              SignedCoefText(factors.first.constant * factors.second.lead) + "x" +
                              tutor::Gap + SignedNumberText(product.constant)));
  page::AddLine("   = " + WithoutBreaks(TrinomialText(product)));
  page::Say("This is the trinomial.");
}

}  // namespace course::factoring
