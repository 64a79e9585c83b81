// The student can tell whether a trinomial such as 4x^2 - 20x + 25 is the square of a binomial, by
// the test of its middle term, and finds that binomial.
//
// A problem is a binomial squared.  Every wrong choice stands there with both signs, as the right
// one does, so that the box most like the others is no hint.
#include "lessons/families/polynomials/square_figures.h"
#include "lessons/families/polynomials/trinomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr double kCol = 4;  // of lines of mathematics

Trinomial SquareOf(const Binomial& binomial) {
  return Factors{binomial, binomial}.Product();
}

std::string SquareText(const Binomial& binomial) {
  return FactorText(binomial) + "^2^";
}

// "x^2^ + 6x + 9 = (x + 3)^2^".
std::string Identity(const Binomial& binomial) {
  return TrinomialText(SquareOf(binomial)) + " = " + SquareText(binomial);
}

// "2x", "x"; the term whose square begins the trinomial.
std::string FirstTerm(const Binomial& binomial) {
  return CoefText(binomial.lead) + "x";
}

// "2(2x)(5) = 20x": what the middle term has to be, but for its sign.
std::string TwiceTheProduct(const Binomial& binomial) {
  const int size = std::abs(binomial.constant);
  return Text("2({})({}) = {}x", FirstTerm(binomial), size, 2 * binomial.lead * size);
}

// --- Teaching screens --------------------------------------------------------

void SquaresAndRoots() {
  NewScreen();
  SayAt(3, R"(5 times 5 is 25.  So 25 is the \csquare\z of 5, and 5 is a \csquare root\z of 25.)");
  Show("5^2^ = 25", kCol);
  PageEnd();
  Say(R"(A \cbinomial\z is an expression with two terms, such as x + 3.  It has a square, too:)");
  Show("(x + 3)^2^ = (x + 3)(x + 3)", kCol);
  PageEnd();
  Say(R"(\yTry it:\z  Terms can be squared as well.  What is the square of 3x?)");
  PageEnd();
  Say(R"(3x times 3x is \y9x^2^\z.  Both the 3 and the x are squared.)");
  PageEnd();
}

void AreaOfTheSquare() {
  constexpr double kRow = 6;
  constexpr double kFigureCol = 7;
  const TextPlace beside = {.col = 19};
  NewScreen();
  SayAt(3, "A square with the side x grows to x + 3:");
  const SquareOfSum figure(kRow, kFigureCol, "x", "3");
  PageEnd();
  SayAt(5, R"(Its area is (x + 3)^2^.  \yTry it:\z  What is the area of each of its four parts?)",
        beside);
  PageEnd();
  figure.PrintSquares("x^2^", "9");
  figure.PrintStrips("3x");
  SayAt(9.5, R"(x by x is x^2^, and 3 by 3 is 9.  Each strip is 3 by x.)", beside);
  PageEnd();
  SayAt(14, "The two strips are alike.  Together they are 6x:");
  Show("(x + 3)^2^ = x^2^ + 3x + 3x + 9", kCol);
  Show(R"(         = \yx^2^ + 6x + 9)", kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  Without the strips the square is not full.)");
  PaperBox({R"((x + 3)^2^ = x^2^ + 6x + 9,  \rnot x^2^ + 9\z)"});
  PageEnd();
}

void WithMinus() {
  NewScreen();
  SayAt(3, "Now a minus sign stands between the terms:");
  Show("(x - 3)^2^ = (x - 3)(x - 3)", kCol);
  Show("         = x^2^ - 3x - 3x + 9", kCol);
  PageEnd();
  Say(R"(\yTry it:\z  Why is the last term +9?)");
  PageEnd();
  Say("-3 times -3 is +9.  A square is never negative.");
  Show(R"((x - 3)^2^ = \yx^2^ - 6x + 9)", kCol);
  PageEnd();
  RuleBox("Perfect Square Trinomials",
          {"a^2^ + 2ab + b^2^ = (a + b)^2^", "a^2^ - 2ab + b^2^ = (a - b)^2^"}, {.width = 30});
  PageEnd();
  Say(R"(A \ctrinomial\z has three terms.  These are the squares of a + b and a - b.)");
  Say(R"(\yTry it:\z  Is every trinomial with x^2^ and 25 at its ends a square?)");
  PageEnd();
}

void TestOfTheMiddleTerm() {
  NewScreen();
  SayAt(3, R"(No.  The middle term has to fit, too:)");
  RuleBox("The Test", {"First and last term:  a^2^ and b^2^", "Middle term:  2ab or -2ab"},
          {.width = 34});
  PageEnd();
  Say(Text("Let's test {}.", TrinomialText({1, 10, 25})));
  AddLine("First:   x^2^ is x times x.", {.col = 3});
  AddLine("Last:    25 is 5 times 5.", {.col = 3});
  PageEnd();
  AddLine("Middle:  " + WithoutBreaks(TwiceTheProduct({1, 5})) + ".  It fits.", {.col = 3});
  Show(Identity({1, 5}), kCol);
  PageEnd();
  Say(Text(R"(\yTry it:\z  Is {} a square?)", TrinomialText({1, 10, 16})));
  PageEnd();
  Say(Text("No.  Both ends are squares, of x and 4.  But {}, and the middle term is 10x.",
           TwiceTheProduct({1, 4})));
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  const Binomial root = {2, -5};
  SayAt(3, Text("Let's find a square root of {}.", TrinomialText(SquareOf(root))));
  AddLine("First:   4x^2^ is 2x times 2x.", {.col = 3});
  AddLine("Last:    25 is 5 times 5.", {.col = 3});
  PageEnd();
  AddLine("Middle:  " + WithoutBreaks(TwiceTheProduct(root)) + ".  It fits.", {.col = 3});
  Say(R"(It has a \yminus sign\z, so the binomial has one, too:)");
  Show(Identity(root), kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  These do not fit.)");
  PaperBox({R"(\r(2x + 5)^2^\z has the middle term +20x)", R"(\r(5x - 2)^2^\z begins with 25x^2^)",
            R"(\r(4x - 25)^2^\z begins with 16x^2^)"});
  PageEnd();
  Say(R"(\yTry it:\z  Tom takes half of 20.  He writes 2x - 10.  What is wrong?)");
  PageEnd();
}

void TwoRoots() {
  NewScreen();
  SayAt(3, R"(In (2x - 10)^2^ the last term is 100, not 25.  Half of 20 is the \yproduct\z of 2 )"
           "and 5.");
  PageEnd();
  Say(R"(\yTry it:\z  -5 times -5 is 25, too.  So 25 has two square roots.  Does a trinomial have )"
      "two?");
  PageEnd();
  Say("Yes.  -2x + 5 has the same square:");
  Show("(-2x + 5)^2^ = 4x^2^ - 20x + 25", kCol);
  Say("We take the root that begins without a minus sign:  2x - 5.");
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What is the square root of {}?)", TrinomialText({9, 6, 1})));
  PageEnd();
  AddLine("First:   9x^2^ is 3x times 3x.", {.col = 3});
  AddLine("Last:    1 is 1 times 1.", {.col = 3});
  AddLine("Middle:  " + WithoutBreaks(TwiceTheProduct({3, 1})) + ".  It fits.", {.col = 3});
  Say(Text(R"(Its sign is plus:  \y{}\z)", BinomialText({3, 1})));
  PageEnd();
  Say(R"(\yTry it:\z  Find the middle term that makes x^2^ + ... + 36 a square.)");
  PageEnd();
  Say(Text("It is 12x, since {}.  With -12x it is a square, too:", TwiceTheProduct({1, 6})));
  Show(Identity({1, 6}), kCol);
  Show(Identity({1, -6}), kCol);
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PerfectSquareTrinomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SquaresAndRoots, AreaOfTheSquare, WithMinus, TestOfTheMiddleTerm, NumberInFront,
             TwoRoots}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  Trinomial Asked() const { return SquareOf(root_); }
  void BeginPage() const;
  void TestMiddleTerm() const;
  void Check() const;

  Binomial root_;  // the one that begins without a minus sign
};

// --- Generator ---------------------------------------------------------------

constexpr int kLargest = 10;  // size of the numbers drawn
constexpr const char* kOtherSign = "overlooks the sign of the middle term";

Binomial WithOtherSign(const Binomial& binomial) {
  return {binomial.lead, -binomial.constant};
}

// A number is added to the last term, in the direction of its sign.
Binomial Enlarged(const Binomial& binomial, RandomStream& random) {
  return {binomial.lead, binomial.constant + Sgn(binomial.constant) * random.Rand(1, kLargest)};
}

// What other terms a student takes; the sign is right.
struct WrongTerms {
  std::string mistake;
  Binomial binomial;
};
std::vector<WrongTerms> MistakesWith(const Binomial& root) {
  const int p = root.lead;
  const int q = root.constant;
  return {{"exchanges the two numbers", {std::abs(q), Sgn(q) * p}},
          {"takes half of the middle number for the last term", {p, p * q}},
          {"forgets to take the square roots", {p * p, q * std::abs(q)}}};
}

void PerfectSquareTrinomials::DrawProblem(RandomStream& random) {
  root_.lead = random.Rand(1, kLargest);
  root_.constant = random.Rand(1, kLargest);
  if (random.Rnd() - 0.5 < 0) root_.constant = -root_.constant;
  const int pair = random.Rand(1, 7);  // 1 is a pair of numbers at random

  problem.question = {"Find the square root of this polynomial:", TrinomialText(Asked())};
  Choices choices(problem, choice_kind::FourShuffledAndNone, BinomialText, 5);
  choices.Right(root_);
  choices.Wrong(kOtherSign, WithOtherSign(root_));
  if (pair > 1) {
    const auto [mistake, binomial] = MistakesWith(root_)[static_cast<std::size_t>(pair / 2 - 1)];
    choices.Wrong(mistake, binomial);
    choices.Wrong(mistake + " and overlooks the sign", WithOtherSign(binomial));
  }
  choices.Fill([&] { return Enlarged(root_, random); });
  HideRightAtTimes(problem, random);
}

// --- Problem page ------------------------------------------------------------

void PerfectSquareTrinomials::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], kCol);
  ShowAnswersInThreeColumns(problem, {.fontSize = 18});
}

// --- Worked explanation ------------------------------------------------------

void PerfectSquareTrinomials::ExplainProblem() {
  BeginPage();
  Say("We look for a binomial whose square is this trinomial.");
  PageEnd();
  const Trinomial asked = Asked();
  const int size = std::abs(root_.constant);
  Say(R"(\yFirst term.\z  )" +
      Text("{}x^2^ is {} times {}.", CoefText(asked.square), FirstTerm(root_), FirstTerm(root_)));
  PageEnd();
  Say(R"(\yLast term.\z  )" + Text("{} is {} times {}.", asked.constant, size, size));
  PageEnd();
  TestMiddleTerm();
  NewScreen();
  BeginPage();
  Check();
  Conclude(problem);
}

void PerfectSquareTrinomials::BeginPage() const {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6.5, problem.question[1], kCol);
}

void PerfectSquareTrinomials::TestMiddleTerm() const {
  Say(R"(\yMiddle term.\z  We take twice the product of both:)");
  Show(TwiceTheProduct(root_), kCol);
  PageEnd();
  const int middle = Asked().middle;
  const std::string sign = middle > 0 ? "plus" : "minus";
  Say(Text(
      "The trinomial has {}x.  It fits, and its sign is {}.  So the binomial has a {} sign, too:",
      middle, sign, sign));
  Show(R"(\y)" + BinomialText(root_), kCol);
  PageEnd();
}

void PerfectSquareTrinomials::Check() const {
  const int outer = root_.lead * root_.constant;
  Say(R"(\yCheck:\z  We multiply out.)");
  AddLine(FactorsText({root_, root_}), {.col = kCol + 2});
  const Trinomial asked = Asked();
  AddLine("= " + CoefText(asked.square) + "x^2^" + SignedCoefText(outer) + "x" +
              SignedCoefText(outer) + "x" + tutor::Gap + SignedNumberText(asked.constant),
          {.col = kCol});
  AddLine("= " + TrinomialText(asked), {.col = kCol});
  PageEnd();
}

const LessonRegistration<PerfectSquareTrinomials> kRegistration("Perfect Square Trinomials");

}  // namespace
}  // namespace course
