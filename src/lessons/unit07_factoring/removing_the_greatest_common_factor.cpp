// The student can take the greatest common factor out of a sum such as 18x^5 - 12x^2: finds it for
// the numbers and for the letters, divides both terms by it, and checks that nothing common is
// left.
//
// Wrong choices that are equal to the expression, with a common factor left inside, are wrong
// because the greatest one is asked for.
#include "lessons/families/factoring/common_monomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;

// --- Teaching screens --------------------------------------------------------

void Screen1() {
  NewScreen();
  Say("Screen 1 is not written yet.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class RemovingTheGreatestCommonFactor final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{Screen1}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsWorthSolving() const;
  void OfferChoices(RandomStream& random);

  CommonMonomial sum_;
};

// --- Generator ---------------------------------------------------------------

constexpr int kHighestPower = 6;
constexpr int kLargestNumber = 60;

// A number with small factors only, so that two of them often have some in common.
int DrawNumber(RandomStream& random) {
  const int first = random.Index(5);
  const int second = random.Index(4) + 1;
  const int third = random.Index(4) + 1;
  return first * second * third;
}

bool RemovingTheGreatestCommonFactor::IsWorthSolving() const {
  const bool small = sum_.numbers[0] <= kLargestNumber && sum_.numbers[1] <= kLargestNumber;
  return small && sum_.CommonNumber() > 1;  // numbers and letters have something in common
}

void RemovingTheGreatestCommonFactor::DrawProblem(RandomStream& random) {
  sum_.letter = random.OneOf(kVariableLetters)[0];
  sum_.powers[1] = random.Index(kHighestPower - 1);
  sum_.powers[0] = sum_.powers[1] + random.Index(kHighestPower - sum_.powers[1]);
  sum_.minus = random.Rand(0, 1) == 1;
  do {
    sum_.numbers[0] = DrawNumber(random);
    sum_.numbers[1] = DrawNumber(random);
  } while (!IsWorthSolving());
  problem.question = {"Factor the expression below:", sum_.Text(),
                      "Take out the greatest common factor."};
  OfferChoices(random);
}

// Two wrong ways, one of them with both signs, as the right choice stands there with both.
void RemovingTheGreatestCommonFactor::OfferChoices(RandomStream& random) {
  const std::vector<FactoringMistake> mistakes = sum_.Mistakes();
  const std::vector<int> order = random.RandSeq(static_cast<int>(mistakes.size()), 2);
  const bool reversed = random.Rand(0, 1) == 1;

  Choices<std::string> choices(problem, choice_kind::FiveShuffled,
                               [](const std::string& text) { return text; });
  const auto wrong = [&](const FactoringMistake& mistake, bool reverse) {
    choices.Wrong(mistake.name + std::string(reverse ? " and reverses the sign" : ""),
                  TakenOutText(reverse ? Reversed(mistake.taken) : mistake.taken));
  };
  const TakenOut right = sum_.Right();
  choices.Right(TakenOutText(right));
  choices.Wrong("reverses the sign", TakenOutText(Reversed(right)));
  const auto drawn = [&](std::size_t i) {
    return mistakes[static_cast<std::size_t>(order[i] - 1)];
  };
  wrong(drawn(0), false);
  wrong(drawn(0), true);
  if (sum_.LeavesOne())
    choices.Wrong("leaves out the 1", TakenOutText({right.factor, {right.inside.front()}}));
  else
    wrong(drawn(1), reversed);
}

// --- Problem page ------------------------------------------------------------

void RemovingTheGreatestCommonFactor::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  SayAt(9, problem.question[2]);
  ShowAnswersInTwoColumns(problem, {.row = 12, .width = 20});
}

// --- Worked explanation ------------------------------------------------------

void RemovingTheGreatestCommonFactor::ExplainProblem() {
  ProblemBanner();
  SayAt(5, "This explanation is not written yet.");
  PageEnd();
  Conclude(problem);
}

const LessonRegistration<RemovingTheGreatestCommonFactor> kRegistration(
    "Removing the Greatest Common Factor");

}  // namespace
}  // namespace course
