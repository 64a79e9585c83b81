#include "lessons/families/stories/paired_rows.h"

#include "display/print_cells.h"
#include "lessons/page/boxes.h"

namespace course::stories {
namespace {

constexpr double kCellSize = 14;  // points

}  // namespace

void ShowPairedRows(const std::string& above, const std::string& below, double row, int pairs) {
  PrintCellTable table;
  table.heightPixels = 110;
  for (const double top : {8.0, 54.0})
    for (int i = 0; i < pairs; ++i) table.cells.push_back({27.0 + 18 * i, top, 16, 38});
  table.labels = {{2, 16, 25, 24, above, kCellSize}, {2, 62, 25, 24, below, kCellSize}};
  page::CellTable(table, row);
}

void FillPair(int column, const std::string& above, const std::string& below, int pairs,
              WorkedOut workedOut) {
  const auto colour = [&](WorkedOut place) {
    return workedOut == place ? platform::colour::Blue : platform::colour::Black;
  };
  picPrintCellCls(column);
  picPrintCellCls(pairs + column);
  picPrintCellPrint(column, above, colour(WorkedOut::Above), kCellSize);
  picPrintCellPrint(pairs + column, below, colour(WorkedOut::Below), kCellSize);
}

}  // namespace course::stories
