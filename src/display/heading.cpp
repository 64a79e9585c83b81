// The shadowed heading, in a proportional face.
#include <algorithm>
#include <string>

#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

struct Heading {
  std::string text;
  int x;  // pixels: the text's top left
  int y;
  double size;  // points
};

// A double quote for "~", and a plain blank for the hard one, which this face has no glyph for.
std::string Readable(std::string text) {
  std::replace(text.begin(), text.end(), '~', '"');
  std::replace(text.begin(), text.end(), tutor::Gap[0], ' ');
  return text;
}

// Character by character: exponents smaller, which raises them since all text hangs from its top,
// and points as high as a multiplication sign stands.
void PrintWithExponents(platform::Surface& surface, const Heading& heading, double x, double y) {
  constexpr double kExponentSize = 0.65;
  constexpr double kPointRise = 0.12;  // pixels a point of size
  bool raised = false;
  surface.CurrentX = x;
  for (const char c : heading.text) {
    if (c == '^') {
      raised = !raised;
      continue;
    }
    surface.FontSize = raised ? heading.size * kExponentSize : heading.size;
    surface.CurrentY = c == '.' ? y - RoundedPixel(kPointRise * surface.FontSize) : y;
    surface.Print(std::string(1, c));
  }
  surface.FontSize = heading.size;
}

void PrintHeading(platform::Surface& surface, const Heading& heading, int offset,
                  platform::Colour colour) {
  surface.ForeColor = colour;
  const double x = heading.x + offset;
  const double y = heading.y + offset;
  if (heading.text.find('^') != std::string::npos) {
    PrintWithExponents(surface, heading, x, y);
    return;
  }
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(heading.text);
}

// The words where a reader of the transcript looks for them.
void RecordHeading(TextPanel& panel, const Heading& heading) {
  const int keptX = panel.cursorX;
  const int keptY = panel.cursorY;
  panel.SetCursor(heading.x, heading.y);
  panel.Record(heading.text);
  panel.SetCursor(keptX, keptY);
}

TextPanel& PanelOf(int indx) {
  if (indx == 0) return frmPR->lessonText;
  if (indx < frmPR->picCommentBox.First() || indx > frmPR->picCommentBox.Last())
    platform::Stop("PrintNiceHeading: indx = " + std::to_string(indx));
  return *frmPR->commentText[static_cast<std::size_t>(indx)];
}

}  // namespace

void PrintNiceHeading(int indx, const std::string& text, double row, double col,
                      const std::string& font, bool bold, bool italic, double size,
                      platform::Colour foreColor, platform::Colour shadowColor,
                      int shadowThickness) {
  TextPanel& panel = PanelOf(indx);
  platform::Surface& surface = panel.surface;
  surface.FontName = font.empty() ? "Times New Roman" : font;
  surface.FontBold = bold;
  surface.FontItalic = italic;
  surface.FontSize = size;
  Heading heading{Readable(text), 0, RoundedPixel(panel.CellY(row)), size};
  const double free = surface.ScaleWidth() - surface.TextWidth(StripCarets(heading.text));
  heading.x = RoundedPixel(col == -1 ? free / 2 : panel.CellX(col));
  // Without a thickness the heading hides its shadow.
  if (shadowThickness != 0) PrintHeading(surface, heading, shadowThickness, shadowColor);
  PrintHeading(surface, heading, 0, foreColor);
  RecordHeading(panel, heading);
  panel.RestoreFont();
  surface.Refresh();
}

}  // namespace course
