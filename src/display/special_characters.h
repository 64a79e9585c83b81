// The course's own characters: drawn into a cell with lines, letters, a Symbol glyph or a small
// picture.
#pragma once

#include <array>
#include <string>

#include "display/text_panel.h"

namespace course {

// Whether a panel draws the code, 0 to 255, by itself.
bool IsDrawnCharacter(int code);

// Draws the character with its cell's top left at pixel (x, y), in the surface's ForeColor.  The
// Symbol glyphs 136, 218 and 249 restore the panel's font afterwards, and with it its text colour.
void DrawSpecialCharacter(TextPanel& panel, int code, int x, int y);

// Copies a character of the sprite sheet: surfaceKind 1 lesson window, 2 wiper box, 3 answer box.
// A code outside 127 to 255 or another kind stops the program.
void DrawSprite(platform::Surface& target, int code, int x, int y, int surfaceKind);

// Fills gTutorCharTable with the 29 codes of the first character table, at start.  No routine reads
// it: the drawn codes are 39 by now.
void FillTutorCharTable();
extern std::string gTutorCharTable;

}  // namespace course
