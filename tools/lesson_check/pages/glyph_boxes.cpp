#include "lesson_check/pages/glyph_boxes.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Fragment;
using course::TextPanel;

// Parts of a cell in which ink lies, for capitals, digits and most signs, measured at 16 by 25
// pixels: a descender or a bracket that reaches further touches nothing in practice.
struct InkParts {
  double top;
  double bottom;
  double side;  // free on either side
};
constexpr InkParts kOnLine{7.0 / 25, 23.0 / 25, 1.0 / 16};
constexpr InkParts kRaised{0, 14.0 / 25, 3.0 / 16};
constexpr InkParts kLowered{17.0 / 25, 30.0 / 25, 3.0 / 16};

const InkParts& PartsOf(int level) {
  if (level == 0) return kOnLine;
  return level > 0 ? kRaised : kLowered;
}

constexpr double kSamePlace = 0.25;   // cells
constexpr double kFractionReach = 2;  // rows

bool SamePlace(const Glyph& a, const Glyph& b) {
  return std::fabs(a.row - b.row) <= kSamePlace && std::fabs(a.col - b.col) <= kSamePlace;
}

bool HoldsMiddle(const InkBox& box, const InkBox& other) {
  const double x = (other.left + other.right) / 2;
  const double y = (other.top + other.bottom) / 2;
  return x > box.left && x < box.right && y > box.top && y < box.bottom;
}

bool SameText(const Glyph& later, const Glyph& earlier) {
  return later.text == earlier.text && later.level == earlier.level && SamePlace(later, earlier);
}

// The band behind a later glyph takes away what stood in its cell, and a fraction what stood in its
// rows.  A fraction goes with the middle of its bar.
bool Erases(const TextPanel& panel, const Glyph& later, const Glyph& earlier) {
  if (!panel.erases) return false;
  if (later.whole || (earlier.whole && later.blank)) {
    const Glyph& box = later.whole ? later : earlier;
    const Glyph& other = later.whole ? earlier : later;
    return HoldsMiddle(box.ink, other.ink) || HoldsMiddle(other.ink, box.ink);
  }
  return (later.blank || (later.level == 0 && earlier.level == 0)) && !earlier.whole &&
         std::fabs(later.row - earlier.row) <= kSamePlace &&
         std::fabs(later.col - earlier.col) < 0.5;
}

// Builds up what stands from the fragments, in the order in which they were printed.
class Standing {
 public:
  explicit Standing(const TextPanel& panel) : panel_(panel) {
    std::size_t letters = 0;
    for (const Fragment& fragment : panel.Transcript()) letters += fragment.text.size();
    glyphs_.reserve(letters);
  }

  void Print(const Fragment& fragment) {
    const std::vector<Glyph> printed = GlyphsOf(panel_, fragment);
    Replace(fragment, printed);
    for (Glyph glyph : printed) {
      if (glyph.blank) continue;
      const bool goesOn = !glyphs_.empty() && SamePlace(glyph, RightOf(glyphs_.back()));
      glyph.word = goesOn ? glyphs_.back().word : ++words_;
      glyphs_.push_back(glyph);
    }
  }

  StandingText Take() {
    StandingText text;
    for (const Glyph& glyph : glyphs_) {
      const bool cut = std::ranges::find(replaced_, glyph.word) != replaced_.end();
      const bool told = !text.cutAt.empty() && text.cutAt.back().word == glyph.word;
      if (cut && !told) text.cutAt.push_back(glyph);
    }
    text.glyphs = std::move(glyphs_);
    return text;
  }

 private:
  static Glyph RightOf(Glyph glyph) {
    glyph.col += glyph.width;
    return glyph;
  }

  void Replace(const Fragment& fragment, const std::vector<Glyph>& printed) {
    std::erase_if(glyphs_, [&](const Glyph& earlier) {
      if (!CanMeet(fragment, earlier)) return false;
      bool gone = false;
      for (const Glyph& later : printed) {
        const bool same = SameText(later, earlier);
        if (!same && !Erases(panel_, later, earlier)) continue;
        gone = true;
        // Blanks clean away on purpose; the same text only gets another colour.
        if (!same && !later.blank) replaced_.push_back(earlier.word);
      }
      return gone;
    });
  }

  static bool CanMeet(const Fragment& fragment, const Glyph& earlier) {
    const double reach = fragment.whole || earlier.whole ? kFractionReach : kSamePlace;
    return std::fabs(earlier.row - fragment.row) <= reach &&
           earlier.col + earlier.width >= fragment.col - kSamePlace &&
           earlier.col <= fragment.Right() + kSamePlace;
  }

  const TextPanel& panel_;
  std::vector<Glyph> glyphs_;
  std::vector<int> replaced_;  // words that lost a glyph to another text
  int words_ = 0;
};

}  // namespace

std::vector<Glyph> GlyphsOf(const TextPanel& panel, const Fragment& fragment) {
  const InkParts& parts = PartsOf(fragment.level);
  const double line = panel.layout.cellHeight * (fragment.whole ? 1 : fragment.height);
  const double top = panel.CellY(fragment.Top()) + parts.top * line;
  const double bottom = panel.CellY(fragment.Bottom()) - (1 - parts.bottom) * line;
  const double advance = fragment.whole ? fragment.width : fragment.Advance();
  const double side = parts.side * std::min(advance, 1.0) * panel.layout.cellWidth;
  const auto glyphAt = [&](double col, std::string text) {
    const bool blank = text == " " || text == course::tutor::Gap;
    const InkBox ink{panel.CellX(col) + side, top, panel.CellX(col + advance) - side, bottom};
    return Glyph{std::move(text), blank, fragment.whole, fragment.level,
                 fragment.row,    col,   advance,        ink};
  };
  if (fragment.whole) return {glyphAt(fragment.col, fragment.text)};
  std::vector<Glyph> glyphs;
  glyphs.reserve(fragment.text.size());
  for (std::size_t i = 0; i < fragment.text.size(); ++i)
    glyphs.push_back(
        glyphAt(fragment.col + static_cast<double>(i) * advance, fragment.text.substr(i, 1)));
  return glyphs;
}

StandingText StandingTextOf(const TextPanel& panel) {
  Standing standing(panel);
  for (const Fragment& fragment : panel.Transcript()) standing.Print(fragment);
  return standing.Take();
}

}  // namespace lesson_check
