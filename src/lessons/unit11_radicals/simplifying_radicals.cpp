// The student can simplify the square root of a number or of a term with letters: finds perfect
// squares or pairs of equal factors under the radical, brings them out, and sees when nothing can
// come out.
//
// A quarter of the problems each: a number up to 201, most of which are simple already; a product
// of small primes; the same with one letter, and with two.
#include "lessons/families/radicals/pairs_figure.h"
#include "lessons/families/radicals/root_choices.h"
#include "lessons/families/radicals/root_term.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace radicals;

constexpr std::string_view kPairsOfLetters[] = {"ab", "cd", "mn", "pq", "xy"};
constexpr int kPrimes[] = {2, 2, 3, 3, 5};  // five or more of them hold a pair

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingRadicals final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{Screen1}, {Screen1}, {Screen1}, {Screen1}, {Screen1}, {Screen1}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  Term radicand_;
};

// --- Generator ---------------------------------------------------------------

int DrawProduct(RandomStream& random) {
  int product = 1;
  const int rounds = random.Rand(5, 7);
  for (int i = 0; i < rounds; ++i) product *= kPrimes[random.Index(5) - 1];
  return product;
}

Term DrawRadicand(RandomStream& random) {
  enum Kind { Number = 1, Product, OneLetter, TwoLetters };
  constexpr int kLargest = 9999;
  const int kind = random.Index(4);
  if (kind == Number) return {random.Rand(2, 201), ""};
  const std::string_view pair = kPairsOfLetters[random.Index(5) - 1];
  const int first = random.Rand(2, 5);
  int number = 0;
  do {
    number = DrawProduct(random);
  } while (number > kLargest);  // too long to divide by hand
  const int second = random.Rand(2, 5);
  Term radicand = {number, ""};
  if (kind >= OneLetter) radicand.letters += std::string(static_cast<std::size_t>(first), pair[0]);
  if (kind == TwoLetters)
    radicand.letters += std::string(static_cast<std::size_t>(second), pair[1]);
  return radicand;
}

void SimplifyingRadicals::DrawProblem(RandomStream& random) {
  radicand_ = DrawRadicand(random);
  problem.question = {"Simplify this radical:", RadicalOf(radicand_)};
  if (!radicand_.letters.empty())
    problem.question = {"Simplify this radical:", "The letters stand for positive numbers.",
                        RadicalOf(radicand_)};
  OfferRoots(problem, radicand_, random);
}

// --- Problem page ------------------------------------------------------------

void SimplifyingRadicals::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question.back(), 7);
  if (problem.question.size() > 2) SayAt(9, problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingRadicals::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<SimplifyingRadicals> kRegistration("Simplifying Radicals");

}  // namespace
}  // namespace course
