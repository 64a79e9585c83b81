#include "lessons/families/systems/substitution_board.h"

#include <cstdlib>

#include "display/animation.h"
#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "engine/page.h"
#include "lessons/families/systems/system_steps.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/say.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::systems {
namespace {

using namespace page;

constexpr double kFirstRow = 4.5;
constexpr double kSolvedRow = 5.7;
constexpr double kSecondRow = 7;
constexpr double kSubstitutedRow = 8.4;
constexpr double kEquationCol = 14;  // behind "Equation 1:"

// The print cell that travels, in columns.
constexpr double kCellCol = 18;
constexpr int kCellColumns = 8;
constexpr double kCellPoints = 16;
constexpr double kTravelSpeed = 30;

// p x + q, each part left out when it is nothing.
std::string SumText(int p, int q) {
  if (p == 0) return NumStr(q);
  return CoefText(p) + "x" + (q == 0 ? "" : tutor::Gap + SignedNumberText(q));
}

}  // namespace

SubstitutionBoard::SubstitutionBoard(const LinearSystem& system, First first)
    : system_(system), first_(first) {}

// --- Equation 1 in Equation 2 --------------------------------------------------------------------

std::string SubstitutionBoard::ValueOfY() const {
  return SumText(system_.first.Slope(), system_.first.Intercept());
}

// One positive term without a coefficient before it stands as it is: 3x + 2x.
bool SubstitutionBoard::NeedsParentheses() const {
  return std::abs(system_.second.b) != 1 || system_.first.Intercept() != 0 ||
         system_.first.Slope() < 0;
}

std::string SubstitutionBoard::BeforeValue() const {
  return CoefText(system_.second.a) + "x" + SignedCoefText(system_.second.b) +
         (NeedsParentheses() ? "(" : "");
}

std::string SubstitutionBoard::BehindValue() const {
  return (NeedsParentheses() ? ") = " : " = ") + NumStr(system_.second.c);
}

// --- The equations -------------------------------------------------------------------------------

void SubstitutionBoard::ShowEquations() const {
  ShowAt(kFirstRow, "Equation 1:", 1);
  ShowAt(kSecondRow, "Equation 2:", 1);
  ShowAt(kSecondRow, EquationText(system_.second), kEquationCol);
  if (first_ == First::SolvedForY)
    ShowValueInCell();
  else
    ShowAt(kFirstRow, EquationText(system_.first), kEquationCol);
}

void SubstitutionBoard::ShowValueInCell() const {
  const double row = first_ == First::SolvedForY ? kFirstRow : kSolvedRow;
  ShowAt(row, "y =", kEquationCol);
  PrintCellTable cell;
  cell.widthPixels = kCellColumns * gCellWidth;
  cell.heightPixels = gCellHeight + 6;
  cell.cells = {{0, 0, 100, 100}};
  CellTable(cell, row);
  frmPR->picPrintCellBox.SetLeft(frmPR->pnlLesson.Left() +
                                 static_cast<int>(gLeftMargin + (kCellCol - 1) * gCellWidth) *
                                     platform::TwipsPerPixelX);
  picPrintCellPrint(1, ValueOfY(), platform::colour::Blue, kCellPoints);
}

// --- The steps -----------------------------------------------------------------------------------

void SubstitutionBoard::IsolateY() const {
  ClearBelow(kBelow);
  WhiteBox({.row = kBelow});
  for (const EquationStep& step : StepsToSlopeIntercept(system_.first)) {
    SayStepInBox(step);
    if (step.equation != SlopeInterceptText(system_.first)) PageEnd();
  }
  ShowValueInCell();
  PageEnd();
}

// A copy of the cell slides to the place of y.
void SubstitutionBoard::Substitute() const {
  const double row = first_ == First::SolvedForY ? kFirstRow : kSolvedRow;
  const std::string before = BeforeValue();
  if (first_ == First::AsGiven) SayInBoxAnew(Text("We put {} in place of y.", ValueOfY()));
  ShowAt(row, ValueOfY(), kCellCol);
  std::string place;
  for (int i = 0; i < kCellColumns; ++i) place += tutor::Gap;
  ShowAt(kSubstitutedRow, before + place + BehindValue(), kEquationCol);
  const double col = kEquationCol + static_cast<double>(before.size());
  picPrintCellBoxMove(kSubstitutedRow - row, col - kCellCol, "V", kTravelSpeed);
  picPrintCellBoxHide();
  ClearCells(kSubstitutedRow, kEquationCol, 27, 1);
  ShowAt(kSubstitutedRow, before + R"(\y)" + ValueOfY() + R"(\z)" + BehindValue(), kEquationCol);
  PageEnd();
}

void SubstitutionBoard::MultiplyOutAndCollect() const {
  const auto [a, b, c] = system_.second;
  const int slope = system_.first.Slope();
  const int constant = b * system_.first.Intercept();
  const std::string right = " = " + NumStr(c);
  if (NeedsParentheses()) {
    const std::string product = CoefText(b) + "(" + ValueOfY() + ")";
    SayStepInBox({b == 1 ? "Removing the parentheses:" : Text("Multiplying out {}:", product),
                  CoefText(a) + "x" + SignedCoefText(b * slope) + "x" +
                      (constant == 0 ? "" : tutor::Gap + SignedNumberText(constant)) + right});
  }
  SayStepInBox({"Collecting like terms:", SumText(a + b * slope, constant) + right});
}

// From the equation with x alone; a system without just one solution loses its x.
void SubstitutionBoard::SolveForX() const {
  const auto [a, b, c] = system_.second;
  const int coefficient = a + b * system_.first.Slope();
  const int constant = b * system_.first.Intercept();
  SayInBoxAnew("");
  MultiplyOutAndCollect();
  if (coefficient == 0 || (constant == 0 && coefficient == 1)) return;
  PageEnd();
  if (constant != 0)
    SayStepInBox(
        {ActionToRemove(constant, ""), SumText(coefficient, 0) + " = " + NumStr(c - constant)});
  if (coefficient != 1)
    SayStepInBox({ActionToIsolate(coefficient), "x = " + NumStr((c - constant) / coefficient)});
}

void SubstitutionBoard::FindY() const {
  const int slope = system_.first.Slope();
  const int intercept = system_.first.Intercept();
  const std::string constant = intercept == 0 ? "" : tutor::Gap + SignedNumberText(intercept);
  const std::string substituted = TermText(slope, system_.x) + constant;
  const std::string product = NumStr(slope * system_.x) + constant;
  const std::string value = NumStr(system_.y);
  SayInBoxAnew(Text("With x = {} in {}:", system_.x, "y = " + ValueOfY()));
  SayInBox(AlignedEquation("y = " + substituted));
  if (product != substituted && product != value) SayInBox(AlignedEquation("y = " + product));
  if (value != substituted) SayInBox(AlignedEquation("y = " + value));
  PageEnd();
}

void SubstitutionBoard::Check() const {
  WhiteBox({.row = kBelow, .rows = kBelowCheck - 0.5 - kBelow});
  SayPairInBox(system_.x, system_.y);
  TryPairInBox(system_.first, system_.x, system_.y);
  TryPairInBox(system_.second, system_.x, system_.y);
}

}  // namespace course::systems
