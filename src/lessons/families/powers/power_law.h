// What the lessons on powers of powers and products share: a group of powers in parentheses with an
// exponent behind them, written out, and told factor by factor in a table.
#pragma once

#include <string>
#include <vector>

#include "lessons/families/powers/power_text.h"

namespace course::powers {

// (2b^3^c)^4^: a number and powers of different letters, and how many times they are a factor.
struct PowerOfGroup {
  int number = 1;             // 1 is not printed
  std::vector<Power> powers;  // in the order of the alphabet
  int exponent = 2;           // 2 to 9
};

std::string GroupText(const PowerOfGroup& group);
// "(b^3^c)(b^3^c)(b^3^c)"; of more than three groups the first two and the last, with dots between.
std::string GroupWrittenOut(const PowerOfGroup& group);

// A table of the two letters of a group: a row a letter, a column a group, and what they make
// together in the last one.  More than five groups are shown as the first two and the last, with
// dots between.
void ShowGroupsTable(const PowerOfGroup& group);
// Fills in the last column of row 0 or 1: the letter with its exponent multiplied.
void FillInTogether(const PowerOfGroup& group, int row);

}  // namespace course::powers
