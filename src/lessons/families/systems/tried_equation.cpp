#include "lessons/families/systems/tried_equation.h"

#include <cstddef>
#include <cstdlib>

#include "engine/page.h"
#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {
namespace {

using namespace page;

// "+ 7" or "- 7" with gaps around the sign; a product of 0 keeps the sign of its coefficient.
std::string LaterNumber(int number, int coefficient) {
  const bool minus = number < 0 || (number == 0 && coefficient < 0);
  return tutor::Gap + (minus ? "-" : "+") + tutor::Gap + NumStr(std::abs(number));
}

// A side from its terms: of a coefficient, what it is at the head and behind another term.
template <class First, class Later>
std::string Joined(const Side& side, First first, Later later) {
  std::string text;
  for (const auto& [coefficient, isX] : {std::pair(side.x, true), std::pair(side.y, false)}) {
    if (coefficient == 0) continue;
    text += text.empty() ? first(coefficient, isX) : later(coefficient, isX);
  }
  if (text.empty()) return NumStr(side.constant);
  return side.constant == 0 ? text : text + LaterNumber(side.constant, 1);
}

std::string TextOf(const Side& side) {
  const auto letter = [](bool isX) { return isX ? "x" : "y"; };
  return Joined(
      side, [&](int coefficient, bool isX) { return CoefText(coefficient) + letter(isX); },
      [&](int coefficient, bool isX) { return SignedCoefText(coefficient) + letter(isX); });
}

std::string WithNumbers(const Side& side, int x, int y) {
  return Joined(
      side, [&](int coefficient, bool isX) { return TermText(coefficient, isX ? x : y); },
      [&](int coefficient, bool isX) { return LaterTermText(coefficient, isX ? x : y); });
}

std::string Products(const Side& side, int x, int y) {
  const auto product = [&](int coefficient, bool isX) { return coefficient * (isX ? x : y); };
  return Joined(
      side, [&](int coefficient, bool isX) { return NumStr(product(coefficient, isX)); },
      [&](int coefficient, bool isX) {
        return LaterNumber(product(coefficient, isX), coefficient);
      });
}

}  // namespace

std::string TriedEquation::Text() const {
  return TextOf(left) + " = " + TextOf(right);
}

std::vector<std::string> TriedEquation::LinesFor(int x, int y) const {
  const auto values = [&](const Side& side) { return NumStr(side.ValueFor(x, y)); };
  std::vector<std::string> lines = {WithNumbers(left, x, y) + " = " + WithNumbers(right, x, y)};
  for (const std::string& line :
       {Products(left, x, y) + " = " + Products(right, x, y), values(left) + " = " + values(right)})
    if (line != lines.back()) lines.push_back(line);
  return lines;
}

void SayPairMeans(int x, int y) {
  SayInBox(Text("{} means x = {} and y = {}.", PairText(x, y), x, y));
}

namespace {

const char* WhatToEvaluate(const TriedEquation& equation) {
  if (!equation.right.HasLetter())
    return R"(\bEvaluate the expression on the left side of the equal sign.\z)";
  if (equation.IsSolvedForY())
    return R"(\bEvaluate the expression on the right side of the equal sign.\z)";
  return R"(\bEvaluate the expressions on both sides of the equal sign.\z)";
}

}  // namespace

void SayEvaluation(const TriedEquation& equation, int x, int y) {
  std::vector<std::string> lines = equation.LinesFor(x, y);
  SayInBox(AlignedEquation(lines.front()));
  SayInBox(WhatToEvaluate(equation));
  PageEnd();
  if (lines.size() > 1) lines.erase(lines.begin());
  lines.back() += equation.IsTrueFor(x, y) ? R"(   \btrue\z)" : R"(   \rfalse\z)";
  for (const std::string& line : lines) SayInBox(AlignedEquation(line));
}

void SayVerdict(const TriedEquation& equation, int x, int y) {
  SayInBox(Text("So {} is {}.", PairText(x, y),
                Words{equation.IsTrueFor(x, y) ? "a solution" : "not a solution"}));
}

}  // namespace course::systems
