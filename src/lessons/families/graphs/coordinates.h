// Ordered pairs as a plane's lessons print them: "(-3,2)" with a raised minus, which is a sign and
// no subtraction, and without a blank behind the comma.
#pragma once

#include <string>

namespace course::graphs {

struct GridPoint {
  int x = 0;
  int y = 0;
  bool operator==(const GridPoint&) const = default;
};

// "-3" with a raised minus.
std::string RaisedNumberText(int number);
std::string GraphPointText(const GridPoint& point);
// The same with coordinates that are written already, such as a letter.
std::string GraphPointText(const std::string& x, const std::string& y);

}  // namespace course::graphs
