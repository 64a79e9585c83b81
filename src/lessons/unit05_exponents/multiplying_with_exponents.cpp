// The student can multiply powers of the same base by adding their exponents, and knows what
// becomes of a number in front, of other letters, and of a letter that has no exponent.
//
// A problem is a number times powers, one letter of which stands twice; all five choices are
// simplified products with their letters in the order of the alphabet, so that only the exponents
// and the number are in question.
#include "lessons/families/powers/power_display.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

// Letters of the powers, and of the other base that stands beside them.
constexpr std::string_view kBaseLetters = "bcdfghkmnpqrstuvwxyz";
constexpr std::string_view kOtherLetters = "abcdfghkmnpqrstuvwxyz";

constexpr double kRuleWidth = 24;  // columns
constexpr const char* kRuleHeading = "Rule For Multiplying Powers";
const std::string kRule = "b^m^" + tutor::Dot + "b^n^ = b^m+n^";
constexpr double kExpressionCol = 4;

void ShowRule(double row = kUnder) {
  RuleBox(kRuleHeading, {kRule}, {.row = row, .width = kRuleWidth});
}

// What is multiplied, b being the base that stands twice:
enum class Form {
  OneBase = 1,    // 3b^2 b^5
  LetterBetween,  // 3b^2 a b^5
  BareLetter,     // 3b^2 a^5 b: the second b has no exponent
};

struct Mistake {
  const char* name;
  std::string product;
};

// --- Teaching screens --------------------------------------------------------

void MeaningOfAPower() {
  NewScreen();
  SayAt(3, R"(A \cpower\z is a short way to write a product of equal factors:)");
  ShowAt(8, "b^4^ = " + WrittenOut({"b", 4}), 13);
  PageEnd();
  Note(6, 13.8, "the exponent: how many factors");
  isDrawArrow1Segment(7, 14, 7.5, 14, platform::colour::Yellow, "NA", "A");
  Note(10.2, 8, "the base: what is multiplied");
  isDrawArrow1Segment(10, 13, 9, 13, platform::colour::Yellow, "NA", "A");
  SayAt(12, R"(The \cbase\z is the factor.  The \cexponent\z tells how many times b is a factor.)");
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} is not {}.  With 2 in place of b:)", "b^4^", "4b"));
  PaperBox({"2^4^ = " + JoinedByTimes({"2", "2", "2", "2"}) + R"( = 16,  \rnot 8\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  How do we write  )" + WrittenOut({"d", 5}) + "  as a power?");
  PageEnd();
  Say(Text(R"(d is a factor 5 times:  \y{}\z)", "d^5^"));
  PageEnd();
}

void CountingFactors() {
  NewScreen();
  SayAt(3, Text("What is {} times {}?  Let's write both powers out:", "b^3^", "b^4^"));
  UnfoldPowers({"b", 3}, {"b", 4}, 5.5);
  PageEnd();
}

// The table says in numbers what the factors show.
void CompareBasesAndExponents() {
  SayAt(9.5, "The first power has 3 factors, the second one has 4.  How many are there together?");
  ShowPowersTable({"b", 3}, {"b", 4}, 13);
  PageEnd();
  FillInProduct({"b", 7});
  SayAt(19.5, Text(R"(Together there are 7:  \y{}\z)", "b^3^" + tutor::Dot + "b^4^ = b^7^"));
  Say(R"(The base \ystays\z, the exponents are \yadded\z.)");
  PageEnd();
}

void TheRule() {
  NewScreen();
  ShowRule(3);
  Say("To multiply powers of the same base, we keep the base and add the exponents.");
  PageEnd();
  SlideExponentsTogether({"x", 2}, {"x", 6}, 9.5);
  PageEnd();
  SayAt(13, "The base may be a number.  It stays:");
  PaperBox({"5^2^ " + tutor::Times + " 5^4^ = 5^6^,  " + R"(\rnot 25^6^\z)"});
  Say(Text("{} is 5 as a factor 6 times.", JoinedByTimes({"5", "5", "5", "5", "5", "5"})));
  PageEnd();

  NewScreen();
  ShowRule(3);
  WhiteBox({.row = 7, .rows = 9});
  SayInBox("Why do we not multiply the exponents 3 and 4?");
  SayInBox(" 2^3^ " + tutor::Times + " 2^4^ = 8 " + tutor::Times + " 16 = 128");
  PageEnd();
  SayInBox("The sum 3 + 4 fits, the product does not:");
  SayInBox(R"( \b2^7^ = 128\z,  but 2^12^ = 4,096)");
  PageEnd();
  SayInBoxAnew(R"(\bTry it:\z  What is k^5^)" + tutor::Dot + "k^3^?");
  PageEnd();
  SayInBox("The base stays k, and 5 + 3 = 8:");
  SayInBox(" k^5^" + tutor::Dot + R"(k^3^ = \bk^8^\z)");
  SayInBox(Text(R"(Watch out:  \r{}\z leaves out the 3 factors of {}.)", "k^5^", "k^3^"));
  PageEnd();
}

void NumberInFront() {
  NewScreen();
  SayAt(3, "A number in front stays as it is:");
  Show("6b^2^" + tutor::Dot + "b^5^ = 6b^7^", kExpressionCol);
  PageEnd();
  Say(R"(\yWatch out:\z  b and b do not make 2b, so the 6 is not doubled:)");
  PaperBox({"6b^2^" + tutor::Dot + R"(b^5^ = 6b^7^,  \rnot 12b^7^\z)"});
  PageEnd();
  Say("The rule needs equal bases.  With different ones nothing can be added:");
  PaperBox({"a^2^" + tutor::Dot + "b^3^ = " + JoinedByDots({"a", "a", "b", "b", "b"}) +
            R"(,  \rnot ab^5^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  What is  )" + JoinedByDots({"4c^3^", "c^6^"}) + "?");
  PageEnd();
  Say(Text(R"(4 stays in front, and 3 + 6 = 9:  \y{}\z)", "4c^9^"));
  PageEnd();
}

// The a of 4b^2 a b^3 moves to its place in the row below.
void BringLetterForward(double row) {
  constexpr double kLetter = kExpressionCol + 4;
  constexpr double kDrop = 1.48;  // rows; whole pixels
  ShowAt(row, "4b^2^" + tutor::Dot + R"(\ya\z)" + tutor::Dot + "b^3^", kExpressionCol);
  ShowAt(row + kDrop, "= 4", kExpressionCol - 2);
  SlideDown({row, kLetter, 1}, kDrop, Leaving::Copy);
  SlideLeft({row + kDrop, kLetter, 1}, 3);
  ShowAt(row + kDrop, tutor::Dot + "b^2^" + tutor::Dot + R"(b^3^ = 4ab^5^)", kExpressionCol + 2);
}

void OtherLetters() {
  NewScreen();
  SayAt(3, "The order of factors does not matter.  So we may bring equal letters together:");
  BringLetterForward(5.5);
  PageEnd();
  Say(R"(\yWatch out:\z  Only b gets the sum.  There is still one factor a.)");
  PageEnd();
  NewScreen();
  SayAt(
      3,
      R"(A \cbare letter\z is written without an exponent.  It is a factor once, so its exponent )"
      "is 1:");
  Show("c^4^" + tutor::Dot + "c = c^4^" + tutor::Dot + "c^1^ = c^5^", kExpressionCol);
  PageEnd();
  Say("We write the number first, then the letters in the order of the alphabet.");
  Say(R"(\yTry it:\z  Simplify  )" + JoinedByDots({"3n^2^", "d^4^", "n"}) + ".");
  PageEnd();
  Say(R"(The exponents of n are 2 and 1.  The last n is not a factor d, so d keeps the exponent 4:)");
  Show(JoinedByDots({"3n^2^", "d^4^", "n"}) + " = " + JoinedByDots({"3d^4^", "n^2^", "n"}) +
           R"( = \y3d^4^n^3^\z)",
       kExpressionCol);
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class MultiplyingWithExponents final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{MeaningOfAPower},
            {CountingFactors, CompareBasesAndExponents},
            {TheRule},
            {NumberInFront, OtherLetters}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  // The two powers of the base, and the exponent of the other letter, 0 without one.
  Power First() const { return {base_, firstExponent_}; }
  Power Second() const { return {base_, form_ == Form::BareLetter ? 1 : secondExponent_}; }
  int OtherExponent() const;
  int Sum() const { return First().exponent + Second().exponent; }
  std::string Expression() const;
  std::string Product(int number, int exponent, int otherExponent) const;
  std::vector<Mistake> Mistakes(RandomStream& random) const;
  std::vector<Mistake> MistakesWithOneBase() const;
  std::vector<Mistake> MistakesWithALetterBetween(RandomStream& random) const;
  std::vector<Mistake> MistakesWithABareLetter() const;

  std::string Front() const;
  std::string SumText() const;

  void BringTogether();
  void WriteOutFactors();
  void AddExponents();
  void WriteResult();

  Form form_ = Form::OneBase;
  int number_ = 1;          // 1 to 9; 1 is not printed
  std::string base_;        // the letter that stands twice
  std::string other_;       // another letter, in two of the forms
  int firstExponent_ = 2;   // 2 to 9
  int secondExponent_ = 2;  // 2 to 9; the other letter's when the second b has none
};

// --- Generator ---------------------------------------------------------------

int MultiplyingWithExponents::OtherExponent() const {
  switch (form_) {
    case Form::OneBase:
      return 0;
    case Form::LetterBetween:
      return 1;
    default:
      return secondExponent_;
  }
}

std::string MultiplyingWithExponents::Expression() const {
  const std::string first = CoefText(number_) + PowerText(First());
  if (form_ == Form::OneBase) return JoinedByDots({first, PowerText(Second())});
  return JoinedByDots({first, PowerText({other_, OtherExponent()}), PowerText(Second())});
}

std::string MultiplyingWithExponents::Product(int number, int exponent, int otherExponent) const {
  if (form_ == Form::OneBase) return ProductText(number, {{base_, exponent}});
  return ProductText(number, {{base_, exponent}, {other_, otherExponent}});
}

void MultiplyingWithExponents::DrawProblem(RandomStream& random) {
  form_ = static_cast<Form>(random.Rand(1, 3));
  base_ = random.OneOf(kBaseLetters);
  other_ = DrawOtherLetter(random, kOtherLetters, base_);  // two letters of a problem differ
  number_ = random.Rand(1, 9);
  firstExponent_ = random.Rand(2, 9);
  secondExponent_ = random.Rand(2, 9);

  problem.question = {"Simplify the following expression:", Expression()};
  Choices<std::string> choices(problem, choice_kind::FiveShuffled,
                               [](const std::string& product) { return product; });
  choices.Right(Product(number_, Sum(), OtherExponent()));
  for (const Mistake& mistake : Mistakes(random)) choices.Wrong(mistake.name, mistake.product);
  // 2 and 2 have the same sum and product (one pair in 64).
  choices.Fill([&] { return Product(number_, random.Rand(2, 9), OtherExponent()); });
}

// In each form the right one and the first three are two mistakes, made or not made: each of the
// four is as like the others, so that none stands out as the one in the middle.
std::vector<Mistake> MultiplyingWithExponents::Mistakes(RandomStream& random) const {
  switch (form_) {
    case Form::OneBase:
      return MistakesWithOneBase();
    case Form::LetterBetween:
      return MistakesWithALetterBetween(random);
    default:
      return MistakesWithABareLetter();
  }
}

std::vector<Mistake> MultiplyingWithExponents::MistakesWithOneBase() const {
  constexpr int kLargestByHand = 99;
  const int product = firstExponent_ * secondExponent_;
  std::vector<Mistake> mistakes = {
      {"multiplies the exponents", Product(number_, product, 0)},
      {"adds the bases too", Product(2 * number_, Sum(), 0)},
      {"adds the bases and multiplies the exponents", Product(2 * number_, product, 0)}};
  if (number_ * product <= kLargestByHand)
    mistakes.push_back({"takes the exponents as factors", Product(number_ * product, 2, 0)});
  mistakes.push_back({"keeps the first exponent", Product(number_, firstExponent_, 0)});
  return mistakes;
}

std::vector<Mistake> MultiplyingWithExponents::MistakesWithALetterBetween(
    RandomStream& random) const {
  const int product = firstExponent_ * secondExponent_;
  const int all = Sum() + 1;
  const Mistake sumOfAll = {"gives the sum of all exponents to both letters",
                            Product(number_, all, all)};
  const Mistake first = {"keeps the first exponent", Product(number_, firstExponent_, 1)};
  std::vector<Mistake> mistakes = {
      {"multiplies the exponents", Product(number_, product, 1)},
      {"gives the sum to both letters", Product(number_, Sum(), Sum())},
      {"gives the product to both letters", Product(number_, product, product)}};
  // Now like the right one, now like those that change both letters.
  const bool changesBoth = random.Rand(1, 2) == 1;
  mistakes.push_back(changesBoth ? sumOfAll : first);
  mistakes.push_back(changesBoth ? first : sumOfAll);
  return mistakes;
}

std::vector<Mistake> MultiplyingWithExponents::MistakesWithABareLetter() const {
  const int m = firstExponent_;
  const int k = secondExponent_;
  return {
      {"counts a bare letter as no factor", Product(number_, m, k)},
      {"adds exponents of neighbors", Product(number_, m, k + 1)},
      {"counts the bare letter for both letters", Product(number_, m + 1, k + 1)},
      {"gives the sum of all exponents to both letters", Product(number_, m + k + 1, m + k + 1)}};
}

// The number and the other letter, which stay as they are.
std::string MultiplyingWithExponents::Front() const {
  return ProductText(number_, {{other_, OtherExponent()}});
}

std::string MultiplyingWithExponents::SumText() const {
  return NumStr(First().exponent) + " + " + NumStr(Second().exponent) + " = " + NumStr(Sum());
}

// --- Problem page ------------------------------------------------------------

void MultiplyingWithExponents::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, Expression(), kExpressionCol);
  ShowAnswersInTwoColumns(problem);
}

// --- Worked explanation ------------------------------------------------------

void MultiplyingWithExponents::ExplainProblem() {
  ProblemBanner();
  ShowAt(5, Expression(), kExpressionCol);
  ShowRule(6.5);
  PageEnd();
  BringTogether();
  WriteOutFactors();
  AddExponents();
  WriteResult();
  Conclude(problem);
}

// The powers of the base side by side; what else there is comes before them.
void MultiplyingWithExponents::BringTogether() {
  if (form_ == Form::OneBase) {
    Say(R"(Both powers have the same base, \y)" + base_ + R"(\z.)" +
        (number_ == 1 ? "" : "  The number " + NumStr(number_) + " stays in front."));
    PageEnd();
    return;
  }
  if (form_ == Form::BareLetter) {
    Say(Text("A letter without an exponent is a factor once:  {}.", base_ + " = " + base_ + "^1^"));
    PageEnd();
  }
  Say("The order of factors does not matter, so we bring the powers of " + base_ + " together:");
  Show(Expression() + " = " + Front() + tutor::Dot + R"(\y)" + PowerText(First()) + tutor::Dot +
           PowerText(Second()) + R"(\z)",
       kExpressionCol);
  PageEnd();
}

void MultiplyingWithExponents::WriteOutFactors() {
  Say("Each power is a row of equal factors:");
  UnfoldPowers(First(), Second(), NextRow() + 0.5);
  PageEnd();
  Say("There are " + SumText() + " factors " + base_ + ".");
  PageEnd();
}

void MultiplyingWithExponents::AddExponents() {
  NewScreen();
  ProblemBanner();
  ShowAt(5, Expression(), kExpressionCol);
  ShowRule(6.5);
  Say("We keep the base and add the exponents:");
  SlideExponentsTogether(First(), Second(), 12);
  PageEnd();
  // A result of two letters has two exponents.
  const std::string whose = form_ == Form::OneBase ? "of the final" : "of " + base_ + " in the";
  Say("The exponent " + whose + R"( result is \c)" + NumStr(Sum()) + R"(\z.)");
  PageEnd();
}

void MultiplyingWithExponents::WriteResult() {
  if (form_ != Form::OneBase)
    Say(number_ == 1 ? "The letters stand in the order of the alphabet:"
                     : "The number comes first, then the letters in the order of the alphabet:");
  else
    Say(number_ == 1 ? "So this is what we get:" : "The number stays in front:");
  Show(Expression() + " = " + RightText(problem), kExpressionCol);
}

const LessonRegistration<MultiplyingWithExponents> kRegistration("Multiplying with Exponents");

}  // namespace
}  // namespace course
