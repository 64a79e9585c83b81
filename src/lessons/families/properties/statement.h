// The equations of the lessons on the properties of addition and of multiplication.
//
// A true one is a way from one side to the other, on which every step shows one property:
// (3 + 5) + 2 = (5 + 3) + 2 = 5 + (3 + 2).  The question shows the two ends.  An altered one looks
// like it and is false.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/properties/side.h"
#include "mathkit/random_stream.h"

namespace course::properties {

// Properties are counted in sets: kCommutative | kIdentity.
enum Property {
  kCommutative = 1,  // a new order
  kAssociative = 2,  // a new grouping
  kIdentity = 4,     // a + 0 = a, a x 1 = a
  kInverse = 8,      // a + (-a) = 0, a x 1/a = 1
  kZero = 16,        // a x 0 = 0
};
using PropertySet = int;

// Addition or multiplication.
struct Operation {
  char sign;
  char undoing;  // the sign of subtraction or division
  bool isProduct;
  int Identity() const { return isProduct ? 1 : 0; }
};
extern const Operation kAddition;
extern const Operation kMultiplication;

struct Step {
  Side side;
  Property property = kCommutative;  // by which it follows from the step before; idle in the first
};

struct Statement {
  std::vector<Step> way;       // of an altered one the two ends alone
  bool mirrored = false;       // the way begins on the right side of the equation
  PropertySet properties = 0;  // that it shows, or seems to show when it is altered
  bool isTrue = true;
  std::vector<PropertySet> rivals;  // the sets among which the question lets choose

  const Side& Start() const { return way.front().side; }
  const Side& End() const { return way.back().side; }
  const Side& Left() const { return mirrored ? End() : Start(); }
  const Side& Right() const { return mirrored ? Start() : End(); }
  std::string Text() const;  // "(3 + 5) + 2 = 5 + (3 + 2)"
};

Statement DrawStatement(const Operation& operation, RandomStream& random);

}  // namespace course::properties
