#include "lessons/page/paper_box.h"

#include <algorithm>

#include "display/comment_box.h"
#include "display/drawing.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/paragraph.h"
#include "display/scoped_value.h"

namespace course::page {
namespace {

constexpr int kSize = 15;           // points of the print
constexpr int kCellWidth = 12;      // pixels, at this size
constexpr int kCellHeight = 18;     // pixels
constexpr int kPadding = 9;         // pixels
constexpr double kLineStep = 1.25;  // cells of the box from line to line: brackets do not touch
constexpr int kHeadingSize = 17;
constexpr double kHeadingCells = 1.8;  // height of a heading
constexpr platform::Colour kPaper = platform::Rgb(255, 250, 205);
constexpr platform::Colour kHeadingShadow = platform::Rgb(170, 200, 240);

// Rows of the screen; the last line's letters reach below its cell.
double HeightOf(double cells) {
  return (cells * kCellHeight + 2 * kPadding + 3) / gCellHeight;
}

double Prepare(int box, double row, double width, double headingCells, int lines) {
  const double height = HeightOf(headingCells + 1 + kLineStep * (lines - 1));
  picCommentBoxPrepare2(box, row, -1, width, height, kPaper, platform::colour::Black, kSize,
                        kPadding);
  picCommentBoxShow(box);
  return row + height;
}

// Characters that a line takes, colour codes and exponent marks aside.
int CellsOf(const std::string& line) {
  std::size_t cells = 0;
  for (const Segment& segment : CutAtColours(line, 0))
    cells += StripExponentMarks(segment.text).size();
  return static_cast<int>(cells);
}

}  // namespace

double ShowEmptyPaperBox(int box, double row, int characters, int lines) {
  const double width = static_cast<double>(characters * kCellWidth + 2 * kPadding) / gCellWidth;
  return Prepare(box, row, width, 0, lines);
}

void PrintOnPaper(int box, int line, const std::string& text) {
  picCommentBoxLocate(box, 1 + kLineStep * (line - 1), 1);
  picCommentBoxWordWrap(box, text);
}

double ShowPaperBox(int box, double row, const std::vector<std::string>& lines) {
  int characters = 0;
  for (const std::string& line : lines) characters = std::max(characters, CellsOf(line));
  const double below = ShowEmptyPaperBox(box, row, characters, static_cast<int>(lines.size()));
  int number = 0;
  for (const std::string& line : lines) PrintOnPaper(box, ++number, line);
  return below;
}

void ShowParagraphOnPaper(int box, double row, double col, double width,
                          const std::string& paragraph) {
  const auto prepare = [&](double height) {
    picCommentBoxPrepare2(box, row, col, width, height, kPaper, platform::colour::Black, kSize,
                          kPadding);
  };
  prepare(1);
  TextPanel& panel = *frmPR->commentText[static_cast<std::size_t>(box)];
  {
    const ScopedValue measure(screenState.gMeasureOnly, 1);
    picCommentBoxWordWrap(box, paragraph);
  }
  panel.UpdateCursorCell();
  prepare(HeightOf(panel.cursorRow - 1));
  picCommentBoxWordWrap(box, paragraph);
  picCommentBoxShow(box);
}

double ShowRuleBox(int box, double row, double width, const std::string& heading,
                   const std::vector<std::string>& lines) {
  const double below = Prepare(box, row, width, kHeadingCells, static_cast<int>(lines.size()));
  PrintNiceHeading(box, heading, 1, -1, "", true, false, kHeadingSize, platform::colour::Blue,
                   kHeadingShadow, 1);
  const double columns = (width * gCellWidth - 2 * kPadding) / kCellWidth;
  double cell = 1 + kHeadingCells;
  for (const std::string& line : lines) {
    picCommentBoxLocate(box, cell, 1 + (columns - CellsOf(line)) / 2);
    picCommentBoxWordWrap(box, line);
    cell += kLineStep;
  }
  return below;
}

}  // namespace course::page
