#include "lessons/families/stories/motion_choices.h"

#include <cstdlib>

#include "engine/choices.h"
#include "lessons/families/stories/durations.h"

namespace course::stories {
namespace {

constexpr int kSlots = 5;  // the fifth is shown when the right one hides
constexpr int kQuarters = 4;
constexpr int kQuarterHour = 15;  // minutes
constexpr int kMinutesOfHour = 60;
constexpr int kLargestFactor = 9;  // of a product worked digit by digit

Fraction Whole(int n) {
  return {n, 1};
}

bool LiesBetween(const Fraction& least, const Fraction& value, const Fraction& most) {
  return !(value < least) && !(most < value);
}

// As the right ones are: whole rates, quarter hours, quarter miles, and nothing that the vehicle
// cannot do.  Anything else would give itself away.
bool CanBeChoice(const Motion& motion, const Fraction& value) {
  const Fraction least = Whole(motion.leastRate);
  const Fraction most = Whole(motion.mostRate);
  const Fraction shortest = HoursOf(motion.leastMinutes);
  const Fraction longest = HoursOf(motion.mostMinutes);
  if (motion.asked == MotionPart::Rate) return value.den == 1 && LiesBetween(least, value, most);
  if (kQuarters % value.den != 0) return false;
  if (motion.asked == MotionPart::Time) return LiesBetween(shortest, value, longest);
  return LiesBetween(least * shortest, value, most * longest);
}

// A value of the same kind at random.  A tenth of the draws is accepted for the slowest jet, half
// and more for the others.
Fraction Filler(const Motion& motion, RandomStream& random) {
  const Fraction answer = motion.Answer();
  Fraction value;
  do {
    if (motion.asked == MotionPart::Time) {
      value = HoursOf(kQuarterHour * random.Rand(motion.leastMinutes / kQuarterHour,
                                                 motion.mostMinutes / kQuarterHour));
    } else if (motion.asked == MotionPart::Rate) {
      value = Whole(random.Rand(0, motion.rate + 19));
    } else {
      const int miles =
          random.Rand(answer.num / answer.den / 2, 3 * answer.num / answer.den / 2 + 9);
      const int quarters = random.Rand(1, 3);
      value = Whole(miles);
      if (answer.den > 1) value = value + Reduced(quarters, kQuarters);  // or it stands out
    }
  } while (!CanBeChoice(motion, value));
  return value;
}

// To the nearest whole number, halves up; not negative.
Fraction Rounded(const Fraction& value) {
  return Whole((2 * value.num + value.den) / (2 * value.den));
}

// --- Slips with digits ---------------------------------------------------------

// The product digit by digit, of which each keeps its last one only: 47 x 6 = 242.
int ProductWithoutCarries(int n, int factor) {
  if (n < 10) return n * factor;
  return 10 * ProductWithoutCarries(n / 10, factor) + n % 10 * factor % 10;
}

// 38 + 7 = 35.
int SumWithoutCarries(int a, int b) {
  if (a < 10 && b < 10) return a + b;
  return 10 * SumWithoutCarries(a / 10, b / 10) + (a + b) % 10;
}

// In each column the smaller digit is taken from the larger: 33 - 8 = 35.
int DifferenceOfDigits(int a, int b) {
  if (a == 0 || b == 0) return a + b;
  return 10 * DifferenceOfDigits(a / 10, b / 10) + std::abs(a % 10 - b % 10);
}

// --- Mistakes --------------------------------------------------------------------

// A time as it is read rightly and wrongly, in hours.
struct TimeReadings {
  explicit TimeReadings(int minutes)
      : whole(HoursOf(minutes)),
        fullHours(Whole(minutes / kMinutesOfHour)),
        rest(Whole(minutes % kMinutesOfHour)) {}
  bool HasMinutes() const { return rest.num != 0; }
  Fraction OneMore() const { return fullHours + Whole(1); }
  Fraction AsHundredths() const { return fullHours + rest / Whole(100); }
  Fraction whole;
  Fraction fullHours;
  Fraction rest;  // minutes
};

std::string IgnoresDrift(const Motion& motion) {
  return "ignores the " + motion.DriftName();
}

std::string TurnsDrift(const Motion& motion) {
  const bool subtracted = (motion.direction < 0) != (motion.asked == MotionPart::Rate);
  const std::string drift = " the " + motion.DriftName();
  return subtracted ? "adds" + drift + " in place of subtracting it"
                    : "subtracts" + drift + " in place of adding it";
}

std::string CountsDriftOnce(const Motion& motion) {
  return "counts the " + motion.DriftName() + " for one hour only";
}

constexpr const char* kLeavesMinutesOut = "leaves the minutes out";
constexpr const char* kCountsFullHour = "counts the minutes as a full hour";
constexpr const char* kAsHundredths = "reads the minutes as hundredths of an hour";

std::vector<MotionMistake> MistakesAtDistance(const Motion& motion) {
  const TimeReadings read(motion.minutes);
  const Fraction still = Whole(motion.rate);
  const Fraction drift = Whole(motion.direction * motion.drift);
  const Fraction real = Whole(motion.RealRate());
  std::vector<MotionMistake> mistakes;
  if (motion.direction != 0)
    mistakes = {{TurnsDrift(motion), (still - drift) * read.whole},
                {IgnoresDrift(motion), still * read.whole},
                {CountsDriftOnce(motion), still * read.whole + drift}};
  if (read.HasMinutes()) {
    mistakes.push_back({kAsHundredths, real * read.AsHundredths()});
    mistakes.push_back({kLeavesMinutesOut, real * read.fullHours});
    mistakes.push_back({kCountsFullHour, real * read.OneMore()});
  } else {
    if (read.whole.num <= kLargestFactor)
      mistakes.push_back(
          {"forgets to carry", Whole(ProductWithoutCarries(motion.RealRate(), read.whole.num))});
    mistakes.push_back({"counts one hour too many", real * read.OneMore()});
  }
  mistakes.push_back({"divides in place of multiplying", real / read.whole});
  mistakes.push_back({"adds the rate and the time", real + read.whole});
  return mistakes;
}

std::vector<MotionMistake> MistakesAtRate(const Motion& motion) {
  const TimeReadings read(motion.minutes);
  const Fraction d = motion.Distance();
  const Fraction drift = Whole(motion.direction * motion.drift);
  const int real = motion.RealRate();
  std::vector<MotionMistake> mistakes;
  if (motion.direction != 0)
    mistakes = {{IgnoresDrift(motion), Whole(real)},
                {TurnsDrift(motion), Whole(real) + drift},
                {CountsDriftOnce(motion), (d - drift) / read.whole}};
  if (motion.direction < 0)
    mistakes.push_back({"forgets to carry", Whole(SumWithoutCarries(real, motion.drift))});
  if (motion.direction > 0)
    mistakes.push_back({"takes the smaller digit from the larger in each column",
                        Whole(DifferenceOfDigits(real, motion.drift))});
  if (read.HasMinutes()) {
    const auto add = [&](const std::string& mistake, const Fraction& hours) {
      const Fraction found = d / hours - drift;
      const bool whole = found.den == 1;
      mistakes.push_back(
          {whole ? mistake : mistake + " and rounds", whole ? found : Rounded(found)});
    };
    if (read.fullHours.num > 0) add(kLeavesMinutesOut, read.fullHours);
    add(kCountsFullHour, read.OneMore());
    add(kAsHundredths, read.AsHundredths());
  } else if (motion.direction == 0) {
    mistakes.push_back({"counts one hour too many", d / read.OneMore()});
    if (read.whole.num > 1)
      mistakes.push_back({"counts one hour too few", d / (read.whole - Whole(1))});
  }
  return mistakes;
}

std::vector<MotionMistake> MistakesAtTime(const Motion& motion) {
  const TimeReadings read(motion.minutes);
  const Fraction d = motion.Distance();
  const int wrongWay = motion.rate - motion.direction * motion.drift;
  std::vector<MotionMistake> mistakes;
  if (motion.direction != 0) {
    mistakes.push_back({IgnoresDrift(motion), d / Whole(motion.rate)});
    if (wrongWay > 0) mistakes.push_back({TurnsDrift(motion), d / Whole(wrongWay)});
  }
  if (read.HasMinutes()) {
    mistakes.push_back({"counts the minutes to the next full hour",
                        read.OneMore() - read.rest / Whole(kMinutesOfHour)});
    mistakes.push_back({"leaves the part of an hour out", read.fullHours});
    mistakes.push_back({"rounds up to a full hour", read.OneMore()});
  }
  mistakes.push_back({"divides the rate by the distance", Whole(motion.RealRate()) / d});
  return mistakes;
}

}  // namespace

std::vector<MotionMistake> MistakesAt(const Motion& motion) {
  if (motion.asked == MotionPart::Distance) return MistakesAtDistance(motion);
  return motion.asked == MotionPart::Rate ? MistakesAtRate(motion) : MistakesAtTime(motion);
}

void FillChoices(const Motion& motion, Problem& problem, RandomStream& random) {
  Choices<Fraction> choices(
      problem, choice_kind::FourShuffledAndNone,
      [&motion](const Fraction& value) { return motion.ValueText(value); }, kSlots);
  choices.Right(motion.Answer());
  for (const auto& [mistake, value] : MistakesAt(motion))
    if (CanBeChoice(motion, value)) choices.Wrong(mistake, value);
  choices.Fill([&] { return Filler(motion, random); });
  HideRightAtTimes(problem, random);
}

}  // namespace course::stories
