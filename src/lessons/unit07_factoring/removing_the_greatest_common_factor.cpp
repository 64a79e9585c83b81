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
  SayAt(3, "We know how to distribute a factor:");
  ShowAt(5, "3(2x + 5) = 6x + 15", kMath);
  SayAt(7, R"(To \cfactor\z means to go back:)");
  ShowAt(9, "6x + 15 = 3(2x + 5)", kMath);
  PageEnd();
  SayAt(11,
        R"(3 is a \ccommon factor\z of 6x and 15.  We take it out, and divide each term by it.)");
  Say(R"(\yTry it:\z  Which number is a common factor of 10x and 15?)");
  PageEnd();
  Say("5 is.  10x divided by 5 is 2x, and 15 divided by 5 is 3:");
  Show(R"(10x + 15 = \y5(2x + 3)\z)", kMath);
  PageEnd();
}

void GreatestNumber() {
  NewScreen();
  SayAt(3, "12x + 18 has the common factors 2, 3 and 6.  Which one do we take out?");
  PageEnd();
  Say(R"(The \cgreatest common factor\z.  Then nothing common is left inside:)");
  PaperBox({R"(\r2(6x + 9)\z    3 is still common)", R"(6(2x + 3)    nothing is common)"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  Ben writes {}.  What is still common?)", "24x + 40 = 4(6x + 10)"));
  PageEnd();
  Say("2 is a factor of 6x and of 10.  So we take out 8:");
  Show(R"(24x + 40 = \y8(3x + 5)\z)", kMath);
  PageEnd();
}

void PrimesInCommon() {
  NewScreen();
  SayAt(3, "The primes help us find the greatest common factor of 24 and 36:");
  const CommonFactorsFigure figure(NumberWrittenOut(24), NumberWrittenOut(36), 6, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon("12");
  SayAt(11.5, "The framed primes are factors of both numbers.  We multiply them.");
  PageEnd();
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
  PageEnd();
  Say(Text(R"(\yTry it:\z  What is the greatest common factor of {} and {}?)", "n^4^", "n"));
  PageEnd();
  Say(R"(n has one factor n, so only one is common:  \yn\z.)");
  PageEnd();
}

constexpr CommonMonomial kExample = {'x', {18, 12}, {5, 2}, false};

// Both terms over the greatest common factor, built up beside each other.
void ShowQuotients(const CommonMonomial& sum, double row) {
  const auto quotient = [&](int i) {
    return TermText(sum.TermAt(i)) + "/(" + TermText(sum.CommonFactor()) +
           ") = " + TermText(sum.Quotient(i));
  };
  ShowAt(row, quotient(0) + "      " + quotient(1), kMath);
}

void NumbersAndLetters() {
  NewScreen();
  SayAt(3, Text("Let's factor {}.", kExample.Text()));
  Say(Text("The greatest common factor of 18 and 12 is 6, and that of {} and {} is {}.", "x^5^",
           "x^2^", "x^2^"));
  Say(Text(R"(We take out both:  \y{}\z)", "6x^2^"));
  PageEnd();
  SayAt(11, "We divide each term by it.  The numbers are divided, the exponents subtracted:");
  ShowQuotients(kExample, 15);
  PageEnd();
  ShowAt(18, kExample.Text() + R"( = \y)" + TakenOutText(kExample.Right()) + R"(\z)", kMath);
  PageEnd();

  NewScreen();
  ShowAt(3, kExample.Text() + " = " + TakenOutText(kExample.Right()), kMath);
  const std::string factor = "6x^2^ " + tutor::Times + " ";
  SayAt(5, Text(R"(\yCheck:\z  {}, and {}.)", factor + "3x^3^ = 18x^5^", factor + "2 = 12x^2^"));
  PageEnd();
  RuleBox("Taking Out the Common Factor",
          {"Find the greatest common factor.", "Divide each term by it.",
           "Write it before the parentheses."},
          {.width = 32});
  PageEnd();
  Say(R"(\yTry it:\z  What is still common inside?)");
  PaperBox({R"(\r6(3x^5^ + 2x^2^)\z)", R"(\rx^2^(18x^3^ + 12)\z)", R"(\r6x(3x^4^ + 2x)\z)"});
  PageEnd();
  Say(Text("In the first {}, in the second 6, in the third x.", "x^2^"));
  PageEnd();
}

void MinusAndOne() {
  NewScreen();
  SayAt(3, "The minus sign stays a minus sign:");
  ShowAt(5, R"(20n^4^ - 8n^3^ = \y4n^3^(5n - 2)\z)", kMath);
  PageEnd();
  SayAt(7, Text("What if a term is the common factor itself?  Let's take {} out of {}:", "3y",
                "9y^3^ + 3y"));
  ShowAt(11, "9y^3^/(3y) = 3y^2^       3y/(3y) = 1", kMath);
  PageEnd();
  SayAt(13.5, R"(\yWatch out:\z  What is left is 1, not nothing.  The 1 must be written:)");
  PaperBox({R"(3y(3y^2^ + 1),  \rnot 3y(3y^2^)\z)"});
  Say(Text(R"(\yTry it:\z  Factor {}.)", "8a^5^ - 4a^2^"));
  PageEnd();
  Say(Text("{} is common, and the second term leaves 1:", "4a^2^"));
  Show(R"(8a^5^ - 4a^2^ = \y4a^2^(2a^3^ - 1)\z)", kMath);
  PageEnd();
}

void FindTheMistake() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  {}.  What is wrong?)", "10a^4^ - 15a^2^"));
  PaperBox({R"(A:  \r5a^2^(2a^4^ - 3)\z)", R"(B:  \r5a^2^(2a^2^ - 15)\z)",
            R"(C:  \r5a^4^(2 - 3a^2^)\z)"});
  PageEnd();
  Say(Text("A:  The exponent inside was not made smaller.  {} divided by {} is {}.", "a^4^", "a^2^",
           "a^2^"));
  Say("B:  Only the first term was divided.  15 must become 3.");
  PageEnd();
  Say(Text("C:  The higher power was taken out, but {} is not a factor of {}.", "a^4^", "a^2^"));
  Show(R"(10a^4^ - 15a^2^ = \y5a^2^(2a^2^ - 3)\z)", kMath);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class RemovingTheGreatestCommonFactor final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{GoingBack, GreatestNumber, PrimesInCommon, LettersInCommon, NumbersAndLetters,
             MinusAndOne, FindTheMistake}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsWorthSolving() const;
  void OfferChoices(RandomStream& random);

  void BeginExplanation() const;
  void ExplainNumbers() const;
  void ExplainLetters() const;
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
  const int sort = random.Rand(1, 3);
  const bool withSign = random.Rand(0, 1) == 1 || sort == 3;
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
  for (const FactoringMistake& mistake : sort == 1   ? sum_.PowerMistakes()
                                         : sort == 2 ? sum_.NumberMistakes()
                                                     : sum_.FactorMistakes())
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
  ExplainLetters();
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
  SayAt(8, Text("First the numbers.  We write {} and {} as products of primes:", first, second));
  const CommonFactorsFigure figure(NumberWrittenOut(first), NumberWrittenOut(second), 11, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon(NumStr(sum_.CommonNumber()));
  SayAt(figure.RowBelow() + 0.5,
        Text("The greatest common factor of the numbers is {}.", sum_.CommonNumber()));
  PageEnd();
}

void RemovingTheGreatestCommonFactor::ExplainLetters() const {
  NewScreen();
  BeginExplanation();
  const WrittenProduct higher = PowerWrittenOut(sum_.letter, sum_.powers[0]);
  const WrittenProduct lower = PowerWrittenOut(sum_.letter, sum_.powers[1]);
  SayAt(8, Text("Then the letters.  What do {} and {} share?", higher.name, lower.name));
  const CommonFactorsFigure figure(higher, lower, 11, kMath);
  PageEnd();
  figure.FrameCommon();
  figure.DropCommon(lower.name);
  SayAt(figure.RowBelow() + 0.5,
        Text("{} is common, the power with the lower exponent.", lower.name));
  Say(Text(R"(So the greatest common factor is \y{}\z.)", TermText(sum_.CommonFactor())));
  PageEnd();
}

void RemovingTheGreatestCommonFactor::Divide() const {
  NewScreen();
  BeginExplanation();
  SayAt(8, Text("We divide each term by {}:", TermText(sum_.CommonFactor())));
  ShowQuotients(sum_, 11);
  PageEnd();
  SayAt(13.5, "We write the factor in front, and what is left in parentheses:");
  Show(sum_.Text() + R"( = \y)" + TakenOutText(sum_.Right()) + R"(\z)", kMath);
  if (sum_.LeavesOne()) AddLine("The 1 must be written.");
  PageEnd();
}

void RemovingTheGreatestCommonFactor::Check() const {
  NewScreen();
  BeginExplanation();
  ShowAt(7.5, "= " + TakenOutText(sum_.Right()), kMath);
  SayAt(9.5, R"(\yCheck:\z  We distribute the factor.)");
  for (int i = 0; i < 2; ++i)
    Show(TermText(sum_.CommonFactor()) + " " + tutor::Times + " " + TermText(sum_.Quotient(i)) +
             " = " + TermText(sum_.TermAt(i)),
         kMath);
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
