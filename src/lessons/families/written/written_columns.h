// Written arithmetic on the lesson screen: numbers one under the other, a digit a column, the
// decimal points in a column of their own.  Digits are carried, borrowed and brought down.
//
// Rows and columns are those of the lesson screen.  A place is the exponent of its 10: 0 the ones,
// 1 the tens, 2 the hundreds, -1 the tenths.  Texts beside the columns go on where they were: the
// cursor stays.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course::written {

// From a row to the first one below its rule.
inline constexpr double kBelowRule = 1.5;

class WrittenColumns {
 public:
  // The column of the ones, in cells, and the cells from a place to the next one, 2 or more: wider
  // columns have room for the names of the places, 3 cells for the 1 of a borrowed ten.
  explicit WrittenColumns(double onesCol, double step = 2);

  double ColumnOf(int place) const;

  // "305" or "3.27", so many places further to the left.  Its digits stand in the columns of their
  // places, its point between ones and tenths.
  void Write(double row, const std::string& number, int shift = 0);
  // In place of what stands there; in yellow in the column in work.
  void WriteDigit(double row, int place, char digit);
  // A text such as "+", four cells left of the highest place that was written so far.
  void WriteSign(double row, const std::string& sign);
  // "ones", "tens" and so on, over their columns, from the highest place on.  Columns of 9 cells
  // have room for "hundreds"; places up to 3.
  void WritePlaceNames(double row, int highest);
  // A line under a row, as wide as its places and the sign; by default all that were written.
  void Rule(double row);
  void Rule(double row, int highest, int lowest);
  // Takes a digit away.
  void Erase(double row, int place);

  // The column in work: its digits are yellow, all others white.
  void PickOut(int place);
  void PickOutNone();

  // A digit travels from one row up to another, through the gap beside its column.  What it passes
  // stays as it is.
  void CarryUp(double fromRow, int place, double toRow);
  // A copy of a digit travels down its column, which has to be free between the rows.
  void BringDown(double fromRow, int place, double toRow);
  // Borrowing: a stroke through a digit and the 1 that may stand in front of it, a new digit
  // elsewhere.
  void StrikeOut(double row, int place);
  // The 1 of a borrowed ten, in front of a digit.  In columns of 3 cells or more it comes over from
  // the next higher digit.
  void WriteOneInFront(double row, int place);

 private:
  struct Mark {
    double row;
    double col;
    int place;
    std::string text;
    platform::Colour colour;
  };
  struct RuleLine {
    double row;  // of the bar
    double firstCol;
    double lastCol;
  };

  struct Stroke {
    double row;
    double firstCol;
    double lastCol;
  };

  platform::Colour ColourOf(int place) const;
  Mark* Find(double row, double col);
  // The mark that stands there; another stops the program.
  Mark& At(const char* routine, double row, int place);
  void Put(const Mark& mark);
  void Recolour();
  void DrawRule(const RuleLine& rule) const;
  static void DrawStroke(const Stroke& stroke);
  void NoteExtent(int place);

  double onesCol_;
  double step_;
  std::vector<Mark> marks_;
  std::vector<RuleLine> rules_;
  std::vector<Stroke> strokes_;
  std::optional<int> picked_;
  bool empty_ = true;  // no digit was written
  int highest_ = 0;
  int lowest_ = 0;
};

}  // namespace course::written
