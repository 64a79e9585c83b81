#include "lessons/families/stories/motion.h"

#include <algorithm>
#include <iterator>

#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/word_table.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

// Vehicle, verb, least and most rate in miles an hour.
constexpr std::string_view kVehicles[] = {
    "boat",   "sails",   "3",   "30",   //
    "fish",   "swims",   "3",   "15",   //
    "plane",  "flies",   "50",  "250",  //
    "jet",    "flies",   "200", "500",  //
    "bird",   "flies",   "10",  "45",   //
    "car",    "travels", "20",  "65",   //
    "jogger", "runs",    "4",   "8",    //
    "jogger", "runs",    "4",   "8",    // twice as often as the others
    "skater", "skates",  "5",   "10",   //
};
constexpr int kEntriesOfRow = 4;
constexpr int kRows = static_cast<int>(std::size(kVehicles)) / kEntriesOfRow;

constexpr int kBoat = 1;
constexpr int kLastInWater = 2;
constexpr int kPlane = 3;
constexpr int kJet = 4;
constexpr int kLastWithDrift = 5;
constexpr int kCar = 6;
constexpr int kSlowestPlane = 150;  // below it a plane would not stay in the air

constexpr int kQuarterHour = 15;  // minutes
constexpr int kMinutesOfHour = 60;

// Half of the draws is accepted for the plane.
void DrawRate(int row, WordTable& table, RandomStream& random, Motion& motion) {
  const int least = static_cast<int>(table.NextNumber());
  motion.mostRate = static_cast<int>(table.NextNumber());
  motion.leastRate = row == kPlane ? kSlowestPlane : least;
  do {
    motion.rate = random.Rand(least, motion.mostRate);
  } while (motion.rate < motion.leastRate);
}

// About a fifth of the draws is accepted for the slowest fish, nearly all for the others.
int DrawDrift(int row, const Motion& motion, RandomStream& random) {
  const int strongest = row == kPlane || row == kJet ? 50 : 10;
  int drift = 0;
  do {
    drift = random.Rand(1, strongest);
  } while (motion.direction < 0 && drift >= motion.rate);  // it would be driven back
  return drift;
}

// Short ways are told in minutes, up to an hour.
void DrawMinutes(int row, RandomStream& random, Motion& motion) {
  const bool longWay = row == kBoat || row == kPlane || row == kJet || row == kCar;
  const int least = longWay ? 2 : 1;
  const int most = longWay ? 9 : 4;
  const int hours = random.Rand(least, most);
  const int quarters = random.Rand(0, 3);
  if (motion.withinAnHour) {
    motion.minutes = hours * kQuarterHour;
    motion.leastMinutes = kQuarterHour;
    motion.mostMinutes = 2 * kMinutesOfHour;  // four times are too few to choose from
    return;
  }
  motion.minutes = hours * kMinutesOfHour + quarters * kQuarterHour;
  motion.leastMinutes = least * kMinutesOfHour;
  motion.mostMinutes = most * kMinutesOfHour + 3 * kQuarterHour;
}

}  // namespace

std::string NameOf(MotionPart part) {
  if (part == MotionPart::Distance) return "distance";
  return part == MotionPart::Rate ? "rate" : "time";
}

std::string LetterOf(MotionPart part) {
  return NameOf(part).substr(0, 1);
}

std::string RateText(const Fraction& rate) {
  return MixedText(rate) + tutor::Gap + "mph";
}

Motion Motion::Draw(RandomStream& random) {
  Motion motion;
  const int row = random.Index(kRows);
  WordTable table(kVehicles);
  table.GoToRow(row, kEntriesOfRow);
  motion.vehicle = table.Next();
  motion.verb = table.Next();
  motion.inWater = row <= kLastInWater;
  motion.withinAnHour = row > kCar;
  const int sign = random.Sign();
  const bool drifts = random.Rand(1, 2) == 2;
  if (drifts && row <= kLastWithDrift) motion.direction = sign;
  motion.asked = static_cast<MotionPart>(random.Rand(1, 3));
  DrawRate(row, table, random, motion);
  if (motion.direction != 0) motion.drift = DrawDrift(row, motion, random);
  DrawMinutes(row, random, motion);
  return motion;
}

Fraction Motion::Hours() const {
  return HoursOf(minutes);
}

Fraction Motion::Distance() const {
  return Fraction{RealRate(), 1} * Hours();
}

Fraction Motion::Answer() const {
  if (asked == MotionPart::Distance) return Distance();
  return asked == MotionPart::Rate ? Fraction{rate, 1} : Hours();
}

std::string Motion::ValueText(const Fraction& value) const {
  if (asked == MotionPart::Distance) return QuantityText(value, "mile");
  if (asked == MotionPart::Rate) return RateText(value);
  return DurationText((value * Fraction{kMinutesOfHour, 1}).num);
}

std::string Motion::StillText() const {
  if (direction == 0) return "";
  return inWater ? " in still water" : " in still air";
}

std::string Motion::DriftText() const {
  if (direction == 0) return "";
  return (direction > 0 ? " with a " : " against a ") + DriftName() + " of " + RateText({drift, 1});
}

std::vector<std::string> Motion::Question() const {
  const std::string start = "A " + vehicle + " " + verb;
  const std::string way = QuantityText(Distance(), "mile");
  const std::string atRate = start + " at a rate of " + RateText({rate, 1}) + StillText() + ".";
  const std::string inTime = " in " + DurationText(minutes) + DriftText();
  switch (asked) {
    case MotionPart::Distance:
      return {atRate, "How far does " + TheVehicle() + " go" + inTime + "?"};
    case MotionPart::Rate:
      return {start + " " + way + inTime + ".",
              "What is the rate of " + TheVehicle() + StillText() + "?"};
    case MotionPart::Time:
      return {atRate, "How long does " + TheVehicle() + " take to go " + way + DriftText() + "?"};
  }
  return {};
}

std::vector<std::string> WorkingLines(const Motion& motion) {
  const std::string times = " " + tutor::Times + " ";
  const std::string divided = " " + tutor::Divided + " ";
  const Fraction d = motion.Distance();
  const Fraction t = motion.Hours();
  const std::string r = NumStr(motion.RealRate());
  const bool whole = d.den == 1 && t.den == 1;
  std::vector<std::string> lines;
  switch (motion.asked) {
    case MotionPart::Distance:
      lines = {r + times + MixedText(t), r + times + ValueText(t), ValueText(d), MixedText(d)};
      break;
    case MotionPart::Rate:
      lines = {MixedText(d) + divided + MixedText(t), ValueText(d) + divided + ValueText(t)};
      if (!whole) lines.push_back(ValueText(d) + times + ValueText(Fraction{1, 1} / t));
      lines.push_back(r);
      break;
    case MotionPart::Time:
      lines = {MixedText(d) + divided + r, ValueText(d) + divided + r};
      if (d.den > 1)
        lines.push_back(ValueText(d) + times + FractionOfTexts("1", r));
      else if (!whole)
        lines.push_back(FractionOfTexts(NumStr(d.num), r));
      lines.push_back(ValueText(t));
      lines.push_back(MixedText(t));
      break;
  }
  const auto repeated = std::ranges::unique(lines);
  lines.erase(repeated.begin(), repeated.end());
  return lines;
}

}  // namespace course::stories
