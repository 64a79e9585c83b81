// A difference of two squares to be factored completely: every choice is multiplied out, and its
// factors are looked at for what is left in them.
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

constexpr const char* kNotComplete = ", not completely";

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

// The factors of a choice in parentheses, one for each time that it is a factor.
bool AnyCanBeFactored(const Expression& expression, char letter) {
  switch (expression.kind) {
    case Kind::Product:
      for (const Expression& part : expression.parts)
        if (AnyCanBeFactored(part, letter)) return true;
      return false;
    case Kind::Power:
      return AnyCanBeFactored(expression.parts[0], letter);
    case Kind::Number:
      return false;
    default:
      return CanBeFactored(ReadTwoTerms(ValueOf(expression), letter));
  }
}

std::string ValueOfFactoring(const std::string& choice, char letter) {
  const Expression expression = ParseExpression(choice);
  if (expression.kind != Kind::Product) throw Unreadable("\"" + choice + "\" is no product");
  const bool complete = !AnyCanBeFactored(expression, letter);
  return ValueOf(expression).Text() + (complete ? "" : kNotComplete);
}

class Mistakes {
 public:
  Mistakes(char letter, Reading& reading) : letter_(letter), reading_(reading) {}

  // A product of the number and factors, each of which may be a difference of squares again.
  void Add(const std::string& name, long number, const std::vector<TwoTerms>& factors) {
    Polynomial product{Rational(number)};
    bool complete = true;
    for (const TwoTerms& factor : factors) {
      product = product * Value(factor);
      complete = complete && !CanBeFactored(factor);
    }
    reading_.mistakes[name].push_back(product.Text() + (complete ? "" : kNotComplete));
  }
  // Of two factors with the same numbers: signs that differ, and both ways in which they agree.
  void AddWithSigns(const std::string& name, long number, long p, long q) {
    if (!name.empty()) Add(name, number, {{p, 1, q}, {p, 1, -q}});
    const std::string start = name.empty() ? "" : name + " and ";
    Add(start + "writes two plus signs", number, {{p, 1, q}, {p, 1, q}});
    Add(start + "takes it for the square of a difference", number, {{p, 1, -q}, {p, 1, -q}});
  }

 private:
  Polynomial Value(const TwoTerms& terms) const {
    return Polynomial::Letter(letter_).Power(terms.degree) * Polynomial(Rational(terms.lead)) +
           Polynomial(Rational(terms.constant));
  }

  char letter_;
  Reading& reading_;
};

long Half(long square) {
  return square == 1 ? 1 : square / 2;
}

void AddMistakesOfSquares(long common, long p, long q, Mistakes& mistakes) {
  mistakes.AddWithSigns("", common, p, q);
  mistakes.AddWithSigns("forgets to take the square roots", common, p * p, q * q);
  if (common > 1) {
    mistakes.AddWithSigns("forgets the common factor", 1, p, q);
    mistakes.Add("leaves the common factor inside", 1, {{common * p, 1, common * q}, {p, 1, -q}});
    return;
  }
  mistakes.AddWithSigns("exchanges the two numbers", 1, q, p);
  if ((p == 1 && q > 2 && q % 2 == 0) || (q == 1 && p > 2 && p % 2 == 0))
    mistakes.AddWithSigns("takes half in place of the square root", 1, Half(p * p), Half(q * q));
}

void AddMistakesOfFourthPowers(long p, long q, Mistakes& mistakes) {
  const TwoTerms sum = {p * p, 2, q * q};
  const TwoTerms plus = {p, 1, q};
  const TwoTerms minus = {p, 1, -q};
  mistakes.Add("writes two plus signs", 1, {sum, plus, plus});
  mistakes.Add("takes it for the square of a difference", 1, {sum, minus, minus});
  mistakes.Add("leaves a difference of squares inside", 1, {sum, {p * p, 2, -q * q}});
  mistakes.Add("takes a sum of squares for a difference", 1, {plus, minus, plus, minus});
  mistakes.AddWithSigns("forgets the sum of squares", 1, p, q);
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
    reading.kind = common > 1 ? "a common factor" : "bare";
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
  reading.Within("the common factor", common, 1, 13);
  return reading;
}

const JudgeRegistration kRegistration(ReadDifferenceOfSquares, {"Difference of Two Squares"});

}  // namespace
}  // namespace lesson_check
