// The shadowed heading, in a proportional face.
#include <algorithm>
#include <string>

#include "display/comment_panel.h"
#include "display/drawing.h"
#include "display/drawing_cells.h"
#include "display/exponents.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"

namespace course {
namespace {

// The words where a reader of the transcript looks for them.
void RecordHeading(TextPanel& panel, const std::string& text, int x, int y) {
  const int keptX = panel.cursorX;
  const int keptY = panel.cursorY;
  panel.SetCursor(x, y);
  std::string words = text;
  std::ranges::replace(words, '~', '"');
  panel.Record(words, PlainWidth(panel.surface, InPlainFace(text)));
  panel.SetCursor(keptX, keptY);
}

}  // namespace

void SetHeadingFont(platform::Surface& surface, const HeadingStyle& style) {
  surface.FontName = style.font.empty() ? "Times New Roman" : style.font;
  surface.FontBold = style.bold;
  surface.FontItalic = style.italic;
  surface.FontSize = style.size;
}

void PrintHeadingOn(TextPanel& panel, const std::string& text, int x, int y,
                    const HeadingStyle& style) {
  platform::Surface& surface = panel.surface;
  SetHeadingFont(surface, style);
  const std::string words = InPlainFace(text);
  // Without a thickness the heading hides its shadow.
  if (style.shadowThickness != 0) {
    surface.ForeColor = style.shadowColor;
    PrintPlain(surface, words, x + style.shadowThickness, y + style.shadowThickness);
  }
  surface.ForeColor = style.foreColor;
  PrintPlain(surface, words, x, y);
  RecordHeading(panel, text, x, y);
}

void PrintNiceHeading(int indx, const std::string& text, double row, double col,
                      const std::string& font, bool bold, bool italic, double size,
                      platform::Colour foreColor, platform::Colour shadowColor,
                      int shadowThickness) {
  TextPanel& panel = indx == 0 ? frmPR->lessonText : CommentPanel(indx, "PrintNiceHeading");
  platform::Surface& surface = panel.surface;
  const HeadingStyle style{font, bold, italic, size, foreColor, shadowColor, shadowThickness};
  SetHeadingFont(surface, style);
  const double free = surface.ScaleWidth() - PlainWidth(surface, StripCarets(InPlainFace(text)));
  const int x = RoundedPixel(col == -1 ? free / 2 : panel.CellX(col));
  PrintHeadingOn(panel, text, x, RoundedPixel(panel.CellY(row)), style);
  panel.RestoreFont();
  surface.Refresh();
}

}  // namespace course
