#include "lessons/families/written/whole_number_choices.h"

#include <algorithm>

#include "engine/choices.h"
#include "mathkit/expressions.h"

namespace course::written {
namespace {

int NearTo(int right, RandomStream& random) {
  constexpr int kWidth = 102;
  constexpr int kMost = 50;  // above the right one
  for (;;) {
    const int near = right - static_cast<int>(random.Rnd() * kWidth) + kMost;
    if (near >= 1) return near;  // no answer is 0 or negative
  }
}

}  // namespace

void FillWholeNumberChoices(Problem& problem, int right, const std::vector<NumberMistake>& mistakes,
                            RandomStream& random) {
  constexpr int kWrong = 4;
  const int count = static_cast<int>(mistakes.size());
  const std::vector<int> order = random.RandSeq(count, count);
  int below = std::min(random.Rand(0, kWrong), right - 1);
  int above = kWrong - below;
  std::vector<int> taken = {right};
  Choices<int> choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(right);
  const auto offer = [&](const std::string& mistake, int value) {
    int& room = value < right ? below : above;
    if (value < 1 || room == 0 || std::ranges::count(taken, value) > 0) return;
    choices.Wrong(mistake, value);
    taken.push_back(value);
    --room;
  };
  for (const int i : order) {
    const auto& [name, value] = mistakes[static_cast<std::size_t>(i - 1)];
    offer(name, value);
  }
  while (!choices.Full()) offer(kFiller, NearTo(right, random));
}

}  // namespace course::written
