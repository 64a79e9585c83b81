// Two ages compared in times or years: the other one, as a number or as an expression.
#include <map>
#include <regex>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

struct Story {
  std::string first;  // the one who "is 3 years older"
  std::string second;
  Rational number;
  bool inTimes = false;
  bool firstIsOlder = false;
  std::string known;  // an age: a number or a letter
  bool asksForFirst = false;
};

Story ReadStory(const course::Problem& problem) {
  static const std::regex kFact("(\\w+) is (\\d+) (times?|years?) (younger|older) than (\\w+)\\.");
  static const std::regex kNumber("If (\\w+) is (\\d+) years? old, how old is (\\w+)\\?");
  static const std::regex kExpression(
      "If (\\w+) is ([a-z]) years old, which expression tells (\\w+)'s age\\?");
  const std::string fact = Trimmed(problem.question.at(0));
  const std::string question = Trimmed(problem.question.at(1));
  std::smatch f;
  std::smatch q;
  if (!std::regex_match(fact, f, kFact)) throw Unreadable("\"" + fact + "\" compares no ages");
  const bool number = std::regex_match(question, q, kNumber);
  if (!number && !std::regex_match(question, q, kExpression))
    throw Unreadable("\"" + question + "\" asks for no age");
  Story story = {
      f[1], f[5],        Rational(f[2].str(), 10), f[3].str().starts_with("time"), f[4] == "older",
      q[2], q[3] == f[1]};
  const std::string& knownName = story.asksForFirst ? story.second : story.first;
  if (story.first == story.second || q[1] != knownName || story.asksForFirst != number)
    throw Unreadable("\"" + question + "\" does not go with \"" + fact + "\"");
  return story;
}

// Decimals of a choice are cut behind the third.
Polynomial CutToThousandths(const Polynomial& value) {
  if (!value.IsNumber()) return value;
  const Rational thousand = value.Number() * 1000;
  return Polynomial(Rational(thousand.get_num() / thousand.get_den()) / 1000);
}

Polynomial ReadAge(const std::string& text) {
  const std::string plain = WithoutBlanks(text);
  const std::size_t point = plain.find('.');
  if (point == std::string::npos) return ValueOf(text);
  Rational scale = 1;
  for (std::size_t i = point + 1; i < plain.size(); ++i) scale *= 10;
  return Polynomial(Rational(plain.substr(0, point) + plain.substr(point + 1), 10) / scale);
}

// The asked one's age when it is the larger or the smaller one, in times or in years.
std::string AgeText(const Story& story, bool larger, bool inTimes) {
  const Polynomial known = ValueOf(story.known);
  const Polynomial number(story.number);
  Polynomial age;
  if (inTimes)
    age = larger ? known * number : known / number;
  else
    age = larger ? known + number : known - number;
  if (age.IsNumber() && age.Number() < 0) age = -age;
  return CutToThousandths(age).Text();
}

// Fewer years than are to be taken away leave no age: then the difference is another mistake.
std::map<std::string, std::vector<std::string>> MistakesIn(const Story& story, bool larger) {
  const std::string mixed = "mixes up who is older";
  const std::string word = story.inTimes ? "reads times as years" : "reads years as times";
  const std::string turned = "subtracts the smaller number from the larger one";
  const bool noAge = larger && story.asksForFirst && ValueOf(story.known).Number() < story.number;
  return {{noAge && !story.inTimes ? turned : mixed, {AgeText(story, !larger, story.inTimes)}},
          {word, {AgeText(story, larger, !story.inTimes)}},
          {noAge && story.inTimes ? turned : word + " and " + mixed,
           {AgeText(story, !larger, !story.inTimes)}}};
}

Reading ReadAges(const course::Problem& problem) {
  const Story story = ReadStory(problem);
  const bool larger = story.asksForFirst == story.firstIsOlder;
  Reading reading;
  reading.answer = AgeText(story, larger, story.inTimes);
  reading.value = [](const std::string& choice) { return ReadAge(choice).Text(); };
  reading.mistakes = MistakesIn(story, larger);
  reading.kind = std::string(story.asksForFirst ? "a number" : "an expression") +
                 (story.inTimes ? ", times " : ", years ") +
                 (story.firstIsOlder ? "older" : "younger");
  reading.Within("the number", story.number, 1, 9);
  if (story.asksForFirst) {
    reading.Within("an age", ValueOf(story.known).Number(), 1, 60);
    reading.Within("the answer", ReadAge(reading.answer).Number(), 1, 60);
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadAges, {"Simple Word Problems"});

}  // namespace
}  // namespace lesson_check
