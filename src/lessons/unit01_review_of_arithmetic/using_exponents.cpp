// The student can say what base and exponent of a power mean, read powers aloud, write a product of
// equal factors as a power, and find the value of a power: also with the exponents 1 and 0, with a
// negative base, and with a minus sign that does not belong to the base.
//
// Three kinds of problems with equal chances: the value of a power such as 4^3; the value of
// (-3)^4, -3^4, 7^1 or (-7)^0; a product of equal factors that is to be written as a power.
#include "lessons/families/arithmetic/stepping_display.h"
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_figures.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

using arithmetic::SteppingDisplay;
using platform::colour::Blue;

constexpr int kLargestValue = 1000;  // of a power that is worked out by hand

// --- Teaching screens --------------------------------------------------------

void FoldingPaper() {
  NewScreen();
  SayAt(3, "Let's fold a strip of paper in half.");
  CellTable(TwoRows("Folds", "Layers", 5), 7.5);
  FillCells(1, {"1", "2", "3", "4", "5"});
  FillCells(6, {"2"});
  PaperStrip strip(6, 3);
  strip.Fold();
  SayAt(12.5, R"(\yTry it:\z  Each fold doubles the layers.  How many are there after 3 folds?)");
  PageEnd();
  strip.Fold();
  strip.Fold();
  FillCells(7, {"4", "8"}, Blue);
  Say(Text(R"(There are \y8\z:  {})", FactorsOf(2, 3) + " = 8"));
  Say(Text("After 5 folds:  {}.  Is there a shorter way to write this?",
           FactorsOf(2, 5) + " = 32"));
  FillCells(9, {"16", "32"}, Blue);
  PageEnd();
}

void BaseAndExponent() {
  NewScreen();
  SayAt(3, R"(Numbers that are multiplied are \cfactors\z.  A \cpower\z is a short way to write )"
           "a product of equal factors:");
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
  Say("The exponents 2 and 3 have names.  How many small squares make this square?");
  DrawNineSquares(8.5, 3);
  PageEnd();
  SayAt(8.5, Text("{}:  3 rows of 3 squares.", PowerOf(3, 2) + " = 9"), {.col = 12});
  Say(R"(The exponent 2 is read "\csquared\z":  "three squared".)", {.col = 12});
  PageEnd();
  SayAt(13, Text("Three such layers make a cube:  {}", PowerOf(3, 3) + " = 27"));
  DrawCube(16, 3);
  SayAt(16, R"(The exponent 3 is read "\ccubed\z":  "three cubed".)", {.col = 12});
  SayAt(20, Text(R"(\yTry it:\z  How do we read {} and {}?)", PowerOf(8, 2), PowerOf(10, 6)));
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
  Say("Ben is.  5 folds already make 32 layers, so 18 is too small.  Four more doublings:  64, "
      "128, 256, 512.");
  PageEnd();
  Say(Text("Ann multiplied the base by the exponent.  But {} has nine factors 2:", PowerOf(2, 9)));
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
  SayAt(3, "From cell to cell the exponent goes down by 1.  What happens to the value?");
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
  Say(Text("So {}, and {}.  The paper agrees:  with 0 folds it has 1 layer.",
           PowerOf(2, 1) + " = 2", PowerOf(2, 0) + " = 1"));
  PageEnd();
}

void OneAndZero() {
  NewScreen();
  SayAt(3, "It is the same with every other base b:");
  RuleBox("The Exponents 1 and 0", {"b^1^ = b        b^0^ = 1  (b is not 0)"}, {.width = 38});
  Say("0^0^ has no value:  we cannot divide by 0.");
  PageEnd();
  Say(R"(\yWatch out:\z  The value of b^0^ is 1, not 0.)");
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
        "odd, one is left over, and the value is negative.");
  PageEnd();
}

void MinusOutside() {
  NewScreen();
  SayAt(3, "What if there are no parentheses?");
  ShowAt(5, PowerOf(-3, 4), 8);
  ShowAt(5, "-3^4^", 27);
  Note(6.6, 2, "parentheses make -3 one base");
  Note(6.6, 24, "the base is 3");
  SayAt(8.5,
        R"(An exponent belongs only to the number \yjust before\z it, not to the minus sign.)");
  PageEnd();
  Say("First the power, then the minus sign:");
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
  Say(Text("{}, one million.  And {}:  no zero comes after the 1.", PowerOf(10, 6) + " = 1,000,000",
           PowerOf(10, 0) + " = 1"));
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
  std::string Expression() const;

  void BeginExplanation() const;
  void ExplainBase() const;
  void ExplainFactors() const;
  void ExplainSign() const;
  void ExplainZero() const;
  void ExplainCounting() const;

  Kind kind_ = Kind::Value;
  NumberPower power_;  // base 2 to 9, or -9 to 9 but not -1, 0 or 1; exponent 2 to 9, or 0 to 8
};

// --- Generator ---------------------------------------------------------------

bool UsingExponents::IsWorthSolving() const {
  // Who multiplies 2 by 2, or takes one for the other, is right by accident.
  if (power_.base == 2 && power_.exponent == 2) return false;
  if (kind_ == Kind::WriteAsPower) return true;
  // 0^0 has no value, and 1 leaves nothing to multiply.
  if (std::abs(power_.base) < 2) return false;
  return std::llabs(ValueOfPower(power_.base, power_.exponent)) <= kLargestValue;
}

// All four numbers are drawn whatever the kind, and two of them used.  Of the draws of the first
// kind 41 % are accepted, of the second 49 %.
void UsingExponents::DrawProblem(RandomStream& random) {
  kind_ = static_cast<Kind>(random.Rand(1, 3));
  do {
    const int base = random.Rand(2, 9);
    const int anyBase = random.Rand(-9, 9);
    const int anyExponent = 9 - random.Index(9);
    const int exponent = random.Index(8) + 1;
    power_.base = kind_ == Kind::Special ? anyBase : base;
    power_.exponent = kind_ == Kind::Special ? anyExponent : exponent;
  } while (!IsWorthSolving());
  // A positive base gets a minus sign in front, so that -3^4 is as frequent as (-3)^4.
  power_.minusOutside = kind_ == Kind::Special && power_.base > 0 && power_.exponent > 1;

  if (kind_ == Kind::WriteAsPower) {
    problem.question = {"Write this product as a power:", Expression()};
    OfferPowers(problem, power_, random);
  } else {
    problem.question = {"What is the value of this expression?", Expression()};
    OfferValues(problem, power_, random);
  }
}

std::string UsingExponents::Expression() const {
  return kind_ == Kind::WriteAsPower ? FactorsOf(power_.base, power_.exponent) : TextOf(power_);
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
    if (power_.exponent == 0) ExplainZero();
    if (power_.exponent > 0) ExplainFactors();
    if (power_.exponent > 1 && kind_ == Kind::Special) ExplainSign();
  }
  Conclude(problem);
}

void UsingExponents::ExplainBase() const {
  if (power_.minusOutside)
    Say(Text(
        R"(There are no parentheses, so the base is \y{}\z.  We find the power first, then the minus sign.)",
        power_.base));
  else if (power_.base < 0)
    Say(Text(R"(The exponent belongs to the parentheses, so the base is \y{}\z.)", power_.base));
  else
    Say(Text(R"(The base is \y{}\z, and the exponent is {}.)", power_.base, power_.exponent));
  PageEnd();
}

void UsingExponents::ExplainFactors() const {
  if (power_.exponent == 1) {
    Say(Text("{} is a factor once.  There is nothing to multiply:", power_.base));
    Show(Expression() + " = " + NumStr(power_.base));
    PageEnd();
    return;
  }
  Say(Text("{} is a factor {} times:", power_.base, power_.exponent));
  const std::string factors = FactorsOf(power_.base, power_.exponent);
  Show(power_.minusOutside ? "-(" + factors + ")" : factors);
  PageEnd();
  Say(power_.base < 0 ? "First we multiply without the signs:" : "We multiply from left to right:");
  MultiplyStepByStep(std::abs(power_.base), power_.exponent);
}

void UsingExponents::ExplainSign() const {
  NewScreen();
  BeginExplanation();
  Say(Text("{} is {}.  {}", PowerOf(std::abs(power_.base), power_.exponent),
           std::abs(ValueOf(power_)),
           Words{power_.minusOutside ? "What is left to do?" : "What is the sign here?"}));
  PageEnd();
  if (power_.minusOutside)
    Say("We put the minus sign in front:");
  else if (power_.exponent % 2 == 0)
    Say(Text("{} is even, so the minus signs go in pairs.  The value is positive:",
             power_.exponent));
  else
    Say(Text("{} is odd, so one minus sign is left over.  The value is negative:",
             power_.exponent));
  Show(Expression() + " = " + NumStr(ValueOf(power_)));
  PageEnd();
}

void UsingExponents::ExplainZero() const {
  Say(Text("One factor less:  we divide by {}.", power_.base));
  Show(PowerOf(power_.base, 2) + " = " + NumStr(power_.base * power_.base) + "     " +
       PowerOf(power_.base, 1) + " = " + NumStr(power_.base));
  Say("What comes next?");
  PageEnd();
  Say(Text("{} divided by {} is 1:", power_.base, power_.base));
  Show(PowerOf(power_.base, 0) + " = 1");
  Say("The exponent 0 gives 1 with every base but 0.");
  PageEnd();
}

void UsingExponents::ExplainCounting() const {
  constexpr int kStep = 4;  // columns from factor to factor
  SayAt(9.5, Text(R"(All factors are {}, so the base is \y{}\z.)", power_.base, power_.base));
  PageEnd();
  Say("We count the factors:");
  for (int i = 1; i <= power_.exponent; ++i)
    ShowAt(kExpressionRow + 1, R"(\y)" + NumStr(i) + R"(\z)", kExpressionCol + kStep * (i - 1));
  PageEnd();
  SayAt(13.5, Text(R"({} is a factor {} times, so the exponent is \y{}\z.)", power_.base,
                   power_.exponent, power_.exponent));
  PageEnd();
  Say("The signs between the factors are not counted.");
  PageEnd();
}

const LessonRegistration<UsingExponents> kRegistration("Using Exponents");

}  // namespace
}  // namespace course
