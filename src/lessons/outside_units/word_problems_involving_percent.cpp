// The student can work word problems with percents: find a percent of a number, the discount and
// the sale price of something, and the percent that was saved.
//
// Half of the problems ask for the percent saved on something large, a quarter each for the
// discount and the sale price of something small.
#include <algorithm>
#include <string>
#include <vector>

#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/families/percents/percent_story.h"
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
  Say(R"(The 25 games are the whole.  The wins are the \ypart\z, so we multiply:)");
  Show("0.6" + kTimes + "25 = 15");
  bar.NameLeft("60% = 15 games");
  PageEnd();
  SayAt(17.5, R"(\yCheck:\z  We divide the part by the whole:)");
  Show("15/25 = 60/100 = 60%");
  PageEnd();
}

void OtherPercentStories() {
  NewScreen();
  SayAt(3, R"(\yTry it:\z  18 of the 24 students of a class have a pet.  What percent is that?)");
  PageEnd();
  Say(R"(Now the \ypercent\z is missing.  We divide the part by the whole:)");
  Show("18/24 = 3/4 = 0.75 = 75%");
  PageEnd();
  Say(R"(\yTry it:\z  Karen has read 45 pages.  That is 30% of her book.  What is missing?)");
  PageEnd();
  Say(R"(All the pages, the \ywhole\z.  We divide the part by the percent:)");
  AddLine("  45" + kOver + "0.3 = 450" + kOver + "3 = 150");
  PageEnd();

  NewScreen();
  SayAt(3, R"(\yWatch out:\z  Someone multiplies in every story:)");
  PaperBox({R"(\r0.3)" + kTimes + R"(45 = 13.5 pages\z)"});
  Say("Could this be the whole book?");
  PageEnd();
  PercentBar bar(9.5, "150 pages = 100%");
  bar.FillLeft(30);
  bar.NameLeft("45 pages = 30%");
  SayAt(13.5, "No, she has read 45 pages already.  The whole is more than its part.");
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
  SayAt(3, R"(\yTry it:\z  A jacket is usually priced at $48.60.  Jose gets a discount of 5%.  )"
           "How much does he save?");
  PageEnd();
  Say("5% is 0.05, not 0.5:");
  Show("0.05" + kTimes + "$48.60 = $2.43");
  Say(Text("In cents, {}.  A hundredth of that is 243 cents.", "5" + kTimes + "4,860 = 24,300"));
  PageEnd();
  Say(R"(\yCheck:\z  10% of $48.60 is $4.86.  5% is half of that, $2.43.)");
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
  SayAt(12, "The discount is taken off:");
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
  SayAt(3, R"(\yTry it:\z  A hat is usually priced at $30.00.  Jose gets a discount of 40%.  How )"
           "much does he pay?");
  PageEnd();
  GoBelow();
  Show("discount   = 0.4" + kTimes + "$30.00 = $12.00", 2);
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
  Say(R"(The \ynormal price\z, $160.00, because it is the 100%.  So we divide by it:)");
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
  PageEnd();
  Say("He saves $18.60 of $124.00.  In cents, both are whole numbers:");
  Show("(18.60)/(124.00) = (1,860)/(12,400)");
  PageEnd();
  Say("12,400 does not go into 1,860, so we write 0 and the point.  We add a zero:  it goes once "
      "into 18,600, and 6,200 is left.");
  PageEnd();
  Say(R"(We add a zero again:  it goes 5 times into 62,000.  So we get 0.15, and that is )"
      R"(\y15%\z.)");
  Say(Text(R"(\yCheck:\z  {})", "0.15" + kTimes + "$124.00 = $18.60"));
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

  struct Mistake {
    std::string name;
    int value;  // cents, or percent
  };
  std::vector<Mistake> Mistakes() const;
  void FillChoices(RandomStream& random);

  void ShowFacts() const;
  void ExplainDiscount() const;
  void ExplainSalePrice(PercentBar& bar) const;
  void ExplainPercentSaved() const;
  std::string LongDivision() const;
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

int RoundedQuotient(int a, int b) {
  return (2 * a + b) / (2 * b);
}

std::vector<WordProblemsInvolvingPercent::Mistake> WordProblemsInvolvingPercent::Mistakes() const {
  const int discount = story_.Discount();
  const int salePrice = story_.SalePrice();
  const int percentAsDollars = story_.percent * kHundred;
  if (story_.asked == StoryAsked::Discount)
    return {{"gives the sale price in place of the discount", salePrice},
            {"takes the percent for dollars", percentAsDollars},
            {"moves the point one place only", discount * 10}};
  if (story_.asked == StoryAsked::SalePrice)
    return {{"gives the discount in place of the sale price", discount},
            {"adds the discount", story_.price + discount},
            {"subtracts the percent as dollars", story_.price - percentAsDollars}};
  return {{"gives the percent that is paid", kHundred - story_.percent},
          {"divides by the sale price", RoundedQuotient(discount * kHundred, salePrice)},
          {discount % kHundred == 0 ? "takes the dollars saved for the percent"
                                    : "rounds the dollars saved and takes them for the percent",
           RoundedQuotient(discount, kHundred)}};
}

// The first mistake and one of the two others; the rest lies within a quarter of the right one, or
// within 4 percent, and may be a mistake by chance.
void WordProblemsInvolvingPercent::FillChoices(RandomStream& random) {
  const bool isPercent = story_.asked == StoryAsked::PercentSaved;
  const int one = isPercent ? 1 : kHundred;  // a percent or a dollar
  const int right = story_.Answer();
  const double reach = isPercent ? std::max(right / 4.0, 4.0) : right / 4.0;
  Choices<int> choices(problem, choice_kind::FiveShuffled, [isPercent](int value) {
    return isPercent ? NumStr(value) + "%" : MoneyOf(value);
  });
  choices.Right(right);
  const std::vector<Mistake> mistakes = Mistakes();
  const Mistake& second = mistakes[static_cast<std::size_t>(random.Rand(1, 2))];
  choices.Wrong(mistakes[0].name, mistakes[0].value);
  if (second.value >= one) choices.Wrong(second.name, second.value);
  const auto near = [&](double shift) {
    int value = 0;
    do value = static_cast<int>(RoundWhole(right + random.Rnd() * 2 * reach + shift - reach));
    while (value < one);
    return value;
  };
  const auto offer = [&](int value) {
    const auto named = std::ranges::find(mistakes, value, &Mistake::value);
    choices.Wrong(named == mistakes.end() ? kFiller : named->name, value);
  };
  offer(near(0));
  offer(near(0));
  while (!choices.Full()) offer(near(one));
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
    add("Normal price", MoneyOf(story_.price));
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
  PageEnd();
  const int hundredths = story_.percent * story_.price;
  SayInBoxAnew(Text(
      "In cents, {}.  A hundredth of that is {} cents.",
      NumStr(story_.percent) + kTimes + DecimalOf(story_.price) + " = " + DecimalOf(hundredths),
      DecimalOf(story_.Discount())));
  PageEnd();
  SayInBox(Text("Simplify the expression to find the discount:  {}", MoneyOf(story_.Discount())));
  bar.NameRight(MoneyOf(story_.Discount()) + " = " + PercentName());
  PageEnd();
  if (story_.asked == StoryAsked::SalePrice) {
    ExplainSalePrice(bar);
    return;
  }
  SayInBoxAnew(Text("Check:  {} is left to pay.", PaidName()));
  SayInBox(PaidRate() + kTimes + MoneyOf(story_.price) + " = " + MoneyOf(story_.SalePrice()));
  SayInBox(Text("{}, the usual price.", MoneyOf(story_.Discount()) + " + " +
                                            MoneyOf(story_.SalePrice()) + " = " +
                                            MoneyOf(story_.price)));
  PageEnd();
}

void WordProblemsInvolvingPercent::ExplainSalePrice(PercentBar& bar) const {
  SayInBoxAnew(
      Text("{} does not pay the discount.  We take it off the usual price:", Words{story_.buyer}));
  bar.DropRight();
  bar.NameLeft(MoneyOf(story_.SalePrice()) + " = " + PaidName());
  SayInBox(MoneyOf(story_.price) + " - " + MoneyOf(story_.Discount()) + " = " +
           MoneyOf(story_.SalePrice()));
  PageEnd();
  SayInBoxAnew(
      Text("Check:  {} is left to pay.", Text("100% - {} = {}", PercentName(), PaidName())));
  SayInBox(PaidRate() + kTimes + MoneyOf(story_.price) + " = " + MoneyOf(story_.SalePrice()));
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
  SayInBoxAnew(R"(The whole is the \bnormal price\z.)");
  SayInBox("percent = part" + kOver + "whole");
  PageEnd();
  const std::string inCents = DecimalOf(story_.Discount()) + kOver + DecimalOf(story_.price);
  SayInBoxAnew(Text("percent = {}", saved + kOver + MoneyOf(story_.price)));
  SayInBox(Text("In cents, both times 100:  {}", inCents));
  PageEnd();
  SayInBoxAnew(inCents);
  SayInBox(Text("{} does not go into {}.  So we write 0 and the point, and add a zero.",
                DecimalOf(story_.price), DecimalOf(story_.Discount())));
  PageEnd();
  SayInBoxAnew(inCents);
  SayInBox(LongDivision());
  PageEnd();
  SayInBoxAnew(
      Text("Simplify the expression to find the percent:  {}", Rate() + " = " + PercentName()));
  bar.NameRight(saved + " = " + PercentName());
  PageEnd();
  SayInBox(Text("Check:  {}", Rate() + kTimes + MoneyOf(story_.price) + " = " + saved));
  PageEnd();
}

// Discount divided by price, both in cents: the tenths, then the hundredths.
std::string WordProblemsInvolvingPercent::LongDivision() const {
  const auto times = [](int count) {
    return Words{count == 1 ? std::string("once") : Text("{} times", count)};
  };
  const int tenths = story_.percent / 10;
  const int hundredths = story_.percent % 10;
  const int afterTenths = story_.Discount() * 10 - tenths * story_.price;
  const std::string price = DecimalOf(story_.price);
  const std::string tenTimesSaved = DecimalOf(story_.Discount() * 10);
  std::string text =
      tenths == 0 ? Text("{} does not go into {}, so we write one more 0", price, tenTimesSaved)
                  : Text("{} goes {} into {}", price, times(tenths), tenTimesSaved);
  if (tenths > 0 && hundredths > 0) text += Text(", and {} is left", DecimalOf(afterTenths));
  if (hundredths > 0)
    text += Text(".  We add a zero again:  it goes {} into {}", times(hundredths),
                 DecimalOf(afterTenths * 10));
  return text + Text(".  So we get {}.", Rate());
}

const LessonRegistration<WordProblemsInvolvingPercent> kRegistration(
    "Word Problems Involving Percent");

}  // namespace
}  // namespace course
