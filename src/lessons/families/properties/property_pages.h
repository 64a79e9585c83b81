// The pages that the lessons on the properties share: the problem, its explanation, and what moves
// on the teaching screens.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/properties/statement.h"
#include "platform/geometry.h"

namespace course::properties {

void ShowPropertyProblem(const Problem& problem);
// From a cleared screen on, to the answer.
void ExplainStatement(const Problem& problem, const Operation& operation,
                      const Statement& statement);

// Dots in every second column from a cell on.
void DrawDots(double row, double col, int count, platform::Colour colour);
// Columns that so many dots take.
inline double DotsWidth(int count) {
  return 2 * count - 1;
}

// Lines with hard blanks behind the shorter ones, so that all begin in one column of a box.
std::vector<std::string> Aligned(std::vector<std::string> lines);

// Prints "3 + 5" and lets a copy of the two numbers change places behind an equal sign.  The rows
// above and below stay free.
void ShowExchange(double row, double col, const std::string& first, char sign,
                  const std::string& second);
// Prints "(2 + 3) + 4 =", numbers of one digit, and behind it the same; there the parentheses move
// to the last two.  The two rows above stay free, and nothing stands below.
void ShowParenthesesMove(double row, double col, const std::string& digits, char sign);

}  // namespace course::properties
