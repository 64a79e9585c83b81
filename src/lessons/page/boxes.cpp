#include "lessons/page/boxes.h"

#include <algorithm>
#include <cmath>

#include "display/animation.h"
#include "display/comment_box.h"
#include "display/drawing.h"
#include "display/grid.h"
#include "display/notes.h"
#include "display/panel_views.h"
#include "display/print.h"
#include "display/print_cells.h"
#include "display/wiper_box.h"
#include "display/word_wrap.h"
#include "lessons/page/page_error.h"
#include "lessons/page/paper_box.h"

namespace course::page {
namespace {

using platform::colour::Black;

constexpr double kPanelTop = 2;  // rows
constexpr double kPanelBottom = 25;
constexpr double kPixel = 1.0 / gCellHeight;  // rows; a half row is placed on a whole pixel
constexpr double kAir = 0.5;                  // rows
constexpr double kWipeSpeed = 10;             // a box is wiped often
constexpr double kNoteSize = 12;              // points

// The row of the lesson screen at so many twips of the form.
double RowOfTwips(int twips) {
  const double pixels =
      static_cast<double>(twips - frmPR->pnlLesson.Top()) / platform::TwipsPerPixelY;
  return (pixels - gTopMargin) / gCellHeight + kPanelTop;
}

double TopOf(const platform::Control& control) {
  return RowOfTwips(control.Top());
}
double BottomOf(const platform::Control& control) {
  return RowOfTwips(control.Top() + control.Height());
}

// Everything that lies over the lesson screen, answers aside.
std::vector<platform::Control*> Overlays() {
  std::vector<platform::Control*> overlays;
  for (const PanelView& view : ShownPanels(*frmPR))
    if (view.kind != PanelKind::Lesson && view.kind != PanelKind::Cell &&
        view.kind != PanelKind::Answer)
      overlays.push_back(view.control);
  return overlays;
}

// The first of five boxes that is not shown.
template <class Boxes>
int FreeBox(const Boxes& boxes, const std::string& kind) {
  for (int i = boxes.First(); i <= boxes.Last(); ++i)
    if (!boxes[i].Visible()) return i;
  StopPage("a sixth " + kind + " on one page");
}

int FreeCommentBox() {
  return FreeBox(frmPR->picCommentBox, "comment box");
}

double RowFor(double row) {
  return row == kUnder ? RowBelow() : row;
}

void FinishBox(const platform::Control& box, const std::string& text) {
  if (TopOf(box) < kPanelTop || BottomOf(box) > kPanelBottom + kPixel)
    StopPage("a box stands on rows " + CellText(TopOf(box)) + " to " + CellText(BottomOf(box)) +
             ": \"" + text + "\"");
  GoBelow();
}

bool WhiteBoxIsEmpty() {
  return frmPR->wiperText.Transcript().empty();
}

}  // namespace

// --- Where things stand --------------------------------------------------------------------------

double RowBelow() {
  double bottom = kPanelTop - 1 + kAir;  // so that the first row is found on an empty screen
  for (const Fragment& fragment : frmPR->lessonText.Transcript())
    if (fragment.text.find_first_not_of(' ') != std::string::npos)
      bottom = std::max(bottom, fragment.Bottom());
  for (const platform::Control* overlay : Overlays()) bottom = std::max(bottom, BottomOf(*overlay));
  constexpr double kTolerance = 0.1;  // a box that ends a pixel lower takes no further half row
  return std::ceil(2 * (bottom + kAir - kTolerance)) / 2;
}

void GoBelow() {
  // Behind a full line: whatever is printed next begins on the row under it.
  Locate(RowBelow() - 1, screenState.gRightColumn + 1);
}

void ClearBelow(double row) {
  constexpr double kBandTop = 4.0 / gCellHeight;  // letters begin below the top of their cells
  isDrawBoxFilled(row + kBandTop, 1, kPanelBottom - 1 + kBandTop, screenState.gRightColumn,
                  screenState.gBackColor);
  for (platform::Control* overlay : Overlays())
    if (TopOf(*overlay) >= row - kBandTop) overlay->SetVisible(false);
  Locate(row, 1);
}

// --- Paper ---------------------------------------------------------------------------------------

int PaperBox(const std::vector<std::string>& lines, double row) {
  const int box = FreeCommentBox();
  ShowPaperBox(box, RowFor(row), lines);
  FinishBox(frmPR->picCommentBox[box], lines.front());
  return box;
}

int RuleBox(const std::string& heading, const std::vector<std::string>& lines,
            const BoxPlace& place) {
  const int box = FreeCommentBox();
  ShowRuleBox(box, RowFor(place.row), place.width, heading, lines);
  FinishBox(frmPR->picCommentBox[box], heading);
  return box;
}

int CommentBox(const std::string& paragraph, const BoxPlace& place) {
  const int box = FreeCommentBox();
  ShowParagraphOnPaper(box, RowFor(place.row), place.col == kCentred ? -1 : place.col, place.width,
                       paragraph);
  FinishBox(frmPR->picCommentBox[box], paragraph);
  return box;
}

int Note(double row, double col, const std::string& text) {
  const int index = FreeBox(frmPR->picNotes, "note");
  lblNotesPrepare(index, row, col, " " + text + " ", platform::colour::Yellow, Black, true, false,
                  kNoteSize);
  lblNotesShow(index);
  return index;
}

void CellTable(const PrintCellTable& table, double row) {
  picPrintCellBoxPrepare3(RowFor(row), table);
  picPrintCellBoxShow();
  FinishBox(frmPR->picPrintCellBox, "table of print cells");
}

// --- The white box -------------------------------------------------------------------------------

void WhiteBox(const WhiteBoxPlace& place) {
  wbPrepare(RowFor(place.row), place.width, place.rows, platform::colour::White, Black);
  wbShow();
  FinishBox(frmPR->picWiperBox, "white box");
}

void SayInBox(const std::string& paragraph) {
  constexpr int kLettersBelow = 9;  // pixels of the lowest row below its cell
  if (!WhiteBoxIsEmpty()) wbisPrintLines(kAir);
  wbWordWrap(paragraph);
  wbUpdateCursorCell();
  const double lastRow = frmPR->wiperText.cursorRow - 1;
  if (lastRow * gCellHeight + kLettersBelow > frmPR->picWiperBox.PixelHeight())
    StopPage("the white box has no row " + CellText(lastRow) + " for \"" + paragraph + "\"");
}

void SayInBoxAnew(const std::string& paragraph) {
  if (!WhiteBoxIsEmpty()) wbWipeAndErase(kWipeSpeed);
  if (!paragraph.empty()) SayInBox(paragraph);
}

}  // namespace course::page
