// How a system is solved by elimination: which letter drops out when the equations are added, and
// by what they are multiplied before.
#pragma once

#include <string>

#include "lessons/families/systems/linear_system.h"

namespace course::systems {

struct EliminationPlan {
  char letter = 'y';    // that drops out
  int firstFactor = 1;  // of Equation 1; 1 leaves it as it is
  int secondFactor = 1;

  int Factor(int line) const { return line == 1 ? firstFactor : secondFactor; }
};

// With as few multiplications as possible, and with small numbers; y where both letters are as
// easy.
EliminationPlan PlanFor(const LinearSystem& system);
// Both sides of the equation multiplied.
LinearEquation Multiplied(const LinearEquation& equation, int factor);
// The coefficient of 'x' or 'y'.
int CoefficientOf(const LinearEquation& equation, char letter);
// "3x", "-y".
std::string LetterTermText(int coefficient, char letter);
// By how much the first of two equations is moved to the right, so that the signs of equality stand
// under each other.
double ColumnsToAlign(const std::string& equation, const std::string& other);
// Why the plan works, in a sentence or two.
std::string ReasonOfPlan(const LinearSystem& system, const EliminationPlan& plan);

}  // namespace course::systems
