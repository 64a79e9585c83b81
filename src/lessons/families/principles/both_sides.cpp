#include "lessons/families/principles/both_sides.h"

#include <array>
#include <cstdlib>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::principles {
namespace {

using enum Operation;

// How an operation is said around its number: "Adding 3", " to both sides".
struct OperationWords {
  const char* principle;
  const char* doing;
  const char* sides;
  const char* request;
  const char* bothSides;
};
constexpr OperationWords kWords[] = {
    {"Addition Principle of Equality", "adding ", " to both sides of the given", "add ",
     " to both sides"},
    {"Subtraction Principle of Equality", "subtracting ", " from both sides of the given",
     "subtract ", " from both sides"},
    {"Multiplication Principle of Equality", "multiplying by ",
     "Multiplying both sides of the given by ", "multiply both sides by ", ""},
    {"Division Principle of Equality", "dividing by ", "Dividing both sides of the given by ",
     "divide both sides by ", ""}};

const OperationWords& WordsOf(Operation operation) {
  return kWords[static_cast<std::size_t>(operation)];
}

bool IsSum(Operation operation) {
  return operation == Add || operation == Subtract;
}

// --- Drawing -------------------------------------------------------------------------------------

// Five numbers and five operations draw one problem: the first number is the solution, the next two
// steps make the given equation from it, the fourth is the step of the problem.  The fifth is
// spare.
constexpr std::size_t kSteps = 5;
constexpr std::size_t kTaken = 3;  // index of the step of the problem
constexpr int kMultiply = 3;       // the code; a flag of the variant makes it a division

struct DrawnSteps {
  std::array<int, kSteps> numbers{};
  std::array<int, kSteps> codes{};
};

// The last draw of a problem.
struct Variant {
  bool divides;
  bool asksForStep;
  bool xOnTheRight;
};
constexpr Variant kVariants[] = {{false, false, false}, {false, false, true}, {false, true, false},
                                 {false, true, true},   {true, false, false}, {true, false, true},
                                 {true, true, false},   {true, true, true}};

Step StepAt(const DrawnSteps& drawn, std::size_t i) {
  return {static_cast<Operation>(drawn.codes[i] - 1), drawn.numbers[i]};
}

LinearSide GivenSide(const DrawnSteps& drawn) {
  return Done(StepAt(drawn, 2), Done(StepAt(drawn, 1), {1, 0}));
}

int ProductOfFactors(const DrawnSteps& drawn) {
  int product = 1;
  for (std::size_t i = 0; i < kSteps; ++i)
    if (drawn.codes[i] == kMultiply) product *= drawn.numbers[i];
  return product;
}

bool Fits(const DrawnSteps& drawn) {
  const int taken = drawn.numbers[kTaken];
  const bool multiplies = drawn.codes[kTaken] == kMultiply;
  const int product = ProductOfFactors(drawn);
  return taken != 0 &&                              // nothing would change
         drawn.numbers[kTaken - 1] + taken != 0 &&  // the step would take back the one before
         product != 0 && std::abs(product) <= 4 &&  // done in the head
         !(multiplies && taken == 1) &&             // nothing would change
         (multiplies || !(GivenSide(drawn) == LinearSide{1, 0}));  // x = 3 says all already
}

// A third of the draws is accepted: of a multiplication only small factors fit.
DrawnSteps DrawSteps(RandomStream& random) {
  DrawnSteps drawn;
  do {
    for (int& number : drawn.numbers) number = random.Rand(-6, 6);
    for (int& code : drawn.codes) code = random.Rand(1, 3);
  } while (!Fits(drawn));
  return drawn;
}

}  // namespace

bool operator==(const Step& a, const Step& b) {
  if (IsSum(a.operation) != IsSum(b.operation)) return false;
  if (IsSum(a.operation))
    return (a.operation == Add ? a.number : -a.number) ==
           (b.operation == Add ? b.number : -b.number);
  return a.number == b.number && (a.operation == b.operation || std::abs(a.number) == 1);
}

std::string PrincipleOf(Operation operation) {
  return WordsOf(operation).principle;
}

std::string ShortText(const Step& step) {
  return WordsOf(step.operation).doing + NumStr(step.number);
}

std::string StatementText(const Step& step) {
  const OperationWords& words = WordsOf(step.operation);
  if (!IsSum(step.operation)) return words.sides + NumStr(step.number);
  std::string text = ShortText(step) + words.sides;
  text[0] = UpperCase(text.substr(0, 1))[0];
  return text;
}

std::string RequestText(const Step& step) {
  const OperationWords& words = WordsOf(step.operation);
  return words.request + NumStr(step.number) + words.bothSides;
}

LinearSide Done(const Step& step, const LinearSide& side) {
  const int n = step.number;
  switch (step.operation) {
    case Add:
      return {side.coef, side.number + n};
    case Subtract:
      return {side.coef, side.number - n};
    case Multiply:
      return {side.coef * n, side.number * n};
    case Divide:
      break;
  }
  return {side.coef / n, side.number / n};
}

std::string EquationText(const StepProblem& problem, const LinearSide& side, int number) {
  const std::string withX = equations::SideText(side, "x");
  return problem.xOnTheRight ? NumStr(number) + " = " + withX : withX + " = " + NumStr(number);
}

std::string GivenText(const StepProblem& problem) {
  return EquationText(problem, problem.given, problem.givenNumber);
}

std::string AfterText(const StepProblem& problem) {
  return EquationText(problem, problem.After(), problem.AfterNumber());
}

StepProblem DrawStepProblem(RandomStream& random) {
  const DrawnSteps drawn = DrawSteps(random);
  const Variant& variant = kVariants[random.Index(std::size(kVariants)) - 1];
  StepProblem problem;
  problem.solution = drawn.numbers[0];
  problem.given = GivenSide(drawn);
  problem.step = StepAt(drawn, kTaken);
  problem.asksForStep = variant.asksForStep;
  problem.xOnTheRight = variant.xOnTheRight;
  if (problem.step.operation == Multiply && variant.divides) {
    // The way back: what the multiplication makes is given.
    problem.given = problem.After();
    problem.step.operation = Divide;
  }
  problem.givenNumber = problem.given.coef * problem.solution + problem.given.number;
  return problem;
}

}  // namespace course::principles
