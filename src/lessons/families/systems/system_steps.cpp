#include "lessons/families/systems/system_steps.h"

#include <cstdlib>

#include "engine/choices.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {

using namespace page;

std::string ActionToRemove(int coefficient, const std::string& letter) {
  const std::string size =
      letter.empty() ? NumStr(std::abs(coefficient)) : CoefText(std::abs(coefficient)) + letter;
  return Text(coefficient > 0 ? "Subtracting {} from both sides:" : "Adding {} to both sides:",
              size);
}

std::string ActionToIsolate(int coefficient) {
  return coefficient == -1 ? "Multiplying both sides by -1:"
                           : Text("Dividing both sides by {}:", coefficient);
}

std::vector<EquationStep> StepsToSlopeIntercept(const LinearEquation& equation) {
  const auto [a, b, c] = equation;
  const std::string constant = c == 0 ? "" : tutor::Gap + SignedNumberText(c);
  std::vector<EquationStep> steps = {
      {ActionToRemove(a, "x"), CoefText(b) + "y = " + CoefText(-a) + "x" + constant}};
  if (b != 1) steps.push_back({ActionToIsolate(b), SlopeInterceptText(equation)});
  return steps;
}

std::string AlignedEquation(const std::string& equation) {
  constexpr std::size_t kEqualsCol = 18;
  std::string text;
  for (std::size_t i = equation.find('='); i < kEqualsCol; ++i) text += tutor::Gap;
  return text + WithoutBreaks(equation);
}

void SayStepInBox(const EquationStep& step) {
  SayInBox(R"(\b)" + step.action + R"(\z)");
  SayInBox(AlignedEquation(step.equation));
}

std::string TermText(int coefficient, int value) {
  const bool bare = coefficient == 1 || (coefficient == -1 && value >= 0);
  return CoefText(coefficient) + (bare ? NumStr(value) : "(" + NumStr(value) + ")");
}

std::string LaterTermText(int coefficient, int value) {
  const bool bare = std::abs(coefficient) == 1 && value >= 0;
  return SignedCoefText(coefficient) + (bare ? NumStr(value) : "(" + NumStr(value) + ")");
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
  if (!EndsAtNone(problem)) return;
  Say("This is not among the choices:");
  AddLine(kNoneOfTheAbove);
}

}  // namespace course::systems
