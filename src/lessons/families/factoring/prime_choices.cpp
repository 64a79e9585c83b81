#include "lessons/families/factoring/prime_choices.h"

#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/choices.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"

namespace course::factoring {

using page::Text;

namespace {

// --- Draw ----------------------------------------------------------------------------------------

// Three characters a prime; the small ones come often.
constexpr std::string_view kPrimeTable = "  2  2  2  2  3  3  3  3  5  5  5  7  7 11 11 11 13 17";
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

// "factor 14", which stays together on a line.
std::string FactorName(int factor) {
  return Text("{}", "factor " + NumStr(factor));
}

// Products of two primes that show no divisor to someone who knows the tests of 2 and 5 and the
// multiplication table up to 6.
bool LooksPrime(int product) {
  return product % 2 != 0 && product % 5 != 0 && product > 36;
}

// The last two primes where they hide like that, as 3 and 13 in 39, else those that are drawn.
std::pair<int, int> PrimesToMerge(const FactorList& primes, int first, int second) {
  const int last = primes.back();
  const int before = primes[primes.size() - 2];
  return LooksPrime(before * last) ? std::pair(last, before) : std::pair(first, second);
}

std::string NameOfComposite(int product) {
  if (LooksPrime(product)) return Text("takes the {} for a prime", "number " + NumStr(product));
  return "leaves the composite " + FactorName(product);
}

// All factors that are the base left out, and others in their place.
FactorList Replaced(const FactorList& primes, int base, int other, int times) {
  FactorList replaced = primes;
  std::erase(replaced, base);
  for (int i = 0; i < times; ++i) replaced = WithFactor(replaced, other);
  return replaced;
}

// A prime that can be exchanged with its exponent: that must not be a factor
// beside it.  0 without one.
int PrimeToExchange(const FactorList& primes) {
  for (const int base : Different(primes)) {
    const int exponent = CountOf(primes, base);
    if (exponent > 1 && exponent != base && CountOf(primes, exponent) == 0) return base;
  }
  return 0;
}

// The mistakes that are made with one of the right powers.
class PowerMistakes {
 public:
  PowerMistakes(Choices<FactorList>& choices, const FactorList& primes)
      : choices_(choices), primes_(primes), base_(PrimeToExchange(primes)) {}

  // 3^2 in the place of 2^3.
  void Exchange() const {
    if (base_ == 0) return;
    choices_.Wrong("exchanges base and exponent",
                   Replaced(primes_, base_, CountOf(primes_, base_), base_));
  }
  // 2 x 3 in the place of 2^3.
  void WriteExponentAsFactor() const {
    if (base_ == 0) return;
    FactorList factors = primes_;
    for (int i = CountOf(primes_, base_); i > 1; --i) factors = WithoutFactor(factors, base_);
    choices_.Wrong("writes the exponent as a factor", WithFactor(factors, CountOf(primes_, base_)));
  }

 private:
  Choices<FactorList>& choices_;
  const FactorList& primes_;
  int base_;  // 0 without a power to which it can happen
};

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
  const bool tooMany = random.Sign() > 0 && recipe <= 4;

  const auto [first, second] = PrimesToMerge(primes, prime(0), prime(1));
  const int miscounted = prime(0);
  const std::string composite = NameOfComposite(first * second);
  const std::string miscounts = tooMany ? "writes one " + FactorName(miscounted) + " too many"
                                        : "loses one " + FactorName(miscounted);
  const FactorList counted =
      tooMany ? WithFactor(primes, miscounted) : WithoutFactor(primes, miscounted);

  Choices<FactorList> choices(problem, choice_kind::FiveShuffled, PowersText);
  const PowerMistakes powers(choices, primes);
  choices.Right(primes);
  choices.Wrong(miscounts, counted);
  choices.Wrong(composite, Merged(primes, first, second));
  if (tooMany) choices.Wrong(composite + " and " + miscounts, Merged(counted, first, second));
  if (recipe % 2 == 0)
    powers.Exchange();
  else
    powers.WriteExponentAsFactor();
  if (recipe >= 7) choices.Wrong("takes 1 for a prime", WithFactor(primes, 1));
  if (recipe >= 3) choices.Wrong("writes each prime factor only once", Different(primes));
  const int split = prime(0) * prime(1);
  choices.Wrong("stops after the first split", WithFactor({split}, ProductOf(primes) / split));
  choices.Wrong("takes 1 for a prime", WithFactor(primes, 1));
}

}  // namespace course::factoring
