// A page of a lesson, line by line: each routine puts its text where the page wants it.
#pragma once

#include <string>

namespace course::page {

// A paragraph from column 1 of the row on.
void WrapAt(double row, const std::string& text);
// A line of mathematics on one row, or with built-up fractions on three of which row is the middle
// one: x^2^ - 1, or what display/stacked_text.h takes.  The cursor stays behind it.
void PrintRow(double row, const std::string& text, double col = 3);
void PrintStackedRow(double row, const std::string& text, double col = 3);
// Empties wd columns of ht rows from the cell on, the rectangle that Anim would move.
void ClearCells(double row, double col, double wd, double ht);
void ClearRows(double row, double ht);

}  // namespace course::page
