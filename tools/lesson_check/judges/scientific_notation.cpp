// A number in standard form that is to be written in scientific notation, and the way back.
#include <algorithm>
#include <cstdlib>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

// A number as digits, the first and the last of them not 0, and the place of the point: "314" and
// -2 are 0.00314.
struct Digits {
  std::string digits;
  long before = 0;  // digits before the point
};

Digits Trim(std::string digits, long before) {
  const std::size_t zeros = digits.find_first_not_of('0');
  if (zeros == std::string::npos) throw Unreadable("no digit but 0");
  digits.erase(0, zeros);
  digits.erase(digits.find_last_not_of('0') + 1);
  return {digits, before - static_cast<long>(zeros)};
}

// "12,345.6".
Digits ReadDecimal(const std::string& text) {
  std::string plain = Trimmed(text);
  std::erase(plain, ',');
  if (plain.empty() || plain.find_first_not_of("0123456789.") != std::string::npos)
    throw Unreadable("\"" + text + "\" is no decimal number");
  const std::size_t point = std::min(plain.find('.'), plain.size());
  if (point < plain.size()) plain.erase(point, 1);
  if (plain.find('.') != std::string::npos) throw Unreadable("two decimal points");
  return Trim(plain, static_cast<long>(point));
}

// "3.14 x 10^5^": the first factor and the exponent.
struct Scientific {
  Digits factor;
  long exponent = 0;
};

Scientific ReadScientific(const std::string& text) {
  const std::string times = " " + course::tutor::Times + " 10^";
  const std::size_t at = text.find(times);
  if (at == std::string::npos || !text.ends_with('^')) throw Unreadable("no power of ten: " + text);
  const std::size_t start = at + times.size();
  const std::string exponent = text.substr(start, text.size() - 1 - start);
  char* end = nullptr;
  const long value = std::strtol(exponent.c_str(), &end, 10);
  if (exponent.empty() || *end != '\0') throw Unreadable("the exponent \"" + exponent + "\"");
  return {ReadDecimal(text.substr(0, at)), value};
}

// --- To standard form ----------------------------------------------------------------------------

std::string TextOf(const Digits& number) {
  return number.digits + " with its point at " + std::to_string(number.before);
}

// Commas in groups of three, a 0 before a point, and no 0 too many.
std::string FlawOfStandard(std::string text) {
  if (text.starts_with('-')) text.erase(0, 1);
  const std::string whole = text.substr(0, text.find('.'));
  std::string digits = whole;
  std::erase(digits, ',');
  std::string grouped = digits;
  for (std::size_t end = grouped.size(); end > 3; grouped.insert(end, ",")) end -= 3;
  if (whole.empty()) return "begins with its point";
  if (grouped != whole) return "has its commas in wrong places";
  if (digits.size() > 1 && digits[0] == '0') return "begins with a 0 too many";
  if (text.find('.') != std::string::npos && text.find_last_not_of('0') + 1 != text.size())
    return "ends with a 0 too many";
  return text.ends_with('.') ? "ends with its point" : "";
}

Reading ReadToStandard(const Scientific& given) {
  const std::string& digits = given.factor.digits;
  const long size = std::labs(given.exponent);
  const long sign = given.exponent < 0 ? -1 : 1;
  const auto at = [&](long exponent) { return TextOf({digits, exponent + 1}); };
  Reading reading;
  reading.kind = sign > 0 ? "a large number to standard form" : "a small number to standard form";
  reading.answer = at(given.exponent);
  reading.value = [](const std::string& choice) {
    const bool negative = choice.starts_with('-');
    return (negative ? "-" : "") + TextOf(ReadDecimal(negative ? choice.substr(1) : choice));
  };
  reading.flaw = FlawOfStandard;
  reading.mistakes["moves the point the wrong way"] = {at(-given.exponent)};
  reading.mistakes[sign < 0 && size > 1
                       ? "puts as many zeros right after the decimal point as the exponent tells"
                       : "moves the point one place too far"] = {at(sign * (size + 1))};
  reading.mistakes[size == 1 ? "does not move the point" : "stops one place early"] = {
      at(sign * (size - 1))};
  reading.mistakes["moves the point the wrong way and one place too far"] = {
      at(-sign * (size + 1))};
  reading.mistakes["moves the point the wrong way and stops one place early"] = {
      at(-sign * (size - 1))};
  if (sign > 0)
    reading.mistakes["writes as many zeros as the exponent tells"] = {
        at(size + static_cast<long>(digits.size()) - 1)};
  else
    reading.mistakes["takes the negative exponent for a minus sign"] = {"-" + at(size)};
  return reading;
}

// --- To scientific notation ----------------------------------------------------------------------

// The form counts: 31.4 x 10^4 is worth as much as 3.14 x 10^5 and is not the answer.
std::string TextOf(const Scientific& number) {
  return TextOf(number.factor) + ", times ten to the power " + std::to_string(number.exponent);
}

void AddZeros(const std::string& line, const Digits& given, const Digits& factor, long sign,
              Reading& reading) {
  long zeros = 0;
  if (sign > 0) {
    zeros = given.before - static_cast<long>(given.digits.size());  // at the end
  } else {
    const std::size_t point = line.find('.');
    zeros = static_cast<long>(line.find_first_not_of('0', point + 1) - point - 1);
  }
  if (zeros < 1) return;
  const std::string name =
      sign > 0 ? "counts the zeros" : "counts only the zeros after the decimal point";
  reading.mistakes[name] = {TextOf(Scientific{factor, sign * zeros})};
  reading.mistakes[name + " and gives the exponent the wrong sign"] = {
      TextOf(Scientific{factor, -sign * zeros})};
}

Reading ReadToScientific(const std::string& line) {
  const Digits given = ReadDecimal(line);
  const long exponent = given.before - 1;
  const long size = std::labs(exponent);
  const long sign = exponent < 0 ? -1 : 1;
  const Digits factor = {given.digits, 1};
  Reading reading;
  reading.kind =
      sign > 0 ? "a large number to scientific notation" : "a small number to scientific notation";
  reading.answer = TextOf(Scientific{factor, exponent});
  reading.value = [](const std::string& choice) { return TextOf(ReadScientific(choice)); };
  reading.flaw = [](const std::string& choice) {
    return FlawOfStandard(choice.substr(0, choice.find(' ')));
  };
  const auto add = [&](const char* name, long wrong) {
    reading.mistakes[name] = {TextOf(Scientific{factor, wrong})};
  };
  add("gives the exponent the wrong sign", -exponent);
  add("counts one place too many", sign * (size + 1));
  add("counts one place too few", sign * (size - 1));
  add("counts one place too many and gives the exponent the wrong sign", -sign * (size + 1));
  add("counts one place too few and gives the exponent the wrong sign", -sign * (size - 1));
  AddZeros(line, given, factor, sign, reading);
  reading.mistakes["leaves two digits before the point"] = {
      TextOf(Scientific{{given.digits, 2}, exponent - 1})};
  reading.mistakes["begins the first factor with 0"] = {
      TextOf(Scientific{{given.digits, 0}, exponent + 1})};
  return reading;
}

Reading ReadScientificNotation(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("not two lines");
  const std::string& line = problem.question[1];
  const bool toStandard = line.find('^') != std::string::npos;
  const char* asked = toStandard ? "standard form" : "scientific notation";
  Reading reading = toStandard ? ReadToStandard(ReadScientific(line)) : ReadToScientific(line);
  if (problem.question[0].find(asked) == std::string::npos)
    reading.faults.push_back("the question does not ask for " + std::string(asked));
  if (toStandard && ReadScientific(line).factor.before != 1)
    reading.faults.emplace_back("the question's first factor is not from 1 to below 10");
  // The 1 in 10^1 tells the number of places, and "1,000,000" has groups that begin with 0.
  reading.excused = {"an exponent of 1", "a number that begins with 0"};
  const Digits number = toStandard ? ReadScientific(line).factor : ReadDecimal(line);
  reading.Within("the number of digits", Rational(number.digits.size()), 2, 6);
  reading.Within("the exponent", toStandard ? ReadScientific(line).exponent : number.before - 1, -5,
                 7);
  return reading;
}

const JudgeRegistration kRegistration(ReadScientificNotation, {"Scientific Notation"});

}  // namespace
}  // namespace lesson_check
