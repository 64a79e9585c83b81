// Where labels stand on a coordinate plane: beside their line or point, and off the axes with their
// numbers, other lines, points and labels, as far as there is room.  All in grid squares, from -6.5
// to 6.5 across, and so far or less upward.
#pragma once

#include <vector>

#include "display/figure_item.h"

namespace course::graphs {

struct Vector {
  double x = 0;
  double y = 0;
};
inline Vector operator+(Vector a, Vector b) {
  return {a.x + b.x, a.y + b.y};
}
inline Vector operator*(double factor, Vector a) {
  return {factor * a.x, factor * a.y};
}

struct LabelSize {
  double width = 0;
  double height = 0;
};

// A text from its foot on the left, along a direction of length 1.
struct LabelBox {
  Vector foot;
  Vector along = {1, 0};
  LabelSize size;

  Vector Upward() const { return {-along.y, along.x}; }
  bool Holds(Vector place) const;
};

// The direction of a line to the right, or upward, of length 1.
Vector DirectionOf(const FigureItem& line);
// A point of it: on the y axis, or of an upright line on the x axis.
Vector PointOf(const FigureItem& line);

class LabelGround {
 public:
  // number is the size of the longest number at an axis; the grid has so many squares upward.
  explicit LabelGround(LabelSize number = {}, int squaresUp = 5);

  // Labels keep clear of this line, point, step or pair of guides.
  void Avoid(const FigureItem& item);
  // The best place for a label, of which later ones keep clear.
  LabelBox PlaceAtLine(const FigureItem& line, LabelSize label);
  LabelBox PlaceAtPoint(Vector point, LabelSize label);

 private:
  struct Stroke {
    Vector from;
    Vector along;  // of length 1, or 0 where the stroke is a point
    double length;
    double halfWidth;

    bool Holds(Vector place) const;
  };

  void AddStroke(Vector from, Vector to, double halfWidth);
  bool IsFree(Vector place) const;
  // How much of the label lies on something, in samples; counted up to most.
  int Covered(const LabelBox& label, int most) const;
  LabelBox Take(const std::vector<LabelBox>& places);

  double edgeUp_;  // how far up and down a label reaches
  std::vector<Stroke> strokes_;
  std::vector<LabelBox> boxes_;
};

}  // namespace course::graphs
