// Figures of the lessons on powers of numbers: powers over their values, paper that is folded,
// squares, and a product that grows factor by factor.
#pragma once

#include <string>
#include <vector>

#include "display/print_cells.h"

namespace course::powers {

// A table of two rows of print cells, up to 6 in a row and numbered row by row, with a heading at
// the left of each.
PrintCellTable TwoRows(const std::string& upper, const std::string& lower, int columns);
// Prints texts in the cells from the given one on.
void FillCells(int first, const std::vector<std::string>& texts,
               platform::Colour colour = platform::colour::Black);

// A strip of paper from a cell of the lesson screen on, so many columns long.
class PaperStrip {
 public:
  PaperStrip(double row, double col, int columns);
  // The right half slides over the left one.
  void Fold();

 private:
  double row_;
  double col_;
  double columns_;  // that are left
};

// Three rows of three squares, five columns wide; their upper left corner is at the cell.
void DrawNineSquares(double row, double col);

// "2 x 2 = 4", "4 x 2 = 8" and so on up to so many equal factors, two a row.  A page ends behind
// each two rows.
void MultiplyStepByStep(int base, int factors);

}  // namespace course::powers
