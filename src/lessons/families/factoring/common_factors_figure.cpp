#include "lessons/families/factoring/common_factors_figure.h"

#include <algorithm>
#include <cstdlib>

#include "display/stacked_text.h"
#include "lessons/families/factoring/factor_frame.h"
#include "lessons/families/fractions/fraction_steps.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::factoring {
namespace {

constexpr double kSecondRow = 1.5;  // below the first
constexpr double kCommonRow = 3.5;

bool IsNumber(const std::string& factor) {
  return factor[0] >= '0' && factor[0] <= '9';
}

bool StandsBefore(const std::string& a, const std::string& b) {
  if (IsNumber(a) && IsNumber(b)) return std::atoi(a.c_str()) < std::atoi(b.c_str());
  return a < b;  // digits come before letters
}

}  // namespace

WrittenProduct NumberWrittenOut(int number) {
  WrittenProduct product = {NumStr(number), {}};
  for (const int prime : fractions::PrimeFactorsOf(number))
    product.factors.push_back(NumStr(prime));
  return product;
}

WrittenProduct PowerWrittenOut(char letter, int exponent) {
  const std::string base(1, letter);
  return {base + ExponentText(exponent),
          std::vector<std::string>(static_cast<std::size_t>(exponent), base)};
}

CommonFactorsFigure::CommonFactorsFigure(const WrittenProduct& first, const WrittenProduct& second,
                                         double row, double col)
    : row_(row) {
  auto a = first.factors.begin();
  auto b = second.factors.begin();
  while (a != first.factors.end() || b != second.factors.end()) {
    const bool takesFirst =
        b == second.factors.end() || (a != first.factors.end() && !StandsBefore(*b, *a));
    const bool takesSecond =
        a == first.factors.end() || (b != second.factors.end() && !StandsBefore(*a, *b));
    columns_.push_back({takesFirst ? *a : *b, takesFirst, takesSecond});
    if (takesFirst) ++a;
    if (takesSecond) ++b;
  }
  const bool letters = !IsNumber(columns_.back().factor);
  sign_ = letters ? tutor::Gap + tutor::Dot + tutor::Gap : " " + tutor::Times + " ";

  const int name = std::max(StackedTextWidth(first.name), StackedTextWidth(second.name));
  firstCol_ = col + name + 3;
  const auto show = [&](const WrittenProduct& product, double at, bool (*isShown)(const Column&)) {
    page::ShowAt(at, product.name, col + name - StackedTextWidth(product.name));
    page::ShowAt(at, "= " + Aligned(isShown), firstCol_ - 2);
  };
  show(first, row, [](const Column& column) { return column.inFirst; });
  show(second, row + kSecondRow, [](const Column& column) { return column.inSecond; });
}

std::string CommonFactorsFigure::Aligned(bool (*isShown)(const Column& column)) const {
  std::string text;
  bool first = true;
  for (const Column& column : columns_) {
    const bool shown = isShown(column);
    if (!text.empty()) text += shown && !first ? sign_ : std::string(sign_.size(), ' ');
    text += shown ? column.factor : std::string(column.factor.size(), ' ');
    if (shown) first = false;
  }
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

double CommonFactorsFigure::ColumnOf(std::size_t i) const {
  double col = firstCol_;
  for (std::size_t before = 0; before < i; ++before)
    col += static_cast<double>(columns_[before].factor.size() + sign_.size());
  return col;
}

void CommonFactorsFigure::FrameCommon() const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (!columns_[i].IsCommon()) continue;
    const double last = ColumnOf(i) + static_cast<double>(columns_[i].factor.size()) - 1;
    FrameFactor(row_, row_ + kSecondRow, ColumnOf(i), last);
  }
}

void CommonFactorsFigure::DropCommon(const std::string& product) const {
  const double to = row_ + kCommonRow;
  int common = 0;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (!columns_[i].IsCommon()) continue;
    ++common;
    SlideFactorDown(row_ + kSecondRow, to, ColumnOf(i),
                    static_cast<double>(columns_[i].factor.size()));
  }
  FrameCommon();
  const std::string factors = Aligned([](const Column& column) { return column.IsCommon(); });
  ShowOverSlid(to, firstCol_, R"(\y)" + factors + (common > 1 ? " = " + product : ""));
}

double CommonFactorsFigure::RowBelow() const {
  return row_ + kCommonRow + 1.5;
}

}  // namespace course::factoring
