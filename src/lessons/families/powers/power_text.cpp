#include "lessons/families/powers/power_text.h"

#include <algorithm>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {
namespace {

std::string Joined(const std::vector<std::string>& factors, const std::string& sign) {
  std::string product;
  for (const std::string& factor : factors) {
    if (!product.empty()) product += sign;
    product += factor;
  }
  return product;
}

}  // namespace

std::string PowerText(const Power& power) {
  return power.base + ExponentText(power.exponent);
}

std::string JoinedByDots(const std::vector<std::string>& factors) {
  return Joined(factors, tutor::Dot);
}

std::string JoinedByTimes(const std::vector<std::string>& numbers) {
  return Joined(numbers, " " + tutor::Times + " ");
}

std::string WrittenOut(const Power& power) {
  return JoinedByDots(
      std::vector<std::string>(static_cast<std::size_t>(power.exponent), power.base));
}

std::string ProductText(int number, std::vector<Power> powers) {
  std::ranges::sort(powers, {}, &Power::base);
  std::string text = CoefText(number);
  for (const Power& power : powers) text += PowerText(power);
  return text;
}

std::string DrawOtherLetter(RandomStream& random, std::string_view alphabet,
                            const std::string& taken) {
  std::string letter;
  do {
    letter = random.OneOf(alphabet);
  } while (letter == taken);
  return letter;
}

}  // namespace course::powers
