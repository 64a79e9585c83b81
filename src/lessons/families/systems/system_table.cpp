#include "lessons/families/systems/system_table.h"

#include <utility>

#include "display/print_cells.h"
#include "lessons/page/boxes.h"

namespace course::systems {
namespace {

constexpr int kWidth = 624;   // pixels
constexpr int kHeight = 130;  // pixels
constexpr int kLines = 2;
constexpr double kCellSize = 14;  // points
constexpr double kLabelSize = 12;

// Hundredths of the table's width and height.
constexpr double kFirstLeft = 11;
constexpr double kGap = 1;
constexpr double kCaptionTop = 3;
constexpr double kCaptionHeight = 18;
constexpr double kFirstTop = 23;
constexpr double kCellHeight = 33;
constexpr double kRowStep = 38;
constexpr double kRowLabelDrop = 8;

}  // namespace

platform::Colour ColourOfLine(int line) {
  return line == 1 ? platform::Rgb(200, 0, 0) : platform::colour::Blue;
}

SystemTable::SystemTable(std::vector<SystemColumn> columns) : columns_(std::move(columns)) {}

void SystemTable::Show(double row) const {
  PrintCellTable table;
  table.widthPixels = kWidth;
  table.heightPixels = kHeight;
  for (int line = 1; line <= kLines; ++line) {
    const double top = kFirstTop + (line - 1) * kRowStep;
    double left = kFirstLeft;
    for (const SystemColumn& column : columns_) {
      table.cells.push_back({left, top, column.width, kCellHeight});
      if (line == 1)
        table.labels.push_back({left, kCaptionTop, column.width, kCaptionHeight, column.caption,
                                kLabelSize, platform::colour::Black});
      left += column.width + kGap;
    }
    table.labels.push_back({1, top + kRowLabelDrop, kFirstLeft - 1, kCaptionHeight,
                            "Line " + std::to_string(line), kLabelSize, ColourOfLine(line)});
  }
  page::CellTable(table, row);
}

void SystemTable::Fill(int line, int column, const std::string& text) const {
  const int cell = (line - 1) * static_cast<int>(columns_.size()) + column;
  picPrintCellCls(cell);
  picPrintCellPrint(cell, text, ColourOfLine(line), kCellSize);
}

}  // namespace course::systems
