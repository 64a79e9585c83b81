// Which product of powers is the prime factorization of a number.  Two products are the same answer
// when they have the same factors: 2 x 2 x 15 is 60, as 2^2 x 3 x 5 is, but not the same answer.
#include <algorithm>
#include <set>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using Kind = Expression::Kind;
using List = std::vector<long>;  // factors with repetition

long WholeNumber(const Expression& expression) {
  if (expression.kind != Kind::Number || expression.number.get_den() != 1)
    throw Unreadable("a factor is no whole number");
  return expression.number.get_num().get_si();
}

// The factors as they stand, each power as one.
void CollectFactors(const Expression& expression, std::vector<Expression>& factors) {
  if (expression.kind != Kind::Product) return factors.push_back(expression);
  for (const Expression& part : expression.parts) CollectFactors(part, factors);
}

long BaseOf(const Expression& factor) {
  return WholeNumber(factor.kind == Kind::Power ? factor.parts[0] : factor);
}

List ListOf(const std::string& choice) {
  std::vector<Expression> factors;
  CollectFactors(ParseExpression(choice), factors);
  List list;
  for (const Expression& factor : factors) {
    const long times = factor.kind == Kind::Power ? WholeNumber(factor.parts[1]) : 1;
    list.insert(list.end(), static_cast<std::size_t>(times), BaseOf(factor));
  }
  return list;
}

std::string TextOf(List list) {
  std::ranges::sort(list);
  std::string text;
  for (const long factor : list) text += (text.empty() ? "" : " ") + std::to_string(factor);
  return text;
}

// Every number stands once, with its exponent, and they ascend.
std::string FlawOf(const std::string& choice) {
  std::vector<Expression> factors;
  CollectFactors(ParseExpression(choice), factors);
  for (std::size_t i = 1; i < factors.size(); ++i)
    if (BaseOf(factors[i - 1]) >= BaseOf(factors[i])) return "is not in ascending order";
  return "";
}

List PrimesOf(long number) {
  List primes;
  for (long divisor = 2; number > 1; ++divisor)
    for (; number % divisor == 0; number /= divisor) primes.push_back(divisor);
  return primes;
}

// "factor 14", held together as in the names of the lesson.
std::string FactorName(long factor) {
  return "factor" + course::tutor::Gap + std::to_string(factor);
}

// Two of the factors multiplied: a composite one, or one that is easily taken for a prime.
void AddMerged(const List& primes, const std::string& behind, Reading& reading) {
  for (std::size_t i = 0; i < primes.size(); ++i) {
    for (std::size_t j = i + 1; j < primes.size(); ++j) {
      List merged = primes;
      const long product = merged[i] *= merged[j];
      merged.erase(merged.begin() + static_cast<long>(j));
      const bool looksPrime = product % 2 != 0 && product % 5 != 0 && product > 36;
      const std::string name = looksPrime ? "takes the number" + course::tutor::Gap +
                                                std::to_string(product) + " for a prime"
                                          : "leaves the composite " + FactorName(product);
      reading.mistakes[name + behind].push_back(TextOf(merged));
    }
  }
}

// A power written in another form.
void AddPowerMistakes(const List& primes, Reading& reading) {
  for (const long base : std::set<long>(primes.begin(), primes.end())) {
    const long exponent = std::ranges::count(primes, base);
    if (exponent == 1) continue;
    List list = primes;
    std::erase(list, base);
    List exchanged = list;
    exchanged.insert(exchanged.end(), static_cast<std::size_t>(base), exponent);
    reading.mistakes["exchanges base and exponent"].push_back(TextOf(exchanged));
    list.insert(list.end(), {base, exponent});
    reading.mistakes["writes the exponent as a factor"].push_back(TextOf(list));
  }
}

Reading ReadPrimeFactorization(const course::Problem& problem) {
  const std::vector<std::string> numbers = NumbersIn(problem.question.front());
  if (numbers.size() != 1) throw Unreadable("the question does not name one number");
  const long number = std::stol(numbers[0]);
  const List primes = PrimesOf(number);
  const std::set<long> different(primes.begin(), primes.end());

  Reading reading;
  reading.answer = TextOf(primes);
  reading.value = [](const std::string& choice) { return TextOf(ListOf(choice)); };
  reading.flaw = FlawOf;
  reading.kind = std::to_string(primes.size()) + " prime factors" +
                 (primes.back() > 5 ? ", one larger than 5" : "");
  reading.Within("the number", Rational(number), 16, 720);
  reading.Within("the count of factors", Rational(static_cast<long>(primes.size())), 4, 5);
  reading.Within("the count of different factors", Rational(static_cast<long>(different.size())), 2,
                 5);

  AddMerged(primes, "", reading);
  AddPowerMistakes(primes, reading);
  List withOne = primes;
  withOne.push_back(1);
  reading.mistakes["takes 1 for a prime"] = {TextOf(withOne)};
  for (long factor = 4; factor < number; ++factor)
    if (number % factor == 0)
      reading.mistakes["stops after the first split"].push_back(TextOf({factor, number / factor}));
  reading.mistakes["writes each prime factor only once"] = {
      TextOf(List(different.begin(), different.end()))};
  for (const long prime : different) {
    List more = primes;
    more.push_back(prime);
    const std::string tooMany = "writes one " + FactorName(prime) + " too many";
    reading.mistakes[tooMany].push_back(TextOf(more));
    AddMerged(more, " and " + tooMany, reading);
    List fewer = primes;
    fewer.erase(std::ranges::find(fewer, prime));
    reading.mistakes["loses one " + FactorName(prime)].push_back(TextOf(fewer));
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadPrimeFactorization, {"Prime Factorization"});

}  // namespace
}  // namespace lesson_check
