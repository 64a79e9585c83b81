#include "lessons/families/radicals/pairs_figure.h"

#include <utility>

#include "display/stacked_text.h"
#include "lessons/families/factoring/factor_frame.h"
#include "lessons/families/radicals/root_term.h"
#include "lessons/page/show.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::radicals {
namespace {

constexpr double kSignCol = 11;  // of the radical sign before the product
constexpr double kWordCol = 2;
constexpr double kOutsideRows = 2;  // below the product
constexpr double kInsideRows = 3.5;

}  // namespace

PairsFigure PairsFigure::OfNumber(int number, double row) {
  std::vector<std::string> factors;
  for (const int prime : PrimesOf(number)) factors.push_back(NumStr(prime));
  return {RadicalOf({number, ""}), factors, " " + tutor::Times + " ", row};
}

PairsFigure PairsFigure::OfLetters(const std::string& letters, double row) {
  std::vector<std::string> factors;
  for (const char letter : letters) factors.emplace_back(1, letter);
  return {RadicalOf({1, letters}), factors, tutor::Dot, row};
}

PairsFigure::PairsFigure(const std::string& radical, const std::vector<std::string>& factors,
                         std::string sign, double row)
    : row_(row), sign_(std::move(sign)) {
  std::vector<Factor> placed;
  std::string product;
  for (const std::string& factor : factors) {
    if (!product.empty()) product += sign_;
    placed.push_back({factor, kSignCol + 1 + static_cast<double>(product.size())});
    product += factor;
  }
  // Equal factors stand side by side.
  for (std::size_t i = 0; i < placed.size(); ++i) {
    if (i + 1 < placed.size() && placed[i].text == placed[i + 1].text) {
      pairs_.push_back({placed[i], placed[i + 1]});
      outside_.push_back(placed[i]);
      ++i;
    } else {
      inside_.push_back(placed[i]);
    }
  }
  const std::string start = radical + " = ";
  page::ShowAt(row_, start, kSignCol - StackedTextWidth(start));
  page::ShowAt(row_, "`" + product + "`", kSignCol);
}

std::string PairsFigure::Joined(const std::vector<Factor>& factors) const {
  std::string text;
  for (const Factor& factor : factors) text += (text.empty() ? "" : sign_) + factor.text;
  return text;
}

void PairsFigure::FramePairs() const {
  for (const std::vector<Factor>& pair : pairs_) {
    const auto width = static_cast<double>(pair[1].text.size());
    factoring::FrameFactor(row_, row_, pair[0].col, pair[1].col + width - 1);
  }
}

void PairsFigure::Drop(const std::vector<Factor>& factors, const std::string& words,
                       double row) const {
  page::ShowAt(row, words, kWordCol);
  for (const Factor& factor : factors)
    factoring::SlideFactorDown(row_, row, factor.col, static_cast<double>(factor.text.size()));
  for (const Factor& factor : factors) factoring::ShowOverSlid(row, factor.col, factor.text);
  FramePairs();
}

void PairsFigure::BringPairsOut() const {
  FramePairs();
  Drop(outside_, "Outside:", row_ + kOutsideRows);
}

void PairsFigure::KeepRest() const {
  Drop(inside_, "Inside:", row_ + kInsideRows);
}

}  // namespace course::radicals
