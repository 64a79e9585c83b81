// The student can take the greatest common factor out of a sum such as 18x^5 - 12x^2: finds it for
// the numbers and for the letters, divides both terms by it, and checks that nothing common is
// left.
//
// Wrong choices that are equal to the expression, with a common factor left inside, are wrong
// because the greatest one is asked for.
#include "lessons/families/factoring/common_factors_figure.h"
#include "lessons/families/factoring/common_monomial.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;

// --- Teaching screens --------------------------------------------------------

constexpr double kMath = 4;  // column of the lines of mathematics

void GoingBack() {
  NewScreen();
  SayAt(3, Text("We can distribute:  {}", "3(2x + 5) = 6x + 15"));
  SayAt(5, R"(To \cfactor\z is to write a sum as a product.  We go back:)");
  ShowAt(8, "6x + 15 = 3(2x + 5)", kMath);
  PageEnd();
  SayAt(10,
        R"(3 is a \ccommon factor\z of 6x and 15.  We take it out, and divide each term by it.)");
  Say(R"(\yTry it:\z  Which number is a common factor of 10x and 35?)");
  PageEnd();
  Say("5 is a common factor.  10x divided by 5 is 2x, and 35 divided by 5 is 7:");
  ShowAt(NextRow() + 1, R"(10x + 35 = \y5(2x + 7)\z)", kMath);
  PageEnd();
}

void GreatestNumber() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which common factors do 12x and 18 have?  Which one do we take out?)");
  PageEnd();
  Say(R"(2, 3 and 6.  We take out the \cgreatest common factor\z:)");
  PaperBox({R"(\r2(6x + 9)\z    3 is still common)", R"(6(2x + 3)    nothing is common)"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  Ben writes {}.  What is still common?)", "24x + 40 = 4(6x + 10)"));
  PageEnd();
  Say(Text("2 is a factor of 6x and of 10.  So we take out {}:", "4 " + tutor::Times + " 2 = 8"));
  ShowAt(NextRow() + 1, R"(24x + 40 = \y8(3x + 5)\z)", kMath);
  PageEnd();
}

void PrimesInCommon() {
  NewScreen();
  SayAt(3, "We look for what 24 and 36 share, and write equal primes under each other:");
  const CommonFactorsFigure figure(NumberWrittenOut(24), NumberWrittenOut(36), 6, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon("12");
  SayAt(11.5, "We multiply the primes that both have.");
  Say(R"(\yTry it:\z  What is the greatest common factor of 30 and 45?)");
  PageEnd();
  Say(Text(R"(30 is {}, and 45 is {}.  Both have 3 and 5, so it is \y15\z.)",
           fractions::ProductText({2, 3, 5}), fractions::ProductText({3, 3, 5})));
  PageEnd();
}

void LettersInCommon() {
  NewScreen();
  SayAt(3, Text("Letters can be common, too.  What do {} and {} share?", "x^5^", "x^2^"));
  const CommonFactorsFigure figure(PowerWrittenOut('x', 5), PowerWrittenOut('x', 2), 6, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon("x^2^");
  SayAt(11.5,
        Text(R"(Both have two factors x.  So we take {}, the power with the \ylower\z exponent.)",
             "x^2^"));
  Say(Text(R"(\yTry it:\z  What do {} and n share?)", "n^4^"));
  PageEnd();
  Say(Text(R"(n is {}.  It has one factor n, so only one is common:  \yn\z.)", "n^1^"));
  PageEnd();
}

constexpr CommonMonomial kExample = {'w', {18, 12}, {5, 2}, false};

// A term over the greatest common factor, built up: "(-12w^2^)/(6w^2^) = -2".
std::string QuotientLine(const CommonMonomial& sum, int i) {
  return "(" + TermText(sum.SignedTermAt(i)) + ")/(" + TermText(sum.CommonFactor()) +
         ") = " + TermText(sum.SignedQuotient(i));
}

void ShowQuotients(const CommonMonomial& sum, double row) {
  ShowAt(row, QuotientLine(sum, 0) + "      " + QuotientLine(sum, 1), kMath);
}

// The factor times what is left of a term, in parentheses that keep the sign: "(2w^3^)(-20) = ...".
std::string ProductLine(const CommonMonomial& sum, int i) {
  return "(" + TermText(sum.CommonFactor()) + ")(" + TermText(sum.SignedQuotient(i)) +
         ") = " + TermText(sum.SignedTermAt(i));
}

void NumbersAndPowers() {
  NewScreen();
  SayAt(3, Text("Let's factor {}.", kExample.Text()));
  Say(Text("The greatest common factor of 18 and 12 is 6, and that of {} and {} is {}.", "w^5^",
           "w^2^", "w^2^"));
  Say(Text(R"(We take out both:  \y{}\z)", "6w^2^"));
  PageEnd();
  SayAt(10, Text("We divide each term by it.  {} has three factors w more than {}:  {}.", "w^5^",
                 "w^2^", "5 - 2 = 3"));
  ShowAt(14, QuotientLine(kExample, 0), kMath);
  PageEnd();
  ShowAt(14, QuotientLine(kExample, 1), 21);
  SayAt(16.5,
        Text("{} divided by {} is 1.  The exponents are subtracted, not added.", "w^2^", "w^2^"));
  ShowAt(19.5, kExample.Text() + R"( = \y)" + TakenOutText(kExample.Right()) + R"(\z)", kMath);
  PageEnd();

  NewScreen();
  ShowAt(3, kExample.Text() + " = " + TakenOutText(kExample.Right()), kMath);
  SayAt(5, Text(R"(\yCheck:\z  {}, and {}.)", ProductLine(kExample, 0), ProductLine(kExample, 1)));
  PageEnd();
  RuleBox("Taking Out the Common Factor",
          {"1. Find the greatest common factor.", "2. Divide each term by it.",
           "3. Write:  factor (results)"},
          {.width = 38});
  PageEnd();
}

void FactorTogether() {
  constexpr CommonMonomial kTask = {'t', {30, 20}, {4, 3}, false};
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Factor {}.)", kTask.Text()));
  PageEnd();
  Say(Text(R"(10 is the greatest common factor of 30 and 20, and {} that of the powers:  \y{}\z)",
           "t^3^", "10t^3^"));
  PageEnd();
  ShowQuotients(kTask, NextRow() + 2.5);
  ShowAt(NextRow() + 0.5, kTask.Text() + R"( = \y)" + TakenOutText(kTask.Right()) + R"(\z)", kMath);
  PageEnd();
  Say(Text(R"(\yTry it:\z  What is still common inside, when we factor {}?)", kExample.Text()));
  PaperBox(
      {R"(A:  \r6(3w^5^ + 2w^2^)\z      B:  \rw^2^(18w^3^ + 12)\z)", R"(C:  \r6w(3w^4^ + 2w)\z)"});
  PageEnd();
  Say(Text("A:  {}      B:  6      C:  w", "w^2^"));
  PageEnd();
}

void MinusSign() {
  constexpr CommonMonomial kSum = {'n', {20, 8}, {4, 3}, true};
  NewScreen();
  SayAt(3, Text("A minus sign goes with its term.  Let's divide the terms of {}:", kSum.Text()));
  ShowQuotients(kSum, 7);
  PageEnd();
  ShowAt(10, kSum.Text() + R"( = \y)" + TakenOutText(kSum.Right()) + R"(\z)", kMath);
  SayAt(12, Text(R"(\yTry it:\z  Factor {}.)", "18k^5^ - 24k^3^"));
  PageEnd();
  PaperBox({R"(6k^3^(3k^2^ - 4),  \rnot 6k^3^(3k^2^ + 4)\z)"});
  Say(Text(R"(\yCheck:\z  {}, and {}.)", "(6k^3^)(3k^2^) = 18k^5^", "(6k^3^)(-4) = -24k^3^"));
  PageEnd();
}

void OneIsLeft() {
  NewScreen();
  SayAt(3, Text("What if a term is the common factor itself?  Let's take {} out of {}:", "3y",
                "9y^3^ + 3y"));
  ShowAt(7, "9y^3^/(3y) = 3y^2^       3y/(3y) = 1", kMath);
  PageEnd();
  SayAt(9.5, R"(\yWatch out:\z  What is left is 1, not nothing.  The 1 must be written:)");
  PaperBox({R"(3y(3y^2^ + 1),  \rnot 3y(3y^2^)\z)"});
  Say(Text(R"(\yTry it:\z  Factor {}.)", "8a^5^ - 4a^2^"));
  PageEnd();
  Say(Text("{} is common, and the second term leaves -1:", "4a^2^"));
  ShowAt(NextRow() + 1, R"(8a^5^ - 4a^2^ = \y4a^2^(2a^3^ - 1)\z)", kMath);
  PageEnd();
}

void FindTheMistake() {
  constexpr double kAir = 0.3;  // rows, between exponents and the parentheses above
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Three students factor {}.  What did each do wrong?)",
                "10a^4^ - 15a^2^"));
  PaperBox({R"(A:  \r5a^2^(2a^4^ - 3)\z      B:  \r5a^2^(2a^2^ - 15)\z)",
            R"(C:  \r5a^4^(2 - 3a^2^)\z)"});
  PageEnd();
  Say("We multiply back:");
  ShowAt(NextRow() + kAir, "A:  (5a^2^)(2a^4^) = 10a^6^, not 10a^4^.", 1);
  ShowAt(NextRow() + kAir, "B:  (5a^2^)(15) = 75a^2^, not 15a^2^.", 1);
  ShowAt(NextRow() + kAir, "C:  (5a^4^)(3a^2^) = 15a^6^, not 15a^2^.", 1);
  PageEnd();
  Say(Text("A:  {} was not divided.  B:  15 was not divided.  C:  {} is not a factor of {}.",
           "a^4^", "a^4^", "a^2^"));
  ShowAt(NextRow() + 1, R"(10a^4^ - 15a^2^ = \y5a^2^(2a^2^ - 3)\z)", kMath);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class RemovingTheGreatestCommonFactor final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{GoingBack, GreatestNumber, PrimesInCommon, LettersInCommon, NumbersAndPowers,
             FactorTogether, MinusSign, OneIsLeft, FindTheMistake}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsWorthSolving() const;
  void OfferChoices(RandomStream& random);

  void BeginExplanation() const;
  void ExplainNumbers() const;
  void ExplainPowers() const;
  void Divide() const;
  void Check() const;

  CommonMonomial sum_;
};

// --- Generator ---------------------------------------------------------------

constexpr int kHighestPower = 6;
constexpr int kLargestNumber = 60;
constexpr int kOneInProblems = 5;  // leaves a 1 in the parentheses

// A number with small factors only, so that two of them often have some in common.
int DrawNumber(RandomStream& random) {
  const int first = random.Index(5);
  const int second = random.Index(4) + 1;
  const int third = random.Index(4) + 1;
  return first * second * third;
}

bool RemovingTheGreatestCommonFactor::IsWorthSolving() const {
  const bool small = sum_.numbers[0] <= kLargestNumber && sum_.numbers[1] <= kLargestNumber;
  const bool different = sum_.numbers[0] != sum_.numbers[1];  // else there is little to find
  return small && different && sum_.CommonNumber() > 1;
}

void RemovingTheGreatestCommonFactor::DrawProblem(RandomStream& random) {
  sum_.letter = random.OneOf(kVariableLetters)[0];
  sum_.powers[1] = random.Index(kHighestPower - 1);
  sum_.powers[0] = sum_.powers[1] + random.Index(kHighestPower - sum_.powers[1]);
  sum_.minus = random.Rand(0, 1) == 1;
  const bool leavesOne = random.Index(kOneInProblems) == 1;
  do {  // about a third of the draws is accepted
    sum_.numbers[0] = DrawNumber(random);
    sum_.numbers[1] = DrawNumber(random);
  } while (!IsWorthSolving() || sum_.LeavesOne() != leavesOne);
  problem.question = {"Factor the expression below:", sum_.Text(),
                      "Take out the greatest common factor."};
  OfferChoices(random);
}

// Mistakes of one sort lead to similar texts, which keeps the right choice from being the one most
// like all others.  One of them at most has the wrong sign.
void RemovingTheGreatestCommonFactor::OfferChoices(RandomStream& random) {
  const int sort = random.Rand(1, 7);
  const bool powers = sort <= 3;
  const bool factors = sort >= 6;
  const bool withSign = random.Rand(0, 1) == 1 || factors;
  const TakenOut right = sum_.Right();

  Choices<std::string> choices(problem, choice_kind::FiveShuffled,
                               [](const std::string& text) { return text; });
  choices.Right(TakenOutText(right));
  const auto reverseSign = [&] {
    choices.Wrong("reverses the sign", TakenOutText(Reversed(right)));
  };
  if (sum_.LeavesOne())
    choices.Wrong("leaves out the 1", TakenOutText({right.factor, {right.inside.front()}}));
  else if (withSign)
    reverseSign();
  for (const FactoringMistake& mistake : powers    ? sum_.PowerMistakes()
                                         : factors ? sum_.FactorMistakes()
                                                   : sum_.NumberMistakes())
    choices.Wrong(mistake.name, TakenOutText(mistake.taken));
  if (!choices.Full()) reverseSign();
}

// --- Problem page ------------------------------------------------------------

void RemovingTheGreatestCommonFactor::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  SayAt(9, problem.question[2]);
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 20});
}

// --- Worked explanation ------------------------------------------------------

void RemovingTheGreatestCommonFactor::ExplainProblem() {
  ExplainNumbers();
  ExplainPowers();
  Divide();
  Check();
  Conclude(problem);
}

void RemovingTheGreatestCommonFactor::BeginExplanation() const {
  ProblemBanner();
  SayAt(4.5, problem.question[0]);
  ShowAt(6, problem.question[1], kMath);
}

void RemovingTheGreatestCommonFactor::ExplainNumbers() const {
  BeginExplanation();
  const auto [first, second] = sum_.numbers;
  SayAt(8, Text("First the numbers.  We write equal primes of {} and {} under each other:", first,
                second));
  const CommonFactorsFigure figure(NumberWrittenOut(first), NumberWrittenOut(second), 11, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon(NumStr(sum_.CommonNumber()));
  SayAt(figure.RowBelow() + 0.5,
        Text("The greatest common factor of the numbers is {}.", sum_.CommonNumber()));
  PageEnd();
}

void RemovingTheGreatestCommonFactor::ExplainPowers() const {
  NewScreen();
  BeginExplanation();
  const WrittenProduct higher = PowerWrittenOut(sum_.letter, sum_.powers[0]);
  const WrittenProduct lower = PowerWrittenOut(sum_.letter, sum_.powers[1]);
  SayAt(8, Text("Then the powers.  What do {} and {} share?", higher.name, lower.name));
  const CommonFactorsFigure figure(higher, lower, 11, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon(lower.name);
  SayAt(figure.RowBelow() + 0.5,
        sum_.powers[1] > 1
            ? Text("{} is common, the power with the lower exponent.", lower.name)
            : Text("{} is {}, so {} is common.", lower.name, lower.name + "^1^", lower.name));
  Say(Text(R"(So the greatest common factor is \y{}\z.)", TermText(sum_.CommonFactor())));
  PageEnd();
}

void RemovingTheGreatestCommonFactor::Divide() const {
  NewScreen();
  BeginExplanation();
  SayAt(8, Text("We divide each term by {}:", TermText(sum_.CommonFactor())));
  ShowQuotients(sum_, 11);
  PageEnd();
  SayAt(14, "We write the factor in front, and what is left in parentheses:");
  ShowAt(NextRow() + 1, sum_.Text() + R"( = \y)" + TakenOutText(sum_.Right()) + R"(\z)", kMath);
  if (sum_.LeavesOne()) Say("The 1 must be written.");
  PageEnd();
}

void RemovingTheGreatestCommonFactor::Check() const {
  NewScreen();
  BeginExplanation();
  ShowAt(7.5, "= " + TakenOutText(sum_.Right()), kMath);
  SayAt(9.5, R"(\yCheck:\z  We distribute the factor.)");
  ShowAt(11, ProductLine(sum_, 0), kMath);
  ShowAt(12.5, ProductLine(sum_, 1), kMath);
  ShowAt(14.5, "Together:  " + sum_.Text(), kMath);
  PageEnd();
  const int first = sum_.Quotient(0).coef;
  const int second = sum_.Quotient(1).coef;
  if (first > 1 && second > 1)
    Say(Text("Nothing common is left inside:  {} and {} share only the factor 1, and {} has no {}.",
             first, second, second, std::string(1, sum_.letter)));
  else
    Say(Text("Nothing common is left in {}.", SumText(sum_.Right().inside)));
  PageEnd();
}

const LessonRegistration<RemovingTheGreatestCommonFactor> kRegistration(
    "Removing the Greatest Common Factor");

}  // namespace
}  // namespace course
