// Word wrap: lays a paragraph out between the cursor and a right column.
//
// A paragraph may hold colour codes (\b blue, \c cyan, \g green, \k black, \m magenta, \r red, \w
// white, \y yellow, \z back to the current colour), Chr(13) for a line break, exponents between
// "^", subscripts between "`", "~" for a double quote, and macros such as \ST\.  At most 20
// coloured segments.
#pragma once

#include <string>

namespace course {

class TextPanel;

void WordWrap(const std::string& s);   // ends with a new line
void WordWraps(const std::string& s);  // the cursor stays behind the text
// Lines after the first start at indentCol; the first one starts at the cursor.
void WordWrapIndent(const std::string& s, double indentCol);
void WordWrapNarrow(const std::string& s, double wid);
void WordWrapIndentNarrow(const std::string& s, double indentCol, double wid);
void WordWrap38(const std::string& s);  // the usual width of explanations
// Rows that s would take; nothing is drawn, unless the background is not erased, and the cursor
// stays.
double WordWrapRows(const std::string& s);
double WordWrap38Rows(const std::string& s);

// The wiper box has its own, older layout, see wiper_wrap.cpp.
void wbWordWrap(const std::string& s);
void wbWordWraps(const std::string& s);
void wbWordWrapIndent(const std::string& s, double indentCol);
void wbWordWrapNarrow(const std::string& s, double wid);

// The engine behind them, for any panel whose right column is wid: colours, line breaks, exponents,
// and the indent in force.
void WrapOn(TextPanel& panel, const std::string& s, int wid, int lineGap = 0);

// Where to break s when it is printed from column col with last column wid, and the text that
// follows in the next colour starts with the given look-ahead: -1 everything fits, -3 all but a
// trailing blank fits, -2 nothing fits, otherwise the number of characters of s before the blank at
// which to break.
int WordWrapFindBreak(int col, int wid, const std::string& s, const std::string& lookahead);

// The wrap in a proportional face, for the authors' documentation lesson.  Pixels; an empty face is
// "Times New Roman".
void NonTutorWordWrapSetup(const std::string& fontName, bool bold, double size, int leftX,
                           int rightX, int extraGap);
void NonTutorWordWrap(const std::string& s);
void NonTutorWordWraps(const std::string& s);

// State shared by all wraps; a new screen resets it.
struct WrapState {
  int gIndentOn = 0;
  float gIndentCol = 1;
  int gNarrowOn = 0;
  float gNarrowCol = 40;
};
extern WrapState wrapState;

}  // namespace course
