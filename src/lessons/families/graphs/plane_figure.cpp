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
constexpr double kLabelEnd = 5.7;  // how far out a label reaches, so that all of it is in the box
constexpr double kFarAway = 20;    // squares, beyond the plane's corners from anywhere on it
constexpr double kDash = 0.35;     // squares, of a dash and of what lies between two
constexpr double kPointLabelRise = 0.1;
constexpr double kLabelGap = 0.25;  // squares between a line and its label
constexpr double kLabelSize = 9;    // points
constexpr const char* kLabelFace = "Arial";

// In grid squares.
struct Vector {
  double x = 0;
  double y = 0;
};
struct LabelExtent {
  double width;
  double height;
};

// In the face of the labels.
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

void DrawStroke(int index, Vector from, Vector to, int width, platform::Colour colour) {
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  plane.DrawWidth = width;
  plane.Line(from.x, from.y, to.x, to.y, colour);
  plane.DrawWidth = 1;
  plane.Refresh();
}

void DrawDashes(int index, Vector start, Vector along, platform::Colour colour) {
  const auto at = [&](double way) {
    return Vector{start.x + way * along.x, start.y + way * along.y};
  };
  for (double way = -kFarAway; way < kFarAway; way += 2 * kDash)
    DrawStroke(index, at(way), at(way + kDash), kLineWidth, colour);
}

// Where the label of a line ends, and the direction, of length 1, that the line goes there.
struct LabelPlace {
  Vector end;
  Vector along;
  double angle;  // degrees
};

void PrintLabel(int index, const std::string& text, const LabelPlace& place,
                platform::Colour colour) {
  const std::string label = InPlainFace(text);
  const LabelExtent extent = MeasureLabel(frmPR->picGraph2D[index], label);
  const auto [end, along, angle] = place;
  // Across the line to the side on which the text's foot is.
  const Vector foot = {along.y, -along.x};
  // The right side is below a rising line and above a falling one.
  const double across = along.y < 0 ? -(extent.height + kLabelGap) : kLabelGap;
  picGraph2DPrintRotated(index, angle, end.x - extent.width * along.x + across * foot.x,
                         end.y - extent.width * along.y + across * foot.y, label, colour,
                         kLabelSize, kLabelFace);
}

void PrintLineLabel(int index, double m, double b, const std::string& text,
                    platform::Colour colour) {
  const double length = std::hypot(1, m);
  const double topOrBottom = m < 0 ? -kLabelEnd : kLabelEnd;
  const double endX = std::min(kLabelEnd, m == 0 ? kLabelEnd : (topOrBottom - b) / m);
  PrintLabel(index, text, {{endX, m * endX + b}, {1 / length, m / length}, Atn2Degrees(m)}, colour);
}

void DrawUpright(int index, const FigureItem& line, platform::Colour colour) {
  const double x = line.Value("x");
  if (line.IsBroken())
    DrawDashes(index, {x, 0}, {0, 1}, colour);
  else
    DrawStroke(index, {x, -kFarAway}, {x, kFarAway}, kLineWidth, colour);
  KeepFigureItem(index, line);
  if (!line.label.empty()) PrintLabel(index, line.label, {{x, kLabelEnd}, {0, 1}, 90}, colour);
}

void DrawLineItem(int index, const FigureItem& line, platform::Colour colour) {
  if (line.Find("x")) return DrawUpright(index, line, colour);
  const double m = line.Value("slope");
  const double b = line.Value("intercept");
  const double length = std::hypot(1, m);
  if (line.IsBroken())
    DrawDashes(index, {0, b}, {1 / length, m / length}, colour);
  else
    DrawPlaneLine(index, m, b, colour);
  KeepFigureItem(index, line);
  if (!line.label.empty()) PrintLineLabel(index, m, b, line.label, colour);
}

void DrawPointItem(int index, const FigureItem& point, platform::Colour colour) {
  const double x = point.Value("x");
  const double y = point.Value("y");
  picGraph2DPlotPoint(index, x, y, colour);
  KeepFigureItem(index, point);
  const std::string label = InPlainFace(point.label);
  const double height = MeasureLabel(frmPR->picGraph2D[index], label).height;
  picGraph2DPrintRotated(index, 0, x + kLabelGap, y + kPointLabelRise + height, label, colour,
                         kLabelSize, kLabelFace);
}

void DrawItem(int index, const FigureItem& item, platform::Colour colour) {
  if (item.shape == "line") return DrawLineItem(index, item, colour);
  if (item.shape == "point") return DrawPointItem(index, item, colour);
  const bool isStep = item.shape == "step";
  if (!isStep && item.shape != "guides")
    platform::Stop("DrawOnPlane: shape = \"" + item.shape + "\"");
  const Vector from = {item.Value("x"), item.Value("y")};
  if (isStep) {
    const Vector corner = {from.x + item.Value("right"), from.y};
    DrawStroke(index, from, corner, kThinWidth, colour);
    DrawStroke(index, corner, {corner.x, corner.y + item.Value("up")}, kThinWidth, colour);
  } else {
    DrawStroke(index, from, {from.x, 0}, kThinWidth, colour);
    DrawStroke(index, from, {0, from.y}, kThinWidth, colour);
  }
  KeepFigureItem(index, item);
}

// The letters of the axes at their ends, beyond the grid.
void NameAxes(int index) {
  picGraph2DPrintRotated(index, 0, 5.9, 0.75, "x", platform::colour::Black, kLabelSize, kLabelFace);
  picGraph2DPrintRotated(index, 0, 0.25, 6.45, "y", platform::colour::Black, kLabelSize,
                         kLabelFace);
}

}  // namespace

void ShowPlane(int index, double row, double col, int square) {
  if (square <= 0 || square % 2 != 0)
    platform::Stop("ShowPlane: square = " + std::to_string(square));
  picGraph2DPrepare(index, row, col, kSquaresAcross * square / gCellWidth,
                    kSquaresAcross * square / gCellHeight);
  picGraph2DShowPlane(index, "shownumbers");
  NameAxes(index);
}

void DrawOnPlane(int index, const std::vector<FigureItem>& items, platform::Colour colour) {
  for (const FigureItem& item : items) DrawItem(index, item, colour);
}

void DrawPlaneLine(int index, double m, double b, platform::Colour colour) {
  picGraph2DLine(index, m, b, colour, kLineWidth);
}

void LabelPlaneLine(int index, double m, double b, const std::string& text,
                    platform::Colour colour) {
  PrintLineLabel(index, m, b, text, colour);
  KeepFigureItem(index, LineItem(m, b, text));
}

}  // namespace course::graphs
