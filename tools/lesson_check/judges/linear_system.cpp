// Two linear equations in x and y: the point on both lines, if there is just one.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

constexpr const char* kInfinite = "There are infinite solutions.";
constexpr const char* kZero = "There are zero solutions.";

// a x + b y = c
struct Line {
  Rational a, b, c;
};

Line ReadLine(const std::string& equation) {
  const Statement cut = CutAtRelations(equation);
  const Polynomial left = ValueOf(cut.sides[0]) - ValueOf(cut.sides[1]);
  if (left.Letters().find_first_not_of("xy") != std::string::npos || left.Degree('x') > 1 ||
      left.Degree('y') > 1)
    throw Unreadable("\"" + equation + "\" is no line");
  const Polynomial withoutX = left.Coefficient('x', 0);
  return {left.Coefficient('x', 1).Number(), withoutX.Coefficient('y', 1).Number(),
          -withoutX.Coefficient('y', 0).Number()};
}

std::string PointText(const Rational& x, const Rational& y) {
  return "(" + x.get_str() + "," + y.get_str() + ")";
}

course::FigureItem FigureOf(const Line& line) {
  if (line.b == 0) return course::UprightItem(Rational(line.c / line.a).get_d());
  return course::LineItem(Rational(-line.a / line.b).get_d(), Rational(line.c / line.b).get_d());
}

// The solution and what follows from it; a system without a single one has its sentence.
void Solve(const Line& first, const Line& second, Reading& reading) {
  const Rational determinant = first.a * second.b - second.a * first.b;
  const Rational forX = first.c * second.b - second.c * first.b;
  const Rational forY = first.a * second.c - second.a * first.c;
  if (determinant == 0) {
    reading.answer = forX == 0 && forY == 0 ? kInfinite : kZero;
    reading.figureAtEnd = {FigureOf(first), FigureOf(second)};
    return;
  }
  const Rational x = forX / determinant;
  const Rational y = forY / determinant;
  if (first.a * x + first.b * y != first.c || second.a * x + second.b * y != second.c)
    throw Unreadable("the point of both lines lies on one of them only");
  reading.answer = PointText(x, y);
  reading.figureAtEnd = {FigureOf(first), FigureOf(second),
                         course::PointItem(x.get_d(), y.get_d())};
  reading.mistakes["exchanges the coordinates"] = {PointText(y, x)};
}

std::string ValueOfChoice(const std::string& choice) {
  const std::string text = WithoutBlanks(choice);
  const std::size_t comma = text.find(',');
  if (Trimmed(choice) == kInfinite || Trimmed(choice) == kZero) return Trimmed(choice);
  if (!text.starts_with('(') || !text.ends_with(')') || comma == std::string::npos)
    throw Unreadable("\"" + choice + "\" is no point");
  return PointText(ValueOf(text.substr(1, comma - 1)).Number(),
                   ValueOf(text.substr(comma + 1, text.size() - comma - 2)).Number());
}

// Two lines in x and y, and the point on both.
Reading ReadLinearSystem(const course::Problem& problem) {
  std::vector<Line> lines;
  for (const std::string& line : problem.question)
    if (!CutAtRelations(line).relations.empty()) lines.push_back(ReadLine(line));
  if (lines.size() != 2) throw Unreadable("the question has not two equations");
  Reading reading;
  Solve(lines[0], lines[1], reading);
  reading.value = ValueOfChoice;
  return reading;
}

// The same, solved without a figure.
Reading ReadSystemInWriting(const course::Problem& problem) {
  Reading reading = ReadLinearSystem(problem);
  reading.figureAtEnd.reset();
  return reading;
}

const JudgeRegistration kGraphing(ReadLinearSystem, {"Solving Systems by Graphing"});
const JudgeRegistration kInWriting(ReadSystemInWriting, {"Solving Systems by Elimination",
                                                         "Solving Systems by Substitution"});

}  // namespace
}  // namespace lesson_check
