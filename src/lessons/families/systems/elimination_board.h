// The screen on which a system is solved by elimination.  Both equations stay in view below the
// banner; each of them, or its multiple, slides down in a print cell to the place where they are
// added term by term.  Below the sum a white box holds the work.
#pragma once

#include <cstddef>
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
  // Beside them, by what they are multiplied.
  void ShowFactors() const;
  // An empty white box below the sum; 0 rows reach down to the bottom of the screen.
  void OpenWorkBox(double rows = 0) const;
  // Equation 1 or 2, or its multiple, slides down; then their sum below them.
  void MoveDown(int line) const;
  void ShowSum() const;

  // The steps in the white box, which end their pages.  Two equations without a multiplication
  // slide down on the page of their sum.
  void BringDown() const;
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
  bool MultipliesBoth() const { return plan_.firstFactor != 1 && plan_.secondFactor != 1; }
  std::string TermByTerm(int line) const;
  void SayMultiplication(int line) const;

  // Equations in columns: "12x + 6y = -6".
  struct Columns {
    std::size_t x = 0;  // widths of the longest terms and constant
    std::size_t y = 0;  // without its sign
    std::size_t constant = 0;
    std::size_t LeftWidth() const;
    std::size_t Width() const;
  };
  std::string InColumns(const LinearEquation& equation) const;
  std::string SumInColumns() const;
  bool DropsOut(char letter) const { return CoefficientOf(Sum(), letter) == 0; }

  LinearSystem system_;
  EliminationPlan plan_;
  Columns columns_;
};

}  // namespace course::systems
