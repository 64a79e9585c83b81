#include "lessons/families/polynomials/trinomial.h"

#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {

Trinomial Factors::Product() const {
  return {first.lead * second.lead, first.lead * second.constant + first.constant * second.lead,
          first.constant * second.constant};
}

std::string BinomialText(const Binomial& binomial) {
  return CoefText(binomial.lead) + "x" + tutor::Gap + SignedNumberText(binomial.constant);
}

std::string FactorText(const Binomial& binomial) {
  return "(" + BinomialText(binomial) + ")";
}

std::string FactorsText(const Factors& factors) {
  return FactorText(factors.first) + FactorText(factors.second);
}

std::string TrinomialText(const Trinomial& trinomial) {
  std::string text = CoefText(trinomial.square) + "x^2^";
  if (trinomial.middle != 0) text += SignedCoefText(trinomial.middle) + "x";
  if (trinomial.constant != 0) text += tutor::Gap + SignedNumberText(trinomial.constant);
  return text;
}

Binomial DrawBinomial(RandomStream& random, int largest) {
  Binomial drawn;
  drawn.lead = random.Rand(1, largest);
  drawn.constant = random.Rand(1, largest);
  if (random.Rnd() < 0.5) drawn.lead = -drawn.lead;
  if (random.Rnd() < 0.5) drawn.constant = -drawn.constant;
  return drawn;
}

int DrawConstant(RandomStream& random, int largest) {
  const int size = random.Rand(1, largest);
  return random.Rnd() < 0.5 ? -size : size;
}

std::vector<NumberPair> PairsWithProduct(int product, int signOfSum) {
  std::vector<NumberPair> pairs;
  const int size = std::abs(product);
  for (int smaller = 1; smaller * smaller <= size; ++smaller) {
    if (size % smaller != 0) continue;
    const int larger = signOfSum * (size / smaller);
    pairs.push_back({product / larger, larger});
  }
  return pairs;
}

}  // namespace course::polynomials
