// Two terms in x and y over a monomial, (24x^5^y^4^ - 18x^3^y^2^)/(6x^2^y), to be divided.
#include <optional>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

struct Monomial {
  Rational number;
  int x = 0;
  int y = 0;

  Polynomial Value() const {
    return Polynomial(number) * Polynomial::Letter('x').Power(x) * Polynomial::Letter('y').Power(y);
  }
};

Monomial ReadMonomial(const Polynomial& term) {
  if (term.TermCount() != 1) throw Unreadable("\"" + term.Text() + "\" is no single term");
  Monomial monomial;
  monomial.x = term.Degree('x');
  monomial.y = term.Degree('y');
  monomial.number = term.Coefficient('x', monomial.x).Coefficient('y', monomial.y).Number();
  return monomial;
}

std::vector<Monomial> ReadTerms(const std::string& text) {
  const Expression sum = ParseExpression(text);
  std::vector<Monomial> terms;
  if (sum.kind != Kind::Sum) return {ReadMonomial(ValueOf(sum))};
  for (const Expression& part : sum.parts) terms.push_back(ReadMonomial(ValueOf(part)));
  return terms;
}

// The exponent of a quotient by a rule; nothing when it does not come out.
using ExponentRule = std::optional<int> (*)(char letter, int above, int below);
using NumberRule = Rational (*)(const Rational& above, const Rational& below);

std::optional<int> Subtracted(char, int above, int below) {
  return above - below;
}
Rational Divided(const Rational& above, const Rational& below) {
  return above / below;
}

struct Rules {
  ExponentRule exponent = Subtracted;
  NumberRule number = Divided;
  int onlyTerm = -1;  // the one that is divided; -1 for both
  bool positive = false;
};

struct Named {
  const char* name;
  Rules rules;
};

std::optional<int> Added(char, int above, int below) {
  return above + below;
}
std::optional<int> Kept(char, int above, int) {
  return above;
}
std::optional<int> DividedExactly(char, int above, int below) {
  if (below == 0) return above;
  return above % below == 0 ? std::optional(above / below) : std::nullopt;
}
template <char cancelled>
std::optional<int> Cancelled(char letter, int above, int below) {
  return letter == cancelled && below > 0 ? 0 : above - below;
}

const Named kExponentMistakes[] = {{"adds the exponents", {.exponent = Added}},
                                   {"keeps the exponents", {.exponent = Kept}},
                                   {"divides the exponents", {.exponent = DividedExactly}},
                                   {"cancels x altogether", {.exponent = Cancelled<'x'>}},
                                   {"cancels y altogether", {.exponent = Cancelled<'y'>}}};
const Named kOtherMistakes[] = {
    {"divides only the first term", {.onlyTerm = 0}},
    {"divides only the second term", {.onlyTerm = 1}},
    {"keeps the numbers in front",
     {.number = [](const Rational& above, const Rational&) { return above; }}},
    {"subtracts the numbers in front",
     {.number = [](const Rational& above,
                   const Rational& below) { return Rational(sgn(above) * (abs(above) - below)); }}},
    {"loses the minus sign", {.positive = true}},
};

struct Question {
  std::vector<Monomial> terms;
  Monomial divisor;

  // Without a value, the rules do not work here.
  std::optional<Polynomial> By(const Rules& rules) const {
    Polynomial sum;
    for (std::size_t i = 0; i < terms.size(); ++i) {
      Monomial term = terms[i];
      if (rules.onlyTerm < 0 || rules.onlyTerm == static_cast<int>(i)) {
        const std::optional<int> x = rules.exponent('x', term.x, divisor.x);
        const std::optional<int> y = rules.exponent('y', term.y, divisor.y);
        if (!x || !y) return std::nullopt;
        term = {rules.number(term.number, divisor.number), *x, *y};
      }
      if (rules.positive) term.number = abs(term.number);
      sum = sum + term.Value();
    }
    return sum;
  }
};

Question ReadQuestion(const std::string& line) {
  const std::size_t bar = line.find('/');
  if (bar == std::string::npos) throw Unreadable("\"" + line + "\" is no fraction");
  Question question;
  question.terms = ReadTerms(line.substr(0, bar));
  question.divisor = ReadMonomial(ValueOf(line.substr(bar + 1)));
  if (question.terms.size() != 2) throw Unreadable("there are not two terms above the bar");
  return question;
}

void AddMistakes(const Question& question, Reading& reading) {
  const auto add = [&](const std::string& name, const Rules& rules) {
    const std::optional<Polynomial> value = question.By(rules);
    if (value && value->Text() != reading.answer) reading.mistakes[name].push_back(value->Text());
  };
  for (const Named& other : kOtherMistakes) add(other.name, other.rules);
  for (const Named& first : kExponentMistakes) {
    // Who divides by an exponent of 1 is seen to keep the exponents.
    if (first.rules.exponent == DividedExactly && question.divisor.x <= 1 &&
        question.divisor.y <= 1)
      continue;
    add(first.name, first.rules);
    for (const Named& other : kOtherMistakes) {
      const std::string name = std::string(first.name) + " and " + other.name;
      if (name == "keeps the exponents and keeps the numbers in front") continue;
      Rules both = other.rules;
      both.exponent = first.rules.exponent;
      add(name, both);
    }
  }
}

// Two unlike terms.
std::string FlawOf(const std::string& choice) {
  const std::vector<Monomial> terms = ReadTerms(choice);
  if (terms.size() != 2) return "has not two terms";
  return terms[0].x == terms[1].x && terms[0].y == terms[1].y ? "can be simplified" : "";
}

void CheckRanges(const Question& question, Reading& reading) {
  const Monomial& divisor = question.divisor;
  reading.Within("the divisor", divisor.number, 2, 10);
  for (const Monomial& term : question.terms) {
    const Rational quotient = abs(term.number) / divisor.number;
    reading.Within("a quotient of numbers", quotient, 2, 6);
    if (quotient.get_den() != 1) reading.faults.emplace_back("a number does not divide exactly");
    reading.Within("an exponent of x", term.x, std::max(2, divisor.x), 7);
    reading.Within("an exponent of y", term.y, std::max(2, divisor.y), 7);
  }
}

Reading ReadQuotientOfPolynomial(const course::Problem& problem) {
  const Question question = ReadQuestion(problem.question.back());
  Reading reading;
  reading.answer = question.By({})->Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  AddMistakes(question, reading);
  CheckRanges(question, reading);
  const int letters = (question.divisor.x > 0 ? 1 : 0) + (question.divisor.y > 0 ? 1 : 0);
  constexpr const char* kKinds[] = {"over a number", "over one letter", "over two letters"};
  reading.kind = kKinds[letters];
  return reading;
}

const JudgeRegistration kRegistration(ReadQuotientOfPolynomial, {"Dividing Polynomials"});

}  // namespace
}  // namespace lesson_check
