// The print cell table of the lessons on systems: a row for each of the two equations, which stay
// on the screen while we work with them.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course::systems {

// The colour of line 1 or 2, wherever it is drawn or written on white.
platform::Colour ColourOfLine(int line);

struct SystemColumn {
  std::string caption;
  double width;  // hundredths of the table's width
};

class SystemTable {
 public:
  // At most 4 columns, 85 hundredths wide together.
  explicit SystemTable(std::vector<SystemColumn> columns);

  // The empty table from a row of the lesson's grid on: 5.2 rows high.
  void Show(double row) const;
  // Prints into the cell of line 1 or 2 and of a column, from 1, in the line's colour.
  void Fill(int line, int column, const std::string& text) const;

 private:
  std::vector<SystemColumn> columns_;
};

}  // namespace course::systems
