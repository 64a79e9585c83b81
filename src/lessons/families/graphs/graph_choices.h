// Four small planes with a line on each, captioned "Graph 1" to "Graph 4", to choose from or to
// compare.
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"

namespace course::graphs {

inline constexpr int kGraphs = 4;

// A plane 13 times as wide as its squares, which are an even number of pixels, with lines and
// points in black.  The scale is told by one number an axis: more would hide the lines of so small
// a plane.
void ShowSmallPlane(int index, const std::vector<FigureItem>& items, double row, double col,
                    int square);

// "Graph 1"
std::string GraphName(int number);

// Two above two at the left margin, 17 rows high with their captions; the texts of the page stand
// from column kBesideGraphs on.
void ShowGraphsInSquare(const std::vector<FigureItem>& lines, double row);
inline constexpr double kBesideGraphs = 26;
// All in a row, 7.4 rows high.
void ShowGraphsInRow(const std::vector<FigureItem>& lines, double row);
inline constexpr double kRowOfGraphs = 7.4;

}  // namespace course::graphs
