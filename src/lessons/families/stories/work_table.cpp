#include "lessons/families/stories/work_table.h"

#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "lessons/families/stories/story_words.h"
#include "lessons/page/boxes.h"

namespace course::stories {
namespace {

constexpr int kRows = 3;
constexpr int kColumns = 3;

// Hundredths of the table's width and height.
constexpr double kLefts[] = {25, 50, 75};
constexpr double kCellWidth = 22;
constexpr double kFirstTop = 20;
constexpr double kCellHeight = 23;
constexpr double kRowStep = 26;
constexpr double kLabelDrop = 4;

constexpr double kCellSize = 14;  // points
constexpr double kLabelSize = 11;
constexpr double kHeadSize = 12;

}  // namespace

void ShowWorkTable(double row, const std::string& first, const std::string& second) {
  const std::string names[] = {WithoutArticle(first), WithoutArticle(second), "Together"};
  const std::string heads[] = {"Rate", "Time", "Part"};
  PrintCellTable table;
  table.heightPixels = static_cast<int>(kWorkTableRows * gCellHeight);
  for (int i = 0; i < kRows; ++i) {
    const double top = kFirstTop + i * kRowStep;
    for (const double left : kLefts) table.cells.push_back({left, top, kCellWidth, kCellHeight});
    table.labels.push_back(
        {1, top + kLabelDrop, kLefts[0] - 2, kCellHeight - kLabelDrop, names[i], kLabelSize});
  }
  for (int i = 0; i < kColumns; ++i)
    table.labels.push_back({kLefts[i], 2, kCellWidth, kFirstTop - 3, heads[i], kHeadSize,
                            platform::colour::Red, true});
  constexpr double kBehindRate = 47.8;
  constexpr double kBehindTime = 72.8;
  table.marks = {{kBehindRate, 1, "x"}, {kBehindTime, 1, "="}};
  page::CellTable(table, row);
}

void FillWork(WorkPart row, WorkColumn column, const std::string& text, platform::Colour colour) {
  const int cell = (static_cast<int>(row) - 1) * kColumns + static_cast<int>(column);
  picPrintCellCls(cell);
  picPrintCellPrint(cell, text, colour, kCellSize);
}

}  // namespace course::stories
