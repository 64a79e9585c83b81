#include "lesson_lab/tally.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "mathkit/tutor_codes.h"

namespace lesson_lab {
namespace {

using lesson_check::Habits;
using lesson_check::Tally;

double Percent(double part, double whole) {
  return whole == 0 ? 0 : part * 100 / whole;
}

void PrintMistakes(const Tally& tally) {
  double choices = 0;
  for (const auto& [name, count] : tally.mistakes) choices += static_cast<double>(count.met);
  for (const auto& [name, count] : tally.mistakes)
    std::printf("    %7ld  %4.1f %%  %s\n", count.met, Percent(double(count.met), choices),
                course::ToUtf8(name).c_str());
}

// The frequent ones; a lesson may have hundreds.
void PrintKinds(const Tally& tally) {
  constexpr std::size_t kShown = 12;
  std::vector<std::pair<long, std::string>> kinds;
  double problems = 0;
  for (const auto& [kind, count] : tally.kinds) {
    kinds.emplace_back(count, kind);
    problems += static_cast<double>(count);
  }
  std::ranges::sort(kinds, std::greater{});
  std::printf("    %zu different problems of %zu kinds\n", tally.different.size(), kinds.size());
  for (std::size_t i = 0; i < std::min(kinds.size(), kShown); ++i)
    std::printf("    %7ld  %4.1f %%  %s\n", kinds[i].first,
                Percent(double(kinds[i].first), problems), course::ToUtf8(kinds[i].second).c_str());
}

void PrintHabits(const Habits& habits) {
  const auto problems = static_cast<double>(habits.problems);
  std::printf("    Who does not work wins %.1f %% by chance", Percent(habits.chance, problems));
  for (std::size_t i = 0; i < habits.wins.size(); ++i)
    std::printf(", %.1f %% with %s", Percent(habits.wins[i], problems), lesson_check::kHabits[i]);
  std::printf("\n");
}

}  // namespace

void PrintTally(const Tally& tally) {
  std::printf("  Wrong choices:\n");
  PrintMistakes(tally);
  std::printf("  Problems:\n");
  PrintKinds(tally);
  PrintHabits(tally.habits);
}

}  // namespace lesson_lab
