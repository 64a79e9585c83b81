#include "lessons/families/graphs/plane_figure.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "lessons/families/graphs/plane_labels.h"
#include "platform/stop.h"

namespace course::graphs {
namespace {

constexpr int kSquaresAcross = 13;  // from -6.5 to 6.5
constexpr int kSquaresBeside = 3;   // above and below the grid's last squares together
constexpr int kLineWidth = 3;       // pixels
constexpr int kThinWidth = 2;
constexpr double kFarAway = 20;  // squares, beyond the plane's corners from anywhere on it
constexpr double kDash = 0.45;   // squares, of a dash
constexpr double kDashStep = 1;  // from one to the next
constexpr double kAxisSize = 9;  // points, of the axes' letters
constexpr double kLabelSize = 11;
constexpr double kInk = 0.85;  // of the height of a line
constexpr const char* kLabelFace = "Arial";

constexpr int kSquareAtRight = 20;  // pixels
constexpr double kColAtRight = 23.75;

// Where labels stand on the planes that are shown, by their index.
std::array<LabelGround, 6> grounds;

// Arrows that run down from the x axis, through the place of a number, on the planes by their
// index.
struct DownArrow {
  double x;
  double up;
  platform::Colour colour;
};
std::array<std::vector<DownArrow>, 6> downArrows;

LabelGround& GroundOf(int index) {
  return grounds.at(static_cast<std::size_t>(index));
}

// Of the letters of a label, which end below the top of their line.
LabelSize SizeOf(platform::Surface& plane, const std::string& text) {
  const std::string face = plane.FontName;
  const double size = plane.FontSize;
  const bool bold = plane.FontBold;
  plane.FontName = kLabelFace;
  plane.FontSize = kLabelSize;
  plane.FontBold = true;
  const LabelSize extent = {plane.TextWidth(text), kInk * plane.TextHeight(text)};
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

void PrintLabel(int index, const std::string& text, const LabelBox& box, platform::Colour colour) {
  const Vector head = box.foot + box.size.height / kInk * box.Upward();
  const double degrees = box.along.x == 0 ? 90 : Atn2Degrees(box.along.y / box.along.x);
  picGraph2DPrintRotated(index, degrees, head.x, head.y, text, colour, kLabelSize, kLabelFace);
}

void DrawLineItem(int index, const FigureItem& line, platform::Colour colour) {
  const Vector point = PointOf(line);
  const Vector along = DirectionOf(line);
  if (line.IsBroken()) {
    for (double way = -kFarAway; way < kFarAway; way += kDashStep)
      DrawStroke(index, point + way * along, point + (way + kDash) * along, kLineWidth, colour);
  } else if (line.Find("x")) {
    DrawStroke(index, point + -kFarAway * along, point + kFarAway * along, kLineWidth, colour);
  } else {
    picGraph2DLine(index, line.Value("slope"), line.Value("intercept"), colour, kLineWidth);
  }
  if (line.label.empty()) return;
  const std::string label = InPlainFace(line.label);
  const LabelSize size = SizeOf(frmPR->picGraph2D[index], label);
  PrintLabel(index, label, GroundOf(index).PlaceAtLine(line, size), colour);
}

// Whether it stands there already.
bool HasLabel(int index, const FigureItem& item) {
  return std::ranges::any_of(
      frmPR->figureItems.at(static_cast<std::size_t>(index)),
      [&](const FigureItem& old) { return SamePlace(old, item) && old.label == item.label; });
}

void DrawPointItem(int index, const FigureItem& point, platform::Colour colour) {
  const Vector place = {point.Value("x"), point.Value("y")};
  const bool isNamed = HasLabel(index, point);
  picGraph2DPlotPoint(index, place.x, place.y, colour);
  if (point.label.empty() || isNamed) return;
  LabelPlace(index, place.x, place.y, point.label, colour);
}

// A step goes round a corner, guides go to both axes.
void DrawCorner(int index, const FigureItem& item, platform::Colour colour) {
  const Vector from = {item.Value("x"), item.Value("y")};
  if (item.shape == "guides") {
    DrawStroke(index, from, {from.x, 0}, kThinWidth, colour);
    DrawStroke(index, from, {0, from.y}, kThinWidth, colour);
    return;
  }
  const Vector corner = from + Vector{item.Value("right"), 0};
  DrawStroke(index, from, corner, kThinWidth, colour);
  DrawStroke(index, corner, corner + Vector{0, item.Value("up")}, kThinWidth, colour);
}

platform::PixelPoint PixelOf(const platform::PictureBox& plane, Vector place) {
  const double square = plane.PixelWidth() / static_cast<double>(kSquaresAcross);
  return {static_cast<int>(std::lround(square * place.x + plane.PixelWidth() / 2.0)),
          static_cast<int>(std::lround(plane.PixelHeight() / 2.0 - square * place.y))};
}

// Along a line of the grid; nothing when both ends are the same.
void DrawArrow(int index, Vector from, Vector to, platform::Colour colour) {
  constexpr double kHeadLength = 0.6;  // squares
  constexpr double kHeadHalf = 0.32;
  constexpr double kBarHalf = 0.11;
  const Vector way = to + -1 * from;
  if (way.x == 0 && way.y == 0) return;
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  const Vector along = 1 / std::hypot(way.x, way.y) * way;
  const Vector aside = {-along.y, along.x};
  const Vector neck = to + -kHeadLength * along;
  const Vector start = from + -kBarHalf * aside;
  const Vector end = neck + kBarHalf * aside;
  plane.FilledBox(start.x, start.y, end.x, end.y, colour);
  const std::array<platform::PixelPoint, 3> head = {PixelOf(plane, to),
                                                    PixelOf(plane, neck + kHeadHalf * aside),
                                                    PixelOf(plane, neck + -kHeadHalf * aside)};
  plane.Polygon(head, colour);
}

// The axes' numbers over all that was drawn; one that an arrow runs through makes way to the left.
void PrintNumbersOnTop(int index) {
  constexpr double kNumberTop = 0.3;  // squares below the axis
  constexpr double kNumberFoot = 1;
  constexpr double kNumberHalf = 0.45;
  constexpr double kAside = 0.2;
  picGraph2DPrintNumbersOnTop(index);
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  for (const auto& [x, up, colour] : downArrows.at(static_cast<std::size_t>(index))) {
    plane.FilledBox(x - kNumberHalf, -kNumberTop, x + kNumberHalf, -kNumberFoot,
                    platform::colour::White);
    DrawArrow(index, {x, 0}, {x, up}, colour);
    const std::string number = std::to_string(std::lround(x));
    plane.CurrentX = x - kAside - plane.TextWidth(number);
    plane.CurrentY = -0.2;
    plane.Print(number);
  }
  plane.Refresh();
}

void DrawItem(int index, const FigureItem& item, platform::Colour colour) {
  if (item.shape == "line")
    DrawLineItem(index, item, colour);
  else if (item.shape == "point")
    DrawPointItem(index, item, colour);
  else if (item.shape == "step" || item.shape == "guides")
    DrawCorner(index, item, colour);
  else
    platform::Stop("DrawOnPlane: shape = \"" + item.shape + "\"");
  KeepFigureItem(index, item);
}

// The letters of the axes at their ends, beyond the grid.
void NameAxes(int index, int squaresUp) {
  picGraph2DPrintRotated(index, 0, 5.9, 0.75, "x", platform::colour::Black, kAxisSize, kLabelFace);
  picGraph2DPrintRotated(index, 0, 0.25, squaresUp + 1.45, "y", platform::colour::Black, kAxisSize,
                         kLabelFace);
}

}  // namespace

void ShowPlane(int index, double row, double col, int square, PlaneHeight height) {
  if (square <= 0 || square % 2 != 0)
    platform::Stop("ShowPlane: square = " + std::to_string(square));
  const int squaresUp = static_cast<int>(height);
  picGraph2DPrepare(index, row, col, static_cast<double>(kSquaresAcross) * square / gCellWidth,
                    static_cast<double>(2 * squaresUp + kSquaresBeside) * square / gCellHeight);
  picGraph2DShowPlane(index, "shownumbers", false, squaresUp);
  NameAxes(index, squaresUp);
  downArrows.at(static_cast<std::size_t>(index)).clear();
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  GroundOf(index) = LabelGround({plane.TextWidth("5"), plane.TextHeight("5")}, squaresUp);
}

void ShowPlaneAtRight(double row, PlaneHeight height) {
  ShowPlane(1, row, kColAtRight, kSquareAtRight, height);
}

void LabelPlace(int index, double x, double y, const std::string& text, platform::Colour colour) {
  const std::string label = InPlainFace(text);
  const LabelSize size = SizeOf(frmPR->picGraph2D[index], label);
  PrintLabel(index, label, GroundOf(index).PlaceAtPoint({x, y}, size), colour);
}

void KeepLabelsClearOf(int index, const std::vector<FigureItem>& items) {
  for (const FigureItem& item : items) GroundOf(index).Avoid(item);
}

void DrawArrows(int index, const FigureItem& step, platform::Colour colour) {
  const Vector from = {step.Value("x"), step.Value("y")};
  const Vector corner = from + Vector{step.Value("right"), 0};
  DrawArrow(index, from, corner, colour);
  DrawArrow(index, corner, corner + Vector{0, step.Value("up")}, colour);
  KeepFigureItem(index, step);
  if (from.y == 0 && corner.x != 0 && step.Value("up") < 0)
    downArrows.at(static_cast<std::size_t>(index)).push_back({corner.x, step.Value("up"), colour});
  PrintNumbersOnTop(index);
}

void DrawOnPlane(int index, const std::vector<FigureItem>& items, platform::Colour colour) {
  KeepLabelsClearOf(index, items);
  for (const FigureItem& item : items) DrawItem(index, item, colour);
  PrintNumbersOnTop(index);
}

}  // namespace course::graphs
