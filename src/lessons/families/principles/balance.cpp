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

// Columns: where the pans begin, how wide they are, and where the beam rests.
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

// Where a text begins in the middle of its pan.
double StartOf(const std::string& text, double textCol) {
  return textCol + (kPanWidth - static_cast<double>(text.size())) / 2;
}

// With room for a term behind it.
std::string WithRoom(const std::string& text, const std::string& term) {
  return text + std::string(term.size() + 1, ' ');
}

// The term falls into the room behind the text.
void LetFall(double row, double textCol, const std::string& text, const std::string& term) {
  const auto width = static_cast<double>(term.size());
  const double col = StartOf(text, textCol) + static_cast<double>(text.size()) - width;
  page::ShowAt(row - kFall, R"(\y)" + term + R"(\z)", col);
  page::SlideDown({row - kFall, col, width}, kFall);
  page::ClearCells(row - kFall, col, width, 1);
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
  page::ShowAt(leftRow, left, StartOf(left, kLeftText));
  page::ShowAt(rightRow, right, StartOf(right, kRightText));
}

void Balance::PutOnBoth(const std::string& term) {
  const std::string left = left_ + " " + term;
  const std::string right = right_ + " " + term;
  Show(WithRoom(left_, term), WithRoom(right_, term));
  LetFall(row_, kLeftText, left, term);
  LetFall(row_, kRightText, right, term);
  Show(left, right);
}

void Balance::PutOnLeft(const std::string& term) {
  const std::string left = left_ + " " + term;
  Show(WithRoom(left_, term), right_);
  LetFall(row_, kLeftText, left, term);
  Show(left, right_, Heavier::Left);
}

}  // namespace course::principles
