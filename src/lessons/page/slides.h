// A part of the lesson screen slides, so that the eye follows a term to its new place.
#pragma once

namespace course::page {

// Cells of the lesson screen, as for Locate.
struct Cells {
  double row;
  double col;
  double width;
  double height = 1;
};
// The whole width of so many rows.
inline Cells WholeRows(double row, double height) {
  return {row, 1, 40, height};
}

enum class Leaving { Nothing, Copy };  // what stays in the old place
enum class Pace { Usual, Brisk };

// By so many rows or columns, fractions of one too.  Returns when the movement has ended.  A slide
// that leaves the screen is an author's error and stops the program.
void SlideUp(const Cells& cells, double rows, Leaving leaving = Leaving::Nothing,
             Pace pace = Pace::Usual);
void SlideDown(const Cells& cells, double rows, Leaving leaving = Leaving::Nothing,
               Pace pace = Pace::Usual);
void SlideLeft(const Cells& cells, double columns, Leaving leaving = Leaving::Nothing,
               Pace pace = Pace::Usual);
void SlideRight(const Cells& cells, double columns, Leaving leaving = Leaving::Nothing,
                Pace pace = Pace::Usual);

}  // namespace course::page
