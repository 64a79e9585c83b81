// What a figure shows, in numbers: kept by the routine that draws it, judged and spoken from there.
//
//   "ray"      from, closed (1: the point itself belongs to it), direction (1 right, -1 left)
//   "segment"  from, to, fromClosed, toClosed; from is the smaller one
//   "point"    x and y on a plane, x alone on a number line
//   "line"     slope and intercept, or x alone of an upright line; broken, 1, when it is drawn so
//   "step"     from x, y: right, then up; below 0 it goes left or down
//   "scale"    numbers and ticks of a number line: from one to the next
//   "guides"   from x, y straight to both axes
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace course {

struct FigureItem {
  std::string shape;
  std::vector<std::pair<std::string, double>> values;
  std::string label = "";  // what is written at it, in the course's characters

  std::optional<double> Find(std::string_view name) const;
  // Stops the program when there is no such value.
  double Value(std::string_view name) const;
  bool IsBroken() const { return Find("broken").value_or(0) == 1; }
};

FigureItem PointItem(double x, double y, const std::string& label = "");
FigureItem PointOnLineItem(double x, const std::string& label = "");
// y = slope x + intercept.
FigureItem LineItem(double slope, double intercept, const std::string& label = "");
FigureItem UprightItem(double x, const std::string& label = "");
FigureItem StepItem(double x, double y, double right, double up);
FigureItem GuidesItem(double x, double y);
// The same line, broken.
FigureItem Broken(FigureItem line);

// The same thing in the same place, whatever is written at it.
bool SamePlace(const FigureItem& a, const FigureItem& b);

}  // namespace course
