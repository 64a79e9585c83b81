// Two vehicles that leave one town: the second follows the first, or they go in opposite
// directions.  The draws of "Advanced Distance-Rate-Time Problems", and the words that tell of
// them.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/stories/motion.h"
#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::stories {

enum class TwoVehiclesKind {
  CatchUp = 1,    // the second one follows at a higher rate: when does it catch up
  TimeApart,      // opposite directions: when are they so far apart
  DistanceApart,  // opposite directions: how far are they apart
  SameRate        // the second one follows at the same rate: how far are they apart
};

struct TwoVehicles {
  TwoVehiclesKind kind = TwoVehiclesKind::CatchUp;
  std::string name;  // "Train"
  std::string noun;  // "train"
  std::string town;
  int firstRate = 0;   // miles per hour
  int secondRate = 0;  // higher; of SameRate the same
  int minutes = 0;     // the head start; in opposite directions the time that both are on their way
  int laterMinutes = 0;  // of SameRate: from the start of the second one to what is asked for

  // Draws another one.
  static TwoVehicles Draw(RandomStream& random);

  // Whether the second one follows the first.
  bool Follows() const;
  Fraction Hours() const;
  // How far the first one is when the second one leaves, for those that follow.
  Fraction GapAtStart() const;
  // One motion in place of two: how fast the distance between them changes, how long, and how far
  // that is.  At the same rate it is the way of the head start, after which nothing changes.
  Motion Relative() const;

  // Sentences, the last one asks.
  std::vector<std::string> Question() const;
};

// "1,383 3/4 miles", "1 mile".
std::string MilesText(const Fraction& miles);
// A fraction that is not mixed, for built-up lines: "(5,535)/4", "9/4", "1,250".
std::string MilesQuotient(int numerator, int denominator);
// The number of miles without a unit, with a comma from 1,000 on: "1,383 3/4".
std::string MilesNumber(const Fraction& miles);

// The right one and the mistakes, five shuffled boxes.
void FillChoices(const TwoVehicles& vehicles, Problem& problem, RandomStream& random);

}  // namespace course::stories
