// The student can work out an expression of several operations in the agreed order: what stands in
// parentheses and brackets first, the innermost pair first of all; then multiplication and division
// from left to right; then addition and subtraction from left to right.
//
// Four kinds of expressions, five shapes each: multiplication or division beside addition or
// subtraction; operations of the same rank, where the direction decides; parentheses; parentheses
// inside brackets.  All numbers on the way are whole and above zero.
#include "lessons/families/arithmetic/arithmetic_expression.h"
#include "lessons/families/arithmetic/evaluation.h"
#include "lessons/families/arithmetic/stepping_display.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace arithmetic;

constexpr int kKinds = 4;
constexpr int kShapesOfKind = 5;
// n 1 to 9; f 2 to 8; m 2 to 5; L 11 to 49; Q a multiple, 2 to 8 times, of the m that follows;
// d and D drawn as n and L, then raised until the division behind them comes out.
constexpr std::string_view kShapes[kKinds][kShapesOfKind] = {
    {"n+f*m-n", "L-f*m+n", "f*m+Q/m", "L-Q/m-n", "f*m-n+Q/m"},
    {"L-n+n-n", "Q/m*m+n", "L-n+f*m", "L-Q/m*m+n", "f*m-Q/m+n"},
    {"m*(n+n)-n", "(D-n)/m+f", "L-m*(n-n)", "(n+n)*(n-n)", "Q/m+m*(n+n)"},
    {"m*[L-(n+n)]", "[d+m*(n-n)]/m", "L-[n+m*(n-n)]", "m*[(d+n)/m+n]", "[D-(n+n)]/m*m"},
};

// The usual mistakes, the most telling ones first.
constexpr WorkingOrder kMistakes[] = {
    {.mistake = "works from left to right", .times = 1, .divided = 1},
    {.mistake = "forgets the parentheses", .heedsParentheses = false},
    {.mistake = "forgets the brackets", .heedsBrackets = false},
    {.mistake = "adds and subtracts first", .plus = 3, .minus = 3},
    {.mistake = "adds before subtracting", .plus = 2, .times = 3, .divided = 3},
    {.mistake = "multiplies before dividing", .times = 3},
    {.mistake = "forgets parentheses and brackets",
     .heedsParentheses = false,
     .heedsBrackets = false},
    {.mistake = "works from left to right without the parentheses",
     .heedsParentheses = false,
     .heedsBrackets = false,
     .times = 1,
     .divided = 1},
    {.mistake = "works from right to left", .fromTheRight = true, .times = 1, .divided = 1},
    {.mistake = "stops before the last operation", .stopsEarly = true},
};

constexpr int kLargestNumber = 150;  // on the way to the value, which is found in the head
constexpr int kChoices = 5;
constexpr int kFewestMistakes = 2;  // one of order, and to stop early, which is always possible

constexpr double kRulesRow = 6;  // of the picture beside a problem
constexpr double kRulesColumn = 23;

// Rows for the reasons below an evaluation.
constexpr double kReasonRow = 15;
constexpr double kLastRow = 23;
constexpr double kWipeSpeed = 10;

// As it stands in a sentence, which does not break inside.
std::string InSentence(std::string_view text) {
  return WithoutBreaks(ExpressionText(ExpressionOf(text)));
}

// The same with its value: "8 - 2 = 6".
std::string Worked(std::string_view text) {
  return WithoutBreaks(ExpressionText(ExpressionOf(text)) + " = " +
                       NumStr(ValueOf(ExpressionOf(text)).value()));
}

// Wipes the reason of the step before away, and tells what that step has given, if there was one.
void StartReason(const std::string& given) {
  if (!given.empty()) WipeAndErase("U", kLastRow + 1, kLastRow + 1 - kReasonRow, kWipeSpeed);
  Locate(kReasonRow, 1);
  if (given.empty()) return;
  isPrint(given + ".");
  isPrint();
}

// --- Teaching screens --------------------------------------------------------

// An evaluation in the middle of the window, a step a page; the last page is the caller's.
void WorkOut(std::string_view text, double row) {
  Evaluation evaluation(ExpressionOf(text), row);
  while (!evaluation.Done()) {
    evaluation.PickOut();
    PageEnd();
    evaluation.ShowResult();
  }
}

// The same for the student to try first.
void Ask(std::string_view text, double row) {
  Evaluation evaluation(ExpressionOf(text), row);
  PageEnd();
  WorkOut(text, row);
}

// The same with the reasons told below; ends with the last result.
void WorkOutAloud(const ArithmeticExpression& expression, double row) {
  Evaluation evaluation(expression, row);
  std::string given;
  while (!evaluation.Done()) {
    evaluation.PickOut();
    StartReason(given);
    WordWrap(evaluation.Reason() + R"(What is \y)" + evaluation.OperationText() + R"(\z?)");
    PageEnd();
    evaluation.ShowResult();
    given = evaluation.ResultText();
  }
  StartReason(given);
}

// Two evaluations side by side, each in its own order.
void SuzyAndPaul() {
  const std::string text = ExpressionText(ExpressionOf("3+4*2"));
  Locate(6, 6);
  isPrint("Suzy:");
  Locate(6, 27);
  isPrint("Paul:");
  SteppingDisplay suzy(text, 7.2, 6);
  SteppingDisplay paul(text, 7.2, 27);
  PageEnd();
  suzy.PickOut(0, 2);
  paul.PickOut(2, 4);
  PageEnd();
  suzy.ShowResult("7");
  paul.ShowResult("8");
  suzy.PickOut(0, 2);
  paul.PickOut(0, 2);
  PageEnd();
  suzy.ShowResult("14");
  paul.ShowResult("11");
}

void WhyThereIsAnOrder() {
  NewScreen();
  WrapAt(3, "What is the value of " + InSentence("3+4*2") +
                "?  Suzy adds first.  Paul multiplies first.");
  SuzyAndPaul();
  WrapAt(14, "Both can add and multiply.  Who has found the value of the expression?");
  PageEnd();
  isPrint();
  WordWrap(R"(An expression has only one value.  So we all follow one \corder of operations\z:)");
  WordWrap(R"(\yMultiply and divide before you add and subtract.\z)");
  PageEnd();
  isPrint();
  WordWrap("Paul is right.  The value is 11.");
  PageEnd();

  NewScreen();
  WrapAt(3, "Why do we multiply first?  Think of a shop:");
  isPrint();
  WordWrap("You buy a pen for 3 dollars and 4 notebooks for 2 dollars each.  Together they cost " +
           InSentence("3+4*2") + " dollars.");
  PageEnd();
  isPrint();
  WordWrap(
      "You pay for 4 notebooks and not for 7 things.  So we need the price of the notebooks, " +
      Worked("4*2") + ", before we add:  " + Worked("3+8") + " dollars.");
  PageEnd();
  isPrint();
  WordWrap("Now you.  Which operation comes first here, and what is the value?");
  Ask("20-6/2", 18);
  PageEnd();
}

void FromLeftToRight() {
  NewScreen();
  WrapAt(3, R"(Addition and subtraction have the same \crank\z.  Neither comes before the other.)");
  PageEnd();
  isPrint();
  WordWrap(R"(When the ranks are the same, we work \cfrom left to right\z, as we read.)");
  WorkOut("12-5+4", 9.5);
  PageEnd();
  WrapAt(15, "Why?  You have 12 dollars, you give away 5, and you get 4.  Then you have 11.");
  PageEnd();
  isPrint();
  WordWrap(R"(\rDo not add 5 + 4 first.\z  That would take 9 away from 12, but only 5 are taken.)");
  PageEnd();

  NewScreen();
  WrapAt(3, "Multiplication and division have the same rank too.");
  WorkOut("24/4*2", 6);
  PageEnd();
  WrapAt(11.5, R"(\rDo not multiply 4 )" + tutor::Times +
                   R"( 2 first,\z although the word multiplication comes first in the rule.)");
  PageEnd();
  WrapAt(15, "Now you.  Which operation comes first, and which one second?");
  Ask("30-12/3*2", 17.4);
  PageEnd();
}

void ParenthesesFirst() {
  NewScreen();
  WrapAt(3, "Can we write an expression in which Suzy is right and the addition comes first?");
  PageEnd();
  isPrint();
  WordWrap(R"(Yes.  \cParentheses\z ( ) say: work out what is inside before anything else.)");
  WorkOut("(3+4)*2", 9);
  PageEnd();
  WrapAt(14.5, "Inside parentheses the order is the same as ever:  multiply and divide first.");
  WorkOut("20-(2+3*4)", 17.2);
  PageEnd();

  NewScreen();
  WrapAt(3, R"(Parentheses can stand inside other ones.  The outer pair is then written as )"
            R"(\cbrackets\z [ ].)");
  PageEnd();
  isPrint();
  WordWrap(R"(We begin with the \yinnermost\z pair and work our way out.)");
  WorkOut("2*[9-(1+4)]", 10);
  PageEnd();
  WrapAt(18, "Now you.  What is the value of " + InSentence("(8-2)*[10-(3+4)]") + "?");
  PageEnd();
  isPrint();
  WordWrap(Worked("8-2") + ", and " + Worked("3+4") + ".  Then " + Worked("10-7") +
           ", and at last " + Worked("6*3") + ".");
  PageEnd();
}

void AllRulesTogether() {
  NewScreen();
  WrapAt(3, R"(The \corder of operations\z:)");
  Locate(5, 1);
  WordWrapIndent(R"(1. Work inside parentheses and brackets, the innermost pair first.)", 4);
  PageEnd();
  Locate(8, 1);
  WordWrapIndent("2. Multiply and divide, from left to right.", 4);
  PageEnd();
  Locate(11, 1);
  WordWrapIndent("3. Add and subtract, from left to right.", 4);
  PageEnd();

  NewScreen();
  WrapAt(3, "In practice the button ~Show Rules and Reminders~ puts this card beside the problem:");
  picGalleryImagePrepare(1, gallery::OrderOfOperations, 6.5, 12);
  picGalleryImageShow(1);
  PageEnd();
  WrapAt(17.5, "You meet exponents, its second line, in the next lesson.");
  PageEnd();
  isPrint();
  WordWrap("Now we use all the rules.  Try to be faster than the page.");
  PageEnd();

  NewScreen();
  WorkOutAloud(ExpressionOf("30-[4+6*(5-2)]/2"), 4);
  WordWrap("The value of the expression is 19.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class OrderOfOperations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{WhyThereIsAnOrder}, {FromLeftToRight}, {ParenthesesFirst}, {AllRulesTogether}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;
  bool OffersRules() const override { return true; }

  void DrawNumbers(std::string_view shape, RandomStream& random);
  bool IsWorthSolving() const;
  int MakeMistakes();
  void DrawFiller(int slot, RandomStream& random);
  int SlotOf(const std::string& text, int slots) const;

  ArithmeticExpression expression_;  // two to four operations
};

// --- Generator ---------------------------------------------------------------

// The shape stays, so that all are met equally often; its numbers are drawn until they are worth
// it, which is a quarter of the draws at "L-[n+m*(n-n)]" and more at all others.
void OrderOfOperations::DrawProblem(RandomStream& random) {
  const int kind = random.Rand(1, kKinds);
  const int shape = random.Rand(1, kShapesOfKind);
  int slot = 0;
  do {
    DrawNumbers(kShapes[kind - 1][shape - 1], random);
    if (!IsWorthSolving()) continue;
    problem.Right(1, NumStr(ValueOf(expression_).value()));
    slot = MakeMistakes();
  } while (slot < 2 + kFewestMistakes);  // with fewer it does not test the order
  problem.kind = choice_kind::FiveShuffled;
  for (; slot <= kChoices; ++slot) DrawFiller(slot, random);
  ReplaceRepeatedTexts(problem, [&](int repeated) { DrawFiller(repeated, random); });
  problem.question = {"What is the value of this expression?", ExpressionText(expression_)};
}

// A number at most about 50 away from the value.
void OrderOfOperations::DrawFiller(int slot, RandomStream& random) {
  int filler = 0;
  do {
    filler = ValueOf(expression_).value() - random.Rand(0, 101) + 50;
  } while (filler < 1);  // no number that the student knows
  problem.Wrong(slot, "filler", NumStr(filler));
}

void OrderOfOperations::DrawNumbers(std::string_view shape, RandomStream& random) {
  expression_.clear();
  std::optional<std::size_t> multiple;
  std::optional<std::size_t> raised;
  for (const char c : shape) {
    const std::size_t place = expression_.size();
    expression_.push_back({'n', 0});
    int& value = expression_.back().value;
    switch (c) {
      case 'd':
        raised = place;
        [[fallthrough]];
      case 'n':
        value = random.Rand(1, 9);
        break;
      case 'D':
        raised = place;
        [[fallthrough]];
      case 'L':
        value = 10 * random.Rand(1, 4);
        value += random.Rand(1, 9);
        break;
      case 'Q':
        multiple = place;
        [[fallthrough]];
      case 'f':
        value = random.Rand(2, 8);
        break;
      case 'm':
        value = random.Rand(2, 5);
        if (multiple) expression_[*multiple].value *= value;
        multiple.reset();
        break;
      default:
        expression_.back().kind = c;
    }
  }
  while (raised && !ValueOf(expression_)) ++expression_[*raised].value;
}

bool OrderOfOperations::IsWorthSolving() const {
  ArithmeticExpression left = expression_;
  while (left.size() > 1) {
    const ExpressionStep step = NextStep(left);
    const int a = left[step.operation - 1].value;
    const int b = left[step.operation + 1].value;
    if (*step.value < 1) return false;  // negative numbers come later, and a 0 makes the rest easy
    if (*step.value > kLargestNumber) return false;
    if (left[step.operation].kind == '*' && (a == 1 || b == 1)) return false;  // no work
    TakeStep(left, step);
  }
  return true;
}

// Fills the choices from 2 on; returns the first slot that is left.
int OrderOfOperations::MakeMistakes() {
  int slot = 2;
  for (const WorkingOrder& order : kMistakes) {
    const std::optional<int> value = ValueOf(expression_, order);
    if (!value || *value < 1) continue;  // the student would see that something is wrong
    if (SlotOf(NumStr(*value), slot - 1) > 0) continue;
    problem.Wrong(slot, std::string(order.mistake), NumStr(*value));
    if (++slot > kChoices) break;
  }
  return slot;
}

// The slot among the first so many that has this text; 0 for none.
int OrderOfOperations::SlotOf(const std::string& text, int slots) const {
  for (int slot = 1; slot <= slots; ++slot)
    if (problem.choices.at(static_cast<std::size_t>(slot)).text == text) return slot;
  return 0;
}

// --- Problem page ------------------------------------------------------------

void OrderOfOperations::ShowProblem() {
  Locate(4, 1);
  isPrint(problem.question[0]);
  const std::string& text = problem.question[1];
  ShowRulesPicture(gallery::OrderOfOperations, kRulesRow, kRulesColumn);
  const bool besideRules = frmPR->picGalleryImage[1].Visible();
  const double columns = besideRules ? kRulesColumn - 1 : 40;
  Locate(8, std::floor((columns - static_cast<double>(text.size())) / 2) + 1);
  isPrint(text);
  picAnswerSetParameters(4, 16.5, 1, 15, 29, 12, 50, 27);
}

// --- Worked explanation ------------------------------------------------------

void OrderOfOperations::ExplainProblem() {
  ProblemBanner();
  Locate(4, 1);
  isPrint(problem.question[0]);
  WorkOutAloud(expression_, 5.5);
  WordWrap(R"(\rA usual mistake:\z  someone who )" + problem.choices[2].mistake + " gets " +
           problem.choices[2].text + ".");
  PageEnd();
  isPrint();
  WordWrap(R"(The value of the expression is \y)" + problem.choices[1].text + R"(\z.)");
}

const LessonRegistration<OrderOfOperations> kRegistration("Order of Operations");

}  // namespace
}  // namespace course
