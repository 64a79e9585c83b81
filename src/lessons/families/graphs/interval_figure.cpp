#include "lessons/families/graphs/interval_figure.h"

#include <array>
#include <cstdlib>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "mathkit/integers.h"

namespace course::graphs {
namespace {

constexpr double kColumns = 33;  // width of the figure
constexpr double kRows = 2.9;
constexpr double kTickStep = 2;
constexpr int kUnit = 33;        // pixels from one whole number to the next
constexpr int kZeroX = 264;      // pixel of 0
constexpr int kBaseline = 36;    // pixel row of the line
constexpr int kRadius = 5;       // pixels
constexpr int kGap = 4;          // pixels between a circle and the arrow's bars
constexpr int kHeadLength = 12;  // pixels
constexpr int kHeadHalfHeight = 7;

int PixelOf(double value) {
  return kZeroX + kUnit * WholeOf(value);
}

// An open circle is white inside, so that the number line does not cross it.
void DrawPoint(platform::PictureBox& box, double value) {
  box.FillColor = IsOpen(value) ? platform::colour::White : platform::colour::Black;
  box.FillStyle = platform::FillStyles::Solid;
  box.Circle(PixelOf(value), kBaseline, kRadius);
  box.FillStyle = platform::FillStyles::Transparent;
}

// Three parallel lines make the covered part stand out from the number line itself.
void DrawBars(platform::PictureBox& box, int fromX, int toX) {
  for (int y = kBaseline - 1; y <= kBaseline + 1; ++y) box.Line(fromX, y, toX, y);
}

void DrawArrow(platform::PictureBox& box, double start, int direction) {
  const int edge = direction > 0 ? box.PixelWidth() - 1 : 0;
  const int neck = edge - direction * kHeadLength;
  DrawBars(box, PixelOf(start) + direction * (kRadius + kGap), neck);
  const std::array<platform::PixelPoint, 3> head = {{{edge, kBaseline},
                                                     {neck, kBaseline - kHeadHalfHeight},
                                                     {neck, kBaseline + kHeadHalfHeight}}};
  box.Polygon(head, platform::colour::Black);
}

void DrawSegment(platform::PictureBox& box, double start, double end) {
  const int direction = end > start ? 1 : -1;
  DrawBars(box, PixelOf(start) + direction * (kRadius + kGap),
           PixelOf(end) - direction * (kRadius + kGap));
  DrawPoint(box, end);
}

}  // namespace

bool IsOpen(double value) {
  return value != IntOf(value);
}

int WholeOf(double value) {
  return IntOf(value);
}

void DrawNumberLine(double row, double col, int index) {
  picGraph2DPrepare(index, row, col, kColumns, kRows);
  picGraph2DShowNumberLine(index, "noarrows", kTickStep);
}

void DrawGraphOnLine(double start, double end, int index) {
  platform::PictureBox& box = frmPR->picGraph2D[index];
  box.ScalePixels();
  box.ForeColor = platform::colour::Black;
  DrawPoint(box, start);
  if (std::abs(end) == kFarRight)
    DrawArrow(box, start, Sgn(end));
  else
    DrawSegment(box, start, end);
  box.Refresh();
}

}  // namespace course::graphs
