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

void ShowRule(double row = kUnder) {
  RuleBox("Rule For Dividing Powers", {"b^m^ " + tutor::Divided + " b^n^ = b^m-n^"},
          {.row = row, .width = 24});
}

// --- Teaching screens --------------------------------------------------------

void FactorsCancel() {
  NewScreen();
  SayAt(3, "A fraction bar means division:");
  ShowAt(6.3, "b^5^/b^2^ =", 5);
  const FactorFraction fraction(5.5, 11, {"b", 5}, {"b", 2});
  GoBelow();
  PageEnd();
  Say(R"(b/b is 1, so we strike out a factor above together with one below.  They )"
      R"(\ccancel\z.)");
  fraction.Cancel();
  PageEnd();
  fraction.ShowBehind(R"(= \yb^3^\z)");
  SayAt(12.5, "5 - 2 = 3 factors are left above.");
  Say(R"(The base \ystays\z, and the exponents are \ysubtracted\z.)");
  PageEnd();
  Say(R"(\yTry it:\z  What is  )" + Text("{}?", "c^7^ " + tutor::Divided + " c^3^"));
  PageEnd();
  Say(Text(R"(3 of the 7 factors c cancel, and 4 are left:  \y{}\z)", "c^4^"));
  PageEnd();
}

void WrongWays() {
  NewScreen();
  ShowRule(3);
  Say("We keep the base and subtract the exponents.  (b is not 0.)");
  PageEnd();
  SlideExponentsToDifference({"x", 8}, {"x", 2}, NextRow() + 0.5);
  PageEnd();
  Say(R"(\yWatch out:\z  The exponents are not divided.  With 2 in place of x:)");
  PaperBox({"2^8^ " + tutor::Divided + " 2^2^ = 256 " + tutor::Divided + " 4 = 64",
            R"(2^6^ = 64,  but \r2^4^ = 16\z)"});
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
  ShowAt(6.3, "n^2^/n^5^ =", 5);
  const FactorFraction fraction(5.5, 11, {"n", 2}, {"n", 5});
  GoBelow();
  PageEnd();
  fraction.Cancel();
  Say("All factors above cancel, and 1 stays there.  5 - 2 = 3 factors are left below:");
  fraction.ShowBehind(R"(= \y1\z/\yn^3^\z)");
  PageEnd();
  SayAt(12.5,
        R"(\yWatch out:\z  What is left stays on its side of the bar.  With 2 in place of n:)");
  Show(R"(2^2^/2^5^ = 4/32 = 1/8)", kExpressionCol);
  PageEnd();
  Say(R"(\yTry it:\z  Simplify this fraction:)");
  Show("a^4^/a^6^", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= \y1\z/\ya^2^\z,  as 6 - 4 = 2 are left below)", kExpressionCol + 3);
  PageEnd();
}

void NumbersInFront() {
  NewScreen();
  SayAt(3, "Numbers in front are divided as numbers are:");
  ShowAt(6.5, "12x^7^/(4x^2^)", kExpressionCol);
  ShowAt(6.5, "= 12/4 " + tutor::Dot + " x^7^/x^2^", kExpressionCol + 6);
  PageEnd();
  ShowAt(6.5, R"(= \y3x^5^\z)", kExpressionCol + 16);
  SayAt(9, "12 " + tutor::Divided + " 4 = 3,  and 7 - 2 = 5.", {.col = kExpressionCol});
  PageEnd();
  Say(R"(\yWatch out:\z  The numbers are \ydivided\z.  Only the exponents are subtracted:)");
  PaperBox({"12x^7^ " + tutor::Divided + R"( (4x^2^) = 3x^5^,  \rnot 8x^5^\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Simplify this fraction:)");
  Show("10c^6^/(2c^5^)", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= \y5c\z)", kExpressionCol + 6);
  GoBelow();
  Say("10 " + tutor::Divided + " 2 = 5, and 6 - 5 = 1 factor c is left.");
  PageEnd();
}

void TwoLettersApart() {
  NewScreen();
  SayAt(3, "With two letters, we make a fraction of each letter:");
  ShowAt(6.5, "x^4^y^2^/(x^3^y^5^) = x^4^/x^3^ " + tutor::Dot + " y^2^/y^5^", kExpressionCol);
  PageEnd();
  const FactorFraction first(9, kExpressionCol + 2, {"x", 4}, {"x", 3});
  ShowAt(9.8, "=", kExpressionCol);
  ShowAt(9.8, tutor::Dot, first.ColumnBehind() + 1);
  const FactorFraction second(9, first.ColumnBehind() + 3, {"y", 2}, {"y", 5});
  first.Cancel();
  second.Cancel();
  PageEnd();
  SayAt(12.5, "1 factor x is left above, 3 factors y are left below:");
  Show(R"(= x \)"
       "z" +
           tutor::Dot + R"( 1/y^3^ = \yx\z/\yy^3^\z)",
       kExpressionCol);
  PageEnd();
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Simplify this fraction:)");
  Show("p^2^q^7^/(p^6^q^4^)", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= \yq^3^\z/\yp^4^\z)", kExpressionCol + 6);
  GoBelow();
  Say("p has 6 - 2 = 4 factors left below, q has 7 - 4 = 3 left above.");
  PageEnd();
}

void ExponentZero() {
  NewScreen();
  SayAt(3, "From column to column the exponent is 1 less, and the value is divided by 2:");
  CellTable(TwoRows("Power", "Value", 6), 6);
  FillCells(1, {"2^3^", "2^2^", "2^1^", "2^0^"});
  FillCells(7, {"8", "4", "2"});
  SayAt(11, R"(\yTry it:\z  What stands under  )" + Text("{}?", "2^0^"));
  PageEnd();
  FillCells(10, {"1"}, platform::colour::Blue);
  Say("2 " + tutor::Divided + " 2 = 1.  The rule says the same:");
  Show(R"(x^4^/x^4^ = x^4-4^ = \yx^0^\z)", kExpressionCol);
  PageEnd();
  Say(R"(A number divided by itself is 1.  So  \y)" +
      Text(R"({}\z  for each x that is not 0.)", "x^0^ = 1"));
  Say(Text(R"(\yWatch out:\z  {} is not 0, and not x.)", "x^0^"));
  PageEnd();
}

void NegativeExponents() {
  NewScreen();
  SayAt(3, "We go on dividing by 2.  What is next?");
  CellTable(TwoRows("Power", "Value", 6), 5.4);
  FillCells(1, {"2^3^", "2^2^", "2^1^", "2^0^", "2^-1^", "2^-2^"});
  FillCells(7, {"8", "4", "2", "1"});
  PageEnd();
  FillCells(11, {"1/2", "1/4"}, platform::colour::Blue);
  SayAt(10, "Half of 1 is 1/2, and half of 1/2 is 1/4.  The factors show the same:");
  const FactorFraction fraction(13.5, 10, {"k", 2}, {"k", 5});
  ShowAt(14.3, "k^2^/k^5^ =", kExpressionCol);
  fraction.Cancel();
  fraction.ShowBehind("= 1/k^3^");
  PageEnd();
  SayAt(17, Text("The rule gives {}.", "k^2-5^ = k^-3^"));
  Say(R"(So a negative exponent tells how many factors are left \ybelow\z the bar.)");
  PageEnd();

  NewScreen();
  SayAt(3, "A negative exponent does not make a negative number:");
  PaperBox({R"(2^-3^ means 1 over 2^3^)", R"(which is 1/8,  \rnot -8 and not -6\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  Write this fraction first with, then without a fraction bar:)");
  Show("x^3^y^0^/x^7^", kExpressionCol);
  PageEnd();
  ShowAt(NextRow() - 2.5, R"(= x^3^/x^7^ = \y1\z/\yx^4^\z = \yx^-4^\z)", kExpressionCol + 6);
  GoBelow();
  Say(Text("{} is a factor 1.  7 - 3 = 4 factors are left below, and 3 - 7 = -4.", "y^0^"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class DividingWithExponents final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{FactorsCancel, WrongWays},
            {MoreFactorsBelow},
            {NumbersInFront, TwoLettersApart},
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
  Show(quotient_.Expression() + " = " + RightText(problem), kExpressionCol);
  PageEnd();
  if (quotient_.other.empty() && quotient_.form != QuotientForm::Numbers) CheckWithTwo();
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
    Say(Text(R"({} is \y1\z, since a power with the exponent 0 is 1.  A factor 1 changes nothing, )"
             "so we may leave it out.",
             power));
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

void DividingWithExponents::SubtractExponents() const {
  Say("The rule gives the same.  We keep the base and subtract the exponents:");
  SlideExponentsToDifference({quotient_.letter, quotient_.above},
                             {quotient_.letter, quotient_.below}, NextRow() + 0.5);
  PageEnd();
  switch (quotient_.form) {
    case QuotientForm::MoreBelow:
      Say("A negative exponent tells that the factors are left below the bar:");
      break;
    case QuotientForm::AsMany:
      Say("The exponent 0 gives 1, since the fraction is a number divided by itself:");
      break;
    case QuotientForm::Numbers:
      Say(Text("With the number {} in front:", quotient_.Number()));
      break;
    case QuotientForm::NegativeAnswer:
      Say("The negative exponent tells that the factors are left below, with no fraction bar:");
      break;
    default:
      Say("So this is what we get:");
  }
}

// Both sides of the result with 2 in place of the letter.
void DividingWithExponents::CheckWithTwo() const {
  const auto value = [](int exponent) {
    return NumStr(static_cast<double>(ValueOfPower(2, exponent)));
  };
  const int difference = quotient_.Difference();
  const std::string power = difference == 1 ? "2" : "2^" + NumStr(difference) + "^";
  const std::string fraction = difference < 0 ? "1/" + value(-difference) : value(difference);
  NewScreen();
  ShowTask();
  Say("This is our result:");
  Show(quotient_.Expression() + " = " + RightText(problem), kExpressionCol);
  PageEnd();
  Say(Text(R"(\yCheck:\z  With 2 in place of {}:)", quotient_.letter));
  Show(FractionOfTexts(PowerOf(2, quotient_.above), PowerOf(2, quotient_.below)) + " = " +
           FractionOfTexts(value(quotient_.above), value(quotient_.below)) + " = " + fraction +
           " = " + power,
       kExpressionCol);
  PageEnd();
}

const LessonRegistration<DividingWithExponents> kRegistration("Dividing with Exponents");

}  // namespace
}  // namespace course
