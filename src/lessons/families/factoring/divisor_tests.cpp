#include "lessons/families/factoring/divisor_tests.h"

#include "lessons/families/factoring/factor_list.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::factoring {

using page::Text;
using page::Words;

namespace {

constexpr int kTen = 10;

FactorList PrimesBelow(int end) {
  FactorList primes;
  for (int n = 2; n < end; ++n)
    if (IsPrime(n)) primes.push_back(n);
  return primes;
}

// "2, 3 and 5 fail", "2 fails".
std::string FailText(const FactorList& primes) {
  std::string text;
  for (std::size_t i = 0; i < primes.size(); ++i) {
    if (i > 0) text += i + 1 == primes.size() ? " and " : ", ";
    text += NumStr(primes[i]);
  }
  return text + (primes.size() == 1 ? " fails" : " fail");
}

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
  if (prime > 3) return Text("{}, but {}.", Words{FailText(PrimesBelow(prime))}, product);
  if (number < kTen) return Text("{}, so 3 is a divisor.", product);
  return Text("{}, so 3 is a divisor.", Words{DigitSumText(number)});
}

std::string EndAtPrime(int prime) {
  return Text("  {}   It's divisible only by {} and 1.", prime, prime);
}

std::string ReasonForPrime(int prime) {
  int next = 2;  // the first prime that need not be tried
  while (!IsPrime(next) || next * next <= prime) ++next;
  return Text("{}, and {} is too large.", Words{FailText(PrimesBelow(next))},
              NumStr(next) + " " + tutor::Times + " " + NumStr(next));
}

}  // namespace course::factoring
