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
  int word = 0;     // glyphs that stand side by side without a blank share a number
  int reading = 0;  // in which it was read, see StandingText
};

// The glyphs of a fragment, from left to right.
std::vector<Glyph> GlyphsOf(const course::TextPanel& panel, const course::Fragment& fragment);

// What stands on a panel, page after page.
class StandingText {
 public:
  // Reads what was printed since the last call, or all of it where the panel was cleared meanwhile.
  // False when nothing has changed.
  bool Follow(const course::TextPanel& panel);

  // Without blanks, and without what a later text has replaced.  On a panel that erases, a text
  // replaces what stood in its cells; elsewhere only the same text does.
  const std::vector<Glyph>& Glyphs() const { return glyphs_; }
  // A standing glyph of each word of which a part was replaced and a part still stands.
  std::vector<Glyph> CutAt() const;
  // Whether the last call began anew, and whether it has read the glyph.
  bool IsAnew() const { return isAnew_; }
  bool IsFresh(const Glyph& glyph) const { return glyph.reading == readings_; }

 private:
  void Print(const course::TextPanel& panel, const course::Fragment& fragment);
  void Replace(const course::TextPanel& panel, const course::Fragment& fragment,
               const std::vector<Glyph>& printed);

  std::vector<course::Fragment> read_;
  std::vector<Glyph> glyphs_;
  std::vector<int> replaced_;  // words that lost a glyph to another text
  int words_ = 0;
  int readings_ = 0;
  bool isAnew_ = true;
};

}  // namespace lesson_check
