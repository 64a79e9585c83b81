#include "lessons/families/written/whole_number_choices.h"

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
  const int others = static_cast<int>(mistakes.size()) - 1;
  const std::vector<int> order = random.RandSeq(others, others);
  int left = random.Rand(2, 3);
  Choices<int> choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(right);
  if (mistakes[0].value >= 1) choices.Wrong(mistakes[0].name, mistakes[0].value);
  for (const int i : order) {
    const NumberMistake& mistake = mistakes[static_cast<std::size_t>(i)];
    if (left == 0 || mistake.value < 1 || mistake.value == right) continue;
    choices.Wrong(mistake.name, mistake.value);
    --left;
  }
  choices.Fill([&] { return NearTo(right, random); });
}

}  // namespace course::written
