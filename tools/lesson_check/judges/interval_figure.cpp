// Figure items: "ray" with from, closed and direction; "segment" with from, to, fromClosed and
// toClosed.  Several items are a union.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using course::FigureItem;

int WholeValue(const FigureItem& item, const std::string& name) {
  if (const auto value = item.Find(name)) return static_cast<int>(*value);
  throw Unreadable("the " + item.shape + " of the figure has no value \"" + name + "\"");
}

NumberSet CoveredBy(const FigureItem& item) {
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

// One arrow: a student can take it, its circle, or both, the wrong way.
void AddMistakesAtRay(const FigureItem& ray, Reading& reading) {
  const Rational from = WholeValue(ray, "from");
  const auto read = [&](bool rightwards, bool closed) {
    return rightwards ? NumberSet({from, {}, closed, false}).Text()
                      : NumberSet({{}, from, false, closed}).Text();
  };
  const bool rightwards = WholeValue(ray, "direction") > 0;
  const bool closed = WholeValue(ray, "closed") == 1;
  reading.mistakes["reads the circle the wrong way"] = {read(rightwards, !closed)};
  reading.mistakes["reads the arrow the wrong way"] = {read(!rightwards, closed)};
  reading.mistakes["reads the arrow and the circle the wrong way"] = {read(!rightwards, !closed)};
}

// Two ends on the line: what lies between them, or outside of them.
struct TwoEnds {
  Rational low, high;
  bool lowClosed = false;
  bool highClosed = false;
};

NumberSet Between(const TwoEnds& ends) {
  return NumberSet({ends.low, ends.high, ends.lowClosed, ends.highClosed});
}
NumberSet Outside(const TwoEnds& ends) {
  return NumberSet({{}, ends.low, false, ends.lowClosed})
      .Or(NumberSet({ends.high, {}, ends.highClosed, false}));
}

void AddMistakesAtTwoEnds(const TwoEnds& ends, bool between, Reading& reading) {
  const auto read = between ? Between : Outside;
  const auto misread = [&](bool low, bool high) {
    TwoEnds wrong = ends;
    if (low) wrong.lowClosed = !wrong.lowClosed;
    if (high) wrong.highClosed = !wrong.highClosed;
    return std::vector<std::string>{read(wrong).Text()};
  };
  reading.mistakes["reads both circles the wrong way"] = misread(true, true);
  reading.mistakes["reads the left circle the wrong way"] = misread(true, false);
  reading.mistakes["reads the right circle the wrong way"] = misread(false, true);
  if (between) {
    reading.mistakes["takes the numbers outside the ends"] = {Outside(ends).Text()};
    // No number is below the lower end and above the higher one.
    reading.mistakes["reverses both symbols"] = {NumberSet().Text()};
  } else {
    reading.mistakes["takes the numbers between the arrows"] = {Between(ends).Text()};
    // Every number is above the lower end or below the higher one.
    reading.mistakes["reverses both symbols"] = {NumberSet::Everything().Text()};
  }
}

void AddMistakes(const std::vector<FigureItem>& figure, Reading& reading) {
  const auto closed = [](const FigureItem& item, const char* name) {
    return WholeValue(item, name) == 1;
  };
  if (figure.size() == 1 && figure[0].shape == "ray") {
    AddMistakesAtRay(figure[0], reading);
  } else if (figure.size() == 1) {
    const FigureItem& segment = figure[0];
    AddMistakesAtTwoEnds({WholeValue(segment, "from"), WholeValue(segment, "to"),
                          closed(segment, "fromClosed"), closed(segment, "toClosed")},
                         true, reading);
  } else if (figure.size() == 2 && figure[0].shape == "ray" && figure[1].shape == "ray") {
    const bool inOrder = WholeValue(figure[0], "from") < WholeValue(figure[1], "from");
    const FigureItem& low = figure[inOrder ? 0 : 1];
    const FigureItem& high = figure[inOrder ? 1 : 0];
    if (WholeValue(low, "direction") > 0 || WholeValue(high, "direction") < 0)
      throw Unreadable("the arrows of the figure run into each other");
    AddMistakesAtTwoEnds({WholeValue(low, "from"), WholeValue(high, "from"), closed(low, "closed"),
                          closed(high, "closed")},
                         false, reading);
  }
}

// Which inequality describes the rays and segments of the figure.
Reading ReadIntervalFigure(const course::Problem& problem) {
  if (problem.figure.empty()) throw Unreadable("there is no figure");
  NumberSet covered;
  for (const FigureItem& item : problem.figure) covered = covered.Or(CoveredBy(item));
  Reading reading;
  reading.answer = covered.Text();
  reading.value = [](const std::string& choice) { return SolutionOf(choice).Text(); };
  AddMistakes(problem.figure, reading);
  for (const FigureItem& item : problem.figure)
    for (const auto& [name, value] : item.values)
      if (name == "from" || name == "to")
        reading.Within("an end on the number line", Rational(value), -7, 7);
  return reading;
}

const JudgeRegistration kRegistration(ReadIntervalFigure,
                                      {"Simple Inequalities", "Complex Inequalities"});

}  // namespace
}  // namespace lesson_check
