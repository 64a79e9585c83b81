// The screen on which a system is solved by graphing: below the banner a white box for the work, or
// a plane at the right edge with texts on its left; at the bottom the table that keeps both
// equations in sight.  Line 1 is solid, line 2 is broken.
#pragma once

#include <string>

#include "lessons/families/systems/linear_system.h"
#include "platform/geometry.h"

namespace course::systems::board {

inline constexpr double kTextRow = 4.4;  // first row under the banner
inline constexpr double kPlaneRow = 4;
inline constexpr double kBelowPlane = 14.6;

// --- The plane, shown by ShowPlaneAtRight --------------------------------------------------------

void Plot(int x, int y, platform::Colour colour);  // with its pair of numbers
void DrawGraph(const LinearEquation& equation, int line, const std::string& label);
// Labels keep clear of both lines, of which one is not drawn yet.
void ExpectBothGraphs(const LinearSystem& system);
// The point of both lines and the ways from it to the axes; then its pair of numbers.
void MarkCrossing(int x, int y);
void NameCrossing(int x, int y);

// --- The table, and the steps, a page each -------------------------------------------------------

void ShowTable(const LinearSystem& system);
// The white box from a row to the table, in which line 1 or 2 is solved for y; its row of the table
// is filled.
void OpenWorkBox(double row);
void SolveForY(const LinearSystem& system, int line);
// Above the plane; "" stands for the banner.
void WriteHeading(const std::string& heading);
// A new screen with the filled table, an empty plane and a heading.
void ShowBoard(const LinearSystem& system, const std::string& heading = "");
// The intercept, the way to a second point, and the line.
void GraphLine(const LinearSystem& system, int line);
// Both lines on a clean plane, and their point marked.
void ShowCrossing(const LinearSystem& system, const std::string& heading = "");
// The point tried in both equations, in a white box below the plane that is there for this page.
void CheckSolution(const LinearSystem& system);

}  // namespace course::systems::board
