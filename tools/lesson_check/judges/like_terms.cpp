// Which of five terms is like a given one, or a sum whose like terms are to be combined.
#include <algorithm>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"
#include "lesson_check/judges/combined_sum.h"

namespace lesson_check {
namespace {

constexpr const char* kSameCoefficient = " with the same coefficient";

// The exponents of the problem's two letters.
struct Exponents {
  int first = 0;
  int second = 0;
  bool operator==(const Exponents&) const = default;
};

std::string LettersOfProblem(const course::Problem& problem) {
  Polynomial product = ValueOf(problem.question.back());
  for (std::size_t slot = 1; slot < problem.choices.size(); ++slot)
    product = product * ValueOf(problem.choices[slot].text);
  const std::string letters = product.Letters();
  if (letters.size() != 2) throw Unreadable("not two letters: \"" + letters + "\"");
  return letters;
}

// What someone overlooks who takes terms with these exponents for like ones.
std::string MistakeOf(const Exponents& given, const Exponents& other) {
  const auto [m, n] = given;
  const auto [i, j] = other;
  if (i + j == m + n) return "takes one letter for the other";
  const bool sameLetters = (i > 0) == (m > 0) && (j > 0) == (n > 0);
  if (sameLetters) return "overlooks the exponents";
  const bool keepsFirst = i == m && i > 0;
  const bool keepsSecond = j == n && j > 0;
  return keepsFirst || keepsSecond ? "overlooks a letter" : "";
}

void AddMistakes(const std::string& letters, const Polynomial& given, Reading& reading) {
  constexpr int kHighest = 2;
  const Exponents right = {given.Degree(letters[0]), given.Degree(letters[1])};
  for (int i = 0; i <= kHighest; ++i) {
    for (int j = 0; j <= kHighest; ++j) {
      if (right == Exponents{i, j}) continue;
      const std::string other =
          (Polynomial::Letter(letters[0]).Power(i) * Polynomial::Letter(letters[1]).Power(j))
              .Text();
      reading.mistakes["compares only the coefficients"].push_back(other + kSameCoefficient);
      if (const std::string mistake = MistakeOf(right, {i, j}); !mistake.empty())
        reading.mistakes[mistake].push_back(other);
    }
  }
}

// "Which term is like this one?"
Reading ReadLikeTerm(const course::Problem& problem) {
  const Polynomial given = ValueOf(problem.question.back());
  const Rational coefficient = CoefficientOf(given);
  Reading reading;
  reading.kind = "which term is like";
  reading.answer = LettersOf(given).Text();
  reading.value = [coefficient](const std::string& choice) {
    const Polynomial term = ValueOf(choice);
    return LettersOf(term).Text() + (CoefficientOf(term) == coefficient ? kSameCoefficient : "");
  };
  reading.Within("the coefficient", coefficient, -99, 99);
  AddMistakes(LettersOfProblem(problem), LettersOf(given), reading);
  return reading;
}

Reading ReadLikeTerms(const course::Problem& problem) {
  if (problem.question.front() == "Which term is like this one?") return ReadLikeTerm(problem);
  if (problem.question.front() == "Combine the like terms:") return ReadCombinedSum(problem);
  throw Unreadable("\"" + problem.question.front() + "\" is not asked here");
}

const JudgeRegistration kRegistration(ReadLikeTerms, {"Like Terms"});

}  // namespace
}  // namespace lesson_check
