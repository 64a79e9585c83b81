// What the lessons on systems write while they solve one: an equation solved for y, a pair of
// numbers tried in an equation, and the end of an explanation.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/systems/linear_system.h"

namespace course::systems {

// What is done to both sides, and the equation that it gives.
struct EquationStep {
  std::string action;  // "Divide both sides by -2:"
  std::string equation;
};
// From ax + by = c to y = mx + b: one step, or two when b is not 1.
std::vector<EquationStep> StepsToSlopeIntercept(const LinearEquation& equation);

// The left side worked out: "2(1) - 3(-2) = 2 + 6 = 8".
std::string SubstitutedText(const LinearEquation& equation, int x, int y);
// In the white box: what the pair means, and an equation with its numbers, true or false.
void SayPairInBox(int x, int y);
void TryPairInBox(const LinearEquation& equation, int x, int y);

// The last words of an explanation, also for a system without just one solution.
void ConcludeSystem(const Problem& problem, const LinearSystem& system, double row);

}  // namespace course::systems
