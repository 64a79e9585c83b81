// Text inside the answer boxes.  A box, 1 to 5, has a cursor of its own and no margins; row 1 is
// the first.
#pragma once

#include <string>

namespace course {

// Pixels from the top (plus the layout's text offset) and from the left.
void picAnswerLocatePixels(int box, double dy, double x);
void picAnswerLocate(int box, double row, double col);
void picAnswerUpdateCursorCell(int box);
// The text offset of the layout, in pixels; set by the answer layout.
extern double gAnswerBaseY;

// "TNR", in any case, is "Times New Roman".
void picAnswerSetFont(int box, const std::string& name, bool bold, double size);
void picAnswerRestoreFont(int box);

void picAnswerisPrint(int box, const std::string& s);
void picAnswerisPrints(int box, const std::string& s);
// Knows only "^"; the cursor stays behind the text.  Without a size exponents are 14 points where
// the print is 20, and as much smaller as it is.
void picAnswerPrintExponentExpression(int box, const std::string& s, int size = 0);

// The parts may hold radicals, as for picAnswerPrintRadicalText.
void picAnswerPrintFraction(int box, const std::string& num, const std::string& den,
                            int minWidth = 0, double barShift = 0, double tighten = 0);
// "a/b", cut at the first "/"; an empty side ends the program.
void picAnswerPrintFractionText(int box, const std::string& text, int minWidth = 0,
                                double barShift = 0, double tighten = 0);
// A whole number, a fraction, or a mixed number with gap columns before its fraction.
void picAnswerPrintFractionValue(int box, int num, int den, double gap = 0, int minWidth = 0);
void picAnswerPrintRadicalText(int box, const std::string& s, double widen = 0);
// A bar of the given thickness in pixels, from column col1 to col2, both included.
void picAnswerDrawBar(int box, double row, double col1, double col2, int thickness);

}  // namespace course
