#include "display/print_cells.h"

#include <algorithm>

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/plain_face.h"
#include "mathkit/integers.h"
#include "platform/stop.h"

namespace course {
namespace {

using platform::colour::Black;
using platform::colour::Red;
using platform::colour::White;

constexpr platform::Colour kGround = platform::Rgb(233, 238, 248);
constexpr double kHundred = 100;  // units of the panel's width and height
constexpr double kLeftColumns = 2;
constexpr double kColumnLabelSize = 12;  // points

const PrintCellTable& MixtureTable() {
  static const PrintCellTable table = {
      .widthPixels = 608,
      .heightPixels = 200,
      .cells = {{16, 25, 23, 20},
                {44, 25, 23, 20},
                {72, 25, 23, 20},
                {16, 50, 23, 20},
                {44, 50, 23, 20},
                {72, 50, 23, 20},
                {16, 75, 23, 20},
                {44, 75, 23, 20},
                {72, 75, 23, 20}},
      .labels = {{16, 2, 23, 25, "Percent\rof acid", kColumnLabelSize, Red, true},
                 {44, 1, 23, 25, "Quantity", kColumnLabelSize, Red, true},
                 {72, 2, 23, 25, "Amount\rof acid", kColumnLabelSize, Red, true},
                 {1, 29, 14, 22, "Original", 10, Black, false},
                 {1, 54, 14, 22, "Additive", 10, Black, false},
                 {1, 79, 14, 22, "Final", 10, Black, false}},
      .marks = {}};
  return table;
}

const PrintCellTable& DistanceTable() {
  static const PrintCellTable table = {.widthPixels = 608,
                                       .heightPixels = 175,
                                       .cells = {{16, 25, 25, 30},
                                                 {44, 25, 25, 30},
                                                 {72, 25, 25, 30},
                                                 {16, 60, 25, 30},
                                                 {44, 60, 25, 30},
                                                 {72, 60, 25, 30}},
                                       .labels = {{19, 1, 20, 20, "Rate", 14, Red, true},
                                                  {47, 1, 20, 20, "Time", 14, Red, true},
                                                  {75, 1, 20, 20, "Distance", 14, Red, true},
                                                  {1, 30, 13, 30, "Train A", 14, Black, false},
                                                  {1, 65, 13, 30, "Train B", 14, Black, false}},
                                       .marks = {{42, 0, "x", 14}, {69, 0, "=", 14}}};
  return table;
}

int Twips(double pixels) {
  return static_cast<int>(RoundHalfEven(pixels * platform::TwipsPerPixelX));
}

// From hundredths of the panel to its twips.
void MoveInside(platform::Control& control, double left, double top, double width, double height) {
  const platform::PictureBox& box = frmPR->picPrintCellBox;
  const double unitX = box.Width() / kHundred;
  const double unitY = box.Height() / kHundred;
  control.Move(static_cast<int>(left * unitX), static_cast<int>(top * unitY),
               static_cast<int>(width * unitX), static_cast<int>(height * unitY));
}

void HideAll() {
  frmPR->picPrintCellBox.SetVisible(false);
  for (int i = 1; i <= frmPR->picPrintCell.Last(); ++i) frmPR->picPrintCell[i].SetVisible(false);
  for (int i = 1; i <= frmPR->lblPrintCell.Last(); ++i) frmPR->lblPrintCell[i].SetVisible(false);
}

void PlaceBox(double row, const PrintCellTable& table) {
  platform::PictureBox& box = frmPR->picPrintCellBox;
  box.Move(frmPR->pnlLesson.Left() + Twips(kLeftColumns * gCellWidth), CellInTwips(row, 1).y,
           Twips(table.widthPixels), Twips(table.heightPixels));
  box.BackColor = kGround;
  box.SetBorder(true);
  box.Cls();
  box.Scale(0, 0, kHundred, kHundred);
}

void PlaceCell(int index, const PrintCellTable::Cell& place) {
  platform::PictureBox& cell = frmPR->picPrintCell[index];
  MoveInside(cell, place.left, place.top, place.width, place.height);
  cell.BackColor = White;
  cell.SetBorder(true);
  picPrintCellCls(index);
  cell.BringToFront();  // the headings reach a little over the first row
  cell.SetVisible(true);
}

void PlaceLabel(int index, const PrintCellTable::Label& place) {
  platform::Label& label = frmPR->lblPrintCell[index];
  // Clear of the panel's border.
  const double height = std::min(place.height, kHundred - 1 - place.top);
  MoveInside(label, place.left, place.top, place.width, height);
  label.SetAlignment(place.centred ? platform::Label::Align::Centre : platform::Label::Align::Left);
  label.SetUtf8Caption(PlainUtf8(place.caption));
  label.SetFont("MS Sans Serif", place.fontSize, true);
  label.SetColours(place.colour, kGround);
  label.SetVisible(true);
}

void PrintMark(const PrintCellTable::Mark& mark) {
  platform::PictureBox& box = frmPR->picPrintCellBox;
  box.ForeColor = Black;
  box.FontSize = mark.fontSize;
  box.FontBold = true;
  box.CurrentX = mark.x;
  box.CurrentY = mark.y;
  box.Print(InPlainFace(mark.text));
}

void Prepare(double row, const PrintCellTable& table) {
  HideAll();
  PlaceBox(row, table);
  int index = 0;
  for (const PrintCellTable::Cell& cell : table.cells) PlaceCell(++index, cell);
  index = 0;
  for (const PrintCellTable::Label& label : table.labels) PlaceLabel(++index, label);
  for (const PrintCellTable::Mark& mark : table.marks) PrintMark(mark);
}

TextPanel& Cell(int cell, const char* routine) {
  if (cell < frmPR->picPrintCell.First() || cell > frmPR->picPrintCell.Last())
    platform::Stop(std::string(routine) + ": cell " + std::to_string(cell) +
                   ".  Cells 1 to 12 exist.");
  return *frmPR->cellText[cell];
}

}  // namespace

void picPrintCellBoxPrepare1(double row) {
  Prepare(row, MixtureTable());
}

void picPrintCellBoxPrepare2(double row) {
  Prepare(row, DistanceTable());
}

void picPrintCellBoxPrepare3(double row, const PrintCellTable& table) {
  if (table.cells.size() > static_cast<std::size_t>(frmPR->picPrintCell.Last()) ||
      table.labels.size() > static_cast<std::size_t>(frmPR->lblPrintCell.Last()))
    platform::Stop("picPrintCellBoxPrepare3: " + std::to_string(table.cells.size()) +
                   " cells and " + std::to_string(table.labels.size()) +
                   " labels.  At most 12 and 6 exist.");
  Prepare(row, table);
}

void picPrintCellBoxShow() {
  frmPR->picPrintCellBox.SetVisible(true);
  frmPR->picPrintCellBox.Refresh();
}

void picPrintCellBoxHide() {
  frmPR->picPrintCellBox.SetVisible(false);
}

void picPrintCellPrint(int cell, const std::string& s, platform::Colour colour, double fontSize) {
  TextPanel& panel = Cell(cell, "picPrintCellPrint");
  platform::PictureBox& box = panel.surface;
  const std::string text = InPlainFace(s);
  box.ForeColor = colour;
  box.ScalePixels();
  box.FontName = "MS Sans Serif";
  box.FontBold = false;
  box.FontSize = fontSize;
  const double width = PlainWidth(box, text);
  const double x = (box.ScaleWidth() - width) / 2;
  const double y = (box.ScaleHeight() - box.TextHeight(text)) / 2;
  PrintPlain(box, text, x, y);
  box.Refresh();
  panel.SetCursor(x, y);
  panel.Record(s, width);
}

void picPrintCellCls(int cell) {
  TextPanel& panel = Cell(cell, "picPrintCellCls");
  panel.Cls();
  panel.surface.Refresh();
}

}  // namespace course
