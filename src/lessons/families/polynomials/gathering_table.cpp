#include "lessons/families/polynomials/gathering_table.h"

#include <algorithm>

#include "display/grid.h"
#include "display/print_cells.h"
#include "display/stacked_text.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {

using namespace page;

namespace {

constexpr double kSumCol = 6;
constexpr double kLane = 1.4;   // rows below the sum, where terms slide sideways
constexpr double kBelow = 2.5;  // rows from the sum to the table
constexpr double kFontSize = 15;

// In pixels; the table gives them in hundredths of its panel.
constexpr double kPanelWidth = 608;
constexpr double kPanelCol = 3;  // of the lesson screen
constexpr double kLabelWidth = 70;
constexpr double kCellWidth = 160;
constexpr double kHeadHeight = 28;
constexpr double kLineHeight = 36;
constexpr double kCellHeight = 32;

// A label has no raised print but the square of the titles.
std::string HeadingText(std::string name) {
  const std::string square = "^2^";
  for (std::size_t at; (at = name.find(square)) != std::string::npos;)
    name.replace(at, square.size(), tutor::SquaredSign);
  return name;
}

double KindLeft(int kind, int kinds) {
  const double slot = (kPanelWidth - kLabelWidth) / kinds;
  return kLabelWidth + slot * kind + (slot - kCellWidth) / 2;
}

}  // namespace

GatheringTable::GatheringTable(const Sum& sum, double row, KindNames names)
    : sum_(sum), row_(row), names_(names) {
  Sum heads = sum;  // one term a kind, in the order of the columns
  for (Term& head : heads) head.coef = 1;
  for (const Term& head : Combined(heads)) {
    Sum kind;
    std::ranges::copy_if(sum, std::back_inserter(kind),
                         [&](const Term& term) { return term.IsLike(head); });
    lines_ = std::max(lines_, static_cast<int>(kind.size()));
    kinds_.push_back(std::move(kind));
  }
  ShowSum(-1);
  ShowTable();
}

std::string GatheringTable::Name(int kind) const {
  const std::string& letters = Terms(kind).front().letters;
  if (names_ == KindNames::Degrees) return "degree" + tutor::Gap + std::to_string(letters.size());
  return letters.empty() ? "numbers" : "terms with" + tutor::Gap + LettersText(letters);
}

Term GatheringTable::Total(int kind) const {
  Term total = {0, Terms(kind).front().letters};
  for (const Term& term : Terms(kind)) total.coef += term.coef;
  return total;
}

// The terms of one kind in yellow.
void GatheringTable::ShowSum(int kind) const {
  std::string text;
  for (std::size_t i = 0; i < sum_.size(); ++i) {
    const bool marked = kind >= 0 && sum_[i].IsLike(Terms(kind).front());
    const std::string term = i == 0 ? TermText(sum_[i]) : LaterTermText(sum_[i]);
    text += marked ? R"(\y)" + term + R"(\z)" : term;
  }
  ShowAt(row_, text, kSumCol);
}

void GatheringTable::ShowTable() {
  const double height = kHeadHeight + (lines_ + 1) * kLineHeight + 4;
  const auto x = [](double pixels) { return 100 * pixels / kPanelWidth; };
  const auto y = [&](double pixels) { return 100 * pixels / height; };
  PrintCellTable table;
  table.widthPixels = static_cast<int>(kPanelWidth);
  table.heightPixels = static_cast<int>(height);
  for (int kind = 0; kind < Kinds(); ++kind) {
    const double left = KindLeft(kind, Kinds());
    table.labels.push_back({x(left), y(3), x(kCellWidth), y(kHeadHeight - 3),
                            HeadingText(Name(kind)), 12, platform::colour::Red, true});
    for (int line = 0; line <= lines_; ++line)
      table.cells.push_back(
          {x(left), y(kHeadHeight + line * kLineHeight), x(kCellWidth), y(kCellHeight)});
  }
  table.labels.push_back(
      {x(12), y(kHeadHeight + lines_ * kLineHeight + 6), x(kLabelWidth), y(20), "Sum", 12});
  CellTable(table, row_ + kBelow);
  rowBelow_ = page::RowBelow();
}

int GatheringTable::Cell(int kind, int line) const {
  return kind * (lines_ + 1) + line + 1;
}

// Where the sign of a later term stands; the first one begins with its own.
double GatheringTable::ColumnOf(std::size_t index) const {
  const Sum before(sum_.begin(), sum_.begin() + static_cast<std::ptrdiff_t>(index));
  return index == 0 ? kSumCol : kSumCol + StackedTextWidth(SumText(before)) + 1;
}

double GatheringTable::MiddleOf(int kind) const {
  return kPanelCol + (KindLeft(kind, Kinds()) + kCellWidth / 2) / gCellWidth;
}

void GatheringTable::SlideIn(std::size_t index, int kind) {
  const std::string text = index == 0 ? TermText(sum_[index]) : LaterTermText(sum_[index]);
  const double width = StackedTextWidth(text) - (index == 0 ? 0 : 1);
  const double from = ColumnOf(index);
  const double to = MiddleOf(kind) - width / 2;
  const double lane = row_ + kLane;
  SlideDown({row_, from, width}, kLane, Leaving::Copy, Pace::Brisk);
  if (to > from)
    SlideRight({lane, from, width}, to - from, Leaving::Nothing, Pace::Brisk);
  else
    SlideLeft({lane, from, width}, from - to, Leaving::Nothing, Pace::Brisk);
  ClearRows(lane, 1);
}

void GatheringTable::Gather(int kind) {
  ShowSum(kind);
  int line = 0;
  for (std::size_t i = 0; i < sum_.size(); ++i) {
    if (!sum_[i].IsLike(Terms(kind).front())) continue;
    SlideIn(i, kind);
    picPrintCellPrint(Cell(kind, line++), TermText(sum_[i]), platform::colour::Black, kFontSize);
  }
  Locate(rowBelow_, 1);
}

void GatheringTable::GatherAll() {
  for (int kind = 0; kind < Kinds(); ++kind) Gather(kind);
  MarkNone();
  Locate(rowBelow_, 1);
}

void GatheringTable::AddUpAll() {
  for (int kind = 0; kind < Kinds(); ++kind) AddUp(kind);
  MarkNone();
  Locate(rowBelow_, 1);
}

void GatheringTable::AddUp(int kind) {
  ShowSum(kind);
  picPrintCellPrint(Cell(kind, lines_), TermText(Total(kind)), platform::colour::Blue, kFontSize);
  Locate(rowBelow_, 1);
}

}  // namespace course::polynomials
