// A product of powers with equal bases in it, such as 4x^6^ times p times x^9^, to be simplified.
#include <algorithm>
#include <optional>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;

struct Power {
  char letter = 0;
  int exponent = 1;
};

struct ProductOfPowers {
  Rational number = 1;
  bool numberIsWritten = false;
  std::vector<Power> powers;  // as they stand, from left to right
};

bool ReadFactor(const Expression& factor, ProductOfPowers& product) {
  if (factor.kind == Kind::Number && !product.numberIsWritten && product.powers.empty()) {
    product.number = factor.number;
    product.numberIsWritten = true;
    return true;
  }
  const bool power = factor.kind == Kind::Power && factor.parts[0].kind == Kind::Letter &&
                     factor.parts[1].kind == Kind::Number;
  if (power)
    product.powers.push_back(
        {factor.parts[0].letter, static_cast<int>(factor.parts[1].number.get_num().get_si())});
  if (factor.kind == Kind::Letter) product.powers.push_back({factor.letter, 1});
  return power || factor.kind == Kind::Letter;
}

// A number first, then powers of letters; unreadable when it is anything else.
ProductOfPowers ReadProduct(const std::string& text) {
  const Expression expression = ParseExpression(text);
  ProductOfPowers product;
  bool read = true;
  if (expression.kind == Kind::Product)
    for (const Expression& factor : expression.parts) read = read && ReadFactor(factor, product);
  else
    read = ReadFactor(expression, product);
  if (!read) throw Unreadable("\"" + text + "\" is no product of powers");
  return product;
}

// The question in its parts: the base that occurs twice, and what may stand between.
struct TwoPowers {
  Rational number = 1;
  Power first, second;  // of one letter
  std::optional<Power> other;
};

TwoPowers ReadTwoPowers(const ProductOfPowers& product) {
  const std::vector<Power>& powers = product.powers;
  if (powers.size() < 2 || powers.size() > 3) throw Unreadable("not two or three powers");
  TwoPowers two;
  two.number = product.number;
  two.first = powers.front();
  two.second = powers.back();
  if (powers.size() == 3) two.other = powers[1];
  if (two.first.letter != two.second.letter || (two.other && two.other->letter == two.first.letter))
    throw Unreadable("not two powers of one letter");
  return two;
}

Polynomial PowerOf(char letter, int exponent) {
  return Polynomial::Letter(letter).Power(exponent);
}

void AddMistakes(const TwoPowers& two, Reading& reading) {
  const char x = two.first.letter;
  const int m = two.first.exponent;
  const int n = two.second.exponent;
  const Polynomial number(two.number);
  const Polynomial rest =
      two.other ? number * PowerOf(two.other->letter, two.other->exponent) : number;
  const auto add = [&](const char* name, std::initializer_list<Polynomial> values) {
    for (const Polynomial& value : values) reading.mistakes[name].push_back(value.Text());
  };
  add("multiplies the exponents", {rest * PowerOf(x, m * n)});
  add("adds the bases and multiplies the exponents",
      {Polynomial(Rational(2)) * rest * PowerOf(x, m * n)});
  add("takes the exponents as factors", {Polynomial(Rational(m * n)) * rest * PowerOf(x, 2)});
  add("keeps the first exponent", {rest * PowerOf(x, m)});
  add("adds the bases too", {Polynomial(Rational(2)) * rest * PowerOf(x, m + n)});
  add("counts a bare letter as no factor", {rest * PowerOf(x, std::max(m, n))});
  if (!two.other) return;
  const char y = two.other->letter;
  const int k = two.other->exponent;
  const auto both = [&](int exponent) {
    return number * PowerOf(x, exponent) * PowerOf(y, exponent);
  };
  add("gives the sum to both letters", {both(m + n)});
  add("gives the product to both letters", {both(m * n)});
  add("gives the sum of all exponents to both letters", {both(m + n + k)});
  if (n == 1)
    add("counts the bare letter for both letters",
        {number * PowerOf(x, m + 1) * PowerOf(y, k + 1)});
  add("adds exponents of neighbors",
      {number * PowerOf(x, m) * PowerOf(y, k + n), number * PowerOf(x, n) * PowerOf(y, k + m)});
}

// A simplified product names each letter once, and neither a factor nor an exponent of 1.
std::string FlawOf(const std::string& choice) {
  const ProductOfPowers product = ReadProduct(choice);
  std::string letters;
  for (const Power& power : product.powers) {
    if (letters.find(power.letter) != std::string::npos) return "can be simplified";
    letters += power.letter;
  }
  const bool bareOne = product.numberIsWritten && product.number == 1 && !letters.empty();
  if (bareOne) return "has a factor of 1";
  if (choice.find("^1^") != std::string::npos) return "has an exponent of 1";
  return "";
}

// The line of the question that is an expression, as against words.
std::string ExpressionLine(const course::Problem& problem) {
  for (const std::string& line : problem.question) {
    if (line.find('^') == std::string::npos) continue;
    return line;
  }
  throw Unreadable("no line of the question has an exponent");
}

// Powers of letters to be multiplied.
Reading ReadProductOfPowers(const course::Problem& problem) {
  const std::string line = ExpressionLine(problem);
  Reading reading;
  reading.answer = ValueOf(line).Text();
  reading.value = [](const std::string& choice) { return ValueOf(choice).Text(); };
  reading.flaw = FlawOf;
  AddMistakes(ReadTwoPowers(ReadProduct(line)), reading);
  return reading;
}

const JudgeRegistration kRegistration(ReadProductOfPowers, {"Multiplying with Exponents"});

}  // namespace
}  // namespace lesson_check
