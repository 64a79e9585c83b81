// Exponents and subscripts: small characters, raised or lowered, each in a cell of its own.
#pragma once

#include <string>
#include <vector>

namespace course {

class TextPanel;

// Prints s as an exponent at the cursor; size 10 to 15, any other stops the program.  The cursor
// ends behind it on the base row.  rowShift moves it by so many rows.
void isPrintExponent1(const std::string& s, int size, double rowShift = 0);
void isPrintSubscript1(const std::string& s, int size, double rowShift = 0);
// Text with exponents between "^" and subscripts between codes 250; the cursor stays behind the
// text.
void isPrintExponentExpression(const std::string& s, int size, double rowShift = 0);
void wbisPrintExponent1(const std::string& s, int size, double rowShift = 0);
void wbisPrintExponentExpression(const std::string& s, int size, double rowShift = 0);

// The engines behind them.
void PrintScriptOn(TextPanel& panel, const std::string& s, double size, double rowShift, int level);
void PrintExpressionOn(TextPanel& panel, const std::string& s, double size, double rowShift);
// The same; marks that do not pair stop the program.
void PrintMarkedOn(TextPanel& panel, const std::string& s, double size, double rowShift);

// Replaces the single exponent characters (143 to 157, 130, 179, 180, 220) by marked text, and
// joins neighbours into one exponent.
std::string ExponentCharsToCarets(const std::string& s);

// Marked text cut at its marks into at most 40 parts: level 1 raised, -1 lowered, 0 plain.  An
// empty last part is dropped.
struct ScriptPart {
  int level = 0;
  std::string text;
};
std::vector<ScriptPart> CutAtMarks(const std::string& s);
// An even count of each mark, and neither opens while the other is open.
bool MarksBalanced(const std::string& s);

// The text without "^" and code 250, which occupy no cell.
std::string StripExponentMarks(const std::string& s);
// Without "^" alone.
std::string StripCarets(const std::string& s);
// Every blank inside an exponent or subscript becomes "X", so that a search for the first blank
// finds the true end of a word.
std::string ProtectExponentSpaces(const std::string& s);

}  // namespace course
