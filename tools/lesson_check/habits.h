// How often a student wins who does not work, but picks a box by its looks.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace lesson_check {

inline constexpr std::array kHabits = {"the longest text", "the largest value",
                                       "the box most like the others",
                                       "the box least like the others", "the only one of its form"};

struct Habits {
  std::array<double, kHabits.size()> wins{};  // expected, over the problems that were added
  double chance = 0;                          // of a blind guess, likewise
  long problems = 0;

  // texts and their values in the same order; right is the index of the right one, or -1 when the
  // answer is "None of the above", on which no habit falls.  boxes counts that box, too.
  void Add(const std::vector<std::string>& texts, const std::vector<std::string>& values, int right,
           int boxes);
  void Add(const Habits& other);
};

}  // namespace lesson_check
