#include "display/comment_box.h"

#include <cmath>

#include "display/comment_panel.h"
#include "display/drawing_cells.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr double kScreenColumns = 40;

struct TutorSize {
  int size;  // points
  int cellWidth;
  int cellHeight;
  int exponentSize;
};
constexpr TutorSize kTutorSizes[] = {{9, 7, 11, 8},    {10, 8, 12, 8},  {11, 9, 13, 8},
                                     {12, 10, 14, 10}, {13, 10, 15, 8}, {14, 11, 17, 10},
                                     {15, 12, 18, 10}, {20, 16, 25, 14}};

TutorSize CellsOfSize(int size) {
  if (size < 9 || size > 20)
    platform::Stop("picCommentBoxPrepare2: size " + std::to_string(size) +
                   ".  Sizes 9 to 20 are allowed.");
  for (const TutorSize& row : kTutorSizes)
    if (row.size == size) return row;
  // Sizes between 15 and 20 keep the proportions of both.
  return {size, RoundedPixel(0.8 * size), RoundedPixel(1.25 * size), 10};
}

int Twips(double pixels) {
  return static_cast<int>(RoundHalfEven(pixels * platform::TwipsPerPixelX));
}

struct BoxPlace {
  double row;  // cells of the lesson screen
  double col;
  double wd;
  double ht;
};

void Place(TextPanel& panel, const BoxPlace& place, platform::Colour backColor,
           const TextPanel::Layout& layout) {
  const double col = place.col > 0 ? place.col : (kScreenColumns - place.wd) / 2 + 1;
  const platform::PixelPoint at = CellInTwips(place.row, col);
  panel.surface.Move(at.x, at.y, Twips(gCellWidth * place.wd), Twips(gCellHeight * place.ht));
  panel.layout = layout;
  panel.RestoreFont();
  panel.surface.BackColor = backColor;
  panel.Cls();
  panel.Locate(1, 1);
}

TextPanel::Layout ScreenCells(platform::Colour foreColor) {
  return {.characters = CharacterSet::CommentBox, .restoredColour = foreColor};
}

}  // namespace

TextPanel& CommentPanel(int box, const char* routine) {
  if (box < frmPR->picCommentBox.First() || box > frmPR->picCommentBox.Last())
    platform::Stop(std::string(routine) + ": comment box " + std::to_string(box) +
                   ".  Boxes 1 to 5 exist.");
  return *frmPR->commentText[static_cast<std::size_t>(box)];
}

void picCommentBoxPrepare1(int box, double row, double col, double wd, double ht,
                           platform::Colour backColor, platform::Colour foreColor,
                           const std::string& font, bool bold, bool italic, double size) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxPrepare1");
  Place(panel, {row, col, wd, ht}, backColor, ScreenCells(foreColor));
  panel.surface.FontName = font.empty() ? "MS Sans Serif" : font;
  panel.surface.FontBold = bold;
  panel.surface.FontItalic = italic;
  panel.surface.FontSize = size;
}

void picCommentBoxPrepare2(int box, double row, double col, double wd, double ht,
                           platform::Colour backColor, platform::Colour foreColor, int size,
                           int padding) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxPrepare2");
  const TutorSize cells = CellsOfSize(size);
  Place(panel, {row, col, wd, ht}, backColor,
        {.cellWidth = cells.cellWidth,
         .cellHeight = cells.cellHeight,
         .leftMargin = padding,
         .topMargin = padding,
         .fontSize = static_cast<double>(size),
         .exponentSize = cells.exponentSize,
         .characters = CharacterSet::CommentBox,
         .restoredColour = foreColor});
}

void picCommentBoxShow(int box) {
  CommentPanel(box, "picCommentBoxShow").surface.SetVisible(true);
}

void picCommentBoxHide(int box) {
  CommentPanel(box, "picCommentBoxHide").surface.SetVisible(false);
}

const TextPanel::Layout& gCommentBoxPrintInfo(int box) {
  return CommentPanel(box, "gCommentBoxPrintInfo").layout;
}

void picCommentBoxWithNiceHeadingPrepare(int box, const std::string& text, double row, double col,
                                         const std::string& font, bool bold, bool italic,
                                         double size, platform::Colour foreColor,
                                         platform::Colour shadowColor, int shadowThickness,
                                         int hPad, int vPad, platform::Colour backColor) {
  TextPanel& panel = CommentPanel(box, "picCommentBoxWithNiceHeadingPrepare");
  const HeadingStyle style{font, bold, italic, size, foreColor, shadowColor, shadowThickness};
  SetHeadingFont(panel.surface, style);
  const double width = PlainWidth(panel.surface, InPlainFace(text)) + shadowThickness + 2 * hPad;
  const double height = panel.surface.TextHeight(text) + shadowThickness + 2 * vPad;
  Place(panel, {row, col, std::ceil(width) / gCellWidth, std::ceil(height) / gCellHeight},
        backColor, ScreenCells(foreColor));
  PrintHeadingOn(panel, text, hPad, vPad, style);
  panel.RestoreFont();
}

void picCommentBoxWithNiceHeadingShow(int box) {
  picCommentBoxShow(box);
}

void picCommentBoxWithNiceHeadingHide(int box) {
  picCommentBoxHide(box);
}

}  // namespace course
