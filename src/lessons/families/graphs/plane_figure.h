// The coordinate plane of the lessons on graphs: a grid from -5 to 5 with axes x and y, whose
// squares are whole pixels, so that lines with whole slopes run exactly through its crossings.
// Several planes, by their index 1 to 5, stand on one page.
//
//   ShowPlane(1, 4, 23, 20);
//   DrawOnPlane(1, {LineItem(2, -1, "y = 2x - 1"), Broken(UprightItem(3))},
//   platform::colour::Blue); DrawOnPlane(1, {PointItem(2, 3, "A"), PointItem(-4, 1, "B")});
//   DrawOnPlane(1, {StepItem(0, -1, 1, 2)});
//
// What a problem shows is told in problem.figure, in the order in which it is drawn, and is drawn
// from there: DrawOnPlane(1, problem.figure).  The items are kept with the figure: they are checked
// against the problem and spoken by a screen reader.
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"
#include "platform/geometry.h"

namespace course::graphs {

// A numbered plane with its upper left corner at a cell of the lesson's grid, as picGraph2DPrepare
// counts it.  square is the side of a grid square in pixels; the plane takes 13 of them each way.
// Only an even number keeps the grid on whole pixels, any other stops the program.
void ShowPlane(int index, double row, double col, int square);
// Points, lines, steps and guides in one colour; other shapes stop the program.  The label of a
// point stands above it on the right, that of a line at its right or upper end.
void DrawOnPlane(int index, const std::vector<FigureItem>& items,
                 platform::Colour colour = platform::colour::Black);

// The line y = m x + b, three pixels wide.
void DrawPlaneLine(int index, double m, double b, platform::Colour colour);
// A text along the line, at its right end and on its right side.
void LabelPlaneLine(int index, double m, double b, const std::string& text,
                    platform::Colour colour);

}  // namespace course::graphs
