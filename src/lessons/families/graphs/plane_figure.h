// The coordinate plane of the lessons on graphs: a grid from -5 to 5 with axes x and y, whose
// squares are whole pixels, so that lines with whole slopes run exactly through its crossings.
//
//   ShowPlaneAtRight();
//   Say("Each point of the line makes y = 2x - 1 true.", kBesidePlane);
//   DrawOnPlane(1, {LineItem(2, -1, "y = 2x - 1"), Broken(UprightItem(3))},
//               platform::colour::Blue);
//   DrawOnPlane(1, {PointItem(2, 3, "A"), PointItem(-4, 1, "B"), StepItem(0, -1, 1, 2)});
//
// What a problem shows is told in problem.figure, in the order in which it is drawn, and is drawn
// from there: DrawOnPlane(1, problem.figure).  The items are kept with the figure: they are checked
// against the problem and spoken by a screen reader.
#pragma once

#include <string>
#include <vector>

#include "display/figure_item.h"
#include "lessons/page/say.h"
#include "platform/geometry.h"

namespace course::graphs {

// A numbered plane with its upper left corner at a cell of the lesson's grid, as picGraph2DPrepare
// counts it.  square is the side of a grid square in pixels; the plane takes 13 of them each way.
// Only an even number keeps the grid on whole pixels, any other stops the program.  Several planes,
// by their index 1 to 5, stand on one page.  One whose y axis runs from -3 to 3 only takes 9
// squares upward.
enum class PlaneHeight { Low = 3, Full = 5 };
void ShowPlane(int index, double row, double col, int square,
               PlaneHeight height = PlaneHeight::Full);

// Plane 1 at the right margin, 10.4 rows high or 7.2, and the place of the text beside it.
void ShowPlaneAtRight(double row = 3.2, PlaneHeight height = PlaneHeight::Full);
inline constexpr page::TextPlace kBesidePlane = {.lastCol = 22};

// Points, lines, steps and guides in one colour; other shapes stop the program.  The label of a
// line stands along it, that of a point beside it, where there is room: off the axes with their
// numbers and off all that was drawn before.
void DrawOnPlane(int index, const std::vector<FigureItem>& items,
                 platform::Colour colour = platform::colour::Black);
// A step as thick arrows, which are seen on an axis, too; right or up may be 0.
void DrawArrows(int index, const FigureItem& step, platform::Colour colour);
// Labels keep clear of what later pages are going to draw.
void KeepLabelsClearOf(int index, const std::vector<FigureItem>& items);

// A text beside a place, as the label of a point would stand there: the length of a step, say.
void LabelPlace(int index, double x, double y, const std::string& text,
                platform::Colour colour = platform::colour::Black);

}  // namespace course::graphs
