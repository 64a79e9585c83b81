#include "lesson_check/pages/page_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <utility>

#include "display/panel_views.h"
#include "lesson_check/pages/box_overlap.h"
#include "lesson_check/pages/glyph_boxes.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

using course::Fragment;
using course::LessonWindow;
using course::TextPanel;

constexpr double kFirstRow = 2;
constexpr double kLastRow = 23;
constexpr double kLastColumn = 40;
constexpr double kTolerance = 0.26;  // of a cell: what shifts in the print of signs may take

std::string Place(double row, double col) {
  char text[60];
  std::snprintf(text, sizeof text, " at row %.1f, column %.1f", row, col);
  return text;
}

std::string Quoted(const std::string& text) {
  return "\"" + course::ToUtf8(text) + "\"";
}

bool IsBlank(const std::string& text) {
  return std::ranges::all_of(text, [](char c) { return c == ' ' || c == course::tutor::Gap[0]; });
}

// The glyphs of one row that lie over others.
struct OverlappedRow {
  std::string earlier;
  std::string later;
  double row = 0;
  double col = 0;

  void Add(const Glyph& under, const Glyph& over) {
    if (later.empty()) {
      row = over.row;
      col = over.col;
    }
    earlier += under.text;
    later += over.text;
  }
};

// The glyphs of one row, and the heights between which their ink lies.
struct InkRow {
  double top = 1e9;
  double bottom = -1e9;
  std::vector<const Glyph*> glyphs;

  void Add(const Glyph& glyph) {
    top = std::min(top, glyph.ink.top);
    bottom = std::max(bottom, glyph.ink.bottom);
    glyphs.push_back(&glyph);
  }
  bool Meets(const InkBox& ink) const { return ink.top < bottom && top < ink.bottom; }
};

std::string WordOf(const std::vector<Glyph>& glyphs, const Glyph& part) {
  std::string word;
  for (const Glyph& glyph : glyphs)
    if (glyph.word == part.word) word += glyph.text;
  return word;
}

// --- Boxes over the lesson -----------------------------------------------------------------------

using course::PanelKind;
using course::PanelView;

// The box's place in pixels of another control's surface.
InkBox Outline(const platform::Control& box, const platform::Control& on) {
  const double left = double(box.Left() - on.Left()) / platform::TwipsPerPixelX;
  const double top = double(box.Top() - on.Top()) / platform::TwipsPerPixelY;
  return {left, top, left + double(box.Width()) / platform::TwipsPerPixelX,
          top + double(box.Height()) / platform::TwipsPerPixelY};
}

void FindTextUnder(const StandingText& text, const platform::Control& panel, const PanelView& box,
                   std::vector<std::string>& faults) {
  const InkBox outline = Outline(*box.control, panel);
  std::string hidden;
  for (const Glyph& glyph : text.Glyphs())
    if (Overlap(glyph.ink, outline)) hidden += glyph.text;
  if (!hidden.empty())
    faults.push_back("text under " + box.control->Name() + ": " + Quoted(hidden));
}

void FindOutsidePanel(LessonWindow& window, const PanelView& box,
                      std::vector<std::string>& faults) {
  const InkBox outline = Outline(*box.control, window.pnlLesson);
  if (outline.left < -1 || outline.top < -1 || outline.right > window.pnlLesson.PixelWidth() + 1 ||
      outline.bottom > window.pnlLesson.PixelHeight() + 1)
    faults.push_back(box.control->Name() + " reaches out of the lesson panel");
}

// --- Texts inside their panels -------------------------------------------------------------------

void FindOutsideGrid(const TextPanel& panel, std::vector<std::string>& faults) {
  for (const Fragment& fragment : panel.Transcript()) {
    if (IsBlank(fragment.text)) continue;
    const double end = fragment.Right() - 1;
    if (fragment.row < kFirstRow - kTolerance || fragment.row > kLastRow + kTolerance ||
        fragment.col < 1 - kTolerance || end > kLastColumn + kTolerance)
      faults.push_back("text outside the grid: " + Quoted(fragment.text) +
                       Place(fragment.row, fragment.col));
  }
}

void FindOutsideBox(const PanelView& box, std::vector<std::string>& faults) {
  const platform::PictureBox& surface = *box.control;
  for (const Fragment& fragment : box.text->Transcript()) {
    for (const Glyph& glyph : GlyphsOf(*box.text, fragment)) {
      if (glyph.blank) continue;
      if (glyph.ink.left >= 0 && glyph.ink.top >= 0 && glyph.ink.right <= surface.PixelWidth() &&
          glyph.ink.bottom <= surface.PixelHeight())
        continue;
      faults.push_back("text outside " + surface.Name() + ": " + Quoted(fragment.text) +
                       Place(fragment.row, fragment.col));
      break;
    }
  }
}

// Those of which the later text is fresh.
std::vector<std::string> FreshOverprints(const StandingText& text) {
  std::vector<std::string> faults;
  for (const Glyph& rest : text.CutAt())
    faults.push_back("of a word that was printed over there still stands " +
                     Quoted(WordOf(text.Glyphs(), rest)) + Place(rest.row, rest.col));
  // Most rows have no ink at a glyph's height.  Overlaps of one row are told as one.
  std::map<long, InkRow> rows;
  std::map<long, OverlappedRow> overlapped;
  for (const Glyph& glyph : text.Glyphs()) {
    const long row = std::lround(glyph.row);
    if (text.IsFresh(glyph))
      for (const auto& [near, inked] : rows) {
        if (!inked.Meets(glyph.ink)) continue;
        for (const Glyph* earlier : inked.glyphs)
          if (Overlap(earlier->ink, glyph.ink)) overlapped[row].Add(*earlier, glyph);
      }
    rows[row].Add(glyph);
  }
  for (const auto& [row, overlap] : overlapped)
    faults.push_back(Quoted(overlap.later) + " over " + Quoted(overlap.earlier) +
                     Place(overlap.row, overlap.col));
  return faults;
}

}  // namespace

const PageLayout::Panel& PageLayout::Read(const PanelView& view) {
  Panel& panel = panels_[view.control->Name()];
  const bool changed = panel.text.Follow(*view.text);
  if (changed) {
    if (panel.text.IsAnew()) panel.overprints.clear();
    for (std::string& fault : FreshOverprints(panel.text))
      panel.overprints.push_back(std::move(fault));
  }
  const int width = view.control->PixelWidth();
  const int height = view.control->PixelHeight();
  if (view.kind != PanelKind::Lesson &&
      (changed || width != panel.width || height != panel.height)) {
    panel.outside.clear();
    FindOutsideBox(view, panel.outside);
  }
  panel.width = width;
  panel.height = height;
  return panel;
}

std::vector<std::string> PageLayout::FaultsOf(LessonWindow& window) {
  const std::vector<PanelView> views = course::ShownPanels(window);
  std::vector<std::string> faults;
  const Panel& lesson = Read(views.front());
  faults = lesson.overprints;
  FindOutsideGrid(window.lessonText, faults);
  for (const PanelView& view : views) {
    if (view.kind == PanelKind::Lesson) continue;
    if (view.text != nullptr) {
      const Panel& panel = Read(view);
      for (const std::string& fault : panel.overprints)
        faults.push_back(view.control->Name() + ": " + fault);
      faults.insert(faults.end(), panel.outside.begin(), panel.outside.end());
    }
    if (view.kind == PanelKind::Cell) continue;  // lies in its table
    FindOutsidePanel(window, view, faults);
    FindTextUnder(lesson.text, window.pnlLesson, view, faults);
  }
  for (std::string& fault : OverlappingBoxes(window)) faults.push_back(std::move(fault));
  return faults;
}

}  // namespace lesson_check
