// "Is the ordered pair (3,-2) a solution of the following equation?", and a linear equation in x
// and y.  The answer is Yes or No.
#include <array>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

struct Pair {
  Rational x, y;
};

// The printed coefficients of x and y and the constant, one side behind the other.
using Numbers = std::array<Rational, 6>;

Pair PairIn(const std::string& sentence) {
  const std::size_t open = sentence.find('(');
  const std::size_t comma = sentence.find(',', open);
  const std::size_t close = sentence.find(')', open);
  if (open == std::string::npos || comma > close || close == std::string::npos)
    throw Unreadable("no pair stands in \"" + sentence + "\"");
  return {ValueOf(sentence.substr(open + 1, comma - open - 1)).Number(),
          ValueOf(sentence.substr(comma + 1, close - comma - 1)).Number()};
}

Numbers NumbersOf(const std::string& equation) {
  const Statement cut = CutAtRelations(equation);
  if (cut.relations != std::vector<char>{'='}) throw Unreadable("no equation: " + equation);
  Numbers numbers;
  for (std::size_t i = 0; i < 2; ++i) {
    const Polynomial side = ValueOf(cut.sides[i]);
    if (side.Letters().find_first_not_of("xy") != std::string::npos || side.Degree('x') > 1 ||
        side.Degree('y') > 1)
      throw Unreadable("\"" + equation + "\" is not linear in x and y");
    const Polynomial withoutX = side.Coefficient('x', 0);
    numbers[3 * i] = side.Coefficient('x', 1).Number();
    numbers[3 * i + 1] = withoutX.Coefficient('y', 1).Number();
    numbers[3 * i + 2] = withoutX.Coefficient('y', 0).Number();
  }
  return numbers;
}

bool Holds(const Numbers& n, const Pair& pair) {
  return n[0] * pair.x + n[1] * pair.y + n[2] == n[3] * pair.x + n[4] * pair.y + n[5];
}

// All truths that come of one number's minus sign being lost, constants aside.
bool CanTurnTo(bool truth, const Numbers& numbers, const Pair& pair) {
  const auto turns = [&](const Numbers& n, const Pair& p) { return Holds(n, p) == truth; };
  if (pair.x < 0 && turns(numbers, {-pair.x, pair.y})) return true;
  if (pair.y < 0 && turns(numbers, {pair.x, -pair.y})) return true;
  for (const std::size_t i : {0, 1, 3, 4}) {
    Numbers other = numbers;
    other[i] = -other[i];
    if (numbers[i] < 0 && turns(other, pair)) return true;
  }
  return false;
}

std::string KindOf(const Numbers& n) {
  if (n[3] == 0 && n[4] == 0) return "letters on the left side";
  return n[0] == 0 && n[1] == 1 ? "solved for y" : "letters on both sides";
}

Reading ReadPairInEquation(const course::Problem& problem) {
  if (problem.question.size() != 3) throw Unreadable("the question has not three lines");
  const Pair pair = PairIn(problem.question[0]);
  const Numbers numbers = NumbersOf(problem.question[2]);
  const bool isSolution = Holds(numbers, pair);
  Reading reading;
  reading.kind = KindOf(numbers) + (isSolution ? ": a solution" : ": no solution");
  reading.answer = isSolution ? "Yes" : "No";
  reading.value = [](const std::string& choice) { return Trimmed(choice); };
  const std::string other = isSolution ? "No" : "Yes";
  if (Holds(numbers, {pair.y, pair.x}) != isSolution)
    reading.mistakes["exchanges x and y"] = {other};
  if (CanTurnTo(!isSolution, numbers, pair)) reading.mistakes["loses a minus sign"] = {other};
  if (!isSolution) reading.mistakes["does not compare the two sides"] = {"Yes"};
  reading.mistakes["thinks that x and y must be equal"] = {"Only if x = y"};
  reading.mistakes["does not put the numbers into the equation"] = {"Cannot be told"};
  for (const Rational& number : {pair.x, pair.y, numbers[0], numbers[1], numbers[3], numbers[4]})
    reading.Within("a number of the pair or a coefficient", number, -6, 6);
  if ((numbers[0] == 0 && numbers[3] == 0) || (numbers[1] == 0 && numbers[4] == 0))
    reading.faults.emplace_back("the equation lacks a letter");
  return reading;
}

const JudgeRegistration kRegistration(ReadPairInEquation, {"Linear Equations in Two Variables"});

}  // namespace
}  // namespace lesson_check
