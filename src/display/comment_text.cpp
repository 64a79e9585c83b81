// Text in comment boxes.
#include <algorithm>
#include <cmath>

#include "display/comment_box.h"
#include "display/comment_panel.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print.h"
#include "display/scoped_value.h"
#include "display/word_wrap.h"
#include "display/wrap_modes.h"
#include "mathkit/integers.h"

namespace course {
namespace {

double SizeOr(int size, const TextPanel& panel) {
  return size == 0 ? panel.layout.exponentSize : size;
}

// Where the line is kept the cursor stays behind the text, under an indent, too.
void Wrap(int box, const std::string& s, const char* routine) {
  TextPanel& panel = CommentPanel(box, routine);
  const double wid = wrapState.gNarrowOn == 1 ? wrapState.gNarrowCol : RightColumnOf(panel);
  WrapOn(panel, s, IntOf(wid));
  if (screenState.gNoNewline == 0) panel.cursorX = panel.layout.leftMargin;
  panel.surface.Refresh();
}

// Pixels from a box's left and top edge to the end of all its text, padding included.
platform::PixelPoint UsedSize(const TextPanel& panel) {
  // Descenders reach below the cell of a small print.
  constexpr double kInkDepth = 1.45;  // pixels a point of size, from the top of the cell
  const int rowHeight = std::max(panel.layout.cellHeight,
                                 static_cast<int>(std::ceil(kInkDepth * panel.layout.fontSize)));
  double right = panel.layout.leftMargin;
  double bottom = panel.layout.topMargin;
  for (const Fragment& fragment : panel.Transcript()) {
    right = std::max(right, panel.CellX(fragment.Right()));
    bottom = std::max(bottom, panel.CellY(fragment.Bottom() - 1) + rowHeight);
  }
  return {static_cast<int>(std::ceil(right)) + panel.layout.leftMargin,
          static_cast<int>(std::ceil(bottom)) + panel.layout.topMargin};
}

void Shrink(TextPanel& panel, platform::PixelPoint size) {
  platform::PictureBox& box = panel.surface;
  const int width = std::min(size.x, box.PixelWidth());
  const int height = std::min(size.y, box.PixelHeight());
  platform::Surface kept(width, height);
  kept.BitBlt(0, 0, width, height, box, 0, 0);
  box.Move(box.Left(), box.Top(), width * platform::TwipsPerPixelX,
           height * platform::TwipsPerPixelY);
  box.BitBlt(0, 0, width, height, kept, 0, 0);
  box.Refresh();
}

}  // namespace

void picCommentBoxLocate(int box, double row, double col) {
  CommentPanel(box, "picCommentBoxLocate").Locate(row, col);
}

void picCommentBoxSetColor(int box, platform::Colour colour) {
  CommentPanel(box, "picCommentBoxSetColor").SetColor(colour);
}

void picCommentBoxisPrint(int box, const std::string& s) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxisPrint");
  PrintOn(panel, s, RightColumnOf(panel));
}

void picCommentBoxisPrint(int box) {
  NewLineOn(CommentPanel(box, "picCommentBoxisPrint"));
}

void picCommentBoxisPrints(int box, const std::string& s) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  picCommentBoxisPrint(box, s);
}

void picCommentBoxisPrintExponent1(int box, const std::string& s, int size, double rowShift) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxisPrintExponent1");
  PrintScriptOn(panel, s, SizeOr(size, panel), rowShift, 1);
}

void picCommentBoxisPrintExponentExpression(int box, const std::string& s, int size,
                                            double rowShift) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxisPrintExponentExpression");
  PrintMarkedOn(panel, s, SizeOr(size, panel), rowShift);
}

void picCommentBoxWordWrap(int box, const std::string& s) {
  Wrap(box, s, "picCommentBoxWordWrap");
}

void picCommentBoxWordWraps(int box, const std::string& s) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  picCommentBoxWordWrap(box, s);
}

void picCommentBoxWordWrapIndent(int box, const std::string& s, double indentCol) {
  const ScopedValue on(wrapState.gIndentOn, 1);
  const ScopedValue col(wrapState.gIndentCol, indentCol);
  picCommentBoxWordWrap(box, s);
}

void picCommentBoxWordWrapIndents(int box, const std::string& s, double indentCol) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  picCommentBoxWordWrapIndent(box, s, indentCol);
}

void picCommentBoxWordWrapNarrow(int box, const std::string& s, double wid) {
  const NarrowWidth narrow(wid);
  picCommentBoxWordWrap(box, s);
}

void picCommentBoxWordWrapNarrows(int box, const std::string& s, double wid) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  picCommentBoxWordWrapNarrow(box, s, wid);
}

void picCommentBoxWordWrapIndentNarrow(int box, const std::string& s, double indentCol,
                                       double wid) {
  const NarrowWidth narrow(wid);
  picCommentBoxWordWrapIndent(box, s, indentCol);
}

void picCommentBoxWordWrapIndentNarrows(int box, const std::string& s, double indentCol,
                                        double wid) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  picCommentBoxWordWrapIndentNarrow(box, s, indentCol, wid);
}

void picCommentBoxWordWrap0(int box, const std::string& s) {
  picCommentBoxWordWrap(box, s);
  TextPanel& panel = CommentPanel(box, "picCommentBoxWordWrap0");
  Shrink(panel, UsedSize(panel));
}

}  // namespace course
