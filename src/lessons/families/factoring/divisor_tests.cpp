#include "lessons/families/factoring/divisor_tests.h"

#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::factoring {

using page::Text;
using page::Words;

namespace {

constexpr int kTen = 10;

}  // namespace

std::string DigitSumText(int number) {
  std::string text;
  int sum = 0;
  for (const char digit : NumStr(number)) {
    text += (text.empty() ? "" : " + ") + std::string(1, digit);
    sum += digit - '0';
  }
  return text + " = " + NumStr(sum);
}

std::string ReasonForDivisor(int number, int prime) {
  const std::string product =
      NumStr(prime) + " " + tutor::Times + " " + NumStr(number / prime) + " = " + NumStr(number);
  if (prime == 2 || prime == 5)
    return Text("{} ends in {}, so {} is a divisor.", number, number % kTen, prime);
  if (prime > 3) return Text("No test helps, but {}.", product);
  if (number < kTen) return Text("{}, so 3 is a divisor.", product);
  return Text("{}, so 3 is a divisor.", Words{DigitSumText(number)});
}

std::string EndAtPrime(int prime) {
  return Text("  {}   It's divisible only by {} and 1.", prime, prime);
}

}  // namespace course::factoring
