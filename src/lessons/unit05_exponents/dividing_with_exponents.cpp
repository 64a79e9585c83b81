// The student can divide powers of the same base by subtracting their exponents, knows on which
// side of the bar the factors are left, why an exponent of 0 gives 1, and what a negative exponent
// means.
//
// A problem is a built-up fraction of one of seven forms.
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_figures.h"
#include "lessons/families/powers/quotient.h"
#include "lessons/families/powers/quotient_problem.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

constexpr double kExpressionCol = 4;

std::string Difference(int m, int n) {
  return NumStr(m) + " - " + NumStr(n) + " = " + NumStr(m - n);
}

// --- Teaching screens --------------------------------------------------------

void FactorsCancel() {
  NewScreen();
  SayAt(3, R"(In b^5^ the \cbase\z is b and the \cexponent\z is 5:  b is a \cfactor\z 5 times.)");
  PageEnd();
  SayAt(6, "A fraction bar means division:");
  ShowAt(8.5, "b^5^/b^2^ =", kExpressionCol);
  const FactorFraction fraction(7.7, 10, {"b", 5}, {"b", 2});
  GoBelow();
  PageEnd();
  fraction.Cancel();
  fraction.ShowBehind(R"(= \yb^3^\z)");
  SayAt(10.8, R"(b/b is 1, so 2 factors b above and below \ccancel\z.  5 - 2 = 3 are left above.)");
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "c^7^ " + tutor::Divided + " c^3^"));
  PageEnd();
  Say(Text(R"(3 of the 7 factors c cancel, and {} are left:  \y{}\z)", "7 - 3 = 4", "c^4^"));
  Say(R"(The base \ystays\z, and the exponents are \ysubtracted\z.)");
  PageEnd();
}

void SubtractTheExponents() {
  NewScreen();
  RuleBox("Rule For Dividing Powers",
          {"b^m^ " + tutor::Divided + " b^n^ = b^m-n^   (b is not 0)",
           "With the same base, the exponents are",
           R"(subtracted, \rnot divided, added, multiplied\z)"},
          {.row = 3, .width = 38});
  PageEnd();
  SlideExponentsToDifference({"x", 8}, {"x", 2}, NextRow() + 0.5);
  Say(R"(\yWatch out:\z  With 2 in place of x:)");
  PaperBox({"2^8^ " + tutor::Divided + " 2^2^ = 256 " + tutor::Divided +
            R"( 4 = 64 = 2^6^,  \rnot 2^4^, 2^10^ or 2^16^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Is  )" + Text("{} equal to {}?", "x^6^", "6x"));
  PageEnd();
  Say(
      Text("No.  The exponent tells how many factors x there are.  With 2 in place of x, {} is 64, "
           "and {} is 12.",
           "x^6^", "6x"));
  PageEnd();
}

void MoreFactorsBelow() {
  NewScreen();
  SayAt(3, "What if more factors are below the bar?");
  ShowAt(6, "n^2^/n^5^ =", kExpressionCol);
  const FactorFraction fraction(5.2, 10, {"n", 2}, {"n", 5});
  GoBelow();
  PageEnd();
  fraction.Cancel();
  fraction.ShowBehind(R"(= \y1\z/\yn^3^\z)");
  SayAt(8.5,
        "Each n/n that cancels is 1, so 1 is left above.  5 - 2 = 3 factors n are left "
        R"(\ybelow\z the bar.)");
  PageEnd();
  Say(R"(\yWatch out:\z  What is left stays on its side of the bar.  With 2 in place of n:)");
  PaperBox({"2^2^ " + tutor::Divided + " 2^5^ = 4 " + tutor::Divided + " 32 = 1 " + tutor::Divided +
            R"( 8,  \rnot 8\z)"});
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "a^4^ " + tutor::Divided + " a^6^"));
  PageEnd();
  Show(R"(a^4^/a^6^ = \y1\z/\ya^2^\z)", kExpressionCol);
  Say("6 - 4 = 2 factors a are left below.");
  PageEnd();
}

void NumbersInFront() {
  NewScreen();
  SayAt(3, R"(Numbers in front are \ydivided\z.  Only the exponents are subtracted:)");
  ShowAt(6.5, "12x^7^/(4x^2^) = 12/4 " + tutor::Dot + R"( x^7^/x^2^ = \y3x^5^\z)", kExpressionCol);
  PaperBox({"12x^7^ " + tutor::Divided + R"( (4x^2^) = 3x^5^,  \rnot 8x^5^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Simplify this fraction:)");
  Show("10c^6^/(2c^5^)", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= \y5c\z)", kExpressionCol + 5);
  GoBelow();
  Say(Text("{} = 5, and {}.", "10 " + tutor::Divided + " 2", "c^6-5^ = c^1^ = c"));
  PageEnd();
}

void TwoLettersApart() {
  constexpr double kFactorsRow = 9.4;
  NewScreen();
  SayAt(3, "x and y are different bases, so each letter has a fraction of its own:");
  ShowAt(6.5, "x^4^y^2^/(x^3^y^5^) = x^4^/x^3^ " + tutor::Dot + " y^2^/y^5^", kExpressionCol);
  PageEnd();
  const FactorFraction first(kFactorsRow, kExpressionCol + 2, {"x", 4}, {"x", 3});
  ShowAt(kFactorsRow + 0.8, "=", kExpressionCol);
  ShowAt(kFactorsRow + 0.8, tutor::Dot, first.ColumnBehind() + 1);
  const FactorFraction second(kFactorsRow, first.ColumnBehind() + 3, {"y", 2}, {"y", 5});
  first.Cancel();
  second.Cancel();
  PageEnd();
  SayAt(13, "1 factor x is left above, 3 factors y are left below:");
  Show(R"(= x \)"
       "z" +
           tutor::Dot + R"( 1/y^3^ = \yx\z/\yy^3^\z)",
       kExpressionCol);
  PageEnd();
}

void TwoLettersTried() {
  constexpr double kFirstRow = 5.5;
  constexpr double kSecondRow = 9;
  constexpr double kBelow = 12;
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify these fractions:)");
  ShowAt(kFirstRow, "p^2^q^7^/(p^6^q^4^)", kExpressionCol);
  ShowAt(kSecondRow, "a^2^b^3^/(a^4^b^8^)", kExpressionCol);
  PageEnd();
  ShowAt(kFirstRow, R"(= \yq^3^\z/\yp^4^\z)", kExpressionCol + 5);
  SayAt(kBelow, "6 - 2 = 4 factors p are left below, and 7 - 4 = 3 factors q above.");
  PaperBox({"q^3^ " + tutor::Divided + " p^4^,  \\rnot p^4^ " + tutor::Divided + " q^3^\\z"});
  PageEnd();
  ShowAt(kSecondRow, R"(= \y1\z/(\ya^2^b^5^\z))", kExpressionCol + 5);
  GoBelow();
  Say("4 - 2 = 2 factors a and 8 - 3 = 5 factors b are left below.  Nothing is left above but 1.");
  PageEnd();
}

void ExponentZero() {
  NewScreen();
  SayAt(3, "From column to column the exponent is 1 less, and the value is divided by 2:");
  CellTable(TwoRows("Power", "Value", 6), 5.4);
  FillCells(1, {"2^3^", "2^2^", "2^1^", "2^0^"});
  FillCells(7, {"8", "4", "2"});
  SayAt(10, R"(\yTry it:\z  What stands under  )" + Text("{}?", "2^0^"));
  PageEnd();
  FillCells(10, {"1"}, platform::colour::Blue);
  Say("2 " + tutor::Divided + " 2 = 1.  The rule gives an exponent 0, too:");
  Show(R"(x^4^/x^4^ = x^4-4^ = \yx^0^\z)", kExpressionCol);
  PageEnd();
  Say(R"(A number divided by itself is 1.  So  \y)" +
      Text(R"({}\z  for every x except 0.)", "x^0^ = 1"));
  Say(Text(R"(\yWatch out:\z  {} is not 0, and not x.)", "x^0^"));
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "a^5^b^0^ " + tutor::Divided + " a^2^"));
  PageEnd();
  NewScreen();
  ShowAt(4, R"(a^5^b^0^/a^2^ = a^5^/a^2^ = \ya^3^\z)", kExpressionCol);
  GoBelow();
  Say(Text("{} is 1, and a factor 1 changes nothing.", "b^0^"));
  PageEnd();
}

void NegativeExponents() {
  constexpr double kFactorsRow = 11.5;
  constexpr double kRuleRow = 16.4;
  NewScreen();
  SayAt(3, R"(\yTry it:\z  We go on dividing by 2.  Which two values come next?)");
  CellTable(TwoRows("Power", "Value", 6), 5.4);
  FillCells(1, {"2^3^", "2^2^", "2^1^", "2^0^", "2^-1^", "2^-2^"});
  FillCells(7, {"8", "4", "2", "1"});
  PageEnd();
  FillCells(11, {"1/2", "1/4"}, platform::colour::Blue);
  SayAt(9.3,
        Text("Half of 1 is 1/2, and half of 1/2 is 1/4.  Why is {} a fraction?  Look:", "2^-2^"));
  ShowAt(kFactorsRow + 1.1, "k^2^/k^5^ =", kExpressionCol);
  const FactorFraction fraction(kFactorsRow + 0.3, 10, {"k", 2}, {"k", 5});
  fraction.Cancel();
  fraction.ShowBehind(R"(= \y1\z/\yk^3^\z)");
  PageEnd();
  ShowAt(kRuleRow, R"(k^2^/k^5^ = k^2-5^ = \yk^-3^\z)", kExpressionCol);
  SayAt(kRuleRow, "by the rule", {.col = 22});
  PageEnd();

  NewScreen();
  SayAt(3, "It is the same fraction both times, so");
  Show(R"(\yk^-3^\z = \y1\z/\yk^3^\z)", kExpressionCol);
  Say("In the same way, as the table says:");
  Show(R"(2^-2^ = 1/2^2^ = \y1\z/\y4\z)", kExpressionCol);
  PageEnd();

  NewScreen();
  SayAt(3, R"(2^-3^ has 3 factors \ybelow\z the bar.)");
  AddLine("It does not make a negative number:");
  PaperBox({"2^-3^ = 1 " + tutor::Divided + " 2^3^ = 1 " + tutor::Divided + " 8,",
            R"(\rnot -8,  not 2 )" + tutor::Times + R"( (-3) = -6\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Write this with a fraction bar.  Then write it without one:)");
  Show("x^3^/x^7^", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= \y1\z/\yx^4^\z = \yx^-4^\z)", kExpressionCol + 3);
  GoBelow();
  Say(Text("7 - 3 = 4 factors are left below.  By the rule the exponent is {}.", "3 - 7 = -4"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class DividingWithExponents final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FactorsCancel, SubtractTheExponents},
            {MoreFactorsBelow},
            {NumbersInFront, TwoLettersApart, TwoLettersTried},
            {ExponentZero, NegativeExponents}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  bool HasTwoLetters() const { return quotient_.form == QuotientForm::TwoLetters; }
  void ShowTask() const;
  void Prepare() const;
  void CancelFactors() const;
  void SayWhatIsLeft() const;
  void SubtractExponents() const;
  std::string MeaningOfNegative() const;
  void CheckByRule() const;
  void CheckWithTwo() const;

  QuotientProblem quotient_;
};

// --- Generator ---------------------------------------------------------------

void DividingWithExponents::DrawProblem(RandomStream& random) {
  quotient_ = DrawQuotient(random);

  problem.question = {"Simplify the following expression:", quotient_.Expression()};
  if (quotient_.form == QuotientForm::NegativeAnswer)
    problem.question.emplace_back("Write the answer without a fraction.");
  Choices<std::string> choices(problem, choice_kind::FiveShuffled,
                               [](const std::string& quotient) { return quotient; });
  choices.Right(quotient_.Simplified());
  for (const QuotientMistake& mistake : quotient_.Mistakes(random))
    choices.Wrong(mistake.name, mistake.quotient);
  choices.Fill([&] { return PowerText({quotient_.letter, random.Rand(2, 18)}); });
}

// --- Problem page ------------------------------------------------------------

void DividingWithExponents::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7.5, quotient_.Expression(), kExpressionCol);
  if (problem.question.size() > 2) SayAt(9.75, problem.question[2]);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

void DividingWithExponents::ExplainProblem() {
  ShowTask();
  Prepare();
  CancelFactors();
  SayWhatIsLeft();
  NewScreen();
  ShowTask();
  if (HasTwoLetters())
    Say("What is left above and below the bar is the answer:");
  else
    SubtractExponents();
  if (quotient_.form != QuotientForm::MoreAbove) {  // there the rule's line ends with the answer
    Show(quotient_.Expression() + " = " + RightText(problem), kExpressionCol);
    PageEnd();
  }
  if (HasTwoLetters())
    CheckByRule();
  else if (quotient_.form != QuotientForm::Numbers)
    CheckWithTwo();
  Conclude(problem);
}

void DividingWithExponents::ShowTask() const {
  ProblemBanner();
  ShowAt(6, quotient_.Expression(), kExpressionCol);
  if (quotient_.form == QuotientForm::NegativeAnswer)
    ShowAt(6, "without a fraction", kExpressionCol + 5);
  GoBelow();
}

// Numbers, other letters and exponents 0 come first, so that powers of one base are left.
void DividingWithExponents::Prepare() const {
  if (quotient_.form == QuotientForm::Numbers)
    Say(Text(R"(The numbers in front are divided:  \y{}\z)",
             NumStr(quotient_.numberAbove) + " " + tutor::Divided + " " +
                 NumStr(quotient_.numberBelow) + " = " + NumStr(quotient_.Number())));
  if (quotient_.form == QuotientForm::ZeroExponent) {
    const std::string power = quotient_.other + "^0^";
    Say(Text(R"({} is \y1\z, as {} is 1.  A factor 1 changes nothing, so we may leave it out.)",
             power, quotient_.other + "/" + quotient_.other));
  }
  if (HasTwoLetters()) Say("Each letter has a fraction of its own.");
  if (quotient_.form == QuotientForm::Numbers || quotient_.form == QuotientForm::ZeroExponent ||
      HasTwoLetters())
    PageEnd();
}

void DividingWithExponents::CancelFactors() const {
  Say(HasTwoLetters() ? "We write out the factors:"
                      : "We write out the factors " + quotient_.letter + ":");
  const double row = NextRow() + 0.5;
  const FactorFraction first(row, 2, {quotient_.letter, quotient_.above},
                             {quotient_.letter, quotient_.below});
  std::optional<FactorFraction> second;
  if (HasTwoLetters()) {
    ShowAt(row + 0.8, tutor::Dot, first.ColumnBehind() + 1);
    second.emplace(row, first.ColumnBehind() + 3, Power{quotient_.other, quotient_.otherAbove},
                   Power{quotient_.other, quotient_.otherBelow});
  }
  GoBelow();
  PageEnd();
  first.Cancel();
  if (second) second->Cancel();
  Say("A factor above and the same factor below cancel, since their quotient is 1.");
  PageEnd();
}

// "2 factors b are left above the bar", from the exponents above and below.
std::string WhatIsLeft(const std::string& letter, int above, int below) {
  if (above == below) return "All factors cancel, and 1 is left.";
  const int left = std::abs(above - below);
  return Text("{}, so {} factor{} {} {} left {} the bar.",
              above > below ? Difference(above, below) : Difference(below, above), left,
              Words{PluralSuffix(left)}, letter, Words{left == 1 ? "is" : "are"},
              Words{above > below ? "above" : "below"});
}

void DividingWithExponents::SayWhatIsLeft() const {
  Say(WhatIsLeft(quotient_.letter, quotient_.above, quotient_.below));
  if (HasTwoLetters())
    AddLine(WhatIsLeft(quotient_.other, quotient_.otherAbove, quotient_.otherBelow));
  PageEnd();
}

// "t^-3^ means 1/t^3^, as the factors are left below the bar".
std::string DividingWithExponents::MeaningOfNegative() const {
  const int exponent = quotient_.Difference();
  return Text("{} means {}, as the factor{} {} left below the bar",
              quotient_.letter + "^" + NumStr(exponent) + "^",
              FractionOfTexts("1", PowerText({quotient_.letter, -exponent})),
              Words{PluralSuffix(-exponent)}, Words{exponent == -1 ? "is" : "are"});
}

void DividingWithExponents::SubtractExponents() const {
  Say("The rule gives the same.  We keep the base and subtract the exponents:");
  SlideExponentsToDifference({quotient_.letter, quotient_.above},
                             {quotient_.letter, quotient_.below}, NextRow() + 0.5);
  PageEnd();
  switch (quotient_.form) {
    case QuotientForm::MoreBelow:
      Say(MeaningOfNegative() + ":");
      break;
    case QuotientForm::AsMany:
      Say("The exponent 0 gives 1, since the fraction is a number divided by itself:");
      break;
    case QuotientForm::Numbers:
      Say(Text("With the number {} in front:", quotient_.Number()));
      break;
    case QuotientForm::NegativeAnswer:
      Say(MeaningOfNegative() + ".  We write it without a fraction bar:");
      break;
    case QuotientForm::ZeroExponent:
      Say("So this is what we get:");
      break;
    default:
      break;
  }
}

// "2^3^ = 8", or "1/2^3^ = 1/8" for those that are left below the bar.
std::string PowerOfTwo(int exponent) {
  const int factors = std::abs(exponent);
  const std::string over = exponent < 0 ? "1/" : "";
  const std::string value = over + NumStr(static_cast<double>(ValueOfPower(2, factors)));
  return factors < 2 ? value : over + PowerOf(2, factors) + " = " + value;
}

// "x^5-3^ = x^2^".
std::string RuleText(const std::string& letter, int above, int below) {
  const int difference = above - below;
  return letter + "^" + NumStr(above) + "-" + NumStr(below) + "^ = " + letter +
         (difference == 1 ? "" : "^" + NumStr(difference) + "^");
}

void DividingWithExponents::CheckByRule() const {
  Say(R"(\yCheck:\z  We subtract the exponents of each letter by itself:)");
  ShowAt(NextRow() + 0.3,
         RuleText(quotient_.letter, quotient_.above, quotient_.below) + "      " +
             RuleText(quotient_.other, quotient_.otherAbove, quotient_.otherBelow),
         kExpressionCol);
  if (quotient_.above < quotient_.below || quotient_.otherAbove < quotient_.otherBelow)
    Say("Negative exponents:  below the bar.");
  PageEnd();
}

// Both sides of the result with 2 in place of the letter.
void DividingWithExponents::CheckWithTwo() const {
  const auto value = [](int exponent) {
    return NumStr(static_cast<double>(ValueOfPower(2, exponent)));
  };
  const int difference = quotient_.Difference();
  NewScreen();
  ProblemBanner();
  ShowAt(6, quotient_.Expression() + " = " + RightText(problem), kExpressionCol);
  const bool other = !quotient_.other.empty();  // with the exponent 0
  Say(Text(R"(\yCheck:\z  With 2 for {}{}:)", quotient_.letter,
           Words{other ? " and 3 for " + quotient_.other : ""}));
  const auto above = [&](const std::string& power, const std::string& zero) {
    return other ? "(" + power + " " + tutor::Times + " " + zero + ")" : power;
  };
  Show(FractionOfTexts(above(PowerOf(2, quotient_.above), "3^0^"), PowerOf(2, quotient_.below)) +
           " = " + FractionOfTexts(above(value(quotient_.above), "1"), value(quotient_.below)) +
           " = " + (difference < 0 ? "1/" : "") + value(std::abs(difference)),
       kExpressionCol);
  const bool written = quotient_.form == QuotientForm::NegativeAnswer;
  const std::string right =
      (written ? "2^" + NumStr(difference) + "^ = " : "") + PowerOfTwo(difference);
  if (right.find('=') == std::string::npos) {
    Say(Text("The right side is {}, too.", right));
  } else {
    Say("The right side is the same:");
    Show(right, kExpressionCol);
  }
  PageEnd();
}

const LessonRegistration<DividingWithExponents> kRegistration("Dividing with Exponents");

}  // namespace
}  // namespace course
