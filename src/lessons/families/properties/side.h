// One side of an equation that shows a property: up to three numbers with operations and
// parentheses between them, "(3 + 5) + 2" or "5 x 1/5", as text and worked out.
#pragma once

#include <string>
#include <vector>

#include "mathkit/fraction.h"

namespace course::properties {

enum class Grouping { None, First, Last };  // which two of three numbers the parentheses hold

struct Side {
  std::vector<Fraction> numbers;  // 1 to 3
  std::string operations;         // a character between two numbers: + - and tutor::Times, Divided
  Grouping grouping = Grouping::None;
};

// Negative numbers behind an operation stand in parentheses: "3 + (-3)".
std::string SideText(const Side& side);
// What stands in the parentheses: "3 + 5"; nothing without them.
std::string GroupText(const Side& side);
// One operation worked out: the one in the parentheses, or the first one.
Side NextStep(const Side& side);
Fraction ValueOf(const Side& side);
// "(9 - 3) - 2 = 6 - 2 = 4".
std::string WorkText(const Side& side);

}  // namespace course::properties
