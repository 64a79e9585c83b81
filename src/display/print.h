// The line printer: puts a string at the cursor and breaks it only where the right margin forces
// it.
//
// isPrint knows no codes but Chr(13), which breaks the line.  A routine whose name ends in "s"
// leaves the cursor behind the text; the same name without it starts a new line.
#pragma once

#include <string>

#include "platform/geometry.h"

namespace course {

class TextPanel;

void isPrint(const std::string& s);
void isPrint();  // the next row
void isPrints(const std::string& s);
void isPrintLines(double rows);  // so many rows down, at the left margin; nothing is printed
void isPrintLines();
void isColorPrint(const std::string& s, platform::Colour colour);
void isColorPrints(const std::string& s, platform::Colour colour);

void wbisPrint(const std::string& s);
void wbisPrint();
void wbisPrints(const std::string& s);
void wbisPrintLines(double rows);
void wbisPrintLines();

// The engine behind them, for any panel: rightColumn is the last one that a text may fill.
void PrintOn(TextPanel& panel, const std::string& s, double rightColumn);
void NewLineOn(TextPanel& panel);
// The last column that a text may fill: of the screen, of the wiper box, or inside the padding of a
// comment box.  An answer box clips its text and has none.
double RightColumnOf(const TextPanel& panel);

}  // namespace course
