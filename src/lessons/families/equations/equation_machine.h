// The machine behind the lessons on linear equations and inequalities: a statement a x + b = d x +
// c as text, its solution step by step, and the choices that go with it.
//
// It stands above the folders of the units because the equations of unit 3 and the inequalities of
// unit 10 are the same machine.  A lesson draws the numbers itself and rejects what it does not
// want; equation_sheet.h writes the solution on the screen, equation_explanation.h explains it.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::equations {

// coef times the letter, plus the number; a part that is 0 is not written.
struct LinearSide {
  int coef = 0;
  int number = 0;
  bool operator==(const LinearSide&) const = default;
};

struct LinearStatement {
  std::string letter = "x";
  LinearSide left;
  std::string relation = "=";  // or "<", ">", tutor::LessOrEqual, tutor::GreaterOrEqual
  LinearSide right;

  bool IsEquation() const { return relation == "="; }
};

// --- Texts ---------------------------------------------------------------------------------------

// "3x", "-x"; a coefficient of 0 gives "".
std::string TermText(int coef, const std::string& letter);
// "3x + 7", "-x", "-8", "0", with hard blanks around the inner sign.
std::string SideText(const LinearSide& side, const std::string& letter);
// The whole statement with the given blanks at either side of the relation.
std::string StatementText(const LinearStatement& statement, const std::string& blanks = " ");
// The relation read from right to left: what dividing by a negative number makes of it.
std::string ReversedRelation(const std::string& relation);

// --- Drawing -------------------------------------------------------------------------------------

// One draw each: -9 to 9, and -15 to 15.
int DrawCoefficient(RandomStream& random);
int DrawNumber(RandomStream& random);
// Neither the coefficients nor the numbers are of equal size: otherwise two of the mistakes lead to
// the same answer, or nothing is left to solve.
bool SizesDiffer(const LinearStatement& statement);
bool HasWholeSolution(const LinearStatement& statement);

// --- Solving -------------------------------------------------------------------------------------

// The letter, the relation, the value.  Equal coefficients stop the program.
struct Solution {
  Fraction value;
  std::string relation;
};
Solution SolutionOf(const LinearStatement& statement);
// "x = 5", "x < -2 1/2".
std::string SolutionText(const LinearStatement& statement);

// What is added to both sides, a term with the letter or a number, and what that gives.
struct Addition {
  LinearSide term;
  LinearStatement before;
  LinearStatement after;
};
// At most two: they remove the right side's letter, then the left side's number.  What stays is
// coefficient times letter on the left and a number on the right.
std::vector<Addition> AdditionsOf(const LinearStatement& statement);
LinearStatement IsolatedOf(const LinearStatement& statement);

// --- Choices -------------------------------------------------------------------------------------

// Fills the five choices, of which "None of the above" is right in a fifth of all problems: the
// fifth choice then holds the true answer, and no box shows it.  A choice is the bare number, in an
// inequality led by letter and relation.
void SetLinearChoices(Problem& problem, const LinearStatement& statement, RandomStream& random);

}  // namespace course::equations
