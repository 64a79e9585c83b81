// The yellow frame around a prime, or around equal factors that stand in one column.
#pragma once

namespace course::factoring {

// Rows and columns are the first and the last that are framed.
void FrameFactor(double firstRow, double lastRow, double firstCol, double lastCol);

}  // namespace course::factoring
