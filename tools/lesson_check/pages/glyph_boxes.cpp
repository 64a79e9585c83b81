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

bool CanMeet(const Fragment& fragment, const Glyph& earlier) {
  const double reach = fragment.whole || earlier.whole ? kFractionReach : kSamePlace;
  return std::fabs(earlier.row - fragment.row) <= reach &&
         earlier.col + earlier.width >= fragment.col - kSamePlace &&
         earlier.col <= fragment.Right() + kSamePlace;
}

Glyph RightOf(Glyph glyph) {
  glyph.col += glyph.width;
  return glyph;
}

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

bool StandingText::Follow(const TextPanel& panel) {
  const std::vector<Fragment>& printed = panel.Transcript();
  isAnew_ =
      printed.size() < read_.size() || !std::equal(read_.begin(), read_.end(), printed.begin());
  if (!isAnew_ && printed.size() == read_.size()) return false;
  if (isAnew_) {
    read_.clear();
    glyphs_.clear();
    replaced_.clear();
  }
  ++readings_;
  for (std::size_t i = read_.size(); i < printed.size(); ++i) Print(panel, printed[i]);
  read_.insert(read_.end(), printed.begin() + static_cast<long>(read_.size()), printed.end());
  return true;
}

std::vector<Glyph> StandingText::CutAt() const {
  std::vector<Glyph> cut;
  for (const Glyph& glyph : glyphs_) {
    if (replaced_.empty()) break;
    const bool isCut = std::ranges::find(replaced_, glyph.word) != replaced_.end();
    const bool told = !cut.empty() && cut.back().word == glyph.word;
    if (isCut && !told) cut.push_back(glyph);
  }
  return cut;
}

void StandingText::Print(const TextPanel& panel, const Fragment& fragment) {
  std::vector<Glyph> printed = GlyphsOf(panel, fragment);
  Replace(panel, fragment, printed);
  for (Glyph& glyph : printed) {
    if (glyph.blank) continue;
    const bool goesOn = !glyphs_.empty() && SamePlace(glyph, RightOf(glyphs_.back()));
    glyph.word = goesOn ? glyphs_.back().word : ++words_;
    glyph.reading = readings_;
    glyphs_.push_back(std::move(glyph));
  }
}

void StandingText::Replace(const TextPanel& panel, const Fragment& fragment,
                           const std::vector<Glyph>& printed) {
  std::erase_if(glyphs_, [&](const Glyph& earlier) {
    if (!CanMeet(fragment, earlier)) return false;
    bool gone = false;
    for (const Glyph& later : printed) {
      const bool same = SameText(later, earlier);
      if (!same && !Erases(panel, later, earlier)) continue;
      gone = true;
      // Blanks clean away on purpose; the same text only gets another colour.
      if (!same && !later.blank) replaced_.push_back(earlier.word);
    }
    return gone;
  });
}

}  // namespace lesson_check
