#include "lessons/families/stories/journey_table.h"

#include "display/lesson_window.h"
#include "display/print_cells.h"

namespace course::stories {
namespace {

constexpr int kColumns = 3;
constexpr int kLabelA = 4;
constexpr int kLabelB = 5;
constexpr double kCellSize = 14;  // points

}  // namespace

void ShowJourneyTable(double row, const std::string& vehicle) {
  picPrintCellBoxPrepare2(row);
  frmPR->lblPrintCell[kLabelA].SetUtf8Caption(vehicle + " A");
  frmPR->lblPrintCell[kLabelB].SetUtf8Caption(vehicle + " B");
  picPrintCellBoxShow();
}

void FillJourney(Journey row, const std::string& rate, const std::string& time,
                 const std::string& distance, platform::Colour colour) {
  int cell = (static_cast<int>(row) - 1) * kColumns;
  for (const std::string& text : {rate, time, distance}) {
    ++cell;
    if (text.empty()) continue;
    picPrintCellCls(cell);
    picPrintCellPrint(cell, text, colour, kCellSize);
  }
}

}  // namespace course::stories
