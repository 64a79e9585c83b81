#include "lessons/families/polynomials/cut_rectangle.h"

#include "display/drawing.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "platform/geometry.h"

namespace course::polynomials {

using namespace page;

namespace {

constexpr double kLeft = 9;
constexpr double kWidths[] = {14, 7};    // columns
constexpr double kHeights[] = {3.2, 2};  // rows
constexpr double kWidth = kWidths[0] + kWidths[1];
constexpr double kHeight = kHeights[0] + kHeights[1];
constexpr double kApartRows = 0.7;
constexpr double kApartCols = 1.4;
constexpr double kLabelRows = 1.2;  // above
constexpr double kLabelCols = 2;    // at the left
constexpr double kFrame = 0.3;      // what a frame's line takes beyond its part

}  // namespace

CutRectangle::CutRectangle(const TwoTexts& across, const TwoTexts& down, double row)
    : across_(across), down_(down), row_(row) {
  Draw();
}

double CutRectangle::Left(int col) const {
  return col == 0 ? kLeft : kLeft + kWidths[0] + (isApart_ ? kApartCols : 0);
}

double CutRectangle::Top(int row) const {
  return row == 0 ? row_ : row_ + kHeights[0] + (isApart_ ? kApartRows : 0);
}

void CutRectangle::Draw() const {
  for (int row = 0; row < 2; ++row)
    for (int col = 0; col < 2; ++col)
      isDrawBox(Top(row), Left(col), Top(row) + kHeights[row] - 1, Left(col) + kWidths[col] - 1,
                row == col ? platform::colour::Yellow : platform::colour::Cyan, 2);
  for (int i = 0; i < 2; ++i) {
    const auto at = static_cast<std::size_t>(i);
    ShowAt(row_ - kLabelRows, across_[at], Left(i) + (kWidths[i] - 1) / 2);
    ShowAt(Top(i) + (kHeights[i] - 1) / 2, down_[at], kLeft - kLabelCols);
  }
}

void CutRectangle::MoveApart() {
  const double top = row_ - kLabelRows;
  const double left = kLeft - kLabelCols;
  const double width = kLabelCols + kWidth + kApartCols + kFrame;
  SlideRight({top, Left(1), kWidths[1] + kFrame, kLabelRows + kHeight + kFrame}, kApartCols);
  SlideDown({Top(1), left, width, kHeights[1] + kFrame}, kApartRows);
  isApart_ = true;
  ClearCells(top, left, width, kLabelRows + kHeight + kApartRows + kFrame);
  Draw();
}

void CutRectangle::ShowAreas(const std::array<TwoTexts, 2>& areas) const {
  for (int row = 0; row < 2; ++row)
    for (int col = 0; col < 2; ++col) {
      const std::string& area = areas[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
      ShowAt(Top(row) + (kHeights[row] - 1) / 2, area,
             Left(col) + (kWidths[col] - static_cast<double>(area.size())) / 2);
    }
}

}  // namespace course::polynomials
