// The steps in which the quadratic formula solves an equation, page by page: its coefficients are
// read off and put in, the discriminant is worked out in the wiper box, the fraction is simplified.
// The lesson shows them for its example on a teaching screen, and for a problem in its explanation.
#pragma once

#include <string>

#include "engine/lesson_script.h"
#include "lessons/unit12_quadratic_equations/quadratic.h"

namespace course {

// "x = ...", for PrintStackedRow.
std::string QuadraticFormulaText();
// "ax^2^ + bx + c = 0" with its letters in yellow and its terms wide apart.
void PrintStandardForm(double row);
// "(centre +- spread)/den" for PrintStackedRow.
std::string RootsOver(int centre, const std::string& spread, int den);

class FormulaSteps : public LessonScript {
 protected:
  using LessonScript::LessonScript;

  // From row 5 of a page that has a heading above it.  Ends at the roots on one line, or at "No
  // real roots".
  void SolveByFormula();

  // The terms below those of PrintStandardForm, on row 9.
  void PrintSpreadEquation() const;
  // A copy of each term slides down to row 12 and turns into the value of its letter.
  void TurnTermsIntoValues();
  // A text of the row slips out below it, goes so many columns to the right, or to the left when
  // they are negative, and comes back into the row.  The row below is free.
  void CarryAcross(double row, int column, int width, int columns);

  Quadratic equation_;  // the one that is solved

 private:
  void ReadOff();
  void ShowNotes() const;
  void PutIn();
  void WorkOutDiscriminant();
  void ConcludeNoRealRoots();
  void DiscriminantUnderRadical();
  void SimplifyRadical();
  void ReduceRoots();
  void SplitRoots();
  void CheckRoot();
  void WriteAnswer(double row);

  void TurnIntoValue(const std::string& term, const std::string& letter, int value, int column);
  std::string Unreduced(const std::string& spread) const;
  std::string InsertedRoot(const Fraction& root) const;
  std::string InsertedValues(const Fraction& root) const;

  int Discriminant() const { return equation_.Discriminant(); }
  Radical Root() const { return RootOf(Discriminant()); }
  RootPair Answer() const { return *RootsOf(-equation_.b, Discriminant(), 2 * equation_.a); }
};

}  // namespace course
