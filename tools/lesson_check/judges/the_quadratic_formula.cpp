// A quadratic equation solved by the formula: its two roots, its one, or none.
#include "lesson_check/exact/notation.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/quadratic_roots.h"

namespace lesson_check {
namespace {

void AddMistakes(const Quadratic& q, Reading& reading) {
  const Rational discriminant = q.Discriminant();
  const bool real = discriminant >= 0;
  // Who loses the minus sign goes on with the others' mistakes, too.
  const std::string lost = real ? "" : "loses the minus sign under the radical";
  const Rational under = abs(discriminant);
  const auto name = [&](const std::string& mistake) {
    return lost.empty() ? mistake : lost + " and " + mistake;
  };
  // The sign of 4ac is wrong, or b^2^ of a negative b is taken to be negative.
  const bool signMistake =
      q.b * q.b + 4 * q.a * q.c < 0 || (q.b < 0 && -q.b * q.b - 4 * q.a * q.c < 0);
  if (real && signMistake)
    reading.mistakes["gets a negative discriminant by a sign mistake"] = {kNoRealRoots};
  if (!real) reading.mistakes[lost] = {RootsText(-q.b, under, 2 * q.a)};
  reading.mistakes[name("puts b where -b belongs")] = {RootsText(q.b, under, 2 * q.a)};
  reading.mistakes[name("forgets to divide by 2a")] = {RootsText(-q.b, under, 1)};
  reading.mistakes[name("divides only the radical by 2a")] = {
      RootsText(-2 * q.a * q.b, under, 2 * q.a)};
  reading.mistakes[name("divides by a")] = {RootsText(-q.b, under, q.a)};
  if (!real) reading.mistakes[name("divides by 2")] = {RootsText(-q.b, under, 2)};
  reading.mistakes["leaves out the 4 of 4ac"] = {RootsText(-q.b, q.b * q.b - q.a * q.c, 2 * q.a)};
  reading.mistakes["adds 4ac"] = {RootsText(-q.b, q.b * q.b + 4 * q.a * q.c, 2 * q.a)};
}

// The real roots of a quadratic equation.
Reading ReadQuadraticEquation(const course::Problem& problem) {
  const Quadratic equation = ReadQuadratic(problem);
  Reading reading;
  reading.answer = RootsText(-equation.b, equation.Discriminant(), 2 * equation.a);
  reading.value = ValueOfRoots;
  reading.flaw = FlawOfRoots;
  AddMistakes(equation, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadQuadraticEquation, {"The Quadratic Formula"});

}  // namespace
}  // namespace lesson_check
