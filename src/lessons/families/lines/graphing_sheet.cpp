#include "lessons/families/lines/graphing_sheet.h"

#include <cstdlib>

#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "engine/page.h"
#include "lessons/families/graphs/coordinates.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/fraction.h"

namespace course::lines {
namespace {

using namespace graphs;
using namespace page;

constexpr int kPlane = 1;
constexpr int kGridEnd = 5;
constexpr platform::Colour kLine = platform::Rgb(200, 0, 0);
constexpr platform::Colour kStep = platform::colour::Blue;

// The table, in pixels and hundredths of them.
constexpr int kTableWidth = 260;
constexpr int kTableHeight = 128;
constexpr double kCellSize = 14;  // points
constexpr double kCellTop = 21;
constexpr double kCellStep = 26;
constexpr double kCellHeight = 23;
constexpr double kXLeft = 4;
constexpr double kYLeft = 51;
constexpr double kCellWidth = 45;

FigureItem LineOf(const systems::LinearEquation& equation) {
  return LineItem(static_cast<double>(-equation.a) / equation.b,
                  static_cast<double>(equation.c) / equation.b);
}

}  // namespace

std::vector<int> GraphingSheet::GoodXs() const {
  std::vector<int> numbers;
  for (int size = 0; size <= kGridEnd; ++size)
    for (const int x : {size, -size}) {
      const bool isNew = numbers.empty() || numbers.back() != x;
      if (isNew && Rest(x) % equation_.b == 0 && std::abs(Rest(x) / equation_.b) <= kGridEnd)
        numbers.push_back(x);
    }
  return numbers;
}

std::string GraphingSheet::YText(int x) const {
  return ValueText(Reduced(Rest(x), equation_.b));
}

// --- The plane -----------------------------------------------------------------------------------

void GraphingSheet::ShowEmptyPlane(double row) const {
  ShowPlaneAtRight(row);
  KeepLabelsClearOf(kPlane, {LineOf(equation_)});
}

void GraphingSheet::PlotIntercept() const {
  KeepLabelsClearOf(kPlane, {StepItem(0, Intercept(), 1, Slope())});
  DrawOnPlane(kPlane, {PointItem(0, Intercept(), GraphPointText({0, Intercept()}))});
}

void GraphingSheet::DrawStep() const {
  const GridPoint second = {1, Intercept() + Slope()};
  DrawOnPlane(kPlane, {StepItem(0, Intercept(), 1, Slope())}, kStep);
  DrawOnPlane(kPlane, {PointItem(0, Intercept(), GraphPointText({0, Intercept()})),
                       PointItem(second.x, second.y, GraphPointText(second))});
}

void GraphingSheet::DrawLine(const std::string& label) const {
  FigureItem line = LineOf(equation_);
  line.label = label;
  DrawOnPlane(kPlane, {line}, kLine);
  std::vector<FigureItem> points = frmPR->figureItems.at(kPlane);  // above the line
  std::erase_if(points, [](const FigureItem& item) { return item.shape != "point"; });
  DrawOnPlane(kPlane, points);
}

// --- The table -----------------------------------------------------------------------------------

void GraphingSheet::ShowTable(double row) const {
  PrintCellTable table;
  table.widthPixels = kTableWidth;
  table.heightPixels = kTableHeight;
  for (const int line : {kFirstPoint, kSecondPoint, kThirdPoint})
    for (const double left : {kXLeft, kYLeft})
      table.cells.push_back({left, kCellTop + (line - 1) * kCellStep, kCellWidth, kCellHeight});
  for (const auto& [left, letter] : {std::pair(kXLeft, "x"), std::pair(kYLeft, "y")})
    table.labels.push_back(
        {left, 1, kCellWidth, kCellTop - 2, letter, kCellSize, platform::colour::Black, true});
  CellTable(table, row);
}

void GraphingSheet::Enter(int row, int x) const {
  const std::string y = YText(x);
  picPrintCellPrint(2 * row - 1, NumStr(x), platform::colour::Black, kCellSize);
  picPrintCellPrint(2 * row, y, platform::colour::Black, kCellSize);
  FigureItem point = PointItem(x, static_cast<double>(Rest(x)) / equation_.b);
  if (Rest(x) % equation_.b == 0) point.label = GraphPointText({x, Rest(x) / equation_.b});
  DrawOnPlane(kPlane, {point});
}

void GraphingSheet::SolveForY(int x) const {
  const auto [a, b, c] = equation_;
  const std::string right = " = " + NumStr(c);
  const std::string behind = SignedCoefText(b) + "y" + right;
  SayInBoxAnew(Text("We try x = {}:", x));
  SayInBox(systems::AlignedEquation(systems::TermText(a, x) + behind));
  if (x != 0) SayInBox(systems::AlignedEquation(NumStr(a * x) + behind));
  PageEnd();
  if (x == 0)
    SayInBox(systems::AlignedEquation(CoefText(b) + "y" + right));
  else
    systems::SayStepInBox(
        {systems::ActionToRemove(a * x, ""), CoefText(b) + "y = " + NumStr(Rest(x))});
  systems::SayStepInBox({systems::ActionToIsolate(b), "y = " + YText(x)});
}

void GraphingSheet::FindPoint(int row, int x) const {
  SolveForY(x);
  Enter(row, x);
  PageEnd();
}

}  // namespace course::lines
