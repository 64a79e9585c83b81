#include "lesson_check/pages/page_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "display/exponents.h"
#include "engine/answers.h"
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
    earlier += under.character;
    later += over.character;
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
    if (glyph.word == part.word) word += glyph.character;
  return word;
}

// --- Boxes over the lesson -----------------------------------------------------------------------

struct ShownBox {
  std::string name;
  platform::PictureBox* box;
  const TextPanel* text;  // nullptr for a figure
};

std::vector<ShownBox> ShownBoxes(LessonWindow& window) {
  std::vector<ShownBox> boxes;
  const auto add = [&](platform::PictureBox& box, const TextPanel* text) {
    if (box.Visible()) boxes.push_back({box.Name(), &box, text});
  };
  add(window.picWiperBox, &window.wiperText);
  add(window.picWiperBox2, &window.wiperText2);
  add(window.picPrintCellBox, nullptr);
  for (int i = 1; i <= 5; ++i) {
    const auto place = static_cast<std::size_t>(i);
    add(window.picCommentBox[i], window.commentText[place].get());
    add(window.picGalleryImage[i], nullptr);
    add(window.picNotes[i], nullptr);
    add(window.picGraph2D[i], nullptr);
    add(window.picAnswer[i], window.answerText[place].get());
  }
  return boxes;
}

// The box's place in pixels of another control's surface.
InkBox Outline(const platform::Control& box, const platform::Control& on) {
  const double left = double(box.Left() - on.Left()) / platform::TwipsPerPixelX;
  const double top = double(box.Top() - on.Top()) / platform::TwipsPerPixelY;
  return {left, top, left + double(box.Width()) / platform::TwipsPerPixelX,
          top + double(box.Height()) / platform::TwipsPerPixelY};
}

void FindTextUnder(const StandingText& text, const platform::Control& panel, const ShownBox& box,
                   std::vector<std::string>& faults) {
  const InkBox outline = Outline(*box.box, panel);
  std::string hidden;
  for (const Glyph& glyph : text.glyphs)
    if (Overlap(glyph.ink, outline)) hidden += glyph.character;
  if (!hidden.empty()) faults.push_back("text under " + box.name + ": " + Quoted(hidden));
}

void FindBoxesOutside(LessonWindow& window, const std::vector<ShownBox>& boxes,
                      std::vector<std::string>& faults) {
  for (const ShownBox& box : boxes) {
    const InkBox outline = Outline(*box.box, window.pnlLesson);
    if (outline.left < -1 || outline.top < -1 ||
        outline.right > window.pnlLesson.PixelWidth() + 1 ||
        outline.bottom > window.pnlLesson.PixelHeight() + 1)
      faults.push_back(box.name + " reaches out of the lesson panel");
  }
}

// --- Texts inside their panels -------------------------------------------------------------------

void FindOutsideGrid(const TextPanel& panel, std::vector<std::string>& faults) {
  for (const Fragment& fragment : panel.Transcript()) {
    if (IsBlank(fragment.text)) continue;
    const double end = fragment.col + static_cast<double>(fragment.text.size()) - 1;
    if (fragment.row < kFirstRow - kTolerance || fragment.row > kLastRow + kTolerance ||
        fragment.col < 1 - kTolerance || end > kLastColumn + kTolerance)
      faults.push_back("text outside the grid: " + Quoted(fragment.text) +
                       Place(fragment.row, fragment.col));
  }
}

void FindOutsideBox(const ShownBox& box, std::vector<std::string>& faults) {
  for (const Fragment& fragment : box.text->Transcript()) {
    for (const Glyph& glyph : GlyphsOf(*box.text, fragment)) {
      if (glyph.blank) continue;
      if (glyph.ink.left >= 0 && glyph.ink.top >= 0 && glyph.ink.right <= box.box->PixelWidth() &&
          glyph.ink.bottom <= box.box->PixelHeight())
        continue;
      faults.push_back("text outside " + box.name + ": " + Quoted(fragment.text) +
                       Place(fragment.row, fragment.col));
      break;
    }
  }
}

// A cell of a table holds one text in the middle, in the font that its surface has.
void FindOutsideCells(LessonWindow& window, std::vector<std::string>& faults) {
  if (!window.picPrintCellBox.Visible()) return;
  for (int i = 1; i <= window.picPrintCell.Last(); ++i) {
    platform::PictureBox& cell = window.picPrintCell[i];
    const std::string text = course::StripCarets(cell.AccessibleText());
    if (cell.Visible() && cell.TextWidth(text) > cell.ScaleWidth())
      faults.push_back("text wider than " + cell.Name() + ": " + Quoted(text));
  }
}

// A face with widths of its own is measured, since its letters keep to no cells.
double PixelsOf(platform::PictureBox& box, const std::string& text) {
  const course::AnswerParameters& p = course::answerParameters;
  const bool none = box.Name() == "picAnswer(5)" && text == course::kNoneOfTheAbove;
  const std::string face = box.FontName;
  const double size = box.FontSize;
  box.FontName = none ? "Times New Roman" : p.fontName;
  box.FontSize = none ? (p.lastBoxFontSize != 0 ? p.lastBoxFontSize : 18) : p.fontSize;
  const double width = box.TextWidth(text);
  box.FontName = face;
  box.FontSize = size;
  return width;
}

void FindOutsideAnswer(const ShownBox& box, std::vector<std::string>& faults) {
  const bool printFont = course::answerParameters.fontName == "Courier New";
  const auto& transcript = box.text->Transcript();
  const bool none = transcript.size() == 1 && transcript[0].text == course::kNoneOfTheAbove;
  if (printFont && !none) return FindOutsideBox(box, faults);
  for (const Fragment& fragment : transcript) {
    const double right = box.text->CellX(fragment.col) + PixelsOf(*box.box, fragment.text);
    if (right > box.box->PixelWidth())
      faults.push_back("text outside " + box.name + ": " + Quoted(fragment.text));
  }
}

std::vector<std::string> OverprintsOf(const StandingText& text) {
  std::vector<std::string> faults;
  for (const Glyph& rest : text.cutAt)
    faults.push_back("of a word that was printed over there still stands " +
                     Quoted(WordOf(text.glyphs, rest)) + Place(rest.row, rest.col));
  // Most rows have no ink at a glyph's height.  Overlaps of one row are told as one.
  std::map<long, InkRow> rows;
  std::map<long, OverlappedRow> overlapped;
  for (const Glyph& glyph : text.glyphs) {
    for (const auto& [near, inked] : rows)
      if (inked.Meets(glyph.ink))
        for (const Glyph* earlier : inked.glyphs)
          if (Overlap(earlier->ink, glyph.ink))
            overlapped[std::lround(glyph.row)].Add(*earlier, glyph);
    rows[std::lround(glyph.row)].Add(glyph);
  }
  for (const auto& [row, overlap] : overlapped)
    faults.push_back(Quoted(overlap.later) + " over " + Quoted(overlap.earlier) +
                     Place(overlap.row, overlap.col));
  return faults;
}

}  // namespace

std::vector<std::string> Overprints(const TextPanel& panel) {
  return OverprintsOf(StandingTextOf(panel));
}

std::vector<std::string> LayoutFaults(LessonWindow& window) {
  const StandingText text = StandingTextOf(window.lessonText);
  std::vector<std::string> faults = OverprintsOf(text);
  const std::vector<ShownBox> boxes = ShownBoxes(window);
  FindOutsideGrid(window.lessonText, faults);
  FindBoxesOutside(window, boxes, faults);
  for (std::string& fault : OverlappingBoxes(window)) faults.push_back(std::move(fault));
  FindOutsideCells(window, faults);
  for (const ShownBox& box : boxes) {
    FindTextUnder(text, window.pnlLesson, box, faults);
    if (box.text == nullptr) continue;
    for (std::string& fault : Overprints(*box.text)) faults.push_back(box.name + ": " + fault);
    if (box.name.starts_with("picAnswer"))
      FindOutsideAnswer(box, faults);
    else
      FindOutsideBox(box, faults);
  }
  return faults;
}

}  // namespace lesson_check
