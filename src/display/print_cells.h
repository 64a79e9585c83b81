// The print cell table: a panel with labelled boxes over the lesson screen, into which quantities
// are printed as they are worked out.
//
// Its units are hundredths of the panel's width and height.  A prepare hides the panel and all its
// cells and labels and lays out its own; picPrintCellBoxMove of display/animation.h slides it.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course {

// A table of a lesson's own, for picPrintCellBoxPrepare3.  Places are in hundredths.
struct PrintCellTable {
  struct Cell {
    double left, top, width, height;
  };
  struct Label {
    double left, top, width, height;
    std::string caption;  // Chr(13) breaks the line
    double fontSize = 10;
    platform::Colour colour = platform::colour::Black;
    bool centred = false;  // the text stands in the middle of the width
  };
  int widthPixels = 608;
  int heightPixels = 200;
  std::vector<Cell> cells;    // at most 12, numbered from 1
  std::vector<Label> labels;  // at most 6
  // Texts printed on the panel itself.
  struct Mark {
    double x, y;
    std::string text;
    double fontSize = 14;
  };
  std::vector<Mark> marks;
};

// The mixture table: cells 1 to 9, row by row, under "Percent of acid", "Quantity", "Amount of
// acid".
void picPrintCellBoxPrepare1(double row);
// The distance table: cells 1 to 6 under Rate x Time = Distance.
void picPrintCellBoxPrepare2(double row);
void picPrintCellBoxPrepare3(double row, const PrintCellTable& table);
void picPrintCellBoxShow();
void picPrintCellBoxHide();

// Prints a short text in the middle of cell 1 to 12, over what stands there; exponents stand
// between "^".  Another cell stops the program.  Size in points.
void picPrintCellPrint(int cell, const std::string& s, platform::Colour colour, double fontSize);
void picPrintCellCls(int cell);

}  // namespace course
