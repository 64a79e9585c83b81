#include "lessons/families/systems/elimination_plan.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <tuple>

#include "lessons/page/say.h"
#include "mathkit/expressions.h"

namespace course::systems {
namespace {

using page::Text;

// The factors that make the terms of a letter opposites.  One sign is turned where it has to be,
// in an equation that is multiplied anyway if there is one.
EliminationPlan PlanWith(const LinearSystem& system, char letter) {
  const int first = CoefficientOf(system.first, letter);
  const int second = CoefficientOf(system.second, letter);
  const int common = std::lcm(first, second);
  EliminationPlan plan = {letter, common / std::abs(first), common / std::abs(second)};
  if ((first > 0) != (second > 0)) return plan;
  const bool turnFirst = plan.firstFactor != 1 && plan.secondFactor == 1;
  (turnFirst ? plan.firstFactor : plan.secondFactor) *= -1;
  return plan;
}

std::tuple<int, int> CostOf(const EliminationPlan& plan) {
  const int multiplications = (plan.firstFactor != 1 ? 1 : 0) + (plan.secondFactor != 1 ? 1 : 0);
  return {multiplications, std::abs(plan.firstFactor) + std::abs(plan.secondFactor)};
}

}  // namespace

EliminationPlan PlanFor(const LinearSystem& system) {
  const EliminationPlan withX = PlanWith(system, 'x');
  const EliminationPlan withY = PlanWith(system, 'y');
  return CostOf(withX) < CostOf(withY) ? withX : withY;
}

LinearEquation Multiplied(const LinearEquation& equation, int factor) {
  return {factor * equation.a, factor * equation.b, factor * equation.c};
}

int CoefficientOf(const LinearEquation& equation, char letter) {
  return letter == 'x' ? equation.a : equation.b;
}

std::string LetterTermText(int coefficient, char letter) {
  return CoefText(coefficient) + letter;
}

double ColumnsToAlign(const std::string& equation, const std::string& other) {
  return std::max(0.0,
                  static_cast<double>(other.find('=')) - static_cast<double>(equation.find('=')));
}

std::string ReasonOfPlan(const LinearSystem& system, const EliminationPlan& plan) {
  const std::string letter(1, plan.letter);
  const auto termOf = [&](int line, int factor) {
    return LetterTermText(factor * CoefficientOf(system.Line(line), plan.letter), plan.letter);
  };
  const std::string first = termOf(1, 1);
  const std::string second = termOf(2, 1);
  if (plan.firstFactor == 1 && plan.secondFactor == 1)
    return Text("{} and {} are opposites.  So {} drops out when we add.", first, second, letter);
  if (plan.firstFactor == 1 && plan.secondFactor == -1)
    return Text("Both equations have {}.  We multiply Equation 2 by -1 to get its opposite.",
                first);
  if (plan.firstFactor != 1 && plan.secondFactor != 1)
    return Text(
        "We want the opposites {} and {}.  So we multiply Equation 1 by {} and Equation 2 "
        "by {}.",
        termOf(1, plan.firstFactor), termOf(2, plan.secondFactor), plan.firstFactor,
        plan.secondFactor);
  const int line = plan.firstFactor != 1 ? 1 : 2;
  const int factor = plan.Factor(line);
  return Text("{} times {} is {}, the opposite of {}.  So we multiply Equation {} by {}.", factor,
              termOf(line, 1), termOf(line, factor), line == 1 ? second : first, line, factor);
}

}  // namespace course::systems
