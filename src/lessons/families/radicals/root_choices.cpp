#include "lessons/families/radicals/root_choices.h"

#include <algorithm>
#include <cmath>
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

// --- A square under the radical ------------------------------------------------------------------
//
// A slip changes what stands outside, or what stands inside.  One of each and both together make
// four choices with the right one, of which none looks most like the others.

struct Part {
  std::string mistake;
  Term term;
};

class SquareSlips {
 public:
  SquareSlips(const RootTerm& root, RandomStream& random) : root_(root), random_(random) {
    pair_ = OneOf(FactorsOf(root.outside));
    if (root.inside != Term{1, ""}) rest_ = OneOf(FactorsOf(root.inside));
    AddOutside();
    AddInside();
  }

  Slips Drawn() {
    const int outside = random_.Index(static_cast<int>(outside_.size()));
    const int inside = random_.Index(static_cast<int>(inside_.size()));
    const int last = random_.Index(4);
    const Part& changed = outside_[static_cast<std::size_t>(outside) - 1];
    const Part& kept = inside_[static_cast<std::size_t>(inside) - 1];
    Slips slips = {{changed.mistake, {changed.term, root_.inside}},
                   {kept.mistake, {root_.outside, kept.term}},
                   Both(changed, kept)};
    if (last == 3) slips.push_back(WithoutPair());
    if (last == 4)
      for (const Part& other : outside_) slips.push_back(Both(other, kept));
    slips.push_back(SquareLeft());
    slips.push_back(WithoutPair());
    return slips;
  }

 private:
  Term OneOf(const std::vector<Term>& factors) {
    return factors[static_cast<std::size_t>(random_.Index(static_cast<int>(factors.size()))) - 1];
  }

  void AddOutside() {
    const int number = root_.outside.coef;
    const std::string& letters = root_.outside.letters;
    outside_.push_back(
        {"brings a square out without taking its root", Product(root_.outside, pair_)});
    if (number % 2 == 0 && number > 2)
      outside_.push_back(
          {"halves the square factor instead of taking its root", {number * number / 2, letters}});
    const std::vector<int> primes = PrimesOf(number);
    const int sum = std::accumulate(primes.begin(), primes.end(), 0);
    if (primes.size() > 1 && sum != number)
      outside_.push_back({"adds the factors that come out instead of multiplying", {sum, letters}});
  }

  void AddInside() {
    inside_.push_back(
        {"leaves one factor of a pair under the radical", Product(root_.inside, pair_)});
    if (rest_ != Term{})
      inside_.push_back({"loses a factor that has no pair", Quotient(root_.inside, rest_)});
  }

  static Slip Both(const Part& outside, const Part& inside) {
    return {outside.mistake + " and " + inside.mistake, {outside.term, inside.term}};
  }
  Slip SquareLeft() const {
    return {"leaves a square factor under the radical",
            {Quotient(root_.outside, pair_), Product(root_.inside, Product(pair_, pair_))}};
  }
  Slip WithoutPair() const {
    if (rest_ == Term{})
      return {"takes the root and keeps the radical sign", {{1, ""}, root_.outside}};
    return {"brings out a factor that has no pair",
            {Product(root_.outside, rest_), Quotient(root_.inside, rest_)}};
  }

  RootTerm root_;
  RandomStream& random_;
  Term pair_;  // one factor of a pair
  Term rest_;  // a factor that has none; no term when there is none
  std::vector<Part> outside_;
  std::vector<Part> inside_;
};

// --- A number that is simple already -------------------------------------------------------------

Slip Whole(const std::string& mistake, int number) {
  return {mistake, {{number, ""}, {1, ""}}};
}

Slips Shuffled(const Slips& slips, RandomStream& random) {
  Slips shuffled;
  const int count = static_cast<int>(slips.size());
  for (const int place : random.RandSeq(count, count))
    shuffled.push_back(slips[static_cast<std::size_t>(place) - 1]);
  return shuffled;
}

Slips SlipsWithoutSquare(int number, RandomStream& random) {
  constexpr int kLargestSquared = 15;
  const std::vector<int> primes = PrimesOf(number);
  const int prime =
      primes[static_cast<std::size_t>(random.Index(static_cast<int>(primes.size()))) - 1];
  const int largest = static_cast<int>(std::sqrt(number));
  const int root = random.Rand(std::min(2, largest), largest);
  const int rest = number - root * root;
  const bool nearer = number - largest * largest < (largest + 1) * (largest + 1) - number;
  Slips slips = {
      Whole("leaves out the radical sign", number),
      Whole("takes the root of the nearest perfect square", nearer ? largest : largest + 1),
      {"brings out a factor and leaves it inside, too", {{prime, ""}, {number, ""}}}};
  if (root > 1 && rest > 1)
    slips.push_back({"splits the radicand into a sum and brings out the root of one part",
                     {{root, ""}, {rest, ""}}});
  if (number % 2 == 0)
    slips.push_back(Whole("takes half of the number instead of its root", number / 2));
  if (number <= kLargestSquared)
    slips.push_back(Whole("squares the number instead of taking its root", number * number));
  slips = Shuffled(slips, random);
  if (prime == number) return slips;
  // The only root without a number in front would give the right one away.
  slips.insert(slips.begin(),
               {{"loses a factor that has no pair", {{1, ""}, {number / prime, ""}}},
                {"brings out a factor that has no pair", {{prime, ""}, {number / prime, ""}}}});
  return slips;
}

}  // namespace

void OfferRoots(Problem& problem, const Term& radicand, RandomStream& random) {
  const RootTerm root = Simplified(radicand);
  const Slips slips = IsSimple(radicand) ? SlipsWithoutSquare(radicand.coef, random)
                                         : SquareSlips(root, random).Drawn();
  Choices choices(problem, choice_kind::FiveShuffled, RootTermText);
  choices.Right(root);
  for (const Slip& slip : slips) choices.Wrong(slip.mistake, slip.root);
  choices.Fill([&] {
    const int outside = random.Rand(2, 6);
    const int inside = random.Rand(2, 7);
    return RootTerm{{outside, ""}, {inside, ""}};
  });
}

}  // namespace course::radicals
