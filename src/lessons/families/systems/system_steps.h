// What the lessons on systems write while they solve one: an equation solved for y, a pair of
// numbers tried in an equation, and the end of an explanation.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/systems/linear_system.h"

namespace course::systems {

// What is done to an equation, and what it gives.
struct EquationStep {
  std::string action;  // "Dividing both sides by -2:"
  std::string equation;
};
// "Subtracting 4x from both sides:" for the term 4x, "Adding 4x to both sides:" for -4x.
std::string ActionToRemove(int coefficient, const std::string& letter);
// "Dividing both sides by 3:", for -1 "Multiplying both sides by -1:".
std::string ActionToIsolate(int coefficient);
// From ax + by = c to y = mx + b: one step, or two when b is not 1.
std::vector<EquationStep> StepsToSlopeIntercept(const LinearEquation& equation);

// In the white box, the signs of equality in one common column.
void SayStepInBox(const EquationStep& step);
std::string AlignedEquation(const std::string& equation);

// A coefficient with a number in place of its letter at the head of an expression: 2(3), -(-3), 3.
std::string TermText(int coefficient, int value);
// The same behind another term: " - 2(3)".
std::string LaterTermText(int coefficient, int value);
// The left side worked out: "2(1) - 3(-2) = 2 + 6 = 8".
std::string SubstitutedText(const LinearEquation& equation, int x, int y);
// In the white box: what the pair means, and an equation with its numbers, true or false.
void SayPairInBox(int x, int y);
void TryPairInBox(const LinearEquation& equation, int x, int y);

// The last words of an explanation, also for a system without just one solution.
void ConcludeSystem(const Problem& problem, const LinearSystem& system, double row);

}  // namespace course::systems
