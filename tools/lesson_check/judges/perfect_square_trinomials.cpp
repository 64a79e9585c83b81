// A trinomial whose square root is asked for: every choice is squared.  A root and its negative
// have the same square, so they are one answer.
#include <cmath>
#include <cstdlib>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

constexpr long kLargest = 10;

std::string LineWithSquare(const course::Problem& problem) {
  for (const std::string& line : problem.question)
    if (line.find('^') != std::string::npos) return line;
  throw Unreadable("no line of the question has a square");
}

long RootOf(long square) {
  const long root = std::lround(std::sqrt(static_cast<double>(square)));
  if (square <= 0 || root * root != square)
    throw Unreadable(std::to_string(square) + " is no square");
  return root;
}

std::string SquareText(char letter, long lead, long constant) {
  const Polynomial root =
      Polynomial::Letter(letter) * Polynomial(Rational(lead)) + Polynomial(Rational(constant));
  return root.Power(2).Text();
}

// p and q are the sizes of the numbers of the root.
void AddMistakes(char letter, long p, long q, long sign, Reading& reading) {
  const auto add = [&](const std::string& name, long lead, long constant) {
    reading.mistakes[name] = {SquareText(letter, lead, sign * constant)};
  };
  add("overlooks the sign of the middle term", p, -q);
  add("exchanges the two numbers", q, p);
  add("takes half of the middle number for the last term", p, p * q);
  add("takes the middle number for the last term", p, 2 * p * q);
  add("forgets the square root of the first number", p * p, q);
  add("forgets the square root of the last number", p, q * q);
  if (p > 1 && q > 1) add("forgets both square roots", p * p, q * q);
  if (p % 2 == 0) add("takes half of the first number in place of its square root", p * p / 2, q);
  if (q % 2 == 0) add("takes half of the last number in place of its square root", p, q * q / 2);
}

Reading ReadPerfectSquare(const course::Problem& problem) {
  const std::string line = LineWithSquare(problem);
  const Polynomial trinomial = ValueOf(line);
  const char letter = LetterOf(line);
  if (trinomial.Degree(letter) != 2) throw Unreadable("\"" + line + "\" is not of degree 2");
  const auto whole = [&](int exponent) {
    return trinomial.Coefficient(letter, exponent).Number().get_num().get_si();
  };
  const long p = RootOf(whole(2));
  const long q = RootOf(whole(0)) * (whole(1) < 0 ? -1 : 1);
  if (SquareText(letter, p, q) != trinomial.Text())
    throw Unreadable("\"" + line + "\" is no perfect square");
  Reading reading;
  reading.answer = trinomial.Text();
  reading.value = [letter](const std::string& choice) {
    const Polynomial root = ValueOf(choice);
    if (root.Degree(letter) != 1 || root.TermCount() != 2)
      throw Unreadable("\"" + choice + "\" is no binomial");
    return root.Power(2).Text();
  };
  reading.kind =
      std::string(p == 1 ? "x^2" : "a number before x^2") + (q < 0 ? ", minus" : ", plus");
  reading.Within("the first number of the root", p, 1, kLargest);
  reading.Within("the second number of the root", q, -kLargest, kLargest);
  AddMistakes(letter, p, std::abs(q), q < 0 ? -1 : 1, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadPerfectSquare, {"Perfect Square Trinomials"});

}  // namespace
}  // namespace lesson_check
