#include "engine/problem.h"

#include <cstdlib>

namespace course {

int ChoiceCountOf(int kind) {
  return std::abs(kind) == choice_kind::FourShuffled ? 4 : 5;
}

bool HasNoneOfTheAbove(int kind) {
  return std::abs(kind) == choice_kind::FourShuffledAndNone;
}

std::string MistakeOf(const Problem& problem, int choice) {
  if (choice == 5 && HasNoneOfTheAbove(problem.kind)) return "";
  return problem.choices.at(static_cast<std::size_t>(choice)).mistake;
}

std::string ChoiceText(const Problem& problem, int choice) {
  if (choice == 5 && HasNoneOfTheAbove(problem.kind)) return kNoneOfTheAbove;
  return problem.choices.at(static_cast<std::size_t>(choice)).text;
}

}  // namespace course
