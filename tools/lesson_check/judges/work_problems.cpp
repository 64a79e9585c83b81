// Two workers and a job: how long it takes them together, or one of them alone.
#include <regex>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

const std::string kTime = R"((?:(\d+) hours?)?(?: & )?(?:(\d+) minutes?)?)";

// Minutes in two groups of a match.
Rational MinutesIn(const std::smatch& match, std::size_t group) {
  if (!match[group].matched && !match[group + 1].matched)
    throw Unreadable("\"" + match.str() + "\" tells no time");
  Rational minutes = 0;
  if (match[group].matched) minutes += 60 * Rational(match[group].str());
  if (match[group + 1].matched) minutes += Rational(match[group + 1].str());
  return minutes;
}

std::smatch Match(const std::string& text, const std::string& pattern) {
  static std::map<std::string, std::regex> compiled;
  const auto [found, isNew] = compiled.try_emplace(pattern);
  if (isNew) found->second = std::regex(pattern);
  std::smatch match;
  if (!std::regex_match(text, match, found->second))
    throw Unreadable("\"" + text + "\" is not like \"" + pattern + "\"");
  return match;
}

std::string TimeOfChoice(const std::string& choice) {
  const std::string text = Trimmed(choice);
  const Rational minutes = MinutesIn(Match(text, kTime), 1);
  return minutes.get_str() + " minutes";
}

// What one worker can need for the thing, in hours.
void CheckTime(const std::string& thing, const Rational& minutes, Reading& reading) {
  static const std::map<std::string, std::pair<long, long>> kHours = {
      {"wall", {1, 6}},   {"house", {4, 12}}, {"swimming pool", {1, 5}},
      {"garden", {1, 5}}, {"truck", {1, 6}},  {"mural", {4, 10}}};
  const auto range = kHours.find(thing);
  if (range == kHours.end()) throw Unreadable("nobody works on a " + thing);
  reading.Within("a worker's time in minutes", minutes, 60 * range->second.first,
                 60 * range->second.second);
  const Rational quarters = minutes / 15;
  if (quarters.get_den() != 1) reading.faults.push_back("a worker's time is no quarter hour");
}

void Add(Reading& reading, const std::string& name, const Rational& minutes) {
  reading.mistakes[name] = {minutes.get_str() + " minutes"};
}

// Those that take the two numbers of the story as they stand.
void AddCommon(const Rational& one, const Rational& other, const Rational& answer,
               Reading& reading) {
  Add(reading, "adds the two times", one + other);
  Add(reading, "takes the mean of the two times", (one + other) / 2);
  Add(reading, "subtracts the two times", abs(one - other));
  const mpz_class minutes = answer.get_num();
  const mpz_class hours = minutes / 60;
  const mpz_class rest = minutes % 60;
  const Rational hundredths = Rational(rest * 100) / 60;
  Add(reading, "reads the decimal part of the hours as minutes", 60 * hours + hundredths);
}

// "John can paint a wall in ...", "Bill can paint it in ...".
Rational ReadTogether(const std::vector<std::string>& line, Reading& reading) {
  const auto first = Match(line[0], R"((.+) can (\w+) a ([\w ]+) in )" + kTime + R"(\.)");
  const auto second = Match(line[1], R"((.+) can (\w+) it in )" + kTime + R"(\.)");
  Match(line[2], R"(How long do they need together\?)");
  if (first[2] != second[2]) throw Unreadable("another job: " + line[1]);
  const Rational a = MinutesIn(first, 4);
  const Rational b = MinutesIn(second, 3);
  CheckTime(first[3], a, reading);
  CheckTime(first[3], b, reading);
  const Rational answer = 1 / (1 / a + 1 / b);
  AddCommon(a, b, answer, reading);
  Add(reading, "takes the faster worker's time alone", std::min(a, b));
  Add(reading, "halves the faster worker's time", std::min(a, b) / 2);
  reading.kind = "together";
  return answer;
}

// "Working together, John and Bill can ...", "Bill alone needs ...".
Rational ReadAlone(const std::vector<std::string>& line, Reading& reading) {
  const auto both = Match(
      line[0], R"(Working together, (.+) and (.+) can (\w+) a ([\w ]+) in )" + kTime + R"(\.)");
  const auto one = Match(line[1], R"((.+) alone needs )" + kTime + R"(\.)");
  const auto asked = Match(line[2], R"(How long does (.+) need alone\?)");
  const bool firstAsked = asked[1] == both[1];
  if (!firstAsked && asked[1] != both[2]) throw Unreadable("a third worker: " + line[2]);
  std::string other = firstAsked ? both[2] : both[1];
  if (other.starts_with("the ")) other[0] = 'T';  // at the start of a sentence
  if (one[1] != other) throw Unreadable("not the other worker: " + line[1]);
  const Rational together = MinutesIn(both, 5);
  const Rational alone = MinutesIn(one, 2);
  if (alone <= together) throw Unreadable("the help costs time");
  const Rational answer = 1 / (1 / together - 1 / alone);
  CheckTime(both[4], alone, reading);
  CheckTime(both[4], answer, reading);
  AddCommon(together, alone, answer, reading);
  Add(reading, "thinks that both are equally fast", 2 * together);
  reading.kind = firstAsked ? "the first one alone" : "the second one alone";
  return answer;
}

Reading ReadWorkProblem(const course::Problem& problem) {
  if (problem.question.size() != 3) throw Unreadable("not three sentences");
  std::vector<std::string> line;
  for (const std::string& text : problem.question) line.push_back(Trimmed(text));
  Reading reading;
  reading.value = TimeOfChoice;
  const Rational answer =
      line[2].ends_with("together?") ? ReadTogether(line, reading) : ReadAlone(line, reading);
  if (answer.get_den() != 1) reading.faults.emplace_back("the answer has parts of a minute");
  reading.answer = answer.get_str() + " minutes";
  return reading;
}

const JudgeRegistration kRegistration(ReadWorkProblem, {"Work Problems"});

}  // namespace
}  // namespace lesson_check
