// What a figure shows, in numbers: kept by the routine that draws it, judged and spoken from there.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace course {

// One thing of a figure: shape "interval", "point", "line" ..., and its numbers by name, such as
// {"from", -3}, {"closed", 1}.
struct FigureItem {
  std::string shape;
  std::vector<std::pair<std::string, double>> values;
};

}  // namespace course
