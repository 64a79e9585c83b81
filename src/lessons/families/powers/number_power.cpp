#include "lessons/families/powers/number_power.h"

#include <vector>

#include "lessons/families/powers/power_text.h"
#include "mathkit/expressions.h"

namespace course::powers {

long long ValueOfPower(int base, int exponent) {
  long long value = 1;
  for (int i = 0; i < exponent; ++i) value *= base;
  return value;
}

std::string PowerOf(int base, int exponent) {
  return InParentheses(base) + "^" + NumStr(exponent) + "^";
}

int ValueOf(const NumberPower& power) {
  const auto value = static_cast<int>(ValueOfPower(power.base, power.exponent));
  return power.minusOutside ? -value : value;
}

std::string TextOf(const NumberPower& power) {
  return (power.minusOutside ? "-" : "") + PowerOf(power.base, power.exponent);
}

std::string FactorsOf(int base, int exponent) {
  const std::vector<std::string> factors(static_cast<std::size_t>(exponent), InParentheses(base));
  if (base > 0) return JoinedByTimes(factors);
  std::string product;
  for (const std::string& factor : factors) product += factor;
  return product;
}

}  // namespace course::powers
