#include "lessons/families/systems/graphing_board.h"

#include <cstdlib>

#include "display/wiper_box.h"
#include "engine/header.h"
#include "engine/page.h"
#include "lessons/families/graphs/plane_figure.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/families/systems/system_table.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems::board {
namespace {

using namespace graphs;
using namespace page;

constexpr int kPlane = 1;
constexpr double kTableRow = 19.6;
constexpr platform::Colour kCrossing = platform::Rgb(0, 110, 0);

const SystemTable& Table() {
  static const SystemTable table(
      {{"equation", 27}, {"y = mx + b", 25}, {"slope m", 14}, {"intercept b", 17}});
  return table;
}

void FillTable(const LinearSystem& system, int line) {
  const LinearEquation& equation = system.Line(line);
  Table().Fill(line, 2, SlopeInterceptText(equation));
  Table().Fill(line, 3, NumStr(equation.Slope()));
  Table().Fill(line, 4, NumStr(equation.Intercept()));
}

FigureItem GraphOf(const LinearEquation& equation, int line, const std::string& label = "") {
  const FigureItem graph = LineItem(equation.Slope(), equation.Intercept(), label);
  return line == 1 ? graph : Broken(graph);
}

// From the intercept to a second point.
FigureItem StepOf(const LinearEquation& equation) {
  return StepItem(0, equation.Intercept(), 1, equation.Slope());
}

}  // namespace

// --- The plane -----------------------------------------------------------------------------------

void Plot(int x, int y, platform::Colour colour) {
  DrawOnPlane(kPlane, {PointItem(x, y, PairText(x, y))}, colour);
}

void DrawGraph(const LinearEquation& equation, int line, const std::string& label) {
  DrawOnPlane(kPlane, {GraphOf(equation, line, label)}, ColourOfLine(line));
}

void ExpectBothGraphs(const LinearSystem& system) {
  KeepLabelsClearOf(kPlane, {GraphOf(system.first, 1), GraphOf(system.second, 2)});
}

void MarkCrossing(int x, int y) {
  DrawOnPlane(kPlane, {GuidesItem(x, y), PointItem(x, y)}, kCrossing);
}

void NameCrossing(int x, int y) {
  Plot(x, y, kCrossing);
}

// --- The steps -----------------------------------------------------------------------------------

void ShowTable(const LinearSystem& system) {
  Table().Show(kTableRow);
  for (const int line : {1, 2}) Table().Fill(line, 1, EquationText(system.Line(line)));
}

void OpenWorkBox(double row) {
  WhiteBox({.row = row, .rows = kTableRow - row - 0.5});
}

void SolveForY(const LinearSystem& system, int line) {
  const LinearEquation& equation = system.Line(line);
  SayInBoxAnew(Text("Line {}:", line) + AlignedEquation(EquationText(equation)).substr(7));
  for (const EquationStep& step : StepsToSlopeIntercept(equation)) {
    SayStepInBox(step);
    if (step.equation != SlopeInterceptText(equation)) PageEnd();
  }
  SayInBox(Text("The slope is {}, the intercept is {}.", equation.Slope(), equation.Intercept()));
  FillTable(system, line);
  PageEnd();
}

void WriteHeading(const std::string& heading) {
  if (heading.empty()) return ProblemBanner();
  ClearRows(2, 2);
  SayAt(2.5, heading);
}

void ShowBoard(const LinearSystem& system, const std::string& heading) {
  NewScreen();
  ShowTable(system);
  for (const int line : {1, 2}) FillTable(system, line);
  WriteHeading(heading);
  ShowPlaneAtRight(kPlaneRow);
  ExpectBothGraphs(system);
  for (const int line : {1, 2}) {
    const LinearEquation& equation = system.Line(line);
    KeepLabelsClearOf(kPlane, {StepOf(equation), PointItem(0, equation.Intercept()),
                               PointItem(1, equation.Intercept() + equation.Slope())});
  }
}

void GraphLine(const LinearSystem& system, int line) {
  const LinearEquation& equation = system.Line(line);
  const int slope = equation.Slope();
  const int intercept = equation.Intercept();
  const platform::Colour colour = ColourOfLine(line);
  ClearCells(kTextRow, 1, kBesidePlane.lastCol, 10);
  SayAt(kTextRow,
        Text(R"(\yLine {}\z crosses the y axis at the intercept:  {}.)", line,
             PairText(0, intercept)),
        kBesidePlane);
  Plot(0, intercept, colour);
  PageEnd();
  Say(Text("Its slope is {}.  From there we go 1 right and {} {}, to {}.", slope, std::abs(slope),
           Words{slope > 0 ? "up" : "down"}, PairText(1, intercept + slope)),
      kBesidePlane);
  AddLine("Then we draw the line.", kBesidePlane);
  DrawOnPlane(kPlane, {StepOf(equation)});
  Plot(1, intercept + slope, colour);
  DrawGraph(equation, line, SlopeInterceptText(equation));
  PageEnd();
}

void ShowCrossing(const LinearSystem& system, const std::string& heading) {
  WriteHeading(heading);
  ClearCells(kTextRow, 1, kBesidePlane.lastCol, 10);
  ShowPlaneAtRight(kPlaneRow);
  ExpectBothGraphs(system);
  for (const int line : {1, 2})
    DrawGraph(system.Line(line), line, SlopeInterceptText(system.Line(line)));
  MarkCrossing(system.x, system.y);
}

void CheckSolution(const LinearSystem& system) {
  WhiteBox({.row = kBelowPlane, .rows = kTableRow - kBelowPlane - 0.2});
  SayPairInBox(system.x, system.y);
  for (const int line : {1, 2}) TryPairInBox(system.Line(line), system.x, system.y);
  PageEnd();
  wbHide();
}

}  // namespace course::systems::board
