#include "display/graphs.h"

#include <algorithm>
#include <cmath>

#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/lesson_window.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr double kLabelSize = 8;  // points

platform::PictureBox& Figure(const char* routine, int index) {
  auto& figures = frmPR->picGraph2D;
  if (index < figures.First() || index > figures.Last())
    platform::Stop(std::string(routine) + ": index = " + std::to_string(index));
  return figures[index];
}

void PrintAt(platform::Surface& figure, double x, double y, const std::string& text) {
  figure.CurrentX = x;
  figure.CurrentY = y;
  figure.Print(text);
}

constexpr int kRight = 5;        // squares of a plane to each side of the y axis
constexpr double kMargin = 1.5;  // squares, beyond the last grid line

// Squares of the plane above its x axis.
int SquaresUp(const platform::Surface& plane) {
  return static_cast<int>(std::lround(-plane.ScaleHeight() / 2 - kMargin));
}

template <class PrintNumber>
void LabelAxes(int up, PrintNumber print) {
  for (int n = 1; n <= kRight; ++n) {
    const std::string positive = std::to_string(n);
    const std::string negative = std::to_string(-n);
    if (n <= up) {
      print(-0.6, n + 0.5, positive);
      print(-0.8, -n + 0.5, negative);
    }
    print(n - 0.2, -0.2, positive);
    print(-n - 0.4, -0.2, negative);
  }
}

void PrintLineHeads(platform::Surface& figure, double u) {
  // Printed at 0.98 the points would stand two pixels above the line that they end.
  const double top = 0.98 + 2 * figure.ScaleHeight() / figure.PixelHeight();
  figure.FontSize = 14;
  PrintAt(figure, 3.8 * u, top, ">");
  PrintAt(figure, -3.95 * u, top, "<");
}

}  // namespace

void picGraph2DPrepare(int index, double row, double col, double wd, double ht) {
  platform::PictureBox& figure = Figure("picGraph2DPrepare", index);
  const platform::PictureBox& panel = frmPR->pnlLesson;
  figure.SetVisible(false);
  figure.Move(
      RoundedPixel(panel.Left() + (col + 1) * gCellWidth * platform::TwipsPerPixelX),
      RoundedPixel(panel.Top() + (gTopMargin + gCellHeight * (row - 2)) * platform::TwipsPerPixelY),
      RoundedPixel(gCellWidth * wd * platform::TwipsPerPixelX),
      RoundedPixel(gCellHeight * ht * platform::TwipsPerPixelY));
  figure.BackColor = platform::colour::White;
  figure.Cls();
  figure.Refresh();
  frmPR->figureItems.at(static_cast<std::size_t>(index)).clear();
}

void picGraph2DShowPlane(int index, const std::string& numbers, bool thin, int up) {
  platform::PictureBox& figure = Figure("picGraph2DShowPlane", index);
  if (up < 1 || up > kRight) platform::Stop("picGraph2DShowPlane: up = " + std::to_string(up));
  figure.SetAccessibleName("Coordinate plane");
  figure.FontSize = kLabelSize;
  figure.SetVisible(true);
  figure.Scale(-6.5, up + kMargin, 6.5, -up - kMargin);
  const double end = up + 0.5;
  for (int t = -kRight; t <= kRight; ++t) {
    figure.Line(t, end, t, -end, platform::colour::Cyan);
    if (std::abs(t) <= up) figure.Line(5.5, t, -5.5, t, platform::colour::Cyan);
  }
  if (thin) {
    figure.Line(0, end, 0, -end);
    figure.Line(-5.5, 0, 5.5, 0);
  } else {
    figure.FilledBox(-0.05, end, 0.05, -end);
    figure.FilledBox(-5.5, -0.05, 5.5, 0.05);
  }
  if (UpperCase(numbers) == "SHOWNUMBERS")
    LabelAxes(
        up, [&](double x, double y, const std::string& number) { PrintAt(figure, x, y, number); });
  figure.Refresh();
}

void picGraph2DPrintNumbersOnTop(int index) {
  platform::PictureBox& figure = Figure("picGraph2DPrintNumbersOnTop", index);
  LabelAxes(SquaresUp(figure), [&](double x, double y, const std::string& number) {
    const double height = figure.TextHeight(number);  // the digits fill the middle of the line
    figure.FilledBox(x, y - 0.15 * height, x + figure.TextWidth(number), y - 0.85 * height,
                     platform::colour::White);
    PrintAt(figure, x, y, number);
  });
  figure.Refresh();
}

void picGraph2DShowNumberLine(int index, const std::string& style, double u) {
  platform::PictureBox& figure = Figure("picGraph2DShowNumberLine", index);
  const std::string wanted = UpperCase(style);
  const bool arrows = wanted == "ARROWS";
  if (!arrows && wanted != "NOARROWS")
    platform::Stop("picGraph2DShowNumberLine: style = \"" + style + "\"");
  if (u <= 0) platform::Stop("picGraph2DShowNumberLine: u = " + NumStr(u));
  figure.SetAccessibleName("Number line");
  figure.FontSize = kLabelSize;
  figure.SetVisible(true);
  figure.Scale(-4 * u, 3, 4 * u, -3);
  const double end = arrows ? 3.9 * u : 3.75 * u;
  figure.Line(-end, 0, end, 0);
  // Counted in whole numbers, so that no tick is lost to rounding.
  for (int half = -7; half <= 7; ++half) {
    const double t = half * 0.5 * u;
    figure.Line(t, 0.5, t, -0.5);
  }
  for (int n = -3; n <= 3; ++n)
    PrintAt(figure, u * (n < 0 ? n - 0.2 : n - 0.05), -0.7, NumStr(n * u));
  if (arrows) PrintLineHeads(figure, u);
  figure.FontSize = 12;  // of a script's own labels
  figure.Refresh();
}

void picGraph2DPlotPoint(int index, double x, double y, platform::Colour colour, double radius) {
  platform::PictureBox& figure = Figure("picGraph2DPlotPoint", index);
  const platform::Colour keptColour = figure.FillColor;
  const platform::FillStyles keptStyle = figure.FillStyle;
  figure.FillColor = colour;
  figure.FillStyle = platform::FillStyles::Solid;
  figure.Circle(x, y, radius);
  figure.FillColor = keptColour;
  figure.FillStyle = keptStyle;
  figure.Refresh();
  KeepFigureItem(index, PointItem(x, y));
}

void picGraph2DLine(int index, double m, double b, platform::Colour colour, int width) {
  platform::PictureBox& figure = Figure("picGraph2DLine", index);
  figure.DrawWidth = width;
  figure.Line(-100, b - 100 * m, 100, b + 100 * m, colour);
  figure.DrawWidth = 1;
  figure.Refresh();
  KeepFigureItem(index, LineItem(m, b));
}

void picGraph2DPrintRotated(int index, double angle, double x, double y, const std::string& text,
                            platform::Colour colour, double size, const std::string& font) {
  platform::PictureBox& figure = Figure("picGraph2DPrintRotated", index);
  figure.PrintRotated(text, x, y, angle, colour, font.empty() ? "Arial" : font, size, true);
  figure.Refresh();
}

void KeepFigureItem(int index, const FigureItem& item) {
  std::vector<FigureItem>& items = frmPR->figureItems.at(static_cast<std::size_t>(index));
  const auto kept =
      std::ranges::find_if(items, [&](const FigureItem& old) { return SamePlace(old, item); });
  if (kept == items.end())
    items.push_back(item);
  else if (!item.label.empty())
    kept->label = item.label;
}

double Atn2Degrees(double slope) {
  // Scripts were laid out with this value of two pi.
  return std::atan(slope) * 360 / 6.2832;
}

void PaintGraph(int indx, int x, int y, platform::Colour color, platform::Colour boundary) {
  platform::PictureBox& figure = Figure("PaintGraph", indx);
  figure.FloodFill(x, y, color, boundary);
  figure.Refresh();
}

}  // namespace course
