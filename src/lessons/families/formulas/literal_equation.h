// Equations with several letters that are solved for one of them, and the choices that go with
// them.  In the forms below x is the letter asked for.
#pragma once

#include <string>

#include "engine/problem.h"
#include "lessons/families/formulas/letter_terms.h"
#include "mathkit/random_stream.h"

namespace course::formulas {

enum class LiteralForm {
  LeftSide,           // px + qy = z
  RightSide,          // z = qy + px
  LetterCoefficient,  // wx + py = qz
  SumOfLetters,       // p(x + y) = qz
  FractionFormula,    // y = p/q x + rz
};

struct LiteralEquation {
  LiteralForm form = LiteralForm::LeftSide;
  std::string x, y, z, w;  // different letters
  int p = 0, q = 0, r = 0;

  // The coefficient of x where it is a number; of the sum that x is part of in SumOfLetters.
  Fraction Coefficient() const;
  LetterTerm Added() const;  // what stands beside x: qy, py, y or rz
  LetterTerm Alone() const;  // the other side: z, qz or y
};

std::string LeftText(const LiteralEquation& equation);
std::string RightText(const LiteralEquation& equation);
// Solved for x; without "x = ".
std::string SolvedText(const LiteralEquation& equation);

// Draws form, letters and numbers.
LiteralEquation DrawLiteralEquation(RandomStream& random);
// The question, "Solve for x.", the equation, and five choices without one at random.  One draw.
void SetLiteralProblem(Problem& problem, const LiteralEquation& equation, RandomStream& random);

}  // namespace course::formulas
