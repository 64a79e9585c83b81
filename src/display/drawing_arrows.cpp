#include <utility>

#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/lesson_window.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {

int gArrowheadSmall = 0;
std::array<platform::PixelPoint, 4> gArrowPoints;

namespace {

// A line of one or more straight segments, with what every one of them needs.
struct ArrowLine {
  const char* routine;  // named when the program stops
  platform::Surface& surface;
  platform::Colour colour;
};

struct CellPoint {
  double rp;
  double cp;
};

bool HasHead(const ArrowLine& line, const std::string& end) {
  if (end == "A") return true;
  if (end == "NA") return false;
  platform::Stop(std::string(line.routine) + ": \"" + end + "\" is neither \"A\" nor \"NA\"");
}

// A triangle with its point in the pixel, pointing to (dx, dy), one of which is 0.
void DrawHead(const ArrowLine& line, platform::PixelPoint tip, int dx, int dy) {
  const int length = gArrowheadSmall == 1 ? 6 : 8;
  const int back = length - 1;
  const int half = length / 2;
  gArrowPoints[1] = tip;
  gArrowPoints[2] = {tip.x - back * dx + half * dy, tip.y - back * dy + half * dx};
  gArrowPoints[3] = {tip.x - back * dx - half * dy, tip.y - back * dy - half * dx};
  DrawArrowhead(line.colour, &line.surface);
}

void DrawSegment(const ArrowLine& line, CellPoint from, CellPoint to, bool startHead,
                 bool endHead) {
  const bool vertical = from.cp == to.cp && from.rp != to.rp;
  const bool horizontal = from.rp == to.rp && from.cp != to.cp;
  if (!vertical && !horizontal)
    platform::Stop(std::string(line.routine) + ": no horizontal or vertical line from (" +
                   NumStr(from.rp) + ", " + NumStr(from.cp) + ") to (" + NumStr(to.rp) + ", " +
                   NumStr(to.cp) + ")");
  // Down becomes up and left becomes right, with their ends.
  if (from.rp < to.rp || from.cp > to.cp) {
    std::swap(from, to);
    std::swap(startHead, endHead);
  }
  const int dx = horizontal ? 1 : 0;
  const int dy = vertical ? -1 : 0;
  const platform::PixelPoint first{ArrowPixelX(from.cp), ArrowPixelY(from.rp)};
  const platform::PixelPoint last{ArrowPixelX(to.cp), ArrowPixelY(to.rp)};
  line.surface.Line(first.x, first.y, last.x, last.y, line.colour);
  if (startHead) DrawHead(line, first, -dx, -dy);
  if (endHead) DrawHead(line, last, dx, dy);
  line.surface.Refresh();
}

// side 1 points to the right, -1 to the left.
void DrawPrintedArrow(double rp, double col, platform::Colour colr, double length, int side) {
  TextPanel& panel = DrawTarget();
  const platform::Colour kept = panel.surface.ForeColor;
  panel.Locate(rp - 0.09, col - 0.05 * side);
  panel.surface.ForeColor = colr;
  panel.TextOut(side > 0 ? ">" : "<");
  panel.surface.ForeColor = kept;
  panel.SetCursor(panel.cursorX + panel.layout.cellWidth, panel.cursorY);
  // The head's point lies a little above the middle of the row.
  const double tailRow = rp - 0.05;
  if (side > 0)
    isDrawHorizLineWithColor(tailRow, col - (length - 1), col - 0.7, 2, colr);
  else
    isDrawHorizLineWithColor(tailRow, col + 0.7, col + (length - 1), 2, colr);
}

}  // namespace

int ArrowPixelX(double col) {
  const TextPanel& panel = DrawTarget();
  return IntOf(panel.CellX(col) + panel.layout.cellWidth / 2.0);
}

int ArrowPixelY(double row) {
  const TextPanel& panel = DrawTarget();
  return IntOf(panel.CellY(row) + panel.layout.cellHeight / 2.0);
}

void DrawArrowhead(platform::Colour colr, platform::Surface* surface) {
  platform::Surface& target = surface == nullptr ? frmPR->pnlLesson : *surface;
  target.Polygon(std::span(gArrowPoints).subspan(1), colr);
  target.Refresh();
}

void isDrawArrow1Segment(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow) {
  const ArrowLine line{"isDrawArrow1Segment", DrawTarget().surface, colr};
  DrawSegment(line, {rp1, cp1}, {rp2, cp2}, HasHead(line, startArrow), HasHead(line, endArrow));
}

void isDrawArrow2Segment(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow,
                         const std::string& direction) {
  const ArrowLine line{"isDrawArrow2Segment", DrawTarget().surface, colr};
  const std::string first = UpperCase(direction);
  if (first != "H" && first != "V")
    platform::Stop("isDrawArrow2Segment: direction = \"" + direction + "\"");
  const CellPoint corner = first == "H" ? CellPoint{rp1, cp2} : CellPoint{rp2, cp1};
  DrawSegment(line, {rp1, cp1}, corner, HasHead(line, startArrow), false);
  DrawSegment(line, corner, {rp2, cp2}, false, HasHead(line, endArrow));
}

void isDrawArrow3Segment(double rp1, double cp1, double rp2, double cp2, double rp3, double cp3,
                         double rp4, double cp4, platform::Colour colr,
                         const std::string& startArrow, const std::string& endArrow) {
  const ArrowLine line{"isDrawArrow3Segment", DrawTarget().surface, colr};
  DrawSegment(line, {rp1, cp1}, {rp2, cp2}, HasHead(line, startArrow), false);
  DrawSegment(line, {rp2, cp2}, {rp3, cp3}, false, false);
  DrawSegment(line, {rp3, cp3}, {rp4, cp4}, false, HasHead(line, endArrow));
}

void isDrawArrowPointingLeftWithColor(double rp, double col, platform::Colour colr, double length) {
  DrawPrintedArrow(rp, col, colr, length, -1);
}

void isDrawArrowPointingRightWithColor(double rp, double col, platform::Colour colr,
                                       double length) {
  DrawPrintedArrow(rp, col, colr, length, 1);
}

}  // namespace course
