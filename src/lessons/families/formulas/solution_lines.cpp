#include "lessons/families/formulas/solution_lines.h"

#include "display/stacked_text.h"
#include "lessons/page/show.h"

namespace course::formulas {
namespace {

// Rows from one line to the next, and what a built-up line needs more on each side of it.
constexpr double kLineToLine = 1.5;
constexpr double kForFraction = 1;
constexpr double kBesideEquals = 2;  // columns

}  // namespace

void SolutionLines::Write(const std::string& left, const std::string& right, Height height) {
  const bool builtUp = height == Height::Fraction || (left + right).find('/') != std::string::npos;
  if (!empty_) row_ += kLineToLine + (builtUp ? kForFraction : 0) + (builtUp_ ? kForFraction : 0);
  empty_ = false;
  builtUp_ = builtUp;
  page::ShowAt(row_, left, equalsCol_ - kBesideEquals + 1 - StackedTextWidth(left));
  page::ShowAt(row_, "=", equalsCol_);
  page::ShowAt(row_, right, equalsCol_ + kBesideEquals);
}

}  // namespace course::formulas
