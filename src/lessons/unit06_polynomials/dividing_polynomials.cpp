// The student can divide a polynomial by a monomial: divides each term by it, the numbers as
// numbers are divided, and subtracts the exponents of each letter.
//
// A problem is a built-up fraction of two terms in x and y over a number with powers of x and y, of
// which either may be missing.
#include "lessons/families/polynomials/monomial_quotient.h"
#include "lessons/families/polynomials/sum_of_terms.h"
#include "lessons/families/powers/quotient.h"
#include "lessons/families/properties/property_pages.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace polynomials;

constexpr double kExpressionCol = 4;
const std::string kDifference = "(20x^6^ - 8x^4^)/(4x^2^)";
constexpr double kWorkRow = 14;  // below the fractions of an explanation

std::string NumbersDivided(int above, int below) {
  return NumStr(above) + " " + tutor::Divided + " " + NumStr(below) + " = " + NumStr(above / below);
}

// Both terms over the divisor: "24x^5^/(6x^2^) - 18x^3^/(6x^2^)".
std::string SplitText(const MonomialQuotient& quotient) {
  const Term& second = quotient.terms[1];
  const Term size = {std::abs(second.coef), second.letters};
  return FractionText({quotient.terms[0]}, quotient.divisor) + (second.coef < 0 ? " - " : " + ") +
         FractionText({size}, quotient.divisor);
}

// --- Teaching screens ----------------------------------------------------------------------------

void SharedDots() {
  constexpr double kRow = 5;
  constexpr double kCol = 10;
  constexpr int kRows = 4;
  NewScreen();
  SayAt(3, "Four friends share 12 yellow and 8 blue stones:");
  for (int i = 0; i < kRows; ++i) {
    properties::DrawDots(kRow + i, kCol, 3, platform::colour::Yellow);
    properties::DrawDots(kRow + i, kCol + 6, 2, platform::colour::Cyan);
  }
  SayAt(10, R"(\yTry it:\z  How many of each color does a friend get?)");
  PageEnd();
  SlideRight({kRow - 0.2, kCol + 6, 3, kRows + 0.2}, 6);
  ClearBelow(10);
  SayAt(10,
        "Each row is the share of one friend:  3 yellow stones and 2 blue ones.  Both colors are "
        "divided by 4:");
  ShowAt(14.3, R"((12 + 8)/4 = 12/4 + 8/4 = 3 + 2 = \y5)", kExpressionCol);
  PageEnd();
  SayAt(16.8, R"(\yTry it:\z  Tom divides only the 12.  He gets 3 + 8 = 11.  Can that be?)");
  PageEnd();
  Say("No.  There are 20 stones, and 20 " + tutor::Divided + R"( 4 is 5.  Each number, )" +
      R"(or \cterm\z, must be divided.)");
  PageEnd();
}

void TermsOverANumber() {
  constexpr double kRow = 7.4;
  NewScreen();
  SayAt(3, R"(A \cpolynomial\z has terms with + or - between them.  The \cdivisor\z stands )"
           "below the bar:");
  ShowAt(kRow, "(12x^2^ + 8x)/4", kExpressionCol);
  PageEnd();
  ShowAt(kRow, "(12x^2^ + 8x)/4 = 12x^2^/4 + 8x/4", kExpressionCol);
  SayAt(kRow + 2.5, "Each term is divided by the divisor.");
  Say(R"(\yTry it:\z  What is each fraction?)");
  PageEnd();
  Say("The divisor has no x, so only the numbers are divided.  x^2^ and x stay:");
  Show(R"((12x^2^ + 8x)/4 = \y3x^2^ + 2x\z)", kExpressionCol);
  PageEnd();

  NewScreen();
  SayAt(3, R"(The answer of a division is the \cquotient\z.)");
  Show("(12x^2^ + 8x)/4 = 3x^2^ + 2x", kExpressionCol);
  Say(Text(R"(\yTry it:\z  Is the quotient {}?)", "5x^3^"));
  PageEnd();
  Say("No.  3x^2^ and 2x are unlike terms, so they stay apart.  With 10 in place of x:");
  PaperBox({"3x^2^ + 2x = 300 + 20 = 320", R"(5x^3^ = \r5000\z)"});
  PageEnd();
}

void OneTermOverAMonomial() {
  NewScreen();
  SayAt(3, R"(A \cmonomial\z is one term, such as )" + WithoutBreaks("3x^2^.") +
               "  How do we divide by it?  (x is not 0.)");
  ShowAt(6.5, "15x^5^/(3x^2^)", kExpressionCol);
  PageEnd();
  SayAt(9, "Numbers:  " + NumbersDivided(15, 3));
  SayAt(10.5, "Letters:  x/x is 1, so 2 factors cancel.");
  const powers::FactorFraction fraction(12.5, kExpressionCol, {"x", 5}, {"x", 2});
  fraction.Cancel();
  PageEnd();
  fraction.ShowBehind("= x^3^");
  GoBelow();
  Say(R"(5 - 2 = 3 factors are left.  The exponents are \ysubtracted\z:)");
  Show(R"(15x^5^/(3x^2^) = \y5x^3^\z)", kExpressionCol);
  PageEnd();
}

void TwoTermsOverAMonomial() {
  const MonomialQuotient quotient = {{{15, "xxxxx"}, {6, "xxx"}}, {3, "xx"}};
  NewScreen();
  SayAt(3, "Now with two terms above the bar:");
  ShowAt(6, quotient.Text() + " = " + SplitText(quotient), kExpressionCol);
  Say(R"(The first fraction is 5x^3^.)");
  Say(R"(\yTry it:\z  What is the second one?)");
  PageEnd();
  Say(NumbersDivided(6, 3) + ", and 3 - 2 = 1 factor x is left:  2x");
  Show(quotient.Text() + R"( = \y5x^3^ + 2x\z)", kExpressionCol);
  PageEnd();
  Say(R"(\yCheck:\z  We multiply the answer by the divisor:)");
  Show("3x^2^(5x^3^ + 2x) = 15x^5^ + 6x^3^", kExpressionCol);
  PageEnd();
}

void RuleAtWork() {
  NewScreen();
  RuleBox("Dividing By A Monomial",
          {"Divide each term.", "Divide the numbers in front.", "Subtract the exponents."},
          {.row = 3, .width = 32});
  PageEnd();
  Say(R"(\yTry it:\z  What is this quotient?)");
  Show(kDifference, kExpressionCol);
  PageEnd();
  Say("Numbers:    " + NumbersDivided(20, 4) + "  and  " + NumbersDivided(8, 4));
  AddLine("Exponents:  6 - 2 = 4   and  4 - 2 = 2");
  AddLine("The minus sign between the terms stays:");
  Show(kDifference + R"( = \y5x^4^ - 2x^2^\z)", kExpressionCol);
  PageEnd();
}

void WrongWays() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Four students divide.  What did each of them do wrong?)");
  Show(kDifference + " = 5x^4^ - 2x^2^", kExpressionCol);
  PageEnd();
  PaperBox({R"(Ann:  \r5x^3^ - 2x^2^\z)", R"(Ben:  \r20x^6^ - 2x^2^\z)",
            R"(Carl: \r16x^4^ - 4x^2^\z)", R"(Dora: \r5x^4^ + 2x^2^\z)"});
  PageEnd();
  Say("Ann divides the exponents.  Ben divides only the second term.  Carl subtracts the numbers.  "
      "Dora loses the minus sign.");
  PageEnd();
  Say(R"(\yWatch out:\z  These are wrong, too:)");
  PaperBox({R"(\r5x^8^ - 2x^6^:\z    exponents added)", R"(\r5x^6^ - 2x^4^:\z    exponents kept)",
            R"(\r20x^4^ - 8x^2^:\z   numbers kept)"});
  PageEnd();
}

void LetterThatCancels() {
  const MonomialQuotient quotient = {{{18, "xxx"}, {-12, "xx"}}, {6, "xx"}};
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What is left of the second term?)");
  ShowAt(6.4, quotient.Text() + " = " + SplitText(quotient), kExpressionCol);
  PageEnd();
  Say("12 " + tutor::Divided + " 6 = 2, and 2 - 2 = 0:  no factor x is left.");
  Show(quotient.Text() + R"( = \y3x - 2\z)", kExpressionCol);
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} is 1, so {} is left.  In the first term one x )"
           "is left:",
           "x^2^/x^2^", "2 " + tutor::Times + " 1 = 2"));
  PaperBox({R"(3x - 2,  \rnot 3x\z, \rnot 3 - 2\z)"});
  PageEnd();
}

void TwoLetters() {
  const MonomialQuotient quotient = {{{24, "xxxxxyyyy"}, {-18, "xxxyy"}}, {6, "xxy"}};
  NewScreen();
  SayAt(3, "With two letters we subtract the exponents of each letter by itself:");
  ShowAt(6.5, quotient.Text(), kExpressionCol);
  ShowAt(10, "= " + SplitText(quotient), kExpressionCol);
  PageEnd();
  SayAt(12.5, Text("In {} the letter y has the exponent 1:  {}", "6x^2^y", "y = y^1^"));
  PageEnd();
  ClearBelow(12.5);
  WhiteBox({.row = 12.5, .rows = 5});
  SayInBox("Numbers:  " + NumbersDivided(24, 6));
  SayInBox("x:  5 - 2 = 3      y:  4 - 1 = 3");
  SayInBox(R"(The first term is \b4x^3^y^3^\z.)");
  SayAt(18.5, R"(\yTry it:\z  What is the second fraction?)");
  PageEnd();
  ClearBelow(18.5);
  SayInBoxAnew("Numbers:  " + NumbersDivided(18, 6));
  SayInBox("x:  3 - 2 = 1      y:  2 - 1 = 1");
  SayInBox(R"(The second term is \b3xy\z.)");
  Show(quotient.Text() + R"( = \y4x^3^y^3^ - 3xy\z)", kExpressionCol);
  PageEnd();
}

void LetterNotInDivisor() {
  const std::string quotient = "(10x^4^y^3^ + 15x^3^y^2^)/(5y^2^)";
  NewScreen();
  SayAt(3, R"(\yTry it:\z  What happens to x here?)");
  ShowAt(6, quotient, kExpressionCol);
  PageEnd();
  SayAt(8.5,
        "The divisor has no x.  Nothing is subtracted from its exponents, so x^4^ and x^3^ "
        "stay.");
  Say(R"(\yTry it:\z  And what is the quotient?)");
  PageEnd();
  Say("Numbers:  " + NumbersDivided(10, 5) + "  and  " + NumbersDivided(15, 5));
  AddLine("y:  3 - 2 = 1, and 2 - 2 = 0, so no y is left in the second term.");
  Show(quotient + R"( = \y2x^4^y + 3x^3^\z)", kExpressionCol);
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class DividingPolynomials final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{SharedDots, TermsOverANumber, OneTermOverAMonomial, TwoTermsOverAMonomial, RuleAtWork,
             WrongWays, LetterThatCancels, TwoLetters, LetterNotInDivisor}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void FillChoices(RandomStream& random);

  void ShowTask() const;
  void DivideTerm(std::size_t index) const;
  void Check() const;

  MonomialQuotient quotient_;
};

// --- Generator -----------------------------------------------------------------------------------

template <class T>
void StartAnywhere(std::vector<T>& list, RandomStream& random) {
  const int start = random.Index(std::max(1, static_cast<int>(list.size())));
  std::ranges::rotate(list, list.begin() + std::min<std::ptrdiff_t>(start - 1, std::ssize(list)));
}

// Slips with the exponents that make the answer longer and shorter, another slip, and two of them
// together: the right choice is neither the one most like the others nor the shortest.
void DividingPolynomials::FillChoices(RandomStream& random) {
  std::vector<DivisionSlip> more = TooManyLetters(quotient_);
  std::vector<DivisionSlip> fewer = TooFewLetters(quotient_);
  std::vector<DivisionSlip> others = OtherSlips(quotient_);
  StartAnywhere(more, random);
  StartAnywhere(fewer, random);
  StartAnywhere(others, random);
  const int form = random.Index(5);

  Choices<Sum> choices(problem, choice_kind::FiveShuffled, SumText);
  choices.Right(quotient_.Value());
  const auto add = [&](const DivisionSlip& slip) {
    const Sum sum = slip.division.Of(quotient_);
    if (!sum.empty()) choices.Wrong(slip.mistake, sum);
  };
  if (more.empty()) {  // the divisor is a number
    for (const DivisionSlip& slip : others) add(slip);
  } else {
    if (fewer.empty()) fewer = {more.back()};
    add(fewer[0]);
    add(others[0]);
    if (form <= 2) {
      add(Both(fewer[0], others[0]));
      add(Both(more[0], others[0]));
    } else {
      add(more[0]);
      add(Both(form == 3 ? more[0] : fewer[0], others[0]));
    }
    for (const DivisionSlip& slip : others) add(Both(more[0], slip));
  }
  choices.Fill([&] {
    Sum near = quotient_.Value();
    for (Term& term : near) term.coef = Sgn(term.coef) * random.Rand(2, 6);
    return near;
  });
}

void DividingPolynomials::DrawProblem(RandomStream& random) {
  quotient_ = DrawMonomialQuotient(random);
  problem.question = {"Find the quotient:", quotient_.Text()};
  FillChoices(random);
}

// --- Problem page --------------------------------------------------------------------------------

void DividingPolynomials::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(8, quotient_.Text(), kExpressionCol);
  ShowAnswersInOneColumn(problem, {.row = 11, .width = 27});
}

// --- Worked explanation --------------------------------------------------------------------------

void DividingPolynomials::ShowTask() const {
  ProblemBanner();
  ShowAt(5.5, quotient_.Text(), kExpressionCol);
}

void DividingPolynomials::ExplainProblem() {
  ShowTask();
  SayAt(8, Text("The fraction bar means division.  Each of the two terms is divided by {}:",
                TermText(quotient_.divisor)));
  PageEnd();
  ShowAt(11.5, "= " + SplitText(quotient_), kExpressionCol);
  PageEnd();
  WhiteBox({.row = kWorkRow, .rows = 7});
  DivideTerm(0);
  DivideTerm(1);
  ClearBelow(kWorkRow);
  const Sum quotients = quotient_.Value();
  const bool minus = quotients[1].coef < 0;
  SayAt(kWorkRow,
        Text("The first is {}, the second {}.  With the {} sign between them:",
             TermText(quotients[0]), TermText({std::abs(quotients[1].coef), quotients[1].letters}),
             Words{minus ? "minus" : "plus"}));
  ShowAt(NextRow() + 0.3, R"(= \y)" + RightText(problem), kExpressionCol);
  PageEnd();
  Check();
  Conclude(problem);
}

// "5 - 2 = 3, so x^3^ is left."
std::string WhatIsLeft(char letter, int above, int below) {
  const std::string name(1, letter);
  if (below == 0)
    return Text("{}:  The divisor has no {}, so {} stays.", name, name, name + ExponentText(above));
  const int left = above - below;
  return Text("{}:  {}, so {} is left.", name,
              NumStr(above) + " - " + NumStr(below) + " = " + NumStr(left),
              left == 0 ? "no" + tutor::Gap + name : name + ExponentText(left));
}

void DividingPolynomials::DivideTerm(std::size_t index) const {
  const Term& term = quotient_.terms[index];
  const Term size = {std::abs(term.coef), term.letters};
  const Term& divisor = quotient_.divisor;
  const std::string numbers = "Numbers:  " + NumbersDivided(size.coef, divisor.coef);
  if (index == 0)
    SayInBox(numbers);
  else
    SayInBoxAnew(numbers);
  for (const char letter : {'x', 'y'})
    SayInBox(WhatIsLeft(letter, ExponentOf(term, letter), ExponentOf(divisor, letter)));
  PageEnd();
  SayInBox(Text(R"(The {} fraction is \b{}\z.)", Words{index == 0 ? "first" : "second"},
                TermText(Quotient(size, divisor))));
  PageEnd();
}

void DividingPolynomials::Check() const {
  Say(Text(R"(\yCheck:\z  We multiply it by {}.)", TermText(quotient_.divisor)));
  Show(TermText(quotient_.divisor) + "(" + RightText(problem) + ")", kExpressionCol);
  ShowAt(NextRow() + 0.3, "  = " + SumText(quotient_.terms), kExpressionCol);
  PageEnd();
}

const LessonRegistration<DividingPolynomials> kRegistration("Dividing Polynomials");

}  // namespace
}  // namespace course
