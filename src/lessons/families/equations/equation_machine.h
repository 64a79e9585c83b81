// The machine behind the lessons on linear equations and inequalities: a statement a x + b = d x +
// c as text, its solution step by step, and the choices that go with it.
//
//   lesson               draws                   explains
//   with 1 operation     a = 1, or b = 0; d = 0  one addition or one division
//   with 2 operations    d = 0                   an addition, a division
//   more complex ones    all four                two additions, a division
//   inequalities         all four, a relation    the same, and when the symbol is reversed
//
// A lesson does four things:
//   1. DrawProblem draws the numbers itself (DrawCoefficient, DrawNumber), throws away what it does
//      not want (SizesDiffer, HasWholeSolution), and ends with SetLinearProblem.
//   2. ShowProblem calls ShowStatement (equation_explanation.h), then the answer boxes.
//   3. ExplainProblem is ExplainLinear, for all four lessons.
//   4. Its teaching screens write statements of their own on an EquationSheet, by SheetFor,
//      WriteStatement, WriteAddition and WriteDivision, with words in the box of OpenWordBox.
//
// The judge is tools/lesson_check/judges/linear_statement.cpp, which knows every mistake.
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
// A number behind a term, " + 7" or " - 7"; 0 adds nothing.
std::string WithNumber(const std::string& term, int number);
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

// Writes the question, "Solve the following equation for x." and the statement, and fills the five
// choices by the recipe of the course, its draws in a fixed order.  "None of the above" is right in
// a fifth of all problems: the fifth choice then holds the true answer, and no box shows it.  A
// choice is the bare number, in an inequality led by letter and relation.
void SetLinearProblem(Problem& problem, const LinearStatement& statement, RandomStream& random);

}  // namespace course::equations
