// Marks on the lesson screen, in cell coordinates that may be fractional: bars, boxes, arrows,
// brackets.
//
// gDrawTarget (screenState) chooses where routines with a colour draw: the lesson panel, the wiper
// box or a comment box, by that panel's own origin and cells.  Those without one draw on the lesson
// panel in its ForeColor.  Thickness is in pixels.  Every mark shows at once.
#pragma once

#include <array>
#include <string>

#include "platform/surface.h"

namespace course {

class TextPanel;

// The panel that gDrawTarget names; a comment box other than 1 to 5 stops the program.
TextPanel& DrawTarget();

// Filled bars through the middle of row rp, columns col1 to col2 whole.
void isDrawHorizLine(double rp, double col1, double col2, int thickness);
void isDrawHorizLineWithColor(double rp, double col1, double col2, int thickness,
                              platform::Colour colr);
// The same through the middle of a column; the bar ends 3 pixels above the row below rp2.
void isDrawVertLine(double col, double rp1, double rp2, int thickness);
void isDrawVertLineWithColor(double col, double rp1, double rp2, int thickness,
                             platform::Colour colr);
// Between the centres of two cells.
void isDrawDiagonalLineWithColor(double rp1, double col1, double rp2, double col2, int thickness,
                                 platform::Colour colr);

// From the first cell's top left to the second cell's bottom right pixel.
void isDrawBox(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
               int thickness);
void isDrawBoxFilled(double rp1, double cp1, double rp2, double cp2, platform::Colour colr);
// Inverts an area of white text on blue of the lesson panel; a second call restores it.
void isDrawBoxInverse(double rp1, double cp1, double rp2, double cp2);
void isDrawRoundRect(double rp1, double cp1, double rp2, double cp2, int drawwid,
                     platform::Colour colr);
void isDrawRoundRectFilled(double rp1, double cp1, double rp2, double cp2, int drawwid,
                           platform::Colour colr1, platform::Colour colr2);

// Lines of one pixel between the centres of cells.  "A" is an arrowhead, "NA" none, anything else
// stops the program.  So does a segment that slopes or has no length.
void isDrawArrow1Segment(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow);
// direction "H" or "V", in any case, names the first of the two segments.
void isDrawArrow2Segment(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow,
                         const std::string& direction);
void isDrawArrow3Segment(double rp1, double cp1, double rp2, double cp2, double rp3, double cp3,
                         double rp4, double cp4, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow);
// A printed head in the cell and a tail of length - 1 columns beside it.  The cursor stays behind
// the head.
void isDrawArrowPointingLeftWithColor(double rp, double col, platform::Colour colr,
                                      double length = 2);
void isDrawArrowPointingRightWithColor(double rp, double col, platform::Colour colr,
                                       double length = 2);
// The pixel at a cell's centre, rounded down.
int ArrowPixelX(double col);
int ArrowPixelY(double row);
extern int gArrowheadSmall;                               // flag: 6 pixels long in place of 8
extern std::array<platform::PixelPoint, 4> gArrowPoints;  // 1 to 3
// The triangle of gArrowPoints, on the lesson panel when no surface is given.
void DrawArrowhead(platform::Colour colr, platform::Surface* surface = nullptr);

// From cell cp over wd columns, through the middle of row rp.  dir 2: the ends point down; 1: up.
void Bracket(double rp, double cp, double wd, int th, int dir = 2);
// (rp, cp) is the middle; ht rows high, end lines wd columns long.  direc "L" opens to the left,
// else to the right.
void Bracket2(double rp, double cp, double ht, double wd, const std::string& direc);
// Over the letters from (rp, cp), wd columns wide.
void isDrawArcLabel(double rp, double cp, double wd);
void isDrawRayLabel(double rp, double cp, double wd);
// From the centre of the first cell to that of the second, where an arrowhead stands.  rayDir "U",
// "D", "L" or "R" turns the head; "" lets it follow the ray.  endpt draws a point at the start.
void isDrawRay(const std::string& rayDir, double rp1, double cp1, double rp2, double cp2,
               bool endpt);
// (rp, col) is the middle; ht rows high.
void isIntegralSign(double rp, double col, double ht);
// Radius in pixels, 6 when below 1.
void isDrawBullet(double rp, double cp, platform::Colour colr, double radius = 6);

constexpr int kMaxPolyPoints = 30;
extern std::array<std::array<double, 2>, kMaxPolyPoints + 1> gPoly;  // (rp, cp) from 1
// Outline through the centres of the first np cells of gPoly, 1 to 30.
void isDrawPoly(int np, platform::Colour colr);

// Fills outward from a pixel, or from the centre of a cell, up to the boundary colour.
void isPaint(int pixelRow, int pixelCol, platform::Colour paintColor,
             platform::Colour boundaryColor);
void Paint2(double rp, double cp, platform::Colour paintColor, platform::Colour boundaryColor);
// The same in figure 1 to 5, from a pixel of its box.
void PaintGraph(int indx, int x, int y, platform::Colour color, platform::Colour boundary);

// A shadowed heading; indx 0 prints on the lesson panel, 1 to 5 in that comment box.  col -1
// centres it. An empty font is "Times New Roman"; "~" is a double quote, "^...^" an exponent.  Size
// in points, shadow thickness in pixels.  Restores the panel's print font, and with it its text
// colour; the cursor stays.
void PrintNiceHeading(int indx, const std::string& text, double row, double col,
                      const std::string& font, bool bold, bool italic, double size,
                      platform::Colour foreColor, platform::Colour shadowColor,
                      int shadowThickness);

}  // namespace course
