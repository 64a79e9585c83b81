// Equations and inequalities a x + b = d x + c, and the numbers and statements offered for them.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"

namespace lesson_check {
namespace {

const std::string kWrongSign = "gives the quotient the wrong sign";  // of a x = c
const std::string kWrongOrder = "subtracts the numbers in the wrong order";
const std::string kMovesSide = "moves the right side to the left without changing its signs";

struct LinearStatement {
  char letter = 0;
  char relation = '=';
  Rational a, b;  // of the left side a x + b
  Rational d, c;  // of the right side d x + c
};

// The question's one line with a relation in it.
std::string StatementLine(const course::Problem& problem) {
  for (const std::string& line : problem.question)
    if (!CutAtRelations(line).relations.empty()) return line;
  throw Unreadable("the question states nothing");
}

LinearStatement ReadStatement(const std::string& line) {
  const Statement cut = CutAtRelations(line);
  if (cut.relations.size() != 1) throw Unreadable("\"" + line + "\" has more than two sides");
  LinearStatement statement;
  statement.letter = LetterOf(line);
  statement.relation = cut.relations[0];
  const auto read = [&](const std::string& side, Rational& coefficient, Rational& number) {
    const Polynomial value = ValueOf(side);
    if (value.Degree(statement.letter) > 1) throw Unreadable("\"" + side + "\" is not linear");
    coefficient = value.Coefficient(statement.letter, 1).Number();
    number = value.Coefficient(statement.letter, 0).Number();
  };
  read(cut.sides[0], statement.a, statement.b);
  read(cut.sides[1], statement.d, statement.c);
  if (statement.a == statement.d) throw Unreadable("\"" + line + "\" has no single solution");
  return statement;
}

// The number of a choice: alone, or beside a letter and a relation.
std::string NumberText(const std::string& choice) {
  const Statement cut = CutAtRelations(choice);
  const bool digits = cut.sides.back().find_first_of("0123456789") != std::string::npos;
  return digits ? cut.sides.back() : cut.sides.front();
}

Rational MovedAcross(const LinearStatement& s) {
  return -(s.b + s.c) / (s.a - s.d);
}
// From a x + b = d x + c to a x + d x + b + c = 0.
Rational SideMovedAcross(const LinearStatement& s) {
  return -(s.b + s.c) / (s.a + s.d);
}
Rational SubtractedTheWrongWay(const LinearStatement& s) {
  return (s.b - s.c) / (s.a - s.d);
}

void CheckRanges(const LinearStatement& s, Reading& reading) {
  for (const Rational& coefficient : {s.a, s.d})
    reading.Within("a coefficient", coefficient, -9, 9);
  for (const Rational& number : {s.b, s.c}) reading.Within("a number", number, -15, 15);
}

// The number, or the numbers, for which a linear statement in one letter holds.
Reading ReadLinearEquation(const course::Problem& problem) {
  const LinearStatement statement = ReadStatement(StatementLine(problem));
  const char letter = statement.letter;
  Reading reading;
  reading.answer = Rational((statement.c - statement.b) / (statement.a - statement.d)).get_str();
  reading.value = [letter](const std::string& choice) {
    const Statement cut = CutAtRelations(choice);
    const bool led = cut.sides.size() == 2 && cut.relations[0] == '=' &&
                     Trimmed(cut.sides[0]) == std::string(1, letter);
    if (cut.sides.size() != 1 && !led) throw Unreadable("\"" + choice + "\" is no solution");
    return NumberIn(cut.sides.back()).get_str();
  };
  reading.flaw = [](const std::string& choice) { return FlawOfMixedNumber(NumberText(choice)); };
  if (statement.b == 0) {
    reading.mistakes[kWrongSign] = {SubtractedTheWrongWay(statement).get_str()};
  } else {
    reading.mistakes["moves the number on the right to the left without changing its sign"] = {
        MovedAcross(statement).get_str()};
    reading.mistakes[kWrongOrder] = {SubtractedTheWrongWay(statement).get_str()};
  }
  // With no letter on the right it is the number alone that moves.
  if (statement.d != 0 && statement.a + statement.d != 0)
    reading.mistakes[kMovesSide] = {SideMovedAcross(statement).get_str()};
  CheckRanges(statement, reading);
  return reading;
}

// (a + d) x + b + c < 0, divided as it should be, or with the symbol mistaken too.
void ReadMovedSide(const LinearStatement& s, Reading& reading) {
  const Rational sum = s.a + s.d;
  if (sum == 0) return;
  const auto solved = [&](bool reversed) -> std::vector<std::string> {
    const char relation = reversed ? ReversedRelation(s.relation) : s.relation;
    return {SetOf(relation, SideMovedAcross(s)).Text()};
  };
  const bool negative = sum < 0;
  reading.mistakes[kMovesSide] = solved(negative);
  reading.mistakes[kMovesSide + (negative ? " and keeps the symbol" : " and reverses the symbol")] =
      solved(!negative);
}

Reading ReadLinearInequality(const course::Problem& problem) {
  const LinearStatement s = ReadStatement(StatementLine(problem));
  const bool flips = s.a < s.d;
  const char right = flips ? ReversedRelation(s.relation) : s.relation;
  const Rational bound = (s.c - s.b) / (s.a - s.d);
  const char letter = s.letter;
  Reading reading;
  reading.answer = SetOf(right, bound).Text();
  reading.value = [letter](const std::string& choice) {
    if (LetterOf(choice) != letter) throw Unreadable("another letter in \"" + choice + "\"");
    NumberIn(NumberText(choice));
    return SolutionOf(choice).Text();
  };
  reading.flaw = [](const std::string& choice) { return FlawOfMixedNumber(NumberText(choice)); };
  reading.mistakes[s.b == 0 ? kWrongSign : kWrongOrder] = {
      SetOf(right, SubtractedTheWrongWay(s)).Text()};
  CheckRanges(s, reading);
  ReadMovedSide(s, reading);
  // Only where dividing reverses the symbol can a student forget it, and only elsewhere overdo it.
  reading.mistakes[flips ? "forgets to reverse the inequality symbol"
                         : "reverses the inequality symbol without dividing by a negative number"] =
      {SetOf(ReversedRelation(right), bound).Text()};
  return reading;
}

const JudgeRegistration kEquations(ReadLinearEquation,
                                   {"Solving Linear Equations With 1 Operation",
                                    "Solving Linear Equations With 2 Operations",
                                    "Solving More Complex Linear Equations"});
const JudgeRegistration kInequalities(ReadLinearInequality, {"Solving Inequalities"});

}  // namespace
}  // namespace lesson_check
