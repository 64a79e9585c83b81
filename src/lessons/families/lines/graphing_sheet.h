// The screen on which one linear equation is graphed: plane 1 at the right; for y = mx + b the
// intercept and a step, for ax + by = c a table of points at the left, and a white box below in
// which they are found.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/systems/linear_system.h"

namespace course::lines {

inline constexpr int kFirstPoint = 1;  // rows of the table
inline constexpr int kSecondPoint = 2;
inline constexpr int kThirdPoint = 3;

class GraphingSheet {
 public:
  explicit GraphingSheet(const systems::LinearEquation& equation) : equation_(equation) {}

  // What can be read from the equation when its slope and intercept are whole numbers.
  int Slope() const { return equation_.Slope(); }
  int Intercept() const { return equation_.Intercept(); }
  bool Rises() const { return equation_.a * equation_.b < 0; }
  bool CrossesAboveZero() const { return equation_.c * equation_.b > 0; }

  // Numbers for x, 0 first and then away from it, whose points are crossings of the grid.
  std::vector<int> GoodXs() const;
  // "-3/2", "4": what y is for an x.
  std::string YText(int x) const;

  void ShowEmptyPlane(double row) const;
  void PlotIntercept() const;
  void DrawStep() const;  // from the intercept, to a second point
  void DrawLine(const std::string& label = "") const;

  void ShowTable(double row) const;
  // Fills a row of the table, and plots the point.
  void Enter(int row, int x) const;
  // In the white box, two pages: the equation with a number for x, and y alone.
  void SolveForY(int x) const;
  // The same, and the pair is entered.
  void FindPoint(int row, int x) const;

 private:
  int Rest(int x) const { return equation_.c - equation_.a * x; }  // what by is equal to

  systems::LinearEquation equation_;
};

}  // namespace course::lines
