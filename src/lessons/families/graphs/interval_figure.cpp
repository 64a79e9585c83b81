#include "lessons/families/graphs/interval_figure.h"

#include <array>
#include <cmath>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

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

int PixelOf(double number) {
  return kZeroX + static_cast<int>(std::lround(kUnit * number));
}

// An open circle is white inside, so that the number line does not cross it.
void DrawPoint(platform::PictureBox& box, double number, bool closed) {
  box.FillColor = closed ? platform::colour::Black : platform::colour::White;
  box.FillStyle = platform::FillStyles::Solid;
  box.Circle(PixelOf(number), kBaseline, kRadius);
  box.FillStyle = platform::FillStyles::Transparent;
}

// Three parallel lines make the covered part stand out from the number line itself.
void DrawBars(platform::PictureBox& box, int fromX, int toX) {
  for (int y = kBaseline - 1; y <= kBaseline + 1; ++y) box.Line(fromX, y, toX, y);
}

void DrawRay(platform::PictureBox& box, const FigureItem& ray) {
  const double from = ray.Value("from");
  const int direction = ray.Value("direction") > 0 ? 1 : -1;
  const int edge = direction > 0 ? box.PixelWidth() - 1 : 0;
  const int neck = edge - direction * kHeadLength;
  DrawPoint(box, from, ray.Value("closed") == 1);
  DrawBars(box, PixelOf(from) + direction * (kRadius + kGap), neck);
  const std::array<platform::PixelPoint, 3> head = {{{edge, kBaseline},
                                                     {neck, kBaseline - kHeadHalfHeight},
                                                     {neck, kBaseline + kHeadHalfHeight}}};
  box.Polygon(head, platform::colour::Black);
}

void DrawSegment(platform::PictureBox& box, const FigureItem& segment) {
  const double from = segment.Value("from");
  const double to = segment.Value("to");
  DrawPoint(box, from, segment.Value("fromClosed") == 1);
  DrawBars(box, PixelOf(from) + kRadius + kGap, PixelOf(to) - kRadius - kGap);
  DrawPoint(box, to, segment.Value("toClosed") == 1);
}

void DrawLetteredPoint(platform::PictureBox& box, const FigureItem& point) {
  const double x = point.Value("x");
  const std::string letter = InPlainFace(point.label);
  DrawPoint(box, x, true);
  box.CurrentX = PixelOf(x) - box.TextWidth(letter) / 2;
  box.CurrentY = kBaseline - kRadius - kGap - box.TextHeight(letter);
  box.Print(letter);
}

void DrawItem(platform::PictureBox& box, const FigureItem& item) {
  if (item.shape == "ray")
    DrawRay(box, item);
  else if (item.shape == "segment")
    DrawSegment(box, item);
  else if (item.shape == "point")
    DrawLetteredPoint(box, item);
  else
    platform::Stop("DrawOnLine: shape = \"" + item.shape + "\"");
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

FigureItem GraphItem(double start, double end) {
  const auto closed = [](double value) { return IsOpen(value) ? 0.0 : 1.0; };
  const int from = WholeOf(start);
  if (std::abs(end) == kFarRight)
    return {"ray", {{"from", from}, {"closed", closed(start)}, {"direction", Sgn(end)}}};
  if (end < start) return GraphItem(end, start);
  return {"segment",
          {{"from", from},
           {"to", WholeOf(end)},
           {"fromClosed", closed(start)},
           {"toClosed", closed(end)}}};
}

void DrawOnLine(const std::vector<FigureItem>& items, int index) {
  platform::PictureBox& box = frmPR->picGraph2D[index];
  box.ScalePixels();
  box.ForeColor = platform::colour::Black;
  for (const FigureItem& item : items) {
    DrawItem(box, item);
    KeepFigureItem(index, item);
  }
  box.Refresh();
}

void DrawGraphOnLine(double start, double end, int index) {
  DrawOnLine({GraphItem(start, end)}, index);
}

}  // namespace course::graphs
