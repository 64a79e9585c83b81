#include "lessons/families/radicals/root_term.h"

#include "mathkit/expressions.h"
#include "mathkit/square_roots.h"
#include "mathkit/tutor_codes.h"

namespace course::radicals {

RootTerm Simplified(const Term& radicand) {
  const Radical number = RootOf(radicand.coef);
  RootTerm root = {{number.outside, ""}, {number.radicand, ""}};
  // The letters stand in the order of the alphabet: every second one of a kind completes a pair.
  for (std::size_t i = 0; i < radicand.letters.size(); ++i) {
    if (i + 1 < radicand.letters.size() && radicand.letters[i] == radicand.letters[i + 1])
      root.outside.letters += radicand.letters[i++];
    else
      root.inside.letters += radicand.letters[i];
  }
  return root;
}

bool IsSimple(const Term& radicand) {
  return Simplified(radicand).outside == Term{1, ""};
}

std::string RadicalOf(const Term& radicand) {
  const std::string text = polynomials::TermText(radicand);
  const bool bare = radicand.letters.empty() || text.size() == 1;
  return tutor::SquareRoot + (bare ? text : "(" + text + ")");
}

std::string RootTermText(const RootTerm& term) {
  if (term.inside == Term{1, ""}) return polynomials::TermText(term.outside);
  return CoefText(term.outside.coef) + polynomials::LettersText(term.outside.letters) +
         RadicalOf(term.inside);
}

std::vector<int> PrimesOf(int number) {
  std::vector<int> primes;
  for (int divisor = 2; divisor * divisor <= number; ++divisor)
    for (; number % divisor == 0; number /= divisor) primes.push_back(divisor);
  if (number > 1) primes.push_back(number);
  return primes;
}

}  // namespace course::radicals
