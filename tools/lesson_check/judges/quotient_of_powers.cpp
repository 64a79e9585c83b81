// A fraction of powers, such as 12x^6^/(4x^2^), to be simplified.
#include <cstdlib>
#include <map>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

// One side of the bar.
struct Side {
  Rational number = 1;
  std::map<char, int> exponents;
};

void ReadFactor(const Expression& factor, Side& side) {
  if (factor.kind == Kind::Product) {
    for (const Expression& part : factor.parts) ReadFactor(part, side);
  } else if (factor.kind == Kind::Number && side.exponents.empty()) {
    side.number *= factor.number;
  } else if (factor.kind == Kind::Power && factor.parts[0].kind == Kind::Letter &&
             factor.parts[1].kind == Kind::Number) {
    const bool isNew = side.exponents
                           .emplace(factor.parts[0].letter,
                                    static_cast<int>(factor.parts[1].number.get_num().get_si()))
                           .second;
    if (!isNew) throw Unreadable("a letter stands twice on one side of the bar");
  } else {
    throw Unreadable("a side of the bar is no product of powers");
  }
}

struct Quotient {
  Side above, below;
};

Quotient ReadQuotient(const std::string& line) {
  const std::size_t bar = line.find('/');
  if (bar == std::string::npos) throw Unreadable("\"" + line + "\" is no fraction");
  Quotient quotient;
  ReadFactor(ParseExpression(line.substr(0, bar)), quotient.above);
  ReadFactor(ParseExpression(line.substr(bar + 1)), quotient.below);
  return quotient;
}

Polynomial PowerOf(char letter, int exponent) {
  const Polynomial power = Polynomial::Letter(letter).Power(std::abs(exponent));
  return exponent < 0 ? Polynomial(Rational(1)) / power : power;
}

class Mistakes {
 public:
  Mistakes(Reading& reading, const Rational& number) : reading_(reading), number_(number) {}
  void Add(const std::string& name, const Polynomial& powers) { AddWhole(name, number_ * powers); }
  void AddWhole(const std::string& name, const Polynomial& value) {
    reading_.mistakes[name].push_back(value.Text());
  }

 private:
  Reading& reading_;
  Polynomial number_;
};

Polynomial Times(const Rational& number, char letter, int exponent) {
  return Polynomial(number) * PowerOf(letter, exponent);
}

// The power of a letter with the exponent 0 taken for something else.
std::string TakesZeroFor(char letter, const std::string& other) {
  return std::string("takes ") + letter + "^0^ for " + other;
}

// The quotient of x^m and x^n, with numbers in front.
void AddMistakesOfOneLetter(const Quotient& quotient, char x, int m, int n, Mistakes& mistakes) {
  const int d = std::abs(m - n);
  const int sign = m < n ? -1 : 1;
  mistakes.Add("adds the exponents", PowerOf(x, m + n));
  if (m < n)
    mistakes.Add("adds the exponents and keeps the power below the bar", PowerOf(x, -m - n));
  mistakes.Add("adds the exponents and makes the sum negative", PowerOf(x, -m - n));
  mistakes.Add("multiplies the exponents", PowerOf(x, sign * m * n));
  if (m % n == 0) mistakes.Add("divides the exponents", PowerOf(x, m / n));
  mistakes.Add("puts the power on the wrong side of the fraction bar", PowerOf(x, n - m));
  mistakes.Add("keeps the exponent above the bar", PowerOf(x, m));
  mistakes.Add("keeps the exponent below the bar", PowerOf(x, -n));
  mistakes.Add("subtracts the wrong way round", PowerOf(x, n - m));
  mistakes.Add("takes the minus sign of the exponent for one in front", Times(-1, x, d));
  if (m != n) {
    mistakes.Add("subtracts the exponents, but then multiplies the result by the base",
                 Times(m - n, x, 1));
    mistakes.Add("subtracts the exponents, but then multiplies the result by the base",
                 PowerOf(x, sign) * Polynomial(Rational(d)));
    if (m < n)
      mistakes.Add("subtracts the exponents, but then multiplies the result by the base",
                   Polynomial(Rational(1)) / Times(d, x, 1));
  } else {
    mistakes.AddWhole(TakesZeroFor(x, "0"), Polynomial());
    mistakes.Add(TakesZeroFor(x, {x}), PowerOf(x, 1));
  }
  const Rational difference = quotient.above.number - quotient.below.number;
  if (difference == 0) return;
  mistakes.AddWhole("subtracts the numbers in front", Times(difference, x, m - n));
  mistakes.AddWhole("subtracts the numbers in front and adds the exponents",
                    Times(difference, x, m + n));
  mistakes.AddWhole("subtracts the numbers in front and keeps the first exponent",
                    Times(difference, x, m));
  if (m % n == 0)
    mistakes.AddWhole("subtracts the numbers in front and divides the exponents",
                      Times(difference, x, m / n));
}

void AddMistakesOfTwoLetters(const Quotient& quotient, Mistakes& mistakes) {
  const auto first = quotient.above.exponents.begin();
  const auto second = std::next(first);
  const char x = first->first;
  const char y = second->first;
  const int m = first->second - quotient.below.exponents.at(x);
  const int k = second->second - quotient.below.exponents.at(y);
  const auto sum = [&](char letter) {
    return PowerOf(letter,
                   quotient.above.exponents.at(letter) + quotient.below.exponents.at(letter));
  };
  mistakes.Add("adds the exponents", sum(x) * sum(y));
  mistakes.Add("puts the first letter on the wrong side of the bar",
               PowerOf(x, -m) * PowerOf(y, k));
  mistakes.Add("puts the second letter on the wrong side of the bar",
               PowerOf(x, m) * PowerOf(y, -k));
  mistakes.Add("puts both letters on the wrong side of the bar", PowerOf(x, -m) * PowerOf(y, -k));
}

// x^m y^0 over x^n.
void AddMistakesOfZero(const Quotient& quotient, char x, char zero, Mistakes& mistakes) {
  const int m = quotient.above.exponents.at(x);
  const int n = quotient.below.exponents.at(x);
  const Polynomial y = Polynomial::Letter(zero);
  const std::string takesForOne = TakesZeroFor(zero, {zero});
  mistakes.AddWhole(TakesZeroFor(zero, "0"), Polynomial());
  mistakes.Add(takesForOne, PowerOf(x, m - n) * y);
  mistakes.Add("adds the exponents", PowerOf(x, m + n));
  mistakes.Add("keeps the first exponent and " + takesForOne, PowerOf(x, m) * y);
  mistakes.Add("adds the exponents and " + takesForOne, PowerOf(x, m + n) * y);
}

// The kind of the question, and what it leads to by mistake.
void ReadMistakes(const Quotient& quotient, Reading& reading) {
  const Side& above = quotient.above;
  const Side& below = quotient.below;
  const Rational number = above.number / below.number;
  if (number.get_den() != 1) reading.faults.emplace_back("the numbers do not divide exactly");
  Mistakes mistakes(reading, number);
  if (below.exponents.size() == 2) {
    reading.kind = "two letters";
    AddMistakesOfTwoLetters(quotient, mistakes);
    return;
  }
  const char x = below.exponents.begin()->first;
  const int m = above.exponents.at(x);
  const int n = below.exponents.at(x);
  for (const auto& [letter, exponent] : above.exponents)
    if (letter != x) {
      if (exponent != 0) throw Unreadable("a letter stands above the bar alone");
      reading.kind = "a zero exponent";
      AddMistakesOfZero(quotient, x, letter, mistakes);
      return;
    }
  if (number != 1)
    reading.kind = "numbers in front";
  else
    reading.kind = m > n ? "more above" : m < n ? "more below" : "as many above as below";
  AddMistakesOfOneLetter(quotient, x, m, n, mistakes);
}

// A simplified quotient has no exponent 0 or 1, and a negative one or a bar as the question asks.
std::string FlawOf(const std::string& choice, bool withoutFraction) {
  if (choice.find("^0^") != std::string::npos) return "has an exponent of 0";
  if (choice.find("^1^") != std::string::npos) return "has an exponent of 1";
  if (withoutFraction && choice.find('/') != std::string::npos) return "is a fraction";
  if (!withoutFraction && choice.find("^-") != std::string::npos) return "has a negative exponent";
  return "";
}

Reading ReadQuotientOfPowers(const course::Problem& problem) {
  Reading reading;
  std::string line;
  bool withoutFraction = false;
  for (const std::string& text : problem.question) {
    if (text.find('/') != std::string::npos) line = text;
    if (text.find("without a fraction") != std::string::npos) withoutFraction = true;
  }
  reading.answer = ValueOf(line).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = [withoutFraction](const std::string& choice) {
    return FlawOf(choice, withoutFraction);
  };
  ReadMistakes(ReadQuotient(line), reading);
  if (withoutFraction) reading.kind = "a negative exponent in the answer";
  return reading;
}

const JudgeRegistration kRegistration(ReadQuotientOfPowers, {"Dividing with Exponents"});

}  // namespace
}  // namespace lesson_check
