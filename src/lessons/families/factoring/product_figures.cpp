#include "lessons/families/factoring/product_figures.h"

#include <string>

#include "display/drawing.h"
#include "display/print_cells.h"
#include "lessons/page/boxes.h"
#include "mathkit/expressions.h"

namespace course::factoring {
namespace {

using polynomials::Binomial;

constexpr int kTerms = 2;  // of a factor

std::string TermText(const Binomial& factor, int index) {
  return index == 0 ? CoefText(factor.lead) + "x" : NumStr(factor.constant);
}

}  // namespace

void DrawOuterAndInner(double row, double col, const Factors& factors) {
  const auto first = static_cast<double>(FactorText(factors.first).size());
  const auto both = static_cast<double>(FactorsText(factors).size());
  const double above = row - 0.9;
  const double below = row + 1.1;
  const double outer[] = {col + 1, col + both - 2};
  const double inner[] = {col + first - 2, col + first + 1.5};
  isDrawArrow3Segment(row - 0.5, outer[0], above, outer[0], above, outer[1], row - 0.4, outer[1],
                      platform::colour::Yellow, "NA", "NA");
  isDrawArrow3Segment(row + 0.7, inner[0], below, inner[0], below, inner[1], row + 0.6, inner[1],
                      platform::colour::Cyan, "NA", "NA");
}

void ShowProductTable(const Factors& factors) {
  constexpr double kLefts[kTerms] = {28, 65};
  constexpr double kTops[kTerms] = {24, 63};
  constexpr double kWidth = 28;
  constexpr double kHeight = 30;
  constexpr double kLabelSize = 15;
  const auto label = [&](double left, double top, double width, const std::string& text) {
    return PrintCellTable::Label{left, top, width, 22, text, kLabelSize, platform::colour::Black,
                                 true};
  };
  PrintCellTable table;
  table.heightPixels = 130;
  for (const double top : kTops)
    for (const double left : kLefts) table.cells.push_back({left, top, kWidth, kHeight});
  for (int i = 0; i < kTerms; ++i) {
    table.labels.push_back(label(kLefts[i], 3, kWidth, TermText(factors.first, i)));
    table.labels.push_back(label(4, kTops[i] + 5, 22, TermText(factors.second, i)));
  }
  page::CellTable(table);
}

void FillProductTable(const Factors& factors) {
  constexpr double kSize = 15;
  const auto [first, second] = factors;
  const std::string products[] = {
      CoefText(first.lead * second.lead) + "x^2^", CoefText(first.constant * second.lead) + "x",
      CoefText(first.lead * second.constant) + "x", NumStr(first.constant * second.constant)};
  int cell = 0;
  for (const std::string& product : products)
    picPrintCellPrint(++cell, product, platform::colour::Blue, kSize);
}

}  // namespace course::factoring
