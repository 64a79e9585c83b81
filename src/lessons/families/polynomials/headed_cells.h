// Print cells under headings: one column a heading, as many lines as are needed.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course::polynomials {

// Empty, on a row of the lesson screen; at most 12 cells, numbered row by row.
void ShowHeadedCells(double row, const std::vector<std::string>& headings, int lines);
// Texts in a cell and those behind it.
void PrintCells(int first, const std::vector<std::string>& texts,
                platform::Colour colour = platform::colour::Black);

}  // namespace course::polynomials
