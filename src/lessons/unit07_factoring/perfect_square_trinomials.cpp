// The student can tell whether a trinomial such as 4x^2 - 20x + 25 is the square of a binomial, by
// the test of its middle term, and finds that binomial.
//
// A problem is a binomial squared, and each wrong choice is one slip on the way to it.
#include <algorithm>
#include <array>

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
  SayAt(3, "The area of this square is x^2^:");
  const SquareOfSum figure(kRow, kFigureCol, "x", "3");
  PageEnd();
  figure.Grow();
  SayAt(5, R"(Now the side is x + 3.  \yTry it:\z  What is the area of each of the four parts?)",
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
  SayAt(3, "Now a minus sign stands between them:");
  Show("(x - 3)^2^ = (x - 3)(x - 3)", kCol);
  Say(R"(\yTry it:\z  What are the first, outer, inner, and last products?)");
  PageEnd();
  Say("They are x^2^, -3x, -3x, and 9:");
  Show("(x - 3)^2^ = x^2^ - 3x - 3x + 9", kCol);
  Say(R"(\yTry it:\z  Why is the last term +9?)");
  PageEnd();
  Say("-3 times -3 is +9:  two minus signs make a plus.");
  Show(R"((x - 3)^2^ = \yx^2^ - 6x + 9)", kCol);
  Say(R"(It is a \ctrinomial\z:  it has three terms.)");
  PageEnd();

  NewScreen();
  SayAt(3, "The squares of a + b and a - b are:");
  RuleBox("Perfect Square Trinomials",
          {"a^2^ + 2ab + b^2^ = (a + b)^2^", "a^2^ - 2ab + b^2^ = (a - b)^2^"}, {.width = 30});
  PageEnd();
  Say(Text(
      "Here a is the first term of the binomial, and b is the second.  In {}, a is 2x and b is 5.",
      "(2x - 5)^2^"));
  PageEnd();
}

void TestOfTheMiddleTerm() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Is every trinomial with x^2^ and 25 at its ends a square?)");
  PageEnd();
  Say(R"(No.  The middle term has to fit, too:)");
  PaperBox({"1.  The first term is a square, a^2^.", "2.  The last term is a square, b^2^.",
            "3.  The middle term is 2ab or -2ab."});
  PageEnd();
  Say(Text("Let's test {}.", TrinomialText({1, 10, 25})));
  Say("First:   x^2^ is x times x.", {.col = 3});
  AddLine("Last:    25 is 5 times 5.", {.col = 3});
  AddLine("Middle:  " + WithoutBreaks(TwiceTheProduct({1, 5})) + ".  It fits.", {.col = 3});
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Is {} a square?)", TrinomialText({1, 10, 16})));
  PageEnd();
  Say(Text("No.  Both ends are squares, of x and 4.  But {}, and the middle term is 10x.",
           TwiceTheProduct({1, 4})));
  Say(Text(R"(\yTry it:\z  Is {} a square?)", TrinomialText({1, 6, -9})));
  PageEnd();
  Say("No.  A number times itself is never negative.  So -9 cannot be the last term of a square.");
  PageEnd();
}

void TwoRoots() {
  NewScreen();
  SayAt(3, "-5 times -5 is 25, too.  So 25 has two square roots, 5 and -5.");
  Say(R"(\yTry it:\z  x + 5 is a square root of x^2^ + 10x + 25.  What is the square of -x - 5?)");
  PageEnd();
  Say("-x times -x is x^2^, 2(-x)(-5) is 10x, and -5 times -5 is 25:");
  Show("(-x - 5)^2^ = x^2^ + 10x + 25", kCol);
  PageEnd();
  CommentBox(
      "A perfect square trinomial has two square roots.  We take the one that begins without "
      "a minus sign:  x + 5.");
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  const Binomial root = {2, -5};
  SayAt(3, Text("Now we take {}.", TrinomialText(SquareOf(root))));
  Say("First:   4x^2^ is 2x times 2x.", {.col = 3});
  AddLine("Last:    25 is 5 times 5.", {.col = 3});
  Say(R"(\yTry it:\z  Which middle term must it have?)");
  PageEnd();
  Say("Middle:  " + WithoutBreaks(TwiceTheProduct(root)) + ".  It fits.", {.col = 3});
  Say(R"(The trinomial has \y-\z20x, so the binomial has a minus sign, too:)");
  Show(R"(\y)" + Identity(root), kCol);
  PageEnd();
  Say(R"(\yWatch out:\z  These do not fit.)");
  PaperBox({R"(\r(2x + 5)^2^\z has the middle term +20x)", R"(\r(5x - 2)^2^\z begins with 25x^2^)",
            R"(\r(4x - 25)^2^\z begins with 16x^2^)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Tom takes half of 20.  He writes 2x - 10 for the square root of )" +
               Text("{}.  What is wrong?", TrinomialText(SquareOf(root))));
  PageEnd();
  Say("In (2x - 10)^2^ the last term is 100, not 25.");
  Say("Half of 20x is 10x, which is (2x)(5).  We must still divide by 2x.");
  PageEnd();
}

void NoneOfTheAbove() {
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What is the square root of {}?)", TrinomialText({9, 6, 1})));
  PageEnd();
  Say("First:   9x^2^ is 3x times 3x.", {.col = 3});
  AddLine("Last:    1 is 1 times 1.", {.col = 3});
  AddLine("Middle:  " + WithoutBreaks(TwiceTheProduct({3, 1})) + ".  It fits.", {.col = 3});
  AddLine(Text(R"(Sign:    plus.  The root is \y{}\z.)", BinomialText({3, 1})), {.col = 3});
  PageEnd();
  Say(Text(R"(\yTry it:\z  Which is the square root of {}?)", TrinomialText({9, 12, 4})));
  PaperBox({Text("{},   {},   {},   or none of them", BinomialText({3, -2}), BinomialText({2, 3}),
                 BinomialText({9, 4}))});
  PageEnd();
  Say(Text(R"({}, so the root is \y{}\z.  It is not among them.  The right box is then )"
           "None of the above.",
           TwiceTheProduct({3, 2}), BinomialText({3, 2})));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PerfectSquareTrinomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SquaresAndRoots, AreaOfTheSquare, WithMinus, TestOfTheMiddleTerm, TwoRoots,
             NumberInFront, NoneOfTheAbove}};
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

// What goes wrong on the way to the root.
enum class Slip {
  OtherSign,
  LastRoot,
  FirstRoot,
  BothRoots,
  HalfOfLast,
  HalfOfFirst,
  HalfOfMiddle,
  Middle,
  Exchange,
  Added,
};
using enum Slip;

struct WrongRoot {
  std::string mistake;
  Binomial binomial;
};

// The first three stand beside the right root, and the fourth in its place when it hides.  At times
// a wrong root is closer to the others than the right one, so that to be so is no hint.
constexpr std::array<std::array<Slip, 4>, 10> kPatterns = {{
    {LastRoot, BothRoots, FirstRoot, OtherSign},
    {OtherSign, LastRoot, BothRoots, HalfOfMiddle},
    {OtherSign, FirstRoot, BothRoots, Middle},
    {HalfOfLast, LastRoot, BothRoots, FirstRoot},
    {HalfOfFirst, FirstRoot, BothRoots, LastRoot},
    {HalfOfMiddle, LastRoot, BothRoots, OtherSign},
    {LastRoot, BothRoots, HalfOfMiddle, FirstRoot},
    {Exchange, LastRoot, BothRoots, OtherSign},
    {OtherSign, Exchange, Middle, HalfOfMiddle},
    {OtherSign, Exchange, Added, HalfOfMiddle},
}};
// They come in for slips of a pattern that change nothing in this problem.
constexpr std::array kOthers = {LastRoot, Middle, FirstRoot, HalfOfLast, HalfOfFirst, Exchange};

// A number is added to the last term, in the direction of its sign.
Binomial Enlarged(const Binomial& root, RandomStream& random) {
  return {root.lead, root.constant + Sgn(root.constant) * random.Rand(1, kLargest)};
}

// Half of an even square; the root itself where nobody would halve.
int Halved(int root) {
  return root % 2 == 0 ? root * root / 2 : root;
}

// The root itself where the slip changes nothing.
WrongRoot Slipped(Slip slip, const Binomial& root, RandomStream& random) {
  const int p = root.lead;
  const int q = std::abs(root.constant);
  const int sign = Sgn(root.constant);
  switch (slip) {
    case OtherSign:
      return {"overlooks the sign of the middle term", {p, -root.constant}};
    case LastRoot:
      return {"forgets the square root of the last number", {p, sign * q * q}};
    case FirstRoot:
      return {"forgets the square root of the first number", {p * p, root.constant}};
    case BothRoots:
      if (p == 1 || q == 1) return {"", root};
      return {"forgets both square roots", {p * p, sign * q * q}};
    case HalfOfLast:
      return {"takes half of the last number in place of its square root", {p, sign * Halved(q)}};
    case HalfOfFirst:
      return {"takes half of the first number in place of its square root",
              {Halved(p), root.constant}};
    case HalfOfMiddle:
      return {"takes half of the middle number for the last term", {p, sign * p * q}};
    case Middle:
      return {"takes the middle number for the last term", {p, sign * 2 * p * q}};
    case Exchange:
      return {"exchanges the two numbers", {q, sign * p}};
    default:
      return {kFiller, Enlarged(root, random)};
  }
}

void PerfectSquareTrinomials::DrawProblem(RandomStream& random) {
  root_.lead = random.Rand(1, kLargest);
  root_.constant = random.Rand(1, kLargest);
  if (random.Rnd() - 0.5 < 0) root_.constant = -root_.constant;
  const int pattern = random.Index(static_cast<int>(kPatterns.size()));

  problem.question = {"Find the square root of this polynomial:", TrinomialText(Asked())};
  Choices choices(problem, choice_kind::FourShuffledAndNone, BinomialText, 5);
  choices.Right(root_);
  const auto offer = [&](Slip slip) {
    const auto [mistake, binomial] = Slipped(slip, root_, random);
    choices.Wrong(mistake, binomial);
  };
  std::ranges::for_each(kPatterns[static_cast<std::size_t>(pattern - 1)], offer);
  std::ranges::for_each(kOthers, offer);
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
  Say(R"(\yMiddle term.\z  )" +
      Text("We take twice the product of {} and {}:", FirstTerm(root_), std::abs(root_.constant)));
  Show(TwiceTheProduct(root_), kCol);
  PageEnd();
  NewScreen();
  BeginPage();
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
