// Which product of powers is the prime factorization of a number.  Two products are the same answer
// when they have the same factors: 2 x 2 x 15 is 60, as 2^2 x 3 x 5 is, but not the same answer.
#include <algorithm>
#include <set>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

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

// All ways to multiply some of the factors together, down to two factors.
void CollectMerged(const List& list, std::set<std::string>& texts) {
  if (list.size() <= 2) return;
  for (std::size_t i = 0; i < list.size(); ++i) {
    for (std::size_t j = i + 1; j < list.size(); ++j) {
      List merged = list;
      merged[i] *= merged[j];
      merged.erase(merged.begin() + static_cast<long>(j));
      if (texts.insert(TextOf(merged)).second) CollectMerged(merged, texts);
    }
  }
}

// What someone writes who comes to these primes, right or not, and then goes wrong in the form.
void AddFormMistakes(const List& primes, const std::string& behind, Reading& reading) {
  std::set<std::string> merged;
  CollectMerged(primes, merged);
  std::vector<std::string>& composite =
      reading.mistakes["leaves a factor that is not prime" + behind];
  composite.insert(composite.end(), merged.begin(), merged.end());

  List withOne = primes;
  withOne.push_back(1);
  reading.mistakes["takes 1 for a prime" + behind].push_back(TextOf(withOne));

  std::vector<std::string>& exchanged = reading.mistakes["exchanges base and exponent" + behind];
  for (const long base : std::set<long>(primes.begin(), primes.end())) {
    const long exponent = std::ranges::count(primes, base);
    List list = primes;
    std::erase(list, base);
    list.insert(list.end(), static_cast<std::size_t>(base), exponent);
    if (exponent > 1) exchanged.push_back(TextOf(list));
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

  AddFormMistakes(primes, "", reading);
  for (long factor = 4; factor < number; ++factor)
    if (number % factor == 0)
      reading.mistakes["stops after the first split"].push_back(TextOf({factor, number / factor}));
  reading.mistakes["writes each prime factor only once"] = {
      TextOf(List(different.begin(), different.end()))};
  for (const long prime : different) {
    List more = primes;
    more.push_back(prime);
    reading.mistakes["counts a prime factor twice"].push_back(TextOf(more));
    AddFormMistakes(more, " and counts a prime factor twice", reading);
    List fewer = primes;
    fewer.erase(std::ranges::find(fewer, prime));
    reading.mistakes["loses a prime factor"].push_back(TextOf(fewer));
    AddFormMistakes(fewer, " and loses a prime factor", reading);
  }
  return reading;
}

const JudgeRegistration kRegistration(ReadPrimeFactorization, {"Prime Factorization"});

}  // namespace
}  // namespace lesson_check
