// The coordinate plane of the lessons on graphs: a grid from -5 to 5 whose squares are whole
// pixels, so that lines with whole slopes run exactly through its crossings.
//
// Several planes, by their index 1 to 5, stand on one page.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course::graphs {

// A numbered plane with its upper left corner at a cell of the lesson's grid, as picGraph2DPrepare
// counts it.  square is the side of a grid square in pixels; the plane takes 13 of them each way.
// Only an even number keeps the grid on whole pixels, any other stops the program.
void ShowPlane(int index, double row, double col, int square);
// The line y = m x + b, three pixels wide.
void DrawPlaneLine(int index, int m, int b, platform::Colour colour);
// A text along the line, at its right end and on its right side.
void LabelPlaneLine(int index, int m, int b, const std::string& text, platform::Colour colour);
// The way from a point one square to the right and m squares up or down.
void DrawSlopeStep(int index, int x, int y, int m, platform::Colour colour);
// From a point straight to both axes.
void DrawPlaneGuides(int index, int x, int y, platform::Colour colour);

}  // namespace course::graphs
