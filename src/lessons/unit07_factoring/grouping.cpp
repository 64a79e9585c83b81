// The student can factor a trinomial such as 6x^2 + 11x - 10 without trials: splits the middle term
// by two numbers with the product 6 times -10 and the sum 11, groups the four terms, and takes out
// twice.
#include "lessons/families/factoring/factor_pairs.h"
#include "lessons/families/factoring/factored_trinomial.h"
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
  Show("  " + split.FourTerms());
  Show("= " + split.TakenOut());
  Show("= " + FactorsText(split.Factored()));
}

void CommonParentheses() {
  const std::string d = tutor::Dot;
  const SplitTrinomial first({2, 11, 15}, {6, 5});
  const SplitTrinomial second({15, 11, 2}, {5, 6});
  NewScreen();
  SayAt(3, "Both parts of this sum have the \\cfactor\\z y.  We take it out:");
  ShowAt(5.5, "2x" + d + "y + 5" + d + "y = y(2x + 5)");
  PageEnd();
  SayAt(7,
        Text("A sum in parentheses can take the place of y, here {}:", FactorText(first.Common())));
  TakeOutTwice(9.5, kMathCol, first);
  PageEnd();
  SayAt(13, Text(R"(\yTry it:\z  How do you write {} as a product?)", second.TakenOut()));
  PageEnd();
  Say(Text("Both parts have the factor {}.  We take it out:", FactorText(second.Common())));
  Show(FactorsText(second.Factored()));
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
  Say("Each group has a common factor.  From the first we take out 2x, from the second 5:");
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
  const SplitTrinomial split = Split({6, -13, 6});
  NewScreen();
  SayAt(3, Text("In {} the second group begins with a minus sign:", split.FourTerms()));
  Show(split.Groups());
  PageEnd();
  const std::string d = tutor::Dot;
  Say(Text("Then we take out a negative number, here -3.  {}, and {}.", "-9x is -3" + d + "3x",
           "6 is -3" + d + "(-2)"));
  Show("  " + split.TakenOut());
  Show("= " + FactorsText(split.Factored()));
  PageEnd();
  Say(R"(\yWatch out:\z  What stands in parentheses must be the same twice, signs included.)");
  PaperBox({R"(\r2x(3x - 2) - 3(3x + 2)\z:  look again)"});
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
  NewScreen();
  SayAt(3,
        "A trinomial has only three terms.  When we multiply out, two of the four terms are "
        "combined:");
  Show("  (x + 3)(2x + 5)");
  PageEnd();
  Show("= 2x^2^ + 5x + 6x + 15");
  Show("= 2x^2^ + 11x + 15");
  PageEnd();
  Say(R"(To go back, we \csplit\z the middle term:  11x is 5x + 6x.)");
  Say(Text(R"(\yTry it:\z  How much is {}, and how much is {}, the first number times the last?)",
           "5 " + tutor::Times + " 6", "2 " + tutor::Times + " 15"));
  PageEnd();
  Say("Both are 30.  2 and 15 come from the same numbers 1, 3, 2 and 5 as 5 and 6.");
  PageEnd();
}

void TheRule() {
  constexpr Trinomial kAsked = {6, 11, 4};
  NewScreen();
  RuleBox("Grouping ax^2^ + bx + c",
          {"1. Find two numbers whose", "product is ac and whose sum is b.",
           "2. Split the middle term.", "3. Group, and take out twice."},
          {.row = 3, .width = 30});
  PageEnd();
  Say(Text("Let's factor {}.  The product is {}, and the sum is 11:", TrinomialText(kAsked),
           "6 " + tutor::Times + " 4 = 24"));
  ListTried(PairsUntilFound(kAsked));
  PageEnd();
  Say("We split 11x into 3x + 8x, group, and take out twice:");
  ShowSteps(Split(kAsked));
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  3 and 8 split the middle term.  They are not the numbers in the )"
           "factors:");
  PaperBox({R"(\r(x + 3)(x + 8)\z begins with x^2^, not 6x^2^)"});
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({3, 10, 8})));
  PageEnd();
  ListTried(PairsUntilFound({3, 10, 8}));
  PageEnd();
  Say("We split 10x into 4x + 6x:");
  ShowSteps(Split({3, 10, 8}));
  PageEnd();
}

void NegativeLastNumber() {
  constexpr Trinomial kAsked = {6, -5, -6};
  NewScreen();
  SayAt(3, Text("Let's factor {}.  The product is -36, so one number is positive and the other "
                "negative.",
                TrinomialText(kAsked)));
  PageEnd();
  ListTried(PairsUntilFound(kAsked));
  PageEnd();
  Say("We write the negative part first.  Then the second group begins with a plus sign:");
  Show("  " + Split(kAsked).FourTerms());
  PageEnd();
  Show("= " + Split(kAsked).TakenOut());
  Show("= " + FactorsText(Split(kAsked).Factored()));
  PageEnd();

  NewScreen();
  CheckByMultiplying(3, Split(kAsked).Factored());
  PageEnd();
  Say(Text(R"(\yTry it:\z  What are the factors of {}?)", TrinomialText({8, 10, -3})));
  PageEnd();
  Say(Text("The product is -24, and -2 + 12 is 10:"));
  ShowSteps(Split({8, 10, -3}));
  PageEnd();
}

void NegativeSum() {
  constexpr Trinomial kAsked = {10, -11, 3};
  NewScreen();
  SayAt(3,
        Text(R"(\yTry it:\z  The product is positive and the sum negative.  What are the factors )"
             "of {}?",
             TrinomialText(kAsked)));
  PageEnd();
  ListTried(PairsUntilFound(kAsked));
  PageEnd();
  Say("Both numbers are negative.  From the second group we take out -3:");
  ShowSteps(Split(kAsked));
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

  std::vector<WrongFactors> SplittingMistakes() const;

  void BeginPage();
  void TellProductAndSum() const;
  void ListPairs();
  void SplitAndGroup();
  void TakeOut();

  Trinomial asked_;
};

// --- Generator -----------------------------------------------------------------------------------

std::vector<WrongFactors> UsingGrouping::SplittingMistakes() const {
  const SplitTrinomial split = Split(asked_);
  const auto [first, second] = split.Numbers();
  std::vector<WrongFactors> mistakes = {
      {"writes the two numbers straight into the factors", {{1, first}, {1, second}}}};
  if (split.FirstOutside() > 1)  // only x is taken out of the first group
    mistakes.push_back(
        {"leaves a common factor inside", {{asked_.square, first}, {1, split.SecondOutside()}}});
  const std::vector<NumberPair> pairs = PairsUntilFound(asked_);
  if (pairs.size() > 1)
    mistakes.push_back({"takes a pair with the right product and the wrong sum",
                        SplitTrinomial(asked_, pairs[pairs.size() - 2]).Factored()});
  return mistakes;
}

void UsingGrouping::DrawProblem(RandomStream& random) {
  const int largest = random.Rand(1, 2) == 1 ? 5 : 9;
  asked_ = DrawFactors(random, largest).Product();
  problem.question = {"Find the factors of this trinomial:", TrinomialText(asked_)};
  FillFactorChoices(problem, Split(asked_).Factored(), SplittingMistakes(), largest, random);
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
  Say(Text(R"(We need two numbers.  Their \yproduct\z is that of the first and the last number:)"));
  Show(Text("{} {} {} = {}", asked_.square, tutor::Times, InParentheses(asked_.constant),
            asked_.square * asked_.constant));
  PageEnd();
  Say(Text(R"(Their \ysum\z is {}, the number in front of x.)", asked_.middle));
  if (std::abs(asked_.middle) == 1)
    AddLine(Text("{} means {}x.", CoefText(asked_.middle) + "x", asked_.middle));
}

// The pairs up to the right one, two a page.  A long list is begun farther down.
void UsingGrouping::ListPairs() {
  constexpr std::size_t kAPage = 2;
  constexpr std::size_t kInBox = 6;
  NewScreen();
  BeginPage();
  std::vector<NumberPair> pairs = PairsUntilFound(asked_);
  SayAt(8, Text("We list pairs with the product {} until the sum is {}:",
                asked_.square * asked_.constant, asked_.middle));
  if (pairs.size() > kInBox) {
    pairs.erase(pairs.begin(), pairs.end() - kInBox);
    AddLine(Text("The first sums are far from {}, so we begin with {}.", asked_.middle,
                 pairs.front().first));
    PageEnd();
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
  const SplitTrinomial split = Split(asked_);
  const auto [first, second] = split.Numbers();
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
  if (second < 0) {
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
  const SplitTrinomial split = Split(asked_);
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
