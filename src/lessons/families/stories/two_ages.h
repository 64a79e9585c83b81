// The ages of two people, compared in times or years: the draws of "Simple Word Problems", and the
// choices with the mistakes behind them.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/random_stream.h"

namespace course::stories {

// What is done with the known age; the table of signs in the lesson has this order.
enum class AgeOperation { Multiply, Divide, Add, Subtract };

// "Dave is 4 years younger than Mary": Dave is the first one.
struct TwoAges {
  std::string first;
  std::string second;
  bool inTimes = false;
  bool firstIsOlder = false;
  int number = 0;  // of times or years, 1 to 9
  // A number is asked of the first person, an expression of the second.
  bool asksForNumber = false;
  int age = 0;         // of the second person, 1 to 60, when a number is asked
  std::string letter;  // the first person's age, when an expression is asked

  static TwoAges Draw(RandomStream& random);

  // "3 times older", "1 year younger".
  std::string Difference() const;
  std::vector<std::string> Question() const;
  const std::string& Asked() const { return asksForNumber ? first : second; }
  const std::string& Known() const { return asksForNumber ? second : first; }
  std::string KnownAge() const;
  bool AskedIsOlder() const { return firstIsOlder == asksForNumber; }
  AgeOperation RightOperation() const;
  // What an operation makes of the known age: "k - 4"; a quotient is cut behind three decimals.
  std::string AgeBy(AgeOperation operation) const;
};

// Four shuffled choices, one for each operation, of which mostly one makes place for a random age;
// when it is the right one, "None of the above" is right.
void FillChoices(const TwoAges& ages, Problem& problem, RandomStream& random);

}  // namespace course::stories
