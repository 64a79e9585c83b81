// Figures: number lines and coordinate planes in white boxes over the lesson screen, and an older
// family that draws on the lesson panel itself.
#pragma once

#include <string>

#include "display/figure_item.h"
#include "platform/geometry.h"

namespace course {

// Boxes 1 to 5; any other index stops the program.  Row, column, width and height in cells; the box
// stands one column further right than the cell.
void picGraph2DPrepare(int index, double row, double col, double wd, double ht);
// "SHOWNUMBERS", in any case, labels the axes.  The y axis runs to up, 1 to 5, and as far down.
void picGraph2DShowPlane(int index, const std::string& numbers, bool thin = false, int up = 5);
// The plane's numbers again, each on a small white ground: above what was drawn since.
void picGraph2DPrintNumbersOnTop(int index);
// style "arrows" or "noarrows", in any case; u, above 0, is the value of a labelled tick's step.
void picGraph2DShowNumberLine(int index, const std::string& style, double u);
void picGraph2DPlotPoint(int index, double x, double y, platform::Colour colour,
                         double radius = 0.2);
// y = m * x + b, clipped by the box; width in pixels.
void picGraph2DLine(int index, double m, double b, platform::Colour colour, int width = 1);
// A label at an angle in degrees; size in points; an empty font is "Arial".
void picGraph2DPrintRotated(int index, double angle, double x, double y, const std::string& text,
                            platform::Colour colour, double size, const std::string& font = "");
// Keeps what was drawn into a figure by other means than the routines above, which keep their
// points and lines themselves, until the next picGraph2DPrepare.  The same thing again is kept
// once, with the label that it got last.
void KeepFigureItem(int index, const FigureItem& item);
// The angle of a line, with 6.2832 for two pi.
double Atn2Degrees(double slope);

// Older screen coordinates: 7 units a column, 8 a row.
void OldPSet(double x, double y);
void OldLine(double x1, double y1, double x2, double y2, platform::Colour colour);
void OldBox(double x1, double y1, double x2, double y2, platform::Colour colour);
// mode 1: a yellow highlight that a second call takes away; otherwise a line.
void OldFilledBox(double x1, double y1, double x2, double y2, int mode);
// Angles in degrees; the radius and the aspect are scaled from the older screen.
void OldCircle(double x, double y, double r, double aspect, platform::Colour colour, double start,
               double end);

}  // namespace course
