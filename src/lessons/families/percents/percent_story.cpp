#include "lessons/families/percents/percent_story.h"

#include <string_view>

#include "lessons/families/percents/percent_figures.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"

namespace course::percents {

using page::Text;
using page::Words;

namespace {

constexpr int kNames = 4;
constexpr std::string_view kBuyers[kNames] = {"Jenny", "Karen", "Jose", "Andrei"};
constexpr std::string_view kSmallItems[kNames] = {"jacket", "backpack", "sweater", "hat"};
constexpr std::string_view kLargeItems[kNames] = {"stereo", "television", "VCR", "camera"};

// Least and most dollars.
struct PriceRange {
  int least;
  int width;
};
constexpr PriceRange kSmallPrices = {25, 50};
constexpr PriceRange kLargePrices = {100, 100};

std::string OneOf(const std::string_view (&names)[kNames], RandomStream& random) {
  return std::string(names[random.Index(kNames) - 1]);
}

}  // namespace

std::string MoneyOf(int cents) {
  return MoneyText(cents / double{kHundred});
}

PercentStory PercentStory::Draw(RandomStream& random) {
  PercentStory story;
  const bool large = random.Rand(0, 1) == 1;
  story.buyer = OneOf(kBuyers, random);
  story.item = OneOf(large ? kLargeItems : kSmallItems, random);
  const PriceRange range = large ? kLargePrices : kSmallPrices;
  const auto drawPrice = [&] {
    const double dollars = random.Rnd() * range.width + range.least;
    story.price = static_cast<int>(RoundWhole(dollars * kHundred));
  };
  drawPrice();
  story.percent = random.Rand(1, 10) * 5;
  // A discount must not have a part of a cent.  Only the price is drawn again, so that all percents
  // are as many; from 5 % of the prices at 5%, 15% and so on to a half at 50% are accepted.
  while (story.price * story.percent % kHundred != 0) drawPrice();
  const bool paid = random.Rand(0, 1) == 1;
  story.asked = large  ? StoryAsked::PercentSaved
                : paid ? StoryAsked::SalePrice
                       : StoryAsked::Discount;
  return story;
}

std::vector<std::string> PercentStory::Question() const {
  if (asked == StoryAsked::PercentSaved)
    return {Text("{} buys a {} for the sale price of {}.  The {} normally costs {}.", buyer, item,
                 MoneyOf(SalePrice()), item, MoneyOf(price)),
            "What percent is being saved?"};
  return {Text("A new {} is usually priced at {}.  {} gets a discount of {}%.", item,
               MoneyOf(price), buyer, percent),
          Text("How much does {} {}?", buyer, asked == StoryAsked::Discount ? "save" : "pay")};
}

int PercentStory::Answer() const {
  if (asked == StoryAsked::Discount) return Discount();
  return asked == StoryAsked::SalePrice ? SalePrice() : percent;
}

namespace {

struct UnitFraction {
  int percent;
  std::string_view name;
};
constexpr UnitFraction kUnitFractions[] = {
    {50, "half"}, {25, "quarter"}, {20, "fifth"}, {10, "tenth"}};

EasyParts OnePart(const PercentStory& story, const std::string& name) {
  const std::string over = " " + tutor::Divided + " ";
  return {Text("A {} of {} is {}.", name, MoneyOf(story.price),
               MoneyOf(story.price) + over + NumStr(kHundred / story.percent) + " = " +
                   MoneyOf(story.Discount())),
          "", Text("A {} is {}%.", name, story.percent)};
}

// "3 x ", or nothing for once.
std::string Times(int count) {
  return count == 1 ? "" : NumStr(count) + " " + tutor::Times + " ";
}

}  // namespace

EasyParts EasyPartsOf(const PercentStory& story) {
  for (const auto& [percent, name] : kUnitFractions)
    if (story.percent == percent) return OnePart(story, std::string(name));

  constexpr int kHalfStep = 5;
  const int step = story.percent == 40 ? 20 : 10;  // a tenth may end with a part of a cent there
  const int count = story.percent / step;
  const std::string large = MoneyOf(story.price * step / kHundred);
  const std::string small = MoneyOf(story.price * kHalfStep / kHundred);
  const std::string known = Text("{}% of {} is {}", step, MoneyOf(story.price), large);
  if (count == 0) return {Text("{}.  5% is half of that, {}.", Words{known}, small), "", ""};

  EasyParts parts = {known + ".", Times(count) + large, Times(count) + NumStr(step) + "%"};
  if (story.percent % step != 0) {
    parts.found = Text("{}, and half of that, 5%, is {}.", Words{known}, small);
    parts.sum += " + " + small;
    parts.percent += " + 5%";
  }
  parts.sum += " = " + MoneyOf(story.Discount());
  parts.percent += Text(" = {}%", story.percent);
  return parts;
}

}  // namespace course::percents
