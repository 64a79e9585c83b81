// The sum of two decimal numbers, and the usual slips.
#include <algorithm>
#include <string>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/decimal_form.h"

namespace lesson_check {
namespace {

// A number as it is printed: the digits before its point and behind it.
struct Printed {
  std::string whole;
  std::string behind;

  Rational Value() const { return DecimalIn(whole + "." + behind); }
};

Printed PrintedIn(const std::string& text) {
  if (const std::string flaw = FlawOfDecimal(text); !flaw.empty())
    throw Unreadable("\"" + text + "\" " + flaw);
  DecimalIn(text);
  const std::size_t point = std::min(text.find('.'), text.size());
  return {text.substr(0, point), point < text.size() ? text.substr(point + 1) : ""};
}

struct Sum {
  Printed first;
  Printed second;

  // Both with as many places, filled with zeros in front and behind.
  Sum Filled() const {
    Sum filled = *this;
    const std::size_t front = std::max(first.whole.size(), second.whole.size());
    const std::size_t back = std::max(first.behind.size(), second.behind.size());
    for (Printed* const number : {&filled.first, &filled.second}) {
      number->whole.insert(0, front - number->whole.size(), '0');
      number->behind.append(back - number->behind.size(), '0');
    }
    return filled;
  }
  Rational Value() const { return first.Value() + second.Value(); }
};

Sum SumIn(const std::string& line) {
  const std::string text = Trimmed(line);
  const std::size_t sign = text.find(" + ");
  if (sign == std::string::npos) throw Unreadable("\"" + text + "\" is no sum");
  return {PrintedIn(text.substr(0, sign)), PrintedIn(text.substr(sign + 3))};
}

// The digits under each other, added from the last one on.
Rational ByColumns(const Sum& sum, int times) {
  const Sum filled = sum.Filled();
  const std::string upper = filled.first.whole + filled.first.behind;
  const std::string lower = filled.second.whole + filled.second.behind;
  std::string digits;
  int carry = 0;
  for (std::size_t i = upper.size(); i-- > 0;) {
    const int total = (upper[i] - '0') + (lower[i] - '0') + times * carry;
    digits.insert(0, std::to_string(i > 0 ? total % 10 : total));
    carry = total / 10;
  }
  digits.insert(digits.size() - filled.first.behind.size(), ".");
  return DecimalIn(digits);
}

// 0.8 + 0.4 gives 0 and 12.
Rational PartByPart(const Sum& sum) {
  const auto number = [](const std::string& digits) {
    return digits.empty() ? 0 : std::stoi(digits);
  };
  const int whole = number(sum.first.whole) + number(sum.second.whole);
  const int behind = number(sum.first.behind) + number(sum.second.behind);
  return DecimalIn(std::to_string(whole) + "." + std::to_string(behind));
}

// The last digits under each other, and the point of the number with more decimal places.
Rational RightAligned(const Sum& sum) {
  Rational digits = DecimalIn(sum.first.whole + sum.first.behind) +
                    DecimalIn(sum.second.whole + sum.second.behind);
  const std::size_t decimals = std::max(sum.first.behind.size(), sum.second.behind.size());
  for (std::size_t i = 0; i < decimals; ++i) digits /= 10;
  return digits;
}

// The first digits under each other: the shorter whole part gains a place.
Rational LeftAligned(const Sum& sum) {
  Rational first = sum.first.Value();
  Rational second = sum.second.Value();
  for (std::size_t i = sum.first.whole.size(); i < sum.second.whole.size(); ++i) first *= 10;
  for (std::size_t i = sum.second.whole.size(); i < sum.first.whole.size(); ++i) second *= 10;
  return first + second;
}

Rational Shortened(const Sum& sum) {
  Sum cut = sum;
  const std::size_t decimals = std::min(sum.first.behind.size(), sum.second.behind.size());
  cut.first.behind.resize(decimals);
  cut.second.behind.resize(decimals);
  return cut.Value();
}

bool TenthsCarry(const Sum& sum) {
  Sum parts = sum;
  parts.first.whole = "0";
  parts.second.whole = "0";
  return parts.Value() >= 1;
}

void NameMistakes(const Sum& sum, Reading& reading) {
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  const Rational right = sum.Value();
  add("adds whole parts and decimal parts each by itself", PartByPart(sum));
  add("lines the numbers up on the right", RightAligned(sum));
  add("lines the numbers up on the left", LeftAligned(sum));
  add("drops the extra decimal digits", Shortened(sum));
  add("forgets to carry", ByColumns(sum, 0));
  add("adds each carried digit twice", ByColumns(sum, 2));
  if (!TenthsCarry(sum)) add("carries a 1 that is not there", right + 1);
  const std::size_t decimals = std::max(sum.first.behind.size(), sum.second.behind.size());
  add("forgets the point", decimals > 1 ? right * 100 : right * 10);
  add("puts the point one place too far to the left", right / 10);
  add("puts the point one place too far to the right", right * 10);
}

Reading ReadAddingDecimalNumbers(const course::Problem& problem) {
  if (problem.question.size() != 2 || problem.question[0] != "Add these numbers:")
    throw Unreadable("asks for no sum");
  const Sum sum = SumIn(problem.question[1]);
  const std::size_t shorter = std::min(sum.first.behind.size(), sum.second.behind.size());
  const std::size_t longer = std::max(sum.first.behind.size(), sum.second.behind.size());

  Reading reading;
  for (const Printed& number : {sum.first, sum.second}) {
    reading.Within("a number in hundredths", number.Value() * 100, 1, 9999);
    if (number.behind.size() > 2) reading.faults.emplace_back("more than two decimal places");
  }
  if (longer == 0) reading.faults.emplace_back("two whole numbers");
  if (shorter == longer && !TenthsCarry(sum)) reading.faults.emplace_back("nothing to learn");
  reading.kind = shorter == longer ? "as many decimal places"
                 : shorter == 0    ? "a whole number and a decimal number"
                                   : "one and two decimal places";
  reading.answer = sum.Value().get_str();
  reading.value = [](const std::string& choice) { return DecimalIn(choice).get_str(); };
  reading.flaw = FlawOfDecimal;
  reading.excused = {"a number that begins with 0"};
  NameMistakes(sum, reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadAddingDecimalNumbers, {"Adding Decimal Numbers"});

}  // namespace
}  // namespace lesson_check
