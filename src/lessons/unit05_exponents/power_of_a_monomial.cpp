// The student can raise a monomial to a power: the coefficient is raised, and the exponent of each
// letter is multiplied by the outer one.
//
// A problem is a coefficient from 2 to 9 with one letter, with the powers of two letters, or with
// two letters of which one is bare.
#include "lessons/families/powers/number_power.h"
#include "lessons/families/powers/power_law.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace powers;

constexpr std::string_view kLetters = "abcdfghkmnpqrstuvwxyz";
constexpr double kExpressionCol = 4;
constexpr int kLargestCoefficient = 1000;  // that is worked out by hand
constexpr int kLargestWrongExponent = 99;  // a longer one would stand out
constexpr int kLargestLastExponent = 250;  // and may stand in one box at most

enum class Form { OneLetter = 1, TwoPowers, BareLetter };

enum class CoefficientSlip { None, Kept, Multiplied };
// The last two lead to larger exponents than the right one, the others to smaller ones.
enum class LetterSlip { None, Added, OneKept, Raised, LargerForBoth };

// Line by line, and what comes of it.
void ShowRaising(const PowerOfGroup& group) {
  Locate(NextRow() + 0.5, 1);
  for (const std::string& line : LinesOfRaising(group)) Show(line, kExpressionCol);
  Show(GroupText(group) + R"( = \y)" + RaisedText(group) + R"(\z)", kExpressionCol);
}

// --- Teaching screens --------------------------------------------------------

void WhatAMonomialIs() {
  NewScreen();
  SayAt(3, R"(A \cmonomial\z is a number, a power of a letter, or a product of these:)");
  Show("5x^2^      2c^3^d      ab^4^      7", kExpressionCol);
  Say("No exponent is negative or a fraction.");
  PageEnd();
  Say(R"(The number in front is its \ccoefficient\z.)");
  Say(R"(\yTry it:\z  Which of these are monomials?)");
  Show("6k^3^      a + 2b      x^2^y", kExpressionCol);
  PageEnd();
  Say(Text("{} and {} are monomials.  {} is a sum.", "6k^3^", "x^2^y", "a + 2b"));
  Say(Text("No number stands in front of {}:  its coefficient is 1.", "x^2^y"));
  PageEnd();
}

void CoefficientIsRaised() {
  NewScreen();
  const PowerOfGroup group = {2, {{"x", 3}}, 4};
  SayAt(3, R"(The \couter exponent\z 4, after the parentheses, counts the groups:)");
  Show(GroupText(group) + " = " + GroupWrittenOut(group), kExpressionCol - 2);
  ShowGroupsTable(group);
  PageEnd();
  RaiseInTable(group, 0);
  PageEnd();
  RaiseInTable(group, 1);
  Show(GroupText(group) + R"( = \y)" + RaisedText(group) + R"(\z)", kExpressionCol);
  PageEnd();

  NewScreen();
  const PowerOfGroup task = {3, {{"k", 2}}, 3};
  SayAt(3, "The number is worked out.  Of the letter we only count the factors.");
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", GroupText(task)));
  PageEnd();
  ShowRaising(task);
  PageEnd();
}

void CoefficientMistakes() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  The coefficient is a factor of the group, too:)");
  PaperBox({R"((2x^3^)^4^ = 16x^12^,  \rnot 2x^12^\z)"});
  PageEnd();
  Say(Text(R"(\yWatch out:\z  {} is {}.  The coefficient is not multiplied by 4:)", "2^4^",
           FactorsOf(2, 4)));
  PaperBox({R"((2x^3^)^4^ = 16x^12^,  \rnot 8x^12^\z)"});
  PageEnd();
  Say(R"(\yCheck of the coefficient:\z  x = 1)");
  Show("(2 " + tutor::Times + " 1^3^)^4^ = 2^4^ = 16", kExpressionCol);
  Show("16 " + tutor::Times + " 1^12^ = 16", kExpressionCol);
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", "(5n^4^)^2^"));
  PageEnd();
  Say(Text(R"({}, not 10:  \y{}\z)", "5 " + tutor::Times + " 5 = 25", "(5n^4^)^2^ = 25n^8^"));
  PageEnd();
}

void TheRule() {
  NewScreen();
  SayAt(3, R"(\cInner exponents\z belong to the letters.)");
  RuleBox("Rule For The Power Of A Monomial",
          {"Raise the coefficient, and multiply", "each inner exponent by the outer one."});
  PageEnd();
  const PowerOfGroup group = {5, {{"a", 2}, {"b", 4}}, 3};
  Say(Text("In {} the outer exponent is 3:", GroupText(group)));
  for (const std::string& line : LinesOfRaising(group)) Show(line, kExpressionCol);
  PageEnd();
  Show(GroupText(group) + R"( = \y)" + RaisedText(group) + R"(\z)", kExpressionCol);
  PageEnd();
  Say(Text(R"(\yWatch out:\z  We do not add ({}) or raise ({}) the exponents:)", "2 + 3 = 5",
           "2^3^ = 8"));
  PaperBox({"(5a^2^b^4^)^3^ = 125a^6^b^12^", R"(\rnot 125a^5^b^7^,  not 125a^8^b^64^\z)"});
  PageEnd();

  NewScreen();
  const PowerOfGroup task = {7, {{"m", 3}, {"n", 2}}, 2};
  SayAt(3, R"(\yTry it:\z  Simplify  )" + Text("{}.", GroupText(task)));
  PageEnd();
  ShowRaising(task);
  PageEnd();
}

void BareLetters() {
  NewScreen();
  const PowerOfGroup group = {3, {{"c", 1}, {"d", 2}}, 4};
  ShowAt(3, GroupText(group), kExpressionCol);
  Say("c has no exponent.  It is a factor once, so its inner exponent is 1.");
  PageEnd();
  ShowRaising(group);
  PageEnd();
  Say(R"(\yWatch out:\z  No letter is left without the power:)");
  PaperBox({"(3cd^2^)^4^ = 81c^4^d^8^", R"(\rnot 81cd^8^,  not 81c^4^d^2^\z)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Each letter has its own exponent:)");
  PaperBox({R"((2x^3^y^2^)^4^ = 16x^12^y^8^,)", R"(\rnot 16x^12^y^12^\z)"});
  PageEnd();
  const PowerOfGroup task = {2, {{"p", 5}, {"q", 1}}, 3};
  Say(R"(\yTry it:\z  Simplify  )" + Text("{}.", GroupText(task)));
  PageEnd();
  ShowRaising(task);
  PageEnd();
}

void TwoStudents() {
  NewScreen();
  SayAt(3, Text("Ann says:  {}", "(3x^4^)^2^ = 9x^6^"));
  AddLine(Text("Ben says:  {}", "(3x^4^)^2^ = 9x^8^"));
  Say("Who is right?");
  PageEnd();
  Say("Ben is.  2 groups of 4 factors x are 8 factors.  Ann added 4 and 2.");
  PageEnd();
  Say(R"(\yCheck:\z  With 2 in place of x:)");
  Show("(3 " + tutor::Times + " 2^4^)^2^ = 48^2^ = 2304", kExpressionCol);
  PaperBox({"9 " + tutor::Times + " 2^8^ = 9 " + tutor::Times + " 256 = 2304",
            R"(\r9 )" + tutor::Times + " 2^6^ = 9 " + tutor::Times + R"( 64 = 576\z)"});
  PageEnd();
}

void TwoMistakes() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  Which of these is )" + Text("{}?", "(4u^8^)^3^"));
  Show("12u^24^      64u^11^      64u^24^", kExpressionCol);
  PageEnd();
  Say(Text(R"(It is \y{}\z.)", "64u^24^"));
  for (const std::string& line : LinesOfRaising({4, {{"u", 8}}, 3})) Show(line, kExpressionCol);
  Say(Text("12 is {}, and 11 is {}.", "4 " + tutor::Times + " 3", "8 + 3"));
  PageEnd();
}

void SumsAreNotMonomials() {
  NewScreen();
  SayAt(3, R"(\yWatch out:\z  A sum is not a monomial.  In a sum we add first:)");
  PaperBox({"(3 + 5)^2^ = 8^2^ = 64", R"(\r3^2^ + 5^2^ = 9 + 25 = 34\z)"});
  PageEnd();
  Say(R"(\yTry it:\z  For which does the rule hold?)");
  Show("(x + 3)^2^      (3x)^2^", kExpressionCol);
  PageEnd();
  Say(Text(R"(For the product of 3 and x:  \y{}\z)", "(3x)^2^ = 9x^2^"));
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class PowerOfAMonomial final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{WhatAMonomialIs, CoefficientIsRaised, CoefficientMistakes},
            {TheRule, BareLetters, TwoStudents, SumsAreNotMonomials, TwoMistakes}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  struct LetterSlips {
    LetterSlip first, other;
  };

  void DrawMonomial(RandomStream& random);
  LetterSlips DrawLetterSlips(RandomStream& random);
  void FillChoices(RandomStream& random);
  int LargestExponent(LetterSlip slip) const;
  int Coefficient(CoefficientSlip slip) const;
  int Exponent(LetterSlip slip, std::size_t letter) const;
  std::string Product(CoefficientSlip slip, LetterSlip letterSlip) const;
  std::string NameOf(CoefficientSlip slip, LetterSlip letterSlip) const;

  void CheckCoefficient() const;

  PowerOfGroup group_;
  std::size_t kept_ = 0;  // the letter that keeps its exponent in LetterSlip::OneKept
};

// --- Generator ---------------------------------------------------------------

// Of the draws of coefficient and outer exponent 41 % are accepted.
void PowerOfAMonomial::DrawMonomial(RandomStream& random) {
  const auto form = static_cast<Form>(random.Rand(1, 3));
  const std::string letter = random.OneOf(kLetters);
  const std::string other = DrawOtherLetter(random, kLetters, letter);  // two letters differ
  const int exponent = random.Rand(2, 9);
  const int otherExponent = random.Rand(2, 9);
  group_.powers = {{letter, exponent}};
  if (form != Form::OneLetter)
    group_.powers.push_back({other, form == Form::BareLetter ? 1 : otherExponent});
  std::ranges::sort(group_.powers, {}, &Power::base);
  bool isTwiceTwo = false;
  do {
    group_.number = random.Rand(2, 9);
    group_.exponent = random.Rand(2, 9);
    // Who multiplies 2 by 2 is right by accident; others are too large to be worked out by hand.
    isTwiceTwo = group_.number == 2 && group_.exponent == 2;
  } while (isTwiceTwo || ValueOfPower(group_.number, group_.exponent) > kLargestCoefficient);
}

void PowerOfAMonomial::DrawProblem(RandomStream& random) {
  DrawMonomial(random);
  problem.question = {"Simplify the following expression:", GroupText(group_)};
  FillChoices(random);
}

// A mistake that leads to larger exponents comes first more often than one that leads to smaller
// ones, so that the right one is not always the longest.
PowerOfAMonomial::LetterSlips PowerOfAMonomial::DrawLetterSlips(RandomStream& random) {
  const bool largerFirst = random.Rand(1, 6) > 1;
  const bool adds = random.Rand(1, 2) == 1;
  const bool takesLarger = random.Rand(1, 2) == 1;
  kept_ = static_cast<std::size_t>(random.Rand(1, static_cast<int>(group_.powers.size())) - 1);
  const LetterSlip smaller = adds ? LetterSlip::Added : LetterSlip::OneKept;
  const LetterSlip otherSmaller = adds ? LetterSlip::OneKept : LetterSlip::Added;
  const int raised = LargestExponent(LetterSlip::Raised);
  const bool raises = raised <= kLargestWrongExponent;
  const bool differ = group_.powers[0].exponent != group_.powers.back().exponent;
  if (!raises && !differ)
    return {smaller, raised <= kLargestLastExponent ? LetterSlip::Raised : otherSmaller};
  const LetterSlip larger =
      differ && (takesLarger || !raises) ? LetterSlip::LargerForBoth : LetterSlip::Raised;
  return largerFirst ? LetterSlips{larger, smaller} : LetterSlips{smaller, larger};
}

// The right one and the first three are two mistakes, made or not made, so that each is as like the
// others; the last one has another mistake in place of one of them.
void PowerOfAMonomial::FillChoices(RandomStream& random) {
  const auto [letterSlip, otherLetterSlip] = DrawLetterSlips(random);
  const bool keeps = random.Rand(1, 2) == 1;
  const int last = random.Rand(1, 5);
  const CoefficientSlip slip = keeps ? CoefficientSlip::Kept : CoefficientSlip::Multiplied;
  const CoefficientSlip otherSlip = keeps ? CoefficientSlip::Multiplied : CoefficientSlip::Kept;

  Choices<std::string> choices(problem, choice_kind::FiveShuffled,
                               [](const std::string& product) { return product; });
  const auto wrong = [&](CoefficientSlip ofNumber, LetterSlip ofLetters) {
    choices.Wrong(NameOf(ofNumber, ofLetters), Product(ofNumber, ofLetters));
  };
  choices.Right(RaisedText(group_));
  wrong(slip, LetterSlip::None);
  wrong(CoefficientSlip::None, letterSlip);
  wrong(slip, letterSlip);
  if (last <= 3) wrong(last <= 2 ? CoefficientSlip::None : slip, otherLetterSlip);
  if (last > 3) wrong(otherSlip, last == 4 ? LetterSlip::None : letterSlip);
  // 2 and 2 have the same sum, product and power: then the other mistakes take the place.
  wrong(CoefficientSlip::None, otherLetterSlip);
  wrong(otherSlip, LetterSlip::None);
  choices.Fill([&] {
    std::vector<Power> powers = group_.powers;
    for (Power& power : powers) power.exponent *= random.Rand(2, 9);
    return ProductText(Coefficient(CoefficientSlip::None), powers);
  });
}

int PowerOfAMonomial::Coefficient(CoefficientSlip slip) const {
  switch (slip) {
    case CoefficientSlip::Kept:
      return group_.number;
    case CoefficientSlip::Multiplied:
      return group_.number * group_.exponent;
    default:
      return static_cast<int>(ValueOfPower(group_.number, group_.exponent));
  }
}

int PowerOfAMonomial::Exponent(LetterSlip slip, std::size_t letter) const {
  const int inner = group_.powers[letter].exponent;
  const int largest = std::ranges::max(group_.powers, {}, &Power::exponent).exponent;
  switch (slip) {
    case LetterSlip::Added:
      return AddedExponent(inner, group_.exponent);
    case LetterSlip::OneKept:
      return letter == kept_ ? inner : inner * group_.exponent;
    case LetterSlip::Raised:
      return static_cast<int>(ValueOfPower(inner, group_.exponent));
    case LetterSlip::LargerForBoth:
      return largest * group_.exponent;
    default:
      return inner * group_.exponent;
  }
}

int PowerOfAMonomial::LargestExponent(LetterSlip slip) const {
  int largest = 0;
  for (std::size_t i = 0; i < group_.powers.size(); ++i)
    largest = std::max(largest, Exponent(slip, i));
  return largest;
}

std::string PowerOfAMonomial::Product(CoefficientSlip slip, LetterSlip letterSlip) const {
  std::vector<Power> powers = group_.powers;
  for (std::size_t i = 0; i < powers.size(); ++i) powers[i].exponent = Exponent(letterSlip, i);
  return ProductText(Coefficient(slip), powers);
}

std::string PowerOfAMonomial::NameOf(CoefficientSlip slip, LetterSlip letterSlip) const {
  const std::string which = kept_ == 0 ? "first " : "second ";
  const std::string kept = "the " + (group_.powers.size() == 1 ? "" : which) + "letter";
  if (slip == CoefficientSlip::Kept && letterSlip == LetterSlip::OneKept)
    return "leaves the coefficient and " + kept + " as they are";
  std::string name;
  if (slip == CoefficientSlip::Kept) name = "leaves the coefficient as it is";
  if (slip == CoefficientSlip::Multiplied) name = "multiplies the coefficient by the exponent";
  if (slip != CoefficientSlip::None && letterSlip != LetterSlip::None) name += " and ";
  if (letterSlip == LetterSlip::Added) name += NameOfAdding(group_);
  if (letterSlip == LetterSlip::OneKept) name += "leaves " + kept + " as it is";
  if (letterSlip == LetterSlip::Raised) name += "raises the inner exponents";
  if (letterSlip == LetterSlip::LargerForBoth) name += "gives both letters the larger exponent";
  return name;
}

// --- Problem page ------------------------------------------------------------

void PowerOfAMonomial::ShowProblem() {
  ShowTaskAndAnswers(problem, group_);
}

// --- Worked explanation ------------------------------------------------------

void PowerOfAMonomial::ExplainProblem() {
  ExplainFactorByFactor(group_);
  BeginCheck(group_);
  CheckCoefficient();
  CheckExponents(group_);
  Conclude(problem);
}

// With 1 in place of the letters only the coefficients are left of both sides.
void PowerOfAMonomial::CheckCoefficient() const {
  std::string ones;
  const int raised = Coefficient(CoefficientSlip::None);
  std::vector<std::string> left = {NumStr(group_.number)};
  std::vector<std::string> right = {NumStr(raised)};
  for (const auto& [letter, exponent] : group_.powers) {
    ones += (ones.empty() ? "" : ", ") + letter + " = 1";
    left.push_back(PowerText({"1", exponent}));
    right.push_back(PowerText({"1", exponent * group_.exponent}));
  }
  Say(R"(\yCheck of the coefficient:\z  )" + Text("{}", ones));
  Show("(" + JoinedByTimes(left) + ")^" + NumStr(group_.exponent) +
           "^ = " + PowerOf(group_.number, group_.exponent) + " = " + NumStr(raised),
       kExpressionCol);
  Show(JoinedByTimes(right) + " = " + NumStr(raised), kExpressionCol);
  PageEnd();
}

const LessonRegistration<PowerOfAMonomial> kRegistration("Power of a Monomial");

}  // namespace
}  // namespace course
