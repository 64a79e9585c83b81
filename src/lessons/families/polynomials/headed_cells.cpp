#include "lessons/families/polynomials/headed_cells.h"

#include "display/print_cells.h"
#include "lessons/page/boxes.h"

namespace course::polynomials {
namespace {

constexpr double kCellSize = 14;  // points

}  // namespace

void ShowHeadedCells(double row, const std::vector<std::string>& headings, int lines) {
  constexpr double kHeadPixels = 30;
  constexpr double kLinePixels = 32;
  const double pixels = kHeadPixels + lines * kLinePixels;
  const double column = 100.0 / static_cast<double>(headings.size());
  const auto percent = [&](double y) { return 100 * y / pixels; };
  PrintCellTable table;
  table.heightPixels = static_cast<int>(pixels);
  for (std::size_t i = 0; i < headings.size(); ++i)
    table.labels.push_back({static_cast<double>(i) * column + 3, percent(4), column - 6,
                            percent(kHeadPixels - 4), headings[i], 12, platform::colour::Red,
                            true});
  for (int line = 0; line < lines; ++line)
    for (std::size_t i = 0; i < headings.size(); ++i)
      table.cells.push_back({static_cast<double>(i) * column + 3,
                             percent(kHeadPixels + line * kLinePixels), column - 6, percent(28)});
  page::CellTable(table, row);
}

void PrintCells(int first, const std::vector<std::string>& texts, platform::Colour colour) {
  for (const std::string& text : texts) picPrintCellPrint(first++, text, colour, kCellSize);
}

}  // namespace course::polynomials
