#include "lessons/families/graphs/plane_figure.h"

#include <algorithm>
#include <cmath>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "platform/stop.h"

namespace course::graphs {
namespace {

constexpr double kSquaresAcross = 13;  // from -6.5 to 6.5
constexpr int kLineWidth = 3;          // pixels
constexpr int kThinWidth = 2;
constexpr double kLabelEnd = 5.7;   // how far out a label reaches, so that all of it is in the box
constexpr double kLabelGap = 0.25;  // squares between a line and its label
constexpr double kLabelSize = 9;    // points
constexpr const char* kLabelFace = "Arial";

// In grid squares, for the face of the labels.
struct LabelExtent {
  double width;
  double height;
};

LabelExtent MeasureLabel(platform::Surface& plane, const std::string& text) {
  const std::string face = plane.FontName;
  const double size = plane.FontSize;
  const bool bold = plane.FontBold;
  plane.FontName = kLabelFace;
  plane.FontSize = kLabelSize;
  plane.FontBold = true;
  const LabelExtent extent = {plane.TextWidth(text), plane.TextHeight(text)};
  plane.FontName = face;
  plane.FontSize = size;
  plane.FontBold = bold;
  return extent;
}

}  // namespace

void ShowPlane(int index, double row, double col, int square) {
  if (square <= 0 || square % 2 != 0)
    platform::Stop("ShowPlane: square = " + std::to_string(square));
  picGraph2DPrepare(index, row, col, kSquaresAcross * square / gCellWidth,
                    kSquaresAcross * square / gCellHeight);
  picGraph2DShowPlane(index, "shownumbers");
}

void DrawPlaneLine(int index, int m, int b, platform::Colour colour) {
  picGraph2DLine(index, m, b, colour, kLineWidth);
}

void LabelPlaneLine(int index, int m, int b, const std::string& text, platform::Colour colour) {
  const std::string label = InPlainFace(text);
  const LabelExtent extent = MeasureLabel(frmPR->picGraph2D[index], label);
  // Along the line to the right, and across it to the side on which the text's foot is.
  const double length = std::hypot(1, m);
  const double alongX = 1 / length;
  const double alongY = m / length;
  const double footX = alongY;
  const double footY = -alongX;
  const double topOrBottom = m < 0 ? -kLabelEnd : kLabelEnd;
  const double endX = std::min(kLabelEnd, m == 0 ? kLabelEnd : (topOrBottom - b) / m);
  const double endY = m * endX + b;
  // The right side is below a rising line and above a falling one.
  const double across = m < 0 ? -(extent.height + kLabelGap) : kLabelGap;
  picGraph2DPrintRotated(index, Atn2Degrees(m), endX - extent.width * alongX + across * footX,
                         endY - extent.width * alongY + across * footY, label, colour, kLabelSize,
                         kLabelFace);
}

void DrawSlopeStep(int index, int x, int y, int m, platform::Colour colour) {
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  plane.DrawWidth = kThinWidth;
  plane.Line(x, y, x + 1, y, colour);
  plane.Line(x + 1, y, x + 1, y + m, colour);
  plane.DrawWidth = 1;
  plane.Refresh();
}

void DrawPlaneGuides(int index, int x, int y, platform::Colour colour) {
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  plane.DrawWidth = kThinWidth;
  plane.Line(x, y, x, 0, colour);
  plane.Line(x, y, 0, y, colour);
  plane.DrawWidth = 1;
  plane.Refresh();
}

}  // namespace course::graphs
