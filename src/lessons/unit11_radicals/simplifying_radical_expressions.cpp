// The student can simplify a sum of radicals: brings the squares out, sees which radicals are like,
// adds the numbers in front of those, and leaves unlike ones apart.
//
// In a third of the problems each the radicals are like from the start, become like when they are
// simplified, or two become like beside an unlike third.
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/families/radicals/root_sum.h"
#include "lessons/families/radicals/root_sum_choices.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace radicals;

// The numbers in front come from the second slot on; all of them are roots of square factors.
constexpr int kNumbers[] = {1, 2, 3, 4, 5};
constexpr int kRadicands[] = {2, 3, 5, 6, 7};

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class SimplifyingRadicalExpressions final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  RootSum sum_;
};

// --- Generator ---------------------------------------------------------------

enum class Kind { Alike = 1, BecomeAlike, WithUnlike };

// A number in front, a square factor, and what stays inside; the factor is 1 for a simple one.
RootTerm DrawTerm(RandomStream& random, int inside, bool simple) {
  const int front = kNumbers[random.Rand(2, 5) - 1];
  const int root = kNumbers[random.Index(5) - 1];
  return {{front, ""}, {simple ? inside : root * root * inside, ""}};
}

RootSum DrawSum(RandomStream& random, Kind kind) {
  const int inside = kRadicands[random.Index(5) - 1];
  const int other = kRadicands[random.Index(5) - 1];
  RootSum sum = {DrawTerm(random, inside, kind == Kind::Alike),
                 DrawTerm(random, inside, kind == Kind::Alike)};
  const RootTerm unlike = DrawTerm(random, other, false);
  const int place = random.Index(3);
  if (kind == Kind::WithUnlike) sum.insert(sum.begin() + (place - 1), unlike);
  for (std::size_t i = 1; i < sum.size(); ++i) sum[i].outside.coef *= random.Sign();
  return sum;
}

bool IsSuitable(const RootSum& sum, Kind kind) {
  const RootSum combined = Combined(Simplified(sum));
  const std::size_t kinds = kind == Kind::WithUnlike ? 2 : 1;
  if (combined.size() != kinds) return false;  // like terms vanish, or the third is like them
  const auto simple = [](const RootTerm& term) { return IsSimple(term.inside); };
  return kind == Kind::Alike || !std::ranges::all_of(sum, simple);
}

void SimplifyingRadicalExpressions::DrawProblem(RandomStream& random) {
  const Kind kind = static_cast<Kind>(random.Index(3));
  do {
    sum_ = DrawSum(random, kind);
  } while (!IsSuitable(sum_, kind));
  problem.question = {"Simplify this radical:", RootSumText(sum_)};
  OfferRootSums(problem, sum_, random);
}

// --- Problem page ------------------------------------------------------------

void SimplifyingRadicalExpressions::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7.5, problem.question[1], 7);
  ShowAnswersInTwoColumns(problem, {.width = 19});
}

// --- Worked explanation ------------------------------------------------------

void SimplifyingRadicalExpressions::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<SimplifyingRadicalExpressions> kRegistration(
    "Simplifying Radical Expressions");

}  // namespace
}  // namespace course
