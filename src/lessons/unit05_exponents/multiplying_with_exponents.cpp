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

constexpr int kRuleBox = 1;  // comment boxes in use
constexpr int kRemarkBox = 2;
constexpr double kRuleWidth = 24;  // columns
constexpr const char* kRuleHeading = "Rule For Multiplying Powers";
const std::string kRule = "b^m^" + tutor::Dot + "b^n^ = b^m+n^";

// Bases over exponents of two powers and of their product: cells 1 to 6, row by row.
constexpr double kTableSize = 16;  // points
PrintCellTable PowersTable() {
  constexpr double kLefts[] = {22, 48, 74};
  constexpr double kTops[] = {29, 65};
  const char* kHeads[] = {"First power", "Second power", "Product"};
  const char* kRows[] = {"Base", "Exponent"};
  PrintCellTable table;
  table.heightPixels = 140;
  for (const double top : kTops)
    for (const double left : kLefts) table.cells.push_back({left, top, 23, 30});
  for (int i = 0; i < 3; ++i)
    table.labels.push_back({kLefts[i], 7, 23, 20, kHeads[i], 12, platform::colour::Red});
  for (int i = 0; i < 2; ++i) table.labels.push_back({2, kTops[i] + 8, 19, 20, kRows[i], 12});
  return table;
}

// What is multiplied, b being the base that stands twice:
enum class Form {
  OneBase = 1,    // 3b^2 b^5
  LetterBetween,  // 3b^2 a b^5
  BareLetter,     // 3b^2 a^5 b: the second b has no exponent
};

// --- Teaching screens --------------------------------------------------------

void ShowNote(int index, double row, double col, const std::string& text) {
  lblNotesPrepare(index, row, col, text, platform::colour::Yellow, platform::colour::Black, true,
                  false, 12);
  lblNotesShow(index);
}

void MeaningOfAPower() {
  NewScreen();
  WrapAt(3, R"(A \cpower\z is a short way to write a product of equal factors:)");
  Locate(8, 13);
  WordWrap("b^4^ = " + WrittenOut({"b", 4}));
  PageEnd();
  ShowNote(1, 6, 13.8, " the exponent: how many factors ");
  isDrawArrow1Segment(7, 14, 7.5, 14, platform::colour::Yellow, "NA", "A");
  ShowNote(2, 10.2, 8, " the base: what is multiplied ");
  isDrawArrow1Segment(10, 13, 9, 13, platform::colour::Yellow, "NA", "A");
  WrapAt(12, R"(The \cbase\z is the factor.  The \cexponent\z counts how often it stands there.)");
  PageEnd();
  isPrint();
  WordWrap("A letter without an exponent stands there once:  b = b^1^.");
  PageEnd();
  isPrint();
  WordWrap("How do we write " + WrittenOut({"d", 5}) + " as a power?");
  PageEnd();
  WordWrap("The base d stands there 5 times:  d^5^.");
  PageEnd();
}

void CountingFactors() {
  NewScreen();
  WrapAt(3, "What is b^3^ times b^4^?  Let's write both powers out:");
  UnfoldPowers({"b", 3}, {"b", 4}, 5.5);
  PageEnd();
  WrapAt(9.5, "The first power brings 3 factors, the second one 4.  Together there are 7:");
  isPrintLines(0.4);
  WordWrap("   b^3^" + tutor::Dot + "b^4^ = b^7^");
  PageEnd();
}

// The table says in numbers what the factors have shown.
void CompareBasesAndExponents() {
  enum { kFirstBase = 1, kSecondBase, kProductBase, kFirstExponent, kSecondExponent, kSum };
  using platform::colour::Black;
  using platform::colour::Red;
  picPrintCellBoxPrepare3(14, PowersTable());
  picPrintCellPrint(kFirstBase, "b", Black, kTableSize);
  picPrintCellPrint(kSecondBase, "b", Black, kTableSize);
  picPrintCellPrint(kFirstExponent, "3", Black, kTableSize);
  picPrintCellPrint(kSecondExponent, "4", Black, kTableSize);
  picPrintCellBoxShow();
  WrapAt(20.5, "What belongs in the last column?");
  PageEnd();
  picPrintCellPrint(kProductBase, "b", Red, kTableSize);
  picPrintCellPrint(kSum, "7", Red, kTableSize);
  WordWrap(R"(The base \ystays\z, the exponents are \yadded\z.)");
  PageEnd();
}

void TheRule() {
  NewScreen();
  ShowRuleBox(kRuleBox, 3, kRuleWidth, kRuleHeading, {kRule});
  WrapAt(6.5, "To multiply powers of the same base, we keep the base and add the exponents.");
  PageEnd();
  SlideExponentsTogether({"x", 2}, {"x", 6}, 9.5);
  PageEnd();
  WrapAt(13.5, "The base may be a number.  It stays:");
  ShowPaperBox(kRemarkBox, 15, {"5^2^" + tutor::Dot + R"(5^4^ = 5^6^,  \rnot 25^6^\z)"});
  PageEnd();
  wbPrepare(18, 34, 4, platform::colour::White, platform::colour::Blue);
  wbShow();
  wbWordWrap("Why do we not multiply 3 by 4?");
  wbWordWrap(" 2^3^" + tutor::Dot + "2^4^ = 8" + tutor::Dot + "16 = 128");
  wbWordWrap(R"( 2^7^ = 128,  but \r2^12^ = 4096\z)");
  PageEnd();
  wbWipeAndErase();
  wbWordWrap("What is k^5^" + tutor::Dot + "k^3^?");
  PageEnd();
  wbWordWrap("The base stays k, and 5 + 3 = 8:");
  wbWordWrap(" k^5^" + tutor::Dot + "k^3^ = k^8^");
  PageEnd();
}

// The a of 4b^2 a b^3 moves to its place in the row below.
void BringLetterForward(double row) {
  constexpr double kCol = 4;
  constexpr double kLetter = kCol + 4;
  constexpr double kDrop = 1.48;  // rows; whole pixels
  Locate(row, kCol);
  WordWraps("4b^2^" + tutor::Dot + R"(\ya\z)" + tutor::Dot + "b^3^");
  Locate(row + kDrop, kCol);
  isPrints("4");
  Anim2(row, kLetter, 1, 1, 2, kDrop, 50, 0);
  Anim2(row + kDrop, kLetter, 1, 1, 3, 3, 50, 1);
  Locate(row + kDrop, kCol + 2);
  WordWrap(tutor::Dot + "b^2^" + tutor::Dot + "b^3^ = 4ab^5^");
}

void OtherFactors() {
  NewScreen();
  WrapAt(3, "A number in front stays as it is:");
  WordWrap("   6b^2^" + tutor::Dot + "b^5^ = 6b^7^");
  PageEnd();
  isPrint();
  WordWrap("The rule needs equal bases.  With different ones nothing can be added:");
  ShowPaperBox(kRemarkBox, 8.4,
               {"a^2^" + tutor::Dot + "b^3^ = " + JoinedByDots({"a", "a", "b", "b", "b"}) +
                R"(,  \rnot ab^5^\z)"});
  PageEnd();
  WrapAt(10.8, "The order of factors does not matter.  So we may bring equal letters together:");
  BringLetterForward(13.2);
  PageEnd();
  WrapAt(16.5, "A letter without an exponent has the exponent 1:  c^4^" + tutor::Dot + "c = c^4^" +
                   tutor::Dot + "c^1^ = c^5^.");
  PageEnd();
  isPrint();
  WordWrap("Simplify 3n^2^" + tutor::Dot + "d" + tutor::Dot + "n before you go on.");
  PageEnd();
  WordWrap("The exponents of n are 2 and 1:  3dn^3^.");
  PageEnd();
}

// --- The lesson ------------------------------------------------------------

class MultiplyingWithExponents final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {
        {MeaningOfAPower}, {CountingFactors, CompareBasesAndExponents}, {TheRule}, {OtherFactors}};
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
  std::string WithExponent(int exponent) const;
  void WrongOnes();
  void WrongOnesOfBareLetter();
  void Filler(RandomStream& random, int slot);

  std::string Front() const;
  std::string SumText() const;

  void ShowExpression(double row);
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

// The answer with another exponent of the base.
std::string MultiplyingWithExponents::WithExponent(int exponent) const {
  return Product(number_, exponent, OtherExponent());
}

void MultiplyingWithExponents::DrawProblem(RandomStream& random) {
  form_ = static_cast<Form>(random.Rand(1, 3));
  base_ = random.OneOf(kBaseLetters);
  other_ = DrawOtherLetter(random, kOtherLetters, base_);  // two letters of a problem differ
  number_ = random.Rand(1, 9);
  firstExponent_ = random.Rand(2, 9);
  secondExponent_ = random.Rand(2, 9);

  problem.question = {"Simplify the following expression:", Expression()};
  problem.kind = choice_kind::FiveShuffled;
  problem.Right(1, WithExponent(Sum()));
  if (form_ == Form::BareLetter)
    WrongOnesOfBareLetter();
  else
    WrongOnes();
  Filler(random, 5);
  // 2 and 2 have the same sum and product (one pair in 64), and a filler may meet another choice.
  ReplaceRepeatedTexts(problem, [&](int slot) { Filler(random, slot); });
}

void MultiplyingWithExponents::WrongOnes() {
  problem.Wrong(2, "multiplies the exponents", WithExponent(firstExponent_ * secondExponent_));
  problem.Wrong(3, "keeps the first exponent", WithExponent(firstExponent_));
  if (form_ == Form::OneBase)
    problem.Wrong(4, "adds the bases too", Product(2 * number_, Sum(), 0));
  else
    problem.Wrong(4, "gives the sum to both letters", Product(number_, Sum(), Sum()));
}

void MultiplyingWithExponents::WrongOnesOfBareLetter() {
  problem.Wrong(2, "counts a bare letter as no factor", WithExponent(firstExponent_));
  problem.Wrong(3, "adds exponents of neighbors",
                Product(number_, firstExponent_, secondExponent_ + 1));
  const int all = firstExponent_ + secondExponent_ + 1;
  problem.Wrong(4, "gives the sum to both letters", Product(number_, all, all));
}

void MultiplyingWithExponents::Filler(RandomStream& random, int slot) {
  const int exponent = random.Rand(2, 9);
  problem.Wrong(slot, "filler", WithExponent(exponent));
}

// The number and the other letter, which stay as they are.
std::string MultiplyingWithExponents::Front() const {
  return ProductText(number_, {{other_, OtherExponent()}});
}

std::string MultiplyingWithExponents::SumText() const {
  return NumStr(First().exponent) + " + " + NumStr(Second().exponent) + " = " + NumStr(Sum());
}

// --- Problem page ------------------------------------------------------------

void MultiplyingWithExponents::ShowExpression(double row) {
  Locate(row, 4);
  WordWrap(Expression());
}

void MultiplyingWithExponents::ShowProblem() {
  WrapAt(5, problem.question[0]);
  ShowExpression(7);
  picAnswerSetParameters(2, 11, 1, 21, 0, 16, 50, 27);
}

// --- Worked explanation ------------------------------------------------------

void ShowRule() {
  ShowRuleBox(kRuleBox, 7.4, kRuleWidth, kRuleHeading, {kRule});
}

void MultiplyingWithExponents::ExplainProblem() {
  ProblemBanner();
  WrapAt(4.6, problem.question[0]);
  ShowExpression(6);
  PageEnd();
  ShowRule();
  PageEnd();
  BringTogether();
  WriteOutFactors();
  AddExponents();
  WriteResult();
}

// The powers of the base side by side; what else there is comes before them.
void MultiplyingWithExponents::BringTogether() {
  Locate(10.5, 1);
  if (form_ == Form::OneBase) {
    WordWrap(R"(Both powers have the same base, \y)" + base_ + R"(\z.)" +
             (number_ == 1 ? "" : "  The number " + NumStr(number_) + " stays in front."));
    PageEnd();
    return;
  }
  if (form_ == Form::BareLetter) {
    WordWrap("A letter without an exponent stands there once:  " + base_ + " = " + base_ + "^1^.");
    PageEnd();
  }
  WordWrap("The order of factors does not matter, so we bring the powers of " + base_ +
           " together:");
  isPrintLines(0.3);
  isPrints("   ");
  WordWrap(Front() + tutor::Dot + R"(\y)" + PowerText(First()) + tutor::Dot + PowerText(Second()) +
           R"(\z)");
  PageEnd();
}

void MultiplyingWithExponents::WriteOutFactors() {
  // One base needs no lines to bring its powers together.
  const double row = form_ == Form::OneBase ? 13 : 16;
  WrapAt(row, "Each power is a row of equal factors:");
  UnfoldPowers(First(), Second(), row + 1.5);
  PageEnd();
  WrapAt(row + 5, "There are " + SumText() + " factors " + base_ + ".");
  PageEnd();
}

void MultiplyingWithExponents::AddExponents() {
  NewScreen();
  ProblemBanner();
  WrapAt(5, "We keep the base and add the exponents:");
  ShowRule();
  SlideExponentsTogether(First(), Second(), 11);
  PageEnd();
  isPrint();
  WordWrap(R"(The exponent of the final result is \c)" + NumStr(Sum()) + R"(\z.)");
  PageEnd();
}

void MultiplyingWithExponents::WriteResult() {
  isPrint();
  if (form_ != Form::OneBase)
    WordWrap(number_ == 1 ? "The letters stand in the order of the alphabet:"
                          : "The number comes first, then the letters in the order of the "
                            "alphabet:");
  else
    WordWrap(number_ == 1 ? "So the answer is:" : "The number stays in front:");
  isPrintLines(0.3);
  isPrints("   ");
  WordWrap(Expression() + " = " + problem.choices[1].text);
  PageEnd();
}

const LessonRegistration<MultiplyingWithExponents> kRegistration("Multiplying with Exponents");

}  // namespace
}  // namespace course
