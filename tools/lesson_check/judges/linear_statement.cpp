// Equations and inequalities a x + b = d x + c, and the numbers and statements offered for them.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"

namespace lesson_check {
namespace {

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
  reading.mistakes["moves the right number across with its sign"] = {
      MovedAcross(statement).get_str()};
  reading.mistakes["subtracts the numbers the wrong way round"] = {
      SubtractedTheWrongWay(statement).get_str()};
  CheckRanges(statement, reading);
  return reading;
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
  reading.mistakes["subtracts the numbers the wrong way round"] = {
      SetOf(right, SubtractedTheWrongWay(s)).Text()};
  CheckRanges(s, reading);
  if (s.a + s.d != 0)
    reading.mistakes["moves the whole right side across, the relation turned wrongly"] = {
        SetOf(ReversedRelation(right), -(s.b + s.c) / (s.a + s.d)).Text()};
  // Only where dividing turns the relation can a student forget it, and only elsewhere overdo it.
  const std::vector<std::string> turned = {SetOf(ReversedRelation(right), bound).Text()};
  reading.mistakes["keeps the relation"] = flips ? turned : std::vector<std::string>{};
  reading.mistakes["reverses the relation"] = flips ? std::vector<std::string>{} : turned;
  return reading;
}

const JudgeRegistration kEquations(ReadLinearEquation,
                                   {"Solving Linear Equations With 2 Operations"});
const JudgeRegistration kInequalities(ReadLinearInequality, {"Solving Inequalities"});

}  // namespace
}  // namespace lesson_check
