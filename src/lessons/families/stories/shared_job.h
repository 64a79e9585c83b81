// A job that two workers can do, alone or together: the draws of "Work Problems", and the words
// that tell of it.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::stories {

enum class WorkPart { First = 1, Second, Together };

// What a job is done to, and how long one worker may take for it, in quarter hours.
struct Thing {
  std::string noun;
  int leastQuarters = 0;
  int mostQuarters = 0;
};
// A row of the table of things, from 1 to 9.
Thing ThingAt(int row);

struct SharedJob {
  std::string first;  // "John", "the Blue pump"
  std::string second;
  std::string verb;  // "paint"
  Thing thing;
  WorkPart asked = WorkPart::Together;
  int firstMinutes = 0;  // each alone, quarter hours, different
  int secondMinutes = 0;
  int togetherMinutes = 0;

  // Draws another one.
  static SharedJob Draw(RandomStream& random);

  int MinutesOf(WorkPart part) const;
  Fraction HoursOf(WorkPart part) const;
  // The part of the job that is done in an hour.
  Fraction RateOf(WorkPart part) const;
  // The worker's name, "together".
  std::string NameOf(WorkPart part) const;
  // The two whose times are told; the one that may be asked for comes last.
  std::vector<WorkPart> Given() const;
  // Three sentences, the last one asks.
  std::vector<std::string> Question() const;
};

// The right time and the wrong ones, five shuffled boxes.
void FillChoices(const SharedJob& job, Problem& problem, RandomStream& random);

}  // namespace course::stories
