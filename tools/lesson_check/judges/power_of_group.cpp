// A product of powers in parentheses with an exponent behind them, such as (b^3^c)^4^, to be
// simplified.
#include <vector>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

struct Factor {
  char letter = 0;
  int exponent = 1;
};

int WholeNumber(const Expression& expression) {
  if (expression.kind != Kind::Number || expression.number.get_den() != 1)
    throw Unreadable("an exponent is no whole number");
  return static_cast<int>(expression.number.get_num().get_si());
}

Factor ReadFactor(const Expression& expression) {
  if (expression.kind == Kind::Letter) return {expression.letter, 1};
  if (expression.kind != Kind::Power || expression.parts[0].kind != Kind::Letter)
    throw Unreadable("a factor is no power of a letter");
  return {expression.parts[0].letter, WholeNumber(expression.parts[1])};
}

std::vector<Factor> ReadFactors(const Expression& expression) {
  if (expression.kind != Kind::Product) return {ReadFactor(expression)};
  std::vector<Factor> factors;
  for (const Expression& part : expression.parts) factors.push_back(ReadFactor(part));
  return factors;
}

Polynomial Product(const Factor& first, int firstExponent, const Factor& second,
                   int secondExponent) {
  return Polynomial::Letter(first.letter).Power(firstExponent) *
         Polynomial::Letter(second.letter).Power(secondExponent);
}

// Letters that are powers within the parentheses change their exponent when it is added; a bare one
// has the exponent behind them.
int Added(const Factor& factor, int exponent) {
  return factor.exponent == 1 ? exponent : factor.exponent + exponent;
}

void ReadTwoFactors(const std::vector<Factor>& factors, int exponent, Reading& reading) {
  const Factor& first = factors[0];
  const Factor& second = factors[1];
  if (first.letter == second.letter) throw Unreadable("the letters are equal");
  reading.kind =
      first.exponent > 1 && second.exponent > 1 ? "two powers inside" : "one power inside";
  for (const Factor& factor : factors) reading.Within("an exponent inside", factor.exponent, 1, 9);
  reading.Within("the exponent behind", exponent, 2, 9);
  const auto add = [&](const char* name, int firstExponent, int secondExponent) {
    reading.mistakes[name].push_back(Product(first, firstExponent, second, secondExponent).Text());
  };
  const int m = first.exponent * exponent;
  const int k = second.exponent * exponent;
  add("adds the exponents", Added(first, exponent), Added(second, exponent));
  add("leaves the first factor without the power", first.exponent, k);
  add("leaves the second factor without the power", m, second.exponent);
}

// A simplified product names each letter once.
std::string FlawOf(const std::string& choice) {
  if (choice.find('(') != std::string::npos) return "has parentheses";
  if (choice.find("^1^") != std::string::npos) return "has an exponent of 1";
  const std::vector<Factor> factors = ReadFactors(ParseExpression(choice));
  if (factors.size() == 2 && factors[0].letter < factors[1].letter) return "";
  return "does not name two letters in the order of the alphabet";
}

Reading ReadPowerOfGroup(const course::Problem& problem) {
  std::string line;
  for (const std::string& text : problem.question)
    if (text.find(")^") != std::string::npos) line = text;
  const Expression expression = ParseExpression(line);
  if (expression.kind != Kind::Power) throw Unreadable("\"" + line + "\" is no power of a group");
  const std::vector<Factor> factors = ReadFactors(expression.parts[0]);
  if (factors.size() != 2) throw Unreadable("not two factors in parentheses");
  Reading reading;
  reading.answer = ValueOf(line).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  ReadTwoFactors(factors, WholeNumber(expression.parts[1]), reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadPowerOfGroup, {"Power of a Product"});

}  // namespace
}  // namespace lesson_check
