// Questions to a coordinate plane with five lettered points: the coordinates of a point, or the
// point with given coordinates.  The other four points are where mistakes lead to.
//
//   question.Draw(random, problem);   // fills question, choices and figure of the problem
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/graphs/coordinates.h"
#include "lessons/families/graphs/plane_figure.h"
#include "mathkit/random_stream.h"

namespace course::graphs {

class PointQuestion {
 public:
  void Draw(RandomStream& random, Problem& problem);

  PlaneHeight Plane() const { return plane_; }
  bool AsksForPoint() const { return asksForPoint_; }
  // The point that is asked about or is the answer, and its letter.
  GridPoint Point() const { return points_[0].place; }
  const std::string& Letter() const { return points_[0].letter; }

 private:
  struct LetteredPoint {
    GridPoint place;
    std::string mistake;  // that leads to it; "" of the first point, which is right
    std::string letter;
  };

  int SquaresUp() const { return static_cast<int>(plane_); }
  bool HasRoomAt(GridPoint place) const;
  bool IsTaken(GridPoint place) const;
  std::string MistakeOfSignAt(GridPoint place) const;
  std::string OtherMistakeAt(GridPoint place) const;
  std::string MistakeAt(GridPoint place) const;
  GridPoint DrawPlace(RandomStream& random) const;
  void DrawPoints(RandomStream& random);
  void DrawLetters(RandomStream& random);

  PlaneHeight plane_ = PlaneHeight::Full;
  bool asksForPoint_ = false;
  bool miscounts_ = false;  // whether the place of another kind is a square beside the first point
  std::vector<LetteredPoint> points_;
};

}  // namespace course::graphs
