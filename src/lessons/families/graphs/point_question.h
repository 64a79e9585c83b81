// Questions to a coordinate plane with five lettered points: the coordinates of a point, or the
// point with given coordinates.  The other four points are where mistakes lead to.
//
//   question.Draw(random, problem);   // fills question, choices and figure of the problem
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/graphs/plane_figure.h"
#include "mathkit/random_stream.h"

namespace course::graphs {

struct PlanePoint {
  int x = 0;
  int y = 0;
  bool operator==(const PlanePoint&) const = default;
};

// A coordinate with the raised minus, and "(x,y)" made of two of them.
std::string CoordinateText(int coordinate);
std::string CoordinatesText(PlanePoint point);

class PointQuestion {
 public:
  void Draw(RandomStream& random, Problem& problem);

  PlaneHeight Plane() const { return plane_; }
  bool AsksForPoint() const { return asksForPoint_; }
  // The point that is asked about or is the answer, and its letter.
  PlanePoint Point() const { return points_[0].place; }
  const std::string& Letter() const { return points_[0].letter; }

 private:
  struct LetteredPoint {
    PlanePoint place;
    std::string mistake;  // that leads to it; "" of the first point, which is right
    std::string letter;
  };

  int SquaresUp() const { return static_cast<int>(plane_); }
  bool HasRoomAt(PlanePoint place) const;
  bool IsTaken(PlanePoint place) const;
  std::string MistakeOfSignAt(PlanePoint place) const;
  std::string OtherMistakeAt(PlanePoint place) const;
  std::string MistakeAt(PlanePoint place) const;
  PlanePoint DrawPlace(RandomStream& random) const;
  void DrawPoints(RandomStream& random);
  void DrawLetters(RandomStream& random);

  PlaneHeight plane_ = PlaneHeight::Full;
  bool asksForPoint_ = false;
  std::vector<LetteredPoint> points_;
};

}  // namespace course::graphs
