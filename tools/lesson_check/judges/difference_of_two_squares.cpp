// A difference of two squares to be factored completely: every choice is multiplied out, and its
// factors are looked at for what is left in them.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

bool IsSquare(long number) {
  const long root = std::lround(std::sqrt(static_cast<double>(number)));
  return number > 0 && root * root == number;
}

long RootOf(long number) {
  if (!IsSquare(number)) throw Unreadable(std::to_string(number) + " is no square");
  return std::lround(std::sqrt(static_cast<double>(number)));
}

// lead times a power of the letter, plus a constant.
struct TwoTerms {
  long lead = 0;
  int degree = 0;
  long constant = 0;
};

long WholeNumber(const Polynomial& polynomial) {
  if (polynomial.Number().get_den() != 1) throw Unreadable("a coefficient is no whole number");
  return polynomial.Number().get_num().get_si();
}

TwoTerms ReadTwoTerms(const Polynomial& polynomial, char letter) {
  TwoTerms terms;
  terms.degree = polynomial.Degree(letter);
  if (terms.degree < 1 || polynomial.TermCount() != 2)
    throw Unreadable("\"" + polynomial.Text() + "\" does not have two terms");
  terms.lead = WholeNumber(polynomial.Coefficient(letter, terms.degree));
  terms.constant = WholeNumber(polynomial.Coefficient(letter, 0));
  return terms;
}

bool CanBeFactored(const TwoTerms& terms) {
  if (std::gcd(terms.lead, terms.constant) > 1) return true;
  return terms.degree % 2 == 0 && IsSquare(terms.lead) && IsSquare(-terms.constant);
}

// The factors of a choice in parentheses; a power counts once.
void AddFactors(const Expression& expression, std::vector<Polynomial>& factors) {
  switch (expression.kind) {
    case Kind::Product:
      for (const Expression& part : expression.parts) AddFactors(part, factors);
      return;
    case Kind::Power:
      return AddFactors(expression.parts[0], factors);
    case Kind::Number:
      return;
    default:
      factors.push_back(ValueOf(expression));
  }
}

// The product; the same product with factors that can be factored again is another value.
std::string ValueOfFactors(const Polynomial& product, const std::vector<Polynomial>& factors,
                           char letter) {
  bool complete = true;
  std::vector<std::string> texts;
  for (const Polynomial& factor : factors) {
    complete = complete && !CanBeFactored(ReadTwoTerms(factor, letter));
    texts.push_back("(" + factor.Text() + ")");
  }
  if (complete) return product.Text();
  std::ranges::sort(texts);
  return std::accumulate(texts.begin(), texts.end(), product.Text() + ", not completely:  ");
}

std::string ValueOfFactoring(const std::string& choice, char letter) {
  const Expression expression = ParseExpression(choice);
  if (expression.kind != Kind::Product) throw Unreadable("\"" + choice + "\" is no product");
  std::vector<Polynomial> factors;
  AddFactors(expression, factors);
  return ValueOfFactors(ValueOf(expression), factors, letter);
}

class Mistakes {
 public:
  Mistakes(char letter, Reading& reading) : letter_(letter), reading_(reading) {}

  // A product of the number and factors, each of which may be a difference of squares again.
  void Add(const std::string& name, long number, const std::vector<TwoTerms>& factors) {
    Polynomial product{Rational(number)};
    std::vector<Polynomial> values;
    for (const TwoTerms& factor : factors) {
      values.push_back(Value(factor));
      product = product * values.back();
    }
    reading_.mistakes[name].push_back(ValueOfFactors(product, values, letter_));
  }
  // Of two factors with the same numbers, whose signs differ.
  void AddMixed(const std::string& name, long number, long p, long q) {
    Add(name, number, {{p, 1, q}, {p, 1, -q}});
  }
  // Both ways in which the signs agree, behind another factor at times.
  void AddSameSigns(long number, long p, long q, const std::vector<TwoTerms>& before = {}) {
    for (const long sign : {1L, -1L}) {
      std::vector<TwoTerms> factors = before;
      factors.insert(factors.end(), 2, {p, 1, sign * q});
      Add(sign > 0 ? "writes two plus signs" : "writes two minus signs", number, factors);
    }
  }

 private:
  Polynomial Value(const TwoTerms& terms) const {
    return Polynomial::Letter(letter_).Power(terms.degree) * Polynomial(Rational(terms.lead)) +
           Polynomial(Rational(terms.constant));
  }

  char letter_;
  Reading& reading_;
};

std::string Number(long value) {
  return std::to_string(value);
}

void AddForgottenRoots(long common, long p, long q, Mistakes& mistakes) {
  if (p > 1) mistakes.AddMixed("forgets the square root of the first number", common, p * p, q);
  if (q > 1) mistakes.AddMixed("forgets the square root of the second number", common, p, q * q);
  if (p > 1 && q > 1) mistakes.AddMixed("forgets both square roots", common, p * p, q * q);
}

void AddMistakesOfBare(long p, long q, Mistakes& mistakes) {
  AddForgottenRoots(1, p, q, mistakes);
  mistakes.AddMixed("exchanges the two numbers", 1, q, p);
  const auto half = [](long square) {
    return "takes half of " + Number(square) + " in place of its square root";
  };
  const auto split = [](long square) {
    return "splits " + Number(square) + " into " + Number(square) + " and 1";
  };
  if (p > 2 && p % 2 == 0) mistakes.AddMixed(half(p * p), 1, p * p / 2, q);
  if (q > 2 && q % 2 == 0) mistakes.AddMixed(half(q * q), 1, p, q * q / 2);
  if (p > 1) mistakes.Add(split(p * p), 1, {{p * p, 1, q}, {1, 1, -q}});
  if (q > 1) mistakes.Add(split(q * q), 1, {{p, 1, q * q}, {p, 1, -1}});
}

void AddMistakesOfCommonFactor(long common, long p, long q, Mistakes& mistakes) {
  mistakes.AddMixed("forgets the common factor", 1, p, q);
  const std::string start = "leaves the common factor in the ";
  const TwoTerms plus = {common * p, 1, common * q};
  const TwoTerms minus = {common * p, 1, -common * q};
  mistakes.Add(start + "first factor", 1, {plus, {p, 1, -q}});
  mistakes.Add(start + "second factor", 1, {{p, 1, q}, minus});
  if (IsSquare(common)) {
    const long root = RootOf(common);
    mistakes.AddMixed("leaves a common factor in both factors", 1, root * p, root * q);
    mistakes.AddMixed("takes the common factor out of one factor only", root, p, q);
    return;
  }
  AddForgottenRoots(common, p, q, mistakes);
  mistakes.Add("leaves a difference of squares inside", common, {{p * p, 2, -q * q}});
}

void AddMistakesOfSquares(long common, long p, long q, Mistakes& mistakes) {
  mistakes.AddSameSigns(common, p, q);
  if (common > 1)
    AddMistakesOfCommonFactor(common, p, q, mistakes);
  else
    AddMistakesOfBare(p, q, mistakes);
}

void AddMistakesOfFourthPowers(long p, long q, Mistakes& mistakes) {
  const TwoTerms sum = {p * p, 2, q * q};
  const TwoTerms plus = {p, 1, q};
  const TwoTerms minus = {p, 1, -q};
  mistakes.AddSameSigns(1, p, q, {sum});
  mistakes.Add("leaves a difference of squares inside", 1, {sum, {p * p, 2, -q * q}});
  mistakes.Add("takes a sum of squares for a difference", 1, {plus, minus, plus, minus});
  mistakes.AddMixed("forgets the sum of squares", 1, p, q);
  mistakes.Add("forgets the square roots in the second step", 1,
               {sum, {p * p, 1, q * q}, {p * p, 1, -q * q}});
}

std::string LineWithPower(const course::Problem& problem) {
  for (const std::string& line : problem.question)
    if (line.find('^') != std::string::npos) return line;
  throw Unreadable("no line of the question has a power");
}

Reading ReadDifferenceOfSquares(const course::Problem& problem) {
  const std::string line = LineWithPower(problem);
  const char letter = LetterOf(line);
  const Polynomial difference = ValueOf(line);
  const TwoTerms terms = ReadTwoTerms(difference, letter);
  const long common = std::gcd(terms.lead, terms.constant);
  long p = RootOf(terms.lead / common);
  long q = RootOf(-terms.constant / common);
  if (p == q) throw Unreadable("the squares are equal");
  Reading reading;
  reading.answer = difference.Text();
  reading.value = [letter](const std::string& choice) { return ValueOfFactoring(choice, letter); };
  Mistakes mistakes(letter, reading);
  if (terms.degree == 2) {
    reading.kind = common == 1 ? "bare" : IsSquare(common) ? "a common square" : "a common factor";
    AddMistakesOfSquares(common, p, q, mistakes);
  } else {
    if (terms.degree != 4 || common > 1) throw Unreadable("\"" + line + "\" is of another kind");
    reading.kind = "fourth powers";
    p = RootOf(p);
    q = RootOf(q);
    AddMistakesOfFourthPowers(p, q, mistakes);
  }
  reading.Within("the first value", p, 1, 8);
  reading.Within("the second value", q, 1, 8);
  reading.Within("the common factor", common, 1, 16);
  return reading;
}

const JudgeRegistration kRegistration(ReadDifferenceOfSquares, {"Difference of Two Squares"});

}  // namespace
}  // namespace lesson_check
