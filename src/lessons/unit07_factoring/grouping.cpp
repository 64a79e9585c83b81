// The student can factor a trinomial such as 6x^2 + 11x - 10 without trials: splits the middle term
// by two numbers with the product 6 times -10 and the sum 11, groups the four terms, and takes out
// twice.
#include <cmath>

#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/factoring/factored_trinomial.h"
#include "lessons/families/factoring/product_figures.h"
#include "lessons/families/factoring/split_middle.h"
#include "lessons/families/polynomials/trinomial.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace factoring;
using namespace polynomials;

// --- Screen 1: four terms ------------------------------------------------------------------------

// What is taken out of both groups, and the product, below a line that begins alike.
void SayTakenOut(const SplitTrinomial& split) {
  Show("= " + split.TakenOut());
  Show("= " + FactorsText(split.Factored()));
}

void SayCheck(const SplitTrinomial& split) {
  const auto [first, second] = split.Factored();
  Say(R"(\yCheck:\z  )" +
      WithoutBreaks(CoefText(first.lead * second.lead) + "x^2^" +
                    SignedCoefText(first.lead * second.constant) + "x" +
                    SignedCoefText(first.constant * second.lead) + "x" + tutor::Gap +
                    SignedNumberText(first.constant * second.constant)));
  AddLine("      = " + WithoutBreaks(TrinomialText(split.Factored().Product())));
}

void CommonParentheses() {
  const SplitTrinomial split({2, 11, 15}, {6, 5});
  NewScreen();
  SayAt(3, "Both parts of this sum have the \\cfactor\\z y.  We take it out:");
  ShowAt(6, "2xy + 5y = y(2x + 5)");
  PageEnd();
  SayAt(8,
        Text("A sum in parentheses can take the place of y, here {}:", FactorText(split.Common())));
  TakeOutTwice(11, kMathCol, split);
  PageEnd();
}

void TwoGroups() {
  const SplitTrinomial first({2, 11, 15}, {6, 5});
  const SplitTrinomial second({4, 16, 15}, {10, 6});
  NewScreen();
  SayAt(3, Text("{} has no common factor.  We do not combine 6x and 5x yet, but group the first "
                "two and the last two:",
                first.FourTerms()));
  GoBelow();
  Show(first.Groups());
  PageEnd();
  Say("We take out 2x and 5.  Then (x + 3) is common, and we take it out:");
  TakeOutTwice(NextRow() + 1, kMathCol, first);
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", second.FourTerms()));
  PageEnd();
  Say("We take 2x out of the first group, and 3 out of the second:");
  GoBelow();
  SayTakenOut(second);
  PageEnd();
}

void MinusGroup() {
  const SplitTrinomial split = SplitMiddle({6, -13, 6});
  NewScreen();
  SayAt(3, Text("In {} the second group begins with a minus sign:", split.FourTerms()));
  GoBelow();
  Show("  " + split.Groups());
  PageEnd();
  Say(Text("We take out -3:  {}, and {}.", "-9x = (-3)(3x)", "6 = (-3)(-2)"));
  GoBelow();
  Show("= " + split.TakenOut());
  PageEnd();
  Show("= " + FactorsText(split.Factored()));
  Say(R"(\yWatch out:\z  The parentheses must match.)");
  PaperBox({R"(\r2x(3x - 2) - 3(3x + 2)\z  a wrong sign)",
            R"(\rx(6x - 4) - 3(3x - 2)\z   only x taken out)"});
  PageEnd();
}

void OneIsLeft() {
  const SplitTrinomial split({4, 8, 3}, {6, 2});
  NewScreen();
  SayAt(3,
        Text(R"(\yTry it:\z  What are the factors of {}?  The second group has no common factor )"
             "but 1.",
             split.FourTerms()));
  PageEnd();
  Say("We take out 1 and write it down, so that it is not lost:");
  GoBelow();
  SayTakenOut(split);
  PageEnd();
}

// --- Screen 2: three terms -----------------------------------------------------------------------

void WhereTheyComeFrom() {
  constexpr Factors kFactors = {{1, 3}, {2, 5}};
  const std::string times = " " + tutor::Times + " ";
  NewScreen();
  SayAt(3,
        "Grouping can factor a trinomial without trials.  We multiply out (x + 3)(2x + 5) to see "
        "where four terms come from:");
  ShowProductTable(kFactors);
  PageEnd();
  FillProductTable(kFactors);
  Show("2x^2^ + 6x + 5x + 15 = " + WithoutBreaks(TrinomialText({2, 11, 15})));
  PageEnd();
  Say(R"(To go back, we \csplit\z 11x into 6x + 5x.)");
  Say(Text(R"(\yTry it:\z  How much is {}, and how much is {}?)", "6" + times + "5",
           "2" + times + "15"));
  PageEnd();
  Say(Text("Both are 30:  6 = {}, and 5 = {}.", "2" + times + "3", "1" + times + "5"));
  AddLine(Text("2 = {}, and 15 = {}.", "1" + times + "2", "3" + times + "5"));
  AddLine("Both products have the factors 1, 2, 3 and 5.");
  PageEnd();
}

void TheRule() {
  constexpr Trinomial kAsked = {6, 11, 3};
  const SplitTrinomial split = SplitMiddle(kAsked);
  NewScreen();
  PaperBox({"1. Take out a common factor, if any.", "2. Find two numbers:  product ac, sum b.",
            "3. Split the middle term.", "4. Make two groups.  Take out twice."},
           3);
  PageEnd();
  Say(Text("In {} a is 6, b is 11 and c is 3, so the product is {}:", TrinomialText(kAsked),
           "6 " + tutor::Times + " 3 = 18"));
  ListTried(PairsUntilFound(kAsked, SearchFrom::One));
  PageEnd();

  NewScreen();
  SayAt(3, Text("We split 11x in {}:", TrinomialText(kAsked)));
  GoBelow();
  Show("  " + split.FourTerms());
  Say(R"(\yTry it:\z  What do we take out of each group?)");
  PageEnd();
  Say("2x out of the first, 3 out of the second:");
  GoBelow();
  SayTakenOut(split);
  PageEnd();
  Say("9x + 2x goes as well:");
  GoBelow();
  const SplitTrinomial exchanged(kAsked, {9, 2});
  Show("  " + exchanged.FourTerms());
  SayTakenOut(exchanged);
  PageEnd();
  Say(R"(\yWatch out:\z  2 and 9 are not the numbers in the factors:)");
  PaperBox({R"(\r(x + 2)(x + 9)\z begins with x^2^, not 6x^2^)"});
  PageEnd();
}

void NegativeLastNumber() {
  constexpr Trinomial kAsked = {3, -4, -4};
  NewScreen();
  SayAt(3,
        "The product is negative:  one number is positive and one negative.  The one farther "
        "from 0 has the sign of the sum.");
  PageEnd();
  Say(Text("In {} the product is -12, and the sum is -4:", TrinomialText(kAsked)));
  ListTried(PairsUntilFound(kAsked, SearchFrom::One));
  PageEnd();
  Say("We may write the negative part first.  Then we need not take out a negative number:");
  GoBelow();
  Show("  " + SplitMiddle(kAsked).FourTerms());
  PageEnd();
  SayTakenOut(SplitMiddle(kAsked));
  SayCheck(SplitMiddle(kAsked));
  PageEnd();
}

// Where the list of pairs begins.
void ALargeProduct() {
  constexpr Trinomial kAsked = {20, 7, -6};
  const SplitTrinomial split = SplitMiddle(kAsked);
  NewScreen();
  SayAt(3, Text("In {} the product is -120:", TrinomialText(kAsked)));
  AddLine("  " + WithoutBreaks(PairLine({-1, 120})));
  AddLine("  " + WithoutBreaks(PairLine({-10, 12})));
  Say("The farther apart, the larger the sum.");
  PageEnd();
  Say(R"(\yTry it:\z  The sum must be 7.  Where do we begin in the list?)");
  PageEnd();
  Say(Text("With close numbers:  {} is near 120, so we begin near 11:",
           "11 " + tutor::Times + " 11 = 121"));
  AddLine("  " + WithoutBreaks(PairLine({-10, 12})));
  AddLine(R"(  \y)" + WithoutBreaks(PairLine({-8, 15})));
  PageEnd();
  NewScreen();
  SayAt(3, Text("In {} we split 7x:", TrinomialText(kAsked)));
  GoBelow();
  Show("  " + split.FourTerms());
  SayTakenOut(split);
  PageEnd();
}

void NegativeSum() {
  constexpr Trinomial kAsked = {5, -11, 2};
  const SplitTrinomial split = SplitMiddle(kAsked);
  NewScreen();
  SayAt(3, "The product is positive:  both numbers have the same sign, that of the sum.");
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText(kAsked)));
  PageEnd();
  Say("ac is 10, and the sum is negative:");
  AddLine("-1 + (-10) = -11.  We split -11x:");
  GoBelow();
  Show("  " + split.FourTerms());
  PageEnd();
  Show("= " + split.TakenOut());
  Show("= " + FactorsText(split.Factored()));
  SayCheck(split);
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class UsingGrouping final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{CommonParentheses, TwoGroups, MinusGroup, OneIsLeft},
            {WhereTheyComeFrom, TheRule, NegativeLastNumber, ALargeProduct, NegativeSum}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<WrongFactors> SplittingMistakes(const SplitTrinomial& split) const;

  void BeginPage();
  void TellProductAndSum() const;
  void BeginWithCloseNumbers(const NumberPair& farthest) const;
  void ListPairs();
  void SplitAndGroup();
  void TakeOut();

  Trinomial asked_;
};

// --- Generator -----------------------------------------------------------------------------------

std::vector<WrongFactors> UsingGrouping::SplittingMistakes(const SplitTrinomial& split) const {
  const auto [first, second] = split.Numbers();
  const Factors right = split.Factored();
  std::vector<WrongFactors> mistakes = {
      {"takes the two numbers with the wrong signs", {BothSignsReversed(right)}},
      {"writes the two numbers straight into the factors", {{{1, first}, {1, second}}}}};
  if (split.FirstOutside() > 1)
    mistakes.push_back({"takes only x out of the first group",
                        {{{asked_.square, first}, {1, split.SecondOutside()}}}});
  if (std::abs(split.SecondOutside()) == 1)
    mistakes.push_back({"leaves out the 1", {{right.first, {right.second.lead, 0}}}});
  WrongFactors wrongSum = {"takes a pair with the right product and the wrong sum", {}};
  for (const NumberPair& pair : PairsBesideFound(asked_)) {
    const Factors factors = SplitTrinomial(asked_, pair).Factored();
    // A positive product does not tell the sign.
    wrongSum.factors.push_back(asked_.constant > 0 ? BothSignsReversed(factors) : factors);
  }
  if (!wrongSum.factors.empty()) mistakes.push_back(wrongSum);
  return mistakes;
}

void UsingGrouping::DrawProblem(RandomStream& random) {
  const int largest = random.Rand(1, 2) == 1 ? 5 : 9;
  asked_ = DrawFactors(random, largest).Product();
  problem.question = {"Find the factors of this trinomial:", TrinomialText(asked_)};
  const SplitTrinomial split = SplitMiddle(asked_);
  WrongSign wrongSign = {random.Rand(1, 2) == 1};
  if (split.Numbers().second < 0)  // the second group begins with a minus sign
    wrongSign = {false, "overlooks the minus sign of the second group"};
  FillFactorChoices(problem, split.Factored(), wrongSign, SplittingMistakes(split), largest,
                    random);
}

// --- Problem page --------------------------------------------------------------------------------

void UsingGrouping::ShowProblem() {
  SayAt(5, problem.question[0]);
  ShowAt(7, problem.question[1], 4);
  ShowAnswersInTwoColumns(problem, {.width = 20, .fontSize = 18});  // (40x + 25)(x - 8) is long
}

// --- Worked explanation --------------------------------------------------------------------------

void UsingGrouping::ExplainProblem() {
  BeginPage();
  PageEnd();
  TellProductAndSum();
  PageEnd();
  Say(SignSentence(asked_.square * asked_.constant, asked_.middle));
  PageEnd();
  ListPairs();
  SplitAndGroup();
  TakeOut();
  Conclude(problem);
}

void UsingGrouping::BeginPage() {
  ProblemBanner();
  SayAt(5, problem.question[0]);
  ShowAt(6, problem.question[1], 4);
}

void UsingGrouping::TellProductAndSum() const {
  Say(R"(We need two numbers.  Their \yproduct\z is that of the first and the last number:)");
  Show(Text("{} {} {} = {}", asked_.square, tutor::Times, InParentheses(asked_.constant),
            asked_.square * asked_.constant));
  PageEnd();
  Say(Text(R"(Their \ysum\z is the number before x, {}.)", asked_.middle));
  if (std::abs(asked_.middle) == 1)
    AddLine(Text("{} means {}x.", CoefText(asked_.middle) + "x", asked_.middle));
}

// Why a list begins with close numbers.
void UsingGrouping::BeginWithCloseNumbers(const NumberPair& farthest) const {
  const int size = std::abs(asked_.square * asked_.constant);
  const int middle = static_cast<int>(std::lround(std::sqrt(size)));
  SayAt(8, Text("{} and {} have the sum {}.  We need {}, so we take numbers that are closer.",
                farthest.first, farthest.second, farthest.Sum(), asked_.middle));
  PageEnd();
  const std::string square = Text("{} {} {}", middle, tutor::Times, middle);
  AddLine(Text(
      middle * middle == size ? "{} is {}.  We begin there:" : "{} is near {}.  We begin there:",
      square + (middle * middle == size ? "" : " = " + NumStr(middle * middle)), size));
}

// The pairs up to the right one, two a page, from where it is found sooner.
void UsingGrouping::ListPairs() {
  constexpr std::size_t kAPage = 2;
  NewScreen();
  BeginPage();
  const SearchFrom from = ShorterSearch(asked_);
  const std::vector<NumberPair> pairs = PairsUntilFound(asked_, from);
  if (from == SearchFrom::CloseNumbers)
    BeginWithCloseNumbers(PairsUntilFound(asked_, SearchFrom::One).front());
  else
    SayAt(8, Text("We list the pairs with the product {} until the sum is {}:",
                  asked_.square * asked_.constant, asked_.middle));
  const std::size_t column = SumColumnOf(pairs);
  std::size_t characters = 0;
  for (const NumberPair& pair : pairs)
    characters = std::max(characters, PairLine(pair, column).size());
  const int box = 1;
  ShowEmptyPaperBox(box, RowBelow(), static_cast<int>(characters), static_cast<int>(pairs.size()));
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (i > 0 && i % kAPage == 0) PageEnd();
    const bool found = i + 1 == pairs.size();
    PrintOnPaper(box, static_cast<int>(i) + 1, (found ? R"(\b)" : "") + PairLine(pairs[i], column));
  }
  PageEnd();
  SayAt(RowBelow(),
        Text(R"(The numbers are \y{}\z and \y{}\z.)", pairs.back().first, pairs.back().second));
  PageEnd();
}

void UsingGrouping::SplitAndGroup() {
  const SplitTrinomial split = SplitMiddle(asked_);
  NewScreen();
  BeginPage();
  SayAt(8, Text("We split the middle term{}:",
                Words{asked_.constant < 0 ? ", the negative part first" : ""}));
  Show(split.FourTerms());
  PageEnd();
  Say("We make two groups:");
  Show(split.Groups());
  PageEnd();
  const std::string firstOutside = CoefText(split.FirstOutside()) + "x";
  if (split.Numbers().second < 0) {
    Say(
        Text("From the first group we take out {}.  The second begins with a minus sign:  from it "
             "we take out {}.",
             firstOutside, split.SecondOutside()));
  } else if (split.SecondOutside() == 1) {
    Say(Text("From the first group we take out {}.  The second has only the factor 1:",
             firstOutside));
  } else {
    Say(Text("From the first group we take out {}, from the second {}:", firstOutside,
             split.SecondOutside()));
  }
  Show(split.TakenOut());
  PageEnd();
}

void UsingGrouping::TakeOut() {
  const SplitTrinomial split = SplitMiddle(asked_);
  NewScreen();
  BeginPage();
  SayAt(8, Text("Both parts have the factor {}.  We take it out:", FactorText(split.Common())));
  const double row = NextRow() + 0.5;
  TakeOutTwice(row, 4, split);
  PageEnd();
  CheckByMultiplying(row + 4, split.Factored());
  PageEnd();
}

const LessonRegistration<UsingGrouping> kRegistration("Using Grouping to Factor Trinomials");

}  // namespace
}  // namespace course
