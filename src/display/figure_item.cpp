#include "display/figure_item.h"

#include <algorithm>
#include <cmath>

#include "platform/stop.h"

namespace course {

std::optional<double> FigureItem::Find(std::string_view name) const {
  for (const auto& [key, value] : values)
    if (key == name) return value;
  return {};
}

double FigureItem::Value(std::string_view name) const {
  const std::optional<double> value = Find(name);
  if (!value) platform::Stop("FigureItem: a " + shape + " without " + std::string(name));
  return *value;
}

FigureItem PointItem(double x, double y, const std::string& label) {
  return {"point", {{"x", x}, {"y", y}}, label};
}

FigureItem PointOnLineItem(double x, const std::string& label) {
  return {"point", {{"x", x}}, label};
}

FigureItem LineItem(double slope, double intercept, const std::string& label) {
  return {"line", {{"slope", slope}, {"intercept", intercept}}, label};
}

FigureItem UprightItem(double x, const std::string& label) {
  return {"line", {{"x", x}}, label};
}

FigureItem StepItem(double x, double y, double right, double up) {
  return {"step", {{"x", x}, {"y", y}, {"right", right}, {"up", up}}};
}

FigureItem GuidesItem(double x, double y) {
  return {"guides", {{"x", x}, {"y", y}}};
}

FigureItem Broken(FigureItem line) {
  line.values.emplace_back("broken", 1);
  return line;
}

bool SamePlace(const FigureItem& a, const FigureItem& b) {
  constexpr double kRounding = 1e-9;  // of slopes such as 1/3
  return a.shape == b.shape && a.values.size() == b.values.size() &&
         std::ranges::all_of(a.values, [&](const auto& value) {
           const std::optional<double> other = b.Find(value.first);
           return other && std::abs(*other - value.second) < kRounding;
         });
}

}  // namespace course
