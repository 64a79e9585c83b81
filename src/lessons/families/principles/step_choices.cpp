// The choices of a problem about one step: equations, or the names of steps.
//
// Each kind of problem has its mistakes in two lists.  A coin tells which of them comes first; the
// other one follows where two mistakes agree.  Of a single list, or of any four at random, the
// right choice would too often be the box most like the others.
#include <array>
#include <string>
#include <vector>

#include "engine/choices.h"
#include "lessons/families/principles/both_sides.h"

namespace course::principles {
namespace {

using enum Operation;

template <class Value>
struct Mistaken {
  const char* name;
  Value value;
};
template <class Value>
using TwoLists = std::array<std::vector<Mistaken<Value>>, 2>;

// An equation: the side with x, and the number on the other side.
struct Sides {
  LinearSide withX;
  int number = 0;
  bool operator==(const Sides&) const = default;
};

Operation Opposite(Operation operation) {
  constexpr Operation kOpposites[] = {Subtract, Add, Divide, Multiply};
  return kOpposites[static_cast<std::size_t>(operation)];
}

bool IsSum(Operation operation) {
  return operation == Add || operation == Subtract;
}

template <class Value>
void AddMistakes(Choices<Value>& choices, const TwoLists<Value>& lists, RandomStream& random) {
  const auto first = static_cast<std::size_t>(random.Rand(0, 1));
  for (const std::size_t list : {first, 1 - first})
    for (const auto& [name, value] : lists[list]) choices.Wrong(name, value);
}

// --- The second equation is asked for ------------------------------------------------------------

TwoLists<Sides> MistakenSums(const StepProblem& p) {
  const int n = p.step.number;
  const bool adds = p.step.operation == Add;
  const Step wrong = {Opposite(p.step.operation), n};
  const LinearSide right = p.After();
  const LinearSide reversed = Done(wrong, p.given);
  const int number = p.AfterNumber();
  const int reversedNumber = Done(wrong, {0, p.givenNumber}).number;

  const Mistaken<Sides> bothReversed = {
      adds ? "subtracts instead of adding" : "adds instead of subtracting",
      {reversed, reversedNumber}};
  TwoLists<Sides> lists;
  lists[0] = {{"changes only the side with x", {right, p.givenNumber}},
              {adds ? "adds on the side with x and subtracts on the other"
                    : "subtracts on the side with x and adds on the other",
               {right, reversedNumber}},
              bothReversed};
  if (!adds)
    lists[0].push_back(
        {"subtracts in the wrong order on the side without x", {right, n - p.givenNumber}});
  lists[1] = {{"changes only the side without x", {p.given, number}},
              {adds ? "subtracts on the side with x and adds on the other"
                    : "adds on the side with x and subtracts on the other",
               {reversed, number}},
              bothReversed};
  const int coef = adds ? p.given.coef + n : p.given.coef - n;
  if (coef != 0)
    lists[1].push_back({"changes the number in front of x", {{coef, p.given.number}, number}});
  return lists;
}

TwoLists<Sides> MistakenProducts(const StepProblem& p) {
  const LinearSide side = p.given;
  const LinearSide right = p.After();
  const int number = p.AfterNumber();
  const bool multiplies = p.step.operation == Multiply;
  const int sum = multiplies ? p.step.number : -p.step.number;

  const Mistaken<Sides> onlyWithoutX = {"changes only the side without x", {side, number}};
  const Mistaken<Sides> bothSums = {
      multiplies ? "adds instead of multiplying" : "subtracts instead of dividing",
      {{side.coef, side.number + sum}, p.givenNumber + sum}};
  TwoLists<Sides> lists;
  lists[0] = {{"changes only the side with x", {right, p.givenNumber}},
              {multiplies ? "multiplies the side with x and adds on the other"
                          : "divides the side with x and subtracts on the other",
               {right, p.givenNumber + sum}},
              bothSums,
              onlyWithoutX};
  if (side.number == 0) {
    lists[1] = {{multiplies ? "adds on the side with x and multiplies the other"
                            : "subtracts on the side with x and divides the other",
                 {{side.coef, sum}, number}},
                bothSums,
                onlyWithoutX};
  } else {
    lists[1] = {{multiplies ? "multiplies only the term with x" : "divides only the term with x",
                 {{right.coef, side.number}, number}},
                {multiplies ? "multiplies everything but the term with x"
                            : "divides everything but the term with x",
                 {{side.coef, right.number}, number}},
                bothSums,
                onlyWithoutX};
  }
  return lists;
}

void SetEquationChoices(Problem& problem, const StepProblem& p, RandomStream& random) {
  Choices<Sides> choices(problem, choice_kind::FiveShuffled, [&p](const Sides& sides) {
    return EquationText(p, sides.withX, sides.number);
  });
  choices.Right({p.After(), p.AfterNumber()});
  AddMistakes(choices, IsSum(p.step.operation) ? MistakenSums(p) : MistakenProducts(p), random);
  choices.Fill([&] { return Sides{p.After(), p.AfterNumber() + random.Rand(-9, 9)}; });
}

// --- The step is asked for -----------------------------------------------------------------------

// The step as a student says it: 6 is added, not -6 subtracted.
Step Removing(int number) {
  return number < 0 ? Step{Add, -number} : Step{Subtract, number};
}

TwoLists<Step> MistakenSumSteps(const StepProblem& p) {
  const auto [operation, n] = p.step;
  const Operation opposite = Opposite(operation);
  const int beside = p.After().number;
  const int alone = p.AfterNumber();
  const Mistaken<Step> reversed = {"does the opposite", {opposite, n}};
  // Subtracting -5 makes a side larger: what counts is what becomes of the sides.
  const auto effectOf = [](const Step& step) {
    return step.operation == Add ? step.number : -step.number;
  };
  const auto called = [&](const char* reads, const char* reverses, const Step& wrong) {
    const int effect = effectOf(wrong);
    const int right = effectOf(p.step);
    if (effect == -right) return Mistaken<Step>{"does the opposite", wrong};
    return Mistaken<Step>{(effect > 0) == (right > 0) ? reads : reverses, wrong};
  };
  constexpr const char* kBeside = "reads the number beside x in the second equation";
  constexpr const char* kAlone = "reads the number on the side without x of the second equation";
  constexpr const char* kBack = "does the opposite and reads the number beside x";
  constexpr const char* kBackAlone = "does the opposite and reads the number without x";
  return {{{called(kBeside, kBack, {operation, beside}),
            called(kAlone, kBackAlone, {operation, alone}),
            reversed,
            {"takes a sum for a product", {operation == Add ? Multiply : Divide, n}}},
           {reversed,
            called(kBeside, kBack, {opposite, beside}),
            called(kAlone, kBackAlone, {opposite, alone}),
            {"takes the step that leaves the term with x alone", Removing(p.given.number)}}}};
}

TwoLists<Step> MistakenProductSteps(const StepProblem& p) {
  const auto [operation, n] = p.step;
  const bool multiplies = operation == Multiply;
  const int coef = p.After().coef;
  const int alone = p.AfterNumber();
  const auto difference = [&](int before, int after) -> Step {
    return {multiplies ? Add : Subtract, multiplies ? after - before : before - after};
  };
  const Mistaken<Step> reversed = {"does the opposite", {Opposite(operation), n}};
  const Mistaken<Step> sum = {"takes a product for a sum", {multiplies ? Add : Subtract, n}};
  // Read with a lost minus sign, or with one too many, the number tells of the sign alone.
  const auto reads = [&](const char* name, int number) -> Mistaken<Step> {
    const char* const sign = n < 0 ? "overlooks the minus sign" : "puts in a minus sign";
    return {number == -n ? sign : name, {operation, number}};
  };
  return {{{reads("reads the number in front of x in the second equation", coef),
            reads("reads the number on the side without x of the second equation", alone), reversed,
            sum},
           {sum,
            {"compares the numbers in front of x by subtracting", difference(p.given.coef, coef)},
            {"compares the sides without x by subtracting", difference(p.givenNumber, alone)},
            reversed}}};
}

bool ChangesSomething(const Step& step) {
  return step.number != 0 && (IsSum(step.operation) || step.number != 1);
}

void SetStepChoices(Problem& problem, const StepProblem& p, RandomStream& random) {
  Choices<Step> choices(problem, choice_kind::FiveShuffled, ShortText);
  choices.Right(p.step);
  TwoLists<Step> lists = IsSum(p.step.operation) ? MistakenSumSteps(p) : MistakenProductSteps(p);
  for (auto& list : lists)
    std::erase_if(list, [](const auto& mistaken) { return !ChangesSomething(mistaken.value); });
  AddMistakes(choices, lists, random);
  choices.Fill([&] {
    Step step = p.step;
    do step.number = random.Rand(-9, 9);
    while (!ChangesSomething(step));
    return step;
  });
}

}  // namespace

void SetStepProblem(Problem& problem, const StepProblem& drawn, RandomStream& random) {
  problem.question = {"Given:", GivenText(drawn)};
  if (drawn.asksForStep) {
    problem.question.insert(problem.question.end(), {"Second equation:", AfterText(drawn),
                                                     "What was done to both sides of the given?"});
    SetStepChoices(problem, drawn, random);
  } else {
    problem.question.push_back(StatementText(drawn.step) + " gives which equation?");
    SetEquationChoices(problem, drawn, random);
  }
}

}  // namespace course::principles
