// The number line of the lessons on inequalities, with rays and segments on it.
//
// A value is a whole number from -6 to 7.  The point itself is left out of the graph when 0.1 is
// added to its value: the fractional part is the only record of "open".
#pragma once

#include <vector>

#include "display/figure_item.h"

namespace course::graphs {

inline constexpr int kFarLeft = -8;  // the far ends of an arrow, beyond the ticks
inline constexpr int kFarRight = 8;

bool IsOpen(double value);
// The whole number that was drawn: also for -0.9, which is an open -1.
int WholeOf(double value);

// Shows the empty number line, from -7 to 7 with a label at every second tick.  Row and column of
// the lesson's cell grid; the figure is 33 columns wide and 2.9 rows high.  Up to five of them, by
// their index, stand on one page.
void DrawNumberLine(double row, double col, int index = 1);
// The ray from a value to a far end, or the segment to an end between the ticks.
FigureItem GraphItem(double start, double end);
// Draws rays, segments, and points with their letters above them.  Several can share a number line.
// What a problem shows is drawn by DrawOnLine(problem.figure).
void DrawOnLine(const std::vector<FigureItem>& items, int index = 1);
// The same for one GraphItem, on a teaching page.
void DrawGraphOnLine(double start, double end, int index = 1);

}  // namespace course::graphs
