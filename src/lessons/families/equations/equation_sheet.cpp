#include "lessons/families/equations/equation_sheet.h"

#include <algorithm>

#include "display/animation.h"
#include "display/drawing.h"
#include "display/fractions.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/stacked_text.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/slides.h"

namespace course::equations {
namespace {

constexpr int kToSolution = 4;    // columns
constexpr int kSolutionCol = 33;  // the last one where SOLUTION has room
constexpr int kLastCol = 40;
constexpr double kAnimSpeed = 30;

// Rows between a row of the sheet and what comes under it.
constexpr double kToAddend = 1;
constexpr double kToBar = 1.9;
constexpr double kToSum = 2.5;
constexpr double kLineToLine = 1.5;
constexpr double kToKeptRow = 2;             // from the first row to the one carried up
constexpr double kLineToFraction = 2.5;      // to the middle one of its three rows, and from there
constexpr double kFractionToFraction = 3.5;  // half a row of air, or three numbers read as one

constexpr int kBarThickness = 2;  // pixels

int Length(const std::string& text) {
  return static_cast<int>(text.size());
}

void PrintEndingAt(double row, int endCol, const std::string& text, platform::Colour colour) {
  if (text.empty()) return;
  Locate(row, endCol - Length(text) + 1);
  isColorPrints(text, colour);
}

}  // namespace

SheetColumns ColumnsFor(const std::vector<SheetRow>& rows) {
  int leftTerm = 0;
  int leftNumber = 0;
  int rightTerm = 0;
  int rightNumber = 0;
  for (const SheetRow& row : rows) {
    leftTerm = std::max(leftTerm, Length(row.leftTerm));
    leftNumber = std::max(leftNumber, Length(row.leftNumber));
    rightTerm = std::max(rightTerm, Length(row.rightTerm));
    rightNumber = std::max(rightNumber, Length(row.rightNumber));
  }
  SheetColumns columns;
  columns.leftTerm = kLeftEndCol - leftNumber;
  columns.first = columns.leftTerm - leftTerm + 1;
  columns.rightTerm = kRightStartCol - 1 + rightTerm;
  columns.rightNumber = columns.rightTerm + rightNumber;
  return columns;
}

EquationSheet::EquationSheet(double firstRow, double lastRow, const std::vector<SheetRow>& rows)
    : firstRow_(firstRow), lastRow_(lastRow), columns_(ColumnsFor(rows)), row_(firstRow) {}

void EquationSheet::Write(const SheetRow& row, const std::string& relation) {
  WriteCells(row, 0, platform::colour::White);
  WriteRelation(relation);
  endCol_ = columns_.rightNumber;
}

void EquationSheet::AddUnder(const SheetRow& terms) {
  const int shift = kLastCol - columns_.rightNumber;
  row_ += kToAddend;
  WriteCells(terms, shift, platform::colour::Yellow);
  page::SlideLeft({row_, static_cast<double>(columns_.first + shift),
                   static_cast<double>(columns_.rightNumber - columns_.first + 1)},
                  shift, page::Leaving::Nothing, page::Pace::Brisk);
  row_ -= kToAddend;
  isDrawHorizLine(row_ + kToBar, columns_.first, kLeftEndCol, kBarThickness);
  isDrawHorizLine(row_ + kToBar, kRightStartCol, columns_.rightNumber, kBarThickness);
}

void EquationSheet::WriteSum(const SheetRow& row, const std::string& relation) {
  row_ += kToSum;
  Write(row, relation);
}

void EquationSheet::WriteQuotients(const QuotientRow& row, const std::string& relation) {
  GoDown(true);
  Locate(row_, columns_.leftTerm - std::max(Length(row.left), Length(row.divisor)) + 1);
  isPrintFraction(row.left, row.divisor);
  Locate(row_, StartOf(std::max(Length(row.right), Length(row.divisor))));
  isPrintFraction(row.right, row.divisor);
  WriteRelation(relation);
}

void EquationSheet::WriteRelation(const std::string& relation, platform::Colour colour) {
  Locate(row_, kRelationCol);
  isColorPrints(relation, colour);
}

void EquationSheet::WriteSolved(const std::string& letter, const std::string& relation,
                                const std::string& value) {
  GoDown(value.find('/') != std::string::npos);
  WriteSolvedHere(letter, relation, value);
}

void EquationSheet::ReplaceSolved(const std::string& letter, const std::string& relation,
                                  const std::string& value) {
  page::ClearRows(row_ - 1, 3);
  WriteSolvedHere(letter, relation, value);
}

void EquationSheet::WriteSolvedHere(const std::string& letter, const std::string& relation,
                                    const std::string& value) {
  PrintEndingAt(row_, columns_.leftTerm, letter, platform::colour::White);
  WriteRelation(relation);
  const int width = StackedTextWidth(value);
  Locate(row_, StartOf(width));
  isPrintStackedText(value);
  endCol_ = StartOf(width) + width - 1;
}

void EquationSheet::MarkSolution() {
  Locate(row_, std::min(endCol_ + kToSolution, kSolutionCol));
  isColorPrints("SOLUTION", platform::colour::Yellow);
}

void EquationSheet::MakeRoom(double rows) {
  if (row_ + rows <= lastRow_) return;
  const double under = firstRow_ + kToKeptRow;
  WipeAndErase("U", row_, row_ - under, kAnimSpeed);
  page::ClearRows(firstRow_ + 1, kToKeptRow - 1);
  row_ = under;
}

void EquationSheet::GoDown(bool toFraction) {
  row_ += atFraction_ && toFraction   ? kFractionToFraction
          : atFraction_ || toFraction ? kLineToFraction
                                      : kLineToLine;
  atFraction_ = toFraction;
}

void EquationSheet::WriteCells(const SheetRow& row, int shift, platform::Colour colour) {
  PrintEndingAt(row_, columns_.leftTerm + shift, row.leftTerm, colour);
  PrintEndingAt(row_, kLeftEndCol + shift, row.leftNumber, colour);
  PrintEndingAt(row_, columns_.rightTerm + shift, row.rightTerm, colour);
  PrintEndingAt(row_, columns_.rightNumber + shift, row.rightNumber, colour);
}

// Where a text on the right begins, so that it ends with the numbers above it.
int EquationSheet::StartOf(int width) const {
  return std::max(kRightStartCol, columns_.rightNumber - width + 1);
}

}  // namespace course::equations
