// How far the student has come: the marks beside the lessons and the units of the menu, drawn from
// session.gProgressCodes.
#pragma once

#include "platform/surface.h"

namespace course {

// Rows of the two columns on the menu.
inline constexpr int kLessonMarkRows = 8;
inline constexpr int kUnitMarkRows = 12;

// Draws the marks of the unit's lessons and of all units on two columns in which a row is 1 high
// and the column 1 wide.  A code other than "", "W", "T" and "C" stops the program; "T" is no
// unit's code.
void DrawProgressMarks(int unit, platform::Surface& lessons, platform::Surface& units);

// The same on the menu, for the unit selected there; without a selection nothing is drawn.
void DrawProgressMarks();

// Shows or hides what belongs to the marks on the menu: all are hidden while no records are kept or
// the student does not want them.  The units' own column is never shown.
void ShowProgressControls();

}  // namespace course
