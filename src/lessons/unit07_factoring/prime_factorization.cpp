// The student can write a number as a product of primes: finds a divisor by the tests of 2, 3 and
// 5, splits the number in a factor tree until only primes are left, and writes equal ones as
// powers.
//
// A number has four or five prime factors, two of them different at least.
#include "lessons/families/factoring/divisor_tests.h"
#include "lessons/families/factoring/factor_list.h"
#include "lessons/families/factoring/factor_tree.h"
#include "lessons/families/factoring/number_grid.h"
#include "lessons/families/factoring/prime_choices.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/families/properties/property_pages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;

using platform::colour::Cyan;
using properties::DrawDots;

const std::string kTimes = " " + tutor::Times + " ";

// --- Screen 1: divisors -----------------------------------------------------

void DotRectangle(double row, double col, int rows, int columns) {
  for (int i = 0; i < rows; ++i) DrawDots(row + i, col, columns, Cyan);
}

void EqualRows() {
  NewScreen();
  SayAt(3, "12 dots can stand in 3 rows of 4:");
  DotRectangle(5, 4, 3, 4);
  ShowAt(8.5, "3" + kTimes + "4 = 12", 3);
  SayAt(12.5, R"(\yTry it:\z  Which other equal rows can 12 dots make?)");
  PageEnd();
  DotRectangle(5, 19, 2, 6);
  ShowAt(8.5, "2" + kTimes + "6 = 12", 19);
  DotRectangle(10.5, 4, 1, 12);
  ShowAt(10.5, "1" + kTimes + "12 = 12", 29);
  Say("We can also turn them:  4 rows of 3, 6 rows of 2, 12 rows of 1.");
  PageEnd();
}

void Divisors() {
  NewScreen();
  SayAt(3, R"(A \cdivisor\z of a number divides it, and nothing is left over.)");
  Say("Of 12 they are 1, 2, 3, 4, 6 and 12.");
  Say(R"(\yTry it:\z  Is 5 a divisor of 12?)");
  PageEnd();
  DotRectangle(11, 4, 2, 5);
  DotRectangle(13, 4, 1, 2);
  SayAt(11, "No.  After 2 rows of 5, 2 dots are left over.", {.col = 17});
  SayAt(15, R"(We also call divisors \cfactors\z:  3 and 4 are factors of 12.)");
  PageEnd();
}

// --- Screen 2: primes -------------------------------------------------------

void OnlyTwoDivisors() {
  NewScreen();
  SayAt(3, "7 dots make one long row, and, turned, 7 rows of 1.  There is no other way:");
  DotRectangle(6, 4, 1, 7);
  SayAt(8, R"(A \cprime number\z is a whole number with exactly two divisors:  1 and itself.)");
  PageEnd();
  Say(R"(A whole number with more divisors, such as 12, is \ccomposite\z.)");
  Say("1 has only one divisor.  It is neither prime nor composite.");
  PageEnd();
}

void Sieve() {
  constexpr double kTextRow = 11;
  NewScreen();
  SayAt(3, "Which are prime numbers, or primes?");
  const NumberGrid grid(6);
  PageEnd();
  grid.CrossOutOne();
  grid.CrossOutMultiples(2);
  SayAt(kTextRow, "1 is no prime.  2 is one, but 4, 6, 8, and so on, are composite.");
  Say(R"(\yTry it:\z  3 is a prime.  Which numbers does it cross out?)");
  PageEnd();
  grid.CrossOutMultiples(3);
  Say("6, 9, 12, and so on.  9, 15, 21 and 27 are odd, but they are composite.");
  Say(R"(\yTry it:\z  Which new number does 5 cross out?)");
  PageEnd();
  grid.CrossOutMultiples(5);
  grid.FramePrimes();
  ClearBelow(kTextRow);
  SayAt(kTextRow,
        Text("5 crosses out 25.  Now we may stop:  {} is 49, and 14, 21 and 28 have the smaller "
             "primes 2 and 3.",
             "7" + kTimes + "7"));
  Say(R"(The framed numbers are the \yprimes\z.)");
  PageEnd();
}

// --- Screen 3: the tests of 2, 3 and 5 --------------------------------------

void LastDigits() {
  NewScreen();
  SayAt(3, "Can we see a divisor without dividing?");
  PaperBox({"divisor 2:   2   4   6   8  10  12", "divisor 5:   5  10  15  20  25  30"});
  Say(R"(\yTry it:\z  What do the last digits tell?)");
  PageEnd();
  Say("Numbers with the divisor 2 end in 0, 2, 4, 6 or 8.  Numbers with the divisor 5 end in 0 or "
      "5.  No other numbers do.");
  PageEnd();
}

void SumOfDigits() {
  NewScreen();
  SayAt(
      3,
      "What about 3?  57 has 5 tens.  Each ten is 9 + 1.  3 is a divisor of 9, so each ten leaves "
      "1 over:");
  ShowAt(7, R"(5 from the tens and 7 ones:  \y5 + 7 = 12\z)", 2);
  PageEnd();
  Say("3 is a divisor of 12, so it is a divisor of 57.");
  Say("100 is 99 + 1, so each hundred leaves 1 over, too.");
  PageEnd();
  NewScreen();
  PaperBox({"2:  The last digit is 0, 2, 4, 6 or 8.", "3:  3 divides the sum of all digits.",
            "5:  The last digit is 0 or 5."},
           3);
  Say(R"(\yTry it:\z  Is 3 a divisor of 124?  Of 51?)");
  PageEnd();
  Say(Text("Of 124, no:  {}.", DigitSumText(124)));
  Say(Text("Of 51, yes:  {}.  So 51 is not a prime:  {}.", DigitSumText(51),
           "51 = 3" + kTimes + "17"));
  PageEnd();
}

// --- Screen 4: factor trees -------------------------------------------------

void FirstTree() {
  NewScreen();
  SayAt(3, R"(Let's write 60 as a product of primes:)");
  FactorTreeFigure tree(Split(Split(Leaf(2), Leaf(3)), Split(Leaf(2), Leaf(5))), 5.5, 14);
  tree.Grow();
  SayAt(12, R"(\yTry it:\z  How can we split 6 and 10?)");
  PageEnd();
  ClearBelow(12);
  tree.Grow();
  SayAt(14, Text(R"({}, and {}.  A branch ends at a prime.  This is a \cfactor tree\z.)",
                 "6 = 2" + kTimes + "3", "10 = 2" + kTimes + "5"));
  PageEnd();
  tree.DropPrimes(11.5);
  SayAt(17, R"(The product of the primes at the ends is the \cprime factorization\z of 60.)");
  PaperBox({"60 = 2" + kTimes + "2" + kTimes + "3" + kTimes + "5"});
  PageEnd();
}

void NotYetPrimes() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Ann writes {}.  Is this the prime factorization of 36?)",
                "36 = 4" + kTimes + "9"));
  FactorTreeFigure tree(Split(Split(Leaf(2), Leaf(2)), Split(Leaf(3), Leaf(3))), 6, 14);
  tree.Grow();
  PageEnd();
  tree.Grow();
  tree.DropPrimes(12);
  Say("No.  4 and 9 are composite, so their branches must go on.");
  PageEnd();
}

// --- Screen 5: always the same primes ---------------------------------------

void TwoTrees() {
  constexpr double kAnnsCol = 4;
  constexpr double kBensCol = 24;
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Finish both trees.  Do Ann and Ben find different primes?)");
  ShowAt(6.5, "Ann", kAnnsCol);
  ShowAt(6.5, "Ben", kBensCol);
  FactorTreeFigure anns(Split(Split(Leaf(2), Leaf(3)), Split(Leaf(2), Leaf(5))), 6.5, kAnnsCol);
  FactorTreeFigure bens(Split(Split(Leaf(2), Leaf(2)), Split(Leaf(3), Leaf(5))), 6.5, kBensCol);
  anns.Grow();
  bens.Grow();
  PageEnd();
  anns.Grow();
  bens.Grow();
  SayAt(13.5,
        R"(No.  Every whole number greater than 1 has \yonly one\z prime factorization.  Only )"
        "the order can differ.");
  PageEnd();
}

constexpr double kReasonCol = 22;

// The number of a level is split by its smallest prime, with the reason beside it.
void SplitWithReason(FactorTreeFigure& tree, int level, int number, int prime) {
  SayAt(tree.RowOf(level), ReasonForDivisor(number, prime), {.col = kReasonCol});
  tree.Grow();
}

void SmallestPrimeFirst() {
  NewScreen();
  SayAt(3, R"(Let's split off the \ysmallest\z prime:)");
  FactorTreeFigure tree(TreeOfSmallestPrimes(154), 5.5, 4);
  SayAt(tree.RowOf(0), "154 ends in 4.", {.col = kReasonCol});
  tree.Grow();
  PageEnd();
  SayAt(tree.RowOf(1), "2, 3 and 5 fail.", {.col = kReasonCol});
  SayAt(14, R"(When the tests fail, we try the next primes:  \y7, 11, 13\z.)");
  PageEnd();
  ShowAt(tree.RowOf(2), "77 = 7" + kTimes + "11", kReasonCol);
  tree.Grow();
  tree.DropPrimes(12);
  PageEnd();
}

void HowFarToTry() {
  NewScreen();
  SayAt(3, R"(How far must we try?  Take \y67\z.)");
  Say(Text("2, 3, 5 and 7 fail, and {} is 121, more than 67.  So 67 is a prime.",
           "11" + kTimes + "11"));
  Say(R"(\yTry it:\z  Is 49 a prime?  Is 91?)");
  PageEnd();
  Say(Text("No:  {}, and {}.", "49 = 7" + kTimes + "7", "91 = 7" + kTimes + "13"));
  Say(Text(R"(We stop when \y{}\z is larger than the number.  Two )"
           "larger factors would give too much.",
           "prime" + kTimes + "prime"));
  PageEnd();
}

// --- Screen 6: powers -------------------------------------------------------

void EqualFactors() {
  NewScreen();
  SayAt(3, "We write equal factors as powers:");
  ShowAt(5.5,
         "72 = 2" + kTimes + "2" + kTimes + "2" + kTimes + "3" + kTimes + R"(3 = \y2^3^)" + kTimes +
             R"(3^2^\z)",
         3);
  SayAt(8, "Exponent 3:  2 is a factor three times.");
  Say(Text(R"(\yCheck:\z  {})", "8" + kTimes + "9 = 72"));
  PageEnd();
}

void FormsOfPowers() {
  NewScreen();
  SayAt(3, Text("{} is right.", "40 = 2^3^" + kTimes + "5"));
  AddLine(R"(\yTry it:\z  What is wrong in these three?)");
  PaperBox({R"(A:  \r40 = 2)" + kTimes + R"(5\z       B:  \r40 = 3^2^)" + kTimes + R"(5\z)",
            R"(C:  \r40 = 1)" + kTimes + "2^3^" + kTimes + R"(5\z)"});
  PageEnd();
  Say("A:  2 is a factor three times.");
  AddLine(Text("B:  {} is {}, not {}.", "2^3^", fractions::ProductText({2, 2, 2}),
               fractions::ProductText({3, 3})));
  AddLine("C:  1 is not a prime.");
  Say(R"(\yTry it:\z  Factor 90 into primes.)");
  PageEnd();
  Say(Text("{}, {}, and {}:", "90 = 2" + kTimes + "45", "45 = 3" + kTimes + "15",
           "15 = 3" + kTimes + "5"));
  ShowAt(NextRow() + 1, R"(90 = \y2)" + kTimes + "3^2^" + kTimes + R"(5\z)", 4);
  Say("The exponent 1 is not written.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PrimeFactorization final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{EqualRows, Divisors},
            {OnlyTwoDivisors, Sieve},
            {LastDigits, SumOfDigits},
            {FirstTree, NotYetPrimes},
            {TwoTrees, SmallestPrimeFirst, HowFarToTry},
            {EqualFactors, FormsOfPowers}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  int Number() const { return ProductOf(primes_); }

  void BeginExplanation() const;
  void GrowTree() const;
  void WritePowers() const;
  void Check() const;

  FactorList primes_;  // four or five, two of them different at least
};

// --- Generator ---------------------------------------------------------------

void PrimeFactorization::DrawProblem(RandomStream& random) {
  primes_ = DrawPrimeFactors(random);
  problem.question = {Text("What is the prime factorization of {}?", Number()),
                      "Every factor must be a prime number."};
  OfferFactorizations(problem, primes_, random);
}

// --- Problem page ------------------------------------------------------------

void PrimeFactorization::ShowProblem() {
  SayAt(5, problem.question[0]);
  SayAt(7, problem.question[1]);
  ShowAnswersInOneColumn(problem, {.row = 9.5, .width = 24});  // 1 x 2^2 x 3 x 5 x 7 is long
}

// --- Worked explanation ------------------------------------------------------

void PrimeFactorization::ExplainProblem() {
  GrowTree();
  WritePowers();
  Check();
  Conclude(problem);
}

void PrimeFactorization::BeginExplanation() const {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
}

std::string TimesText(int count) {
  return count == 2 ? "twice" : NumStr(count) + " times";
}

void PrimeFactorization::GrowTree() const {
  BeginExplanation();
  SayAt(6,
        Text("We split off the smallest prime, again and again.  Which one divides {}?", Number()));
  FactorTreeFigure tree(TreeOfSmallestPrimes(Number()), 8.5, 3);
  PageEnd();
  int rest = Number();
  for (int level = 0; level + 1 < tree.Levels(); ++level) {
    const int prime = primes_[static_cast<std::size_t>(level)];
    SplitWithReason(tree, level, rest, prime);
    rest /= prime;
    PageEnd();
  }
  const double below = tree.RowOf(tree.Levels());
  SayAt(below, EndAtPrime(rest));
  if (rest > 3) AddLine(ReasonForPrime(rest), {.col = 3});
  PageEnd();
  ClearBelow(below);
  tree.DropPrimes(below);
  PageEnd();
}

void PrimeFactorization::WritePowers() const {
  NewScreen();
  BeginExplanation();
  const std::string number = NumStr(Number()) + " = ";
  ShowAt(6.5, number + fractions::ProductText(primes_), 4);
  if (Different(primes_).size() == primes_.size()) {
    SayAt(8.5, "No two factors are equal, so there is nothing to write as a power.");
  } else {
    SayAt(8.5, "We write equal factors as a power:");
    for (const int prime : Different(primes_))
      if (CountOf(primes_, prime) > 1)
        AddLine(Text("   {} is a factor {}.", prime, TimesText(CountOf(primes_, prime))));
  }
  PageEnd();
  ShowAt(NextRow() + 1, number + R"(\y)" + PowersText(primes_) + R"(\z)", 4);
  PageEnd();
}

void PrimeFactorization::Check() const {
  Say(R"(\yCheck:\z  Every factor is a prime.  We multiply:)");
  FactorList values;
  for (const int prime : Different(primes_)) {
    int value = 1;
    for (int i = 0; i < CountOf(primes_, prime); ++i) value *= prime;
    values.push_back(value);
  }
  Show(fractions::ProductText(values) + " = " + NumStr(Number()), 4);
  PageEnd();
}

const LessonRegistration<PrimeFactorization> kRegistration("Prime Factorization");

}  // namespace
}  // namespace course
