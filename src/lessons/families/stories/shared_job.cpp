#include "lessons/families/stories/shared_job.h"

#include <cstdlib>

#include "engine/choices.h"
#include "lessons/families/stories/durations.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/families/stories/word_table.h"

namespace course::stories {
namespace {

constexpr std::string_view kWords[] = {
    // Two workers, and the jobs that suit them.
    "John", "Bill", "1578",                //
    "Sue", "Ann", "2568",                  //
    "Acme Inc.", "Pete's Paints", "15",    //
    "the Blue pump", "the Red pump", "3",  //
    "John", "Sue", "15678",                //
    // Jobs, and the things that they are done to.
    "paint", "29",     //
    "paint", "29",     //
    "fill", "3",       //
    "cater", "7",      //
    "decorate", "12",  //
    "plant", "5",      //
    "load", "6",       //
    "clean", "23",     //
    // Things, least and most hours of one worker.
    "wall", "1", "6",           //
    "house", "4", "12",         //
    "swimming pool", "1", "5",  //
    "cake", ".75", "2.5",       //
    "garden", "1", "5",         //
    "truck", "1", "6",          //
    "banquet", "1", "5",        //
    "cookies", ".5", "3",       //
    "mural", "4", "10",         //
};
constexpr int kPairs = 5;
constexpr int kEntriesOfPair = 3;
constexpr int kFirstJob = 16;  // entry
constexpr int kEntriesOfJob = 2;
constexpr int kFirstThing = 32;  // entry
constexpr int kEntriesOfThing = 3;

constexpr int kQuarterHour = 15;  // minutes
constexpr int kQuartersOfHour = 4;
constexpr int kMinutesOfHour = 60;

// The row that one of the digits names.
int RowOfDigits(const std::string& digits, RandomStream& random) {
  const int place = random.Index(static_cast<int>(digits.size()));
  return digits[static_cast<std::size_t>(place - 1)] - '0';
}

// Two quarter hours with which the job takes whole minutes together; false after twenty tries.
// An eighth of the pairs is accepted for a house or a mural, a quarter for the others.
bool DrawTimes(RandomStream& random, SharedJob& job) {
  constexpr int kTries = 20;
  const Thing& thing = job.thing;
  for (int i = 0; i < kTries; ++i) {
    const int a = random.Rand(thing.leastQuarters, thing.mostQuarters - 1);
    const int b = random.Rand(thing.leastQuarters, thing.mostQuarters - 1);
    if (a == b) continue;                               // half of the time, no rates needed
    if (kQuarterHour * a * b % (a + b) != 0) continue;  // parts of a minute
    job.firstMinutes = kQuarterHour * a;
    job.secondMinutes = kQuarterHour * b;
    job.togetherMinutes = kQuarterHour * a * b / (a + b);
    return true;
  }
  return false;
}

// --- Mistakes --------------------------------------------------------------------

// 2.4 hours read as 2 hours and 40 minutes; 0 when that would be an hour of minutes.
int DecimalsAsMinutes(int minutes) {
  const Fraction rest = Reduced(minutes % kMinutesOfHour, kMinutesOfHour) * Fraction{100, 1};
  if (rest.den != 1 || rest.num >= kMinutesOfHour) return 0;
  return minutes / kMinutesOfHour * kMinutesOfHour + rest.num;
}

// Passed over when it is no whole number of minutes: every right time is one.
void AddHalf(const std::string& mistake, int minutes, Choices<int>& choices) {
  if (minutes % 2 == 0) choices.Wrong(mistake, minutes / 2);
}

}  // namespace

Thing ThingAt(int row) {
  WordTable table(kWords);
  table.GoTo(kFirstThing + (row - 1) * kEntriesOfThing);
  Thing thing;
  thing.noun = table.Next();
  thing.leastQuarters = static_cast<int>(kQuartersOfHour * table.NextNumber());
  thing.mostQuarters = static_cast<int>(kQuartersOfHour * table.NextNumber());
  return thing;
}

SharedJob SharedJob::Draw(RandomStream& random) {
  SharedJob job;
  WordTable table(kWords);
  table.GoToRow(random.Index(kPairs), kEntriesOfPair);
  job.first = table.Next();
  job.second = table.Next();
  const int jobRow = RowOfDigits(table.Next(), random);
  table.GoTo(kFirstJob + (jobRow - 1) * kEntriesOfJob);
  job.verb = table.Next();
  const std::string things = table.Next();
  job.thing = ThingAt(RowOfDigits(things, random));
  job.asked = static_cast<WorkPart>(random.Rand(1, 3));
  while (!DrawTimes(random, job)) job.thing = ThingAt(RowOfDigits(things, random));
  return job;
}

int SharedJob::MinutesOf(WorkPart part) const {
  if (part == WorkPart::Together) return togetherMinutes;
  return part == WorkPart::First ? firstMinutes : secondMinutes;
}

Fraction SharedJob::HoursOf(WorkPart part) const {
  return stories::HoursOf(MinutesOf(part));
}

Fraction SharedJob::RateOf(WorkPart part) const {
  return Fraction{1, 1} / HoursOf(part);
}

std::string SharedJob::NameOf(WorkPart part) const {
  if (part == WorkPart::Together) return "together";
  return part == WorkPart::First ? first : second;
}

std::vector<WorkPart> SharedJob::Given() const {
  if (asked == WorkPart::First) return {WorkPart::Second, WorkPart::Together};
  if (asked == WorkPart::Second) return {WorkPart::First, WorkPart::Together};
  return {WorkPart::First, WorkPart::Second};
}

std::vector<std::string> SharedJob::Question() const {
  const std::string aThing = verb + " a " + thing.noun + " in ";
  if (asked == WorkPart::Together)
    return {AtStart(first) + " can " + aThing + DurationText(firstMinutes) + ".",
            AtStart(second) + " can " + verb + " it in " + DurationText(secondMinutes) + ".",
            "How long do they need together?"};
  const WorkPart other = Given().front();
  return {"Working together, " + first + " and " + second + " can " + aThing +
              DurationText(togetherMinutes) + ".",
          AtStart(NameOf(other)) + " alone needs " + DurationText(MinutesOf(other)) + ".",
          "How long does " + NameOf(asked) + " need alone?"};
}

void FillChoices(const SharedJob& job, Problem& problem, RandomStream& random) {
  Choices<int> choices(problem, choice_kind::FiveShuffled,
                       [](int minutes) { return DurationText(minutes); });
  const int right = job.MinutesOf(job.asked);
  const int one = job.MinutesOf(job.Given().front());
  const int other = job.MinutesOf(job.Given().back());
  const bool together = job.asked == WorkPart::Together;
  const bool named = random.Rand(1, 2) == 1;
  choices.Right(right);
  // First, because it names its value best where others come to the same.
  choices.Wrong("subtracts the two times", std::abs(one - other));
  choices.Wrong("adds the two times", one + other);
  AddHalf("takes the mean of the two times", one + other, choices);
  const int misread = DecimalsAsMinutes(right);
  if (misread > 0) choices.Wrong("reads the decimal part of the hours as minutes", misread);
  if (named && together)
    choices.Wrong("takes the faster worker's time alone", std::min(one, other));
  if (named && together) AddHalf("halves the faster worker's time", std::min(one, other), choices);
  if (named && !together)
    choices.Wrong("thinks that both are equally fast", 2 * job.togetherMinutes);
  choices.Fill([&] {
    return kQuarterHour * random.Rand(job.thing.leastQuarters, job.thing.mostQuarters - 1);
  });
}

}  // namespace course::stories
