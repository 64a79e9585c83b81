// Where the ink of a printed text lies on its panel.
#pragma once

#include <vector>

#include "display/text_panel.h"

namespace lesson_check {

// Pixels of the panel's surface; right and bottom lie outside.
struct InkBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

// Whether more than a brush of ink lies in both.
bool Overlap(const InkBox& a, const InkBox& b);

// A character, the place of its cell, and its ink as far as its kind tells: small characters hang
// above or below the line, others keep to the height of capitals.
struct Glyph {
  char character = ' ';
  bool blank = false;
  int level = 0;
  double row = 0;
  double col = 0;
  InkBox ink;
};

// The characters of a fragment, from left to right.
std::vector<Glyph> GlyphsOf(const course::TextPanel& panel, const course::Fragment& fragment);

// What stands on the panel: without blanks, and without what later blanks or the same text in
// another colour have replaced.  Overprinted glyphs are both there.
std::vector<Glyph> StandingGlyphs(const course::TextPanel& panel);

}  // namespace lesson_check
