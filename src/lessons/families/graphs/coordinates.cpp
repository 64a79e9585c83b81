#include "lessons/families/graphs/coordinates.h"

#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::graphs {

std::string RaisedNumberText(int number) {
  return (number < 0 ? tutor::RaisedMinus : "") + NumStr(std::abs(number));
}

std::string GraphPointText(const std::string& x, const std::string& y) {
  return "(" + x + "," + y + ")";
}

std::string GraphPointText(const GridPoint& point) {
  return GraphPointText(RaisedNumberText(point.x), RaisedNumberText(point.y));
}

}  // namespace course::graphs
