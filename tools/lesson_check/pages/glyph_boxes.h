// Where the ink of a printed text lies on its panel.
#pragma once

#include <algorithm>
#include <string>
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

// Whether more than a brush of ink, some pixels, lies in both.
inline bool Overlap(const InkBox& a, const InkBox& b) {
  constexpr double kBrush = 3;
  return std::min(a.bottom, b.bottom) - std::max(a.top, b.top) > kBrush &&
         std::min(a.right, b.right) - std::max(a.left, b.left) > kBrush;
}

// A character, the place of its cell, and its ink as far as its kind tells: small characters hang
// above or below the line, others keep to the height of capitals.  A built-up fraction or radical
// is one glyph.
struct Glyph {
  std::string text;
  bool blank = false;
  bool whole = false;  // built up
  int level = 0;
  double row = 0;
  double col = 0;
  double width = 1;  // columns
  InkBox ink;
  int word = 0;  // glyphs that stand side by side without a blank share a number
};

// The glyphs of a fragment, from left to right.
std::vector<Glyph> GlyphsOf(const course::TextPanel& panel, const course::Fragment& fragment);

// What stands on the panel, and the words that a later text has cut.
struct StandingText {
  // Without blanks, and without what a later text has replaced.  On a panel that erases, a text
  // replaces what stood in its cells; elsewhere only the same text does.
  std::vector<Glyph> glyphs;
  // Words of which a part was replaced and a part still stands.
  std::vector<Glyph> cutAt;  // a standing glyph of each
};
StandingText StandingTextOf(const course::TextPanel& panel);

}  // namespace lesson_check
