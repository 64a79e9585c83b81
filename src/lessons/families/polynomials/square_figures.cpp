#include "lessons/families/polynomials/square_figures.h"

#include <algorithm>

#include "display/drawing.h"
#include "display/grid.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"

namespace course::polynomials {
namespace {

using namespace page;

constexpr platform::Colour kFirstSquare = platform::Rgb(0, 110, 180);
constexpr platform::Colour kStrip = platform::Rgb(0, 130, 80);
constexpr platform::Colour kLastSquare = platform::Rgb(160, 80, 150);

// A square is as many rows high as it is columns wide times this.
constexpr double kRowsPerColumn = static_cast<double>(gCellWidth) / gCellHeight;

void DrawPart(double row, double col, double width, double height, platform::Colour colour) {
  const double rows = height * kRowsPerColumn;
  isDrawBoxFilled(row, col, row + rows - 1, col + width - 1, colour);
  isDrawBox(row, col, row + rows - 1, col + width - 1, platform::colour::White, 2);
}

constexpr double kLabelRows = 1.3;  // of the name of a side, above it
// What is cleared or slides begins so much lower, and further right, than a mark on the same cell.
constexpr double kLower = 0.2;
constexpr double kRight = 0.1;

// In the middle of an area of so many rows and columns; exponents take half a cell.
void PrintInside(double row, double col, double rows, double cols, const std::string& text) {
  const double marks = text.find('^') == std::string::npos ? 0 : 2.5;
  ShowAt(row + (rows - 1) / 2, text, col + (cols - (static_cast<double>(text.size()) - marks)) / 2);
}

// The same without a ground of its own, on a coloured part.
void PrintArea(double row, double col, double rows, double cols, const std::string& text) {
  constexpr double kSize = 20;  // points
  const double marks = text.find('^') == std::string::npos ? 0 : 2.5;
  const double width = static_cast<double>(text.size()) - marks;
  PrintNiceHeading(0, text, row + (rows - 1) / 2, col + (cols - width) / 2, "Courier New", true,
                   false, kSize, platform::colour::White, platform::colour::White, 0);
}

// --- The square of a sum -------------------------------------------------------------------------

constexpr double kLong = 6.25;  // columns of the parts of the side, 4 and 2 rows
constexpr double kShort = 3.125;
constexpr double kLongRows = 4;
constexpr double kShortRows = 2;

// --- The square without its corner: columns ------------------------------------------------------

constexpr double kSide = 7.5;
constexpr double kCorner = 3;
constexpr double kRest = kSide - kCorner;
constexpr double kSideRows = kSide * kRowsPerColumn;
constexpr double kCornerRows = kCorner * kRowsPerColumn;
constexpr double kRestRows = kRest * kRowsPerColumn;
constexpr double kBeside = 0.3;  // of the name of a side, right of it

}  // namespace

SquareOfSum::SquareOfSum(double row, double col, const std::string& a, const std::string& b)
    : row_(row),
      col_(col),
      left_(static_cast<double>(std::max(a.size(), b.size())) + 0.5),
      added_(b) {
  DrawPart(row, col, kLong, kLong, kFirstSquare);
  PrintInside(row - kLabelRows, col, 1, kLong, a);
  PrintInside(row, col - left_, kLongRows, left_, a);
}

void SquareOfSum::Grow() const {
  SlideStripsIn();
  DrawPart(row_, col_, kLong, kLong, kFirstSquare);  // its edges in full
  DrawPart(row_, col_ + kLong, kShort, kLong, kStrip);
  DrawPart(row_ + kLongRows, col_, kLong, kShort, kStrip);
  DrawPart(row_ + kLongRows, col_ + kLong, kShort, kShort, kLastSquare);
  PrintInside(row_ - kLabelRows, col_ + kLong, 1, kShort, added_);
  PrintInside(row_ + kLongRows, col_ - left_, kShortRows, left_, added_);
}

void SquareOfSum::SlideStripsIn() const {
  constexpr double kAway = 1;  // rows or columns
  constexpr double kEdge = 0.3;
  DrawPart(row_, col_ + kLong + kAway, kShort, kLong, kStrip);
  SlideLeft({row_ - kLower, col_ + kLong + kAway - kRight, kShort + kEdge, kLongRows + kEdge},
            kAway);
  DrawPart(row_ + kLongRows + kAway, col_, kLong, kShort, kStrip);
  SlideUp({row_ + kLongRows + kAway - kLower, col_ - kRight, kLong + kEdge, kShortRows + kEdge},
          kAway);
}

void SquareOfSum::PrintSquares(const std::string& first, const std::string& last) const {
  PrintArea(row_, col_, kLongRows, kLong, first);
  PrintArea(row_ + kLongRows, col_ + kLong, kShortRows, kShort, last);
}

void SquareOfSum::PrintStrips(const std::string& area) const {
  PrintArea(row_, col_ + kLong, kLongRows, kShort, area);
  PrintArea(row_ + kLongRows, col_, kShortRows, kLong, area);
}

SquareWithoutCorner::SquareWithoutCorner(double row, double col) : row_(row), col_(col) {
  DrawPart(row, col, kSide, kSide, kFirstSquare);
  DrawPart(row + kRestRows, col + kRest, kCorner, kCorner, kLastSquare);
  PrintInside(row - kLabelRows, col, 1, kSide, "5");
  PrintInside(row + kSideRows, col + kRest, 1, kCorner, "2");
}

void SquareWithoutCorner::TakeCornerAway() const {
  ClearCells(row_ + kRestRows + 0.1 - kLower, col_ + kRest + 0.1 - kRight, kCorner, kCornerRows);
}

void SquareWithoutCorner::CutInTwo() const {
  DrawPart(row_, col_, kSide, kRest, kFirstSquare);
  DrawPart(row_ + kRestRows, col_, kRest, kCorner, kStrip);
  PrintInside(row_, col_ + kSide + kBeside, kRestRows, 1, "3");
  PrintInside(row_ + kSideRows, col_, 1, kRest, "3");
}

void SquareWithoutCorner::MoveBeside() const {
  ClearCells(row_ + kRestRows - kLower, col_ - 0.1 - kRight, kSide + 0.3, kCornerRows + 1.3);
  ClearCells(row_, col_ + kSide + kBeside, 1, kRestRows);
  DrawPart(row_ + kCornerRows, col_ + kSide, kCorner, kRest, kStrip);
  SlideUp({row_ + kCornerRows - kLower, col_ + kSide - kRight, kCorner + 0.3, kRestRows + 0.2},
          kCornerRows);
  DrawPart(row_, col_, kSide, kRest, kFirstSquare);  // their edges in full
  DrawPart(row_, col_ + kSide, kCorner, kRest, kStrip);
  PrintInside(row_ - kLabelRows, col_ + kSide, 1, kCorner, "2");
  PrintInside(row_, col_ + kSide + kCorner + kBeside, kRestRows, 1, "3");
  GoBelow();
}

SquareToComplete::SquareToComplete(double row, double col, const std::string& width,
                                   const std::string& area)
    : row_(row), col_(col) {
  DrawPart(row, col, kLong, kLong, kFirstSquare);
  DrawPart(row, col + kLong, 2 * kShort, kLong, kStrip);
  PrintInside(row - kLabelRows, col, 1, kLong, "x");
  PrintInside(row - kLabelRows, col + kLong, 1, 2 * kShort, width);
  PrintInside(row, col - 1.5, kLongRows, 1.5, "x");
  PrintArea(row, col, kLongRows, kLong, "x^2^");
  PrintArea(row, col + kLong, kLongRows, 2 * kShort, area);
  GoBelow();
}

void SquareToComplete::CutStrip(const std::string& half, const std::string& area) const {
  const double middle = col_ + kLong + kShort;
  ClearCells(row_ - kLabelRows, col_ + kLong, 2 * kShort, 1);
  ClearCells(row_ - kLower, middle - kRight, kShort + 0.3, kLongRows + 0.3);
  DrawPart(row_, col_ + kLong, kShort, kLong, kStrip);
  DrawPart(row_ + kLongRows + 1, col_, kLong, kShort, kStrip);
  SlideUp({row_ + kLongRows + 1 - kLower, col_ - kRight, kLong + 0.3, kShortRows + 0.3}, 1);
  DrawPart(row_, col_, kLong, kLong, kFirstSquare);  // its edges in full
  DrawPart(row_ + kLongRows, col_, kLong, kShort, kStrip);
  PrintArea(row_, col_, kLongRows, kLong, "x^2^");
  PrintArea(row_, col_ + kLong, kLongRows, kShort, area);
  PrintArea(row_ + kLongRows, col_, kShortRows, kLong, area);
  PrintInside(row_ - kLabelRows, col_ + kLong, 1, kShort, half);
  PrintInside(row_ + kLongRows, col_ - 1.5, kShortRows, 1.5, half);
  GoBelow();
}

void SquareToComplete::FillCorner(const std::string& area) const {
  DrawPart(row_ + kLongRows, col_ + kLong, kShort, kShort, kLastSquare);
  PrintArea(row_ + kLongRows, col_ + kLong, kShortRows, kShort, area);
}

}  // namespace course::polynomials
