// The cell grid of the lesson window: cursor, colours and fonts of pnlLesson and of the wiper box.
//
// 40 columns of 16 pixels; rows 2 to 24 of 25 pixels on pnlLesson (row 1 lies above it), rows from
// 1 in the wiper box.  Rows and columns are real numbers; a position is rounded half to even to a
// pixel.
#pragma once

#include <array>

#include "display/lesson_window.h"

namespace course {

// Drawing state of the lesson screen that is no panel's own.
struct ScreenState {
  int gRightColumn = 40;  // last column of the screen
  int gNoNewline = 0;     // flag: a print leaves the cursor behind the text
  int gMeasureOnly = 0;   // flag: texts are measured and not drawn
  int gLineGap = 0;       // extra pixels between wrapped lines: a tuning point, always 0
  int gWbLineGap = 0;
  int gWbWidth = 0;                                      // wiper box, columns
  int gWbHeight = 0;                                     // wiper box, rows
  platform::Colour gBackColor = platform::colour::Blue;  // with which animation erases
  int gDrawTarget = 0;  // 0 lesson panel, negative wiper box, positive that comment box
  int gLocateX = 0;     // where Locate put the cursor, for the proportional wrap
  int gLocateY = 0;
  std::array<double, 2> gCtrlCell{};  // row, column: see ctrlCentreCell
  int gLastFractionWidth = 0;         // columns
};
extern ScreenState screenState;

// Cursor of the lesson panel and of the wiper box.
void Locate(double row, double col);
void wbLocate(double row, double col);
void UpdateCursorCell();
void wbUpdateCursorCell();
double isCursorCol();

// Twips on the form of a grid line, half ones too: "R" row or "C" column, either case.  Any other
// letter ends the program.
double RowOrColumnInTwips(const std::string& which, double value);
// Where a control stands whose corner lies at a cell: on the very pixel on which Locate puts a
// text. In twips of the form.
platform::PixelPoint CellInTwips(double row, double col);
// Writes the cell of a control's centre to gCtrlCell: row, then column.
void ctrlCentreCell(const platform::Control& control);

// Converters from the pixels of an older screen, 8 or 7 a column and 8 a row.
int Pixel8X(double x);
int Pixel8Y(double y);
int Pixel7X(double x);
int Pixel8Y1(double y);

// Fonts and colours of pnlLesson.
void SetPrintFont(const std::string& name, bool bold, double size);
void SetFontSize(double size);
void RestoreFontSize();
void RestoreTutorFont();
void wbRestoreTutorFont();
void SetColor(platform::Colour colour);  // until the next SetColor or new screen
void RestoreColor();
void SetDontEraseBackground();
void SetEraseBackground();

// The display half of a new screen: fonts, colours, flags and cursor back to their defaults, every
// box and figure hidden, the panel cleared.
void ResetScreen();

}  // namespace course
