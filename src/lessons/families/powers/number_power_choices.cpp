#include <cstdlib>

#include "engine/choices.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_text.h"
#include "mathkit/expressions.h"

namespace course::powers {
namespace {

constexpr int kLargestWrongValue = 9999;  // longer ones would stand out

// What the student reads, and what it is worth: two powers may be the same number.
struct PowerChoice {
  std::string text;
  long long value = 0;
  bool operator==(const PowerChoice& other) const { return value == other.value; }
};

}  // namespace

// Now one factor too few, now one too many: the right value shall not stand in the middle.
void OfferValues(Problem& problem, const NumberPower& power, RandomStream& random) {
  const bool early = random.Rand(1, 2) == 1;
  const auto [base, n, minusOutside] = power;
  const int value = ValueOf(power);
  const int sign = minusOutside ? -1 : 1;
  const bool hasMinus = minusOutside || base < 0;
  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(value);
  const auto add = [&](const char* mistake, long long wrong) {
    if (std::llabs(wrong) <= kLargestWrongValue) choices.Wrong(mistake, static_cast<int>(wrong));
  };
  if (n < 2) add("gives the exponent as the answer", n);
  if (n == 0) add("leaves the base as it is", base);
  if (n == 0 && hasMinus) add("keeps the minus sign of the base", -1);
  if (hasMinus && n > 1 && n % 2 == 0)
    add(minusOutside ? "takes the minus sign into the base" : "ignores the parentheses", -value);
  if (value < 0 || base < 0) add("loses the minus sign", std::abs(n == 0 ? base : value));
  if (n > 0) add("multiplies the base by the exponent", sign * base * n);
  if (hasMinus && n > 1)
    add("multiplies the base by the exponent and loses the minus sign", std::abs(base) * n);
  if (n > 1 && early) add("stops one factor early", sign * ValueOfPower(base, n - 1));
  if (n == 1 || (n > 1 && !early))
    add("multiplies once too often", sign * ValueOfPower(base, n + 1));
  if (!hasMinus) add("switches the base and the exponent", ValueOfPower(n, base));
  const int digits = 10 * std::abs(base) + n;
  add("writes the exponent next to the base as a digit", hasMinus ? -digits : digits);
  if (n > 0) add("adds the base and the exponent", sign * (base + n));
  choices.Fill([&] { return random.Rand(2, 9) * (value < 0 ? -1 : 1); });
}

// The right power and the first three are two mistakes, made or not made.
void OfferPowers(Problem& problem, const NumberPower& power, RandomStream& random) {
  const bool tooMany = random.Rand(1, 2) == 1;
  const int base = power.base;
  const int exponent = power.exponent;
  const int other = exponent + (tooMany ? 1 : -1);
  Choices<PowerChoice> choices(problem, choice_kind::FiveShuffled,
                               [](const PowerChoice& choice) { return choice.text; });
  const auto choice = [](int b, int n) { return PowerChoice{PowerOf(b, n), ValueOfPower(b, n)}; };
  const std::string switches = "switches the base and the exponent";
  const std::string oneTooMany = "counts one factor too many";
  const std::string miscount = tooMany ? oneTooMany : "counts the signs, not the factors";
  choices.Right(choice(base, exponent));
  choices.Wrong(switches, choice(exponent, base));
  if (other > 1) {
    choices.Wrong(miscount, choice(base, other));
    choices.Wrong(switches + " and " + miscount, choice(other, base));
  }
  choices.Wrong("multiplies the base by the number of factors",
                {JoinedByTimes({NumStr(exponent), NumStr(base)}), exponent * base});
  choices.Wrong(oneTooMany, choice(base, exponent + 1));
  choices.Wrong(switches + " and " + oneTooMany, choice(exponent + 1, base));
  choices.Fill([&] { return choice(random.Rand(2, 9), random.Rand(2, 9)); });
}

}  // namespace course::powers
