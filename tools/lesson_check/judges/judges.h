// The judges, one a family of questions, each in a file of its own.
#pragma once

#include "lesson_check/judge.h"

namespace lesson_check {

// "What is the value of 3(4 + 5)?": the expression in the question, worked out.
Reading ReadArithmetic(const course::Problem& problem);
// Which inequality describes the rays and segments of the figure.
Reading ReadIntervalFigure(const course::Problem& problem);
// The number, or the numbers, for which a linear statement in one letter holds.
Reading ReadLinearEquation(const course::Problem& problem);
Reading ReadLinearInequality(const course::Problem& problem);
// An expression of several operations, brackets included.
Reading ReadOrderOfOperations(const course::Problem& problem);
// How far, how fast or how long something moves.
Reading ReadMotionProblem(const course::Problem& problem);
// Powers of letters to be multiplied.
Reading ReadProductOfPowers(const course::Problem& problem);
// A trinomial that begins with the bare square, to be factored.
Reading ReadMonicTrinomial(const course::Problem& problem);
// Two fractions to be added; subtracting is adding a negative one.
Reading ReadSumOfFractions(const course::Problem& problem);
// Two lines in x and y, and the point on both.
Reading ReadLinearSystem(const course::Problem& problem);
// The real roots of a quadratic equation.
Reading ReadQuadraticEquation(const course::Problem& problem);

}  // namespace lesson_check
