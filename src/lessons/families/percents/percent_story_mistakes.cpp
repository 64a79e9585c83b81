#include "lessons/families/percents/percent_story_mistakes.h"

#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/page/say.h"

namespace course::percents {

using page::Text;

namespace {

int RoundedQuotient(int a, int b) {
  return (2 * a + b) / (2 * b);
}

std::vector<StoryMistake> MistakesAtPercentSaved(const PercentStory& story) {
  const int percent = story.percent;
  const int saved = story.Discount() * kHundred;
  const std::string rounds = saved % story.SalePrice() == 0 ? "" : " and rounds";
  std::vector<StoryMistake> mistakes = {
      {"gives the percent that is paid", kHundred - percent},
      {"divides by the sale price" + rounds, RoundedQuotient(saved, story.SalePrice())},
      {"takes the dollars saved for the percent", RoundedQuotient(story.Discount(), kHundred)}};
  if (percent % 10 == 0)
    mistakes.push_back(
        {Text("writes {} as {}%", DecimalOf(percent / double{kHundred}), percent / 10),
         percent / 10});
  else if (percent < 10)
    mistakes.push_back(
        {Text("writes {} as {}%", DecimalOf(percent / double{kHundred}), percent * 10),
         percent * 10});
  else
    mistakes.push_back({"leaves out the last 5%", percent - 5});
  return mistakes;
}

}  // namespace

std::vector<StoryMistake> MistakesOf(const PercentStory& story) {
  if (story.asked == StoryAsked::PercentSaved) return MistakesAtPercentSaved(story);
  const int discount = story.Discount();
  const int salePrice = story.SalePrice();
  const int percentAsDollars = story.percent * kHundred;
  const int roundedPrice = RoundedQuotient(story.price, kHundred) * kHundred;
  const int roundedDiscount = roundedPrice / kHundred * story.percent;
  // 0.5 for 5%, but 0.015 for 15%: nobody believes in a discount above the price.
  const bool isTenths = story.percent < 10;
  const int misread = isTenths ? discount * 10 : RoundedQuotient(discount, 10);
  const std::string misreads =
      Text("takes {} for {}", DecimalOf(story.percent / (isTenths ? 10.0 : 1000.0)),
           Text("{}%", story.percent)) +
      (isTenths || discount % 10 == 0 ? "" : " and rounds");
  if (story.asked == StoryAsked::Discount)
    return {{"gives the sale price in place of the discount", salePrice},
            {"takes the percent for dollars", percentAsDollars},
            {misreads, misread},
            {"rounds the price to whole dollars", roundedDiscount}};
  return {{"gives the discount in place of the sale price", discount},
          {"adds the discount", story.price + discount},
          {"subtracts the percent as dollars", story.price - percentAsDollars},
          {misreads, story.price - misread},
          {"rounds the price to whole dollars", roundedPrice - roundedDiscount}};
}

}  // namespace course::percents
