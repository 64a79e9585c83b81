// A purchase at a discount: the words and the prices of its story, and what is asked.
#pragma once

#include <string>
#include <vector>

#include "mathkit/random_stream.h"

namespace course::percents {

enum class StoryAsked { Discount, SalePrice, PercentSaved };

struct PercentStory {
  StoryAsked asked = StoryAsked::Discount;
  std::string buyer;
  std::string item;
  int price = 0;    // the usual one, in cents
  int percent = 0;  // of the discount: 5, 10 and so on to 50

  // A percent saved on something large in half of the stories; else the discount or the sale price
  // of something small.  The discount is in whole cents.
  static PercentStory Draw(RandomStream& random);

  int Discount() const { return price * percent / 100; }  // cents
  int SalePrice() const { return price - Discount(); }    // cents
  // Two lines: what happened, and the question.
  std::vector<std::string> Question() const;
  // In cents, or in percent.
  int Answer() const;
};

// "$12.50".
std::string MoneyOf(int cents);

// The discount by parts of the price that are easily found: a half, a quarter, or tenths and a
// twentieth.  All of them are in whole cents.
struct EasyParts {
  std::string found;    // "10% of $41.80 is $4.18, and half of that, 5%, is $2.09."
  std::string sum;      // "$4.18 + $2.09 = $6.27"; "" when one part is all
  std::string percent;  // "10% + 5% = 15%", or "A quarter is 25%."; "" for 5%
};
EasyParts EasyPartsOf(const PercentStory& story);

}  // namespace course::percents
