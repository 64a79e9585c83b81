// The story of a purchase at a discount: how much is saved or paid, or what percent is saved.
#include <algorithm>
#include <sstream>

#include "engine/choices.h"
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/decimal_form.h"

namespace lesson_check {
namespace {

// "$12.50" has two decimal places.
Rational MoneyIn(const std::string& text) {
  const std::size_t point = text.find('.');
  if (!text.starts_with('$') || point == std::string::npos || text.size() - point != 3)
    throw Unreadable("\"" + text + "\" is no price");
  return DecimalIn(text.substr(1));
}

Rational PercentIn(const std::string& text) {
  if (!text.ends_with('%')) throw Unreadable("\"" + text + "\" is no percent");
  return DecimalIn(text.substr(0, text.size() - 1));
}

bool Has(const std::string& text, const std::string& words) {
  return text.find(words) != std::string::npos;
}

// The word behind some others, without what ends a sentence.
std::string Behind(const std::string& text, const std::string& words) {
  const std::size_t at = text.find(words + " ");
  if (at == std::string::npos) throw Unreadable("no \"" + words + "\" in: " + text);
  std::istringstream rest(text.substr(at + words.size() + 1));
  std::string word;
  rest >> word;
  if (word.ends_with('.') || word.ends_with('?')) word.pop_back();
  return word;
}

struct Purchase {
  Rational price;
  Rational paid;
  Rational percent;
  Rational Saved() const { return price - paid; }
};

// A percent that is a multiple of 5, with its digits one place too far to the left or right:
// "0.5" for 5, "0.015" for 15.
std::string MisreadPercent(long percent) {
  if (percent < 10) return "0." + std::to_string(percent);
  return "0.0" + std::to_string(percent % 10 == 0 ? percent / 10 : percent);
}

void AddMistakesAtPercentSaved(const Purchase& bought, Reading& reading) {
  const auto add = [&](const std::string& name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  const long percent = bought.percent.get_num().get_si();
  const Rational byPaid = 100 * bought.Saved() / bought.paid;
  add("gives the percent that is paid", 100 - bought.percent);
  add(byPaid.get_den() == 1 ? "divides by the sale price" : "divides by the sale price and rounds",
      RoundedTo(1, byPaid));
  add("takes the dollars saved for the percent", RoundedTo(1, bought.Saved()));
  const std::string digits = std::to_string(percent % 10 == 0 ? percent / 10 : percent);
  if (percent % 10 == 0)
    add("writes 0." + digits + " as " + digits + "%", percent / 10);
  else if (percent < 10)
    add("writes 0.0" + digits + " as " + digits + "0%", percent * 10);
  else
    add("leaves out the last 5%", percent - 5);
}

void AddMistakes(const Purchase& bought, const std::string& kind, Reading& reading) {
  if (kind == "the percent saved") return AddMistakesAtPercentSaved(bought, reading);
  const auto add = [&](const std::string& name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  const long percent = bought.percent.get_num().get_si();
  const Rational misread = bought.Saved() * (percent < 10 ? Rational(10) : Rational(1, 10));
  const Rational rounded = RoundedTo(Rational(1, 100), misread);
  const std::string misreads = "takes " + MisreadPercent(percent) + " for " +
                               std::to_string(percent) + "%" +
                               (rounded == misread ? "" : " and rounds");
  const Rational ofRoundedPrice = RoundedTo(1, bought.price) * bought.percent / 100;
  if (kind == "the discount") {
    add("gives the sale price in place of the discount", bought.paid);
    add("takes the percent for dollars", bought.percent);
    add(misreads, rounded);
    add("rounds the price to whole dollars", ofRoundedPrice);
  } else {
    add("gives the discount in place of the sale price", bought.Saved());
    add("adds the discount", bought.price + bought.Saved());
    add("subtracts the percent as dollars", bought.price - bought.percent);
    add(misreads, bought.price - rounded);
    add("rounds the price to whole dollars", RoundedTo(1, bought.price) - ofRoundedPrice);
  }
}

// A number drawn at random that is a mistake's by chance must bear its name.
void FindUnnamedMistakes(const course::Problem& problem, Reading& reading) {
  for (const auto& choice : problem.choices) {
    if (choice.mistake != course::kFiller) continue;
    for (const auto& [name, values] : reading.mistakes)
      if (std::ranges::find(values, reading.value(choice.text)) != values.end())
        reading.faults.push_back("the filler " + choice.text + " is what someone gets who " + name);
  }
}

// A small thing with a discount in percent, or a large one with its sale price.
Purchase ReadPurchase(const std::string& story, bool percentIsAsked) {
  Purchase bought;
  if (percentIsAsked) {
    bought.paid = MoneyIn(Behind(story, "for the sale price of"));
    bought.price = MoneyIn(Behind(story, "normally costs"));
    bought.percent = 100 * bought.Saved() / bought.price;
    if (Behind(story, "buys a") != Behind(story, "The"))
      throw Unreadable("two different things: " + story);
  } else {
    bought.price = MoneyIn(Behind(story, "is usually priced at"));
    bought.percent = PercentIn(Behind(story, "gets a discount of"));
    bought.paid = bought.price * (100 - bought.percent) / 100;
  }
  return bought;
}

Reading ReadPercentStory(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("not two lines");
  const std::string story = Trimmed(problem.question[0]);
  const std::string question = Trimmed(problem.question[1]);
  const bool isPercent = question == "What percent is being saved?";
  const Purchase bought = ReadPurchase(story, isPercent);
  Reading reading;
  reading.kind = isPercent                    ? "the percent saved"
                 : question.ends_with("pay?") ? "the sale price"
                                              : "the discount";
  if (!isPercent && !Has(story, Behind(question, "How much does") + " gets"))
    throw Unreadable("\"" + question + "\" asks for nothing known");
  reading.answer = (isPercent                          ? bought.percent
                    : reading.kind == "the sale price" ? bought.paid
                                                       : bought.Saved())
                       .get_str();
  reading.value = [isPercent](const std::string& choice) {
    return (isPercent ? PercentIn(choice) : MoneyIn(choice)).get_str();
  };
  reading.excused = {"a number that begins with 0"};
  AddMistakes(bought, reading.kind, reading);
  FindUnnamedMistakes(problem, reading);
  reading.Within("the price", bought.price, isPercent ? 100 : 25, isPercent ? 200 : 75);
  reading.Within("the percent", bought.percent, 5, 50);
  if (Rational(bought.percent / 5).get_den() != 1)
    reading.faults.emplace_back("the percent is no multiple of 5");
  if (Rational(bought.Saved() * 100).get_den() != 1)
    reading.faults.emplace_back("the discount has a part of a cent");
  return reading;
}

const JudgeRegistration kRegistration(ReadPercentStory, {"Word Problems Involving Percent"});

}  // namespace
}  // namespace lesson_check
