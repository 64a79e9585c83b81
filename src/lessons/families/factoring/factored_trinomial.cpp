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
  const auto& [first, second] = answer;
  return second.constant == 0 ? CoefText(second.lead) + "x" + FactorText(first)
                              : FactorsText(answer);
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

Factors BothSignsReversed(const Factors& factors) {
  return OneSignReversed(OneSignReversed(factors, true), false);
}

Factors DrawFactors(RandomStream& random, int largest) {
  Factors factors;
  do {
    factors.first = DrawFactor(random, largest);
    factors.second = DrawFactor(random, largest);
  } while (!IsAsked(factors));
  return InOrder(factors);
}

void FillFactorChoices(Problem& problem, const Factors& right, const WrongSign& wrongSign,
                       std::vector<WrongFactors> others, int largest, RandomStream& random) {
  const auto drawn = [&] {
    return Answer{WithRandomNumber(right, wrongSign.ofFirst, largest, random)};
  };
  Choices<Answer> choices(problem, choice_kind::FiveShuffled, AnswerText);
  choices.Right({right});
  choices.Wrong(wrongSign.mistake, {OneSignReversed(right, wrongSign.ofFirst)});
  const Factors exchanged = ConstantsExchanged(right);
  if (exchanged.SameProductAs(right))  // as in (2x + 1)(2x + 5)
    choices.Wrong(kFiller, drawn());
  else
    choices.Wrong("exchanges the last numbers", {exchanged});
  // With different signs the right factors are the box most like the others without the first one.
  bool takesFirst = random.Rand(1, 6) > 1 && right.Product().constant < 0;
  while (!choices.Full() && !others.empty()) {
    const int drawnOther = random.Index(static_cast<int>(others.size()));
    const int other = std::exchange(takesFirst, false) ? 1 : drawnOther;
    const auto place = others.begin() + (other - 1);
    const int result = random.Index(static_cast<int>(place->factors.size()));
    choices.Wrong(place->mistake, {place->factors[static_cast<std::size_t>(result - 1)]});
    others.erase(place);
  }
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
