#include "lessons/families/graphs/graph_choices.h"

#include <algorithm>
#include <cmath>

#include "display/graphs.h"
#include "display/lesson_window.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "platform/stop.h"

namespace course::graphs {
namespace {

constexpr int kSquaresAcross = 13;
constexpr int kGridEnd = 5;
constexpr double kCaption = 1.1;  // rows from a caption to its plane
constexpr double kCaptionColumns = 7;
constexpr double kLetterSize = 8;  // points
constexpr int kLineWidth = 3;      // pixels; an odd number lies evenly about the line

// How the planes are laid out; sizes in pixels.
struct Layout {
  int square;
  int planesARow;
  int across;   // from one plane to the next
  double down;  // rows likewise
};

// A place for a number at an axis, in squares.
struct NumberPlace {
  double left;
  double top;
};

// Whether a line or a point comes so near that it would lie on the number.
bool Meets(const FigureItem& item, const NumberPlace& place) {
  constexpr double kWide = 0.7;
  constexpr double kHigh = 1.1;
  constexpr double kAir = 0.2;
  const auto isOn = [&](double x, double y) {
    return x > place.left - kAir && x < place.left + kWide + kAir && y < place.top + kAir &&
           y > place.top - kHigh - kAir;
  };
  if (item.shape == "point") return isOn(item.Value("x"), item.Value("y"));
  if (item.Find("x")) return isOn(item.Value("x"), place.top);
  constexpr int kSamples = 10;
  const double slope = item.Value("slope");
  const double intercept = item.Value("intercept");
  for (int i = 0; i <= kSamples; ++i) {
    const double x = place.left + kWide * i / kSamples;
    const double y = place.top - kHigh * i / kSamples;
    if (isOn(x, slope * x + intercept) || (slope != 0 && isOn((y - intercept) / slope, y)))
      return true;
  }
  return false;
}

void ShowBarePlane(int index, const std::vector<FigureItem>& items, double row, double col,
                   int square) {
  const auto print = [&](const NumberPlace& place, const std::string& text) {
    picGraph2DPrintRotated(index, 0, place.left, place.top, text, platform::colour::Black,
                           kLetterSize);
  };
  const auto printFive = [&](const NumberPlace& usual, const NumberPlace& beyondAxis) {
    const bool met =
        std::ranges::any_of(items, [&](const FigureItem& item) { return Meets(item, usual); });
    print(met ? beyondAxis : usual, "5");
  };
  const int size = kSquaresAcross * square;  // pixels
  picGraph2DPrepare(index, row, col, static_cast<double>(size) / gCellWidth,
                    static_cast<double>(size) / gCellHeight);
  picGraph2DShowPlane(index, "", true);
  print({5.75, 0.75}, "x");
  print({0.25, 6.5}, "y");
  printFive({4.75, -0.1}, {4.75, 1.2});
  printFive({-0.75, 5.6}, {0.2, 5.6});
}

// A crossing of the grid on the line, so that both ends of what is drawn are whole pixels: half a
// pixel at an intercept of 1/4 would shift it.  The intercept where there is none.
double CrossingOf(double slope, double intercept) {
  for (int x = 0; x <= kGridEnd; ++x)
    for (const int side : {x, -x}) {
      const double y = slope * side + intercept;
      if (std::abs(y - std::round(y)) < 1e-9) return side;
    }
  return 0;
}

void DrawLine(int index, const FigureItem& line) {
  constexpr int kFarAway = 96;  // squares; a multiple of most slopes' denominators
  platform::PictureBox& plane = frmPR->picGraph2D[index];
  plane.DrawWidth = kLineWidth;
  if (const auto upright = line.Find("x")) {
    plane.Line(*upright, kFarAway, *upright, -kFarAway);
  } else {
    const double slope = line.Value("slope");
    const double x = CrossingOf(slope, line.Value("intercept"));
    const double y = slope * x + line.Value("intercept");
    plane.Line(x - kFarAway, y - slope * kFarAway, x + kFarAway, y + slope * kFarAway);
  }
  plane.DrawWidth = 1;
  plane.Refresh();
  KeepFigureItem(index, line);
}

void ShowGraphs(const std::vector<FigureItem>& lines, double row, const Layout& layout) {
  if (lines.size() != kGraphs)
    platform::Stop("ShowGraphs: " + std::to_string(lines.size()) + " lines");
  const double width = static_cast<double>(kSquaresAcross * layout.square) / gCellWidth;
  for (int number = 1; number <= kGraphs; ++number) {
    const int place = number - 1;
    const double col = static_cast<double>(place % layout.planesARow * layout.across) / gCellWidth;
    const double top = row + place / layout.planesARow * layout.down;
    const FigureItem& line = lines[static_cast<std::size_t>(place)];
    // Column 1 is where the first plane begins.
    page::ShowAt(top, GraphName(number), 1 + col + (width - kCaptionColumns) / 2);
    ShowSmallPlane(number, {line}, top + kCaption, col, layout.square);
    frmPR->picGraph2D[number].SetAccessibleName(GraphName(number));
  }
}

}  // namespace

std::string GraphName(int number) {
  return "Graph " + NumStr(number);
}

void ShowSmallPlane(int index, const std::vector<FigureItem>& items, double row, double col,
                    int square) {
  ShowBarePlane(index, items, row, col, square);
  for (const FigureItem& item : items)
    if (item.shape == "line")
      DrawLine(index, item);
    else
      picGraph2DPlotPoint(index, item.Value("x"), item.Value("y"), platform::colour::Black);
}

void ShowGraphsInSquare(const std::vector<FigureItem>& lines, double row) {
  ShowGraphs(lines, row, {.square = 14, .planesARow = 2, .across = 198, .down = 8.6});
}

void ShowGraphsInRow(const std::vector<FigureItem>& lines, double row) {
  ShowGraphs(lines, row, {.square = 12, .planesARow = 4, .across = 161, .down = 0});
}

}  // namespace course::graphs
