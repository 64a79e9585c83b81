// The wiper box: a panel of its own colour over the lesson screen, for explanations that are wiped
// away together.  Its rows count from 1, and its width leaves a margin cell on either side.
//
// The box shows up empty: wbPrepare places it, wbShow clears and shows it, then it is printed on
// (wbLocate, wbisPrint, wbWordWrap) and wiped (wbWipeAndErase in display/animation.h).  The lowest
// row loses up to 8 pixels of its letters: print on rows 1 to ht - 1, or half a row lower.
#pragma once

#include "platform/geometry.h"

namespace course {

// Across the middle of the panel, from a row of the lesson screen on; wd columns of text, ht rows.
// ht 0 reaches down to row 25.  Clears the box and puts its cursor at (1, 1).
void wbPrepare(double row, double wd, double ht, platform::Colour backColor,
               platform::Colour foreColor);
// The box's left edge stands at column col of the lesson screen.
void wbPrepareAtColumn(double row, double col, double wd, double ht, platform::Colour backColor,
                       platform::Colour foreColor);
void wbShow();  // empty, with the cursor at (1, 1)
void wbHide();
void wbSetColor(platform::Colour colour);
// For the next clearing, and behind the texts that follow.
void wbSetBackColor(platform::Colour colour);

}  // namespace course
