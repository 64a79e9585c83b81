#include "lessons/families/systems/graphing_board.h"

#include "display/drawing.h"
#include "display/graphs.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "lessons/families/graphs/plane_figure.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems::board {
namespace {

using namespace graphs;

constexpr int kPlane = 1;
constexpr int kSquare = 20;      // pixels
constexpr double kPlaneRow = 4;  // below the banner, which can be long
constexpr double kPlaneCol = 23.75;
constexpr double kCrossingRadius = 0.3;  // squares
constexpr platform::Colour kCrossing = platform::Rgb(0, 130, 0);

constexpr double kWiperWidth = 37;  // columns
constexpr double kWiperCol = 2;
constexpr double kWiperEnd = 17.4;  // row
constexpr int kEqualsCol = 20;

const SystemTable& Table() {
  static const SystemTable table(
      {{"equation", 27}, {"y = mx + b", 25}, {"slope m", 14}, {"intercept b", 17}});
  return table;
}

}  // namespace

void ShowEmptyPlane() {
  ShowPlane(kPlane, kPlaneRow, kPlaneCol, kSquare);
}

void Plot(int x, int y, platform::Colour colour) {
  picGraph2DPlotPoint(kPlane, x, y, colour);
}

void DrawLine(const LinearEquation& equation, int line, const std::string& label) {
  DrawOnPlane(kPlane, {LineItem(equation.Slope(), equation.Intercept(), label)},
              ColourOfLine(line));
}

void PlotTwoPoints(const LinearEquation& equation, int line) {
  const int intercept = equation.Intercept();
  DrawOnPlane(kPlane, {StepItem(0, intercept, 1, equation.Slope())});
  Plot(0, intercept, ColourOfLine(line));
  Plot(1, intercept + equation.Slope(), ColourOfLine(line));
}

void ShowBothLines(const LinearSystem& system) {
  ShowEmptyPlane();
  DrawLine(system.first, 1, SlopeInterceptText(system.first));
  DrawLine(system.second, 2, SlopeInterceptText(system.second));
}

void MarkCrossing(int x, int y) {
  DrawOnPlane(kPlane, {GuidesItem(x, y)}, kCrossing);
  picGraph2DPlotPoint(kPlane, x, y, kCrossing, kCrossingRadius);
}

void ClearTexts() {
  isDrawBoxFilled(4, 1, kTableRow - 1.2, 40, platform::colour::Blue);
}

void Write(const std::string& text) {
  WordWrapNarrow(text, kNarrow);
}

void ShowWiper(double row) {
  wbPrepareAtColumn(row, kWiperCol, kWiperWidth, kWiperEnd - row, platform::colour::White,
                    platform::colour::Black);
  wbShow();
}

void WriteAligned(double row, const std::string& equation) {
  wbLocate(row, kEqualsCol - static_cast<double>(equation.find('=')));
  wbisPrint(equation);
}

std::string Substituted(const LinearEquation& equation, int x, int y) {
  const int first = equation.a * x;
  const int second = equation.b * y;
  return CoefText(equation.a) + "(" + NumStr(x) + ")" + SignedCoefText(equation.b) + "(" +
         NumStr(y) + ") = " + NumStr(first) + tutor::Gap + SignedNumberText(second) + " = " +
         NumStr(first + second);
}

void ShowTable(const LinearSystem& system) {
  Table().Show(kTableRow);
  Table().Fill(1, 1, EquationText(system.first));
  Table().Fill(2, 1, EquationText(system.second));
}

void FillTable(const LinearSystem& system, int line) {
  const LinearEquation& equation = line == 1 ? system.first : system.second;
  Table().Fill(line, 2, SlopeInterceptText(equation));
  Table().Fill(line, 3, NumStr(equation.Slope()));
  Table().Fill(line, 4, NumStr(equation.Intercept()));
}

}  // namespace course::systems::board
