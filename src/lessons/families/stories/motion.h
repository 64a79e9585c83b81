// Something that moves at a steady rate, maybe with or against a wind or a current: the draws of
// "Distance-Rate-Time Problems", and the words that tell of it.
#pragma once

#include <string>
#include <vector>

#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::stories {

enum class MotionPart { Distance = 1, Rate, Time };

// "distance" and "d", and so on.
std::string NameOf(MotionPart part);
std::string LetterOf(MotionPart part);

struct Motion {
  std::string vehicle;
  std::string verb;           // "sails"
  bool inWater = false;       // a current then, otherwise a wind
  bool withinAnHour = false;  // the time is at most one hour
  MotionPart asked = MotionPart::Distance;
  int rate = 0;       // miles an hour; in still water or still air
  int direction = 0;  // 1 with a wind or current, -1 against it, 0 without
  int drift = 0;      // miles an hour of the wind or current, below rate when against it
  int minutes = 0;    // of the whole way; a multiple of 15 when it is drawn
  // What the vehicle can do, for the choices.
  int leastRate = 0;
  int mostRate = 0;
  int leastMinutes = 0;
  int mostMinutes = 0;

  // Draws another one.
  static Motion Draw(RandomStream& random);

  int RealRate() const { return rate + direction * drift; }  // miles an hour over the ground
  Fraction Hours() const;
  Fraction Distance() const;  // miles
  // What is asked for: miles, miles an hour, or hours.
  Fraction Answer() const;
  // The same for such a value of the asked part, as the choices print it.
  std::string ValueText(const Fraction& value) const;

  // Two sentences, the second one asks.
  std::vector<std::string> Question() const;
  std::string TheVehicle() const { return "the " + vehicle; }
  std::string DriftName() const { return inWater ? "current" : "wind"; }
  // " in still water", "" where nothing drifts.
  std::string StillText() const;
  // " against a current of 5 mph", "" where nothing drifts.
  std::string DriftText() const;
};

// What the asked part is equal to: first the numbers in its formula, with the rate over the ground,
// then line by line what they give.
std::vector<std::string> WorkingLines(const Motion& motion);

// "20 mph", with a hard blank.
std::string RateText(const Fraction& rate);

}  // namespace course::stories
