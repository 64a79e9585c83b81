#include "display/drawing.h"

#include <algorithm>
#include <optional>
#include <string>

#include "display/comment_panel.h"
#include "display/drawing_cells.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/scoped_value.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

namespace course {

std::array<std::array<double, 2>, kMaxPolyPoints + 1> gPoly;

namespace {

constexpr int kCorner = 12;  // pixels: the corner of a round rectangle, as wide as high

void HorizBar(TextPanel& panel, double rp, double col1, double col2, int thickness,
              platform::Colour colr) {
  const int y = RoundedPixel(panel.CellY(rp) + panel.layout.cellHeight / 2.0);
  const int x1 = RoundedPixel(panel.CellX(col1));
  const int x2 = RoundedPixel(panel.CellX(col2) + panel.layout.cellWidth - 1);
  panel.surface.FilledBox(x1, y, x2, y + std::max(thickness, 1) - 1, colr);
  panel.surface.Refresh();
}

void VertBar(TextPanel& panel, double col, double rp1, double rp2, int thickness,
             platform::Colour colr) {
  constexpr int kGapBelow = 4;  // keeps the bar off the row below
  const int x = RoundedPixel(panel.CellX(col) + panel.layout.cellWidth / 2.0);
  const int y1 = RoundedPixel(panel.CellY(rp1));
  const int y2 = RoundedPixel(panel.CellY(rp2) + panel.layout.cellHeight - kGapBelow);
  panel.surface.FilledBox(x, y1, x + std::max(thickness, 1) - 1, y2, colr);
  panel.surface.Refresh();
}

void RoundRect(double rp1, double cp1, double rp2, double cp2, int drawwid, platform::Colour line,
               std::optional<platform::Colour> fill) {
  TextPanel& panel = DrawTarget();
  const InclusiveBox box = BoxOfCells(panel, rp1, cp1, rp2, cp2);
  const platform::PixelRect rect{box.left, box.top, box.right - box.left + 1,
                                 box.bottom - box.top + 1};
  panel.surface.RoundRect(rect, kCorner, kCorner, line, drawwid, fill);
  panel.surface.Refresh();
}

}  // namespace

int RoundedPixel(double value) {
  return static_cast<int>(RoundHalfEven(value));
}

InclusiveBox BoxOfCells(const TextPanel& panel, double rp1, double cp1, double rp2, double cp2) {
  return {RoundedPixel(panel.CellX(cp1)), RoundedPixel(panel.CellY(rp1)),
          RoundedPixel(panel.CellX(cp2) + panel.layout.cellWidth - 1),
          RoundedPixel(panel.CellY(rp2) + panel.layout.cellHeight - 1)};
}

platform::PixelPoint CellCentre(const TextPanel& panel, double rp, double cp) {
  // The hair keeps a centre that is meant to lie between two pixels from falling to the upper one.
  constexpr double kHair = 1e-6;
  return {IntOf(panel.CellX(cp) + panel.layout.cellWidth / 2.0 + 0.5 + kHair),
          IntOf(panel.CellY(rp) + panel.layout.cellHeight / 2.0 + 0.5 + kHair)};
}

TextPanel& DrawTarget() {
  const int target = screenState.gDrawTarget;
  if (target == 0) return frmPR->lessonText;
  if (target < 0) return frmPR->wiperText;
  return CommentPanel(target, "gDrawTarget");
}

void isDrawHorizLine(double rp, double col1, double col2, int thickness) {
  TextPanel& panel = frmPR->lessonText;
  HorizBar(panel, rp, col1, col2, thickness, panel.surface.ForeColor);
}

void isDrawHorizLineWithColor(double rp, double col1, double col2, int thickness,
                              platform::Colour colr) {
  HorizBar(DrawTarget(), rp, col1, col2, thickness, colr);
}

void isDrawVertLine(double col, double rp1, double rp2, int thickness) {
  TextPanel& panel = frmPR->lessonText;
  VertBar(panel, col, rp1, rp2, thickness, panel.surface.ForeColor);
}

void isDrawVertLineWithColor(double col, double rp1, double rp2, int thickness,
                             platform::Colour colr) {
  VertBar(DrawTarget(), col, rp1, rp2, thickness, colr);
}

void isDrawDiagonalLineWithColor(double rp1, double col1, double rp2, double col2, int thickness,
                                 platform::Colour colr) {
  TextPanel& panel = DrawTarget();
  const platform::PixelPoint from = CellCentre(panel, rp1, col1);
  const platform::PixelPoint to = CellCentre(panel, rp2, col2);
  const ScopedValue width(panel.surface.DrawWidth, std::max(thickness, 1));
  panel.surface.Line(from.x, from.y, to.x, to.y, colr);
  panel.surface.Refresh();
}

void isDrawBox(double rp1, double cp1, double rp2, double cp2, platform::Colour colr,
               int thickness) {
  TextPanel& panel = DrawTarget();
  const InclusiveBox box = BoxOfCells(panel, rp1, cp1, rp2, cp2);
  const ScopedValue width(panel.surface.DrawWidth, std::max(thickness, 1));
  panel.surface.Box(box.left, box.top, box.right, box.bottom, colr);
  panel.surface.Refresh();
}

void isDrawBoxFilled(double rp1, double cp1, double rp2, double cp2, platform::Colour colr) {
  TextPanel& panel = DrawTarget();
  const InclusiveBox box = BoxOfCells(panel, rp1, cp1, rp2, cp2);
  panel.surface.FilledBox(box.left, box.top, box.right, box.bottom, colr);
  panel.EraseTranscript({box.left, box.top, box.right - box.left + 1, box.bottom - box.top + 1});
  panel.surface.Refresh();
}

void isDrawBoxInverse(double rp1, double cp1, double rp2, double cp2) {
  TextPanel& panel = frmPR->lessonText;
  const InclusiveBox box = BoxOfCells(panel, rp1, cp1, rp2, cp2);
  panel.surface.DrawMode = platform::DrawModes::Xor;
  panel.surface.FilledBox(box.left, box.top, box.right, box.bottom, platform::colour::White);
  panel.surface.DrawMode = platform::DrawModes::CopyPen;
  panel.surface.Refresh();
}

void isDrawRoundRect(double rp1, double cp1, double rp2, double cp2, int drawwid,
                     platform::Colour colr) {
  RoundRect(rp1, cp1, rp2, cp2, drawwid, colr, std::nullopt);
}

void isDrawRoundRectFilled(double rp1, double cp1, double rp2, double cp2, int drawwid,
                           platform::Colour colr1, platform::Colour colr2) {
  RoundRect(rp1, cp1, rp2, cp2, drawwid, colr1, colr2);
}

void isDrawPoly(int np, platform::Colour colr) {
  if (np < 1 || np > kMaxPolyPoints) platform::Stop("isDrawPoly: np = " + std::to_string(np));
  TextPanel& panel = DrawTarget();
  const auto corner = [&panel](int i) {
    const auto& [rp, cp] = gPoly[static_cast<std::size_t>(i)];
    return CellCentre(panel, rp, cp);
  };
  const ScopedValue width(panel.surface.DrawWidth, 1);
  for (int i = 1; i <= np; ++i) {
    const platform::PixelPoint from = corner(i);
    const platform::PixelPoint to = corner(i == np ? 1 : i + 1);
    panel.surface.Line(from.x, from.y, to.x, to.y, colr);
  }
  panel.surface.Refresh();
}

void isPaint(int pixelRow, int pixelCol, platform::Colour paintColor,
             platform::Colour boundaryColor) {
  platform::Surface& surface = DrawTarget().surface;
  surface.FloodFill(pixelCol, pixelRow, paintColor, boundaryColor);
  surface.Refresh();
}

void Paint2(double rp, double cp, platform::Colour paintColor, platform::Colour boundaryColor) {
  const platform::PixelPoint centre = CellCentre(DrawTarget(), rp, cp);
  isPaint(centre.y, centre.x, paintColor, boundaryColor);
}

}  // namespace course
