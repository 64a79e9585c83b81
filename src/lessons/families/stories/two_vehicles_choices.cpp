// The choices of "Advanced Distance-Rate-Time Problems": the mistake that the kind of problem is
// known for, then others in random order, of which a random number lies below the answer: its place
// among the choices does not give it away.
#include <algorithm>
#include <cstdlib>

#include "engine/choices.h"
#include "engine/mistakes.h"
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/motion_choices.h"
#include "lessons/families/stories/two_vehicles.h"

namespace course::stories {
namespace {

using Mistakes = std::vector<MotionMistake>;

constexpr int kMinutesOfHour = 60;
constexpr int kQuarters = 4;
constexpr int kWrongChoices = 4;
constexpr int kFarthest = 12;  // times the answer: more than that is not believed

Fraction Whole(int n) {
  return {n, 1};
}

constexpr const char* kDecimalsAsMinutes = "reads the decimal part of the hours as minutes";

// A time of full hours and minutes, read wrongly; in hours.
Fraction FullHours(int minutes) {
  return Whole(minutes / kMinutesOfHour);
}
Fraction AsHundredths(int minutes) {
  return FullHours(minutes) + Reduced(minutes % kMinutesOfHour, 100);
}
bool HasMinutes(int minutes) {
  return minutes % kMinutesOfHour != 0;
}

// What minutes that are read wrongly give at a rate: miles, or hours for a number of hours.
void AddReadings(int minutes, const Fraction& rate, Mistakes& mistakes) {
  const Fraction full = FullHours(minutes);
  if (HasMinutes(minutes)) {
    mistakes.push_back(
        {"reads the minutes as hundredths of an hour", rate * AsHundredths(minutes)});
    mistakes.push_back({"leaves the minutes out", rate * full});
    mistakes.push_back({"counts the minutes as a full hour", rate * (full + Whole(1))});
  }
}

// A full hour too many or too few in the time of both of them, or in the head start alone.
void AddOtherHours(int minutes, const Fraction& rate, Mistakes& mistakes) {
  if (HasMinutes(minutes)) return;
  mistakes.push_back({"counts one hour too many", rate * (FullHours(minutes) + Whole(1))});
  mistakes.push_back({"counts one hour too few", rate * (FullHours(minutes) - Whole(1))});
}
void AddOtherHeadStarts(int minutes, const Fraction& rate, Mistakes& mistakes) {
  if (HasMinutes(minutes)) return;
  mistakes.push_back(
      {"makes the head start one hour too long", rate * (FullHours(minutes) + Whole(1))});
  mistakes.push_back(
      {"makes the head start one hour too short", rate * (FullHours(minutes) - Whole(1))});
}

// 2.4 hours read as 2 hours and 40 minutes.
void AddDecimalsAsMinutes(int minutes, Mistakes& mistakes) {
  const Fraction rest = HoursOf(minutes % kMinutesOfHour) * Whole(100);
  if (rest.den != 1 || rest.num == 0 || rest.num >= kMinutesOfHour) return;
  mistakes.push_back({kDecimalsAsMinutes, FullHours(minutes) + HoursOf(rest.num)});
}

Mistakes MistakesAtCatchUp(const TwoVehicles& v) {
  const Fraction gap = v.GapAtStart();
  const Fraction closing = Whole(v.secondRate - v.firstRate);
  const int minutes = v.Relative().minutes;
  Mistakes mistakes = {
      {"adds the rates in place of subtracting them", gap / Whole(v.firstRate + v.secondRate)},
      {"uses the faster rate alone", gap / Whole(v.secondRate)},
      {"forgets to multiply by the head start", Whole(v.firstRate) / closing},
      {"adds the head start to the time", HoursOf(minutes) + v.Hours()},
      {"counts the head start twice", HoursOf(2 * minutes)},
      {"takes the head start for the answer", v.Hours()}};
  AddReadings(v.minutes, Whole(v.firstRate) / closing, mistakes);
  AddOtherHeadStarts(v.minutes, Whole(v.firstRate) / closing, mistakes);
  // A head start of 1 hour in place of 2 is not multiplied by at all.
  if (v.minutes == 2 * kMinutesOfHour) mistakes.pop_back();
  AddDecimalsAsMinutes(minutes, mistakes);
  return mistakes;
}

Mistakes MistakesAtTimeApart(const TwoVehicles& v) {
  const Fraction distance = v.Relative().Distance();
  Mistakes mistakes = {
      {"subtracts the rates in place of adding them", distance / Whole(v.secondRate - v.firstRate)},
      {"uses the slower rate alone", distance / Whole(v.firstRate)},
      {"uses the faster rate alone", distance / Whole(v.secondRate)},
      {"takes the mean of the rates", v.Hours() * Whole(2)},
      {"lets both go at the faster rate", distance / Whole(2 * v.secondRate)},
      {"lets both go at the slower rate", distance / Whole(2 * v.firstRate)},
      {"halves the distance", v.Hours() / Whole(2)}};
  if (HasMinutes(v.minutes)) {
    mistakes.push_back({"leaves the part of an hour out", FullHours(v.minutes)});
    mistakes.push_back({"rounds up to a full hour", FullHours(v.minutes) + Whole(1)});
  }
  AddOtherHours(v.minutes, Whole(1), mistakes);
  AddDecimalsAsMinutes(v.minutes, mistakes);
  return mistakes;
}

Mistakes MistakesAtDistanceApart(const TwoVehicles& v) {
  const int sum = v.firstRate + v.secondRate;
  Mistakes mistakes = {{"subtracts the rates in place of adding them",
                        Whole(v.secondRate - v.firstRate) * v.Hours()},
                       {"uses the slower rate alone", Whole(v.firstRate) * v.Hours()},
                       {"uses the faster rate alone", Whole(v.secondRate) * v.Hours()},
                       {"takes the mean of the rates", Reduced(sum, 2) * v.Hours()},
                       {"lets both go at the faster rate", Whole(2 * v.secondRate) * v.Hours()},
                       {"lets both go at the slower rate", Whole(2 * v.firstRate) * v.Hours()},
                       {"doubles the gap", Whole(2 * sum) * v.Hours()},
                       {"forgets to multiply by the time", Whole(sum)}};
  AddReadings(v.minutes, Whole(sum), mistakes);
  AddOtherHours(v.minutes, Whole(sum), mistakes);
  return mistakes;
}

Mistakes MistakesAtSameRate(const TwoVehicles& v) {
  const Fraction rate = Whole(v.firstRate);
  const Fraction later = HoursOf(v.laterMinutes);
  Mistakes mistakes = {
      {"thinks that the distance between them keeps growing", rate * (v.Hours() + later)},
      {"forgets the head start", rate * later},
      {"subtracts the two times", rate * HoursOf(std::abs(v.minutes - v.laterMinutes))},
      {"lets them go in opposite directions", rate * (v.Hours() + later + later)}};
  AddReadings(v.minutes, rate, mistakes);
  AddOtherHeadStarts(v.minutes, rate, mistakes);
  return mistakes;
}

Mistakes MistakesAt(const TwoVehicles& v) {
  switch (v.kind) {
    case TwoVehiclesKind::CatchUp:
      return MistakesAtCatchUp(v);
    case TwoVehiclesKind::TimeApart:
      return MistakesAtTimeApart(v);
    case TwoVehiclesKind::DistanceApart:
      return MistakesAtDistanceApart(v);
    case TwoVehiclesKind::SameRate:
      return MistakesAtSameRate(v);
  }
  return {};
}

// How round the right time is, in minutes: wrong ones that have to be rounded are as round.
int Roundness(int minutes) {
  for (const int step : {15, 5})
    if (minutes % step == 0) return step;
  return 1;
}

// Hours to the nearest multiple of so many minutes, halves up.
Fraction Rounded(const Fraction& hours, int step) {
  const Fraction steps = hours * Reduced(kMinutesOfHour, step);
  return HoursOf((2 * steps.num + steps.den) / (2 * steps.den) * step);
}

class TwoVehiclesChoices {
 public:
  TwoVehiclesChoices(const TwoVehicles& vehicles, Problem& problem)
      : vehicles_(vehicles),
        motion_(vehicles.Relative()),
        choices_(problem, choice_kind::FiveShuffled, [this](const Fraction& value) {
          return AsksTime() ? motion_.ValueText(value) : MilesText(value);
        }) {}
  void Fill(RandomStream& random);

 private:
  MotionMistake AsChoice(const MotionMistake& mistake) const;
  bool CanBeChoice(const Fraction& value) const;
  void Offer(const MotionMistake& mistake, int& room);
  Fraction Filler(RandomStream& random) const;
  bool AsksTime() const { return motion_.asked == MotionPart::Time; }

  const TwoVehicles& vehicles_;
  const Motion motion_;
  Choices<Fraction> choices_;
  std::vector<Fraction> offered_;  // values
};

// Times with parts of a minute are rounded, and the name tells it.
MotionMistake TwoVehiclesChoices::AsChoice(const MotionMistake& mistake) const {
  const bool wholeMinutes = kMinutesOfHour % mistake.value.den == 0;
  if (!AsksTime() || wholeMinutes) return mistake;
  return {mistake.name + std::string(kRounded), Rounded(mistake.value, Roundness(motion_.minutes))};
}

// Distances are quarter miles.
bool TwoVehiclesChoices::CanBeChoice(const Fraction& value) const {
  if (!AsksTime() && kQuarters % value.den != 0) return false;
  return Whole(0) < value && value < motion_.Answer() * Whole(kFarthest);
}

// When there is room for one more on its side of the answer.
void TwoVehiclesChoices::Offer(const MotionMistake& mistake, int& room) {
  const bool isNew = std::ranges::find(offered_, mistake.value) == offered_.end();
  if (room == 0 || !isNew || !CanBeChoice(mistake.value)) return;
  choices_.Wrong(mistake.name, mistake.value);
  offered_.push_back(mistake.value);
  --room;
}

// A distance that another time gives, or a time of half to twice the right one.
Fraction TwoVehiclesChoices::Filler(RandomStream& random) const {
  if (AsksTime()) {
    const int step = Roundness(motion_.minutes);
    const int steps = motion_.minutes / step;
    return HoursOf(step * random.Rand(steps / 2 + 1, 2 * steps + 8));
  }
  Fraction value;
  do {  // a quarter of the draws is accepted for the shortest time, all from an hour on
    value = Whole(motion_.rate) * Reduced(random.Rand(1, 39), kQuarters);
  } while (!CanBeChoice(value));
  return value;
}

void TwoVehiclesChoices::Fill(RandomStream& random) {
  const Fraction answer = motion_.Answer();
  choices_.Right(answer);
  offered_ = {answer};
  Mistakes mistakes;
  for (const MotionMistake& mistake : MistakesAt(vehicles_)) mistakes.push_back(AsChoice(mistake));
  int any = kWrongChoices;
  Offer(mistakes.front(), any);
  const int others = static_cast<int>(mistakes.size()) - 1;
  const std::vector<int> order = random.RandSeq(others, others);
  int below = random.Rand(0, any);
  int above = any - below;
  for (const int place : order) {
    const MotionMistake& mistake = mistakes[static_cast<std::size_t>(place)];
    Offer(mistake, mistake.value < answer ? below : above);
  }
  any = below + above;  // where a side has too few
  for (const int place : order) Offer(mistakes[static_cast<std::size_t>(place)], any);
  choices_.Fill([&] { return Filler(random); });
}

}  // namespace

void FillChoices(const TwoVehicles& vehicles, Problem& problem, RandomStream& random) {
  TwoVehiclesChoices(vehicles, problem).Fill(random);
}

}  // namespace course::stories
