#include "lessons/families/graphs/plane_labels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace course::graphs {
namespace {

constexpr double kGridEnd = 5.6;
constexpr double kBehindGrid = 0.6;  // from the last grid line to the end of an axis
constexpr double kEdge = 6.3;        // how far out a label reaches, so that all of it is in the box
constexpr double kBehindEdge = 1.3;  // the same upward, from the last grid line
constexpr double kFarAway = 20;      // beyond the plane's corners from anywhere on it
constexpr double kLineHalf = 0.15;   // half the width of a line, and a little air
constexpr double kPointHalf = 0.3;   // a point's radius, and a little air
constexpr double kLineGap = 0.3;     // between a line and its label
constexpr double kPointGap = 0.32;   // between the middle of a point and its label
constexpr double kSlide = 0.25;      // from one place along a line to the next
constexpr double kSample = 0.2;      // of a label: closer than a line is wide

double LengthOf(Vector v) {
  return std::sqrt(v.x * v.x + v.y * v.y);  // hypot minds overflow, and takes ten times as long
}

// How far a line runs inside the plane: its ends from a point of it, in squares.
struct Reach {
  double first;
  double last;
};
Reach ReachOf(Vector point, Vector along, double edgeUp) {
  Reach reach = {-kFarAway, kFarAway};
  const auto cut = [&](double start, double step, double edge) {
    if (step == 0) return;
    const double a = (-edge - start) / step;
    const double b = (edge - start) / step;
    reach.first = std::max(reach.first, std::min(a, b));
    reach.last = std::min(reach.last, std::max(a, b));
  };
  cut(point.x, along.x, kEdge);
  cut(point.y, along.y, edgeUp);
  return reach;
}

}  // namespace

bool LabelBox::Holds(Vector place) const {
  const Vector there = place + -1 * foot;
  const double right = there.x * along.x + there.y * along.y;
  const double up = there.x * Upward().x + there.y * Upward().y;
  return right >= 0 && right <= size.width && up >= 0 && up <= size.height;
}

Vector DirectionOf(const FigureItem& line) {
  if (line.Find("x")) return {0, 1};
  const double slope = line.Value("slope");
  return 1 / std::hypot(1, slope) * Vector{1, slope};
}

Vector PointOf(const FigureItem& line) {
  const std::optional<double> x = line.Find("x");
  return x ? Vector{*x, 0} : Vector{0, line.Value("intercept")};
}

LabelGround::LabelGround(LabelSize number, int squaresUp) : edgeUp_(squaresUp + kBehindEdge) {
  const double gridTop = squaresUp + kBehindGrid;
  // The axes with the numbers to the left of one and below the other, and the axes' letters.
  const double left = 0.45 + number.width;
  const double below = 0.3 + number.height;
  boxes_ = {{{-kGridEnd, -below}, {1, 0}, {2 * kGridEnd, below + 0.1}},
            {{-left, -gridTop}, {1, 0}, {left + 0.1, 2 * gridTop}},
            {{kGridEnd, -0.2}, {1, 0}, {1, 1}},
            {{0.1, gridTop}, {1, 0}, {0.8, 1}}};
}

void LabelGround::Avoid(const FigureItem& item) {
  if (item.shape == "line") {
    const Vector point = PointOf(item);
    const Vector along = DirectionOf(item);
    AddStroke(point + -kFarAway * along, point + kFarAway * along, kLineHalf);
    return;
  }
  const Vector from = {item.Value("x"), item.Value("y")};
  if (item.shape == "point") {
    AddStroke(from, from, kPointHalf);
  } else if (item.shape == "step") {
    const Vector corner = from + Vector{item.Value("right"), 0};
    AddStroke(from, corner, kLineHalf);
    AddStroke(corner, corner + Vector{0, item.Value("up")}, kLineHalf);
  } else if (item.shape == "guides") {
    AddStroke(from, {from.x, 0}, kLineHalf);
    AddStroke(from, {0, from.y}, kLineHalf);
  }
}

void LabelGround::AddStroke(Vector from, Vector to, double halfWidth) {
  const Vector way = to + -1 * from;
  const double length = LengthOf(way);
  strokes_.push_back({from, length == 0 ? way : 1 / length * way, length, halfWidth});
}

bool LabelGround::Stroke::Holds(Vector place) const {
  const Vector there = place + -1 * from;
  const double way = std::clamp(there.x * along.x + there.y * along.y, 0.0, length);
  const Vector apart = there + -way * along;
  return apart.x * apart.x + apart.y * apart.y < halfWidth * halfWidth;
}

// Places from the right or upper end to the other one, on both sides of the line.
LabelBox LabelGround::PlaceAtLine(const FigureItem& line, LabelSize label) {
  const Vector point = PointOf(line);
  const Vector along = DirectionOf(line);
  const Reach reach = ReachOf(point, along, edgeUp_);
  std::vector<LabelBox> places;
  for (double way = reach.last - label.width; way >= reach.first; way -= kSlide) {
    LabelBox place = {point + way * along, along, label};
    const Vector start = place.foot;
    place.foot = start + -(kLineGap + label.height) * place.Upward();
    places.push_back(place);
    place.foot = start + kLineGap * place.Upward();
    places.push_back(place);
  }
  // The ends first: there the label tells best which line it belongs to.
  std::ranges::stable_sort(places, {}, [&](const LabelBox& place) {
    const double way = LengthOf(place.foot + 0.5 * label.width * along);
    return -std::floor(way);
  });
  return Take(places);
}

// Round about the point, the nearest first.
LabelBox LabelGround::PlaceAtPoint(Vector point, LabelSize label) {
  constexpr double kFarthest = 1.6;  // squares
  constexpr double kStep = 0.16;
  const auto gapTo = [](double foot, double size) { return std::max({0.0, foot, -foot - size}); };
  // Among places as near the one whose middle is nearest, a little rather above.
  const auto distanceOf = [&](double right, double up) {
    const double gap = LengthOf({gapTo(right, label.width), gapTo(up, label.height)});
    return std::pair(std::round(gap / kStep),
                     LengthOf({right + label.width / 2, up + label.height / 2 - kStep}));
  };
  std::vector<std::pair<std::pair<double, double>, LabelBox>> byDistance;
  for (double right = kFarthest; right >= -kFarthest - label.width; right -= kStep)
    for (double up = kFarthest; up >= -kFarthest - label.height; up -= kStep)
      if (std::max(gapTo(right, label.width), gapTo(up, label.height)) >= kPointGap)
        byDistance.push_back({distanceOf(right, up), {point + Vector{right, up}, {1, 0}, label}});
  std::ranges::stable_sort(byDistance, {}, [](const auto& place) { return place.first; });
  std::vector<LabelBox> places;
  for (const auto& [distance, place] : byDistance) places.push_back(place);
  return Take(places);
}

bool LabelGround::IsFree(Vector place) const {
  if (std::abs(place.x) > kEdge || std::abs(place.y) > edgeUp_) return false;
  return std::ranges::none_of(boxes_, [&](const LabelBox& box) { return box.Holds(place); }) &&
         std::ranges::none_of(strokes_, [&](const Stroke& stroke) { return stroke.Holds(place); });
}

int LabelGround::Covered(const LabelBox& label, int most) const {
  const int across = static_cast<int>(std::ceil(label.size.width / kSample));
  const int up = static_cast<int>(std::ceil(label.size.height / kSample));
  int covered = 0;
  for (int i = 0; i <= across && covered < most; ++i)
    for (int j = 0; j <= up && covered < most; ++j)
      covered += IsFree(label.foot + label.size.width * i / across * label.along +
                        label.size.height * j / up * label.Upward())
                     ? 0
                     : 1;
  return covered;
}

LabelBox LabelGround::Take(const std::vector<LabelBox>& places) {
  int fewest = std::numeric_limits<int>::max();
  LabelBox best;
  for (const LabelBox& place : places) {
    const int covered = Covered(place, fewest);
    if (covered < fewest) {
      fewest = covered;
      best = place;
    }
    if (fewest == 0) break;
  }
  boxes_.push_back(best);
  return best;
}

}  // namespace course::graphs
