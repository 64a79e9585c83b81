#include "lessons/families/written/written_columns.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "display/drawing.h"
#include "display/grid.h"
#include "display/print.h"
#include "lessons/page/page_error.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/slides.h"

namespace course::written {

using namespace page;
using platform::Colour;
using platform::colour::White;
using platform::colour::Yellow;

namespace {

constexpr double kSignGap = 4;     // cells from the sign to the highest place
constexpr double kBarDrop = 0.85;  // rows from a row to the bar under it
constexpr int kBarThickness = 2;   // pixels
constexpr double kNear = 0.01;

// The cursor is where it was when the print is done.
class CursorKeeper {
 public:
  CursorKeeper() : x_(frmPR->lessonText.cursorX), y_(frmPR->lessonText.cursorY) {}
  ~CursorKeeper() { frmPR->lessonText.SetCursor(x_, y_); }
  CursorKeeper(const CursorKeeper&) = delete;
  CursorKeeper& operator=(const CursorKeeper&) = delete;

 private:
  int x_;
  int y_;
};

void Print(double row, double col, const std::string& text, Colour colour) {
  const CursorKeeper keeper;
  Locate(row, col);
  isColorPrints(text, colour);
}

bool Near(double a, double b) {
  return std::abs(a - b) < kNear;
}

}  // namespace

WrittenColumns::WrittenColumns(double onesCol, double step) : onesCol_(onesCol), step_(step) {
  if (step < 2) StopPage("WrittenColumns: a column of " + CellText(step) + " cells");
}

double WrittenColumns::ColumnOf(int place) const {
  return onesCol_ - place * step_;
}

// --- What stands there -----------------------------------------------------------------------

Colour WrittenColumns::ColourOf(int place) const {
  return picked_ == place ? Yellow : White;
}

WrittenColumns::Mark* WrittenColumns::Find(double row, double col) {
  const auto found = std::ranges::find_if(
      marks_, [&](const Mark& mark) { return Near(mark.row, row) && Near(mark.col, col); });
  return found == marks_.end() ? nullptr : &*found;
}

WrittenColumns::Mark& WrittenColumns::At(const char* routine, double row, int place) {
  Mark* const mark = Find(row, ColumnOf(place));
  if (mark == nullptr)
    StopPage(std::string(routine) + ": no digit at row " + CellText(row) + ", place " +
             std::to_string(place));
  return *mark;
}

void WrittenColumns::Put(const Mark& mark) {
  if (Mark* const old = Find(mark.row, mark.col); old != nullptr)
    *old = mark;
  else
    marks_.push_back(mark);
  Print(mark.row, mark.col, mark.text, mark.colour);
}

void WrittenColumns::NoteExtent(int place) {
  highest_ = empty_ ? place : std::max(highest_, place);
  lowest_ = empty_ ? place : std::min(lowest_, place);
  empty_ = false;
}

// --- Writing ---------------------------------------------------------------------------------

void WrittenColumns::Write(double row, const std::string& number, int shift) {
  const std::size_t point = std::min(number.find('.'), number.size());
  int place = static_cast<int>(point) - 1 + shift;
  for (const char c : number) {
    if (c == '.')
      Put({row, ColumnOf(0) + std::floor(step_ / 2), 0, ".", White});
    else
      WriteDigit(row, place--, c);
  }
}

void WrittenColumns::WriteDigit(double row, int place, char digit) {
  NoteExtent(place);
  Put({row, ColumnOf(place), place, std::string(1, digit), ColourOf(place)});
}

void WrittenColumns::WriteSign(double row, const std::string& sign) {
  Print(row, ColumnOf(highest_) - kSignGap, sign, White);
}

void WrittenColumns::WritePlaceNames(double row, int highest) {
  constexpr std::array kNames = {"ones", "tens", "hundreds", "thousands"};
  for (int place = highest; place >= 0; --place) {
    const std::string name = kNames.at(static_cast<std::size_t>(place));
    Print(row, ColumnOf(place) + 0.5 - static_cast<double>(name.size()) / 2, name, White);
  }
}

void WrittenColumns::Rule(double row) {
  rules_.push_back({row + kBarDrop, ColumnOf(highest_) - kSignGap, ColumnOf(lowest_) + 1});
  DrawRule(rules_.back());
}

void WrittenColumns::Rule(double row, int highest, int lowest) {
  rules_.push_back({row + kBarDrop, ColumnOf(highest) - 1, ColumnOf(lowest) + 1});
  DrawRule(rules_.back());
}

void WrittenColumns::DrawRule(const RuleLine& rule) const {
  isDrawHorizLineWithColor(rule.row, rule.firstCol, rule.lastCol, kBarThickness, White);
}

void WrittenColumns::Erase(double row, int place) {
  const Mark& mark = At("Erase", row, place);
  ClearCells(mark.row, mark.col, 1, 1);
  marks_.erase(marks_.begin() + (&mark - marks_.data()));
}

// --- The column in work ----------------------------------------------------------------------

void WrittenColumns::PickOut(int place) {
  picked_ = place;
  Recolour();
}

void WrittenColumns::PickOutNone() {
  picked_.reset();
  Recolour();
}

void WrittenColumns::Recolour() {
  for (Mark& mark : marks_) {
    const Colour colour = ColourOf(mark.place);
    if (mark.text == "." || mark.colour == colour) continue;
    mark.colour = colour;
    Print(mark.row, mark.col, mark.text, colour);
  }
  for (const Stroke& stroke : strokes_) DrawStroke(stroke);  // a print erases it
}

// --- What moves ------------------------------------------------------------------------------

// A rule on the way is drawn again when the digit has passed it.
void WrittenColumns::CarryUp(double fromRow, int place, double toRow) {
  constexpr double kReach = 1.3;  // rows that the moving cell covers, and a little more
  const Mark digit = At("CarryUp", fromRow, place);
  const bool atPoint = place == 0 && lowest_ < 0;
  const CursorKeeper keeper;
  const auto slideLeft = [&](double row, double col) {
    SlideLeft({row, col, 1}, 1, Leaving::Nothing, Pace::Brisk);
  };
  const auto slideRight = [&](double row, double col) {
    SlideRight({row, col, 1}, 1, Leaving::Nothing, Pace::Brisk);
  };
  const double lane = digit.col + (atPoint ? -1 : 1);
  Put({digit.row, digit.col, place, digit.text, Yellow});
  marks_.erase(marks_.begin() + (Find(digit.row, digit.col) - marks_.data()));
  atPoint ? slideLeft(digit.row, digit.col) : slideRight(digit.row, digit.col);
  for (double row = fromRow; row > toRow + kNear;) {
    const double rows = std::min(1.0, row - toRow);
    SlideUp({row, lane, 1}, rows, Leaving::Nothing, Pace::Brisk);
    row -= rows;
    for (const RuleLine& rule : rules_)
      if (rule.row + 0.5 < row || rule.row + 0.5 > row + kReach) DrawRule(rule);
  }
  atPoint ? slideRight(toRow, lane) : slideLeft(toRow, lane);
  marks_.push_back({toRow, digit.col, place, digit.text, Yellow});
}

void WrittenColumns::BringDown(double fromRow, int place, double toRow) {
  Mark digit = At("BringDown", fromRow, place);
  const CursorKeeper keeper;
  SlideDown({fromRow, digit.col, 1}, toRow - fromRow, Leaving::Copy, Pace::Brisk);
  digit.row = toRow;
  Put(digit);
}

void WrittenColumns::DrawStroke(const Stroke& stroke) {
  constexpr double kUp = 0.38;      // rows from the digit's middle
  constexpr double kMiddle = 0.12;  // letters stand a little below the middle of their cells
  constexpr int kThickness = 2;     // pixels
  isDrawDiagonalLineWithColor(stroke.row + kMiddle + kUp, stroke.firstCol,
                              stroke.row + kMiddle - kUp, stroke.lastCol, kThickness, Yellow);
}

void WrittenColumns::StrikeOut(double row, int place) {
  constexpr double kAside = 0.45;  // columns from the digit's middle
  const Mark& digit = At("StrikeOut", row, place);
  const bool isTen = Find(row, digit.col - 1) != nullptr;
  strokes_.push_back({row, digit.col - kAside - (isTen ? 1 : 0), digit.col + kAside});
  DrawStroke(strokes_.back());
}

void WrittenColumns::WriteOneInFront(double row, int place) {
  const double col = At("WriteOneInFront", row, place).col - 1;
  if (step_ > 2) {  // there is a free cell beside the higher digit
    const CursorKeeper keeper;
    Print(row, col - 1, "1", Yellow);
    SlideRight({row, col - 1, 1}, 1);
  }
  Put({row, col, place, "1", Yellow});
}

}  // namespace course::written
