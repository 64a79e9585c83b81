// A product of two binomials in two letters, such as (3t + 2)(4u - 5), to be multiplied out.
#include <algorithm>
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;
using Terms = std::vector<Polynomial>;

constexpr int kLargest = 9;  // size of a coefficient, and of the change that makes it wrong

Terms TermsOf(const Expression& sum) {
  if (sum.kind != Kind::Sum) throw Unreadable("no sum stands where one should");
  Terms terms;
  for (const Expression& part : sum.parts) terms.push_back(ValueOf(part));
  return terms;
}

struct Binomial {
  Rational lead, constant;
  char letter = 0;
};

Binomial ReadBinomial(const Expression& factor) {
  const Terms terms = TermsOf(factor);
  if (!factor.bracketed || terms.size() != 2 || terms[0].Letters().size() != 1)
    throw Unreadable("a factor is no binomial in parentheses");
  const char letter = terms[0].Letters()[0];
  return {terms[0].Coefficient(letter, 1).Number(), terms[1].Number(), letter};
}

// The four terms in the order first, outer, inner, last.
std::string FlawOf(const std::string& choice, char first, char second) {
  const Terms terms = TermsOf(ParseExpression(choice));
  if (terms.size() != 4) return "has not four terms";
  const std::string letters[] = {std::string(1, first) + second, std::string(1, first),
                                 std::string(1, second), ""};
  for (std::size_t i = 0; i < terms.size(); ++i)
    if (terms[i].Letters() != letters[i]) return "has its terms in another order";
  return "";
}

std::string TermText(const Rational& number, char letter) {
  const std::string text = number.get_str();
  if (letter == 0) return text;
  return (number == 1 ? "" : number == -1 ? "-" : text) + letter;
}

// Two terms with their numbers and letters; one of the letters is 0.
struct Pair {
  Rational a, b;
  char letterOfA, letterOfB;

  Rational Right() const { return a * b; }
  char Letter() const { return letterOfA != 0 ? letterOfA : letterOfB; }
  std::string NameOfSlip(const Rational& wrong) const {
    const std::string later = TermText(b, letterOfB);
    return "works out " + course::WithoutBreaks(TermText(a, letterOfA) + " " + course::tutor::Dot +
                                                " " + (b < 0 ? "(" + later + ")" : later) + " as " +
                                                TermText(wrong, Letter()));
  }
};

void AddMistakes(const std::string& name, const Pair& pair, const Polynomial& right,
                 Reading& reading) {
  const Polynomial letter = Polynomial::Letter(pair.Letter());
  const Rational product = pair.Right();
  const auto with = [&](const Rational& wrong) {
    return (right + Polynomial(Rational(wrong - product)) * letter).Text();
  };
  const Rational sum = pair.a + pair.b;
  for (int change = -kLargest; change <= kLargest; ++change) {
    const Rational wrong = product + change;
    if (change == 0 || wrong == 0) continue;
    if (wrong == -product)
      reading.mistakes["takes the wrong sign for the " + name + " product"] = {with(wrong)};
    else if (wrong == sum)
      reading.mistakes["adds the numbers of the " + name + " terms in place of multiplying"] = {
          with(wrong)};
    else
      reading.mistakes[pair.NameOfSlip(wrong)] = {with(wrong)};
  }
}

Reading ReadProductOfBinomials(const course::Problem& problem) {
  const std::string& line = problem.question.back();
  const Expression product = ParseExpression(line);
  if (product.kind != Kind::Product || product.parts.size() != 2)
    throw Unreadable("\"" + line + "\" is no product of two factors");
  const Binomial first = ReadBinomial(product.parts[0]);
  const Binomial second = ReadBinomial(product.parts[1]);
  const Polynomial right = ValueOf(product);

  Reading reading;
  reading.answer = right.Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = [first, second](const std::string& choice) {
    return FlawOf(choice, first.letter, second.letter);
  };
  if (second.letter != first.letter + 1)
    reading.faults.emplace_back("the letters are no neighbors");
  for (const Rational& number : {first.lead, first.constant, second.lead, second.constant}) {
    reading.Within("a coefficient", number, -kLargest, kLargest);
    if (number == 0) reading.faults.emplace_back("a coefficient is 0");
  }
  AddMistakes("Outer", {first.lead, second.constant, first.letter, 0}, right, reading);
  AddMistakes("Inner", {first.constant, second.lead, 0, second.letter}, right, reading);
  const bool inFront = first.lead < 0 || second.lead < 0;
  const bool between = first.constant < 0 || second.constant < 0;
  reading.kind = inFront ? "a minus sign in front" : between ? "a minus sign between" : "no minus";
  return reading;
}

const JudgeRegistration kRegistration(ReadProductOfBinomials, {"Multiplying Binomials"});

}  // namespace
}  // namespace lesson_check
