// The slope of a line, on plane 1: points, run and rise as steps between them, and their texts.
#pragma once

#include <string>

#include "display/figure_item.h"
#include "lessons/families/graphs/coordinates.h"
#include "platform/geometry.h"

namespace course::lines {

using graphs::GridPoint;

// The way from one point to another: the run to the right and the rise up, or below 0 the other
// way.
struct SlopeStep {
  GridPoint from;
  GridPoint to;

  int Run() const { return to.x - from.x; }
  int Rise() const { return to.y - from.y; }
};

// "-3/4" in lowest terms, "0" of a level step, "undefined" of an upright one.
std::string SlopeText(int rise, int run);
inline std::string SlopeText(const SlopeStep& step) {
  return SlopeText(step.Rise(), step.Run());
}
// "slope = -6/8 = -3/4", rise and run as they are.
std::string SlopeWorkedOut(const SlopeStep& step);
// "2 - (-1)"
std::string DifferenceText(int number, int subtracted);
// "a + 1" when -1 is subtracted from a.
std::string LessThanA(int subtracted);
// "3 to the left", "2 up".
std::string RunWords(int run);
std::string RiseWords(int rise);

// The line through both points, which is not upright.
FigureItem LineOf(const SlopeStep& step);

inline constexpr platform::Colour kStepColour = platform::colour::Blue;
inline constexpr platform::Colour kSlopedLine = platform::Rgb(200, 0, 0);

// Labels keep clear of points, line and steps that later pages draw.
void KeepClearOf(const SlopeStep& step);
void PlotNamed(const GridPoint& point);
void DrawLineOf(const SlopeStep& step);
// With their lengths beside them.
void DrawRun(const SlopeStep& step);
void DrawRise(const SlopeStep& step);

}  // namespace course::lines
