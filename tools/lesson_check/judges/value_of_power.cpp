// A power of a number, whose value is asked for, or a product of equal numbers that is to become a
// power.
#include <cstdlib>
#include <set>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

// A power of a whole number, with or without a minus sign in front of the power.
struct NumberPower {
  long base = 0;
  int exponent = 0;
  long sign = 1;  // -1 for -3^4, whose base is 3
};

long WholeIn(const Expression& e) {
  if (e.kind == Kind::Minus) return -WholeIn(e.parts[0]);
  if (e.kind != Kind::Number || e.number.get_den() != 1) throw Unreadable("no whole number");
  return e.number.get_num().get_si();
}

NumberPower PowerIn(const Expression& e) {
  if (e.kind == Kind::Minus) {
    NumberPower power = PowerIn(e.parts[0]);
    power.sign = -1;
    return power;
  }
  if (e.kind != Kind::Power) throw Unreadable("no power");
  const Expression& base = e.parts[0];
  if (base.kind == Kind::Minus && !base.bracketed) throw Unreadable("a base without parentheses");
  return {WholeIn(base), static_cast<int>(WholeIn(e.parts[1])), 1};
}

mpz_class PowerOf(long base, long exponent) {
  mpz_class value = 1;
  for (long i = 0; i < exponent; ++i) value *= base;
  return value;
}

std::string NumberValue(const std::string& text) {
  return ValueOf(text).Number().get_str();
}

// --- The value of a power ------------------------------------------------------------------------

void AddMistakesAtValue(const NumberPower& p, Reading& reading) {
  const long b = p.base;
  const long n = p.exponent;
  const mpz_class value = p.sign * PowerOf(b, n);
  const auto add = [&](const char* name, const mpz_class& wrong) {
    reading.mistakes[name].push_back(wrong.get_str());
  };
  add("multiplies the base by the exponent", p.sign * b * n);
  add("multiplies the base by the exponent and loses the minus sign", std::labs(b) * n);
  if (n > 0) add("stops one factor early", p.sign * PowerOf(b, n - 1));
  add("multiplies once too often", p.sign * PowerOf(b, n + 1));
  if (b > 0) add("switches the base and the exponent", PowerOf(n, b));
  const bool minus = b < 0 || p.sign < 0;
  add("writes the exponent next to the base as a digit",
      mpz_class((minus ? "-" : "") + std::to_string(std::labs(b)) + std::to_string(n), 10));
  add("adds the base and the exponent", p.sign * (b + n));
  if (n == 0) {
    add("leaves the base as it is", b);
    add("loses the minus sign", std::labs(b));
    if (b < 0) add("keeps the minus sign of the base", -1);
  }
  if (n < 2) add("gives the exponent as the answer", n);
  if (value < 0) add("loses the minus sign", -value);
  if (b < 0) add("ignores the parentheses", -PowerOf(-b, n));
  if (p.sign < 0) add("takes the minus sign into the base", PowerOf(-b, n));
}

Reading ReadValue(const std::string& line) {
  const NumberPower power = PowerIn(ParseExpression(line));
  Reading reading;
  reading.answer = NumberValue(line);
  reading.value = NumberValue;
  reading.excused = {"an exponent of 1"};
  reading.Within("the base", std::labs(power.base), 2, 9);
  reading.Within("the exponent", power.exponent, 0, 9);
  reading.Within("the value", ValueOf(line).Number(), -1000, 1000);
  if (power.exponent < 2)
    reading.kind = "value of a power with exponent " + std::to_string(power.exponent);
  else if (power.sign < 0)
    reading.kind = "value with a minus sign before the power";
  else
    reading.kind = power.base < 0 ? "value with a negative base" : "value with a positive base";
  AddMistakesAtValue(power, reading);
  return reading;
}

// --- A product as a power ------------------------------------------------------------------------

void AddMistakesAtProduct(long base, long factors, Reading& reading) {
  const auto add = [&](const char* name, long wrongBase, long exponent) {
    reading.mistakes[name].push_back(PowerOf(wrongBase, exponent).get_str());
  };
  add("switches the base and the exponent", factors, base);
  add("counts one factor too many", base, factors + 1);
  add("counts the signs, not the factors", base, factors - 1);
  add("switches the base and the exponent and counts one factor too many", factors + 1, base);
  add("switches the base and the exponent and counts the signs, not the factors", factors - 1,
      base);
  reading.mistakes["multiplies the base by the number of factors"] = {
      std::to_string(base * factors)};
}

Reading ReadProduct(const Expression& product) {
  if (product.kind != Kind::Product) throw Unreadable("no product");
  std::set<long> factors;
  for (const Expression& factor : product.parts) factors.insert(WholeIn(factor));
  if (factors.size() != 1) throw Unreadable("factors that differ");
  const long base = *factors.begin();
  const long count = static_cast<long>(product.parts.size());
  Reading reading;
  reading.answer = PowerOf(base, count).get_str();
  reading.value = NumberValue;
  reading.kind = "a product as a power";
  reading.Within("the base", base, 2, 9);
  reading.Within("the number of factors", count, 2, 9);
  AddMistakesAtProduct(base, count, reading);
  return reading;
}

Reading ReadPowerOfNumber(const course::Problem& problem) {
  if (problem.question.size() != 2) throw Unreadable("not two lines");
  const std::string& line = problem.question[1];
  if (problem.question[0].find("as a power") == std::string::npos) return ReadValue(line);
  Reading reading = ReadProduct(ParseExpression(line));
  // The right choice is asked for in this form.
  const NumberPower right =
      PowerIn(ParseExpression(problem.choices.at(static_cast<std::size_t>(problem.correct)).text));
  if (right.sign != 1 || right.base != WholeIn(ParseExpression(line).parts[0]))
    reading.faults.emplace_back("the right choice is not a power of the factor");
  return reading;
}

const JudgeRegistration kRegistration(ReadPowerOfNumber, {"Using Exponents"});

}  // namespace
}  // namespace lesson_check
