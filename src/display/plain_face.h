// Texts in a proportional face: what of the course's own characters such a face can show.
#pragma once

#include <string>

#include "platform/surface.h"

namespace course {

// A double quote for "~", a plain blank for the hard one, and the face's own letter for a
// multiplication sign or dot, a division sign, a raised minus, plus or minus, a degree ...  The
// signs that PrintPlain draws stay; any other of the course's own characters stops the program.
std::string InPlainFace(std::string text);
// The same for a label, which knows no symbol face: signs by their Unicode letters.
std::string PlainUtf8(const std::string& text);

// One line at (x, y) in the surface's font and colour.  Exponents stand between "^", smaller, and a
// point as high as a multiplication sign.  Signs that the face lacks come from the symbol face.
void PrintPlain(platform::Surface& surface, const std::string& text, double x, double y);
// Units of the surface that the line takes.
double PlainWidth(platform::Surface& surface, const std::string& text);

}  // namespace course
