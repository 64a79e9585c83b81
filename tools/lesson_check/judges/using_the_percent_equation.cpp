// "30.71 is 37% of what number?" and the two other questions about part, percent and whole.
#include <utility>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/decimal_form.h"

namespace lesson_check {
namespace {

Rational PercentIn(const std::string& text) {
  if (!text.ends_with('%')) throw Unreadable("\"" + text + "\" is no percent");
  return DecimalIn(text.substr(0, text.size() - 1));
}

// Both sides of a word that stands between blanks.
std::pair<std::string, std::string> PartedAt(const std::string& text, const std::string& word) {
  const std::size_t at = text.find(" " + word + " ");
  if (at == std::string::npos) throw Unreadable("no \"" + word + "\" in \"" + text + "\"");
  return {Trimmed(text.substr(0, at)), Trimmed(text.substr(at + word.size() + 2))};
}

// Here all numbers from 1,000 on have their commas.
std::string FlawOf(const std::string& number) {
  constexpr std::size_t kGroup = 3;
  const std::string whole = number.substr(0, number.find('.'));
  if (whole.size() > kGroup && whole.find(',') == std::string::npos) return "has no comma";
  return FlawOfDecimal(number);
}

class PercentEquation {
 public:
  explicit PercentEquation(const std::string& sentence) {
    if (!sentence.ends_with('?')) throw Unreadable("no question: " + sentence);
    const auto [part, rest] = PartedAt(sentence.substr(0, sentence.size() - 1), "is");
    const auto [percent, whole] = PartedAt(rest, "of");
    if (part == "What number") {
      kind_ = "the part";
      percent_ = PercentIn(percent);
      whole_ = DecimalIn(whole);
      part_ = percent_ * whole_ / 100;
    } else if (percent == "what percent") {
      kind_ = "the percent";
      part_ = DecimalIn(part);
      whole_ = DecimalIn(whole);
      percent_ = 100 * part_ / whole_;
    } else if (whole == "what number") {
      kind_ = "the whole";
      part_ = DecimalIn(part);
      percent_ = PercentIn(percent);
      whole_ = 100 * part_ / percent_;
    } else {
      throw Unreadable("nothing is asked for: " + sentence);
    }
  }

  Reading Read() const {
    Reading reading;
    reading.kind = kind_;
    const bool isPercent = kind_ == "the percent";
    if (kind_ == "the part") AddMistakesAtPart(reading);
    if (kind_ == "the whole") AddMistakesAtWhole(reading);
    if (isPercent) AddMistakesAtPercent(reading);
    reading.answer = (isPercent ? percent_ : kind_ == "the part" ? part_ : whole_).get_str();
    reading.value = [isPercent](const std::string& choice) {
      return (isPercent ? PercentIn(choice) : DecimalIn(choice)).get_str();
    };
    reading.flaw = [isPercent](const std::string& choice) {
      return FlawOf(isPercent ? choice.substr(0, choice.size() - 1) : choice);
    };
    reading.excused = {"a number that begins with 0"};
    reading.Within("the percent", percent_, 10, 99);
    reading.Within("the whole", whole_, 1, 100);
    reading.Within("the part", part_, 1, 99);
    if (percent_.get_den() != 1 || whole_.get_den() != 1)
      reading.faults.emplace_back("percent or whole is not a whole number");
    return reading;
  }

 private:
  static void Add(Reading& reading, const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  }
  // To hundredths, which its name tells where it changes the number.
  static void AddRounded(Reading& reading, const std::string& name, const Rational& value) {
    const Rational rounded = RoundedTo(Rational(1, 100), value);
    reading.mistakes[name + (rounded == value ? "" : " and rounds")] = {rounded.get_str()};
  }

  void AddMistakesAtPart(Reading& reading) const {
    AddRounded(reading, "divides by the percent in place of multiplying", 100 * whole_ / percent_);
    Add(reading, "gives what is left of the whole", whole_ - part_);
    Add(reading, "reads the percent as tenths", part_ * 10);
    Add(reading, "reads the percent as thousandths", part_ / 10);
    Add(reading, "uses the percent as a whole number", percent_ * whole_);
  }
  void AddMistakesAtPercent(Reading& reading) const {
    Add(reading, "multiplies the part by the whole", part_ * whole_);
    AddRounded(reading, "switches the part and the whole", 100 * whole_ / part_);
    Add(reading, "gives the percent that is left", 100 - percent_);
    Add(reading, "moves the point of the decimal number one place only", percent_ / 10);
    Add(reading, "moves the point of the decimal number three places", percent_ * 10);
    Add(reading, "forgets to move the point", percent_ / 100);
    Add(reading, "takes the part for the percent", part_);
  }
  void AddMistakesAtWhole(Reading& reading) const {
    AddRounded(reading, "multiplies in place of dividing", percent_ * part_ / 100);
    Add(reading, "reads the percent as tenths", 10 * part_ / percent_);
    Add(reading, "reads the percent as thousandths", 1000 * part_ / percent_);
    Add(reading, "uses the percent as a whole number", part_ / percent_);
    AddRounded(reading, "adds the percent of the part to the part", part_ + percent_ * part_ / 100);
  }

  std::string kind_;
  Rational part_;
  Rational percent_;
  Rational whole_;
};

Reading ReadPercentEquation(const course::Problem& problem) {
  if (problem.question.size() != 1) throw Unreadable("not one line");
  return PercentEquation(Trimmed(problem.question[0])).Read();
}

const JudgeRegistration kRegistration(ReadPercentEquation, {"Using the Percent Equation"});

}  // namespace
}  // namespace lesson_check
