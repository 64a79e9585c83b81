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
    {"L-n+n-n", "n+Q/m*m", "L-n+f*m", "L-Q/m*m+n", "f*m-Q/m+n"},
    {"m*(n+n)-n", "f+(D-n)/m", "L-m*(n-n)", "(n+n)*(n-n)", "Q/m+m*(n+n)"},
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
    {.mistake = "works from right to left", .fromTheRight = true},
    {.mistake = "adds instead of multiplying", .addsForTimes = true},
    {.mistake = "works out only a part", .stopsEarly = true},
};

struct WrongValue {
  std::string_view mistake;
  int value;
};

constexpr int kLargestNumber = 150;  // on the way to the value, which is found in the head
constexpr int kWrongChoices = 4;
constexpr int kFewestMistakes = 2;  // one of order, and to stop early, which is always possible

constexpr double kRulesRow = 6;  // of the picture beside a problem
constexpr double kRulesColumn = 23;
constexpr double kReasonRow = 16;  // below an evaluation

// As it stands in a sentence.
std::string InSentence(std::string_view text) {
  return ExpressionText(ExpressionOf(text));
}

// The same with its value: "8 - 2 = 6".
std::string Worked(std::string_view text) {
  return InSentence(text) + " = " + NumStr(ValueOf(ExpressionOf(text)).value());
}

// --- Teaching screens --------------------------------------------------------

// An evaluation in the middle of the window, all steps at once.
void WorkOut(std::string_view text, double row) {
  Evaluation evaluation(ExpressionOf(text), row);
  while (!evaluation.Done()) {
    evaluation.PickOut();
    evaluation.ShowResult();
  }
}

// The same, a step a page, with the reasons told below.
void WorkOutAloud(const ArithmeticExpression& expression, double row) {
  Evaluation evaluation(expression, row);
  while (!evaluation.Done()) {
    evaluation.PickOut();
    ClearBelow(kReasonRow);
    SayAt(kReasonRow,
          evaluation.Reason() + R"(What is \y)" + evaluation.OperationText() + R"(\z?)");
    PageEnd();
    evaluation.ShowResult();
  }
  ClearBelow(kReasonRow);
}

// Two evaluations side by side, each in its own order.
void SuzyAndPaul() {
  NewScreen();
  SayAt(3, Text("What is {}?  Suzy adds first.  Paul multiplies first.", InSentence("3+4*2")));
  SayAt(6, "Suzy:", {.col = 6});
  SayAt(6, "Paul:", {.col = 27});
  SteppingDisplay suzy(InSentence("3+4*2"), 7.2, 6);
  SteppingDisplay paul(InSentence("3+4*2"), 7.2, 27);
  suzy.PickOut(0, 2);
  paul.PickOut(2, 4);
  PageEnd();
  suzy.ShowResult("7");
  paul.ShowResult("8");
  suzy.PickOut(0, 2);
  paul.PickOut(0, 2);
  suzy.ShowResult("14");
  paul.ShowResult("11");
  SayAt(13, "Both can add and multiply.  Who has found the value of the expression?");
  PageEnd();
  SayAt(16, R"(Paul is right.  We all follow the same \corder of operations\z:)");
  PaperBox({"Multiply and divide", "before you add and subtract."});
  PageEnd();
}

// The bill of a shop: what each row costs.
void ShowBill() {
  constexpr double kSize = 14;  // points
  CellTable({.widthPixels = 380,
             .heightPixels = 130,
             .cells = {{45, 7, 50, 24}, {45, 38, 50, 24}, {45, 69, 50, 24}},
             .labels = {{5, 10, 38, 20, "1 pen", kSize},
                        {5, 41, 38, 20, "4 notebooks", kSize},
                        {5, 72, 38, 20, "together", kSize}},
             .marks = {}});
  picPrintCellPrint(1, "3", platform::colour::Black, kSize);
  picPrintCellPrint(2, InSentence("4*2"), platform::colour::Black, kSize);
}

void WhyMultiplicationComesFirst() {
  NewScreen();
  SayAt(3,
        "Why do we multiply first?  You buy a pen for 3 dollars and 4 notebooks for 2 dollars "
        "each.  How much is that?");
  ShowBill();
  PageEnd();
  picPrintCellCls(2);
  picPrintCellPrint(2, Worked("4*2"), platform::colour::Black, 14);
  picPrintCellPrint(3, Worked("3+8"), platform::colour::Blue, 14);
  Say("You pay for 4 notebooks, not for 7 things.  So we need their price before we add.");
  PageEnd();
  Say(R"(\yTry it:\z  Which operation comes first here, and what is the value?)");
  Evaluation evaluation(ExpressionOf("20-6/2"), 19.4);
  PageEnd();
  WorkOut("20-6/2", 19.4);
  PageEnd();
}

void FromLeftToRight() {
  NewScreen();
  SayAt(3, R"(Addition and subtraction have the same \crank\z: neither comes before the other.  )"
           "We work from left to right, as we read.");
  Evaluation evaluation(ExpressionOf("12-5+4"), 7.5);
  evaluation.PickOut();
  PageEnd();
  WorkOut("12-5+4", 7.5);
  SayAt(13, "You have 12 dollars, give away 5, and get 4.  That makes 11 dollars.");
  PageEnd();
  SayAt(16, R"(\yWatch out:\z  Do not add 5 and 4 first.)");
  PaperBox({InSentence("12-5+4") + " = " + InSentence("7+4") + R"(,  \rnot )" + InSentence("12-9") +
            R"(\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, "Multiplication and division share a rank, too.");
  SayAt(6, R"(\yTry it:\z  What is the value here?)");
  Evaluation question(ExpressionOf("24/4*2"), 9);
  PageEnd();
  WorkOut("24/4*2", 9);
  SayAt(14.5, Text(R"(\yWatch out:\z  Do not multiply {} first.)", InSentence("4*2")));
  PaperBox({InSentence("24/4*2") + " = " + InSentence("6*2") + R"(,  \rnot )" + InSentence("24/8") +
            R"(\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the value here?  Which operation comes first?)");
  Evaluation twoLess(ExpressionOf("20-8-5"), 6.5);
  PageEnd();
  WorkOut("20-8-5", 6.5);
  SayAt(12, "We take 8 away, and then 5 more.");
  PaperBox({InSentence("20-8-5") + " = " + InSentence("12-5") + R"(,  \rnot )" +
            InSentence("20-3") + R"(\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which operation comes first, and which one second?)");
  Evaluation last(ExpressionOf("30-12/3*2"), 6.5);
  PageEnd();
  WorkOut("30-12/3*2", 6.5);
  SayAt(14, Text("First {}, then {}, then {}.", InSentence("12/3"), InSentence("4*2"),
                 InSentence("30-8")));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Here a product and a quotient wait.  What is the value?)");
  Evaluation both(ExpressionOf("5*4-12/3"), 6.5);
  PageEnd();
  WorkOut("5*4-12/3", 6.5);
  SayAt(14, Text("First {} and {}, then {}.", InSentence("5*4"), InSentence("12/3"),
                 InSentence("20-4")));
  PageEnd();
}

void ParenthesesFirst() {
  NewScreen();
  SayAt(3, "Suzy wants 3 and 4 to be added first.  How can she write that?");
  PageEnd();
  Say(R"(She writes \cparentheses\z ( ).  What is inside is worked out before anything else.)");
  Evaluation evaluation(ExpressionOf("(3+4)*2"), 10);
  evaluation.PickOut();
  PageEnd();
  WorkOut("(3+4)*2", 10);
  PageEnd();

  NewScreen();
  SayAt(3, "Inside parentheses we multiply and divide first, too.");
  SayAt(6, R"(\yTry it:\z  Which operation comes first?)");
  Evaluation question(ExpressionOf("20-(2+3*4)"), 8);
  PageEnd();
  WorkOut("20-(2+3*4)", 8);
  SayAt(15, Text("First {}, since it stands inside.", InSentence("3*4")));
  PageEnd();
}

void BracketsOutside() {
  NewScreen();
  SayAt(3, Text("Where parentheses stand inside others, we write the outer pair as "
                R"(\cbrackets\z {}.  We begin with the innermost pair.)",
                "[ ]"));
  Evaluation evaluation(ExpressionOf("2*[9-(1+4)]"), 7.5);
  evaluation.PickOut();
  PageEnd();
  WorkOut("2*[9-(1+4)]", 7.5);
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is the value here?)");
  Evaluation question(ExpressionOf("(8-2)*[10-(3+4)]"), 6.5);
  for (int step = 1; !question.Done(); ++step) {
    if (step % 2 == 1) PageEnd();
    question.PickOut();
    question.ShowResult();
  }
  PageEnd();
}

void Exponents() {
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3, R"(An \cexponent\z tells how many times the number before it is a factor:)");
  Show("3^2^ = 3" + times + "3 = 9");
  SayAt(8, Text(R"(\yTry it:\z  What is the value of {}?)", "2" + times + "3^2^"));
  PageEnd();
  SayAt(10, "The exponent belongs to the 3 alone.");
  SteppingDisplay display("2" + times + "3^2^", 13, 16);
  display.PickOut(2, 2);
  display.ShowResult("9");
  display.PickOut(0, 2);
  display.ShowResult("18");
  PageEnd();
  PaperBox({"2" + times + "3^2^ = 2" + times + R"(9,  \rnot 6^2^\z)"}, 18.5);
  PageEnd();
}

void AllRulesTogether() {
  NewScreen();
  SayAt(3,
        "These four rules are the order of operations.  The button ~Show Rules and Reminders~ "
        "shows them in practice.");
  picGalleryImagePrepare(1, gallery::OrderOfOperations, 7.2, 12);
  picGalleryImageShow(1);
  SayAt(18.5, "The problems here have no exponents yet.");
  PageEnd();

  NewScreen();
  SayAt(3, "Now we put the rules together.");
  WorkOutAloud(ExpressionOf("3*[20-(4+8)/2]"), 6);
  SayAt(kReasonRow, R"(The value of the expression is \y42\z.)");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class OrderOfOperations final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SuzyAndPaul, WhyMultiplicationComesFirst},
            {FromLeftToRight},
            {ParenthesesFirst, BracketsOutside},
            {Exponents, AllRulesTogether}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;
  bool OffersRules() const override { return true; }

  void DrawNumbers(std::string_view shape, RandomStream& random);
  bool IsWorthSolving() const;
  std::vector<WrongValue> WrongValues() const;
  void FillChoices(RandomStream& random);

  ArithmeticExpression expression_;  // two to four operations
};

// --- Generator ---------------------------------------------------------------

// The shape stays, so that all are met equally often; its numbers are drawn until they are worth
// it, which is a quarter of the draws at "L-[n+m*(n-n)]" and more at all others.
void OrderOfOperations::DrawProblem(RandomStream& random) {
  const int kind = random.Rand(1, kKinds);
  const int shape = random.Rand(1, kShapesOfKind);
  do {
    DrawNumbers(kShapes[kind - 1][shape - 1], random);
  } while (!IsWorthSolving() ||
           WrongValues().size() < kFewestMistakes);  // with fewer it does not test the order
  problem.question = {"What is the value of this expression?", ExpressionText(expression_)};
  FillChoices(random);
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

// What the mistakes lead to, in their order, without repetition.
std::vector<WrongValue> OrderOfOperations::WrongValues() const {
  const int right = ValueOf(expression_).value();
  std::vector<WrongValue> wrong;
  for (const WorkingOrder& order : kMistakes) {
    const std::optional<int> value = ValueOf(expression_, order);
    if (!value || *value < 1) continue;  // the student would see that something is wrong
    if (*value == right) continue;
    const auto same = [&](const WrongValue& other) { return other.value == *value; };
    if (std::ranges::none_of(wrong, same)) wrong.push_back({order.mistake, *value});
  }
  return wrong;
}

// The number of wrong choices above the right one is drawn, and kept to as far as there are
// mistakes: their sizes would tell the right one otherwise.
void OrderOfOperations::FillChoices(RandomStream& random) {
  const int right = ValueOf(expression_).value();
  const int larger = random.Rand(0, kWrongChoices);
  int due[] = {kWrongChoices - larger, larger};  // below the right one, above it
  const std::vector<WrongValue> wrong = WrongValues();

  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(right);
  for (const WrongValue& w : wrong)
    if (--due[w.value > right ? 1 : 0] >= 0) choices.Wrong(std::string(w.mistake), w.value);
  for (const WrongValue& w : wrong) choices.Wrong(std::string(w.mistake), w.value);
  const int reach = std::clamp(right / 2, 6, 50);  // no farther off than the mistakes
  choices.Fill([&] {
    const int distance = random.Rand(1, reach);
    const bool above = due[1] > 0 || right <= distance;
    return above ? right + distance : right - distance;
  });
}

// --- Problem page ------------------------------------------------------------

void OrderOfOperations::ShowProblem() {
  SayAt(5, problem.question[0]);
  const std::string& text = problem.question[1];
  ShowRulesPicture(gallery::OrderOfOperations, kRulesRow, kRulesColumn);
  const bool besideRules = frmPR->picGalleryImage[1].Visible();
  const double columns = besideRules ? kRulesColumn - 1 : 40;
  ShowAt(8, text, std::floor((columns - static_cast<double>(text.size())) / 2) + 1);
  ShowAnswersInThreeColumns(problem, {.row = 16.5});
}

// --- Worked explanation ------------------------------------------------------

void OrderOfOperations::ExplainProblem() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  WorkOutAloud(expression_, 7);
  ConcludeAt(kReasonRow, problem);
}

const LessonRegistration<OrderOfOperations> kRegistration("Order of Operations");

}  // namespace
}  // namespace course
