// Two points of a line whose slope is known, one coordinate missing: how it is asked for and found.
#pragma once

#include <string>

#include "lessons/families/lines/slope_steps.h"

namespace course::lines {

class MissingCoordinate {
 public:
  // Of the step's second point x or y is called a; first tells which point stands first in the
  // question.
  MissingCoordinate(const SlopeStep& step, bool isX, bool knownFirst = true);

  int Value() const { return isX_ ? step_.to.x : step_.to.y; }
  // That of the known point, on the same axis.
  int Partner() const { return isX_ ? step_.from.x : step_.from.y; }
  std::string Question() const;

  // The steps, a page each, beside and below plane 1, whose top stands on the row; the last one
  // draws the points.  Then the check in place of the steps, whose page the caller ends.
  void Find(double row) const;
  void Check() const;

 private:
  std::string OtherText() const;
  void WriteSlope() const;
  void CompareParts() const;
  void SolveForA() const;

  SlopeStep step_;
  bool isX_;
  bool knownFirst_;
};

}  // namespace course::lines
