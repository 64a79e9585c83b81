#include "lessons/families/systems/linear_system.h"

#include <cstdlib>

#include "engine/choices.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {
namespace {

constexpr int kLargest = 4;           // of x, y and the coefficients of y
constexpr int kSteepest = 3;          // of the slopes
constexpr int kHighestIntercept = 5;  // what the figure of a plane shows

struct Pair {
  int x = 0;
  int y = 0;
};

// One try.  The coefficients of x are multiples of those of y.
LinearSystem DrawNumbers(RandomStream& random) {
  LinearSystem system;
  system.x = random.Rand(-kLargest, kLargest);
  system.y = random.Rand(-kLargest, kLargest);
  system.first.b = random.Rand(-kLargest, kLargest);
  system.second.b = random.Rand(-kLargest, kLargest);
  system.first.a = system.first.b * random.Rand(-kSteepest, kSteepest);
  system.second.a = system.second.b * random.Rand(-kSteepest, kSteepest);
  for (LinearEquation* equation : {&system.first, &system.second})
    equation->c = equation->a * system.x + equation->b * system.y;
  return system;
}

bool HasZeroCoefficient(const LinearSystem& system) {
  return system.first.a == 0 || system.first.b == 0 || system.second.a == 0 || system.second.b == 0;
}

bool SameSlope(const LinearSystem& system) {
  return system.first.a * system.second.b == system.second.a * system.first.b;
}

bool SameIntercept(const LinearSystem& system) {
  return system.first.c * system.second.b == system.second.c * system.first.b;
}

bool LeavesFigure(const LinearEquation& equation) {
  return std::abs(equation.Intercept()) > kHighestIntercept;
}

bool IsSolutionInEitherOrder(Pair pair, const LinearSystem& system) {
  return (pair.x == system.x && pair.y == system.y) || (pair.x == system.y && pair.y == system.x);
}

Pair DrawWrongPair(RandomStream& random, const LinearSystem& system) {
  Pair pair;
  do {
    pair.x = random.Rand(0, 9);
    pair.y = random.Rand(0, 6);
    pair.x *= random.Sign();
    pair.y *= random.Sign();
  } while (IsSolutionInEitherOrder(pair, system));  // it must not be right, nor repeat slot 2
  return pair;
}

}  // namespace

SystemClass LinearSystem::Class() const {
  const bool vertical = first.b * second.b == 0;
  if (vertical && first.a == second.a && first.c == second.c) return SystemClass::SameLine;
  if (!SameSlope(*this)) return SystemClass::OneSolution;
  return SameIntercept(*this) ? SystemClass::SameLine : SystemClass::NoSolution;
}

LinearSystem DrawSystem(RandomStream& random, bool (*rejects)(const LinearSystem&)) {
  while (true) {
    const LinearSystem system = DrawNumbers(random);
    if (HasZeroCoefficient(system)) continue;  // a line along an axis, or no equation at all
    if (SameSlope(system)) continue;           // the lines would have no point of their own
    if (LeavesFigure(system.first) || LeavesFigure(system.second)) continue;
    if (!rejects(system)) return system;
  }
}

std::string EquationText(const LinearEquation& equation) {
  return CoefText(equation.a) + "x" + SignedCoefText(equation.b) + "y = " + NumStr(equation.c);
}

std::string SlopeInterceptText(const LinearEquation& equation) {
  const int intercept = equation.Intercept();
  return "y = " + CoefText(equation.Slope()) + "x" +
         (intercept == 0 ? "" : tutor::Gap + SignedNumberText(intercept));
}

std::string PairText(int x, int y) {
  return "(" + NumStr(x) + "," + NumStr(y) + ")";
}

std::string SolutionSentence(SystemClass systemClass) {
  return systemClass == SystemClass::SameLine ? "There are infinite solutions."
                                              : "There are zero solutions.";
}

void AskForSolution(Problem& problem, const LinearSystem& system, RandomStream& random) {
  problem.question = {"Find the solution of the following",
                      "system of linear equations:", EquationText(system.first),
                      EquationText(system.second)};
  problem.kind = choice_kind::FourShuffledAndNone;

  const Pair wrong = DrawWrongPair(random, system);
  problem.Right(1, PairText(system.x, system.y));
  problem.Wrong(2, "exchanges the coordinates", PairText(system.y, system.x));
  problem.Wrong(3, "filler", PairText(wrong.x, wrong.y));
  problem.Wrong(4, "filler", PairText(wrong.y, wrong.x));
  // A pair of equal numbers is its own reverse.
  ReplaceRepeatedTexts(problem, [&](int slot) {
    const Pair other = DrawWrongPair(random, system);
    problem.Wrong(slot, "filler", PairText(other.x, other.y));
  });

  if (system.Class() == SystemClass::OneSolution) return;
  problem.Wrong(1, "takes one point for the whole answer", problem.choices[1].text);
  problem.Right(5, SolutionSentence(system.Class()));
}

}  // namespace course::systems
