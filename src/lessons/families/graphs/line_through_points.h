// A line through two points with whole coordinates: its slope, its y intercept and its equation, as
// exact fractions and as text.
#pragma once

#include <string>

#include "lessons/families/graphs/coordinates.h"
#include "mathkit/fraction.h"

namespace course::graphs {

// "(3,-2)", with the minus sign of equations.
std::string PointText(const GridPoint& point);

// y = slope x + constant, or x = constant.
struct LineEquation {
  bool vertical = false;
  Fraction slope;  // 0 of a vertical line
  Fraction constant;
  bool operator==(const LineEquation&) const = default;
};
LineEquation WithSlope(const Fraction& slope, const Fraction& constant);
LineEquation Upright(int x);
// "y = -3/4 x + 5/2", "y = 2", "x = -3", with gaps around the sign.
std::string EquationText(const LineEquation& line);
// "-3/4 x", "2x", "-x".
std::string SlopeTermText(const Fraction& slope);
// " + 5/2", " - 3" behind another term; "" for 0.
std::string SignedText(const Fraction& constant);

// The line through two different points.
struct LineThroughPoints {
  GridPoint first;
  GridPoint second;

  int Rise() const { return second.y - first.y; }
  int Run() const { return second.x - first.x; }
  bool IsVertical() const { return Run() == 0; }
  bool IsHorizontal() const { return Rise() == 0; }
  // Of a line that is not vertical.
  Fraction Slope() const { return Reduced(Rise(), Run()); }
  Fraction Intercept() const;
  LineEquation Equation() const;
  // The line of this slope through the first point.
  LineEquation ThroughFirst(const Fraction& slope) const;
};
// "3/4", "0", "Undefined".
std::string SlopeText(const LineThroughPoints& line);

}  // namespace course::graphs
