// "What is the equation of the line through the points (3,-2) and (-1,4)?"  The answers are
// equations solved for y, or for x where the line is vertical.
#include <numeric>
#include <string>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

struct Point {
  Rational x, y;
};

std::vector<Point> PointsIn(const std::string& text) {
  std::vector<Point> points;
  for (std::size_t open = text.find('('); open != std::string::npos;
       open = text.find('(', open + 1)) {
    const std::size_t comma = text.find(',', open);
    const std::size_t close = text.find(')', open);
    if (comma == std::string::npos || close == std::string::npos || comma > close)
      throw Unreadable("no point behind \"(\" in \"" + text + "\"");
    points.push_back({ValueOf(text.substr(open + 1, comma - open - 1)).Number(),
                      ValueOf(text.substr(comma + 1, close - comma - 1)).Number()});
  }
  return points;
}

// The side on the right of "y =" or "x =".
std::string ValueOfEquation(const std::string& choice) {
  const Statement cut = CutAtRelations(choice);
  if (cut.sides.size() != 2 || cut.relations[0] != '=')
    throw Unreadable("\"" + choice + "\" is no equation");
  const std::string letter = Trimmed(cut.sides[0]);
  const Polynomial right = ValueOf(cut.sides[1]);
  const bool solvedForY = letter == "y" && right.Degree('x') <= 1 &&
                          right.Letters().find_first_not_of('x') == std::string::npos;
  if (!solvedForY && !(letter == "x" && right.IsNumber()))
    throw Unreadable("\"" + choice + "\" is not solved for a letter");
  return letter + "=" + right.Text();
}

// 7/4 may stand as it is: a slope is no mixed number.
bool HasReducibleFraction(const std::string& text) {
  for (std::size_t slash = text.find('/'); slash != std::string::npos;
       slash = text.find('/', slash + 1)) {
    const std::size_t start = text.find_last_not_of("0123456789", slash - 1) + 1;
    const long above = std::stol(text.substr(start, slash - start));
    const long below = std::stol(text.substr(slash + 1));
    if (std::gcd(above, below) != 1 || below == 1) return true;
  }
  return false;
}

std::string YEquals(const Rational& slope, const Rational& constant) {
  return "y=" + (Polynomial(slope) * Polynomial::Letter('x') + Polynomial(constant)).Text();
}

std::string XEquals(const Rational& number) {
  return "x=" + Polynomial(number).Text();
}

const char* NameOf(bool isFirst) {
  return isFirst ? "the first point" : "the second point";
}

void ReadVertical(const Point& first, const Point& second, Reading& reading) {
  reading.kind = "vertical";
  reading.answer = XEquals(first.x);
  reading.mistakes["mixes up x and y"] = {YEquals(0, first.x)};
  reading.mistakes["reverses the sign of the number"] = {XEquals(-first.x)};
  reading.mistakes["takes the number for the slope"] = {YEquals(first.x, 0)};
  for (const Point* point : {&first, &second}) {
    const std::string name = NameOf(point == &first);
    reading.mistakes["takes the line for a horizontal one through " + name] = {
        YEquals(0, point->y)};
    reading.mistakes["exchanges the coordinates of " + name] = {XEquals(point->y)};
  }
}

void AddCoordinateTakenForIntercept(const char* letter, const Rational& slope,
                                    const Rational& first, const Rational& second,
                                    Reading& reading) {
  const std::string takes = std::string("takes the ") + letter + " of ";
  reading.mistakes[takes + NameOf(true) + " for the intercept"] = {YEquals(slope, first)};
  reading.mistakes[takes + NameOf(false) + " for the intercept"] = {YEquals(slope, second)};
}

void ReadHorizontal(const Point& first, const Point& second, Reading& reading) {
  reading.kind = "horizontal";
  reading.answer = YEquals(0, first.y);
  reading.mistakes["mixes up x and y"] = {XEquals(first.y)};
  reading.mistakes["exchanges slope and intercept"] = {YEquals(first.y, 0)};
  reading.mistakes["reverses the sign of the intercept"] = {YEquals(0, -first.y)};
  reading.mistakes["takes 1 for the slope"] = {YEquals(1, first.y)};
  AddCoordinateTakenForIntercept("x", 0, first.x, second.x, reading);
  for (const Point* point : {&first, &second})
    reading.mistakes[std::string("takes the line for a vertical one through ") +
                     NameOf(point == &first)] = {XEquals(point->x)};
}

void ReadSloping(const Point& first, const Point& second, Reading& reading) {
  const Rational slope = (second.y - first.y) / (second.x - first.x);
  // The line through both points crosses the y axis where their determinant tells.
  const Rational intercept = (first.y * second.x - second.y * first.x) / (second.x - first.x);
  reading.kind = slope.get_den() == 1 ? "slope is a whole number" : "slope is a fraction";
  reading.answer = YEquals(slope, intercept);
  // A wrong slope comes with the intercept that the first point gives it.
  const auto addSlope = [&](const char* name, const char* withOtherSign, const Rational& wrong) {
    const Rational constant = first.y - wrong * first.x;
    reading.mistakes[name] = {YEquals(wrong, constant)};
    reading.mistakes[withOtherSign] = {YEquals(wrong, -constant)};
  };
  addSlope("puts run over rise and uses this slope for b",
           "puts run over rise, uses this slope for b and reverses the sign of b", 1 / slope);
  addSlope("reverses the sign of the slope and uses it for b",
           "reverses the sign of the slope, uses it for b and reverses the sign of b", -slope);
  reading.mistakes["exchanges slope and intercept"] = {YEquals(intercept, slope)};
  reading.mistakes["exchanges slope and intercept and reverses a sign"] = {
      YEquals(intercept, -slope)};
  reading.mistakes["reverses the sign of the intercept"] = {YEquals(slope, -intercept)};
  AddCoordinateTakenForIntercept("y", slope, first.y, second.y, reading);
  AddCoordinateTakenForIntercept("x", slope, first.x, second.x, reading);
}

bool IsOnPlane(const Point& point) {
  constexpr int kGridEnd = 5;
  return abs(point.x) <= kGridEnd && abs(point.y) <= kGridEnd;
}

course::FigureItem FigureOf(const Point& first, const Point& second) {
  if (first.x == second.x) return course::UprightItem(first.x.get_d());
  const Rational slope = (second.y - first.y) / (second.x - first.x);
  return course::LineItem(slope.get_d(), Rational(first.y - slope * first.x).get_d());
}

Reading ReadEquationOfALine(const course::Problem& problem) {
  if (problem.question.size() != 2 || problem.question[0] != "What is the equation of the line")
    throw Unreadable("the question does not ask for the equation of a line");
  const std::vector<Point> points = PointsIn(problem.question[1]);
  if (points.size() != 2) throw Unreadable("the question has not two points");
  const Point& first = points[0];
  const Point& second = points[1];
  Reading reading;
  for (const Point& point : points) {
    reading.Within("x", point.x, -5, 6);
    reading.Within("y", point.y, -4, 3);
  }
  if (first.x == second.x && first.y == second.y) throw Unreadable("the points are the same");
  if (first.x == second.x)
    ReadVertical(first, second, reading);
  else if (first.y == second.y)
    ReadHorizontal(first, second, reading);
  else
    ReadSloping(first, second, reading);
  reading.value = ValueOfEquation;
  reading.flaw = [](const std::string& choice) {
    return std::string(HasReducibleFraction(choice) ? "can be reduced" : "");
  };
  if (IsOnPlane(first) && IsOnPlane(second))
    reading.figureAtEnd = {FigureOf(first, second),
                           course::PointItem(first.x.get_d(), first.y.get_d()),
                           course::PointItem(second.x.get_d(), second.y.get_d())};
  return reading;
}

const JudgeRegistration kRegistration(ReadEquationOfALine, {"The Equation of a Line"});

}  // namespace
}  // namespace lesson_check
