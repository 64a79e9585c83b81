// An equation or inequality on the lesson screen, rewritten row under row: the relations stand in
// one column, and terms with the letter, numbers and their signs stand each under its like.
//
// Everything is text, so that a side may hold letters in place of numbers too.
#pragma once

#include <string>
#include <vector>

#include "platform/geometry.h"

namespace course::equations {

// The column of the relation, and the last one of the left side.
inline constexpr int kRelationCol = 21;
inline constexpr int kLeftEndCol = 18;
inline constexpr int kRightStartCol = 24;

// The four places of a row; an empty text leaves its place free.  A number behind a term begins
// with a hard blank and its sign, " + 7".
struct SheetRow {
  std::string leftTerm;
  std::string leftNumber;
  std::string rightTerm;
  std::string rightNumber;
};

// Both sides divided: numerators and the denominator that they share.
struct QuotientRow {
  std::string left;
  std::string right;
  std::string divisor;
};

// The first column of all, and the last ones of the places; the left number ends at kLeftEndCol.
struct SheetColumns {
  int first = kLeftEndCol;
  int leftTerm = kLeftEndCol;
  int rightTerm = kRightStartCol - 1;
  int rightNumber = kRightStartCol - 1;
};
SheetColumns ColumnsFor(const std::vector<SheetRow>& rows);

class EquationSheet {
 public:
  // Rows of the lesson screen between which the sheet may write, and all the sums and addends that
  // it will hold: its columns are wide enough for them from the first row on.
  EquationSheet(double firstRow, double lastRow, const std::vector<SheetRow>& rows);

  // The first row.
  void Write(const SheetRow& row, const std::string& relation);
  // Draws the same terms in from the right under each side, and a bar under them.
  void AddUnder(const SheetRow& terms);
  // What that gives, under the bar.
  void WriteSum(const SheetRow& row, const std::string& relation);
  // Both sides as built-up fractions.  A blank relation leaves its place free.
  void WriteQuotients(const QuotientRow& row, const std::string& relation);
  // The relation of the row written last.
  void WriteRelation(const std::string& relation,
                     platform::Colour colour = platform::colour::White);
  // The letter alone against a value, whose n/d is built up: "5", "-5/2", "-2 1/2".
  void WriteSolved(const std::string& letter, const std::string& relation,
                   const std::string& value);
  // The same in place of the fraction that was written so.
  void ReplaceSolved(const std::string& letter, const std::string& relation,
                     const std::string& value);
  // SOLUTION beside the row written last.
  void MarkSolution();

  // Carries the row written last up, over those before it, when fewer than so many rows are left
  // under it.  The first row stays: it is the problem.
  void MakeRoom(double rows);

 private:
  void GoDown(bool toFraction);
  void WriteSolvedHere(const std::string& letter, const std::string& relation,
                       const std::string& value);
  void WriteCells(const SheetRow& row, int shift, platform::Colour colour);
  int StartOf(int width) const;

  double firstRow_;
  double lastRow_;
  SheetColumns columns_;
  double row_;                   // written last; the middle one of built-up fractions
  int endCol_ = kRightStartCol;  // its last column
  bool atFraction_ = false;      // the row written last reaches one row up and down
};

}  // namespace course::equations
