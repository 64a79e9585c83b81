// A decimal number that is to be written as a percent, and the way back.
#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/decimal_form.h"

namespace lesson_check {
namespace {

// The number that is printed, without the sign behind it.
Rational Printed(const std::string& text, bool withSign) {
  const std::string plain = Trimmed(text);
  if (plain.ends_with('%') != withSign)
    throw Unreadable("\"" + text + (withSign ? "\" is no percent" : "\" is a percent"));
  return DecimalIn(withSign ? plain.substr(0, plain.size() - 1) : plain);
}

std::string FlawOf(std::string choice) {
  if (choice.ends_with('%')) choice.pop_back();
  return FlawOfDecimal(choice);
}

Reading ReadPercentsAndDecimalNumbers(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("not two lines");
  const bool toPercent = problem.question[0].ends_with("as a percent:");
  if (!toPercent && !problem.question[0].ends_with("as a decimal number:"))
    throw Unreadable("\"" + problem.question[0] + "\" asks for nothing known");
  const Rational given = Printed(problem.question[1], !toPercent);
  const Rational factor = toPercent ? Rational(100) : Rational(1, 100);
  const Rational place = toPercent ? Rational(10) : Rational(1, 10);

  Reading reading;
  reading.kind = toPercent ? "to a percent" : "to a decimal number";
  reading.answer = Rational(given * factor).get_str();
  reading.value = [=](const std::string& choice) { return Printed(choice, toPercent).get_str(); };
  reading.flaw = FlawOf;
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  add("moves the point the wrong way", given / factor);
  add("moves the point one place only", given * place);
  add("moves the point three places", given * factor * place);
  add("moves the point one place the wrong way", given / place);
  add(toPercent ? "only writes the percent sign" : "only leaves the percent sign out", given);
  reading.excused = {"a number that begins with 0"};
  const Rational percent = toPercent ? given * 100 : given;
  reading.Within("the percent", percent, 1, 999);
  if (Rational(percent * 100).get_den() != 1) reading.faults.emplace_back("more than two places");
  return reading;
}

const JudgeRegistration kRegistration(ReadPercentsAndDecimalNumbers,
                                      {"Percents and Decimal Numbers"});

}  // namespace
}  // namespace lesson_check
