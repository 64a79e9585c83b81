#include "lesson_check/pages/glyph_boxes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

#include "display/lesson_window.h"
#include "engine/header.h"
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

constexpr double kSamePlace = 0.25;  // cells

// Columns that a letter takes: one, but fewer in the banner, whose face has widths of its own.
double ColumnsOf(const Fragment& fragment) {
  const std::string banner = course::BannerText();
  if (banner.empty() || fragment.text.find(banner) == std::string::npos) return 1;
  static std::map<std::string, double> widths;  // each banner is measured once
  const auto [width, isNew] = widths.try_emplace(fragment.text);
  if (isNew) width->second = course::frmPR->picTextWidth.TextWidth(fragment.text);
  return width->second / course::gCellWidth / static_cast<double>(fragment.text.size());
}

bool SamePlace(const Glyph& a, const Glyph& b) {
  return std::fabs(a.row - b.row) <= kSamePlace && std::fabs(a.col - b.col) <= kSamePlace;
}

bool SameText(const Glyph& later, const Glyph& earlier) {
  return later.character == earlier.character && later.level == earlier.level &&
         SamePlace(later, earlier);
}

// The band behind a later glyph takes away what stood in its cell.
bool Erases(const TextPanel& panel, const Glyph& later, const Glyph& earlier) {
  return panel.erases && (later.blank || (later.level == 0 && earlier.level == 0)) &&
         std::fabs(later.row - earlier.row) <= kSamePlace &&
         std::fabs(later.col - earlier.col) < 0.5;
}

// Builds up what stands from the fragments, in the order in which they were printed.
class Standing {
 public:
  explicit Standing(const TextPanel& panel) : panel_(panel) {}

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
    ++glyph.col;
    return glyph;
  }

  void Replace(const Fragment& fragment, const std::vector<Glyph>& printed) {
    std::erase_if(glyphs_, [&](const Glyph& earlier) {
      if (std::fabs(earlier.row - fragment.row) > kSamePlace) return false;
      const double place = earlier.col - fragment.col;
      if (place < -1 || place > static_cast<double>(printed.size())) return false;
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

  const TextPanel& panel_;
  std::vector<Glyph> glyphs_;
  std::vector<int> replaced_;  // words that lost a glyph to another text
  int words_ = 0;
};

}  // namespace

std::vector<Glyph> GlyphsOf(const TextPanel& panel, const Fragment& fragment) {
  const InkParts& parts = PartsOf(fragment.level);
  const double advance = ColumnsOf(fragment);
  const double width = panel.layout.cellWidth * advance;
  const double height = panel.layout.cellHeight;
  std::vector<Glyph> glyphs;
  glyphs.reserve(fragment.text.size());
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
    col += advance;
  }
  return glyphs;
}

StandingText StandingTextOf(const TextPanel& panel) {
  Standing standing(panel);
  for (const Fragment& fragment : panel.Transcript()) standing.Print(fragment);
  return standing.Take();
}

}  // namespace lesson_check
