#include "lessons/families/polynomials/distributing_table.h"

#include "display/print_cells.h"
#include "lessons/page/boxes.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {
namespace {

constexpr int kTerms = 2;
constexpr double kFontSize = 15;

}  // namespace

DistributingTable::DistributingTable(int factor, const Sum& inside, double row)
    : factor_{factor, ""}, inside_(inside) {
  constexpr double kLefts[kTerms] = {28, 65};
  constexpr double kTops[] = {10, 57};
  constexpr double kWidth = 28;
  constexpr double kHeight = 34;
  PrintCellTable table;
  table.heightPixels = 100;
  for (const double top : kTops)
    for (const double left : kLefts) table.cells.push_back({left, top, kWidth, kHeight});
  table.labels.push_back({3, kTops[0] + 8, 24, 22, "In parentheses", 12});
  table.labels.push_back({3, kTops[1] + 8, 24, 22, "Times " + NumStr(factor), 12});
  page::CellTable(table, row);
  for (int i = 0; i < kTerms; ++i)
    picPrintCellPrint(i + 1, TermText(inside_.at(static_cast<std::size_t>(i))),
                      platform::colour::Black, kFontSize);
  rowBelow_ = page::RowBelow();
}

void DistributingTable::Multiply(int index) {
  const Term product = Product(factor_, inside_.at(static_cast<std::size_t>(index)));
  picPrintCellPrint(kTerms + index + 1, TermText(product), platform::colour::Blue, kFontSize);
}

std::string DistributingTable::ProductText(int index) const {
  const Term& term = inside_.at(static_cast<std::size_t>(index));
  const std::string text = TermText(term);
  return TermText(factor_) + " " + tutor::Times + " " + (term.coef < 0 ? "(" + text + ")" : text) +
         " = " + TermText(Product(factor_, term));
}

}  // namespace course::polynomials
