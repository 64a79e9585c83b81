#include "lessons/families/powers/power_display.h"

#include "display/drawing.h"
#include "display/print_cells.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::powers {

using namespace page;

namespace {

constexpr int kColumns = 40;

int ColumnsWrittenOut(const Power& power) {
  return 2 * power.exponent - 1;
}

// An exponent of 1 is shown where it is the point.
std::string WithExponentShown(const Power& power) {
  return power.base + "^" + NumStr(power.exponent) + "^";
}

void Unfold(const Power& power, double row, double col, const std::string& colour) {
  constexpr double kDrop = 2;  // rows
  const int columns = ColumnsWrittenOut(power);
  const double powerCol = col + (columns - 2) / 2.0;
  ShowAt(row, colour + WithExponentShown(power), powerCol);
  SlideDown({row, powerCol, 2}, kDrop, Leaving::Copy);
  ClearCells(row + kDrop, powerCol, 2, 1);
  ShowAt(row + kDrop, colour + WrittenOut(power), col);
  Bracket(row + 1, col, columns, 2);
}

// The table: a column a power, its base over its exponent; cells 1 to 6, row by row.
constexpr int kTableColumns = 3;

PrintCellTable PowersTable() {
  constexpr double kLefts[kTableColumns] = {22, 48, 74};
  constexpr double kTops[] = {29, 65};
  const char* kHeads[kTableColumns] = {"First power", "Second power", "Product"};
  const char* kRows[] = {"Base", "Exponent"};
  PrintCellTable table;
  table.heightPixels = 140;
  for (const double top : kTops)
    for (const double left : kLefts) table.cells.push_back({left, top, 23, 30});
  for (int i = 0; i < kTableColumns; ++i)
    table.labels.push_back({kLefts[i], 7, 23, 20, kHeads[i], 12, platform::colour::Red});
  for (int i = 0; i < 2; ++i) table.labels.push_back({2, kTops[i] + 8, 19, 20, kRows[i], 12});
  return table;
}

void FillInColumn(int column, const Power& power, platform::Colour colour) {
  constexpr double kSize = 16;  // points
  picPrintCellPrint(column, power.base, colour, kSize);
  picPrintCellPrint(column + kTableColumns, NumStr(power.exponent), colour, kSize);
}

}  // namespace

void ShowPowersTable(const Power& first, const Power& second, double row) {
  CellTable(PowersTable(), row);
  FillInColumn(1, first, platform::colour::Black);
  FillInColumn(2, second, platform::colour::Black);
}

void FillInProduct(const Power& product) {
  FillInColumn(kTableColumns, product, platform::colour::Blue);
}

void UnfoldPowers(const Power& first, const Power& second, double row) {
  constexpr int kDotColumns = 3;  // a dot between two blanks
  const int columns = ColumnsWrittenOut(first) + kDotColumns + ColumnsWrittenOut(second);
  const double col = (kColumns - columns) / 2 + 1;
  const double dotCol = col + ColumnsWrittenOut(first) + 1;
  Unfold(first, row, col, R"(\y)");
  Unfold(second, row, dotCol + 2, "");
  ShowAt(row + 2, tutor::Dot, dotCol);
}

void SlideExponentsTogether(const Power& first, const Power& second, double row) {
  constexpr double kCol = 14;
  constexpr double kFirstExponent = kCol + 1;
  constexpr double kSecondExponent = kCol + 6;
  constexpr double kTarget = kCol + 3;  // of the second exponent, behind the plus sign
  constexpr double kDrop = 2;           // rows
  const double sumRow = row + kDrop;
  const std::string dot = " " + tutor::Dot + " ";
  ShowAt(row,
         first.base + R"(\y^)" + NumStr(first.exponent) + R"(^\z)" + dot + second.base + R"(\y^)" +
             NumStr(second.exponent) + R"(^\z)",
         kCol);
  ShowAt(sumRow, "= " + first.base, kCol - 2);
  SlideDown({row, kFirstExponent, 1}, kDrop, Leaving::Copy);
  ShowAt(sumRow, "^+^", kFirstExponent + 1);
  SlideDown({row, kSecondExponent, 1}, kDrop, Leaving::Copy);
  SlideLeft({sumRow, kSecondExponent, 1}, kSecondExponent - kTarget);
  ShowAt(sumRow, " = " + PowerText({first.base, first.exponent + second.exponent}), kTarget + 1);
}

}  // namespace course::powers
