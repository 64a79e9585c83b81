// The student can add two decimal numbers: write point under point, fill in zeros, add column by
// column from the right, and carry past the point.
//
// Numbers of up to 2 digits before the point and up to 2 behind it, not both whole.  Numbers with
// the same number of decimal places carry past the point; in all others a place is missing.
#include "lessons/families/written/column_sum.h"
#include "lessons/families/written/decimal_sum_mistakes.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace written;

// --- Teaching screens --------------------------------------------------------

void PlacesBehindThePoint() {
  NewScreen();
  SayAt(3, "A decimal number has places behind its point.");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class AddingDecimalNumbers final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override { return {{PlacesBehindThePoint}}; }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void DrawAddends(RandomStream& random);
  bool IsSuitable() const;

  std::string first_;  // "2.5"
  std::string second_;
};

// --- Generator ---------------------------------------------------------------

void AddingDecimalNumbers::DrawAddends(RandomStream& random) {
  const bool sameLength = random.Rand(0, 1) == 1;
  int decimals = random.Rand(0, 2);
  for (std::string* const addend : {&first_, &second_}) {
    addend->clear();
    for (int whole = random.Rand(0, 2); whole > 0; --whole) {
      const int digit = random.Rand(1, 9);
      *addend += NumStr(digit);
    }
    if (addend->empty()) *addend = "0";
    if (decimals > 0) *addend += ".";
    for (int i = 0; i < decimals; ++i) {
      const int digit = random.Rand(1, 9);
      *addend += NumStr(digit);
    }
    if (!sameLength) decimals = random.Rand(0, 2);
  }
}

bool AddingDecimalNumbers::IsSuitable() const {
  if (first_ == "0" || second_ == "0") return false;  // nothing to add
  if (DecimalsOf(first_) != DecimalsOf(second_)) return true;
  const int lowest = LowestPlace(first_);
  if (DigitAt(first_, lowest) + DigitAt(second_, lowest) == 10) return false;  // a 0 at the end
  return CarriesPastThePoint(first_, second_);  // else nothing is to learn; so do whole numbers
}

// Half of the draws are accepted.
void AddingDecimalNumbers::DrawProblem(RandomStream& random) {
  do {
    DrawAddends(random);
  } while (!IsSuitable());
  problem.question = {"Add these numbers:", first_ + " + " + second_};
  FillDecimalSumChoices(problem, first_, second_, random);
}

// --- Problem page ------------------------------------------------------------

void AddingDecimalNumbers::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, problem.question[1], 5);
  ShowAnswersInTwoColumns(problem, {.width = 18});
}

// --- Worked explanation ------------------------------------------------------

void AddingDecimalNumbers::ExplainProblem() {
  ProblemBanner();
  ShowAt(5, problem.question[1]);
  Conclude(problem);
}

const LessonRegistration<AddingDecimalNumbers> kRegistration("Adding Decimal Numbers");

}  // namespace
}  // namespace course
