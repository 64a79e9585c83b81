// A trinomial to be factored: the choices are multiplied out.
#include <cstdlib>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/relations.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

std::string TrinomialLine(const course::Problem& problem) {
  for (const std::string& line : problem.question)
    if (line.find('^') != std::string::npos) return line;
  throw Unreadable("no line of the question has a square");
}

// Two sums in brackets, one behind the other, each of the first degree in the letter.
bool IsProductOfBinomials(const std::string& text, char letter) {
  const Expression expression = ParseExpression(text);
  if (expression.kind != Kind::Product || expression.parts.size() != 2) return false;
  for (const Expression& factor : expression.parts)
    if (factor.kind != Kind::Sum || ValueOf(factor).Degree(letter) != 1) return false;
  return true;
}

// The whole numbers p and q with x^2 + b x + c = (x + p)(x + q); the caller's numbers are small.
struct Factors {
  long p = 0;
  long q = 0;
};
Factors FactorsOf(long b, long c) {
  for (long p = -std::labs(c); p <= std::labs(c); ++p)
    if (p * (b - p) == c) return {p, b - p};
  throw Unreadable("the trinomial has no whole factors");
}

std::string ProductText(char letter, long p, long q) {
  const Polynomial x = Polynomial::Letter(letter);
  return ((x + Polynomial(Rational(p))) * (x + Polynomial(Rational(q)))).Text();
}

void AddMistakes(char letter, const Factors& right, Reading& reading) {
  const auto [p, q] = right;
  reading.mistakes["reverses one sign"] = {ProductText(letter, -p, q), ProductText(letter, p, -q)};
  reading.mistakes["reverses both signs"] = {ProductText(letter, -p, -q)};
  const long c = p * q;
  std::vector<std::string>& sameProduct =
      reading.mistakes["takes a pair with the right product and the wrong sum"];
  for (long other = -std::labs(c); other <= std::labs(c); ++other)
    if (other != 0 && c % other == 0 && other + c / other != p + q)
      sameProduct.push_back(ProductText(letter, other, c / other));
}

// A trinomial that begins with the bare square, to be factored.
Reading ReadMonicTrinomial(const course::Problem& problem) {
  const std::string line = TrinomialLine(problem);
  const Polynomial trinomial = ValueOf(line);
  const char letter = LetterOf(line);
  if (trinomial.Degree(letter) != 2 || trinomial.Coefficient(letter, 2).Number() != 1)
    throw Unreadable("\"" + line + "\" does not begin with the square alone");
  const auto whole = [&](int exponent) {
    return trinomial.Coefficient(letter, exponent).Number().get_num().get_si();
  };
  Reading reading;
  reading.answer = trinomial.Text();
  reading.value = [letter](const std::string& choice) {
    if (!IsProductOfBinomials(choice, letter))
      throw Unreadable("\"" + choice + "\" is no product of binomials");
    return ValueOf(choice).Text();
  };
  AddMistakes(letter, FactorsOf(whole(1), whole(0)), reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadMonicTrinomial, {"Trinomials of the Form x\xB2+bx+c"});

}  // namespace
}  // namespace lesson_check
