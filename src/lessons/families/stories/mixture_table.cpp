#include "lessons/families/stories/mixture_table.h"

#include "display/lesson_window.h"
#include "display/print_cells.h"

namespace course::stories {
namespace {

constexpr int kColumns = 3;
constexpr double kCellSize = 14;  // points

}  // namespace

void ShowMixtureTable(double row, const std::string& substance) {
  constexpr int kPercentLabel = 1;
  constexpr int kAmountLabel = 3;
  picPrintCellBoxPrepare1(row);
  frmPR->lblPrintCell[kPercentLabel].SetUtf8Caption("Percent\rof " + substance);
  frmPR->lblPrintCell[kAmountLabel].SetUtf8Caption("Amount\rof " + substance);
  picPrintCellBoxShow();
}

void FillMixture(MixtureRow row, const std::string& percent, const std::string& quantity,
                 const std::string& amount, platform::Colour colour) {
  int cell = (static_cast<int>(row) - 1) * kColumns;
  for (const std::string& text : {percent, quantity, amount}) {
    ++cell;
    if (text.empty()) continue;
    picPrintCellCls(cell);
    picPrintCellPrint(cell, text, colour, kCellSize);
  }
}

}  // namespace course::stories
