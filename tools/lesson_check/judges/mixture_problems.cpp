// How much of one mixture must be added to another to reach a percent.
#include <regex>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

// "12.5", ".03".
Rational DecimalIn(const std::string& text) {
  std::string digits = text;
  const std::size_t point = std::min(text.find('.'), text.size());
  Rational parts = 1;
  for (std::size_t i = point + 1; i < text.size(); ++i) parts *= 10;
  std::erase(digits, '.');
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
    throw Unreadable("\"" + text + "\" is no decimal number");
  return Rational(mpz_class(digits, 10)) / parts;
}

std::string Hundredths(const Rational& value) {
  const Rational moved = value * 100 + Rational(1, 2);
  const mpz_class whole = moved.get_num() / moved.get_den();
  return whole.get_str() + " hundredths";
}

// One side of the story: "a 30% gold alloy", "water", "pure gold".
struct Stuff {
  Rational percent;
  std::string substance;
};

Stuff ReadStuff(const std::string& text) {
  static const std::regex kSolution(R"((an?) (\d+)% (\w+) (?:alloy|solution|water solution))");
  if (text == "water") return {0, "water"};
  if (text.starts_with("pure ")) return {100, text.substr(5)};
  std::smatch match;
  if (!std::regex_match(text, match, kSolution)) throw Unreadable("\"" + text + "\" is no mixture");
  static const std::regex kAn("8.?|11|18");  // eight, eighty, eleven, eighteen
  if ((match[1] == "an") != std::regex_match(match[2].str(), kAn))
    throw Unreadable("the article of \"" + text + "\"");
  return {Rational(match[2].str()), match[3]};
}

struct Story {
  Rational quantity;
  Stuff original;
  Stuff added;
  Stuff final;
  std::string unit;
};

Story ReadStory(const course::Problem& problem) {
  static const std::regex kHas(R"(A scientist has (\d+) (g|mL) of (.+)\.)");
  static const std::regex kAsks(
      R"(How many (grams|milliliters) of (.+) must be added to make (.+)\?)");
  if (problem.question.size() < 2) throw Unreadable("not two sentences");
  const std::string first = Trimmed(problem.question[0]);
  const std::string second = Trimmed(problem.question[1]);
  std::smatch has;
  std::smatch asks;
  if (!std::regex_match(first, has, kHas)) throw Unreadable(first);
  if (!std::regex_match(second, asks, kAsks)) throw Unreadable(second);
  Story story = {Rational(has[1].str()), ReadStuff(has[3]), ReadStuff(asks[2]), ReadStuff(asks[3]),
                 has[2]};
  if ((story.unit == "g") != (asks[1] == "grams")) throw Unreadable("another unit: " + second);
  if (story.original.substance != story.final.substance ||
      (story.added.percent != 0 && story.added.substance != story.original.substance))
    throw Unreadable("another substance: " + second);
  return story;
}

void Add(Reading& reading, const std::string& name, const Rational& value) {
  reading.mistakes[name] = {Hundredths(value)};
}

void AddMistakes(const Story& story, const Rational& answer, Reading& reading) {
  const Rational a = story.quantity;
  const Rational original = story.original.percent;
  const Rational added = story.added.percent;
  const Rational final = story.final.percent;
  Add(reading, "uses the two distances the wrong way around", a * a / answer);
  Add(reading, "takes the same quantity of both", a);
  Add(reading, "gives the quantity of the whole mixture", a + answer);
  if (original > final)
    Add(reading, "takes the additive for water", a * original / final - a);
  else
    Add(reading, "takes the additive for the pure substance",
        a * (100 - original) / (100 - final) - a);
}

std::string KindOf(const Story& story) {
  if (story.added.percent == 0) return "water is added";
  if (story.added.percent == 100) return "the pure substance is added";
  return story.original.percent > story.final.percent ? "a weaker one is added"
                                                      : "a stronger one is added";
}

Reading ReadMixture(const course::Problem& problem) {
  const Story story = ReadStory(problem);
  const Rational original = story.original.percent;
  const Rational added = story.added.percent;
  const Rational final = story.final.percent;
  if (!(original < final && final < added) && !(added < final && final < original))
    throw Unreadable("the final percent does not lie between the others");
  const Rational answer = story.quantity * (original - final) / (final - added);
  Reading reading;
  reading.kind = KindOf(story);
  reading.answer = Hundredths(answer);
  reading.value = [unit = story.unit](const std::string& choice) {
    const std::string text = Trimmed(choice);
    if (!text.ends_with(" " + unit)) throw Unreadable("\"" + text + "\" has another unit");
    return Hundredths(DecimalIn(text.substr(0, text.size() - unit.size() - 1)));
  };
  reading.flaw = [](const std::string&) { return std::string(); };
  AddMistakes(story, answer, reading);
  const Rational hundredths = answer * 100;
  const bool rounds = problem.question.size() == 3;
  if (rounds != (hundredths.get_den() != 1))
    reading.faults.emplace_back("says wrongly whether the answer is rounded");
  reading.Within("the quantity", story.quantity, 2, 50);
  reading.Within("the original percent", original, 11, 90);
  reading.Within("the final percent", final, 10, 95);
  return reading;
}

const JudgeRegistration kRegistration(ReadMixture, {"Mixture Problems"});

}  // namespace
}  // namespace lesson_check
