// The screen on which the equation of the line through two points is found: a plane with the points
// at the right edge, what is known of the line on its left, and the step in work below.  Points
// beyond the grid get no plane.
#pragma once

#include <string>

#include "lessons/families/graphs/line_through_points.h"

namespace course::graphs {

class LineBoard {
 public:
  explicit LineBoard(const LineThroughPoints& line);

  static constexpr double kPlaneRow = 4;
  static constexpr double kTextRow = 4.4;  // beside the plane
  static constexpr double kBelowPlane = 15;

  void ShowPoints() const;
  // The steps, each in place of the one before.  The caller ends their pages.
  void FindSlope() const;
  void PutFirstPointIn() const;
  void SolveForIntercept() const;
  // Draws the line, and tries the second point.
  void ShowEquationAndCheck() const;
  // Of a line whose points have all the same y, or the same x, in place of the last three.
  void ShowHorizontal() const;
  void ShowVertical() const;
  void DrawLine() const;

 private:
  bool IsOnPlane() const;
  Fraction Product() const;  // slope times the x of the first point

  LineThroughPoints line_;
};

}  // namespace course::graphs
