#include "lessons/families/graphs/line_through_points.h"

#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::graphs {

std::string PointText(const GridPoint& point) {
  return "(" + NumStr(point.x) + "," + NumStr(point.y) + ")";
}

LineEquation WithSlope(const Fraction& slope, const Fraction& constant) {
  return {false, slope, constant};
}

LineEquation Upright(int x) {
  return {true, {0, 1}, {x, 1}};
}

std::string SlopeTermText(const Fraction& slope) {
  return slope.den == 1 ? CoefText(slope.num) + "x" : ValueText(slope) + tutor::Gap + "x";
}

std::string SignedText(const Fraction& constant) {
  if (constant.num == 0) return "";
  const std::string sign = constant.num < 0 ? "-" : "+";
  return tutor::Gap + sign + tutor::Gap + ValueText({std::abs(constant.num), constant.den});
}

std::string EquationText(const LineEquation& line) {
  if (line.vertical) return "x = " + ValueText(line.constant);
  if (line.slope.num == 0) return "y = " + ValueText(line.constant);
  return "y = " + SlopeTermText(line.slope) + SignedText(line.constant);
}

LineEquation LineThroughPoints::ThroughFirst(const Fraction& slope) const {
  return WithSlope(slope, Fraction{first.y, 1} - slope * Fraction{first.x, 1});
}

Fraction LineThroughPoints::Intercept() const {
  return ThroughFirst(Slope()).constant;
}

LineEquation LineThroughPoints::Equation() const {
  return IsVertical() ? Upright(first.x) : ThroughFirst(Slope());
}

std::string SlopeText(const LineThroughPoints& line) {
  if (line.IsVertical()) return "Undefined";
  return line.IsHorizontal() ? "0" : FractionText(line.Rise(), line.Run());
}

}  // namespace course::graphs
