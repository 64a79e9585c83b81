#include "display/text_panel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "display/grid.h"
#include "display/special_characters.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr std::size_t kMaxRuns = 30;

struct Run {
  std::size_t first;
  std::size_t length;
  int code;  // 0 for plain text
};

std::vector<Run> SplitIntoRuns(const std::string& s) {
  std::vector<Run> runs;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const int code = static_cast<unsigned char>(s[i]);
    if (IsDrawnCharacter(code)) {
      runs.push_back({i, 1, code});
    } else if (!runs.empty() && runs.back().code == 0) {
      ++runs.back().length;
    } else {
      runs.push_back({i, 1, 0});
    }
  }
  if (runs.size() > kMaxRuns) platform::Stop("isTextOut: more than 30 runs in \"" + s + "\"");
  return runs;
}

bool HasPrintFont(const platform::Surface& surface) {
  return surface.FontName == "Courier New";
}

double WidthOfRun(const TextPanel& panel, const std::string& s, const Run& run) {
  if (HasPrintFont(panel.surface) || run.code != 0)
    return static_cast<double>(run.length) * panel.layout.cellWidth;
  return panel.surface.TextWidth(std::string_view(s).substr(run.first, run.length));
}

int CheckedPixel(double value, const char* name) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -32768 && rounded <= 32767))
    platform::Stop(std::string("Overflow: ") + name + " = " + std::to_string(value) +
                   ".  A word may be too long for its line.");
  return static_cast<int>(rounded);
}

}  // namespace

TextPanel::TextPanel(platform::PictureBox& box, const Layout& boxLayout)
    : surface(box), layout(boxLayout), textColour(boxLayout.restoredColour) {
  cursorX = layout.leftMargin;
  cursorY = layout.topMargin;
  RestoreFont();
}

double TextPanel::CellX(double col) const {
  return layout.leftMargin + layout.cellWidth * (col - 1);
}

double TextPanel::CellY(double row) const {
  return layout.topMargin + layout.cellHeight * (row - layout.firstRow);
}

void TextPanel::SetCursor(double x, double y) {
  cursorX = CheckedPixel(x, "cursor X");
  cursorY = CheckedPixel(y, "cursor Y");
}

void TextPanel::Locate(double row, double col) {
  SetCursor(CellX(col), CellY(row));
}

void TextPanel::UpdateCursorCell() {
  cursorCol = static_cast<float>(double(cursorX - layout.leftMargin) / layout.cellWidth + 1);
  cursorRow =
      static_cast<float>(double(cursorY - layout.topMargin) / layout.cellHeight + layout.firstRow);
}

void TextPanel::SetFontSize(double size) {
  surface.FontSize = size;
}

void TextPanel::RestoreFont() {
  surface.FontName = "Courier New";
  surface.FontBold = true;
  surface.FontItalic = false;
  surface.FontUnderline = false;
  surface.FontStrikethru = false;
  surface.FontSize = layout.fontSize;
  SetColor(layout.restoredColour);
}

void TextPanel::SetColor(platform::Colour colour) {
  surface.ForeColor = colour;
  textColour = colour;
}

void TextPanel::Cls() {
  surface.Cls();
  SetTranscript({});
}

double TextPanel::WidthOf(const std::string& s) const {
  if (HasPrintFont(surface)) return static_cast<double>(s.size()) * layout.cellWidth;
  double width = 0;
  for (const Run& run : SplitIntoRuns(s)) width += WidthOfRun(*this, s, run);
  return width;
}

void TextPanel::TextOut(const std::string& s) {
  // The flag is tested first: a text that is measured while the background is kept is drawn.
  const bool keepsBackground = erases && dontEraseBackground == 1;
  if (!keepsBackground && screenState.gMeasureOnly == 1) return;
  if (s.empty()) return;
  if (erases && !keepsBackground)
    surface.FillRect(
        {cursorX, cursorY + 4, static_cast<int>(std::ceil(WidthOf(s))), layout.cellHeight},
        eraseColour);
  Record(s);
  double x = cursorX;
  for (const Run& run : SplitIntoRuns(s)) {
    const int left = static_cast<int>(RoundHalfEven(x));
    if (run.code == 0)
      surface.TextOut(left, cursorY, std::string_view(s).substr(run.first, run.length),
                      HasPrintFont(surface) ? layout.cellWidth : 0);
    else
      DrawSpecialCharacter(*this, run.code, left, cursorY);
    x += WidthOfRun(*this, s, run);
    surface.Refresh();
  }
}

void TextPanel::Record(const std::string& s, double width) {
  if (s.empty()) return;
  UpdateCursorCell();
  const double row = scriptLevel == 0 ? cursorRow : scriptBaseRow;
  const double pixels = width > 0 ? width : WidthOf(s);
  const double height = HasPrintFont(surface) ? 1 : surface.TextHeight(s) / layout.cellHeight;
  lines_.reset();
  transcript_.push_back(
      {row, cursorCol, surface.ForeColor, scriptLevel, s, pixels / layout.cellWidth, 0, height});
}

namespace {

bool Contains(const platform::PixelRect& rect, platform::PixelPoint point) {
  return point.x >= rect.left && point.x < rect.left + rect.width && point.y >= rect.top &&
         point.y < rect.top + rect.height;
}

// The rectangle and all that it passes on its way by (dx, dy).
platform::PixelRect Swept(const platform::PixelRect& rect, int dx, int dy) {
  return {rect.left + std::min(dx, 0), rect.top + std::min(dy, 0), rect.width + std::abs(dx),
          rect.height + std::abs(dy)};
}

// Calls each letter of a fragment, or the fragment itself where it cannot be cut.
template <class Each>
void ForEachLetter(const Fragment& fragment, Each each) {
  if (fragment.whole) return each(fragment);
  Fragment letter = fragment;
  letter.width = fragment.Advance();
  for (std::size_t i = 0; i < fragment.text.size(); ++i) {
    letter.text = fragment.text[i];
    letter.col = fragment.col + static_cast<double>(i) * letter.width;
    each(letter);
  }
}

// Adds a letter, to the stretch that is being built when it goes on there.
void Append(std::vector<Fragment>& pieces, const Fragment& letter) {
  constexpr double kHair = 1e-6;
  if (!pieces.empty() && !letter.whole && !pieces.back().whole) {
    Fragment& last = pieces.back();
    if (last.row == letter.row && std::fabs(last.Right() - letter.col) < kHair) {
      last.text += letter.text;
      last.width += letter.width;
      return;
    }
  }
  pieces.push_back(letter);
}

}  // namespace

platform::PixelPoint TextPanel::CentreOf(const Fragment& fragment) const {
  // Ink hangs a little low in its cell, as the band does that is erased behind a text.
  constexpr double kLow = 0.16;
  const double middle = (fragment.Top() + fragment.Bottom()) / 2 + kLow;
  return {static_cast<int>(CellX(fragment.col + fragment.width / 2)),
          static_cast<int>(CellY(middle))};
}

void TextPanel::MoveTranscript(const platform::PixelRect& rect, int dx, int dy,
                               bool keepsOriginal) {
  const platform::PixelRect swept = Swept(rect, dx, dy);
  const platform::PixelRect target{rect.left + dx, rect.top + dy, rect.width, rect.height};
  const double rows = static_cast<double>(dy) / layout.cellHeight;
  const double cols = static_cast<double>(dx) / layout.cellWidth;
  std::vector<Fragment> left;
  for (const Fragment& fragment : transcript_) {
    std::vector<Fragment> staying;
    std::vector<Fragment> moving;
    ForEachLetter(fragment, [&](const Fragment& letter) {
      const platform::PixelPoint centre = CentreOf(letter);
      const bool inside = Contains(rect, centre);
      const bool copied = inside && keepsOriginal && !Contains(target, centre);
      if (copied || !Contains(swept, centre)) Append(staying, letter);
      if (!inside) return;
      Fragment moved = letter;
      moved.row += rows;
      moved.col += cols;
      Append(moving, moved);
    });
    left.insert(left.end(), staying.begin(), staying.end());
    left.insert(left.end(), moving.begin(), moving.end());
  }
  SetTranscript(std::move(left));
}

void TextPanel::EraseTranscript(const platform::PixelRect& rect) {
  std::vector<Fragment> left;
  for (const Fragment& fragment : transcript_) {
    std::vector<Fragment> staying;
    ForEachLetter(fragment, [&](const Fragment& letter) {
      if (!Contains(rect, CentreOf(letter))) Append(staying, letter);
    });
    left.insert(left.end(), staying.begin(), staying.end());
  }
  SetTranscript(std::move(left));
}

void TextPanel::SetTranscript(std::vector<Fragment> fragments) {
  transcript_ = std::move(fragments);
  lines_.reset();
}

const std::vector<TextLine>& TextPanel::Lines() const {
  if (!lines_) lines_ = TextLinesOf(transcript_);
  return *lines_;
}

std::vector<std::string> TranscriptLines(const TextPanel& panel) {
  std::vector<std::string> texts;
  for (const TextLine& line : panel.Lines()) texts.push_back(line.text);
  return texts;
}

}  // namespace course
