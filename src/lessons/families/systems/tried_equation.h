// A linear equation in x and y with terms on either side, and an ordered pair that is tried in it:
// the numbers are put in place of the letters, and both sides are evaluated line by line.
#pragma once

#include <string>
#include <vector>

namespace course::systems {

// x, y and a constant; 0 leaves a term out.
struct Side {
  int x = 0;
  int y = 0;
  int constant = 0;

  bool HasLetter() const { return x != 0 || y != 0; }
  int ValueFor(int xValue, int yValue) const { return x * xValue + y * yValue + constant; }
};

struct TriedEquation {
  Side left;
  Side right;

  std::string Text() const;  // "3x = -2y + 7"
  bool IsSolvedForY() const { return left.x == 0 && left.y == 1 && left.constant == 0; }
  bool IsTrueFor(int x, int y) const { return left.ValueFor(x, y) == right.ValueFor(x, y); }
  // "3(2) = -2(-1) + 7", "6 = 2 + 7", "6 = 9"; a line like the one before is left out.
  std::vector<std::string> LinesFor(int x, int y) const;
};

// In the white box, which has to be there.  The signs of equality stand in one column.
void SayPairMeans(int x, int y);
// The numbers in their places and the heading of the steps, which end a page, then the steps up to
// what is true or false.
void SayEvaluation(const TriedEquation& equation, int x, int y);
// What that says of the pair.
void SayVerdict(const TriedEquation& equation, int x, int y);

}  // namespace course::systems
