#include "display/wiper_box.h"

#include "display/grid.h"
#include "display/lesson_window.h"
#include "mathkit/integers.h"

namespace course {
namespace {

constexpr int kMarginColumns = 2;  // one on either side of the text
constexpr double kLowestRow = 25;  // of the lesson screen

struct WiperPlace {
  double col;  // of the lesson screen
  double row;
  double wd;  // columns of text
  double ht;  // rows
};

int Twips(double pixels) {
  return static_cast<int>(RoundHalfEven(pixels * platform::TwipsPerPixelX));
}

void Prepare(const WiperPlace& place, platform::Colour backColor, platform::Colour foreColor) {
  const double ht = place.ht == 0 ? kLowestRow - place.row : place.ht;
  screenState.gWbWidth = static_cast<int>(RoundHalfEven(place.wd));
  screenState.gWbHeight = static_cast<int>(RoundHalfEven(ht));
  const platform::PixelPoint at = CellInTwips(place.row, place.col);
  // In whole pixels: a box that begins on half a row ends where its last row does.
  frmPR->picWiperBox.Move(at.x, at.y, Twips((place.wd + kMarginColumns) * gCellWidth),
                          IntOf(ht * gCellHeight) * platform::TwipsPerPixelY);
  wbSetColor(foreColor);
  wbSetBackColor(backColor);
  frmPR->wiperText.Cls();
  wbLocate(1, 1);
}

}  // namespace

void wbPrepare(double row, double wd, double ht, platform::Colour backColor,
               platform::Colour foreColor) {
  const double columnsInPanel = static_cast<double>(frmPR->pnlLesson.PixelWidth()) / gCellWidth;
  // The panel's margin is as wide as a column.
  const double col = (columnsInPanel - (wd + kMarginColumns)) / 2;
  Prepare({col, row, wd, ht}, backColor, foreColor);
}

void wbPrepareAtColumn(double row, double col, double wd, double ht, platform::Colour backColor,
                       platform::Colour foreColor) {
  Prepare({col, row, wd, ht}, backColor, foreColor);
}

void wbShow() {
  frmPR->wiperText.Cls();
  frmPR->picWiperBox.SetVisible(true);
  wbLocate(1, 1);
}

void wbHide() {
  frmPR->picWiperBox.SetVisible(false);
}

void wbSetColor(platform::Colour colour) {
  frmPR->wiperText.SetColor(colour);
}

void wbSetBackColor(platform::Colour colour) {
  frmPR->picWiperBox.BackColor = colour;
  frmPR->wiperText.eraseColour = colour;
}

}  // namespace course
