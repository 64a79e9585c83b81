#include "lessons/families/graphs/scale_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "mathkit/expressions.h"
#include "platform/stop.h"

namespace course::graphs {
namespace {

// Pixels of the figure, whose upper left corner is (0, 0).
constexpr double kColumns = 40;  // its width
constexpr int kZeroX = 320;
constexpr int kLineEnd = 306;      // from 0
constexpr int kNumberPixels = 92;  // from one number to the next, or a little less
constexpr int kArrowY = 18;        // of a distance
constexpr int kBaseline = 48;
constexpr int kTick = 5;  // half its height
constexpr int kNumberedTick = 9;
constexpr int kRadius = 5;     // of a point
constexpr int kLetterGap = 3;  // between a point and its letter
constexpr int kHopTop = kBaseline + 6;
constexpr int kHopDepth = 11;
constexpr int kNumberTop = 69;
constexpr int kHeadLength = 8;
constexpr int kHeadHalfWidth = 4;

constexpr double kNumberSize = 11;  // points
constexpr double kLetterSize = 12;
constexpr double kSmallLetterSize = 10;  // where two of them may stand on neighboring ticks
constexpr int kNarrowTicks = 16;         // pixels
constexpr platform::Colour kMarks = platform::colour::Blue;

platform::PictureBox& Figure(int index) {
  return frmPR->picGraph2D[index];
}

void PrintCentred(platform::PictureBox& box, const std::string& text, int x, double top,
                  double size, bool bold) {
  box.FontSize = size;
  box.FontBold = bold;
  box.CurrentX = x - box.TextWidth(text) / 2;
  box.CurrentY = top;
  box.Print(text);
  box.FontBold = false;
}

// An arrowhead whose point is (x, y), along the line to the left (-1) or right (1).
void DrawHeadAlong(platform::PictureBox& box, int x, int y, int direction,
                   platform::Colour colour) {
  const int back = x - direction * kHeadLength;
  const std::array<platform::PixelPoint, 3> head = {
      {{x, y}, {back, y - kHeadHalfWidth}, {back, y + kHeadHalfWidth}}};
  box.Polygon(head, colour);
}

void DrawHeadUp(platform::PictureBox& box, int x, int y) {
  const int back = y + kHeadLength;
  const std::array<platform::PixelPoint, 3> head = {
      {{x, y}, {x - kHeadHalfWidth, back}, {x + kHeadHalfWidth, back}}};
  box.Polygon(head, kMarks);
}

void DrawPoint(platform::PictureBox& box, int x, const std::string& label, double letterSize,
               platform::Colour colour) {
  box.FillColor = colour;
  box.FillStyle = platform::FillStyles::Solid;
  box.Circle(x, kBaseline, kRadius, colour);
  box.FillStyle = platform::FillStyles::Transparent;
  box.ForeColor = colour;
  box.FontSize = letterSize;
  const double top = kBaseline - kRadius - kLetterGap - box.TextHeight(label);
  PrintCentred(box, InPlainFace(label), x, top, letterSize, true);
  box.ForeColor = platform::colour::Black;
}

}  // namespace

FigureItem ScaleItem(const LineScale& scale) {
  return {"scale", {{"numbers", scale.numbers}, {"ticks", scale.ticks}}};
}

ScaleLine::ScaleLine(const LineScale& scale, double row, int index) : scale_(scale), index_(index) {
  if (scale.ticks < 1 || scale.numbers < 1 || scale.numbers % scale.ticks != 0)
    platform::Stop("ScaleLine: a number at every " + std::to_string(scale.numbers) +
                   ", a tick at every " + std::to_string(scale.ticks));
  tickPixels_ = kNumberPixels / scale.Spaces();
  picGraph2DPrepare(index, row, 0, kColumns, kRows);
  platform::PictureBox& box = Figure(index);
  box.SetAccessibleName("Number line");
  box.SetVisible(true);
  box.ScalePixels();
  box.ForeColor = platform::colour::Black;
  for (int y = kBaseline - 1; y <= kBaseline; ++y)
    box.Line(kZeroX - kLineEnd, y, kZeroX + kLineEnd, y);
  for (const int way : {-1, 1})
    DrawHeadAlong(box, kZeroX + way * (kLineEnd + 4), kBaseline, way, platform::colour::Black);
  for (int number = -scale.End(); number <= scale.End(); number += scale.ticks) {
    const bool numbered = number % scale.numbers == 0;
    const int half = numbered ? kNumberedTick : kTick;
    const int x = PixelOf(number);
    box.Line(x, kBaseline - half, x, kBaseline + half);
    if (numbered) PrintCentred(box, NumStr(number), x, kNumberTop, kNumberSize, false);
  }
  box.Refresh();
  KeepFigureItem(index, ScaleItem(scale));
}

int ScaleLine::PixelOf(double number) const {
  return kZeroX + static_cast<int>(std::lround(number / scale_.ticks * tickPixels_));
}

void ScaleLine::Add(const std::vector<FigureItem>& items, platform::Colour colour) const {
  platform::PictureBox& box = Figure(index_);
  for (const FigureItem& item : items) {
    if (item.shape == "scale") {
      if (!SamePlace(item, ScaleItem(scale_))) platform::Stop("ScaleLine: another scale");
      continue;
    }
    if (item.shape != "point") platform::Stop("ScaleLine: shape = \"" + item.shape + "\"");
    DrawPoint(box, PixelOf(item.Value("x")), item.label,
              tickPixels_ < kNarrowTicks ? kSmallLetterSize : kLetterSize, colour);
    KeepFigureItem(index_, item);
  }
  box.Refresh();
}

void ScaleLine::Hop(int from, int to) const {
  platform::PictureBox& box = Figure(index_);
  const int way = to < from ? -scale_.ticks : scale_.ticks;
  const double radius = tickPixels_ / 2.0;
  const double depth = std::min<double>(kHopDepth, radius);
  box.DrawWidth = 2;
  for (int start = from; start != to; start += way)
    box.Circle((PixelOf(start) + PixelOf(start + way)) / 2.0, kHopTop, radius, kMarks, 180, 360,
               depth / radius);
  box.DrawWidth = 1;
  DrawHeadUp(box, PixelOf(to), kBaseline + 2);
  box.Refresh();
}

void ScaleLine::Jump(int from, int to, const std::string& label) const {
  platform::PictureBox& box = Figure(index_);
  const int way = to < from ? -1 : 1;
  const int start = PixelOf(from);
  for (int y = kArrowY - 1; y <= kArrowY; ++y)
    box.Line(start, y, PixelOf(to) - way * kHeadLength, y, kMarks);
  box.Line(start, kArrowY - kHeadHalfWidth, start, kArrowY + kHeadHalfWidth, kMarks);
  DrawHeadAlong(box, PixelOf(to), kArrowY, way, kMarks);
  box.ForeColor = kMarks;
  PrintCentred(box, label, (start + PixelOf(to)) / 2, 0, kNumberSize, true);
  box.ForeColor = platform::colour::Black;
  box.Refresh();
}

void ScaleLine::Distance(int to) const {
  Jump(0, to, NumStr(std::abs(to)));
}

}  // namespace course::graphs
