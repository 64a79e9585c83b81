#include "lessons/families/factoring/factor_trials.h"

#include <algorithm>
#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::factoring {
namespace {

using polynomials::NumberPair;

// With a positive product, the closest numbers first, each pair with its smaller number first.
std::vector<NumberPair> ClosestFirst(int product) {
  std::vector<NumberPair> pairs = polynomials::PairsWithProduct(std::abs(product), 1);
  std::ranges::reverse(pairs);
  return pairs;
}

int CommonFactorOf(const Binomial& factor) {
  return Gcf(factor.lead, factor.constant);
}

std::string Open(const Binomial& factor) {
  return "(" + CoefText(factor.lead) + "x   " + NumStr(factor.constant) + ")";
}

std::string TermWithX(int coefficient) {
  return coefficient == 0 ? "0" : CoefText(coefficient) + "x";
}

}  // namespace

int Trial::Middle() const {
  return added ? Outer() + Inner() : std::abs(Outer() - Inner());
}

int Trial::CommonFactor() const {
  return std::max(CommonFactorOf(sizes.first), CommonFactorOf(sizes.second));
}

bool Trial::HasFirstNumbersOf(const Factors& factors) const {
  return sizes.first.lead == factors.first.lead || sizes.first.lead == factors.second.lead;
}

bool Trial::HasLastNumbersOf(const Factors& factors) const {
  const int last = sizes.first.constant;
  return last == std::abs(factors.first.constant) || last == std::abs(factors.second.constant);
}

std::vector<Trial> AllTrials(const Trinomial& trinomial) {
  const bool added = trinomial.constant > 0;
  std::vector<Trial> trials;
  for (const NumberPair& first : ClosestFirst(trinomial.square)) {
    for (const NumberPair& last : ClosestFirst(trinomial.constant)) {
      const Binomial factor = {first.first, last.first};
      trials.push_back({{factor, {first.second, last.second}}, added});
      if (first.first != first.second && last.first != last.second)
        trials.push_back({{{first.first, last.second}, {first.second, last.first}}, added});
    }
  }
  return trials;
}

std::vector<Trial> TrialsUntilFound(const Trinomial& trinomial) {
  std::vector<Trial> trials = AllTrials(trinomial);
  const auto found = std::ranges::find(trials, std::abs(trinomial.middle), &Trial::Middle);
  if (found == trials.end())
    platform::Stop("TrialsUntilFound: no whole factors of " + TrinomialText(trinomial));
  trials.erase(found + 1, trials.end());
  return trials;
}

Factors WithSigns(const Trial& trial, const Trinomial& trinomial) {
  const int middle = Sgn(trinomial.middle);
  const bool outerIsLarger = trial.Outer() > trial.Inner();
  Factors factors = trial.sizes;
  factors.first.constant *= trial.added || !outerIsLarger ? middle : -middle;
  factors.second.constant *= trial.added || outerIsLarger ? middle : -middle;
  return factors;
}

std::string OpenText(const Trial& trial) {
  return Open(trial.sizes.first) + Open(trial.sizes.second);
}

std::string OutcomeText(const Trial& trial) {
  if (trial.CommonFactor() > 1) return "common factor " + NumStr(trial.CommonFactor());
  const auto [smaller, larger] = std::minmax({trial.Outer(), trial.Inner()});
  return (trial.added ? TermWithX(trial.Outer()) + " + " + TermWithX(trial.Inner())
                      : TermWithX(larger) + " - " + TermWithX(smaller)) +
         " = " + TermWithX(trial.Middle());
}

std::string TrialLine(const Trial& trial) {
  constexpr std::size_t kOutcomeColumn = 20;
  std::string line = OpenText(trial);
  line.resize(std::max(kOutcomeColumn, line.size() + 1), ' ');
  return WithoutBreaks(line + OutcomeText(trial));
}

std::string PairsText(int product) {
  std::string text;
  for (const NumberPair& pair : ClosestFirst(product))
    text += (text.empty() ? "" : ",  ") +
            WithoutBreaks(NumStr(pair.first) + " " + tutor::Times + " " + NumStr(pair.second));
  return text;
}

}  // namespace course::factoring
