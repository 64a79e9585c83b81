#include "lessons/families/stories/motion_choices.h"

#include <utility>

#include "engine/choices.h"

namespace course::stories {
namespace {

constexpr int kChoices = 5;
constexpr int kLargestDenominator = 20;  // of a choice; a stranger fraction gives itself away
constexpr int kLargestRateShare = 10;    // of a wrong rate to the right one
constexpr int kLongestTime = 10;         // hours, of a choice; no motion lasts longer
constexpr int kMinutesOfHour = 60;

bool CanBeChoice(const Motion& motion, const Fraction& value) {
  if (value.num <= 0 || value.den > kLargestDenominator) return false;
  if (motion.asked == MotionPart::Rate)
    return !(value < Fraction{1, 1}) && value < Fraction{kLargestRateShare * motion.rate, 1};
  if (motion.asked == MotionPart::Distance) return true;
  return kMinutesOfHour % value.den == 0 && value < Fraction{kLongestTime, 1};
}

// A value of the same kind at random; nothing lasts or goes 0.
Choice Filler(const Motion& motion, RandomStream& random) {
  const Fraction answer = motion.Answer();
  Fraction value;
  do {
    if (motion.asked == MotionPart::Time) {
      const int hours = random.Rand(0, 9);
      const int quarters = random.Rand(0, 3);
      value = motion.withinAnHour ? Reduced(hours, 4) : Reduced(4 * hours + quarters, 4);
      continue;
    }
    value = {random.Rand(0, answer.num / answer.den + 19), 1};
    if (motion.asked == MotionPart::Rate) continue;
    const int twentieths = random.Rand(0, 19);
    if (answer.den > 1) value = value + Reduced(twentieths, 20);  // or it stands out
  } while (value.num == 0);
  return {motion.ValueText(value), kFiller};
}

// Puts the mistakes into the slots from 2 on; returns the first slot that is left.
int PlaceMistakes(const Motion& motion, Problem& problem) {
  int slot = 2;
  for (const auto& [mistake, value] : MistakesAt(motion)) {
    if (slot > kChoices || !CanBeChoice(motion, value)) continue;
    const std::string text = motion.ValueText(value);
    bool known = false;
    for (int i = 1; i < slot; ++i)
      known = known || problem.choices.at(static_cast<std::size_t>(i)).text == text;
    if (!known) problem.Wrong(slot++, mistake, text);
  }
  return slot;
}

}  // namespace

std::vector<MotionMistake> MistakesAt(const Motion& motion) {
  const Fraction d = motion.Distance();
  const Fraction t = motion.Hours();
  const Fraction still{motion.rate, 1};
  const Fraction drift{motion.direction * motion.drift, 1};
  const Fraction real = still + drift;
  const Fraction wrongWay = still - drift;
  const Fraction fullHours{motion.minutes / kMinutesOfHour, 1};
  const Fraction minutes{motion.minutes % kMinutesOfHour, 1};
  const Fraction asHundredths = fullHours + minutes / Fraction{100, 1};
  std::vector<MotionMistake> mistakes;
  switch (motion.asked) {
    case MotionPart::Distance:
      return {{"ignores the wind or current", still * t},
              {"takes the wind or current the wrong way", wrongWay * t},
              {"leaves the minutes out", real * fullHours},
              {"reads the minutes as hundredths of an hour", real * asHundredths},
              {"reads the minutes as hours", fullHours.num == 0 ? real * minutes : Fraction{}},
              {"divides in place of multiplying", real / t},
              {"adds the rate and the time", real + t}};
    case MotionPart::Rate:
      mistakes = {{"ignores the wind or current", real},
                  {"takes the wind or current the wrong way", real + drift},
                  {"multiplies in place of dividing", d * t},
                  {"reads the minutes as hundredths of an hour", d / asHundredths - drift}};
      if (fullHours.num > 0) mistakes.push_back({"leaves the minutes out", d / fullHours - drift});
      return mistakes;
    case MotionPart::Time:
      mistakes = {{"ignores the wind or current", d / still}};
      if (wrongWay.num > 0)
        mistakes.push_back({"takes the wind or current the wrong way", d / wrongWay});
      if (minutes.num * 100 < kMinutesOfHour * kMinutesOfHour)
        mistakes.push_back({"reads the hundredths of an hour as minutes",
                            fullHours + minutes * Fraction{100, kMinutesOfHour * kMinutesOfHour}});
      mistakes.push_back({"leaves the part of an hour out", fullHours});
      mistakes.push_back({"divides the rate by the distance", real / d});
      return mistakes;
  }
  return mistakes;
}

void FillChoices(const Motion& motion, Problem& problem, RandomStream& random) {
  const auto choice = [&problem](int slot) -> Choice& {
    return problem.choices.at(static_cast<std::size_t>(slot));
  };
  problem.kind = choice_kind::FourShuffledAndNone;
  problem.Right(1, motion.ValueText(motion.Answer()));
  for (int slot = PlaceMistakes(motion, problem); slot <= kChoices; ++slot)
    choice(slot) = Filler(motion, random);
  ReplaceRepeated(
      kChoices, [&](int i, int j) { return choice(i).text == choice(j).text; },
      [&](int slot) { choice(slot) = Filler(motion, random); });
  HideRightAtTimes(problem, random);
}

}  // namespace course::stories
