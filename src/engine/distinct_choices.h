// Fills the choices of a problem with values that all differ: the right one first, then the values
// that mistakes lead to, in the order in which they are offered, as long as slots are free.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "engine/problem.h"

namespace course {

// Value needs ==; text(value) is the choice as the student reads it.
template <class Value, class Text>
class DistinctChoices {
 public:
  // Slots 1 to slots are filled.
  DistinctChoices(Problem& problem, int slots, Text text)
      : problem_(problem), slots_(slots), text_(text) {}

  void Right(const Value& value) {
    problem_.Right(NextSlot(), text_(value));
    taken_.push_back(value);
  }
  // Takes the next slot unless a choice has this value already or no slot is free.
  void Offer(const std::string& mistake, const Value& value) {
    if (Full()) return;
    for (const Value& other : taken_)
      if (other == value) return;
    problem_.Wrong(NextSlot(), mistake, text_(value));
    taken_.push_back(value);
  }
  bool Full() const { return static_cast<int>(taken_.size()) == slots_; }

 private:
  int NextSlot() const { return static_cast<int>(taken_.size()) + 1; }

  Problem& problem_;
  int slots_;
  Text text_;
  std::vector<Value> taken_;
};

}  // namespace course
