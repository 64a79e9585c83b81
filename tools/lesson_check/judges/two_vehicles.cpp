// Two vehicles from one town, one behind the other or in opposite directions: when they meet, when
// they are so far apart, or how far apart they are.
#include <regex>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/number_form.h"

namespace lesson_check {
namespace {

const std::string kTime = R"((?:(\d+) hours?)?(?: & )?(?:(\d+) minutes?)?)";
// With commas from 1,000 on.
const std::string kMiles = R"(((?:\d{1,3}(?:,\d{3})*)?(?: ?\d/\d)?) miles?)";
const std::string kTown = "(?:Northton|Southton|Eastville|Westville)";

bool Matches(const std::string& text, const std::string& pattern, std::smatch& match) {
  static std::map<std::string, std::regex> compiled;
  const auto [found, isNew] = compiled.try_emplace(pattern);
  if (isNew) found->second = std::regex(pattern);
  return std::regex_match(text, match, found->second);
}

// Hours and minutes in two groups of a match.
Rational MinutesIn(const std::smatch& match, std::size_t group) {
  if (!match[group].matched && !match[group + 1].matched)
    throw Unreadable("\"" + match.str() + "\" tells no time");
  Rational minutes = 0;
  if (match[group].matched) minutes += 60 * Rational(match[group].str());
  if (match[group + 1].matched) minutes += Rational(match[group + 1].str());
  return minutes;
}

mpz_class Floor(const Rational& value) {
  mpz_class floor;
  mpz_fdiv_q(floor.get_mpz_t(), value.get_num_mpz_t(), value.get_den_mpz_t());
  return floor;
}

// A story of two vehicles, its numbers as they are told; times in minutes.
struct Story {
  std::string vehicle;
  Rational slower;
  Rational faster;
  Rational time;
  Rational later;
  Rational miles;
};

void CheckRates(const Story& story, Reading& reading) {
  static const std::map<std::string, std::pair<long, long>> kRates = {
      {"plane", {150, 550}}, {"train", {40, 125}}, {"car", {40, 75}}};
  const auto range = kRates.find(story.vehicle);
  if (range == kRates.end()) throw Unreadable("nobody takes a " + story.vehicle);
  for (const Rational& rate : {story.slower, story.faster}) {
    reading.Within("a rate", rate, range->second.first, range->second.second);
    const Rational fives = rate / 5;
    if (fives.get_den() != 1) reading.faults.push_back("a rate is no multiple of five");
  }
}

void CheckTime(const Rational& minutes, Reading& reading) {
  reading.Within("a time in minutes", minutes, 15, 9 * 60 + 45);
  const Rational quarters = minutes / 15;
  if (quarters.get_den() != 1) reading.faults.push_back("a time is no quarter hour");
}

// "1,383 3/4", as kMiles has it.
Rational MilesIn(std::string text) {
  std::erase(text, ',');
  return NumberIn(text);
}

// --- Mistakes --------------------------------------------------------------------

void AddMiles(Reading& reading, const std::string& name, const Rational& miles) {
  reading.mistakes[name] = {miles.get_str() + " miles"};
}

// A time with parts of a minute is rounded to the roundness of the right one, and the name tells
// it.
class TimeMistakes {
 public:
  TimeMistakes(const Rational& answer, Reading& reading) : reading_(reading) {
    for (const long step : {15, 5}) {
      const Rational steps = answer / step;
      if (step_ == 1 && steps.get_den() == 1) step_ = step;
    }
  }
  void Add(const std::string& name, const Rational& minutes) {
    const Rational steps = minutes / step_;
    if (minutes.get_den() == 1)
      AddWhole(name, minutes);
    else
      AddWhole(name + ", rounded", Rational(Floor(steps + Rational(1, 2))) * step_);
  }
  // Of what is read off, there is nothing to round.
  void AddWhole(const std::string& name, const Rational& minutes) {
    reading_.mistakes[name] = {minutes.get_str() + " minutes"};
  }

 private:
  long step_ = 1;  // minutes
  Reading& reading_;
};

// A time in minutes, as it is misread, in hours.
struct Misread {
  explicit Misread(const Rational& minutes)
      : full(Floor(minutes / 60)), rest(minutes - full * 60) {}
  std::vector<std::pair<std::string, Rational>> Readings() const {
    if (rest == 0) return {};
    return {{"reads the minutes as hundredths of an hour", full + rest / 100},
            {"leaves the minutes out", full},
            {"counts the minutes as a full hour", full + 1}};
  }
  // Full hours of both, or of the head start.
  std::vector<std::pair<std::string, Rational>> OtherHours() const {
    if (rest != 0) return {};
    return {{"counts one hour too many", full + 1}, {"counts one hour too few", full - 1}};
  }
  std::vector<std::pair<std::string, Rational>> OtherHeadStarts() const {
    if (rest != 0) return {};
    return {{"makes the head start one hour too long", full + 1},
            {"makes the head start one hour too short", full - 1}};
  }
  // 2.4 hours as 2 hours and 40 minutes.
  Rational DecimalsAsMinutes() const { return full * 60 + rest * 100 / 60; }
  Rational full;
  Rational rest;  // minutes
};

Rational CatchUp(const Story& s, Reading& reading) {
  const Rational closing = s.faster - s.slower;
  const Rational gap = s.slower * s.time;  // per 60
  const Rational answer = gap / closing;
  TimeMistakes mistakes(answer, reading);
  mistakes.Add("adds the rates in place of subtracting them", gap / (s.slower + s.faster));
  mistakes.Add("uses the faster rate alone", gap / s.faster);
  mistakes.Add("forgets to multiply by the head start", 60 * s.slower / closing);
  mistakes.Add("adds the head start to the time", answer + s.time);
  mistakes.Add("counts the head start twice", 2 * gap / closing);
  mistakes.Add("takes the head start for the answer", s.time);
  const Misread misread(s.time);
  for (const auto& readings : {misread.Readings(), misread.OtherHeadStarts()})
    for (const auto& [name, hours] : readings) mistakes.Add(name, 60 * hours * s.slower / closing);
  mistakes.AddWhole("reads the decimal part of the hours as minutes",
                    Misread(answer).DecimalsAsMinutes());
  return answer;
}

Rational TimeApart(const Story& s, Reading& reading) {
  const Rational answer = 60 * s.miles / (s.slower + s.faster);
  TimeMistakes mistakes(answer, reading);
  mistakes.Add("subtracts the rates in place of adding them", 60 * s.miles / (s.faster - s.slower));
  mistakes.Add("uses the slower rate alone", 60 * s.miles / s.slower);
  mistakes.Add("uses the faster rate alone", 60 * s.miles / s.faster);
  mistakes.Add("takes the mean of the rates", 120 * s.miles / (s.slower + s.faster));
  mistakes.Add("lets both go at the faster rate", 30 * s.miles / s.faster);
  mistakes.Add("lets both go at the slower rate", 30 * s.miles / s.slower);
  mistakes.Add("halves the distance", 30 * s.miles / (s.slower + s.faster));
  const Misread misread(answer);
  if (misread.rest != 0) {
    mistakes.Add("leaves the part of an hour out", 60 * misread.full);
    mistakes.Add("rounds up to a full hour", 60 * (misread.full + 1));
  }
  for (const auto& [name, hours] : misread.OtherHours()) mistakes.Add(name, 60 * hours);
  mistakes.AddWhole("reads the decimal part of the hours as minutes", misread.DecimalsAsMinutes());
  return answer;
}

Rational DistanceApart(const Story& s, Reading& reading) {
  const Rational sum = s.slower + s.faster;
  const Rational hours = s.time / 60;
  AddMiles(reading, "subtracts the rates in place of adding them", (s.faster - s.slower) * hours);
  AddMiles(reading, "uses the slower rate alone", s.slower * hours);
  AddMiles(reading, "uses the faster rate alone", s.faster * hours);
  AddMiles(reading, "takes the mean of the rates", sum / 2 * hours);
  AddMiles(reading, "lets both go at the faster rate", 2 * s.faster * hours);
  AddMiles(reading, "lets both go at the slower rate", 2 * s.slower * hours);
  AddMiles(reading, "doubles the gap", 2 * sum * hours);
  AddMiles(reading, "forgets to multiply by the time", sum);
  const Misread misread(s.time);
  for (const auto& readings : {misread.Readings(), misread.OtherHours()})
    for (const auto& [name, misreadHours] : readings) AddMiles(reading, name, sum * misreadHours);
  return sum * hours;
}

Rational SameRate(const Story& s, Reading& reading) {
  const Rational hours = s.time / 60;
  const Rational later = s.later / 60;
  AddMiles(reading, "thinks that the distance between them keeps growing",
           s.slower * (hours + later));
  AddMiles(reading, "forgets the head start", s.slower * later);
  AddMiles(reading, "subtracts the two times", s.slower * abs(hours - later));
  AddMiles(reading, "lets them go in opposite directions", s.slower * (hours + 2 * later));
  const Misread misread(s.time);
  for (const auto& readings : {misread.Readings(), misread.OtherHeadStarts()})
    for (const auto& [name, misreadHours] : readings)
      AddMiles(reading, name, s.slower * misreadHours);
  return s.slower * hours;
}

// --- Stories ---------------------------------------------------------------------

std::string Minutes(const Rational& minutes, Reading& reading) {
  if (minutes.get_den() != 1) reading.faults.emplace_back("the answer has parts of a minute");
  return minutes.get_str() + " minutes";
}

// "A train left Northton 2 hours ago.  Its rate is ...  Now a second train leaves ..."
bool ReadFollowing(const std::string& text, Reading& reading) {
  const std::string start = "A (\\w+) left " + kTown + " " + kTime +
                            R"( ago\.  Its rate is (\d+) mph\.  Now a second (\w+) leaves and )"
                            "follows it at ";
  std::smatch match;
  Story story;
  const bool catches =
      Matches(text,
              start + R"((\d+) mph\.  In how many hours will the second (\w+) catch up with )" +
                  R"(the first\?)",
              match);
  if (!catches &&
      !Matches(text,
               start + R"(the same rate\.  How far apart will they be after )" + kTime + R"(\?)",
               match))
    return false;
  story.vehicle = match[1];
  story.time = MinutesIn(match, 2);
  story.slower = Rational(match[4].str());
  story.faster = catches ? Rational(match[6].str()) : story.slower;
  if (match[5] != story.vehicle || (catches && match[7] != story.vehicle))
    throw Unreadable("another vehicle: " + text);
  if (!catches) story.later = MinutesIn(match, 6);
  CheckTime(story.time, reading);
  CheckRates(story, reading);
  if (catches) {
    if (story.faster <= story.slower) throw Unreadable("it never catches up: " + text);
    reading.answer = Minutes(CatchUp(story, reading), reading);
    reading.kind = "catching up";
  } else {
    CheckTime(story.later, reading);
    reading.answer = SameRate(story, reading).get_str() + " miles";
    reading.kind = "following at the same rate";
  }
  return true;
}

// "Two trains leave Northton at the same time in opposite directions.  One goes at ..."
bool ReadOpposite(const std::string& text, Reading& reading) {
  const std::string start = "Two (\\w+)s leave " + kTown +
                            " at the same time in opposite directions\\.  " +
                            R"(One goes at (\d+) mph and the other at (\d+) mph\.  )";
  std::smatch match;
  Story story;
  const bool asksTime =
      Matches(text, start + "After how much time will they be " + kMiles + R"( apart\?)", match);
  if (!asksTime &&
      !Matches(text, start + "How far apart will they be after " + kTime + R"(\?)", match))
    return false;
  story.vehicle = match[1];
  story.slower = Rational(match[2].str());
  story.faster = Rational(match[3].str());
  if (story.faster <= story.slower) throw Unreadable("the second one is not faster: " + text);
  CheckRates(story, reading);
  if (asksTime) {
    story.miles = MilesIn(match[4].str());
    const Rational minutes = TimeApart(story, reading);
    CheckTime(minutes, reading);
    reading.answer = Minutes(minutes, reading);
    reading.kind = "opposite directions, time";
  } else {
    story.time = MinutesIn(match, 4);
    CheckTime(story.time, reading);
    reading.answer = DistanceApart(story, reading).get_str() + " miles";
    reading.kind = "opposite directions, distance";
  }
  return true;
}

std::string ValueOfChoice(const std::string& choice) {
  const std::string text = Trimmed(choice);
  std::smatch match;
  if (Matches(text, kMiles, match)) return MilesIn(match[1].str()).get_str() + " miles";
  if (!Matches(text, kTime, match)) throw Unreadable("\"" + text + "\" is no time or distance");
  return MinutesIn(match, 1).get_str() + " minutes";
}

Reading ReadTwoVehicles(const course::Problem& problem) {
  std::string text;
  for (const std::string& sentence : problem.question)
    text += (text.empty() ? "" : "  ") + Trimmed(sentence);
  Reading reading;
  reading.value = ValueOfChoice;
  reading.excused = {"a number that begins with 0"};  // "1,050"
  if (!ReadFollowing(text, reading) && !ReadOpposite(text, reading))
    throw Unreadable("no story of two vehicles: " + text);
  return reading;
}

const JudgeRegistration kRegistration(ReadTwoVehicles, {"Advanced Distance-Rate-Time Problems"});

}  // namespace
}  // namespace lesson_check
