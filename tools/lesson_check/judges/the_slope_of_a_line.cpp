// The slope of a drawn line through two marked points, or the coordinate "a" that is missing from
// one of two points whose slope is told.
#include <algorithm>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

constexpr long kWidest = 5;  // of the coordinates
constexpr long kHighest = 3;

struct Place {
  Polynomial x, y;
};

std::string ValueOfChoice(const std::string& choice) {
  return ValueOf(choice).Number().get_str();
}

// Fractions stay improper; they are only reduced.
std::string FlawOfSlope(const std::string& choice) {
  const std::vector<std::string> numbers = NumbersIn(choice);
  if (numbers.size() != 2) return "";
  return gcd(mpz_class(numbers[0], 10), mpz_class(numbers[1], 10)) == 1 ? "" : "can be reduced";
}

// --- A drawn line ------------------------------------------------------------

Place PlaceOf(const course::FigureItem& point) {
  if (point.shape != "point") throw Unreadable("the figure has a \"" + point.shape + "\"");
  return {Polynomial(Rational(point.Value("x"))), Polynomial(Rational(point.Value("y")))};
}

void AddMistakesAtLine(const Rational& rise, const Rational& run, const Place& first,
                       const Place& second, Reading& reading) {
  const Rational slope = rise / run;
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name].push_back(value.get_str());
  };
  add("divides the run by the rise", 1 / slope);
  add("takes the wrong sign", -slope);
  for (const Place& place : {first, second}) {
    const Rational apart = (place.y - place.x).Number() / run;
    if (apart != 0) add("subtracts the coordinates of one point", abs(apart));
  }
  const char* miscounted =
      slope < 0 ? "miscounts the rise and loses its sign" : "miscounts the rise";
  for (const int more : {-1, 1}) add(miscounted, (abs(rise) + more) / abs(run));
}

Reading ReadDrawnLine(const course::Problem& problem) {
  if (problem.figure.size() != 3 || problem.figure[0].shape != "line")
    throw Unreadable("the figure is no line with two points");
  const Place first = PlaceOf(problem.figure[1]);
  const Place second = PlaceOf(problem.figure[2]);
  const Rational run = (second.x - first.x).Number();
  const Rational rise = (second.y - first.y).Number();
  if (run == 0 || rise == 0) throw Unreadable("the line is upright or level");
  Reading reading;
  reading.kind = "slope of a drawn line";
  const Rational slope = rise / run;
  const Rational intercept = first.y.Number() - slope * first.x.Number();
  if (!SamePlace(problem.figure[0], course::LineItem(slope.get_d(), intercept.get_d())))
    reading.faults.push_back("the line does not run through both points");
  reading.answer = slope.get_str();
  AddMistakesAtLine(rise, run, first, second, reading);
  for (const Place& place : {first, second}) {
    reading.Within("x", place.x.Number(), -kWidest, kWidest);
    reading.Within("y", place.y.Number(), -kHighest, kHighest);
  }
  return reading;
}

// --- A missing coordinate ------------------------------------------------------

// The next "(x,y)" from a place of the text on, which moves behind it.
Place NextPlace(const std::string& text, std::size_t& at) {
  const std::size_t open = text.find('(', at);
  const std::size_t comma = text.find(',', open);
  const std::size_t close = text.find(')', comma);
  if (close == std::string::npos) throw Unreadable("\"" + text + "\" has not two points");
  at = close;
  return {ValueOf(text.substr(open + 1, comma - open - 1)),
          ValueOf(text.substr(comma + 1, close - comma - 1))};
}

Rational OtherPointsNumber(const Place& first, const Place& second) {
  if (!first.x.IsNumber()) return second.x.Number();
  if (!first.y.IsNumber()) return second.y.Number();
  return (second.x.IsNumber() ? first.y : first.x).Number();
}

Reading ReadMissingCoordinate(const course::Problem& problem) {
  const std::string& text = problem.question[0];
  std::size_t at = 0;
  const Place first = NextPlace(text, at);
  const Place second = NextPlace(text, at);
  const std::size_t is = text.find(" is ", at);
  if (is == std::string::npos || !text.ends_with('.')) throw Unreadable("no slope is told");
  const Polynomial slope = ValueOf(text.substr(is + 4, text.size() - is - 5));
  if (slope.IsZero()) throw Unreadable("the slope is 0");
  const Polynomial zero = second.y - first.y - slope * (second.x - first.x);
  if (zero.Letters() != "a" || zero.Degree('a') != 1) throw Unreadable("not one letter a is asked");
  const Rational missing = -(zero.Coefficient('a', 0) / zero.Coefficient('a', 1)).Number();

  Reading reading;
  const bool isX = !first.x.IsNumber() || !second.x.IsNumber();
  reading.kind = isX ? "missing x" : "missing y";
  reading.answer = missing.get_str();
  reading.mistakes["takes the wrong sign for a"] = {Rational(-missing).get_str()};
  reading.mistakes["copies the coordinate of the other point"] = {
      OtherPointsNumber(first, second).get_str()};
  reading.Within("the missing number", missing, isX ? -kWidest : -kHighest,
                 isX ? kWidest : kHighest);
  return reading;
}

Reading ReadSlope(const course::Problem& problem) {
  Reading reading =
      problem.question.size() == 1 ? ReadDrawnLine(problem) : ReadMissingCoordinate(problem);
  reading.value = ValueOfChoice;
  reading.flaw = FlawOfSlope;
  return reading;
}

const JudgeRegistration kRegistration(ReadSlope, {"The Slope of a Line"});

}  // namespace
}  // namespace lesson_check
