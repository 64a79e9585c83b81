#include "lessons/families/radicals/root_choices.h"

#include <algorithm>
#include <numeric>

#include "engine/choices.h"

namespace course::radicals {
namespace {

using polynomials::Product;
using polynomials::Quotient;

struct Slip {
  std::string mistake;
  RootTerm root;
};
using Slips = std::vector<Slip>;

// The primes and letters of which a term is the product, each as often as it is a factor.
std::vector<Term> FactorsOf(const Term& term) {
  std::vector<Term> factors;
  for (const int prime : PrimesOf(term.coef)) factors.push_back({prime, ""});
  for (const char letter : term.letters) factors.push_back({1, std::string(1, letter)});
  return factors;
}

Term Square(const Term& term) {
  return Product(term, term);
}

// --- A square under the radical ------------------------------------------------------------------

// What becomes of one pair; the factor is one of it.
void AddSlipsWithPair(const RootTerm& root, const Term& factor, Slips& slips) {
  const Term others = Quotient(root.outside, factor);
  slips.push_back({"leaves a square factor under the radical",
                   {others, Product(root.inside, Square(factor))}});
  slips.push_back(
      {"brings a square out without taking its root", {Product(root.outside, factor), root.inside}});
  slips.push_back({"leaves one factor of a pair under the radical",
                   {root.outside, Product(root.inside, factor)}});
}

void AddSlipsWithNumber(const RootTerm& root, Slips& slips) {
  const int number = root.outside.coef;
  const std::string& letters = root.outside.letters;
  if (number % 2 == 0 && number > 2)
    slips.push_back({"halves the square factor instead of taking its root",
                     {{number * number / 2, letters}, root.inside}});
  const std::vector<int> primes = PrimesOf(number);
  const int sum = std::accumulate(primes.begin(), primes.end(), 0);
  if (primes.size() > 1 && sum != number)
    slips.push_back({"adds the factors that come out instead of multiplying",
                     {{sum, letters}, root.inside}});
}

// What becomes of a factor without a pair.
void AddSlipsWithRest(const RootTerm& root, const Term& factor, Slips& slips) {
  const Term rest = Quotient(root.inside, factor);
  slips.push_back({"brings out a factor that has no pair", {Product(root.outside, factor), rest}});
  slips.push_back({"loses a factor that has no pair", {root.outside, rest}});
}

Slips SlipsWithSquare(const RootTerm& root, RandomStream& random) {
  Slips slips;
  const std::vector<Term> pairs = FactorsOf(root.outside);
  const int pair = random.Index(static_cast<int>(pairs.size()));
  AddSlipsWithPair(root, pairs[static_cast<std::size_t>(pair) - 1], slips);
  AddSlipsWithNumber(root, slips);
  const std::vector<Term> rests = FactorsOf(root.inside);
  if (rests.empty()) {
    slips.push_back({"takes the root and keeps the radical sign", {{1, ""}, root.outside}});
  } else {
    const int rest = random.Index(static_cast<int>(rests.size()));
    AddSlipsWithRest(root, rests[static_cast<std::size_t>(rest) - 1], slips);
  }
  return slips;
}

// --- A number that is simple already -------------------------------------------------------------

Slips SlipsWithoutSquare(int number, RandomStream& random) {
  Slips slips;
  for (int root = 2; root * root + 2 <= number; ++root)
    slips.push_back({"takes the root of one part of a sum", {{root, ""}, {number - root * root, ""}}});
  const std::vector<int> primes = PrimesOf(number);
  if (primes.size() > 1) {
    const int prime = primes[static_cast<std::size_t>(random.Index(static_cast<int>(primes.size()))) - 1];
    slips.push_back({"brings out a factor that has no pair", {{prime, ""}, {number / prime, ""}}});
  }
  if (number % 2 == 0)
    slips.push_back({"takes half of the number instead of its root", {{number / 2, ""}, {1, ""}}});
  slips.push_back({"leaves out the radical sign", {{number, ""}, {1, ""}}});
  return slips;
}

}  // namespace

void OfferRoots(Problem& problem, const Term& radicand, RandomStream& random) {
  const RootTerm root = Simplified(radicand);
  const Slips slips = IsSimple(radicand) ? SlipsWithoutSquare(radicand.coef, random)
                                         : SlipsWithSquare(root, random);
  Choices choices(problem, choice_kind::FiveShuffled, RootTermText);
  choices.Right(root);
  const int count = static_cast<int>(slips.size());
  for (const int place : random.RandSeq(count, count)) {
    const Slip& slip = slips[static_cast<std::size_t>(place) - 1];
    choices.Wrong(slip.mistake, slip.root);
  }
  choices.Fill([&] {
    const int outside = random.Rand(2, 6);
    const int inside = random.Rand(2, 7);
    return RootTerm{{outside, ""}, {inside, ""}};
  });
}

}  // namespace course::radicals
