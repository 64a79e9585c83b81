// The student can ...
//
// What the student can do afterwards, in two or three lines.
#include "lessons/families/quadratics/formula_steps.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace quadratics;

using Roots = std::optional<RootPair>;

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

// --- The lesson --------------------------------------------------------------

class CompletingTheSquare final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}, {Screen2}}; }
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
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<CompletingTheSquare> kRegistration("Completing the Square");

}  // namespace
}  // namespace course
