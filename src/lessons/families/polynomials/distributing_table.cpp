#include "lessons/families/polynomials/distributing_table.h"

#include "display/print_cells.h"
#include "lessons/page/boxes.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {
namespace {

constexpr double kFontSize = 15;

struct Column {
  double left;
  double width;
};
std::vector<Column> ColumnsFor(std::size_t terms) {
  if (terms == 2) return {{28, 28}, {65, 28}};
  return {{28, 21}, {52, 21}, {76, 21}};
}

}  // namespace

DistributingTable::DistributingTable(int factor, const Sum& inside, double row)
    : factor_{factor, ""}, inside_(inside) {
  constexpr double kTops[] = {10, 57};
  constexpr double kHeight = 34;
  PrintCellTable table;
  table.heightPixels = 100;
  for (const double top : kTops)
    for (const auto& [left, width] : ColumnsFor(inside_.size()))
      table.cells.push_back({left, top, width, kHeight});
  table.labels.push_back({3, kTops[0] + 8, 24, 22, "In parentheses", 12});
  table.labels.push_back({3, kTops[1] + 8, 24, 22, "Times " + NumStr(factor), 12});
  page::CellTable(table, row);
  int cell = 0;
  for (const Term& term : inside_)
    picPrintCellPrint(++cell, TermText(term), platform::colour::Black, kFontSize);
  rowBelow_ = page::RowBelow();
}

void DistributingTable::Multiply(int index) {
  const Term product = Product(factor_, inside_.at(static_cast<std::size_t>(index)));
  const int terms = static_cast<int>(inside_.size());
  picPrintCellPrint(terms + index + 1, TermText(product), platform::colour::Blue, kFontSize);
}

std::string DistributingTable::ProductText(int index) const {
  const Term& term = inside_.at(static_cast<std::size_t>(index));
  const std::string text = TermText(term);
  return TermText(factor_) + " " + tutor::Times + " " + (term.coef < 0 ? "(" + text + ")" : text) +
         " = " + TermText(Product(factor_, term));
}

}  // namespace course::polynomials
