#include "lessons/families/percents/percent_question.h"

#include "display/print_cells.h"
#include "lessons/families/percents/percent_figures.h"
#include "lessons/families/percents/percent_number.h"
#include "lessons/families/polynomials/headed_cells.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::percents {

using namespace page;

namespace {

constexpr int kCells = 3;
constexpr double kDrop = 2;  // rows from the words to the equation

double WidthOf(const std::string& text) {
  return static_cast<double>(text.size());
}

}  // namespace

std::string PercentQuestion::PartText() const {
  return DecimalOf(PartInHundredths() / double{kHundred});
}
std::string PercentQuestion::PercentText() const {
  return NumStr(percent) + "%";
}
std::string PercentQuestion::DecimalText() const {
  return DecimalOf(percent / double{kHundred});
}
std::string PercentQuestion::WholeText() const {
  return NumStr(whole);
}
std::string PercentQuestion::Letter() const {
  return asked == Asked::Percent ? "p" : "n";
}

std::vector<PercentQuestion::Piece> PercentQuestion::Pieces() const {
  Piece part = {PartText(), PartText()};
  Piece rate = {PercentText(), DecimalText()};
  Piece all = {WholeText() + "?", WholeText()};
  if (asked == Asked::Part) part = {"What number", Letter()};
  if (asked == Asked::Percent) rate = {"what percent", Letter()};
  if (asked == Asked::Whole) all = {"what number?", Letter()};
  return {part, {"is", "="}, rate, {"of", tutor::Times}, all};
}

std::string PercentQuestion::Sentence() const {
  std::string text;
  for (const Piece& piece : Pieces()) text += (text.empty() ? "" : " ") + piece.words;
  return text;
}

std::string PercentQuestion::Equation() const {
  std::string text;
  for (const Piece& piece : Pieces()) text += (text.empty() ? "" : " ") + piece.symbol;
  return text;
}

SentenceFigure::SentenceFigure(double row, const PercentQuestion& question)
    : row_(row), pieces_(question.Pieces()) {
  constexpr double kBetween = 2;
  double col = kMathCol;
  for (const auto& [words, symbol] : pieces_) {
    cols_.push_back(col);
    ShowAt(row_, words, col);
    col += WidthOf(words) + kBetween;
  }
}

void SentenceFigure::Translate() const {
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    const auto& [words, symbol] = pieces_[i];
    const double width = WidthOf(words);
    SlideDown({row_, cols_[i], width}, kDrop, Leaving::Copy, Pace::Brisk);
    ClearCells(row_ + kDrop, cols_[i], width, 1);
    ShowAt(row_ + kDrop, R"(\y)" + symbol + R"(\z)", cols_[i] + (width - WidthOf(symbol)) / 2);
  }
}

void ShowPartPercentWhole(double row) {
  polynomials::ShowHeadedCells(row, {"Part", "Percent", "Whole"}, 1);
}

void FillKnown(const PercentQuestion& question) {
  const auto unless = [&](Asked asked, const std::string& text) {
    return question.asked == asked ? "?" : text;
  };
  const std::string texts[] = {unless(Asked::Part, question.PartText()),
                               unless(Asked::Percent, question.PercentText()),
                               unless(Asked::Whole, question.WholeText())};
  for (int cell = 1; cell <= kCells; ++cell) {
    picPrintCellCls(cell);
    polynomials::PrintCells(cell, {texts[cell - 1]});
  }
}

void FillAsked(const PercentQuestion& question) {
  const std::string texts[] = {question.PartText(), question.PercentText(), question.WholeText()};
  const int cell = static_cast<int>(question.asked);
  picPrintCellCls(cell);
  polynomials::PrintCells(cell, {texts[cell - 1]}, platform::colour::Blue);
}

}  // namespace course::percents
