// A line of mathematics written as a student would type it, "x = (-3 + v17)/4" or "5/12 + 7/18",
// printed as a book shows it: every n/d becomes a built-up fraction, every radical sign (v here)
// gets its bar.
//
// A part of a fraction is what stands without a blank beside the "/" (letters, digits, radicals,
// points, exponents, colour codes), or what stands in parentheses there, which are then not
// printed.  A radical reaches over the digits or the one letter behind its sign, or over what
// stands in parentheses there, which are not printed either; radicands may also stand between
// backquotes, as for isPrintRadicalText.  The transcript holds each fraction as it is typed here.
#pragma once

#include <string>
#include <vector>

namespace course {

// The line is the fractions' middle row, and the cursor stays behind the text.  At most one screen
// line long; nothing is cleared above and below.
void isPrintStackedText(const std::string& s);
// In an answer box 1 to 5, at its cursor.
void picAnswerPrintStackedText(int box, const std::string& s);

// The line cut at its fractions.  A plain piece has no denominator.
struct StackedPiece {
  std::string text;  // plain text, or the numerator
  std::string den;
  std::string typed;  // of a fraction: as it stands in the line, without colour codes
};
std::vector<StackedPiece> CutAtFractions(const std::string& s);
// Every radical sign with what it reaches over becomes a radicand between backquotes.
std::string RadicalsMarked(const std::string& s);
// Columns that the line takes when it is printed.
int StackedTextWidth(const std::string& s);

}  // namespace course
