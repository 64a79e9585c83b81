// Terms as shapes: x^2^ is a square, x a strip one high and as long as the square's side, 1 a
// little square.  Only equal shapes can be counted together.
#pragma once

namespace course::polynomials {

inline constexpr double kTileSide = 5;  // columns; the length of a strip

// A square of a little over three rows, a strip and a unit of one row; the cell is the upper left
// one.
void DrawSquareTile(double row, double col);
void DrawStripTile(double row, double col);
void DrawUnitTile(double row, double col);

}  // namespace course::polynomials
