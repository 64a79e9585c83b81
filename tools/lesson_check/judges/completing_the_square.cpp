// A quadratic equation with real roots, solved by completing the square.
#include "lesson_check/judge.h"
#include "lesson_check/judges/quadratic_roots.h"

namespace lesson_check {
namespace {

// x^2 + m x = n, whose roots are -m/2 plus or minus the root of m^2/4 + n.
std::string RootsOfCompleted(const Rational& half, const Rational& right) {
  return RootsText(-half, right, 1);
}

void AddMistakes(const Quadratic& q, Reading& reading) {
  const Rational m = q.b / q.a;
  const Rational n = -q.c / q.a;
  const Rational half = m / 2;
  const Rational square = half * half;
  reading.mistakes = {
      {"keeps the sign of the number in the parentheses", {RootsOfCompleted(-half, n + square)}},
      {"keeps the sign of the number that moves to the right side",
       {RootsOfCompleted(half, square - n)}},
      {"keeps the sign of every number that moves to the right side",
       {RootsOfCompleted(-half, square - n)}},
      {"forgets to halve the number in front of x", {RootsOfCompleted(m, n + m * m)}},
      {"adds the square to the left side only", {RootsOfCompleted(half, n)}},
      {"leaves the number in front of x^2^ out", {RootsOfCompleted(q.b / 2, q.b * q.b / 4 - q.c)}},
      {"leaves the number in front of x^2^ out and keeps the sign of the number in the parentheses",
       {RootsOfCompleted(-q.b / 2, q.b * q.b / 4 - q.c)}},
      {"forgets to halve the number in front of x and keeps its sign",
       {RootsOfCompleted(-m, n + m * m)}},
  };
  const Polynomial root = Polynomial::Root(Polynomial(n + square));
  if (root.IsNumber())
    reading.mistakes["finds only the positive square root"] = {
        TextOfRoots({Polynomial(root.Number() - half)})};
}

Reading ReadSquareToComplete(const course::Problem& problem) {
  const Quadratic equation = ReadQuadratic(problem);
  Reading reading;
  reading.Within("the first coefficient", equation.a, -9, 9);
  reading.Within("the middle coefficient", equation.b, -9, 9);
  reading.Within("the last number", equation.c, -9, 9);
  reading.answer = RootsText(-equation.b, equation.Discriminant(), 2 * equation.a);
  reading.value = ValueOfRoots;
  reading.flaw = FlawOfRoots;
  AddMistakes(equation, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadSquareToComplete, {"Completing the Square"});

}  // namespace
}  // namespace lesson_check
