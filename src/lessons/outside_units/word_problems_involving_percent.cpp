// The student can work word problems with percents: find a percent of a number, the discount and
// the sale price of something, and the percent that was saved.
//
// Half of the problems ask for the percent saved on something large, a quarter each for the
// discount and the sale price of something small.
#include <algorithm>
#include <cstdlib>
#include <ranges>
#include <string>
#include <vector>

#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/families/percents/percent_story.h"
#include "lessons/families/percents/percent_story_mistakes.h"
#include "lessons/lesson.h"

namespace course {
namespace {

using namespace percents;

const std::string kTimes = " " + tutor::Times + " ";
const std::string kOver = " " + tutor::Divided + " ";

// --- Teaching screens --------------------------------------------------------

void PercentOfANumber() {
  NewScreen();
  SayAt(3, "A team wins 60% of its 25 games.  How many games does it win?");
  PercentBar bar(6, "25 games = 100%");
  PageEnd();
  bar.FillLeft(60);
  bar.NameLeft("60% = ?");
  SayAt(10, R"(\yTry it:\z  What is missing: the whole, the part or the percent?)");
  PageEnd();
  Say(R"(The 25 games are the whole.  The games it wins are the \ypart\z, so we multiply:)");
  Show("0.6" + kTimes + "25 = 15");
  bar.NameLeft("60% = 15 games");
  PageEnd();
  SayAt(17.5, R"(\yCheck:\z  We divide the part by the whole:)");
  Show("15/25 = 60/100 = 60%");
  PageEnd();
}

void OtherPercentStories() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  18 of the 24 students in a class have a pet.  What percent is that?)");
  PercentBar students(6, "24 students = 100%");
  students.FillLeft(75);
  students.NameLeft("18 students = ?");
  PageEnd();
  Say(R"(Now the \ypercent\z is missing.  We divide the part by the whole:)");
  Show("18/24 = 3/4 = 0.75 = 75%");
  students.NameLeft("18 students = 75%");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  Karen has read 45 pages.  That is 30% of her book.  What is missing?)");
  PercentBar pages(6, "? = 100%");
  pages.FillLeft(30);
  pages.NameLeft("45 pages = 30%");
  PageEnd();
  Say(R"(All the pages, the \ywhole\z.  We divide the part by the percent:)");
  AddLine("  45" + kOver + "0.3 = 450" + kOver + "3 = 150");
  PageEnd();
  Say(R"(\yWatch out:\z  Someone multiplies again:)");
  PaperBox({R"(\r0.3)" + kTimes + R"(45 = 13.5 pages\z)"});
  Say("Could this be the whole book?");
  PageEnd();
  Say("No, she has read 45 pages already.  The whole is more than its part.");
  PageEnd();
}

void TheDiscount() {
  NewScreen();
  SayAt(3, "A new backpack is usually priced at $40.00.  There is a discount of 25%.");
  PercentBar bar(6, "$40.00 = 100%");
  PageEnd();
  bar.FillRight(25);
  bar.NameRight("discount = 25%");
  SayAt(10, R"(A \cdiscount\z is what the store takes off the price.  How much is it here?)");
  PageEnd();
  Say(R"(It is 25% \yof the usual price\z:)");
  Show("discount = 0.25" + kTimes + "$40.00 = $10.00");
  Say(R"(\yWatch out:\z  25% is $25.00 only if the price is $100.00.)");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  A jacket for $48.60 has a 5% discount.  How much does Jose save?)");
  PercentBar jacket(6, "$48.60 = 100%");
  jacket.FillRight(5);
  jacket.NameRight("discount = 5%");
  PageEnd();
  SayAt(10, "5% is 0.05, not 0.5.  In cents:");
  Show("5" + kTimes + "4,860 = 24,300");
  AddLine("A hundredth of that is 243 cents:");
  Show("0.05" + kTimes + "$48.60 = $2.43");
  PageEnd();
  Say(R"(\yCheck:\z  10% of $48.60 is $4.86.  5% is half of that, $2.43.)");
  Say(R"(\yWatch out:\z  Do not round the price first.  5% of $49.00 is $2.45.)");
  PageEnd();
}

void TheSalePrice() {
  NewScreen();
  SayAt(3, R"(The \csale price\z is what a buyer pays.  What does the backpack cost now?)");
  PercentBar bar(6, "$40.00 = 100%");
  bar.FillRight(25);
  bar.NameRight("$10.00 = 25%");
  PageEnd();
  bar.DropRight();
  bar.NameLeft("sale price = ?");
  SayAt(12, "We cut the discount off the price:");
  Show("$40.00 - $10.00 = $30.00");
  PageEnd();
  Say("There is a second way.  What percent of the price is left to pay?");
  PageEnd();
  bar.NameLeft("$30.00 = 75%");
  Show("100% - 25% = 75%");
  Show("0.75" + kTimes + "$40.00 = $30.00");
  PageEnd();

  ClearBelow(12);
  SayAt(12, R"(\yWatch out:\z  Mistakes with the backpack:)");
  PaperBox({R"(\r$10.00\z:  that is what we save)",
            R"(\r$40.00 + $10.00\z:  the discount is added)",
            R"(\r$40.00 - $25.00\z:  25% is not $25.00)"});
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yTry it:\z  A hat for $30.00 has a 40% discount.  How much does Jose pay?)");
  PercentBar hat(6, "$30.00 = 100%");
  hat.FillRight(40);
  hat.NameRight("discount = 40%");
  PageEnd();
  ShowAt(10, "discount   = 0.4" + kTimes + "$30.00 = $12.00", 2);
  Show("sale price = $30.00 - $12.00 = $18.00", 2);
  Say(R"(\yCheck:\z  60% is left to pay.)");
  Show("0.6" + kTimes + "$30.00 = $18.00");
  PageEnd();
}

void ThePercentSaved() {
  NewScreen();
  SayAt(3,
        "Karen buys a camera for the sale price of $120.00.  The camera normally costs "
        "$160.00.  What percent is being saved?");
  PercentBar bar(7, "$160.00 = 100%");
  PageEnd();
  bar.FillRight(25);
  bar.NameLeft("$120.00");
  bar.NameRight("?");
  SayAt(11, "How many dollars does she save?");
  PageEnd();
  bar.NameRight("$40.00 = ?");
  Show("$160.00 - $120.00 = $40.00");
  Say("$40.00 is the part.  Which is the whole, $120.00 or $160.00?");
  PageEnd();
  Say(R"(The \yusual\z (normal) price, $160.00, is the 100%.  So we divide by it:)");
  Show("40/160 = 1/4 = 0.25 = 25%");
  bar.NameRight("$40.00 = 25%");
  PageEnd();

  ClearBelow(11);
  SayAt(11.5, R"(\yWatch out:\z  Mistakes with the camera:)");
  PaperBox({R"(\r40)" + kOver + R"(120\z:  $120.00 is not the whole)",
            R"(\r120)" + kOver + R"(160 = 75%\z:  that is what she pays)",
            R"(\r40%\z:  $40.00 is not 40% of $160.00)"});
  PageEnd();
}

void DollarsAndCents() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  A stereo normally costs $124.00.  Andrei pays $105.40.  What percent )"
           "does he save?");
  PercentBar bar(7, "$124.00 = 100%");
  bar.FillRight(15);
  PageEnd();
  bar.NameLeft("$105.40");
  bar.NameRight("$18.60 = ?");
  SayAt(11,
        "He saves $18.60 of $124.00.  Long division is hard here.  What is 10% of $124.00, and "
        "what is 5% of it?");
  PageEnd();
  Say("10% is $12.40, and 5% is half, $6.20.");
  Show("$12.40 + $6.20 = $18.60");
  bar.NameRight("$18.60 = 15%");
  AddLine(R"(So he saves 10% + 5% = \y15%\z.)");
  PageEnd();

  ClearBelow(11);
  SayAt(11, R"(\yWatch out:\z  Mistakes with the stereo:)");
  PaperBox({R"(\r10%\z:  the last 5% is left out)", R"(\r19%\z:  that is the dollars saved)",
            R"(\r0.1 = 1%\z:  0.1 is 10%)"});
  PageEnd();
}

// --- The lesson --------------------------------------------------------------

class WordProblemsInvolvingPercent final : public LessonScript {
 public:
  using LessonScript::LessonScript;
  bool ChoicesAreLaidDown() const override { return true; }

 private:
  std::vector<Screen> Screens() override {
    return {{PercentOfANumber, OtherPercentStories},
            {TheDiscount},
            {TheSalePrice},
            {ThePercentSaved, DollarsAndCents}};
  }
  void DrawProblem(RandomStream& random) override;
  void ShowProblem() override;
  void ExplainProblem() override;

  void FillChoices(RandomStream& random);

  void ShowFacts() const;
  void ExplainDiscount() const;
  void ExplainSalePrice(PercentBar& bar) const;
  void ExplainPercentSaved() const;
  void CheckByParts() const;
  std::string InWords() const;
  std::string Rate() const { return DecimalOf(story_.percent / double{kHundred}); }
  std::string PaidRate() const { return DecimalOf((kHundred - story_.percent) / double{kHundred}); }
  std::string PercentName() const { return NumStr(story_.percent) + "%"; }
  std::string PaidName() const { return NumStr(kHundred - story_.percent) + "%"; }

  PercentStory story_;
};

// --- Generator ---------------------------------------------------------------

void WordProblemsInvolvingPercent::DrawProblem(RandomStream& random) {
  story_ = PercentStory::Draw(random);
  problem.question = story_.Question();
  FillChoices(random);
}

// The first mistake, two others, then those that lie within a quarter of the right one, or within 4
// percent.  What is still free is drawn from there.
void WordProblemsInvolvingPercent::FillChoices(RandomStream& random) {
  const bool isPercent = story_.asked == StoryAsked::PercentSaved;
  const int one = isPercent ? 1 : kHundred;  // a percent or a dollar
  const int right = story_.Answer();
  const double reach = isPercent ? std::max(right / 4.0, 4.0) : right / 4.0;
  Choices<int> choices(problem, choice_kind::FiveShuffled, [isPercent](int value) {
    return isPercent ? NumStr(value) + "%" : MoneyOf(value);
  });
  choices.Right(right);
  std::vector<StoryMistake> mistakes = MistakesOf(story_);
  std::erase_if(mistakes, [&](const StoryMistake& mistake) {
    return mistake.value < one || mistake.value == right;
  });
  const int others = static_cast<int>(mistakes.size()) - 1;
  const std::vector<int> order = random.RandSeq(others, others);
  const auto offer = [&](int i) {
    const StoryMistake& mistake = mistakes[static_cast<std::size_t>(i)];
    choices.Wrong(mistake.name, mistake.value);
  };
  offer(0);
  for (const int i : order | std::views::take(2)) offer(i);
  for (const int i : order)
    if (std::abs(mistakes[static_cast<std::size_t>(i)].value - right) <= reach) offer(i);
  const auto near = [&](double shift) {
    int value = 0;
    do value = static_cast<int>(RoundWhole(right + random.Rnd() * 2 * reach + shift - reach));
    while (value < one);
    return value;
  };
  const auto offerNumber = [&](int value) {
    const auto named = std::ranges::find(mistakes, value, &StoryMistake::value);
    choices.Wrong(named == mistakes.end() ? kFiller : named->name, value);
  };
  offerNumber(near(0));
  while (!choices.Full()) offerNumber(near(one));
}

// --- Problem page ------------------------------------------------------------

void WordProblemsInvolvingPercent::ShowProblem() {
  SayAt(5, problem.question[0] + "  " + problem.question[1]);
  ShowAnswersInTwoColumns(problem, {.row = 12});
}

// --- Worked explanation ------------------------------------------------------

constexpr double kFactsRow = 8.5;
constexpr double kBarRow = 13;
constexpr double kBoxRow = 18.3;

void WordProblemsInvolvingPercent::ExplainProblem() {
  ProblemBanner();
  SayAt(4, problem.question[0] + "  " + problem.question[1]);
  PageEnd();
  ShowFacts();
  PageEnd();
  WhiteBox({.row = kBoxRow});
  if (story_.asked == StoryAsked::PercentSaved) {
    ExplainPercentSaved();
  } else {
    ExplainDiscount();
  }
  SayInBoxAnew(InWords());
  SayInBox(ConclusionText(problem, 'b'));
}

std::string WordProblemsInvolvingPercent::InWords() const {
  const std::string does = story_.asked == StoryAsked::SalePrice ? "pays" : "saves";
  return Text("We have found what we were looking for.  {} {} {}.", Words{story_.buyer}, does,
              RightText(problem));
}

void WordProblemsInvolvingPercent::ShowFacts() const {
  constexpr double kValueCol = 21;
  double row = kFactsRow;
  SayAt(row, "Let's summarize what we know.");
  const auto add = [&](const char* name, const std::string& value) {
    SayAt(++row, name);
    SayAt(row, value, {.col = kValueCol});
  };
  const std::string asked = R"(\y?\z)";
  if (story_.asked == StoryAsked::PercentSaved) {
    add("Usual price", MoneyOf(story_.price));
    add("Sale price", MoneyOf(story_.SalePrice()));
    add("Percent saved", asked);
  } else {
    add("Usual price", MoneyOf(story_.price));
    add("Discount", PercentName());
    add(story_.asked == StoryAsked::Discount ? "Money saved" : "Sale price", asked);
  }
}

void WordProblemsInvolvingPercent::ExplainDiscount() const {
  PercentBar bar(kBarRow, MoneyOf(story_.price) + " = 100%");
  bar.FillRight(story_.percent);
  bar.NameRight("discount = " + PercentName());
  SayInBoxAnew(Text("The discount is {} of the usual price.", PercentName()));
  PageEnd();
  SayInBox(R"("Of" means times:)");
  SayInBox("discount = percent" + kTimes + "usual price");
  PageEnd();
  SayInBoxAnew(Text("As a decimal number {} is {}.", PercentName(), Rate()));
  SayInBox(Text("discount = {}", Rate() + kTimes + MoneyOf(story_.price)));
  SayInBox("Simplify the expression to find the discount.");
  PageEnd();
  const int hundredths = story_.percent * story_.price;
  const std::string discount = MoneyOf(story_.Discount());
  SayInBoxAnew(Text(
      "In cents, {}.  A hundredth of that is {} cents.",
      NumStr(story_.percent) + kTimes + DecimalOf(story_.price) + " = " + DecimalOf(hundredths),
      DecimalOf(story_.Discount())));
  SayInBox(Text("That is {}, the discount.", discount));
  bar.NameRight(discount + " = " + PercentName());
  PageEnd();
  if (story_.asked == StoryAsked::SalePrice) ExplainSalePrice(bar);
  CheckByParts();
}

void WordProblemsInvolvingPercent::ExplainSalePrice(PercentBar& bar) const {
  SayInBoxAnew(
      Text("{} does not pay the discount.  We cut it off the usual price:", Words{story_.buyer}));
  bar.DropRight();
  bar.NameLeft(MoneyOf(story_.SalePrice()) + " = " + PaidName());
  SayInBox(MoneyOf(story_.price) + " - " + MoneyOf(story_.Discount()) + " = " +
           MoneyOf(story_.SalePrice()));
  PageEnd();
}

// The discount once more, without its decimal number.
void WordProblemsInvolvingPercent::CheckByParts() const {
  const EasyParts parts = EasyPartsOf(story_);
  SayInBoxAnew("Check:  " + parts.found);
  const std::string& rest = parts.sum.empty() ? parts.percent : parts.sum;
  if (!rest.empty()) SayInBox(rest);
  PageEnd();
}

void WordProblemsInvolvingPercent::ExplainPercentSaved() const {
  const std::string saved = MoneyOf(story_.Discount());
  PercentBar bar(kBarRow, MoneyOf(story_.price) + " = 100%");
  bar.FillRight(story_.percent);
  bar.NameLeft(MoneyOf(story_.SalePrice()));
  bar.NameRight("saved = ?");
  SayInBoxAnew("First, how many dollars are saved?");
  PageEnd();
  SayInBox(MoneyOf(story_.price) + " - " + MoneyOf(story_.SalePrice()) + " = " + saved);
  PageEnd();
  bar.NameRight(saved + " = ?");
  SayInBoxAnew(R"(The whole is the \busual price\z.)");
  SayInBox("percent = part" + kOver + "whole");
  PageEnd();
  SayInBoxAnew(Text("percent = {}", saved + kOver + MoneyOf(story_.price)));
  SayInBox(
      "Simplify the expression to find the percent.  We try easy parts: a half, a quarter, a "
      "fifth, 10% and 5%.");
  PageEnd();
  const EasyParts parts = EasyPartsOf(story_);
  SayInBoxAnew(parts.found);
  PageEnd();
  if (!parts.sum.empty()) SayInBox(parts.sum);
  SayInBox(parts.percent.empty() ? "So 5% is saved." : parts.percent);
  bar.NameRight(saved + " = " + PercentName());
  PageEnd();
  SayInBoxAnew(Text("Check:  As a decimal number {} is {}.", PercentName(), Rate()));
  SayInBox(Rate() + kTimes + MoneyOf(story_.price) + " = " + saved);
  PageEnd();
}

const LessonRegistration<WordProblemsInvolvingPercent> kRegistration(
    "Word Problems Involving Percent");

}  // namespace
}  // namespace course
