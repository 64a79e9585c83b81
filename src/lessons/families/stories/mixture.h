// A mixture with so much percent of a substance, to which another one is added: the draws of
// "Mixture Problems", and the words that tell of it.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "mathkit/fraction.h"
#include "mathkit/random_stream.h"

namespace course::stories {

struct Mixture {
  std::string substance;  // "acid"
  std::string name;       // "acid solution"
  std::string unit;       // "mL" or "g"
  std::string unitName;   // "milliliters"
  int original = 0;       // percent, 11 to 90
  int added = 0;          // percent; 0 is water, 100 the pure substance
  int final = 0;          // percent, strictly between the two
  int quantity = 0;       // of the original, 2 to 50

  // Draws another one.
  static Mixture Draw(RandomStream& random);

  // What is added, exactly and to the nearest hundredth.
  Fraction Exact() const { return Reduced(quantity * (original - final), final - added); }
  double Answer() const;
  bool IsRounded() const;
  // "12.5 mL", with a hard blank.
  std::string ValueText(double value) const;
  // "a 60% acid solution", "water", "pure acid".
  std::string SolutionText(int percent) const;
  // Two sentences, and a third one when the answer is rounded.
  std::vector<std::string> Question() const;
};

// ".6", "1", "0" of a percent.
std::string AsDecimal(int percent);
// A percent of a quantity, exact.
std::string AmountText(int percent, int quantity);
// ".25x", "x": so much percent of x.
std::string TermText(int percent);
// "25%".
std::string PercentText(int percent);
// A product with its sign, not broken between two lines.
std::string TimesText(const std::string& a, const std::string& b);

// The right quantity and the wrong ones, five shuffled boxes.
void FillChoices(const Mixture& mixture, Problem& problem, RandomStream& random);

}  // namespace course::stories
