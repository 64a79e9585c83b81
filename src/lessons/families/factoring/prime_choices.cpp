#include "lessons/families/factoring/prime_choices.h"

#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "engine/choices.h"

namespace course::factoring {
namespace {

// --- Draw ----------------------------------------------------------------------------------------

// Three characters a prime; the small ones come often.
constexpr std::string_view kPrimeTable = "  2  2  2  2  2  2  3  3  3  3  5  5  5  7  7 11 13 17";
constexpr std::size_t kSlotWidth = 3;
constexpr int kTableSize = static_cast<int>(kPrimeTable.size() / kSlotWidth);
constexpr int kLargestNumber = 720;  // that is divided by hand

int PrimeInTable(int i) {
  const std::size_t at = static_cast<std::size_t>(i - 1) * kSlotWidth;
  return std::atoi(std::string(kPrimeTable.substr(at, kSlotWidth)).c_str());
}

// From so much of the table, from its beginning on.
int DrawPrime(RandomStream& random, double ratio) {
  return PrimeInTable(static_cast<int>(random.Rnd() * kTableSize * ratio) + 1);
}

bool IsWorthSolving(const FactorList& primes) {
  // A power of one prime leaves nothing to sort.
  return ProductOf(primes) <= kLargestNumber && Different(primes).size() > 1;
}

// --- Mistakes ------------------------------------------------------------------------------------

FactorList WithOne(const FactorList& primes, int /*first*/, int /*second*/) {
  return WithFactor(primes, 1);
}

// 3^2 in the place of 2^3.
FactorList Exchanged(const FactorList& primes, int base, int /*second*/) {
  FactorList exchanged = primes;
  const int exponent = CountOf(primes, base);
  for (int i = 0; i < exponent; ++i) exchanged = WithoutFactor(exchanged, base);
  for (int i = 0; i < base; ++i) exchanged = WithFactor(exchanged, exponent);
  return exchanged;
}

// Made with primes that are right or miscounted; first and second are two of them.
struct FormMistake {
  const char* name;
  FactorList (*made)(const FactorList& primes, int first, int second);
};
constexpr FormMistake kNotPrime = {"leaves a factor that is not prime", Merged};
constexpr FormMistake kOneIsPrime = {"takes 1 for a prime", WithOne};
constexpr FormMistake kExchanged = {"exchanges base and exponent", Exchanged};

// A prime, not the one given, that can be exchanged with its exponent, which must not be a factor
// beside it.  0 without one.
int PrimeToExchange(const FactorList& primes, int miscounted) {
  for (const int base : Different(primes)) {
    const int exponent = CountOf(primes, base);
    if (base != miscounted && exponent > 1 && exponent != base && CountOf(primes, exponent) == 0)
      return base;
  }
  return 0;
}

}  // namespace

FactorList DrawPrimeFactors(RandomStream& random) {
  constexpr double kOfSmallPrimes = 0.8;
  FactorList primes;
  do {
    const int count = random.Rand(4, 5);
    primes.clear();
    for (int i = 0; i < count; ++i)
      primes = WithFactor(primes, DrawPrime(random, i == 0 ? 1 : kOfSmallPrimes));
  } while (!IsWorthSolving(primes));
  return primes;
}

void OfferFactorizations(Problem& problem, const FactorList& primes, RandomStream& random) {
  const auto count = static_cast<int>(primes.size());
  const std::vector<int> order = random.RandSeq(count, count);
  const auto prime = [&](std::size_t i) { return primes[static_cast<std::size_t>(order[i] - 1)]; };
  const int recipe = random.Index(8);
  const bool twice = random.Sign() > 0;

  const int base = recipe >= 6 ? PrimeToExchange(primes, prime(2)) : 0;
  const FormMistake& form = base != 0 ? kExchanged : recipe <= 2 ? kOneIsPrime : kNotPrime;
  const int first = base != 0 ? base : prime(0);
  const FactorList miscounted =
      twice ? WithFactor(primes, prime(2)) : WithoutFactor(primes, prime(2));
  const std::string miscounts = twice ? "counts a prime factor twice" : "loses a prime factor";
  const int split = prime(0) * prime(1);

  Choices<FactorList> choices(problem, choice_kind::FiveShuffled, PowersText);
  choices.Right(primes);
  choices.Wrong(form.name, form.made(primes, first, prime(1)));
  choices.Wrong(miscounts, miscounted);
  choices.Wrong(form.name + (" and " + miscounts), form.made(miscounted, first, prime(1)));
  if (recipe % 2 == 0) choices.Wrong("writes each prime factor only once", Different(primes));
  choices.Wrong("stops after the first split", WithFactor({split}, ProductOf(primes) / split));
}

}  // namespace course::factoring
