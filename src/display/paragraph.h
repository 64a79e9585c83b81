// What all wraps share: macros, coloured segments and line breaks of a paragraph.  Each wrap adds
// only the way in which it lays the words of one stretch out.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course {

// Macros, "~", "`" and \NNN\ codes replaced.
std::string ExpandMacros(const std::string& s);

struct Segment {
  platform::Colour colour = 0;
  std::string text;
};

// Cuts a paragraph at its colour codes.  "\z" and a text without a code have the current colour.  A
// closing code at the very end opens no segment; an unknown letter, or a 21st segment, stops the
// program.
std::vector<Segment> CutAtColours(const std::string& s, platform::Colour current);

// The letters of the colour codes, in either case.
bool IsColourLetter(char letter);

// What a paragraph is printed on.
struct ParagraphTarget {
  platform::Colour current;  // the surface's text colour
  std::function<void(platform::Colour)> setColour;
  std::function<void()> newLine;
  // Lays out a stretch without line breaks; the look-ahead is the text that follows in other
  // colours.
  std::function<void(const std::string& stretch, const std::string& lookahead)> layOut;
};

// Prints the paragraph; without keepOnLine it ends with a new line.
void PrintParagraph(const ParagraphTarget& target, const std::string& s, bool keepOnLine);

// Without leading blanks; code 255 is none.
std::string LTrim(const std::string& s);

}  // namespace course
