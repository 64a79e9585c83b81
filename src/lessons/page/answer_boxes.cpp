#include "lessons/page/answer_boxes.h"

#include <algorithm>
#include <string>

#include "display/lesson_window.h"
#include "display/stacked_text.h"
#include "engine/answers.h"
#include "lessons/page/page_error.h"
#include "mathkit/tutor_codes.h"

namespace course::page {
namespace {

constexpr double kUsualHeight = 50;  // pixels, in which a line of 20 points stands in the middle
constexpr double kUsualFontSize = 20;
constexpr double kHigh = 68;         // pixels, for a built-up fraction
constexpr double kHighest = 76;      // pixels, for one with a radical, whose bar stands above it
constexpr double kPanelBottom = 25;  // row

// What a layout has of its own.
struct Layout {
  int number;  // of picAnswerSetParameters
  int boxesARow;
  double usualWidth;
  double largestWidth;
  double height;  // pixels, of a line
  double gap;     // pixels, between rows of boxes
  double highGap;
};
constexpr Layout kTwoColumns = {2, 2, 16, 20, kUsualHeight, 27, 16};
constexpr Layout kThreeColumns = {4, 3, 12.5, 13, kUsualHeight, 27, 16};
constexpr Layout kOneColumn = {1, 1, 21, 40, 44, 12, 12};

bool AnyChoiceHas(const Problem& problem, const std::string& characters) {
  return std::ranges::any_of(problem.choices, [&](const Choice& choice) {
    return choice.text.find_first_of(characters) != std::string::npos;
  });
}

// Places the boxes, high ones for fractions, in these columns.
void Place(const Problem& problem, const Layout& layout, const AnswerBoxes& boxes, double width,
           double column1, double column2, double column3) {
  const bool high = AnyChoiceHas(problem, "/");
  const bool radical = AnyChoiceHas(problem, "`" + tutor::SquareRoot);
  const double height = high ? (radical ? kHighest : kHigh) : layout.height;
  const double gap = high ? layout.highGap : layout.gap;
  const int rows = (ChoiceCountOf(problem.kind) + layout.boxesARow - 1) / layout.boxesARow;
  const double bottom = boxes.row + (rows * (height + gap) - gap) / gCellHeight;
  if (bottom > kPanelBottom || width > layout.largestWidth)
    StopPage("answer boxes " + CellText(width) + " columns wide reach down to row " +
             CellText(bottom));
  const double offset = (height - kUsualHeight + kUsualFontSize - boxes.fontSize) / 2;
  picAnswerSetParameters(layout.number, boxes.row, column1, column2, column3, width, height, gap,
                         offset, boxes.font, boxes.fontSize);
  if (high || radical) answerParameters.printChoice = picAnswerPrintStackedText;
}

double WidthOf(const Layout& layout, const AnswerBoxes& boxes) {
  return boxes.width == 0 ? layout.usualWidth : boxes.width;
}

}  // namespace

void ShowAnswersInTwoColumns(const Problem& problem, const AnswerBoxes& boxes) {
  constexpr double kNarrow = 19;  // wider boxes go beyond the margins, to keep apart
  const double width = WidthOf(kTwoColumns, boxes);
  const double beyond = 0.375 * std::max(0.0, width - kNarrow);
  Place(problem, kTwoColumns, boxes, width, 1 - beyond, 21 + beyond, 0);
}

void ShowAnswersInThreeColumns(const Problem& problem, const AnswerBoxes& boxes) {
  constexpr int kNoneFontSize = 13;  // points: three boxes a row are narrow
  Place(problem, kThreeColumns, boxes, WidthOf(kThreeColumns, boxes), 1, 14, 27);
  if (HasNoneOfTheAbove(problem.kind)) answerParameters.lastBoxFontSize = kNoneFontSize;
}

void ShowAnswersInOneColumn(const Problem& problem, const AnswerBoxes& boxes) {
  const double width = WidthOf(kOneColumn, boxes);
  Place(problem, kOneColumn, boxes, width, (40 - width) / 2 + 1, 0, 0);
}

}  // namespace course::page
