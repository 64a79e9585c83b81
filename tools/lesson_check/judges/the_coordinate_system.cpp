// A coordinate plane with five lettered points.  Asked is "The coordinates of K are:", or "Which
// point has the coordinates (3,-2)?".
#include <cmath>
#include <cstdlib>
#include <map>
#include <string>
#include <utility>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Place = std::pair<long, long>;
using Plane = std::map<std::string, Place>;

std::string TextOf(Place place) {
  return std::to_string(place.first) + " right, " + std::to_string(place.second) + " up";
}

Place ReadPair(const std::string& pair) {
  const std::string text = WithoutBlanks(pair);
  const std::size_t comma = text.find(',');
  if (!text.starts_with('(') || !text.ends_with(')') || comma == std::string::npos)
    throw Unreadable("\"" + pair + "\" is no pair");
  const auto number = [](const std::string& part) {
    return static_cast<long>(ValueOf(part).Number().get_d());
  };
  return {number(text.substr(1, comma - 1)),
          number(text.substr(comma + 1, text.size() - comma - 2))};
}

Plane PlaneOf(const std::vector<course::FigureItem>& figure) {
  Plane plane;
  for (const course::FigureItem& item : figure) {
    const auto x = item.Find("x");
    const auto y = item.Find("y");
    if (item.shape != "point" || !x || !y) throw Unreadable("the figure has a " + item.shape);
    if (!plane.emplace(item.label, Place(std::lround(*x), std::lround(*y))).second)
      throw Unreadable("two points are called " + item.label);
  }
  return plane;
}

Place PlaceOf(const Plane& plane, const std::string& letter) {
  const auto found = plane.find(Trimmed(letter));
  if (found == plane.end()) throw Unreadable("there is no point \"" + letter + "\"");
  return found->second;
}

// Between a beginning and an end of the question; "" when it has not both.
std::string Asked(const std::string& question, const std::string& front, const std::string& back) {
  if (!question.starts_with(front) || !question.ends_with(back)) return "";
  return question.substr(front.size(), question.size() - front.size() - back.size());
}

// Of the way to a place one square more or less.
void AddMiscounts(Place place, const std::string& name, Reading& reading) {
  const auto [x, y] = place;
  const long outX = x > 0 ? 1 : -1;
  const long outY = y > 0 ? 1 : -1;
  for (const Place& farther : {Place(x + outX, y), Place(x, y + outY)})
    reading.mistakes[name + "many"].push_back(TextOf(farther));
  for (const Place& nearer : {Place(x - outX, y), Place(x, y - outY)})
    reading.mistakes[name + "few"].push_back(TextOf(nearer));
}

void AddMistakes(Place right, Reading& reading) {
  const auto [x, y] = right;
  const auto add = [&](const char* name, Place place) {
    reading.mistakes[name].push_back(TextOf(place));
  };
  add("exchanges the coordinates", {y, x});
  for (const Place& turned : {Place(-y, x), Place(y, -x)})
    add("exchanges the coordinates and takes a wrong sign", turned);
  add("takes the wrong sign for x", {-x, y});
  add("takes the wrong sign for y", {x, -y});
  add("takes the wrong sign for both", {-x, -y});
  AddMiscounts(right, "counts one square too ", reading);
  for (const Place& turned : {Place(-x, y), Place(x, -y)})
    AddMiscounts(turned, "takes a wrong sign and counts one square too ", reading);
}

Reading ReadPointOfPlane(const course::Problem& problem) {
  const Plane plane = PlaneOf(problem.figure);
  const std::string& question = problem.question.at(0);
  const std::string letter = Asked(question, "The coordinates of ", " are:");
  const std::string pair = Asked(question, "Which point has the coordinates ", "?");
  Reading reading;
  Place right;
  if (!letter.empty()) {
    reading.kind = "the coordinates of a point";
    right = PlaceOf(plane, letter);
    reading.value = [](const std::string& choice) { return TextOf(ReadPair(choice)); };
  } else if (!pair.empty()) {
    reading.kind = "the point of coordinates";
    right = ReadPair(pair);
    reading.value = [plane](const std::string& choice) { return TextOf(PlaceOf(plane, choice)); };
  } else {
    throw Unreadable("no question is \"" + question + "\"");
  }
  reading.answer = TextOf(right);
  AddMistakes(right, reading);
  if (plane.size() != 5) reading.faults.emplace_back("there are not five points");
  for (const auto& [name, place] : plane) {
    reading.Within("a coordinate x without its sign", std::labs(place.first), 2, 5);
    reading.Within("a coordinate y without its sign", std::labs(place.second), 2, 5);
    if (name.size() != 1) reading.faults.push_back("a point has the name \"" + name + "\"");
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadPointOfPlane, {"The Coordinate System"});

}  // namespace
}  // namespace lesson_check
