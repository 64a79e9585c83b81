#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/lesson_window.h"
#include "display/scoped_value.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr int kStroke = 2;  // pixels: the weight of marks beside the bold print font

struct RealPoint {
  double x;
  double y;
};

void DrawCurve(platform::Surface& surface, const std::vector<RealPoint>& points) {
  for (std::size_t i = 1; i < points.size(); ++i)
    surface.Line(points[i - 1].x, points[i - 1].y, points[i].x, points[i].y);
}

// A filled triangle with its point at tip, seen from a point behind it.
void FillHead(platform::Surface& surface, RealPoint tip, RealPoint behind, double length) {
  const double dx = tip.x - behind.x;
  const double dy = tip.y - behind.y;
  const double distance = std::hypot(dx, dy);
  if (distance == 0) return;
  const double ux = dx / distance * length;
  const double uy = dy / distance * length;
  const auto corner = [&](double along, double across) {
    return platform::PixelPoint{RoundedPixel(tip.x - along * ux - across * uy),
                                RoundedPixel(tip.y - along * uy + across * ux)};
  };
  const std::array points{corner(0, 0), corner(1, 0.5), corner(1, -0.5)};
  surface.Polygon(points, surface.ForeColor);
}

void FillDot(platform::Surface& surface, int x, int y, platform::Colour colour, double radius) {
  surface.FillColor = colour;
  surface.FillStyle = platform::FillStyles::Solid;
  surface.Circle(x, y, radius, colour);
  surface.FillStyle = platform::FillStyles::Transparent;
  surface.FillColor = platform::colour::Black;
}

}  // namespace

void Bracket(double rp, double cp, double wd, int th, int dir) {
  if (dir != 1 && dir != 2) platform::Stop("Bracket: dir = " + std::to_string(dir));
  constexpr int kTick = 3;
  TextPanel& panel = frmPR->lessonText;
  const int thickness = std::max(th, 1);
  const int left = RoundedPixel(panel.CellX(cp));
  const int right = RoundedPixel(panel.CellX(cp) + wd * gCellWidth - 1);
  const int top = RoundedPixel(panel.CellY(rp) + gCellHeight / 2.0);
  const int bottom = top + thickness - 1;
  const int tickTop = dir == 1 ? top - kTick : bottom + 1;
  panel.surface.FilledBox(left, top, right, bottom);
  panel.surface.FilledBox(left, tickTop, left + thickness - 1, tickTop + kTick - 1);
  panel.surface.FilledBox(right - thickness + 1, tickTop, right, tickTop + kTick - 1);
  panel.surface.Refresh();
}

void Bracket2(double rp, double cp, double ht, double wd, const std::string& direc) {
  TextPanel& panel = frmPR->lessonText;
  const double middleX = panel.CellX(cp) + gCellWidth / 2.0;
  const double middleY = panel.CellY(rp) + gCellHeight / 2.0;
  const int top = RoundedPixel(middleY - ht * gCellHeight / 2);
  const int bottom = RoundedPixel(middleY + ht * gCellHeight / 2);
  const int spine = RoundedPixel(middleX - kStroke / 2.0);
  const int reach = std::max(RoundedPixel(wd * gCellWidth), kStroke);
  const bool opensLeft = UpperCase(direc) == "L";
  const int left = opensLeft ? spine + kStroke - reach : spine;
  const int right = left + reach - 1;
  panel.surface.FilledBox(spine, top, spine + kStroke - 1, bottom);
  panel.surface.FilledBox(left, top, right, top + kStroke - 1);
  panel.surface.FilledBox(left, bottom - kStroke + 1, right, bottom);
  panel.surface.Refresh();
}

void isDrawArcLabel(double rp, double cp, double wd) {
  constexpr int kRise = 6;  // pixels
  TextPanel& panel = frmPR->lessonText;
  const double half = (wd * gCellWidth - kStroke) / 2;
  const double middle = panel.CellX(cp) + wd * gCellWidth / 2;
  const double foot = panel.CellY(rp) + 3;  // the highest letters begin below
  std::vector<RealPoint> points;
  constexpr int kPieces = 24;
  for (int i = 0; i <= kPieces; ++i) {
    const double angle = std::numbers::pi * i / kPieces;
    points.push_back({middle - half * std::cos(angle), foot - kRise * std::sin(angle)});
  }
  const ScopedValue width(panel.surface.DrawWidth, kStroke);
  DrawCurve(panel.surface, points);
  panel.surface.Refresh();
}

void isDrawRayLabel(double rp, double cp, double wd) {
  TextPanel& panel = frmPR->lessonText;
  const int left = RoundedPixel(panel.CellX(cp));
  const int right = RoundedPixel(panel.CellX(cp) + wd * gCellWidth - 1);
  const int y = RoundedPixel(panel.CellY(rp));
  panel.surface.FilledBox(left, y, right - 2, y);
  FillHead(panel.surface, {double(right), double(y)}, {double(left), double(y)}, 6);
  panel.surface.Refresh();
}

void isDrawRay(const std::string& rayDir, double rp1, double cp1, double rp2, double cp2,
               bool endpt) {
  constexpr double kHead = 8;
  constexpr double kPoint = 3;
  TextPanel& panel = frmPR->lessonText;
  const platform::PixelPoint from = CellCentre(panel, rp1, cp1);
  const platform::PixelPoint to = CellCentre(panel, rp2, cp2);
  const RealPoint start{double(from.x), double(from.y)};
  const RealPoint tip{double(to.x), double(to.y)};
  RealPoint behind = start;
  const std::string direction = UpperCase(rayDir);
  if (direction == "U")
    behind = {tip.x, tip.y + 1};
  else if (direction == "D")
    behind = {tip.x, tip.y - 1};
  else if (direction == "L")
    behind = {tip.x + 1, tip.y};
  else if (direction == "R")
    behind = {tip.x - 1, tip.y};
  else if (!direction.empty())
    platform::Stop("isDrawRay: rayDir = \"" + rayDir + "\"");
  panel.surface.Line(start.x, start.y, tip.x, tip.y);
  FillHead(panel.surface, tip, behind, kHead);
  if (endpt) FillDot(panel.surface, from.x, from.y, panel.surface.ForeColor, kPoint);
  panel.surface.Refresh();
}

void isIntegralSign(double rp, double col, double ht) {
  TextPanel& panel = frmPR->lessonText;
  const double middleX = panel.CellX(col) + gCellWidth / 2.0;
  const double middleY = panel.CellY(rp) + gCellHeight / 2.0;
  const double halfHeight = ht * gCellHeight / 2;
  const double radius = std::min(4.0, halfHeight / 2);  // pixels: the hooks
  const double lean = std::min(2.0, halfHeight / 8);
  // The upper hook from its tip to the stem; the lower one is the same turned by half a circle.
  std::vector<RealPoint> upper;
  constexpr int kPieces = 12;
  for (int i = 0; i <= kPieces; ++i) {
    const double angle = std::numbers::pi * (0.15 + 0.85 * i / kPieces);
    upper.push_back(
        {lean + radius + radius * std::cos(angle), halfHeight - radius + radius * std::sin(angle)});
  }
  std::vector<RealPoint> curve;
  for (const RealPoint& p : upper) curve.push_back({middleX + p.x, middleY - p.y});
  for (auto p = upper.rbegin(); p != upper.rend(); ++p)
    curve.push_back({middleX - p->x, middleY + p->y});
  const ScopedValue width(panel.surface.DrawWidth, kStroke);
  DrawCurve(panel.surface, curve);
  panel.surface.Refresh();
}

void isDrawBullet(double rp, double cp, platform::Colour colr, double radius) {
  TextPanel& panel = DrawTarget();
  FillDot(panel.surface, RoundedPixel(panel.CellX(cp) + panel.layout.cellWidth / 2.0),
          RoundedPixel(panel.CellY(rp) + panel.layout.cellHeight / 2.0), colr,
          radius < 1 ? 6 : radius);
  panel.surface.Refresh();
}

}  // namespace course
