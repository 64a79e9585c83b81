// One operation on both sides of an equation: how it is said, what it gives, and the choices of a
// problem about it.
#pragma once

#include <string>

#include "engine/problem.h"
#include "lessons/families/equations/equation_machine.h"
#include "mathkit/random_stream.h"

namespace course::principles {

using equations::LinearSide;
using equations::LinearStatement;

enum class Operation { Add, Subtract, Multiply, Divide };

struct Step {
  Operation operation = Operation::Add;
  int number = 1;
};
// Adding -3 is the same as subtracting 3, dividing by -1 as multiplying by -1.
bool operator==(const Step& a, const Step& b);

// "Addition Principle of Equality".
std::string PrincipleOf(Operation operation);
// "adding 3", "multiplying by 3".
std::string ShortText(const Step& step);
// "Adding 3 to both sides of the given", "Multiplying both sides of the given by 3".
std::string StatementText(const Step& step);
// "add 3 to both sides", "multiply both sides by 3".
std::string RequestText(const Step& step);

// A side after the step; a division has to come out even in both terms.
LinearSide Done(const Step& step, const LinearSide& side);

// An equation with the letter x on one side, the step, and the equation that it leads to.
struct StepProblem {
  LinearSide given;     // of the side with x
  int givenNumber = 0;  // the other side
  Step step;
  int solution = 0;          // of both equations
  bool asksForStep = false;  // and not for the second equation
  bool xOnTheRight = false;

  LinearSide After() const { return Done(step, given); }
  int AfterNumber() const { return Done(step, {0, givenNumber}).number; }
};

// The two sides as an equation, x where the problem has it.
std::string EquationText(const StepProblem& problem, const LinearSide& side, int number);
std::string GivenText(const StepProblem& problem);
std::string AfterText(const StepProblem& problem);

StepProblem DrawStepProblem(RandomStream& random);
// Question and five choices.  Its draws follow those of DrawStepProblem.
void SetStepProblem(Problem& problem, const StepProblem& drawn, RandomStream& random);

}  // namespace course::principles
