#include "lessons/families/systems/system_steps.h"

#include <cstdlib>

#include "engine/choices.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {
namespace {

using namespace page;

// A coefficient in front of a number in place of its letter: 2(3), -(-3), 3.
std::string TermText(int coefficient, int value) {
  const bool bare = coefficient == 1 || (coefficient == -1 && value >= 0);
  return CoefText(coefficient) + (bare ? NumStr(value) : "(" + NumStr(value) + ")");
}

// The same behind another term.
std::string LaterTermText(int coefficient, int value) {
  const bool bare = std::abs(coefficient) == 1 && value >= 0;
  return SignedCoefText(coefficient) + (bare ? NumStr(value) : "(" + NumStr(value) + ")");
}

}  // namespace

std::vector<EquationStep> StepsToSlopeIntercept(const LinearEquation& equation) {
  const auto [a, b, c] = equation;
  const std::string term = CoefText(std::abs(a)) + "x";
  const std::string constant = c == 0 ? "" : tutor::Gap + SignedNumberText(c);
  std::vector<EquationStep> steps = {
      {Text(a > 0 ? "Subtract {} from both sides:" : "Add {} to both sides:", term),
       CoefText(b) + "y = " + CoefText(-a) + "x" + constant}};
  if (b != 1) steps.push_back({Text("Divide both sides by {}:", b), SlopeInterceptText(equation)});
  return steps;
}

std::string SubstitutedText(const LinearEquation& equation, int x, int y) {
  const auto [a, b, c] = equation;
  const std::string substituted = TermText(a, x) + LaterTermText(b, y);
  const std::string sign = b * y < 0 || (y == 0 && b < 0) ? "-" : "+";
  const std::string products =
      NumStr(a * x) + tutor::Gap + sign + tutor::Gap + NumStr(std::abs(b * y));
  return substituted + " = " + (products == substituted ? "" : products + " = ") +
         NumStr(a * x + b * y);
}

void SayPairInBox(int x, int y) {
  SayInBox(Text("{} means x = {} and y = {}:", PairText(x, y), x, y));
}

void TryPairInBox(const LinearEquation& equation, int x, int y) {
  const std::string work = SubstitutedText(equation, x, y);
  if (equation.a * x + equation.b * y == equation.c)
    SayInBox(Text(R"({}, \btrue\z)", work));
  else
    SayInBox(Text(R"({}, and not {}: \rfalse\z)", work, equation.c));
}

void ConcludeSystem(const Problem& problem, const LinearSystem& system, double row) {
  if (system.Class() == SystemClass::OneSolution) return ConcludeAt(row, problem);
  SayAt(row, SolutionSentence(system.Class()));
  Say("This is not among the choices:");
  AddLine(kNoneOfTheAbove);
}

}  // namespace course::systems
