#include "lessons/families/graphs/point_question.h"

#include <algorithm>
#include <string_view>

#include "engine/choices.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::graphs {
namespace {

constexpr std::size_t kPoints = 5;
constexpr int kSquaresAside = 5;  // right and left of the y axis

// Those of the answer boxes, those of the axes, and two that look like a tick and a zero.
constexpr std::string_view kOtherLetters = "ABCDEXYIO";

// One square farther from 0.
int Farther(int coordinate) {
  return coordinate < 0 ? coordinate - 1 : coordinate + 1;
}

// From a place to one beside it: on a line of the grid, in the same quadrant.
bool IsOneSquareFarther(GridPoint place, GridPoint from) {
  return place == GridPoint{Farther(from.x), from.y} || place == GridPoint{from.x, Farther(from.y)};
}

}  // namespace

bool PointQuestion::HasRoomAt(GridPoint place) const {
  const auto [x, y] = place;
  if (std::abs(x) < 2 || std::abs(y) < 2) return false;  // on an axis or next to it
  if (std::abs(y) > SquaresUp()) return false;           // beyond the grid
  // Over a number of an axis.
  const int below = plane_ == PlaneHeight::Low ? -1 : -2;
  return !(y == -1 && x < 0) && !((x == -1 || x == -2) && y == below);
}

bool PointQuestion::IsTaken(GridPoint place) const {
  return std::ranges::any_of(points_, [&](const LetteredPoint& p) { return p.place == place; });
}

std::string PointQuestion::MistakeOfSignAt(GridPoint place) const {
  const auto [x, y] = Point();
  if (place == GridPoint{-x, y}) return "takes the wrong sign for x";
  if (place == GridPoint{x, -y}) return "takes the wrong sign for y";
  if (place == GridPoint{-x, -y}) return "takes the wrong sign for both";
  return "";
}

std::string PointQuestion::OtherMistakeAt(GridPoint place) const {
  const auto [x, y] = Point();
  if (miscounts_) {
    if (IsOneSquareFarther(place, Point())) return "counts one square too many";
    return IsOneSquareFarther(Point(), place) ? "counts one square too few" : "";
  }
  if (HasRoomAt({y, x}))
    return place == GridPoint{-y, x} || place == GridPoint{y, -x}
               ? "exchanges the coordinates and takes a wrong sign"
               : "";
  for (const GridPoint& turned : {GridPoint{-x, y}, GridPoint{x, -y}}) {
    if (IsOneSquareFarther(place, turned))
      return "takes a wrong sign and counts one square too many";
    if (IsOneSquareFarther(turned, place))
      return "takes a wrong sign and counts one square too few";
  }
  return "";
}

// What takes the place for the first point's; "" where the place is of no use.
std::string PointQuestion::MistakeAt(GridPoint place) const {
  const GridPoint exchanged = {Point().y, Point().x};
  if (place == exchanged) return "exchanges the coordinates";
  if (HasRoomAt(exchanged) && points_.size() == 1) return "";  // it comes first
  const std::string ofSign = MistakeOfSignAt(place);
  if (!ofSign.empty()) return ofSign;
  // One place of another kind.
  const bool hasOther = std::ranges::any_of(points_, [&](const LetteredPoint& p) {
    return p.place != Point() && p.place != exchanged && MistakeOfSignAt(p.place).empty();
  });
  return hasOther ? "" : OtherMistakeAt(place);
}

GridPoint PointQuestion::DrawPlace(RandomStream& random) const {
  const int farthest = plane_ == PlaneHeight::Low ? 3 : 6;
  GridPoint place;
  do {
    place.x = random.Rand(-kSquaresAside, kSquaresAside);
    place.y = random.Rand(-farthest, farthest);
  } while (!HasRoomAt(place) || IsTaken(place));
  return place;
}

// A place that no mistake leads to is drawn again: on the average one in a hundred is accepted.
void PointQuestion::DrawPoints(RandomStream& random) {
  points_.clear();
  while (points_.size() < kPoints) {
    const GridPoint place = DrawPlace(random);
    if (points_.empty()) {
      // Exchanged, it would be the same point, or the one with other signs.
      if (std::abs(place.x) != std::abs(place.y)) points_.push_back({place, "", ""});
      continue;
    }
    const std::string mistake = MistakeAt(place);
    if (!mistake.empty()) points_.push_back({place, mistake, ""});
  }
}

void PointQuestion::DrawLetters(RandomStream& random) {
  std::string used(kOtherLetters);
  for (LetteredPoint& point : points_) {
    do {
      point.letter = random.Letter();
    } while (used.find(point.letter) != std::string::npos);
    used += point.letter;
  }
}

void PointQuestion::Draw(RandomStream& random, Problem& problem) {
  plane_ = random.Rand(0, 1) == 0 ? PlaneHeight::Low : PlaneHeight::Full;
  // Rather two mistakes at once: with single ones alone the right point is the one most like the
  // others.
  miscounts_ = random.Rand(1, 5) <= 2;
  DrawPoints(random);
  DrawLetters(random);
  asksForPoint_ = random.Rand(0, 1) == 1;

  problem.kind = choice_kind::FiveShuffled;
  problem.question = {asksForPoint_
                          ? "Which point has the coordinates " + GraphPointText(Point()) + "?"
                          : "The coordinates of " + Letter() + " are:"};
  problem.figure.clear();
  for (std::size_t i = 0; i < kPoints; ++i) {
    const auto& [place, mistake, letter] = points_[i];
    problem.figure.push_back(PointItem(place.x, place.y, letter));
    const std::string text = asksForPoint_ ? letter : GraphPointText(place);
    if (i == 0)
      problem.Right(1, text);
    else
      problem.Wrong(static_cast<int>(i) + 1, mistake, text);
  }
  // By their letters: the right one must not come first where the figure is read aloud.
  std::ranges::sort(problem.figure, {}, &FigureItem::label);
}

}  // namespace course::graphs
