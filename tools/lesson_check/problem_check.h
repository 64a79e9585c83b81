// Checks one drawn problem without a window: its form, its choices as texts and as values, the
// right answer by the lesson's judge, and what the mistakes' names promise.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "engine/lesson_script.h"
#include "lesson_check/habits.h"
#include "lesson_check/judge.h"

namespace lesson_check {

// The mistake of a choice at random: nothing can be derived from it.
inline constexpr const char* kFiller = "filler";

// How often choices of a mistake were met.
struct MistakeCount {
  long met = 0;
  long derived = 0;  // the judge worked out the same value
};
using MistakeCounts = std::map<std::string, MistakeCount>;

// What only many problems together tell.
struct Tally {
  // With the mistakes that the judge derives and no choice had, met 0 times.
  MistakeCounts mistakes;
  std::map<std::string, long> kinds;  // of problem
  std::set<std::uint32_t> different;  // hashes of questions
  Habits habits;

  void Add(const Tally& other);
};

// Calls complain for each fault.  A judge of nullptr is a fault.
void CheckProblem(Judge judge, const course::LessonScript::DrawnProblem& drawn,
                  const std::function<void(const std::string& fault)>& complain, Tally& tally);

// Everything that a student can see or learn of the problem, as one text: two problems are the same
// when these are.
std::string FingerprintText(const course::LessonScript::DrawnProblem& drawn);

}  // namespace lesson_check
