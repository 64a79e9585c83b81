// What students do wrong with a purchase at a discount, and the numbers to which it leads.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/percents/percent_story.h"

namespace course::percents {

struct StoryMistake {
  std::string name;  // "adds the discount"
  int value;         // cents, or percent
};

// The most frequent one comes first.  Some may lead to the answer, to each other's number or to
// less than nothing.
std::vector<StoryMistake> MistakesOf(const PercentStory& story);

}  // namespace course::percents
