#include "engine/figure_words.h"

#include <cmath>

#include "engine/screen_reader.h"
#include "mathkit/expressions.h"

namespace course {
namespace {

constexpr int kGridEnd = 5;

std::string PlaceText(double x, double y) {
  return "(" + NumStr(x) + ", " + NumStr(y) + ")";
}

std::string EndText(double number, bool closed) {
  return NumStr(number) + ", the point " + (closed ? "taken in" : "left out") + ",";
}

// The two crossings of the grid on the line that are nearest to the y axis; where there are none,
// the points at 0 and 1.
std::string TwoPointsOf(double slope, double intercept) {
  std::vector<std::string> points;
  for (int way = 0; way <= kGridEnd && points.size() < 2; ++way) {
    for (const int x : {way, -way}) {
      const double y = slope * x + intercept;
      const double whole = std::round(y);
      if (std::abs(y - whole) > 1e-9 || std::abs(whole) > kGridEnd || points.size() == 2) continue;
      const std::string point = PlaceText(x, whole);
      if (points.empty() || points[0] != point) points.push_back(point);
    }
  }
  if (points.size() < 2) return PlaceText(0, intercept) + " and " + PlaceText(1, slope + intercept);
  return points[0] + " and " + points[1];
}

std::string RayText(const FigureItem& ray) {
  return "a ray from " + EndText(ray.Value("from"), ray.Value("closed") == 1) + " to the " +
         (ray.Value("direction") > 0 ? "right" : "left");
}

std::string SegmentText(const FigureItem& segment) {
  std::string text = "a segment from " +
                     EndText(segment.Value("from"), segment.Value("fromClosed") == 1) + " to " +
                     EndText(segment.Value("to"), segment.Value("toClosed") == 1);
  text.pop_back();  // the comma
  return text;
}

std::string PointText(const FigureItem& point) {
  const std::string name =
      point.label.empty() ? "a point at " : "point " + SpokenText(point.label) + " at ";
  const double x = point.Value("x");
  const std::optional<double> y = point.Find("y");
  return name + (y ? PlaceText(x, *y) : NumStr(x));
}

std::string LineText(const FigureItem& line) {
  const std::optional<double> x = line.Find("x");
  return std::string(line.IsBroken() ? "a broken " : "a ") + (x ? "upright line" : "line") +
         (line.label.empty() ? "" : ", " + SpokenText(line.label) + ",") + " through " +
         (x ? PlaceText(*x, 0) : TwoPointsOf(line.Value("slope"), line.Value("intercept")));
}

std::string StepText(const FigureItem& step) {
  const double right = step.Value("right");
  const double up = step.Value("up");
  return "a step from " + PlaceText(step.Value("x"), step.Value("y")) + ", " +
         NumStr(std::abs(right)) + (right < 0 ? " to the left and " : " to the right and ") +
         NumStr(std::abs(up)) + (up < 0 ? " down" : " up");
}

}  // namespace

std::string WordsOf(const FigureItem& item) {
  if (item.shape == "ray") return RayText(item);
  if (item.shape == "segment") return SegmentText(item);
  if (item.shape == "point") return PointText(item);
  if (item.shape == "line") return LineText(item);
  if (item.shape == "step") return StepText(item);
  if (item.shape == "scale")
    return "a number at every " + NumStr(item.Value("numbers")) + ", a tick at every " +
           NumStr(item.Value("ticks"));
  if (item.shape == "guides")
    return "from " + PlaceText(item.Value("x"), item.Value("y")) + " straight to both axes";
  return item.shape;
}

std::string WordsOf(const std::vector<FigureItem>& items) {
  std::string words;
  for (const FigureItem& item : items) words += (words.empty() ? "" : "\n") + WordsOf(item);
  return words;
}

}  // namespace course
