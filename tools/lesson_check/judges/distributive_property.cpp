// Which of four equations between a product "3(x + 5)" and a sum is false; "All are correct." when
// none is.
#include <algorithm>
#include <string_view>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

constexpr const char* kAllCorrect = "All are correct.";
constexpr int kEquations = 4;

// Cut into the factor, the two terms in the parentheses and the sign between them.
struct Product {
  Polynomial factor, first, second;
  bool minus = false;

  // First term times the factor, and then something.
  Polynomial Sum(const Polynomial& rest, bool subtract) const {
    return factor * first + (subtract ? -rest : rest);
  }
  Polynomial Right() const { return Sum(factor * second, minus); }
  Polynomial SecondTermKept() const { return Sum(second, minus); }
  Polynomial SignChanged() const { return Sum(factor * second, !minus); }
  Polynomial Added() const { return Sum(factor + second, minus); }
};

Product ProductIn(const std::string& text) {
  const std::size_t open = text.find('(');
  const std::size_t sign = text.find_first_of("+-", open);
  if (open == 0 || sign == std::string::npos || text.back() != ')')
    throw Unreadable("\"" + text + "\" is no product of a factor and two terms");
  return {ValueOf(text.substr(0, open)), ValueOf(text.substr(open + 1, sign - open - 1)),
          ValueOf(text.substr(sign + 1, text.size() - sign - 2)), text[sign] == '-'};
}

struct Equation {
  Product product;
  Polynomial sum;
  std::string value;  // as a choice

  bool Holds() const { return sum == product.Right(); }
};

Equation EquationIn(const std::string& choice) {
  const std::string line = WithoutBlanks(choice);
  const std::size_t equals = line.find('=');
  if (equals == std::string::npos) throw Unreadable("\"" + line + "\" is no equation");
  const std::string sides[] = {line.substr(0, equals), line.substr(equals + 1)};
  const int product = sides[0].find('(') != std::string::npos ? 0 : 1;
  return {ProductIn(sides[product]), ValueOf(sides[1 - product]), line};
}

struct Expectation {
  std::string_view rejects;    // true equations
  std::string_view overlooks;  // that a false one is what it expects
  Polynomial (Product::*sum)() const;
};
constexpr Expectation kExpectations[] = {
    {"expects the second term to stay as it is", "overlooks a second term that stays as it is",
     &Product::SecondTermKept},
    {"expects the minus sign to change", "overlooks a sign that changes", &Product::SignChanged},
    {"expects a sum in place of a product", "overlooks a sum in place of a product",
     &Product::Added},
};

void AddMistakes(const std::vector<Equation>& equations, Reading& reading) {
  for (const Expectation& expectation : kExpectations) {
    std::vector<std::string>& rejected = reading.mistakes[std::string(expectation.rejects)];
    std::vector<std::string>& overlooked = reading.mistakes[std::string(expectation.overlooks)];
    for (const Equation& equation : equations) {
      const bool expected = equation.sum == (equation.product.*expectation.sum)();
      if (equation.Holds() && !expected) rejected.push_back(equation.value);
      if (!equation.Holds() && expected) overlooked.emplace_back(kAllCorrect);
    }
  }
}

Reading ReadDistributiveProperty(const course::Problem& problem) {
  std::vector<Equation> equations;
  for (int slot = 1; slot <= kEquations; ++slot)
    equations.push_back(EquationIn(problem.choices[static_cast<std::size_t>(slot)].text));
  if (problem.choices[kEquations + 1].text != kAllCorrect)
    throw Unreadable("the last choice is not \"" + std::string(kAllCorrect) + "\"");
  const auto wrong = std::ranges::count_if(equations, [](const Equation& e) { return !e.Holds(); });
  if (wrong > 1) throw Unreadable("two equations are false");

  Reading reading;
  const auto altered =
      std::ranges::find_if(equations, [](const Equation& e) { return !e.Holds(); });
  reading.answer = altered == equations.end() ? kAllCorrect : altered->value;
  reading.value = [](const std::string& choice) {
    return choice == kAllCorrect ? choice : WithoutBlanks(choice);
  };
  AddMistakes(equations, reading);
  reading.kind = "all hold";
  for (const Expectation& expectation : kExpectations)
    if (altered != equations.end() && altered->sum == (altered->product.*expectation.sum)())
      reading.kind =
          std::string(expectation.overlooks.substr(std::string_view("overlooks ").size()));
  for (const Equation& equation : equations)
    reading.Within("a factor", equation.product.factor.Number(), 2, 9);
  return reading;
}

const JudgeRegistration kRegistration(ReadDistributiveProperty, {"The Distributive Property"});

}  // namespace
}  // namespace lesson_check
