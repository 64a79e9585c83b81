// The screen on which a system is solved by elimination.  Both equations stay in view below the
// banner; each of them, or its multiple, slides down in a print cell to the place where they are
// added term by term.  Below the sum a white box holds the work.
#pragma once

#include <string>

#include "lessons/families/systems/elimination_plan.h"
#include "lessons/families/systems/linear_system.h"

namespace course::systems {

class EliminationBoard {
 public:
  explicit EliminationBoard(const LinearSystem& system);

  static constexpr double kBelowEquations = 7.5;  // first row under the two equations
  static constexpr double kBelow = 11;            // under their sum
  static constexpr double kBelowCheck = 18;       // and under a check

  const EliminationPlan& Plan() const { return plan_; }
  void ShowEquations() const;
  // An empty white box below the sum.
  void OpenWorkBox() const;
  // A step each, which end their pages; the equation in work is 1 or 2.  One that is not multiplied
  // slides down as it is.
  void MultiplyAndMoveDown(int line) const;
  void MoveDown(int line) const;  // without a word in the white box
  void Add() const;
  void SubstituteBack() const;
  // The caller ends their last page.
  void SolveForLetter() const;
  void Check() const;

 private:
  char OtherLetter() const { return plan_.letter == 'x' ? 'y' : 'x'; }
  int ValueOf(char letter) const { return letter == 'x' ? system_.x : system_.y; }
  LinearEquation MultipleOf(int line) const;
  LinearEquation Sum() const;
  void SayWhatDropsOut() const;

  LinearSystem system_;
  EliminationPlan plan_;
};

}  // namespace course::systems
