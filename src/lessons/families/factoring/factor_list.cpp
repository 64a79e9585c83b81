#include "lessons/families/factoring/factor_list.h"

#include <algorithm>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::factoring {

int ProductOf(const FactorList& factors) {
  int product = 1;
  for (const int factor : factors) product *= factor;
  return product;
}

int CountOf(const FactorList& factors, int factor) {
  return static_cast<int>(std::ranges::count(factors, factor));
}

FactorList Different(const FactorList& factors) {
  FactorList different = factors;
  different.erase(std::unique(different.begin(), different.end()), different.end());
  return different;
}

FactorList WithFactor(const FactorList& factors, int factor) {
  FactorList more = factors;
  more.insert(std::ranges::upper_bound(more, factor), factor);
  return more;
}

FactorList WithoutFactor(const FactorList& factors, int factor) {
  FactorList fewer = factors;
  const auto found = std::ranges::find(fewer, factor);
  if (found == fewer.end())
    platform::Stop("WithoutFactor: there is no factor " + std::to_string(factor));
  fewer.erase(found);
  return fewer;
}

FactorList Merged(const FactorList& factors, int first, int second) {
  return WithFactor(WithoutFactor(WithoutFactor(factors, first), second), first * second);
}

std::string PowersText(const FactorList& factors) {
  std::string text;
  for (const int factor : Different(factors)) {
    if (!text.empty()) text += " " + tutor::Times + " ";
    text += NumStr(factor) + ExponentText(CountOf(factors, factor));
  }
  return text;
}

bool IsPrime(int number) {
  if (number < 2) return false;
  for (int divisor = 2; divisor * divisor <= number; ++divisor)
    if (number % divisor == 0) return false;
  return true;
}

}  // namespace course::factoring
