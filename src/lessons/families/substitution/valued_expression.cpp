#include "lessons/families/substitution/valued_expression.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::substitution {
namespace {

std::string LettersText(const ValuedExpression& expression, const Term& term) {
  std::string text;
  for (std::size_t i = 0; i < kLetters; ++i)
    if (term.exponents[i] != 0) text += expression.letters[i] + ExponentText(term.exponents[i]);
  return text;
}

Product ProductOf(const ValuedExpression& expression, const Term& term, bool isFirst) {
  Product product;
  product.isSubtracted = !isFirst && term.coef < 0;
  const int coef = product.isSubtracted ? -term.coef : term.coef;
  if (coef != 1 || !term.HasLetter())
    product.factors.push_back({coef, 1, true, std::abs(coef) == 1 && term.HasLetter()});
  for (std::size_t i = 0; i < kLetters; ++i)
    if (term.exponents[i] != 0)
      product.factors.push_back({expression.values[i], term.exponents[i]});
  return product;
}

int SignOf(const Product& product) {
  return product.isSubtracted ? -1 : 1;
}

// The value when each product counts as told.
template <class Worth>
int Sum(const NumberLine& line, Worth worth) {
  int sum = 0;
  for (const Product& product : line) sum += SignOf(product) * worth(product);
  return sum;
}

// The line with each factor changed.
template <class Change>
NumberLine Changed(NumberLine line, Change change) {
  for (Product& product : line)
    for (Factor& factor : product.factors) change(factor);
  return line;
}

// 2x with 3 in place of x as 23; terms with a power or a negative number are worked out.
int SideBySide(const Product& product) {
  std::string digits;
  for (std::size_t i = 0; i < product.factors.size(); ++i) {
    const Factor& factor = product.factors[i];
    if (factor.exponent != 1 || factor.isUnprinted || (factor.base < 0 && i > 0))
      return product.Value();
    digits += NumStr(factor.base);
  }
  return std::stoi(digits);
}

// 3 x 5 as 3 + 5.
int AddedFactors(const Product& product) {
  const std::vector<Factor>& factors = product.factors;
  if (factors[0].isUnprinted) return product.Value();
  return std::accumulate(factors.begin(), factors.end(), 0,
                         [](int sum, const Factor& factor) { return sum + factor.Value(); });
}

// 2 x 3 x 5 as 2 x 3.
int OfTwoFactors(const Product& product) {
  const std::vector<Factor>& factors = product.factors;
  if (factors.size() < 3 || factors[0].isUnprinted) return product.Value();
  return factors[0].Value() * factors[1].Value();
}

int FromLeftToRight(const NumberLine& line) {
  int value = 0;
  for (const Product& product : line) {
    value += SignOf(product) * product.factors[0].Value();
    for (std::size_t i = 1; i < product.factors.size(); ++i) value *= product.factors[i].Value();
  }
  return value;
}

// What stands on both sides of a plus or minus comes together before anything is multiplied.
int SumsFirst(const NumberLine& line) {
  int value = 1;
  int sum = 0;
  for (const Product& product : line) {
    sum += SignOf(product) * product.factors[0].Value();
    for (std::size_t i = 1; i < product.factors.size(); ++i) {
      value *= sum;
      sum = product.factors[i].Value();
    }
  }
  return value * sum;
}

int WithOneWrongSign(const NumberLine& line) {
  bool done = false;
  return Sum(line, [&](const Product& product) {
    const bool wrong = !done && product.factors.size() > 1 && product.HasNegativeFactor();
    done = done || wrong;
    return wrong ? -product.Value() : product.Value();
  });
}

// 2x^2 as the square of 2x.
int WithCoefficientInPower(const NumberLine& line) {
  return Sum(line, [](const Product& product) {
    Product raised = product;
    Factor& first = raised.factors[0];
    if (first.isCoefficient && raised.factors.size() > 1)
      first.exponent = raised.factors[1].exponent;
    return raised.Value();
  });
}

int WithNegativeSquares(const NumberLine& line) {
  return ValueOf(Changed(line, [](Factor& factor) {
    if (factor.base < 0 && factor.exponent == 2) factor = {-factor.Value()};
  }));
}

int WithExponentsAsFactors(const NumberLine& line) {
  return ValueOf(Changed(line, [](Factor& factor) {
    if (factor.exponent > 1) factor = {factor.base * factor.exponent};
  }));
}

int WithPositiveValues(const NumberLine& line) {
  return ValueOf(Changed(line, [](Factor& factor) {
    if (!factor.isCoefficient) factor.base = std::abs(factor.base);
  }));
}

int WithExchangedValues(ValuedExpression expression) {
  if (expression.Has(0) && expression.Has(1)) std::swap(expression.values[0], expression.values[1]);
  return ValueOf(expression);
}

int WithPlacesInAlphabet(ValuedExpression expression) {
  for (std::size_t i = 0; i < kLetters; ++i)
    if (expression.Has(i)) expression.values[i] = expression.letters[i][0] - 'a' + 1;
  return ValueOf(expression);
}

// 3x + 4 as 7x.
int WithUnlikeTermsGathered(ValuedExpression expression) {
  std::vector<Term>& terms = expression.terms;
  const bool oneLetter = terms.size() == 2 && terms[0].HasLetter() != terms[1].HasLetter();
  if (oneLetter) {
    Term& gathered = terms[terms[0].HasLetter() ? 0 : 1];
    gathered.coef = terms[0].coef + terms[1].coef;
    if (gathered.coef == 0) return 0;
    terms = {gathered};
  }
  return ValueOf(expression);
}

}  // namespace

bool ValuedExpression::Has(std::size_t letter) const {
  return std::ranges::any_of(terms,
                             [&](const Term& term) { return term.exponents.at(letter) != 0; });
}

std::string ValuedExpression::Text() const {
  std::string text;
  for (const Term& term : terms) {
    const bool isFirst = &term == &terms.front();
    if (!term.HasLetter())
      text += isFirst ? NumStr(term.coef) : tutor::Gap + SignedNumberText(term.coef);
    else
      text +=
          (isFirst ? CoefText(term.coef) : SignedCoefText(term.coef)) + LettersText(*this, term);
  }
  return text;
}

std::string ValuedExpression::ValuesText() const {
  std::string text;
  for (std::size_t i = 0; i < kLetters; ++i)
    if (Has(i)) text += (text.empty() ? "" : " and ") + letters[i] + " = " + NumStr(values[i]);
  return text;
}

int Factor::Value() const {
  int value = base;
  for (int i = 1; i < exponent; ++i) value *= base;
  return value;
}

int Product::Value() const {
  return std::accumulate(factors.begin(), factors.end(), 1,
                         [](int value, const Factor& factor) { return value * factor.Value(); });
}

bool Product::HasNegativeFactor() const {
  return std::ranges::any_of(factors, [](const Factor& factor) { return factor.Value() < 0; });
}

NumberLine LineOf(const ValuedExpression& expression) {
  NumberLine line;
  for (const Term& term : expression.terms)
    line.push_back(ProductOf(expression, term, line.empty()));
  return line;
}

std::string FactorText(const Factor& factor, bool beginsLine) {
  const bool bare = beginsLine && factor.exponent == 1;
  return (bare ? NumStr(factor.base) : InParentheses(factor.base)) + ExponentText(factor.exponent);
}

std::string LineText(const NumberLine& line) {
  std::string text;
  for (const Product& product : line) {
    if (!text.empty()) text += product.isSubtracted ? " - " : " + ";
    for (std::size_t i = 0; i < product.factors.size(); ++i) {
      if (i > 0) text += " " + tutor::Times + " ";
      text += FactorText(product.factors[i], text.empty());
    }
  }
  return text;
}

int ValueOf(const NumberLine& line) {
  return Sum(line, [](const Product& product) { return product.Value(); });
}

std::vector<WrongValue> WrongValuesOf(const ValuedExpression& expression) {
  const NumberLine line = LineOf(expression);
  const WrongValue all[] = {
      {"sets the digits side by side", Sum(line, SideBySide)},
      {"makes the square of a negative number negative", WithNegativeSquares(line)},
      {"multiplies base and exponent", WithExponentsAsFactors(line)},
      {"squares the coefficient too", WithCoefficientInPower(line)},
      {"works from left to right", FromLeftToRight(line)},
      {"gives a product the wrong sign", WithOneWrongSign(line)},
      {"drops the minus sign of a value", WithPositiveValues(line)},
      {"adds instead of multiplying", Sum(line, AddedFactors)},
      {"adds and subtracts first", SumsFirst(line)},
      {"exchanges the values of the letters", WithExchangedValues(expression)},
      {"adds the number to the coefficient", WithUnlikeTermsGathered(expression)},
      {"multiplies only the first two factors", Sum(line, OfTwoFactors)},
      {"takes a letter for its place in the alphabet", WithPlacesInAlphabet(expression)}};
  const int right = ValueOf(line);
  std::vector<WrongValue> wrong;
  for (const WrongValue& one : all) {
    const auto same = [&](const WrongValue& other) { return other.value == one.value; };
    if (one.value != right && std::ranges::none_of(wrong, same)) wrong.push_back(one);
  }
  return wrong;
}

}  // namespace course::substitution
