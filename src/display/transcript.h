// What stands on a panel, as text: the fragments that were printed since the last clear.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course {

// Rows and columns are the panel's cells.
struct Fragment {
  double row = 0;  // of the line that the text stands on
  double col = 0;
  platform::Colour colour = 0;
  int level = 0;  // 1 raised, -1 lowered, 0 on the line
  std::string text;
  double width = 0;    // columns: one a letter in the print font, another face has its own widths
  double rise = 0;     // rows that it reaches above its row
  double height = 1;   // rows, from there down
  bool whole = false;  // a built-up fraction or radical: the text as it is typed, never cut

  double Advance() const { return width / static_cast<double>(text.size()); }
  double Right() const { return col + width; }
  double Top() const { return row - rise; }
  double Bottom() const { return row - rise + height; }
  // One letter a cell, which a later letter may replace.
  bool InCells() const { return !whole && width == static_cast<double>(text.size()); }
  bool operator==(const Fragment&) const = default;
};

struct TextLine {
  double row = 0;
  std::string text;
  std::vector<platform::Colour> colours;  // of all but blanks, each once
};

// The fragments as lines of text from top to bottom, empty ones left out, in single bytes:
// exponents as "^2^", subscripts between code 250.  A later text stands in place of an earlier one
// in its cells.  A fraction behind a digit or letter keeps a blank off it: "1 3/4".
std::vector<TextLine> TextLinesOf(const std::vector<Fragment>& fragments);
// Their texts alone.
std::vector<std::string> LinesOf(const std::vector<Fragment>& fragments);

}  // namespace course
