// The student can factor a trinomial such as 6x^2 + 11x - 10 without trials: splits the middle term
// by two numbers with the product 6 times -10 and the sum 11, groups the four terms, and takes out
// twice.
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

// The four terms, what is taken out of both groups, and the product.
void ShowSteps(const SplitTrinomial& split) {
  WhiteBox({.rows = 5});
  SayInBox("  " + split.FourTerms());
  SayInBox("= " + split.TakenOut());
  SayInBox(R"(= \b)" + FactorsText(split.Factored()));
}

void CommonParentheses() {
  const std::string d = tutor::Dot;
  const SplitTrinomial split({2, 11, 15}, {6, 5});
  NewScreen();
  SayAt(3, "Both parts of this sum have the \\cfactor\\z y.  We take it out:");
  ShowAt(5.5, "2x" + d + "y + 5" + d + "y = y(2x + 5)");
  PageEnd();
  SayAt(7.5,
        Text("A sum in parentheses can take the place of y, here {}:", FactorText(split.Common())));
  TakeOutTwice(10, kMathCol, split);
  PageEnd();
}

void TwoGroups() {
  const SplitTrinomial first({2, 11, 15}, {6, 5});
  const SplitTrinomial second({4, 16, 15}, {10, 6});
  NewScreen();
  SayAt(3, Text("{} has four terms and no common factor.  But we can make two groups:",
                first.FourTerms()));
  Show(first.Groups());
  PageEnd();
  Say("Each group has a greatest common factor, 2x and 5.  We take it out:");
  Show(first.TakenOut());
  PageEnd();
  Say(Text("Now {} is common, and we take out a second time:", FactorText(first.Common())));
  TakeOutTwice(NextRow() + 0.5, kMathCol, first);
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", second.FourTerms()));
  PageEnd();
  Say("We take 2x out of the first group, and 3 out of the second:");
  Show("  " + second.TakenOut());
  Show("= " + FactorsText(second.Factored()));
  PageEnd();
}

void MinusGroup() {
  const SplitTrinomial split = SplitMiddle({6, -13, 6});
  NewScreen();
  SayAt(3, Text("In {} the second group begins with a minus sign:", split.FourTerms()));
  Show(split.Groups());
  PageEnd();
  Say(Text("Then we take out a negative number, here -3.  {}, and {}.",
           "-3 " + tutor::Times + " 3x is -9x", "-3 " + tutor::Times + " (-2) is 6"));
  Show("  " + split.TakenOut());
  PageEnd();
  Show("= " + FactorsText(split.Factored()));
  Say(R"(\yWatch out:\z  The parentheses must match.)");
  PaperBox({R"(\r2x(3x - 2) - 3(3x + 2)\z  a wrong sign)",
            R"(\rx(6x - 4) - 3(3x - 2)\z   2 is still inside)"});
  PageEnd();
}

void OneIsLeft() {
  const SplitTrinomial split({4, 8, 3}, {6, 2});
  NewScreen();
  SayAt(3,
        Text(R"(\yTry it:\z  What are the factors of {}?  The second group has no common factor.)",
             split.FourTerms()));
  PageEnd();
  Say("1 is always a factor.  We write it down, so that it is not lost:");
  Show("  " + split.TakenOut());
  Show("= " + FactorsText(split.Factored()));
  PageEnd();
}

// --- Screen 2: three terms -----------------------------------------------------------------------

void WhereTheyComeFrom() {
  constexpr Factors kFactors = {{1, 3}, {2, 5}};
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
  Say(Text(R"(\yTry it:\z  How much is {}, and how much is {}?)", "6 " + tutor::Times + " 5",
           "2 " + tutor::Times + " 15"));
  PageEnd();
  const std::string times = " " + tutor::Times + " ";
  Say(Text("Both are 30:  each is {}, the numbers at the edges of the table.",
           "1" + times + "2" + times + "3" + times + "5"));
  PageEnd();
}

void TheRule() {
  constexpr Trinomial kAsked = {6, 11, 3};
  NewScreen();
  RuleBox("Grouping ax^2^ + bx + c",
          {"1. two numbers: product ac, sum b", "2. split the middle term",
           "3. group, and take out twice"},
          {.row = 3, .width = 30});
  PageEnd();
  Say(Text("Let's factor {}.", TrinomialText(kAsked)));
  AddLine("  ac is 6 " + tutor::Times + " 3 = 18, and b is 11:");
  ListTried(PairsUntilFound(kAsked, SearchFrom::One));
  PageEnd();
  SayAt(NextRow() + 0.5, "We split 11x into 2x + 9x:");
  ShowSteps(SplitMiddle(kAsked));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  2 and 9 split the middle term.  They are not the numbers in the )"
           "factors:");
  PaperBox({R"(\r(x + 2)(x + 9)\z begins with x^2^, not 6x^2^)"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({2, 7, 3})));
  PageEnd();
  ListTried(PairsUntilFound({2, 7, 3}, SearchFrom::One));
  ShowSteps(SplitMiddle({2, 7, 3}));
  PageEnd();
}

void NegativeLastNumber() {
  constexpr Trinomial kAsked = {3, -4, -4};
  NewScreen();
  SayAt(3, Text("Let's factor {}.  The product is -12, and the sum is -4:", TrinomialText(kAsked)));
  ListTried(PairsUntilFound(kAsked, SearchFrom::One));
  PageEnd();
  Say("We write the negative part first.  Then the second group begins with a plus sign:");
  Show("  " + SplitMiddle(kAsked).FourTerms());
  PageEnd();
  Show("= " + SplitMiddle(kAsked).TakenOut());
  Show("= " + FactorsText(SplitMiddle(kAsked).Factored()));
  PageEnd();
  CheckByMultiplying(NextRow() + 1, SplitMiddle(kAsked).Factored());
  PageEnd();

  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({8, 10, -3})));
  PageEnd();
  Say("The product is -24, and -2 + 12 is 10:");
  ShowSteps(SplitMiddle({8, 10, -3}));
  PageEnd();
}

void NegativeSum() {
  constexpr Trinomial kAsked = {5, -11, 2};
  NewScreen();
  SayAt(3, Text(R"(\yTry it:\z  Now the sum alone is negative.  What are the factors of {}?)",
                TrinomialText(kAsked)));
  PageEnd();
  Say("ac is 10, so we take -1 and -10:");
  ShowSteps(SplitMiddle(kAsked));
  PageEnd();
}

// --- The lesson ----------------------------------------------------------------------------------

class UsingGrouping final : public LessonScript {
 public:
  using LessonScript::LessonScript;

 private:
  std::vector<Screen> Screens() override {
    return {{CommonParentheses, TwoGroups, MinusGroup, OneIsLeft},
            {WhereTheyComeFrom, TheRule, NegativeLastNumber, NegativeSum}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  std::vector<WrongFactors> SplittingMistakes(const SplitTrinomial& split) const;

  void BeginPage();
  void TellProductAndSum() const;
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

// The pairs up to the right one, two a page.  A long list is begun farther down.
void UsingGrouping::ListPairs() {
  constexpr std::size_t kAPage = 2;
  constexpr std::size_t kInBox = 6;
  NewScreen();
  BeginPage();
  std::vector<NumberPair> pairs = PairsUntilFound(asked_, ShorterSearch(asked_));
  const int product = asked_.square * asked_.constant;
  if (pairs.size() > kInBox) {
    SayAt(8, Text("We list pairs with the product {}.  The sum of {} and {} is far from {}, so we "
                  "begin farther down:",
                  product, pairs.front().first, pairs.front().second, asked_.middle));
    pairs.erase(pairs.begin(), pairs.end() - kInBox);
    PageEnd();
  } else {
    SayAt(8, Text("We list the pairs with the product {} until the sum is {}:", product,
                  asked_.middle));
  }
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
