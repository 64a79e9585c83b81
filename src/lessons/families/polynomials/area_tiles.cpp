#include "lessons/families/polynomials/area_tiles.h"

#include "display/drawing.h"
#include "display/grid.h"

namespace course::polynomials {
namespace {

constexpr double kTileSideRows = kTileSide * gCellWidth / gCellHeight;
constexpr double kUnitColumns = static_cast<double>(gCellHeight) / gCellWidth;

void DrawTile(double row, double col, double rows, double columns, platform::Colour colour) {
  isDrawBoxFilled(row, col, row + rows - 1, col + columns - 1, colour);
  isDrawBox(row, col, row + rows - 1, col + columns - 1, platform::colour::White, 2);
}

}  // namespace

void DrawSquareTile(double row, double col) {
  DrawTile(row, col, kTileSideRows, kTileSide, platform::Rgb(0, 130, 200));
}

void DrawStripTile(double row, double col) {
  DrawTile(row, col, 1, kTileSide, platform::Rgb(0, 150, 90));
}

void DrawUnitTile(double row, double col) {
  DrawTile(row, col, 1, kUnitColumns, platform::Rgb(170, 90, 160));
}

}  // namespace course::polynomials
