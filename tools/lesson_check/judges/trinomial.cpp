// A trinomial to be factored: the choices are multiplied out.
#include <algorithm>
#include <cstdlib>
#include <numeric>

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

// As 2x(3x - 2).
bool IsMonomialTimesBinomial(const std::string& text, char letter) {
  const Expression expression = ParseExpression(text);
  if (expression.kind != Kind::Product || ValueOf(text).Degree(letter) != 2) return false;
  const auto isSum = [](const Expression& part) { return part.kind == Kind::Sum; };
  return std::ranges::count_if(expression.parts, isSum) == 1 && isSum(expression.parts.back());
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

// --- Trinomials that begin with another number ---------------------------------------------------

// (first x + firstLast)(second x + secondLast), the numbers before x positive.
struct Product {
  long first = 0;
  long firstLast = 0;
  long second = 0;
  long secondLast = 0;

  long Middle() const { return first * secondLast + firstLast * second; }
  bool HasCommonFactor() const {
    return std::gcd(first, firstLast) > 1 || std::gcd(second, secondLast) > 1;
  }
  std::string Text(char letter) const {
    const Polynomial x = Polynomial::Letter(letter);
    const auto factor = [&](long lead, long last) {
      return Polynomial(Rational(lead)) * x + Polynomial(Rational(last));
    };
    return (factor(first, firstLast) * factor(second, secondLast)).Text();
  }
};

// Every way to have the first and last terms of a x^2 + b x + c; each factor stands first once.
std::vector<Product> ProductsWithEnds(long a, long c) {
  std::vector<Product> products;
  for (long first = 1; first <= a; ++first)
    for (long last = -std::labs(c); last <= std::labs(c); ++last)
      if (a % first == 0 && last != 0 && c % last == 0)
        products.push_back({first, last, a / first, c / last});
  return products;
}

struct Coefficients {
  long a = 0;
  long b = 0;
  long c = 0;
};

// What goes wrong when the middle term is split, b = first + second with first times second = a c.
void AddSplittingMistakes(char letter, const Coefficients& asked, Reading& reading) {
  const auto add = [&](const char* mistake, const Product& product) {
    reading.mistakes[mistake].push_back(product.Text(letter));
  };
  const long size = std::labs(asked.a * asked.c);
  for (long first = -size; first <= size; ++first) {
    if (first == 0 || size % first != 0) continue;
    const long second = asked.a * asked.c / first;
    const long shared = std::gcd(asked.a, first);  // of a x^2 + first x
    if (first + second != asked.b) {
      add("takes a pair with the right product and the wrong sum",
          {asked.a / shared, first / shared, shared, asked.c * shared / first});
      continue;
    }
    const long outside = asked.c * shared / first;  // of second x + c
    add("writes the two numbers straight into the factors", {1, first, 1, second});
    add("takes the two numbers with the wrong signs",
        {asked.a / shared, -first / shared, shared, -outside});
    if (shared > 1) add("takes only x out of the first group", {asked.a, first, 1, outside});
    if (std::labs(outside) == 1)
      add("leaves out the 1", {asked.a / shared, first / shared, shared, 0});
    if (first < 0 && second < 0)
      add("overlooks the minus sign of the second group",
          {asked.a / shared, first / shared, shared, -outside});
  }
}

Product RightProduct(const Coefficients& asked) {
  for (const Product& product : ProductsWithEnds(asked.a, asked.c))
    if (product.Middle() == asked.b) return product;
  throw Unreadable("the trinomial has no whole factors");
}

bool IsPair(long number, long other, long one, long two) {
  return std::minmax(std::labs(number), std::labs(other)) ==
         std::minmax(std::labs(one), std::labs(two));
}

void AddTrialMistakes(char letter, const Coefficients& asked, Reading& reading) {
  const Product right = RightProduct(asked);
  reading.mistakes["reverses both signs"] = {
      Product{right.first, -right.firstLast, right.second, -right.secondLast}.Text(letter)};
  for (const Product& product : ProductsWithEnds(asked.a, asked.c)) {
    if (product.Middle() == asked.b) continue;
    const auto add = [&](const char* mistake) {
      reading.mistakes[mistake].push_back(product.Text(letter));
    };
    add("checks only the first and last terms");
    if (product.HasCommonFactor()) add("puts numbers with a common factor into one factor");
    const bool rightFirst = IsPair(product.first, product.second, right.first, right.second);
    const bool rightLast =
        IsPair(product.firstLast, product.secondLast, right.firstLast, right.secondLast);
    if (!rightFirst && rightLast) add("takes the wrong pair for the first numbers");
    if (rightFirst && !rightLast) add("takes the wrong pair for the last numbers");
  }
}

void AddSignMistakes(char letter, const Product& right, Reading& reading) {
  const auto [first, p, second, q] = right;
  reading.mistakes["reverses one sign"] = {Product{first, -p, second, q}.Text(letter),
                                           Product{first, p, second, -q}.Text(letter)};
  const Product exchanged = {first, q, second, p};
  if (exchanged.Middle() != right.Middle())
    reading.mistakes["exchanges the last numbers"] = {exchanged.Text(letter)};
}

// A trinomial that begins with a number above 1 before the square, its numbers without a common
// factor; the largest number in its factors is told.
Reading ReadTrinomial(const course::Problem& problem, long largest,
                      void (*addMistakes)(char letter, const Coefficients& asked,
                                          Reading& reading)) {
  const std::string line = TrinomialLine(problem);
  const Polynomial trinomial = ValueOf(line);
  const char letter = LetterOf(line);
  if (trinomial.Degree(letter) != 2) throw Unreadable("\"" + line + "\" is no trinomial");
  const auto whole = [&](int exponent) {
    return trinomial.Coefficient(letter, exponent).Number().get_num().get_si();
  };
  const Coefficients asked = {whole(2), whole(1), whole(0)};
  Reading reading;
  reading.answer = trinomial.Text();
  reading.value = [letter](const std::string& choice) {
    if (!IsProductOfBinomials(choice, letter) && !IsMonomialTimesBinomial(choice, letter))
      throw Unreadable("\"" + choice + "\" is no product of two factors with x");
    return ValueOf(choice).Text();
  };
  reading.Within("the first number", asked.a, 2, largest * largest);
  if (asked.b == 0) reading.faults.push_back("the middle term is missing");
  if (std::gcd(std::gcd(asked.a, asked.b), asked.c) != 1)
    reading.faults.push_back("the terms have a common factor");
  const Product right = RightProduct(asked);
  reading.Within("a number in the factors",
                 std::max({right.first, right.second, std::labs(right.firstLast),
                           std::labs(right.secondLast)}),
                 1, largest);
  reading.kind = std::string(asked.c > 0 ? "same signs" : "different signs") +
                 (asked.b > 0 ? ", middle positive" : ", middle negative");
  AddSignMistakes(letter, right, reading);
  addMistakes(letter, asked, reading);
  return reading;
}

constexpr long kLargest = 9;
Reading ReadForTrial(const course::Problem& problem) {
  return ReadTrinomial(problem, kLargest, AddTrialMistakes);
}
Reading ReadForGrouping(const course::Problem& problem) {
  return ReadTrinomial(problem, kLargest, AddSplittingMistakes);
}

const JudgeRegistration kTrial(ReadForTrial, {"Trinomials of the Form ax\xB2+bx+c"});
const JudgeRegistration kGrouping(ReadForGrouping, {"Using Grouping to Factor Trinomials"});
const JudgeRegistration kRegistration(ReadMonicTrinomial, {"Trinomials of the Form x\xB2+bx+c"});

}  // namespace
}  // namespace lesson_check
