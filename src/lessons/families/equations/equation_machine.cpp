#include "lessons/families/equations/equation_machine.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "engine/choices.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::equations {
namespace {

constexpr int kLargestCoefficient = 9;
constexpr int kLargestNumber = 15;
constexpr int kLargestFiller = 38;  // no answer is larger
constexpr double kFillerShare = 0.5;

const std::string kMovesNumber =
    "moves the number on the right to the left without changing its sign";
const std::string kMovesSide = "moves the right side to the left without changing its signs";
const std::string kWrongOrder = "subtracts the numbers in the wrong order";
const std::string kWrongSign = "gives the quotient the wrong sign";  // when nothing is subtracted
const std::string kForgetsToReverse = "forgets to reverse the inequality symbol";
const std::string kReversesForNothing =
    "reverses the inequality symbol without dividing by a negative number";

LinearSide operator+(const LinearSide& a, const LinearSide& b) {
  return {a.coef + b.coef, a.number + b.number};
}

Addition Add(const LinearStatement& before, const LinearSide& term) {
  LinearStatement after = before;
  after.left = before.left + term;
  after.right = before.right + term;
  return {term, before, after};
}

// The choices of one statement.  In an inequality they differ in the relation too.
class LinearChoices {
 public:
  LinearChoices(Problem& problem, const LinearStatement& statement, RandomStream& random)
      : problem_(problem),
        statement_(statement),
        solution_(SolutionOf(statement)),
        random_(random) {}

  void Set() {
    SetRecipes();
    ReplaceRepeats();
    HideRightAtTimes(problem_, random_);
  }

 private:
  // a x + b = d x + c, and each mistake as the quotient to which it leads.
  void SetRecipes() {
    const auto [a, b] = statement_.left;
    const auto [d, c] = statement_.right;
    problem_.kind = choice_kind::FourShuffledAndNone;
    problem_.Right(1, Text(1, solution_.value));
    if (statement_.IsEquation())
      Wrong(2, b == 0 ? kWrongSign : kMovesNumber, Reduced(-(b + c), a - d));
    else
      Wrong(2, a < d ? kForgetsToReverse : kReversesForNothing, solution_.value);
    Wrong(3, b == 0 ? kWrongSign : kWrongOrder, Reduced(b - c, a - d));
    if (random_.Rnd() < kFillerShare) Fill(3);
    Wrong(4, statement_.IsEquation() ? kMovesSide : MovesSideToReversed(a, d),
          Reduced(-(b + c), a + d));
    Fill(5);
  }

  // Slot 4 has the relation of the right answer reversed.  Who ends with (a + d)x and divides as he
  // should comes to it when a + d and a - d differ in sign; otherwise he errs once more.
  static std::string MovesSideToReversed(int a, int d) {
    if ((a + d < 0) != (a - d < 0)) return kMovesSide;
    return kMovesSide + (a + d < 0 ? " and keeps the symbol" : " and reverses the symbol");
  }

  // Equal texts are equal values here.  All five slots take part, since the fifth can be shown yet.
  void ReplaceRepeats() {
    ReplaceRepeated(
        5, [this](int i, int j) { return problem_.choices[i].text == problem_.choices[j].text; },
        [this](int slot) { Fill(slot); });
  }

  void Wrong(int slot, const std::string& mistake, const Fraction& value) {
    problem_.Wrong(slot, mistake, Text(slot, value));
  }
  void Fill(int slot) { Wrong(slot, kFiller, {random_.Rand(-kLargestFiller, kLargestFiller), 1}); }

  // The even slots of an inequality carry the reversed relation, so that reversing it or not is
  // part of the question.
  std::string Text(int slot, const Fraction& value) const {
    if (statement_.IsEquation()) return MixedText(value);
    const std::string relation =
        slot % 2 == 0 ? ReversedRelation(solution_.relation) : solution_.relation;
    return statement_.letter + " " + relation + " " + MixedText(value);
  }

  Problem& problem_;
  const LinearStatement& statement_;
  Solution solution_;
  RandomStream& random_;
};

}  // namespace

std::string TermText(int coef, const std::string& letter) {
  return coef == 0 ? "" : CoefText(coef) + letter;
}

std::string SideText(const LinearSide& side, const std::string& letter) {
  if (side.coef == 0) return NumStr(side.number);
  return WithNumber(TermText(side.coef, letter), side.number);
}

std::string WithNumber(const std::string& term, int number) {
  return number == 0 ? term : term + tutor::Gap + SignedNumberText(number);
}

std::string StatementText(const LinearStatement& statement, const std::string& blanks) {
  return SideText(statement.left, statement.letter) + blanks + statement.relation + blanks +
         SideText(statement.right, statement.letter);
}

std::string ReversedRelation(const std::string& relation) {
  if (relation == "<") return ">";
  if (relation == ">") return "<";
  if (relation == tutor::LessOrEqual) return tutor::GreaterOrEqual;
  if (relation == tutor::GreaterOrEqual) return tutor::LessOrEqual;
  return relation;
}

int DrawCoefficient(RandomStream& random) {
  return random.Rand(-kLargestCoefficient, kLargestCoefficient);
}

int DrawNumber(RandomStream& random) {
  return random.Rand(-kLargestNumber, kLargestNumber);
}

bool SizesDiffer(const LinearStatement& statement) {
  return std::abs(statement.left.coef) != std::abs(statement.right.coef) &&
         std::abs(statement.left.number) != std::abs(statement.right.number);
}

bool HasWholeSolution(const LinearStatement& statement) {
  const int coef = statement.left.coef - statement.right.coef;
  return coef != 0 && (statement.right.number - statement.left.number) % coef == 0;
}

Solution SolutionOf(const LinearStatement& statement) {
  const int coef = statement.left.coef - statement.right.coef;
  if (coef == 0) platform::Stop("SolutionOf: equal coefficients in " + StatementText(statement));
  return {Reduced(statement.right.number - statement.left.number, coef),
          coef < 0 ? ReversedRelation(statement.relation) : statement.relation};
}

std::string SolutionText(const LinearStatement& statement) {
  const Solution solution = SolutionOf(statement);
  return statement.letter + " " + solution.relation + " " + MixedText(solution.value);
}

std::vector<Addition> AdditionsOf(const LinearStatement& statement) {
  std::vector<Addition> additions;
  LinearStatement now = statement;
  for (const LinearSide& term :
       {LinearSide{-statement.right.coef, 0}, LinearSide{0, -statement.left.number}}) {
    if (term == LinearSide{}) continue;
    additions.push_back(Add(now, term));
    now = additions.back().after;
  }
  return additions;
}

LinearStatement IsolatedOf(const LinearStatement& statement) {
  const std::vector<Addition> additions = AdditionsOf(statement);
  return additions.empty() ? statement : additions.back().after;
}

void SetLinearProblem(Problem& problem, const LinearStatement& statement, RandomStream& random) {
  const std::string kind = statement.IsEquation() ? "equation" : "inequality";
  problem.question = {"Solve the following " + kind + " for " + statement.letter + ".",
                      StatementText(statement, "  ")};
  LinearChoices(problem, statement, random).Set();
}

}  // namespace course::equations
