// Figures of the lessons on powers of numbers: powers over their values, paper that is folded,
// squares, and a product that grows factor by factor.
#pragma once

#include <string>
#include <vector>

#include "display/print_cells.h"

namespace course::powers {

// A table of one to three rows of print cells, up to 6 in a row and 12 in all, numbered row by row,
// with a heading at the left of each row.
PrintCellTable TableOfRows(const std::vector<std::string>& headings, int columns);
inline PrintCellTable TwoRows(const std::string& upper, const std::string& lower, int columns) {
  return TableOfRows({upper, lower}, columns);
}
// Prints texts in the cells from the given one on.
void FillCells(int first, const std::vector<std::string>& texts,
               platform::Colour colour = platform::colour::Black);

// A strip of paper seen from its edge, 28 columns long, at the foot of a row of the lesson screen.
class PaperStrip {
 public:
  PaperStrip(double row, double col);
  // The right half slides over the left one; the layers, and how many they are, are seen then.  Up
  // to three folds.  The next Say goes on below.
  void Fold();

 private:
  void DrawLayers() const;

  double bottom_;  // row
  double col_;
  double columns_ = 28;  // that are left
  int folds_ = 0;
  int layers_ = 1;
};

// Three rows of three squares, five columns wide; their upper left corner is at the cell.
void DrawNineSquares(double row, double col);
// Three layers of them one behind the other, with the first one at the cell: a row and a half
// higher, and eight columns wide.
void DrawCube(double row, double col);

// "2 x 2 = 4", "4 x 2 = 8" and so on up to so many equal factors, two a row.  A page ends behind
// each two rows.
void MultiplyStepByStep(int base, int factors);

}  // namespace course::powers
