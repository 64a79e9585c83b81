// The student can solve a quadratic equation by completing the square: divides by the number in
// front of x^2, moves the other number, and adds the square of half the number in front of x, which
// is the missing corner of a square.
#include "lessons/families/polynomials/square_figures.h"
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/families/quadratics/square_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;
using namespace quadratics;

using Roots = std::optional<RootPair>;

// --- Screen 1: the missing corner ----------------------------------------------------------------

void MissingCorner() {
  constexpr double kRow = 6.5;
  const TextPlace beside = {.col = 19};
  NewScreen();
  SayAt(3, "A square and a strip:  x^2^ + 6x");
  const SquareToComplete figure(kRow, 4, "6", "6x");
  SayAt(kRow - 1, R"(\yTry it:\z  Half of the strip goes below.  How wide is it?)", beside);
  PageEnd();
  figure.CutStrip("3", "3x");
  SayAt(kRow + 2, "Half of 6 is 3.", beside);
  SayAt(kRow + 3.5, R"(\yTry it:\z  How large is the missing corner?)", beside);
  PageEnd();
  figure.FillCorner("9");
  SayAt(14, "It is 3 by 3, so its area is 9.");
  PageEnd();
  SayAt(15.5, "The whole square has the side x + 3:");
  ShowAt(17, "x^2^ + 6x + 9 = (x + 3)^2^");
  SayAt(18.5, R"(To add 9 is called \ccompleting the square\z.)");
  PageEnd();
}

void RuleOfHalf() {
  NewScreen();
  SayAt(3, "For any number b in front of x:");
  RuleBox("Completing the Square", {"x^2^ + bx + (b/2)^2^ = (x + b/2)^2^"}, {.width = 36});
  Say(R"(\yTry it:\z  What completes x^2^ - 10x?)");
  PageEnd();
  Say("Half of -10 is -5, and (-5)^2^ is 25:");
  Show("x^2^ - 10x + 25 = (x - 5)^2^");
  Say(R"(\yWatch out:\z  Halve first.  10^2^ = 100 is too much.)");
  PageEnd();
}

void SolveWholeNumbers() {
  NewScreen();
  SayAt(3, "Now we solve an equation:");
  ShowAt(5, "x^2^ + 6x - 7 = 0");
  Say("We add 7 to both sides:");
  Show("x^2^ + 6x = 7");
  PageEnd();
  Say("9 completes the square.  Both sides get it:");
  Show(R"(x^2^ + 6x \y+ 9\z = 7 \y+ 9\z)");
  Show("(x + 3)^2^ = 16");
  PageEnd();
  Say(R"(\yWatch out:\z  Both sides get the 9.  If not, they are not equal any more.)");
  Say(R"(\yTry it:\z  Which numbers have the square 16?)");
  PageEnd();

  NewScreen();
  ShowAt(3, "(x + 3)^2^ = 16");
  Say(Text("4 and -4.  So we write both signs, {}:", tutor::PlusOrMinus));
  Show("x + 3 = " + tutor::PlusOrMinus + "4");
  PageEnd();
  Say("We subtract 3:");
  Show("x = -3 " + tutor::PlusOrMinus + " 4");
  Say(R"(\yTry it:\z  Which two numbers is x?)");
  PageEnd();
  Say(R"(-3 + 4 is \y1\z, and -3 - 4 is \y-7\z.)");
  Say(R"(\yCheck:\z)");
  ShowAt(NextRow() - 1, "1 + 6 - 7 = 0", 9);
  ShowAt(NextRow(), "49 - 42 - 7 = 0", 9);
  PageEnd();
  Say(R"(\yWatch out:\z  The 3 changes its sign when it goes to the right side.)");
  Say(R"(\yTry it:\z  What completes x^2^ + 5x?)");
  PageEnd();
  Say(R"(Half of 5 is 5/2, so we add \y25/4\z.)");
  PageEnd();
}

// --- Screen 2: a number in front of x^2 ----------------------------------------------------------

void NumberInFront() {
  NewScreen();
  SayAt(3, Text("In {} a number stands in front of x^2^.  A square figure has one x^2^, so first "
                "we divide.",
                EquationText({2, -8, -10})));
  Say(R"(\yTry it:\z  Divide both sides by 2.)");
  PageEnd();
  Show("x^2^ - 4x - 5 = 0");
  Say(R"(\yWatch out:\z  All the terms are divided, the last one as well.)");
  PageEnd();
  Say("We add 5, then 4, the square of half of -4:");
  Show("x^2^ - 4x + 4 = 5 + 4");
  Show("(x - 2)^2^ = 9");
  PageEnd();
  Say(Text("So x - 2 is {}, and x is -1 or 5.", tutor::PlusOrMinus + "3"));
  Say(Text(R"(\yTry it:\z  Divide {} by -3.)", EquationText({-3, 6, 9})));
  PageEnd();
  Say(Text("{}.  Each sign changes.", EquationText({1, -2, -3})));
  PageEnd();
}

void RadicalRoots() {
  SolveByCompleting({2, -6, -3});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  In 3x^2^ + 12x = 5, by what do we divide?  What do we add then?)");
  PageEnd();
  Say("We divide by 3:");
  Show("x^2^ + 4x = 5/3");
  PageEnd();
  Say("Half of 4 is 2, so we add 4 to both sides:");
  Show(R"(x^2^ + 4x \y+ 4\z = 5/3 \y+ 4)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class CompletingTheSquare final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{MissingCorner, RuleOfHalf, SolveWholeNumbers}, {NumberInFront, RadicalRoots}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawChoices(RandomStream& random);

  Quadratic equation_;
};

// --- Generator ---------------------------------------------------------------

// About 55 % of the draws are accepted.
void CompletingTheSquare::DrawProblem(RandomStream& random) {
  do {
    const int size = random.Rand(1, 9);
    equation_.a = size * random.Sign();
    const int linear = random.Rand(1, 9);
    equation_.b = linear * random.Sign();
    equation_.c = random.Rand(-9, 9);
  } while (std::abs(equation_.a) == 1          // nothing to divide by
           || equation_.c == 0                 // x is a factor
           || equation_.Discriminant() <= 0);  // no two real roots
  problem.question = {"Solve the quadratic equation below by completing the square.",
                      EquationText(equation_)};
  DrawChoices(random);
}

// The mistakes in a random order: the two with a sign in every problem would make the right roots
// the box most like the others.
void CompletingTheSquare::DrawChoices(RandomStream& random) {
  const auto [a, b, c] = equation_;
  const int discriminant = equation_.Discriminant();
  const Roots right = RootsOf(-b, discriminant, 2 * a);
  std::vector<std::pair<const char*, Roots>> mistakes = {
      {"keeps the sign of the number in the parentheses", RootsOf(b, discriminant, 2 * a)},
      {"keeps the sign of the number that moves to the right side",
       RootsOf(-b, b * b + 4 * a * c, 2 * a)},
      {"leaves the number in front of x^2^ out", RootsOf(-b, b * b - 4 * c, 2)},
      {"forgets to halve the number in front of x", RootsOf(-b, b * b - a * c, a)},
      {"adds the square to the left side only", RootsOf(-b, -4 * a * c, 2 * a)},
      {"leaves the number in front of x^2^ out and keeps the sign of the number in the parentheses",
       RootsOf(b, b * b - 4 * c, 2)},
      {"forgets to halve the number in front of x and keeps its sign",
       RootsOf(b, b * b - a * c, a)},
      {"keeps the sign of every number that moves to the right side",
       RootsOf(b, b * b + 4 * a * c, 2 * a)},
  };
  if (right->Rational()) {
    const Fraction larger = right->Larger();
    mistakes.push_back({"finds only the positive square root", RootsOf(larger.num, 0, larger.den)});
  }
  Choices choices(problem, choice_kind::FourShuffledAndNone, RootsText, 5);
  choices.Right(right);
  const int count = static_cast<int>(mistakes.size());
  for (const int place : random.RandSeq(count, count)) {
    const auto& [mistake, roots] = mistakes[static_cast<std::size_t>(place - 1)];
    choices.Wrong(mistake, roots);
  }
  HideRightAtTimes(problem, random);
}

// --- Problem page ------------------------------------------------------------

void CompletingTheSquare::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 7);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void CompletingTheSquare::ExplainProblem() {
  SolveByCompleting(equation_);
  PageEnd();
  const Roots roots = RootsOf(-equation_.b, equation_.Discriminant(), 2 * equation_.a);
  if (roots->Rational()) {
    CheckRoot(equation_);
    if (EndsAtNone(problem)) PageEnd();
    return Conclude(problem);
  }
  NewScreen();
  ProblemBanner();
  ShowAt(5, EquationText(equation_));
  GoBelow();
  ShowRoots("The answer is ", *roots, ".");
  if (EndsAtNone(problem))
    Say(R"(It is not among the choices, so the right one is \yNone of the above\z.)");
}

const LessonRegistration<CompletingTheSquare> kRegistration("Completing the Square");

}  // namespace
}  // namespace course
