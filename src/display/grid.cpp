#include "display/grid.h"

#include <cmath>

#include "display/panel_views.h"
#include "display/word_wrap.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {

ScreenState screenState;

namespace {

// Drawings were laid out on an older screen in units of 8 or 7 a column and 8 a row.
constexpr double kUnit8X = gCellWidth / 8.0;
constexpr double kUnit7X = gCellWidth / 7.0;
constexpr double kUnit8Y = gCellHeight / 8.0;

int NotNegative(double value) {
  return value < 0 ? 0 : IntOf(value);
}

void RestorePanelFont(TextPanel& panel) {
  panel.dontEraseBackground = 0;
  panel.RestoreFont();
}

void HideNavigationButtons() {
  for (int i = 0; i <= 10; ++i) frmPR->cmdNavigate[i].SetVisible(i == 3);
}

}  // namespace

void Locate(double row, double col) {
  frmPR->lessonText.Locate(row, col);
  screenState.gLocateX = frmPR->lessonText.cursorX;
  screenState.gLocateY = frmPR->lessonText.cursorY;
}

void wbLocate(double row, double col) {
  frmPR->wiperText.Locate(row, col);
}

void UpdateCursorCell() {
  frmPR->lessonText.UpdateCursorCell();
}

void wbUpdateCursorCell() {
  frmPR->wiperText.UpdateCursorCell();
}

double isCursorCol() {
  UpdateCursorCell();
  return frmPR->lessonText.cursorCol;
}

double RowOrColumnInTwips(const std::string& which, double value) {
  const std::string letter = UpperCase(which);
  const TextPanel& panel = frmPR->lessonText;
  if (letter == "R") return platform::TwipsPerPixelY * panel.CellY(value) + frmPR->pnlLesson.Top();
  if (letter == "C") return platform::TwipsPerPixelX * panel.CellX(value) + frmPR->pnlLesson.Left();
  platform::Stop("Function RowOrColumnInTwips: Improper parameter");
}

platform::PixelPoint CellInTwips(double row, double col) {
  const TextPanel& panel = frmPR->lessonText;
  const auto twips = [](double pixel) {
    return static_cast<int>(RoundHalfEven(pixel)) * platform::TwipsPerPixelX;
  };
  return {twips(panel.CellX(col)) + frmPR->pnlLesson.Left(),
          twips(panel.CellY(row)) + frmPR->pnlLesson.Top()};
}

void ctrlCentreCell(const platform::Control& control) {
  const platform::PictureBox& panel = frmPR->pnlLesson;
  const double y = control.Top() + control.Height() / 2.0 - panel.Top();
  const double x = control.Left() + control.Width() / 2.0 - panel.Left();
  screenState.gCtrlCell[0] =
      (y - gTopMargin * platform::TwipsPerPixelY) / (gCellHeight * platform::TwipsPerPixelY) + 2;
  screenState.gCtrlCell[1] =
      (x - gLeftMargin * platform::TwipsPerPixelX) / (gCellWidth * platform::TwipsPerPixelX) + 1;
}

int Pixel8X(double x) {
  return static_cast<int>(RoundHalfEven(gLeftMargin + x * kUnit8X));
}

int Pixel8Y(double y) {
  const double v = gTopMargin + (y - 8) * kUnit8Y;
  return v < 0 ? 0 : static_cast<int>(RoundHalfEven(v));
}

int Pixel7X(double x) {
  return NotNegative(gLeftMargin + x * kUnit7X) + 1;
}

int Pixel8Y1(double y) {
  return NotNegative(gTopMargin + y * kUnit8Y - gCellHeight) + 1;
}

void SetPrintFont(const std::string& name, bool bold, double size) {
  platform::Surface& surface = frmPR->pnlLesson;
  surface.FontName = name;
  surface.FontBold = bold;
  surface.FontSize = size;
}

void SetFontSize(double size) {
  frmPR->lessonText.SetFontSize(size);
}

void RestoreFontSize() {
  frmPR->lessonText.SetFontSize(frmPR->lessonText.layout.fontSize);
}

void RestoreTutorFont() {
  frmPR->lessonText.RestoreFont();
}

void wbRestoreTutorFont() {
  frmPR->wiperText.RestoreFont();
}

void SetColor(platform::Colour colour) {
  frmPR->lessonText.SetColor(colour);
}

void RestoreColor() {
  frmPR->pnlLesson.ForeColor = frmPR->lessonText.textColour;
}

void SetDontEraseBackground() {
  frmPR->lessonText.dontEraseBackground = 1;
}

void SetEraseBackground() {
  frmPR->lessonText.dontEraseBackground = 0;
}

void ResetScreen() {
  LessonWindow& window = *frmPR;
  RestorePanelFont(window.lessonText);
  RestorePanelFont(window.wiperText);
  RestorePanelFont(window.wiperText2);
  screenState.gBackColor = platform::colour::Blue;
  screenState.gDrawTarget = 0;
  screenState.gMeasureOnly = 0;
  screenState.gLineGap = 0;
  screenState.gWbLineGap = 0;
  wrapState = WrapState{};
  // The panel itself stays, the answers go with their problem, and cells with their table.
  for (const PanelView& view : ShownPanels(window))
    if (view.kind != PanelKind::Lesson && view.kind != PanelKind::Cell &&
        view.kind != PanelKind::Answer)
      view.control->SetVisible(false);
  for (int i = 1; i <= window.picAnswer.Last(); ++i) window.answerText[i]->RestoreFont();
  HideNavigationButtons();
  window.picRules1.SetVisible(false);
}

}  // namespace course
