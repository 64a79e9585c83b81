// A quadratic equation that factors: its solutions, from the discriminant.
#include <cstdlib>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/quadratic_roots.h"

namespace lesson_check {
namespace {

std::string PairText(const Rational& first, const Rational& second) {
  return TextOfRoots({Polynomial(first), Polynomial(second)});
}

Rational SquareRoot(const Rational& square) {
  const Polynomial root = Polynomial::Root(Polynomial(square));
  if (!root.IsNumber()) throw Unreadable("the equation does not factor");
  return root.Number();
}

// The solutions of every pair of factors with whole numbers whose first and last terms are those of
// the equation divided by its common factor, and whose middle term is another one.
std::vector<std::string> WrongFactorings(const Rational& first, const Rational& second) {
  const mpz_class a = first.get_den() * second.get_den();
  const mpz_class c = first.get_num() * second.get_num();
  const mpz_class b = -(first.get_num() * second.get_den() + second.get_num() * first.get_den());
  std::vector<std::string> texts;
  for (mpz_class p = 1; p <= a; ++p) {
    if (a % p != 0) continue;
    const mpz_class r = a / p;
    for (mpz_class q = -abs(c); q <= abs(c); ++q) {
      if (q == 0 || c % q != 0) continue;
      const mpz_class s = c / q;
      if (p * s + q * r == b) continue;
      Rational one(-q, p);
      Rational other(-s, r);
      one.canonicalize();
      other.canonicalize();
      texts.push_back(PairText(one, other));
    }
  }
  return texts;
}

void AddMistakes(const Rational& first, const Rational& second, Reading& reading) {
  const Rational firstNumber = first.get_num();
  const Rational secondNumber = second.get_num();
  reading.mistakes = {
      {"keeps the signs of the numbers in the factors", {PairText(-first, -second)}},
      {"changes the sign of only one number", {PairText(-first, second), PairText(first, -second)}},
      {"finds only one of the two solutions", {PairText(first, first), PairText(second, second)}},
      {"forgets to divide by the number in front of x", {PairText(firstNumber, secondNumber)}},
      {"takes the numbers in the factors for the solutions",
       {PairText(-firstNumber, -secondNumber)}},
      {"divides the wrong way round", {PairText(1 / first, 1 / second)}},
      {"checks only the first and last terms of the factors", WrongFactorings(first, second)},
  };
  if (first == -second)
    reading.mistakes["forgets to take the square root"] = {PairText(first * first, -first * first)};
}

Reading ReadFactorableEquation(const course::Problem& problem) {
  const Quadratic equation = ReadQuadratic(problem);
  const Rational spread = SquareRoot(equation.Discriminant());
  const Rational first = (-equation.b + spread) / (2 * equation.a);
  const Rational second = (-equation.b - spread) / (2 * equation.a);
  Reading reading;
  reading.Within("the first coefficient", equation.a, -100, 100);
  reading.Within("the middle coefficient", equation.b, -200, 200);
  reading.Within("the last number", equation.c, -100, 100);
  reading.answer = PairText(first, second);
  reading.value = ValueOfRoots;
  reading.flaw = FlawOfRoots;
  AddMistakes(first, second, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadFactorableEquation, {"Solving Quadratic Equations"});

}  // namespace
}  // namespace lesson_check
