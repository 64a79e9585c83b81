// Animation: a rectangle of the screen slides a pixel at a time, and boxes slide over it.
//
// rp, cp: the rectangle's upper left cell; wd, ht: columns and rows; dr: 1 up, 2 down, 3 left, 4
// right; ds: distance in rows (dr 1, 2) or columns (3, 4); sp: speed, larger is slower, 50 is
// usual; er: 1 erases behind the rectangle.  er 0 leaves the original of a vertical move and erases
// behind a horizontal one; er -1 leaves the original of a horizontal move and makes a vertical one
// do nothing.  Any other dr or er does nothing.
//
// Every routine returns when the movement has ended.  Meanwhile events are served, the pointer is
// an hourglass, gInAnimation is 1 and the choice of speed is disabled.  What was moved stays in the
// transcript where it was printed.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course {

// Whole numbers only: a fraction in rp, cp, wd, ht or ds ends the program.
void Anim(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er);
void Anim2(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er);
// Two rectangles by turns; dr1 and dr2 equal or opposite.  The second moves dsMult pixels, a whole
// number, for each of the first.
void Anim3(double rp1, double cp1, double wd1, double ht1, int dr1, double rp2, double cp2,
           double wd2, double ht2, int dr2, double ds, double sp, int er, double dsMult = 1);
// surface 1 lesson panel, 2 wiper box, 3 comment box index, 4 gallery image index (all values in
// pixels). A comment box is counted in cells of the lesson panel, whatever the size of its print.
void AnimGenlCase(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er,
                  platform::Colour backColor, int surface, int index);
// moves such as "U02R05D02": a letter of UDLR, in any case, and two digits each; pause in seconds
// behind each of them.  Anything else ends the program before the first move.
void MultiAnim(double rp, double cp, double wd, double ht, const std::string& moves, double sp,
               int er, double pause);
// Moves a whole row up or down ("U", "D", in any case); the second behind a visible line.
void WipeAndErase(const std::string& direction, double rp, double ds, double sp, int er = 1);
void WipeAndEraseLine(const std::string& direction, double rp, double ds, double sp);
// A black bar wipes the wiper box clean.
void wbWipeAndErase(double sp = 50);
// Slides a box by rows and columns, negative ones up and to the left; first "H" or "V", in any
// case, names the first of two moves.
void picCommentBoxMove(int index, double rows, double cols, const std::string& first, double speed);
void picPrintCellBoxMove(double rows, double cols, const std::string& first, double speed);

// Pauses so many seconds, at least 0.002, while events are served; handlers see gInDelay 1.
void Delay(double seconds);
// Whether the student can choose another speed.
void DisableAnimSpeed();
void EnableAnimSpeed();

}  // namespace course
