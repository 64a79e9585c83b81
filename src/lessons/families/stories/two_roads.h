// A figure of two roads that begin in one town, with a vehicle on each, to scale: who is where, and
// how large the gap between them is.  The vehicles slide along their roads.
#pragma once

#include <string>

namespace course::stories {

enum class RoadsGo { SameWay, OppositeWays };  // the upper one to the left then

class TwoRoads {
 public:
  // Three rows from a row of the lesson screen on, for ways of so many miles at most.
  TwoRoads(double row, RoadsGo way, double firstMiles, double secondMiles);

  // The roads A and B, both vehicles at the town; its name stands in the row above, "" leaves it
  // out.
  void Draw(const std::string& town);
  // Puts the vehicles so many miles from the town.
  void Place(double firstMiles, double secondMiles);
  // They slide there, the first one first.
  void GoTo(double firstMiles, double secondMiles);
  // Below the roads, between the fronts of the vehicles; the cursor stays.
  void ShowGap(const std::string& text) const;

 private:
  struct Vehicle {
    double row;
    int direction;  // 1 to the right, -1 to the left
    double miles = 0;
  };
  double FrontOf(const Vehicle& vehicle) const;
  double LeftOf(const Vehicle& vehicle) const;
  void DrawVehicle(const Vehicle& vehicle) const;
  void Slide(const Vehicle& vehicle, double miles) const;
  void ClearGap() const;

  double row_;
  double townCol_;
  double milesOfColumn_;
  Vehicle first_;
  Vehicle second_;
};

}  // namespace course::stories
