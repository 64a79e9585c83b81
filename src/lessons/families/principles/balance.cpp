#include "lessons/families/principles/balance.h"

#include "display/drawing.h"
#include "display/grid.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/tutor_codes.h"

namespace course::principles {
namespace {

using platform::colour::Cyan;
using platform::colour::White;

// Columns of the two pans: their texts, their frames, and where they hang.
constexpr double kLeftText = 4;
constexpr double kRightText = 26;
constexpr double kPanWidth = 12;
constexpr double kPivot = 20.5;

// Rows below the texts of level pans.
constexpr double kToBeam = 2.2;
constexpr double kToFoot = 4.2;
constexpr double kTilt = 0.7;  // how far a pan sinks, and the other rises
constexpr double kFall = 2;    // from where a term appears

void DrawPan(double row, double textCol, double beamRow) {
  isDrawRoundRect(row - 0.2, textCol - 1, row + 0.3, textCol + kPanWidth, 2, Cyan);
  const double middle = textCol + (kPanWidth - 1) / 2;
  isDrawDiagonalLineWithColor(row + 0.9, middle, beamRow, middle, 2, White);
}

}  // namespace

void Balance::Clear() const {
  page::ClearRows(row_ - kTilt - 0.5, kToFoot + 2);
}

void Balance::Show(const std::string& left, const std::string& right, Heavier heavier) {
  Clear();
  left_ = left;
  right_ = right;
  const double sinks = heavier == Heavier::Neither ? 0 : heavier == Heavier::Left ? kTilt : -kTilt;
  const double leftRow = row_ + sinks;
  const double rightRow = row_ - sinks;
  const double half = (kPanWidth - 1) / 2;
  isDrawDiagonalLineWithColor(leftRow + kToBeam, kLeftText + half, rightRow + kToBeam,
                              kRightText + half, 3, White);
  DrawPan(leftRow, kLeftText, leftRow + kToBeam);
  DrawPan(rightRow, kRightText, rightRow + kToBeam);
  const double beam = row_ + kToBeam;
  isDrawDiagonalLineWithColor(beam, kPivot, row_ + kToFoot, kPivot - 2, 2, White);
  isDrawDiagonalLineWithColor(beam, kPivot, row_ + kToFoot, kPivot + 2, 2, White);
  isDrawDiagonalLineWithColor(row_ + kToFoot, kPivot - 4, row_ + kToFoot, kPivot + 4, 2, White);
  page::ShowAt(leftRow, left, kLeftText);
  page::ShowAt(rightRow, right, kRightText);
}

void Balance::SlideOn(double col, const std::string& text, const std::string& term) const {
  const double at = col + static_cast<double>(text.size()) + 1;
  page::ShowAt(row_ - kFall, R"(\y)" + term + R"(\z)", at);
  page::SlideDown({row_ - kFall, at, static_cast<double>(term.size())}, kFall);
  page::ClearCells(row_ - kFall, at, static_cast<double>(term.size()), 1);
}

void Balance::PutOnBoth(const std::string& term) {
  SlideOn(kLeftText, left_, term);
  SlideOn(kRightText, right_, term);
  Show(left_ + " " + term, right_ + " " + term);
}

void Balance::PutOnLeft(const std::string& term) {
  SlideOn(kLeftText, left_, term);
  Show(left_ + " " + term, right_, Heavier::Left);
}

}  // namespace course::principles
