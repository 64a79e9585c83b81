#include "lessons/families/substitution/expression_draw.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace course::substitution {
namespace {

// What stands in the terms: exponents of the first and the second letter.
struct Shape {
  std::size_t count;  // of terms
  std::array<int, kLetters> exponents[3];
};
constexpr std::array<Shape, 7> kShapes = {{
    {2, {{1, 0}, {0, 0}}},          // 3x + 4
    {2, {{0, 0}, {1, 0}}},          // 4 + 3x
    {2, {{2, 0}, {0, 0}}},          // 3x^2 + 4
    {2, {{1, 0}, {0, 1}}},          // 3x + 4y
    {1, {{1, 1}}},                  // 3xy
    {1, {{2, 1}}},                  // 3x^2 y, or x y^2
    {3, {{2, 0}, {0, 1}, {0, 0}}},  // 3x^2 + 4y + 5
}};
constexpr std::size_t kSquareOfALetter = 5;

constexpr std::string_view kTenLetters = "abcdhkmnxy";  // that cannot be taken for digits
constexpr int kLargestNumber = 9;
constexpr int kLargestInTheHead = 100;      // of products and sums on the way
constexpr int kLargestWrong = 300;          // beyond, nobody believes it
constexpr std::size_t kFewestMistakes = 3;  // so that at most one box of five is drawn at random

void DrawShape(ValuedExpression& expression, RandomStream& random) {
  const auto kind = static_cast<std::size_t>(random.Rand(0, 6));
  const Shape& shape = kShapes[kind];
  for (std::size_t i = 0; i < shape.count; ++i) expression.terms.push_back({1, shape.exponents[i]});
  const bool second = random.Rand(0, 1) == 1;
  if (kind == kSquareOfALetter && second)
    std::swap(expression.terms[0].exponents[0], expression.terms[0].exponents[1]);
}

void DrawLetters(ValuedExpression& expression, RandomStream& random) {
  auto& [first, second] = expression.letters;
  first = random.OneOf(kTenLetters);
  do {
    second = random.OneOf(kTenLetters);
  } while (second == first);
  if (second < first) std::swap(first, second);  // in a term they stand by the alphabet
}

void DrawNumbers(ValuedExpression& expression, RandomStream& random) {
  for (Term& term : expression.terms) term.coef = random.Rand(-kLargestNumber, kLargestNumber);
  for (int& value : expression.values) value = random.Rand(-kLargestNumber, kLargestNumber);
}

// A twelfth of the draws at 3x^2 y, a quarter and more at all others.
bool IsWorthSolving(const ValuedExpression& expression) {
  const auto fits = [](int number) { return std::abs(number) <= kLargestInTheHead; };
  for (const Term& term : expression.terms) {
    if (term.coef == 0) return false;
    // x + 4 has nothing to multiply.
    if (term.coef == 1 && term.exponents[0] + term.exponents[1] == 1) return false;
  }
  for (std::size_t i = 0; i < kLetters; ++i)
    // With 0, 1 or -1 most mistakes lead to the same.
    if (expression.Has(i) && std::abs(expression.values[i]) < 2) return false;
  for (const Product& product : LineOf(expression))
    if (!fits(product.Value())) return false;
  const int value = ValueOf(expression);
  if (value == 0 || !fits(value)) return false;  // 0 has no sign to be lost
  return BelievableMistakes(expression).size() >= kFewestMistakes;
}

}  // namespace

ValuedExpression DrawExpression(RandomStream& random) {
  ValuedExpression expression;
  DrawShape(expression, random);
  DrawLetters(expression, random);
  do {
    DrawNumbers(expression, random);
  } while (!IsWorthSolving(expression));
  return expression;
}

std::vector<WrongValue> BelievableMistakes(const ValuedExpression& expression) {
  std::vector<WrongValue> wrong = WrongValuesOf(expression);
  std::erase_if(wrong, [](const WrongValue& one) { return std::abs(one.value) > kLargestWrong; });
  return wrong;
}

}  // namespace course::substitution
