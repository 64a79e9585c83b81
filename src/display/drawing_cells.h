// From cells to pixels, as all drawing routines reckon it.
#pragma once

#include "display/text_panel.h"
#include "platform/geometry.h"

namespace course {

// Half to even, as every position on the grid.
int RoundedPixel(double value);

// All four edges lie inside.
struct InclusiveBox {
  int left;
  int top;
  int right;
  int bottom;
};
// From the first cell's top left to the second cell's bottom right pixel.
InclusiveBox BoxOfCells(const TextPanel& panel, double rp1, double cp1, double rp2, double cp2);

// The centre of a cell; a centre between two pixels is the lower right one, so that a line of 3
// pixels covers a bar of 2 on every row.
platform::PixelPoint CellCentre(const TextPanel& panel, double rp, double cp);

}  // namespace course
