#include "lessons/families/stories/two_vehicles.h"

#include <iterator>

#include "lessons/families/percents/percent_number.h"
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/word_table.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

// Name, noun, and how many multiples of five the slower rate is drawn from.
constexpr std::string_view kVehicles[] = {
    "Plane", "plane", "100",  //
    "Train", "train", "15",   //
    "Car",   "car",   "25",   //
};
constexpr int kEntriesOfRow = 3;
constexpr int kRows = static_cast<int>(std::size(kVehicles)) / kEntriesOfRow;
constexpr std::string_view kTowns[] = {"Northton", "Southton", "Eastville", "Westville"};

// What each of them can do, in miles per hour.
struct RateRange {
  int least;
  int most;
};
constexpr RateRange kBelievable[] = {{150, 550}, {40, 125}, {40, 75}};

constexpr int kRateStep = 5;
constexpr int kFasterSteps = 10;
constexpr int kQuarterHour = 15;  // minutes
constexpr int kMinutesOfHour = 60;

// A rate that is twice the other one: their difference would be the slower rate, and a student's
// number could come from either mistake.
bool CanBeRates(const TwoVehicles& vehicles, const RateRange& range) {
  return vehicles.firstRate >= range.least && vehicles.secondRate <= range.most &&
         vehicles.secondRate != 2 * vehicles.firstRate;
}

// Accepted: 71 in 100 draws for planes, 51 for trains; for cars 11, or 32 at the same rate.
void DrawRates(int row, int steps, RandomStream& random, TwoVehicles& vehicles) {
  const RateRange range = kBelievable[row - 1];
  do {
    vehicles.firstRate = kRateStep * random.Rand(1, steps);
    vehicles.secondRate = vehicles.firstRate;
    if (vehicles.kind != TwoVehiclesKind::SameRate)
      vehicles.secondRate += kRateStep * random.Rand(1, kFasterSteps);
  } while (!CanBeRates(vehicles, range));
}

// Quarter hours below ten hours, but not none: 39 of 40 draws are accepted.
int DrawMinutes(RandomStream& random) {
  int minutes = 0;
  do {
    const int hours = random.Rand(0, 9);
    const int quarters = random.Rand(0, 3);
    minutes = hours * kMinutesOfHour + quarters * kQuarterHour;
  } while (minutes == 0);
  return minutes;
}

int RateOfChange(const TwoVehicles& vehicles) {
  switch (vehicles.kind) {
    case TwoVehiclesKind::CatchUp:
      return vehicles.secondRate - vehicles.firstRate;
    case TwoVehiclesKind::SameRate:
      return vehicles.firstRate;
    default:
      return vehicles.firstRate + vehicles.secondRate;
  }
}

bool CatchesUpInWholeMinutes(const TwoVehicles& vehicles) {
  return vehicles.firstRate * vehicles.minutes % RateOfChange(vehicles) == 0;
}

}  // namespace

TwoVehicles TwoVehicles::Draw(RandomStream& random) {
  TwoVehicles vehicles;
  vehicles.kind = static_cast<TwoVehiclesKind>(random.Rand(1, 4));
  const int row = random.Index(kRows);
  WordTable table(kVehicles);
  table.GoToRow(row, kEntriesOfRow);
  vehicles.name = table.Next();
  vehicles.noun = table.Next();
  const int steps = static_cast<int>(table.NextNumber());
  WordTable towns(kTowns);
  towns.GoTo(random.Index(static_cast<int>(std::size(kTowns))));
  vehicles.town = towns.Next();
  // Seven in ten draws are accepted when one catches up, else all: other answers are whole
  // minutes by themselves.
  do {
    DrawRates(row, steps, random, vehicles);
    vehicles.minutes = DrawMinutes(random);
  } while (vehicles.kind == TwoVehiclesKind::CatchUp && !CatchesUpInWholeMinutes(vehicles));
  if (vehicles.kind == TwoVehiclesKind::SameRate) {
    do {
      vehicles.laterMinutes = DrawMinutes(random);
    } while (vehicles.laterMinutes == vehicles.minutes);  // the wrong time would do as well
  }
  return vehicles;
}

bool TwoVehicles::Follows() const {
  return kind == TwoVehiclesKind::CatchUp || kind == TwoVehiclesKind::SameRate;
}

Fraction TwoVehicles::Hours() const {
  return HoursOf(minutes);
}

Fraction TwoVehicles::GapAtStart() const {
  return Fraction{firstRate, 1} * Hours();
}

Motion TwoVehicles::Relative() const {
  Motion motion;
  motion.vehicle = noun;
  motion.rate = RateOfChange(*this);
  motion.minutes = minutes;
  if (kind == TwoVehiclesKind::CatchUp) motion.minutes = firstRate * minutes / motion.rate;
  const bool asksTime = kind == TwoVehiclesKind::CatchUp || kind == TwoVehiclesKind::TimeApart;
  motion.asked = asksTime ? MotionPart::Time : MotionPart::Distance;
  return motion;
}

std::string MilesNumber(const Fraction& miles) {
  const int whole = miles.num / miles.den;
  if (whole == 0) return MixedText(miles);
  const Fraction rest = miles - Fraction{whole, 1};
  return percents::DecimalOf(whole) + (rest.num == 0 ? "" : tutor::Gap + ValueText(rest));
}

std::string MilesText(const Fraction& miles) {
  return MilesNumber(miles) + tutor::Gap + "mile" + (Fraction{1, 1} < miles ? "s" : "");
}

std::string MilesQuotient(int numerator, int denominator) {
  const std::string above = percents::DecimalOf(numerator);
  if (denominator == 1) return above;
  const bool hasComma = above.find(',') != std::string::npos;  // which would end the numerator
  return (hasComma ? "(" + above + ")" : above) + "/" + NumStr(denominator);
}

std::vector<std::string> TwoVehicles::Question() const {
  const auto rate = [](int mph) { return RateText({mph, 1}); };
  const std::string left = "A " + noun + " left " + town + " " + DurationText(minutes) + " ago.";
  const std::string itsRate = "Its rate is " + rate(firstRate) + ".";
  const std::string follows = "Now a second " + noun + " leaves and follows it at ";
  const std::string apart =
      "Two " + noun + "s leave " + town + " at the same time in opposite directions.";
  const std::string bothRates =
      "One goes at " + rate(firstRate) + " and the other at " + rate(secondRate) + ".";
  switch (kind) {
    case TwoVehiclesKind::CatchUp:
      return {left, itsRate, follows + rate(secondRate) + ".",
              "In how many hours will the second " + noun + " catch up with the first?"};
    case TwoVehiclesKind::TimeApart:
      return {apart, bothRates,
              "After how much time will they be " + MilesText(Relative().Distance()) + " apart?"};
    case TwoVehiclesKind::DistanceApart:
      return {apart, bothRates, "How far apart will they be after " + DurationText(minutes) + "?"};
    case TwoVehiclesKind::SameRate:
      return {left, itsRate, follows + "the same rate.",
              "How far apart will they be after " + DurationText(laterMinutes) + "?"};
  }
  return {};
}

}  // namespace course::stories
