#include "lessons/families/polynomials/foil_table.h"

#include "display/grid.h"
#include "display/lesson_window.h"
#include "display/print_cells.h"
#include "lessons/page/boxes.h"
#include "lessons/page/page_lines.h"
#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {

using namespace page;

namespace {

constexpr double kPairCol = 6;
constexpr double kLane = 1.4;   // rows below the binomials, where terms slide sideways
constexpr double kBelow = 2.5;  // rows from the binomials to the table
constexpr double kFontSize = 16;

// In pixels; the table gives them in hundredths of its panel.
constexpr double kPanelWidth = 608;
constexpr double kPanelCol = 3;  // of the lesson screen
constexpr double kSlot = kPanelWidth / 4;
constexpr double kCellWidth = 140;
constexpr double kCellHeight = 32;
constexpr double kHeadHeight = 28;
constexpr double kLineHeight = 36;

int IndexOf(Foil foil) {
  return static_cast<int>(foil);
}

// A term of a binomial that begins at a column: where its sign or number stands, and how wide it
// is.
struct Place {
  double column;
  double width;
};
Place PlaceIn(const Sum& binomial, std::size_t index, double column) {
  const auto first = static_cast<double>(TermText(binomial[0]).size());
  if (index == 0) return {column + 1, first};
  return {column + first + 2, static_cast<double>(LaterTermText(binomial[1]).size()) - 1};
}

std::string WithTermInYellow(const Sum& binomial, std::size_t index) {
  const std::string terms[] = {TermText(binomial[0]), LaterTermText(binomial[1])};
  std::string text;
  for (std::size_t i = 0; i < 2; ++i) text += i == index ? R"(\y)" + terms[i] + R"(\z)" : terms[i];
  return "(" + text + ")";
}

std::size_t FirstIndex(Foil foil) {
  return foil == Foil::First || foil == Foil::Outer ? 0 : 1;
}
std::size_t SecondIndex(Foil foil) {
  return foil == Foil::First || foil == Foil::Inner ? 0 : 1;
}

}  // namespace

std::string FoilName(Foil foil) {
  constexpr const char* kNames[] = {"First", "Outer", "Inner", "Last"};
  return kNames[IndexOf(foil)];
}

const Term& BinomialPair::FirstTerm(Foil foil) const {
  return first.at(FirstIndex(foil));
}

const Term& BinomialPair::SecondTerm(Foil foil) const {
  return second.at(SecondIndex(foil));
}

Term BinomialPair::Product(Foil foil) const {
  return polynomials::Product(FirstTerm(foil), SecondTerm(foil));
}

Sum BinomialPair::Products() const {
  Sum products;
  for (const Foil foil : kFoil) products.push_back(Product(foil));
  return products;
}

std::string BinomialPair::Text() const {
  return "(" + SumText(first) + ")(" + SumText(second) + ")";
}

// The second term keeps a sign of its own apart from the dot.
std::string BinomialPair::FactorsText(Foil foil) const {
  const Term& later = SecondTerm(foil);
  const std::string text = TermText(later);
  return TermText(FirstTerm(foil)) + " " + tutor::Dot + " " +
         (later.coef < 0 ? "(" + text + ")" : text);
}

std::string BinomialPair::ProductText(Foil foil) const {
  return FactorsText(foil) + " = " + TermText(Product(foil));
}

FoilTable::FoilTable(const BinomialPair& pair, double row) : pair_(pair), row_(row) {
  ShowPair();
  ShowTable();
}

void FoilTable::ShowPair() const {
  ShowAt(row_, pair_.Text(), kPairCol);
}

void FoilTable::ShowTable() {
  constexpr double kHeight = kHeadHeight + 2 * kLineHeight;
  const auto x = [](double pixels) { return 100 * pixels / kPanelWidth; };
  const auto y = [](double pixels) { return 100 * pixels / kHeight; };
  PrintCellTable table;
  table.widthPixels = static_cast<int>(kPanelWidth);
  table.heightPixels = static_cast<int>(kHeight);
  for (int line = 0; line < 2; ++line)
    for (const Foil foil : kFoil)
      table.cells.push_back({x(IndexOf(foil) * kSlot + (kSlot - kCellWidth) / 2),
                             y(kHeadHeight + line * kLineHeight), x(kCellWidth), y(kCellHeight)});
  for (const Foil foil : kFoil)  // inside of the table's frame
    table.labels.push_back({x(IndexOf(foil) * kSlot + 4), y(3), x(kSlot - 8), y(kHeadHeight - 3),
                            FoilName(foil), 12, platform::colour::Black, true});
  CellTable(table, row_ + kBelow);
  rowBelow_ = page::RowBelow();
}

void FoilTable::SlideIn(double column, double width, Foil foil) const {
  const double to =
      kPanelCol + (IndexOf(foil) + 0.5) * kSlot / gCellWidth - width / 2;  // middle of the column
  const double lane = row_ + kLane;
  SlideDown({row_, column, width}, kLane, Leaving::Copy, Pace::Brisk);
  if (to > column)
    SlideRight({lane, column, width}, to - column, Leaving::Nothing, Pace::Brisk);
  else
    SlideLeft({lane, column, width}, column - to, Leaving::Nothing, Pace::Brisk);
  ClearRows(lane, 1);
}

void FoilTable::Bring(Foil foil) {
  ShowAt(row_,
         WithTermInYellow(pair_.first, FirstIndex(foil)) +
             WithTermInYellow(pair_.second, SecondIndex(foil)),
         kPairCol);
  const double secondCol = kPairCol + static_cast<double>(SumText(pair_.first).size()) + 2;
  for (const Place& place : {PlaceIn(pair_.first, FirstIndex(foil), kPairCol),
                             PlaceIn(pair_.second, SecondIndex(foil), secondCol)})
    SlideIn(place.column, place.width, foil);
  picPrintCellPrint(IndexOf(foil) + 1, pair_.FactorsText(foil), platform::colour::Black, kFontSize);
  Locate(rowBelow_, 1);
}

void FoilTable::Multiply(Foil foil) {
  picPrintCellPrint(static_cast<int>(kFoil.size()) + IndexOf(foil) + 1,
                    TermText(pair_.Product(foil)), platform::colour::Blue, kFontSize);
  Locate(rowBelow_, 1);
}

}  // namespace course::polynomials
