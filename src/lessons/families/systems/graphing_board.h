// The screen on which a system is solved by graphing: a plane at the right edge, texts on its left,
// and below them the table that keeps both equations in sight.
#pragma once

#include <string>

#include "lessons/families/systems/linear_system.h"
#include "lessons/families/systems/system_table.h"
#include "platform/geometry.h"

namespace course::systems::board {

constexpr double kTextRow = 4.4;    // first row under the banner
constexpr double kNarrow = 22;      // columns on the left of the plane
constexpr double kBelowRow = 14.6;  // first row below the plane
constexpr double kTableRow = 17.8;

// --- The plane
// -------------------------------------------------------------------------------------
void ShowEmptyPlane();
void Plot(int x, int y, platform::Colour colour);
// Line 1 or 2 in its colour, with its label.
void DrawLine(const LinearEquation& equation, int line, const std::string& label);
// The way from the y axis to a second point of the line, and both points.
void PlotTwoPoints(const LinearEquation& equation, int line);
// Both lines on a clean plane, with their equations in the form y = mx + b.
void ShowBothLines(const LinearSystem& system);
// The point and the ways from it to the axes.
void MarkCrossing(int x, int y);

// --- The texts
// ------------------------------------------------------------------------------------- Clears the
// rows from the banner to the table.
void ClearTexts();
// Narrow text on the left of the plane, at the cursor.
void Write(const std::string& text);
// A white box from a row on that ends above the table, empty.
void ShowWiper(double row);
// An equation in the wiper box, its sign of equality in one common column.
void WriteAligned(double row, const std::string& equation);
// "2(1) - 3(-2) = 2 + 6 = 8".
std::string Substituted(const LinearEquation& equation, int x, int y);

// --- The table
// -------------------------------------------------------------------------------------
void ShowTable(const LinearSystem& system);
// What was found when line 1 or 2 was solved for y.
void FillTable(const LinearSystem& system, int line);

}  // namespace course::systems::board
