// The student can write a number as a product of primes: finds a divisor by the tests of 2, 3 and
// 5, splits the number in a factor tree until only primes are left, and writes equal ones as powers.
//
// A number has four or five prime factors.  Two of the wrong choices are made from the right
// factors, and one from factors that are wrong already, so that none of them is the odd one out.
#include "lessons/families/factoring/factor_list.h"
#include "lessons/families/factoring/factor_tree.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

void Screen2() {
  NewScreen();
  Say("Screen 2 is not written yet.");
  PageEnd();
}

void Screen3() {
  NewScreen();
  Say("Screen 3 is not written yet.");
  PageEnd();
}

void Screen4() {
  NewScreen();
  Say("Screen 4 is not written yet.");
  PageEnd();
}

void Screen5() {
  NewScreen();
  Say("Screen 5 is not written yet.");
  PageEnd();
}

void Screen6() {
  NewScreen();
  Say("Screen 6 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PrimeFactorization final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{Screen1}, {Screen2}, {Screen3}, {Screen4}, {Screen5}, {Screen6}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsWorthSolving() const;
  int Number() const { return ProductOf(primes_); }
  void OfferChoices(RandomStream& random);

  FactorList primes_;  // four or five, two of them different at least
};

// --- Generator ---------------------------------------------------------------

// Three characters a prime; the small ones come often.
constexpr std::string_view kPrimeTable = "  2  2  2  2  2  2  3  3  3  3  5  5  5  7  7 11 13 17";
constexpr int kTableSize = static_cast<int>(kPrimeTable.size() / 3);
constexpr int kLargestNumber = 500;  // that is divided by hand

int PrimeInTable(int i) {
  return std::atoi(std::string(kPrimeTable.substr(static_cast<std::size_t>(i - 1) * 3, 3)).c_str());
}

// Of the whole table for the first factor, of its first three quarters for the others.
int DrawPrime(RandomStream& random, double ratio) {
  return PrimeInTable(static_cast<int>(random.Rnd() * kTableSize * ratio) + 1);
}

bool PrimeFactorization::IsWorthSolving() const {
  // A power of one prime leaves nothing to sort.
  return Number() <= kLargestNumber && Different(primes_).size() > 1;
}

void PrimeFactorization::DrawProblem(RandomStream& random) {
  do {
    const int count = random.Rand(4, 5);
    primes_.clear();
    for (int i = 0; i < count; ++i)
      primes_ = WithFactor(primes_, DrawPrime(random, i == 0 ? 1 : 0.75));
  } while (!IsWorthSolving());
  problem.question = {Text("What is the prime factorization of {}?", Number()),
                      "Every factor must be a prime number."};
  OfferChoices(random);
}

struct FormMistake {
  const char* name;
  FactorList (*made)(const FactorList& primes, int first, int second);
};
constexpr FormMistake kNotPrime = {"leaves a factor that is not prime", Merged};
constexpr FormMistake kOneIsPrime = {
    "takes 1 for a prime", [](const FactorList& primes, int, int) { return WithFactor(primes, 1); }};
constexpr FormMistake kExchanged = {
    "exchanges base and exponent", [](const FactorList& primes, int base, int) {
      FactorList exchanged = primes;
      const int exponent = CountOf(primes, base);
      for (int i = 0; i < exponent; ++i) exchanged = WithoutFactor(exchanged, base);
      for (int i = 0; i < base; ++i) exchanged = WithFactor(exchanged, exponent);
      return exchanged;
    }};

// Whether 2^3 can be read as 3^2 beside the other factors.
bool CanBeExchanged(const FactorList& primes, int base) {
  const int exponent = CountOf(primes, base);
  return exponent > 1 && exponent != base && CountOf(primes, exponent) == 0;
}

void PrimeFactorization::OfferChoices(RandomStream& random) {
  const auto count = static_cast<int>(primes_.size());
  const std::vector<int> order = random.RandSeq(count, 3);
  const auto prime = [&](int i) {
    return primes_[static_cast<std::size_t>(order[static_cast<std::size_t>(i)] - 1)];
  };
  const int recipe = random.Index(8);
  const bool twice = random.Sign() > 0;
  const bool exchanges = recipe >= 6 && CanBeExchanged(primes_, prime(0)) && prime(2) != prime(0);
  const FormMistake& form = exchanges ? kExchanged : recipe == 5 ? kOneIsPrime : kNotPrime;
  const FactorList miscounted =
      twice ? WithFactor(primes_, prime(2)) : WithoutFactor(primes_, prime(2));
  const std::string miscounts = twice ? "counts a prime factor twice" : "loses a prime factor";

  Choices<FactorList> choices(problem, choice_kind::FiveShuffled, PowersText);
  choices.Right(primes_);
  choices.Wrong(form.name, form.made(primes_, prime(0), prime(1)));
  choices.Wrong(miscounts, miscounted);
  choices.Wrong(form.name + (" and " + miscounts), form.made(miscounted, prime(0), prime(1)));
  if (recipe % 2 == 0) choices.Wrong("writes each prime factor only once", Different(primes_));
  choices.Wrong(kNotPrime.name, Merged(primes_, prime(1), prime(2)));
  choices.Wrong(kNotPrime.name, Merged(primes_, prime(0), prime(2)));
  // Another prime of the table in the place of one.
  choices.Fill([&] {
    const int other = DrawPrime(random, 1);
    return WithFactor(WithoutFactor(primes_, prime(0)), other);
  });
}

// --- Problem page ------------------------------------------------------------

void PrimeFactorization::ShowProblem() {
  SayAt(5, problem.question[0]);
  SayAt(7, problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.width = 20});  // 2^2 x 3 x 5 x 7 is long
}

// --- Worked explanation ------------------------------------------------------

void PrimeFactorization::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<PrimeFactorization> kRegistration("Prime Factorization");

}  // namespace
}  // namespace course
