#include "lesson_check/pages/glyph_boxes.h"

#include <algorithm>
#include <cmath>

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

constexpr double kBrush = 3;         // pixels of ink that two boxes may share
constexpr double kSamePlace = 0.25;  // cells

bool SamePlace(const Glyph& a, const Glyph& b) {
  return std::fabs(a.row - b.row) <= kSamePlace && std::fabs(a.col - b.col) <= kSamePlace;
}

bool Replaces(const TextPanel& panel, const Glyph& later, const Glyph& earlier) {
  if (later.blank)
    return panel.erases && std::fabs(later.row - earlier.row) <= kSamePlace &&
           std::fabs(later.col - earlier.col) < 0.5;
  return later.character == earlier.character && later.level == earlier.level &&
         SamePlace(later, earlier);
}

}  // namespace

bool Overlap(const InkBox& a, const InkBox& b) {
  return std::min(a.right, b.right) - std::max(a.left, b.left) > kBrush &&
         std::min(a.bottom, b.bottom) - std::max(a.top, b.top) > kBrush;
}

std::vector<Glyph> GlyphsOf(const TextPanel& panel, const Fragment& fragment) {
  const InkParts& parts = PartsOf(fragment.level);
  const double width = panel.layout.cellWidth;
  const double height = panel.layout.cellHeight;
  std::vector<Glyph> glyphs;
  double col = fragment.col;
  for (const char c : fragment.text) {
    const double x = panel.CellX(col);
    const double y = panel.CellY(fragment.row);
    glyphs.push_back({c,
                      c == ' ' || c == course::tutor::Gap[0],
                      fragment.level,
                      fragment.row,
                      col,
                      {x + parts.side * width, y + parts.top * height, x + (1 - parts.side) * width,
                       y + parts.bottom * height}});
    ++col;
  }
  return glyphs;
}

std::vector<Glyph> StandingGlyphs(const TextPanel& panel) {
  std::vector<Glyph> standing;
  for (const Fragment& fragment : panel.Transcript()) {
    const std::vector<Glyph> printed = GlyphsOf(panel, fragment);
    std::erase_if(standing, [&](const Glyph& earlier) {
      if (std::fabs(earlier.row - fragment.row) > kSamePlace) return false;
      const double first = earlier.col - fragment.col;
      if (first < -1 || first > static_cast<double>(printed.size())) return false;
      return std::ranges::any_of(
          printed, [&](const Glyph& later) { return Replaces(panel, later, earlier); });
    });
    std::ranges::copy_if(printed, std::back_inserter(standing),
                         [](const Glyph& glyph) { return !glyph.blank; });
  }
  return standing;
}

}  // namespace lesson_check
