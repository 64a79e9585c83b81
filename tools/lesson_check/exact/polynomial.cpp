#include "lesson_check/exact/polynomial.h"

#include "lesson_check/exact/unreadable.h"

namespace lesson_check {
namespace {

// n = outside^2 * inside, inside without a square factor.
struct SquareParts {
  long outside = 1;
  long inside = 1;
};

SquareParts TakeSquaresOut(const mpz_class& number) {
  constexpr long kLargest = 1'000'000'000;  // of a radicand that a student can be asked for
  if (number > kLargest) throw Unreadable("the radicand " + number.get_str() + " is too large");
  long n = number.get_si();
  SquareParts parts;
  for (long prime = 2; prime * prime <= n; ++prime) {
    while (n % (prime * prime) == 0) {
      n /= prime * prime;
      parts.outside *= prime;
    }
    if (n % prime == 0) {
      n /= prime;
      parts.inside *= prime;
    }
  }
  parts.inside *= n;
  return parts;
}

Powers Product(const Powers& a, const Powers& b, Rational& coefficient) {
  Powers product = a;
  for (const auto& [letter, halves] : b.halves)
    if ((product.halves[letter] += halves) == 0) product.halves.erase(letter);
  if (a.radicand == 1 && b.radicand == 1) return product;
  const SquareParts parts = TakeSquaresOut(mpz_class(a.radicand) * b.radicand);
  coefficient *= parts.outside;
  product.radicand = parts.inside;
  return product;
}

std::string ExponentText(int halves) {
  if (halves == 2) return "";
  if (halves % 2 != 0) return "^" + std::to_string(halves) + "/2";
  return "^" + std::to_string(halves / 2);
}

}  // namespace

bool Powers::operator<(const Powers& other) const {
  if (halves != other.halves) return halves < other.halves;
  return radicand < other.radicand;
}

Polynomial::Polynomial(const Rational& number) {
  Add({}, number);
}

Polynomial Polynomial::Letter(char letter) {
  Polynomial result;
  Powers powers;
  powers.halves[letter] = 2;
  result.Add(powers, 1);
  return result;
}

Polynomial Polynomial::Root(const Polynomial& radicand) {
  if (radicand.IsZero()) return {};
  if (radicand.TermCount() > 1) throw Unreadable("the root of a sum, " + radicand.Text());
  const auto& [powers, coefficient] = *radicand.terms_.begin();
  if (powers.radicand != 1 || coefficient < 0) throw Unreadable("the root of " + radicand.Text());
  // The root of n/d is the root of n*d over d.
  const SquareParts parts = TakeSquaresOut(coefficient.get_num() * coefficient.get_den());
  Powers rooted;
  rooted.radicand = parts.inside;
  for (const auto& [letter, halves] : powers.halves) {
    if (halves % 2 != 0) throw Unreadable("the root of " + radicand.Text());
    rooted.halves[letter] = halves / 2;
  }
  Polynomial result;
  Rational outside(mpz_class(parts.outside), coefficient.get_den());
  outside.canonicalize();
  result.Add(rooted, outside);
  return result;
}

void Polynomial::Add(const Powers& powers, const Rational& coefficient) {
  if (coefficient == 0) return;
  const auto [term, isNew] = terms_.emplace(powers, coefficient);
  if (!isNew && (term->second += coefficient) == 0) terms_.erase(term);
}

Polynomial Polynomial::operator-() const {
  Polynomial result = *this;
  for (auto& [powers, coefficient] : result.terms_) coefficient = -coefficient;
  return result;
}

Polynomial Polynomial::operator+(const Polynomial& other) const {
  Polynomial result = *this;
  for (const auto& [powers, coefficient] : other.terms_) result.Add(powers, coefficient);
  return result;
}

Polynomial Polynomial::operator-(const Polynomial& other) const {
  return *this + -other;
}

Polynomial Polynomial::operator*(const Polynomial& other) const {
  Polynomial result;
  for (const auto& [powers, coefficient] : terms_) {
    for (const auto& [otherPowers, otherCoefficient] : other.terms_) {
      Rational product = coefficient * otherCoefficient;
      const Powers joined = Product(powers, otherPowers, product);
      result.Add(joined, product);
    }
  }
  return result;
}

Polynomial Polynomial::Inverse() const {
  const auto& [powers, coefficient] = *terms_.begin();
  Powers inverse;
  for (const auto& [letter, halves] : powers.halves) inverse.halves[letter] = -halves;
  inverse.radicand = powers.radicand;  // 1 over the root of n is the root of n over n
  Polynomial result;
  result.Add(inverse, 1 / (coefficient * powers.radicand));
  return result;
}

Polynomial Polynomial::operator/(const Polynomial& other) const {
  if (other.IsZero()) throw Unreadable("a division by 0");
  if (other.TermCount() == 1) return *this * other.Inverse();
  // (a + b) (a - b) has no root left when each of two terms is the root of a fraction.
  if (other.TermCount() != 2 || !other.Letters().empty())
    throw Unreadable("a division by the sum " + other.Text());
  Polynomial conjugate = other;
  Rational& second = conjugate.terms_.rbegin()->second;
  second = -second;
  return *this * conjugate * (other * conjugate).Inverse();
}

Polynomial Polynomial::Power(int exponent) const {
  if (exponent < 0) return Polynomial(Rational(1)) / Power(-exponent);
  if (exponent == 1) return *this;
  if (TermCount() == 1 && terms_.begin()->first.radicand == 1) return PowerOfTerm(exponent);
  Polynomial result(Rational(1));
  for (int i = 0; i < exponent; ++i) result = result * *this;
  return result;
}

// Of one term without a root, which needs no multiplying out.
Polynomial Polynomial::PowerOfTerm(int exponent) const {
  Powers powers;
  Rational coefficient = 1;
  if (exponent > 0) powers = terms_.begin()->first;
  for (auto& [letter, halves] : powers.halves) halves *= exponent;
  for (int i = 0; i < exponent; ++i) coefficient *= terms_.begin()->second;
  Polynomial result;
  result.Add(powers, coefficient);
  return result;
}

bool Polynomial::operator==(const Polynomial& other) const {
  return Text() == other.Text();
}

bool Polynomial::IsNumber() const {
  if (IsZero()) return true;
  const Powers& powers = terms_.begin()->first;
  return TermCount() == 1 && powers.halves.empty() && powers.radicand == 1;
}

Rational Polynomial::Number() const {
  if (!IsNumber()) throw Unreadable(Text() + " where a number should stand");
  return IsZero() ? Rational(0) : terms_.begin()->second;
}

int Polynomial::Degree(char letter) const {
  int degree = 0;
  for (const auto& [powers, coefficient] : terms_) {
    const auto found = powers.halves.find(letter);
    if (found != powers.halves.end()) degree = std::max(degree, found->second / 2);
  }
  return degree;
}

Polynomial Polynomial::Coefficient(char letter, int exponent) const {
  Polynomial result;
  for (const auto& [powers, coefficient] : terms_) {
    const auto found = powers.halves.find(letter);
    const int halves = found == powers.halves.end() ? 0 : found->second;
    if (halves != 2 * exponent) continue;
    Powers rest = powers;
    rest.halves.erase(letter);
    result.Add(rest, coefficient);
  }
  return result;
}

Polynomial Polynomial::With(char letter, const Polynomial& value) const {
  Polynomial result;
  for (int exponent = 0; exponent <= Degree(letter); ++exponent)
    result = result + Coefficient(letter, exponent) * value.Power(exponent);
  return result;
}

std::string Polynomial::Letters() const {
  std::map<char, int> seen;
  for (const auto& [powers, coefficient] : terms_)
    seen.insert(powers.halves.begin(), powers.halves.end());
  std::string letters;
  for (const auto& [letter, halves] : seen) letters += letter;
  return letters;
}

std::string Polynomial::Text() const {
  if (IsZero()) return "0";
  std::string text;
  for (const auto& [powers, coefficient] : terms_) {
    if (!text.empty()) text += " + ";
    text += coefficient.get_str();
    for (const auto& [letter, halves] : powers.halves) text += letter + ExponentText(halves);
    if (powers.radicand != 1) text += "r" + std::to_string(powers.radicand);
  }
  return text;
}

}  // namespace lesson_check
