// Boxes over the lesson screen, one look each:
//
//   PaperBox    light paper, black print: remarks, and what is wrong, in red
//   RuleBox     the same under a heading: the rule of a lesson
//   CommentBox  the same for a paragraph, as high as it needs
//   WhiteBox    a white box for working beside the text, wiped when it is full
//   Note        a yellow label that points at something
//   CellTable   a table of print cells
//
// Without a row a box stands under all that stands on the page, and the next Say goes on below it.
// Comment boxes and notes are taken in their order from 1 to 5; their numbers are returned.  A box
// that leaves the screen, or a sixth one, is an author's error and stops the program.
#pragma once

#include <string>
#include <vector>

namespace course {
struct PrintCellTable;
}

namespace course::page {

inline constexpr double kUnder = 0;    // a row: under what stands there
inline constexpr double kCentred = 0;  // a column

struct BoxPlace {
  double row = kUnder;
  double col = kCentred;
  double width = 36;  // columns of the lesson screen
};

// Lines as wide as they are; colour codes and exponents as in paragraphs.
int PaperBox(const std::vector<std::string>& lines, double row = kUnder);
int RuleBox(const std::string& heading, const std::vector<std::string>& lines,
            const BoxPlace& place = {});
int CommentBox(const std::string& paragraph, const BoxPlace& place = {});
// Its upper left corner at the cell.  Chr(13) breaks the line.
int Note(double row, double col, const std::string& text);
void CellTable(const PrintCellTable& table, double row = kUnder);

// --- The white box
// -----------------------------------------------------------------------------------

struct WhiteBoxPlace {
  double row = kUnder;
  double rows = 0;  // its height; 0 reaches down to the bottom of the screen
  double width = 38;
};
// Shows it, empty.  Half a row lies between two paragraphs.
void WhiteBox(const WhiteBoxPlace& place = {});
void SayInBox(const std::string& paragraph);
// Wipes the box, and says the first paragraph anew; "" says nothing yet.
void SayInBoxAnew(const std::string& paragraph);

// --- What stands there
// -------------------------------------------------------------------------------

// The row half a row below all texts, boxes, notes and figures, in halves.  Marks that were drawn
// (lines, arrows) are not known.
double RowBelow();
// The next Say or Show goes on there.
void GoBelow();
// Takes away the texts and marks from a row on, and all boxes, notes and figures that begin there
// or lower.  The cursor goes to the row.
void ClearBelow(double row);

}  // namespace course::page
