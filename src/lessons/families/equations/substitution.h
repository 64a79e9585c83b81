// The check of an equation or inequality: a number is put in place of the letter, and both sides
// are worked out line by line.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "lessons/families/equations/equation_machine.h"

namespace course::equations {

// 3 times 5 or -2: "3 . 5" with a raised dot, which reads as a decimal point when it is tight.
std::string ProductText(int factor, int value);

// The texts of both sides, one to three lines; a line like the one before is left out.
using SideTexts = std::pair<std::string, std::string>;
std::vector<SideTexts> SubstitutedLines(const LinearStatement& statement, int value);

bool IsTrueFor(const LinearStatement& statement, int value);

}  // namespace course::equations
