// The student can say what base and exponent of a power mean, read powers aloud, write a product of
// equal factors as a power, and find the value of a power: also with the exponents 1 and 0, with a
// negative base, and with a minus sign that does not belong to the base.
//
// Three kinds of problems with equal chances: the value of a power such as 4^3; the value of
// (-3)^4, -3^4, 7^1 or (-7)^0; a product of equal factors that is to be written as a power.
#include "lessons/families/arithmetic/stepping_display.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_figures.h"
#include "lessons/families/powers/power_text.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

using arithmetic::SteppingDisplay;
using platform::colour::Blue;

constexpr int kLargestValue = 1000;       // of a power that is worked out by hand
constexpr int kLargestWrongValue = 9999;  // longer ones would stand out

// What the student reads, and what it is worth: two powers may be the same number.
struct PowerChoice {
  std::string text;
  long long value = 0;
  bool operator==(const PowerChoice& other) const { return value == other.value; }
};

// --- Teaching screens --------------------------------------------------------

void FoldingPaper() {
  NewScreen();
  SayAt(3, "Let's fold a strip of paper in half.");
  PaperStrip strip(5, 5, 32);
  CellTable(TwoRows("Folds", "Layers", 5), 7.5);
  FillCells(1, {"1", "2", "3", "4", "5"});
  FillCells(6, {"2"});
  SayAt(12.5, R"(\yTry it:\z  Each fold doubles the layers.  How many are there after 3 folds?)");
  PageEnd();
  for (int folds = 1; folds <= 3; ++folds) strip.Fold();
  FillCells(7, {"4", "8"}, Blue);
  Say(Text(R"(There are \y8\z:  {})", FactorsOf(2, 3) + " = 8"));
  Say(Text("And after 5 folds:  {}.  Is there a shorter way to write this?",
           FactorsOf(2, 5) + " = 32"));
  FillCells(9, {"16", "32"}, Blue);
  PageEnd();
}

void BaseAndExponent() {
  NewScreen();
  SayAt(3, R"(Numbers that are multiplied are \cfactors\z.  A \cpower\z is a short way to write )"
           "equal factors:");
  ShowAt(8.5, "2^5^ = " + FactorsOf(2, 5), 9);
  Note(6.5, 9.8, "the exponent: how many factors");
  isDrawArrow1Segment(7.5, 10, 8, 10, platform::colour::Yellow, "NA", "A");
  Note(10.7, 8, "the base: the number that is multiplied");
  isDrawArrow1Segment(10.5, 9, 9.5, 9, platform::colour::Yellow, "NA", "A");
  PageEnd();
  SayAt(12.5, R"(The \cexponent\z tells how many times the \cbase\z is a factor.)");
  Say(Text(R"(\yTry it:\z  How do we write {} as a power?)", FactorsOf(7, 4)));
  PageEnd();
  SayAt(18.5, "7 is a factor 4 times.  We count the factors, not the signs between them:");
  PaperBox({PowerOf(7, 4) + R"(,  \rnot 4^7^\z,  \rnot 7^3^\z)"});
  PageEnd();
}

void ReadingAloud() {
  NewScreen();
  SayAt(3, Text(R"(How do we read a power?  {} is "two to the \yfifth\z power".)", PowerOf(2, 5)));
  Say("Two exponents have names of their own.  How many small squares make this square?");
  DrawNineSquares(8.5, 3);
  PageEnd();
  SayAt(8.5, Text("{}:  3 rows have 3 squares each.", PowerOf(3, 2) + " = 9"), {.col = 12});
  SayAt(10.5, R"(We read "three \csquared\z".)", {.col = 12});
  PageEnd();
  SayAt(13, "Three such layers make a cube:");
  for (const double col : {3, 11, 19}) DrawNineSquares(14.5, col);
  SayAt(14.5, PowerOf(3, 3) + " = 27", {.col = 27});
  SayAt(16, R"("three \ccubed\z")", {.col = 27});
  SayAt(19.5, Text(R"(\yTry it:\z  How do we read {} and {}?)", PowerOf(8, 2), PowerOf(10, 6)));
  PageEnd();
  Say(R"("Eight squared", and "ten to the sixth power".)");
  PageEnd();
}

void StepByStep() {
  NewScreen();
  SayAt(3, Text("What is the value of {}?  We write the factors, and multiply from left to right:",
                PowerOf(2, 4)));
  SteppingDisplay display(FactorsOf(2, 4), 7, 13);
  display.PickOut(0, 2);
  PageEnd();
  for (const char* product : {"4", "8", "16"}) {
    display.PickOut(0, 2);
    display.ShowResult(product);
  }
  SayAt(16, Text(R"(\yTry it:\z  What is the value of {}?)", PowerOf(5, 3)));
  PageEnd();
  Say(Text(R"({}, and {}.  The value is \y125\z.)", "5 " + tutor::Times + " 5 = 25",
           "25 " + tutor::Times + " 5 = 125"));
  PageEnd();
}

void NotBaseTimesExponent() {
  NewScreen();
  SayAt(3, Text("Ann says:  {} is 18.", PowerOf(2, 9)));
  AddLine(Text("Ben says:  {} is 512.", PowerOf(2, 9)));
  Say("Who is right?");
  PageEnd();
  Say(Text("Ben is.  Ann has multiplied base and exponent, but {} has nine factors 2:",
           PowerOf(2, 9)));
  PaperBox({PowerOf(2, 9) + R"( = 512,  \rnot 2 )" + tutor::Times + R"( 9 = 18\z)"});
  Say(Text(R"(\yTry it:\z  Are {} and {} the same?)", PowerOf(2, 5), PowerOf(5, 2)));
  PageEnd();
  Say("No.  Base and exponent have different jobs:");
  Show(PowerOf(2, 5) + " = " + FactorsOf(2, 5) + " = 32");
  Show(PowerOf(5, 2) + " = " + FactorsOf(5, 2) + " = 25");
  PageEnd();
}

void OneFactorLess() {
  NewScreen();
  SayAt(3, "Here the exponent gets 1 less from cell to cell.  What happens to the value?");
  CellTable(TwoRows("Power", "Value", 5), 6);
  FillCells(1, {"2^4^", "2^3^", "2^2^", "2^1^", "2^0^"});
  FillCells(6, {"16", "8", "4"});
  PageEnd();
  SayAt(11, "One factor 2 is gone, so the value is divided by 2:");
  Show("16/2 = 8     8/2 = 4");
  SayAt(17, R"(\yTry it:\z  What belongs in the last cells?)");
  PageEnd();
  FillCells(9, {"2", "1"}, Blue);
  ShowAt(19.5, "4/2 = 2     2/2 = 1");
  Say("So one factor 2 is 2.  And think of the paper:  with 0 folds it has 1 layer.");
  PageEnd();
}

void OneAndZero() {
  NewScreen();
  SayAt(3, "It is the same with every base b but 0:");
  RuleBox("The Exponents 1 and 0", {"b^1^ = b", "b^0^ = 1"}, {.width = 26});
  PageEnd();
  Say(R"(\yWatch out:\z  The value is 1, not 0.)");
  PaperBox({R"(5^0^ = 1,  \rnot 0\z,  \rnot 5\z)"});
  Say(Text(R"(\yTry it:\z  What are the values of {} and {}?)", PowerOf(9, 1), PowerOf(9, 0)));
  PageEnd();
  Say(Text("{}:  there is one factor 9.", PowerOf(9, 1) + " = 9"));
  AddLine(Text("{}:  9 divided by 9 is 1.", PowerOf(9, 0) + " = 1"));
  PageEnd();
}

void NegativeBase() {
  NewScreen();
  SayAt(3, "A negative base stands in parentheses:");
  Show(PowerOf(-3, 2) + " = " + FactorsOf(-3, 2) + " = 9");
  Say(R"(Two negative factors make a \ypositive\z product.  What does a third one do?)");
  PageEnd();
  Say("It changes the sign again:");
  Show(PowerOf(-3, 3) + " = " + FactorsOf(-3, 3) + " = 9(-3) = -27");
  CellTable(TwoRows("Power", "Value", 5), 12);
  FillCells(1, {"(-2)^1^", "(-2)^2^", "(-2)^3^", "(-2)^4^", "(-2)^5^"});
  FillCells(6, {"-2", "4", "-8", "16", "-32"});
  SayAt(17, Text(R"(\yTry it:\z  Is the value of {} positive or negative?)", PowerOf(-2, 6)));
  PageEnd();
  SayAt(20,
        R"(It is \ypositive\z.  6 is even, so the minus signs go in pairs.  When their number is )"
        "odd, one is left over.");
  PageEnd();
}

void MinusOutside() {
  NewScreen();
  SayAt(3, "What if there are no parentheses?");
  ShowAt(5, PowerOf(-3, 4), 8);
  ShowAt(5, "-3^4^", 27);
  Note(6.6, 5, "the base is -3");
  Note(6.6, 24, "the base is 3");
  SayAt(8.5, R"(An exponent belongs to what stands \yright before\z it.)");
  PageEnd();
  Say("Without parentheses the minus waits:");
  PaperBox({PowerOf(-3, 4) + " = " + FactorsOf(-3, 4) + " = 81",
            "-3^4^ = -(" + FactorsOf(3, 4) + ") = -81"});
  Say(Text(R"(\yTry it:\z  What are {} and {}?)", PowerOf(-5, 2), "-5^2^"));
  PageEnd();
  Say(Text("{}, and {}.", PowerOf(-5, 2) + " = 25", "-5^2^ = -25"));
  Say(Text("The exponents 1 and 0 work as before:  {}, and {}.", PowerOf(-7, 1) + " = -7",
           PowerOf(-7, 0) + " = 1"));
  PageEnd();
}

void PowersOfTen() {
  NewScreen();
  SayAt(3, "Powers of 10 are easy to write.  What does the exponent tell here?");
  CellTable(TwoRows("Power", "Value", 4), 6);
  FillCells(1, {"10^1^", "10^2^", "10^3^", "10^4^"});
  FillCells(5, {"10", "100", "1,000", "10,000"});
  PageEnd();
  SayAt(11, R"(It tells how many \yzeros\z the value has.  Each factor 10 brings one more.)");
  PaperBox({R"(10^4^ = 10,000,  \rnot 40\z)"});
  Say(Text(R"(\yTry it:\z  What are {} and {}?)", PowerOf(10, 6), PowerOf(10, 0)));
  PageEnd();
  Say(Text("{}, one million.  And {}:  no zero stands behind the 1.",
           PowerOf(10, 6) + " = 1,000,000", PowerOf(10, 0) + " = 1"));
  Say(R"(\yTry it:\z  Which power of 10 is 100,000?)");
  PageEnd();
  Say(R"(It has five zeros:  \y10^5^\z)");
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

enum class Kind { Value = 1, Special, WriteAsPower };

class UsingExponents final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FoldingPaper, BaseAndExponent},    {ReadingAloud},
            {StepByStep, NotBaseTimesExponent}, {OneFactorLess, OneAndZero},
            {NegativeBase, MinusOutside},       {PowersOfTen}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool IsWorthSolving() const;
  int Value() const;
  std::string Expression() const;
  void OfferValues(RandomStream& random);
  void OfferPowers(RandomStream& random);

  void BeginExplanation() const;
  void ExplainBase() const;
  void ExplainFactors() const;
  void ExplainSign() const;
  void ExplainZero() const;
  void ExplainCounting() const;

  Kind kind_ = Kind::Value;
  int base_ = 2;               // 2 to 9, or -9 to 9 but not -1, 0 or 1
  int exponent_ = 2;           // 2 to 9, or 0 to 8
  bool minusOutside_ = false;  // -3^4: the value has the other sign
};

// --- Generator ---------------------------------------------------------------

bool UsingExponents::IsWorthSolving() const {
  if (kind_ == Kind::WriteAsPower) return true;
  if (std::abs(base_) < 2) return false;  // 0^0 has no value, and 1 leaves nothing to multiply
  return std::llabs(ValueOfPower(base_, exponent_)) <= kLargestValue;
}

// All four numbers are drawn whatever the kind, and two of them used.  Of the draws of the first
// kind 42 % are accepted, of the second 49 %.
void UsingExponents::DrawProblem(RandomStream& random) {
  kind_ = static_cast<Kind>(random.Rand(1, 3));
  do {
    const int base = random.Rand(2, 9);
    const int anyBase = random.Rand(-9, 9);
    const int anyExponent = 9 - random.Index(9);
    const int exponent = random.Index(8) + 1;
    base_ = kind_ == Kind::Special ? anyBase : base;
    exponent_ = kind_ == Kind::Special ? anyExponent : exponent;
  } while (!IsWorthSolving());
  // A positive base gets a minus sign in front, so that -3^4 is as frequent as (-3)^4.
  minusOutside_ = kind_ == Kind::Special && base_ > 0 && exponent_ > 1;

  if (kind_ == Kind::WriteAsPower) {
    problem.question = {"Write this product as a power:", Expression()};
    OfferPowers(random);
  } else {
    problem.question = {"What is the value of this expression?", Expression()};
    OfferValues(random);
  }
}

int UsingExponents::Value() const {
  const int value = static_cast<int>(ValueOfPower(base_, exponent_));
  return minusOutside_ ? -value : value;
}

std::string UsingExponents::Expression() const {
  if (kind_ == Kind::WriteAsPower) return FactorsOf(base_, exponent_);
  return (minusOutside_ ? "-" : "") + PowerOf(base_, exponent_);
}

// Now one factor too few, now one too many: the right value shall not stand in the middle.
void UsingExponents::OfferValues(RandomStream& random) {
  const bool early = random.Rand(1, 2) == 1;
  const int sign = minusOutside_ ? -1 : 1;
  const int n = exponent_;
  Choices choices(problem, choice_kind::FiveShuffled, NumStr);
  choices.Right(Value());
  const auto add = [&](const char* mistake, long long value) {
    if (std::llabs(value) <= kLargestWrongValue) choices.Wrong(mistake, static_cast<int>(value));
  };
  if (n < 2) add("takes the exponent for the value", n);
  if (n == 0) add("leaves the base as it is", base_);
  if (n == 0 && base_ < 0) add("keeps the minus sign of the base", -1);
  if (kind_ == Kind::Special && n > 1 && n % 2 == 0)
    add(minusOutside_ ? "takes the minus sign into the base" : "ignores the parentheses", -Value());
  if (Value() < 0 || base_ < 0) add("loses the minus sign", std::abs(n == 0 ? base_ : Value()));
  if (n > 0) add("multiplies base and exponent", sign * base_ * n);
  if (kind_ == Kind::Special && n > 1)
    add("multiplies base and exponent and loses the minus sign", std::abs(base_) * n);
  if (n > 1 && early) add("stops one factor early", sign * ValueOfPower(base_, n - 1));
  if (n == 1 || (n > 1 && !early))
    add("multiplies once too often", sign * ValueOfPower(base_, n + 1));
  if (kind_ == Kind::Value) add("exchanges base and exponent", ValueOfPower(n, base_));
  const int digits = 10 * std::abs(base_) + n;
  add("sets base and exponent side by side", base_ < 0 ? -digits : sign * digits);
  if (n > 0) add("adds base and exponent", sign * (base_ + n));
  choices.Fill([&] { return random.Rand(2, 9) * (Value() < 0 ? -1 : 1); });
}

// The right power and the first three are two mistakes, made or not made.
void UsingExponents::OfferPowers(RandomStream& random) {
  const bool tooMany = random.Rand(1, 2) == 1;
  const int other = exponent_ + (tooMany ? 1 : -1);
  Choices<PowerChoice> choices(problem, choice_kind::FiveShuffled,
                               [](const PowerChoice& choice) { return choice.text; });
  const auto power = [](int base, int exponent) {
    return PowerChoice{PowerOf(base, exponent), ValueOfPower(base, exponent)};
  };
  choices.Right(power(base_, exponent_));
  choices.Wrong("exchanges base and exponent", power(exponent_, base_));
  if (other > 1) {
    choices.Wrong(tooMany ? "counts one factor too many" : "counts the signs, not the factors",
                  power(base_, other));
    choices.Wrong(tooMany ? "exchanges base and exponent and counts one factor too many"
                          : "exchanges base and exponent and counts the signs, not the factors",
                  power(other, base_));
  }
  choices.Wrong("multiplies the base by the number of factors",
                {JoinedByTimes({NumStr(exponent_), NumStr(base_)}), exponent_ * base_});
  choices.Wrong("counts one factor too many", power(base_, exponent_ + 1));
  choices.Wrong("exchanges base and exponent and counts one factor too many",
                power(exponent_ + 1, base_));
  choices.Fill([&] { return power(random.Rand(2, 9), random.Rand(2, 9)); });
}

// --- Problem page ------------------------------------------------------------

constexpr double kExpressionRow = 7;
constexpr double kExpressionCol = 3;

void UsingExponents::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(kExpressionRow, problem.question[1], kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void UsingExponents::BeginExplanation() const {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(kExpressionRow, problem.question[1], kExpressionCol);
}

void UsingExponents::ExplainProblem() {
  BeginExplanation();
  if (kind_ == Kind::WriteAsPower) {
    ExplainCounting();
  } else {
    ExplainBase();
    if (exponent_ == 0) ExplainZero();
    if (exponent_ > 0) ExplainFactors();
    if (exponent_ > 1 && kind_ == Kind::Special) ExplainSign();
  }
  Conclude(problem);
}

void UsingExponents::ExplainBase() const {
  if (minusOutside_)
    Say(Text(R"(There are no parentheses, so the base is \y{}\z.  The minus sign waits.)", base_));
  else if (base_ < 0)
    Say(Text(R"(The exponent belongs to the parentheses, so the base is \y{}\z.)", base_));
  else
    Say(Text(R"(The base is \y{}\z, and the exponent is {}.)", base_, exponent_));
  PageEnd();
}

void UsingExponents::ExplainFactors() const {
  if (exponent_ == 1) {
    Say(Text("{} is a factor once.  There is nothing to multiply:", base_));
    Show(Expression() + " = " + NumStr(base_));
    PageEnd();
    return;
  }
  Say(Text("{} is a factor {} times:", base_, exponent_));
  const std::string factors = FactorsOf(base_, exponent_);
  Show(minusOutside_ ? "-(" + factors + ")" : factors);
  PageEnd();
  Say(base_ < 0 ? "First we multiply without the signs:" : "We multiply from left to right:");
  MultiplyStepByStep(std::abs(base_), exponent_);
}

void UsingExponents::ExplainSign() const {
  NewScreen();
  BeginExplanation();
  Say(Text("{} is {}.  {}", PowerOf(std::abs(base_), exponent_), std::abs(Value()),
           Words{minusOutside_ ? "What is left to do?" : "What is the sign here?"}));
  PageEnd();
  if (minusOutside_)
    Say("Now comes the minus sign:");
  else if (exponent_ % 2 == 0)
    Say(Text("{} is even, so the minus signs go in pairs.  The value is positive:", exponent_));
  else
    Say(Text("{} is odd, so one minus sign is left over.  The value is negative:", exponent_));
  Show(Expression() + " = " + NumStr(Value()));
  PageEnd();
}

void UsingExponents::ExplainZero() const {
  Say(Text("One factor less:  we divide by {}.", base_));
  Show(PowerOf(base_, 2) + " = " + NumStr(base_ * base_) + "     " + PowerOf(base_, 1) + " = " +
       NumStr(base_));
  Say("What comes next?");
  PageEnd();
  Say(Text("{} divided by {} is 1:", base_, base_));
  Show(PowerOf(base_, 0) + " = 1");
  Say("The exponent 0 gives 1 with every base but 0.");
  PageEnd();
}

void UsingExponents::ExplainCounting() const {
  constexpr int kStep = 4;  // columns from factor to factor
  SayAt(9.5, Text(R"(All factors are {}, so the base is \y{}\z.)", base_, base_));
  PageEnd();
  Say("We count the factors:");
  for (int i = 1; i <= exponent_; ++i)
    ShowAt(kExpressionRow + 1, R"(\y)" + NumStr(i) + R"(\z)", kExpressionCol + kStep * (i - 1));
  PageEnd();
  SayAt(13.5, Text(R"({} is a factor {} times, so the exponent is \y{}\z.)", base_, exponent_,
                   exponent_));
  PageEnd();
  Say("The signs between the factors are not counted.");
  PageEnd();
}

const LessonRegistration<UsingExponents> kRegistration("Using Exponents");

}  // namespace
}  // namespace course
