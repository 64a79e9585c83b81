// Figure items: "ray" with from, closed and direction; "segment" with from, to, fromClosed and
// toClosed.  Several items are a union.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judges/judges.h"

namespace lesson_check {
namespace {

int WholeValue(const course::FigureItem& item, const std::string& name) {
  for (const auto& [key, value] : item.values)
    if (key == name) return static_cast<int>(value);
  throw Unreadable("the " + item.shape + " of the figure has no value \"" + name + "\"");
}

NumberSet CoveredBy(const course::FigureItem& item) {
  const auto value = [&](const std::string& name) { return WholeValue(item, name); };
  if (item.shape == "ray") {
    const Rational from = value("from");
    const bool closed = value("closed") == 1;
    if (value("direction") > 0) return NumberSet({from, {}, closed, false});
    return NumberSet({{}, from, false, closed});
  }
  if (item.shape == "segment")
    return NumberSet(
        {value("from"), value("to"), value("fromClosed") == 1, value("toClosed") == 1});
  throw Unreadable("the figure has a \"" + item.shape + "\"");
}

}  // namespace

Reading ReadIntervalFigure(const course::Problem& problem) {
  if (problem.figure.empty()) throw Unreadable("there is no figure");
  NumberSet covered;
  for (const course::FigureItem& item : problem.figure) covered = covered.Or(CoveredBy(item));
  Reading reading;
  reading.answer = covered.Text();
  reading.value = [](const std::string& choice) { return SolutionOf(choice).Text(); };
  if (problem.figure.size() == 1 && problem.figure[0].shape == "ray") {
    // One arrow: a student can take it, its circle, or both, the wrong way.
    course::FigureItem ray = problem.figure[0];
    const auto with = [&](const char* name, double value) {
      course::FigureItem other = ray;
      for (auto& [key, number] : other.values)
        if (key == name) number = value;
      return other;
    };
    const int direction = WholeValue(ray, "direction");
    const int closed = WholeValue(ray, "closed");
    course::FigureItem wrongCircle = with("closed", 1 - closed);
    reading.mistakes["reads the circle the wrong way"] = {CoveredBy(wrongCircle).Text()};
    reading.mistakes["reads the arrow the wrong way"] = {
        CoveredBy(with("direction", -direction)).Text()};
    ray = wrongCircle;
    reading.mistakes["reads the arrow and the circle the wrong way"] = {
        CoveredBy(with("direction", -direction)).Text()};
  }
  return reading;
}

}  // namespace lesson_check
