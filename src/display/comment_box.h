// Comment boxes 1 to 5: small panels anywhere on the lesson screen, with a smaller print.
//
// A box is placed and sized in cells of the lesson screen, and printed on in its own smaller cells,
// row 1, column 1 being its first.  Prepare it, print, then show it.  Texts have a transparent
// background; what was printed before stays until the next prepare.  A box outside 1 to 5 stops the
// program.
#pragma once

#include <string>

#include "display/text_panel.h"

namespace course {

// A plain box for drawing: its cells are those of the lesson screen.  col 0 or less centres it.  An
// empty font is "MS Sans Serif".
void picCommentBoxPrepare1(int box, double row, double col, double wd, double ht,
                           platform::Colour backColor, platform::Colour foreColor,
                           const std::string& font, bool bold, bool italic, double size);
// A box for the print font, 9 to 20 points; any other size stops the program.  Padding in pixels,
// on all sides.
void picCommentBoxPrepare2(int box, double row, double col, double wd, double ht,
                           platform::Colour backColor, platform::Colour foreColor, int size,
                           int padding);
void picCommentBoxShow(int box);
void picCommentBoxHide(int box);
// Font size, cell sizes, exponent size and padding (the margins) of a box.
const TextPanel::Layout& gCommentBoxPrintInfo(int box);

void picCommentBoxLocate(int box, double row, double col);
void picCommentBoxSetColor(int box, platform::Colour colour);
void picCommentBoxisPrint(int box, const std::string& s);
void picCommentBoxisPrint(int box);  // the next row
void picCommentBoxisPrints(int box, const std::string& s);
// Without a size the box's own exponent size.
void picCommentBoxisPrintExponent1(int box, const std::string& s, int size = 0,
                                   double rowShift = 0);
void picCommentBoxisPrintExponentExpression(int box, const std::string& s, int size = 0,
                                            double rowShift = 0);

// The wrap family, as on the lesson screen; the right column is the last whole one inside the
// padding.
void picCommentBoxWordWrap(int box, const std::string& s);
void picCommentBoxWordWraps(int box, const std::string& s);
void picCommentBoxWordWrapIndent(int box, const std::string& s, double indentCol);
void picCommentBoxWordWrapIndents(int box, const std::string& s, double indentCol);
void picCommentBoxWordWrapNarrow(int box, const std::string& s, double wid);
void picCommentBoxWordWrapNarrows(int box, const std::string& s, double wid);
void picCommentBoxWordWrapIndentNarrow(int box, const std::string& s, double indentCol, double wid);
void picCommentBoxWordWrapIndentNarrows(int box, const std::string& s, double indentCol,
                                        double wid);
// Wraps, then takes away the box's blank space to the right of and below all its text.
void picCommentBoxWordWrap0(int box, const std::string& s);

// One shadowed line, see PrintNiceHeading, in a box of its size and hPad, vPad pixels on each side.
// col -1 centres the box.
void picCommentBoxWithNiceHeadingPrepare(int box, const std::string& text, double row, double col,
                                         const std::string& font, bool bold, bool italic,
                                         double size, platform::Colour foreColor,
                                         platform::Colour shadowColor, int shadowThickness,
                                         int hPad, int vPad, platform::Colour backColor);
void picCommentBoxWithNiceHeadingShow(int box);
void picCommentBoxWithNiceHeadingHide(int box);

}  // namespace course
