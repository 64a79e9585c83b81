// A system of two linear equations in x and y: how it is drawn, printed and offered with answers.
// The three lessons on systems share it; each adds rules of its own for what it throws away.
#pragma once

#include <string>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course::systems {

// a x + b y = c, in which b is not 0 and divides a and c: slope and intercept are whole numbers.
struct LinearEquation {
  int a = 0;
  int b = 1;
  int c = 0;

  int Slope() const { return -a / b; }
  int Intercept() const { return c / b; }
};

enum class SystemClass { NoSolution = 0, OneSolution = 1, SameLine = 2 };

struct LinearSystem {
  LinearEquation first;
  LinearEquation second;
  int x = 0;  // a point of both lines
  int y = 0;

  const LinearEquation& Line(int number) const { return number == 1 ? first : second; }
  SystemClass Class() const;
};

// Draws systems until one has different slopes from -3 to 3, y intercepts from -5 to 5 and passes
// the lesson's own rules.  rejects tells what these throw away.
LinearSystem DrawSystem(RandomStream& random, bool (*rejects)(const LinearSystem&));

// "2x - 3y = 6", with gaps around the sign.
std::string EquationText(const LinearEquation& equation);
// "y = -2x + 3"; no constant when the intercept is 0.
std::string SlopeInterceptText(const LinearEquation& equation);
// "(2,-1)".
std::string PairText(int x, int y);
// What is said of a system whose lines are parallel or the same.
std::string SolutionSentence(SystemClass systemClass);

// The question's four lines and the choices: ordered pairs, and "None of the above", which is right
// when the system has not just one solution.
void AskForSolution(Problem& problem, const LinearSystem& system, RandomStream& random);

}  // namespace course::systems
