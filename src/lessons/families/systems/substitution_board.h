// The screen on which a system is solved by substitution.  Both equations stay in view below the
// banner; what y is equal to stands in a print cell beside Equation 1, and slides from there into
// Equation 2.  Below them a white box holds the work.
#pragma once

#include <string>

#include "lessons/families/systems/linear_system.h"

namespace course::systems {

class SubstitutionBoard {
 public:
  enum class First { AsGiven, SolvedForY };
  // Equation 1 as it is, or solved for y from the start.
  explicit SubstitutionBoard(const LinearSystem& system, First first = First::AsGiven);

  static constexpr double kBelow = 10;       // first row under the equations
  static constexpr double kBelowCheck = 17;  // and under a check

  void ShowEquations() const;
  // The steps, which end their pages.
  void IsolateY() const;
  void Substitute() const;
  void FindY() const;
  // The caller ends their last page.
  void SolveForX() const;
  void Check() const;

 private:
  std::string ValueOfY() const;     // "-2x + 3"
  std::string BeforeValue() const;  // of Equation 2, up to the place of y
  std::string BehindValue() const;
  bool NeedsParentheses() const;
  void ShowValueInCell() const;
  void MultiplyOutAndCollect() const;

  LinearSystem system_;
  First first_;
};

}  // namespace course::systems
