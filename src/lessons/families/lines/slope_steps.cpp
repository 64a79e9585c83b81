#include "lessons/families/lines/slope_steps.h"

#include <cstdlib>

#include "lessons/families/graphs/plane_figure.h"
#include "mathkit/expressions.h"
#include "mathkit/fraction.h"
#include "mathkit/tutor_codes.h"

namespace course::lines {
namespace {

using namespace graphs;

constexpr int kPlane = 1;

FigureItem RunOf(const SlopeStep& step) {
  return StepItem(step.from.x, step.from.y, step.Run(), 0);
}

FigureItem RiseOf(const SlopeStep& step) {
  return StepItem(step.to.x, step.from.y, 0, step.Rise());
}

}  // namespace

// --- Texts ---------------------------------------------------------------------------------------

std::string SlopeText(int rise, int run) {
  if (run == 0) return "undefined";
  return rise == 0 ? "0" : FractionText(rise, run);
}

// A negative denominator is shown once, as it comes out of the difference.
std::string SlopeWorkedOut(const SlopeStep& step) {
  const std::string rise = step.Rise() < 0 ? "(" + NumStr(step.Rise()) + ")" : NumStr(step.Rise());
  const std::string run = step.Run() < 0 ? "(" + NumStr(step.Run()) + ")" : NumStr(step.Run());
  const std::string quotient = rise + "/" + run;
  const std::string slope = SlopeText(step);
  return "slope = " + quotient + (quotient == slope ? "" : " = " + slope);
}

std::string DifferenceText(int number, int subtracted) {
  return NumStr(number) + " - " + InParentheses(subtracted);
}

std::string LessThanA(int subtracted) {
  return subtracted == 0 ? "a" : "a" + tutor::Gap + SignedNumberText(-subtracted);
}

std::string RunWords(int run) {
  return NumStr(std::abs(run)) + (run < 0 ? " to the left" : " to the right");
}

std::string RiseWords(int rise) {
  return NumStr(std::abs(rise)) + (rise < 0 ? " down" : " up");
}

// --- Figures -------------------------------------------------------------------------------------

FigureItem LineOf(const SlopeStep& step) {
  const double slope = static_cast<double>(step.Rise()) / step.Run();
  return LineItem(slope, step.from.y - slope * step.from.x);
}

void KeepClearOf(const SlopeStep& step) {
  KeepLabelsClearOf(kPlane, {RunOf(step), RiseOf(step), PointItem(step.from.x, step.from.y),
                             PointItem(step.to.x, step.to.y)});
  if (step.Run() != 0) KeepLabelsClearOf(kPlane, {LineOf(step)});
}

void PlotNamed(const GridPoint& point) {
  DrawOnPlane(kPlane, {PointItem(point.x, point.y, GraphPointText(point))});
}

void DrawLineOf(const SlopeStep& step) {
  DrawOnPlane(kPlane,
              {step.Run() == 0 ? UprightItem(step.from.x) : LineOf(step),
               PointItem(step.from.x, step.from.y), PointItem(step.to.x, step.to.y)},
              kSlopedLine);
}

void DrawRun(const SlopeStep& step) {
  DrawOnPlane(kPlane, {RunOf(step)}, kStepColour);
  LabelPlace(kPlane, step.from.x + step.Run() / 2.0, step.from.y, "run " + NumStr(step.Run()),
             kStepColour);
}

void DrawRise(const SlopeStep& step) {
  DrawOnPlane(kPlane, {RiseOf(step)}, kStepColour);
  LabelPlace(kPlane, step.to.x, step.from.y + step.Rise() / 2.0, "rise " + NumStr(step.Rise()),
             kStepColour);
}

}  // namespace course::lines
