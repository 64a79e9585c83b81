// The yellow frame around a prime, or around equal factors that stand in one column, and the way
// down out of it.
#pragma once

#include <string>

namespace course::factoring {

// Rows and columns are the first and the last that are framed.
void FrameFactor(double firstRow, double lastRow, double firstCol, double lastCol);
// A copy of the number from a column on, so many columns wide, slides down to another row.  It
// wipes over the lower edge of a frame, which has to be drawn anew.
void SlideFactorDown(double fromRow, double toRow, double col, double width);
// Prints a product over the numbers that have come down to the row, and wipes away what has come
// with them of their frames.
void ShowOverSlid(double row, double col, const std::string& product);

}  // namespace course::factoring
