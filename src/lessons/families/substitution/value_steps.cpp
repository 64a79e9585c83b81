#include "lessons/families/substitution/value_steps.h"

#include <cstdlib>
#include <utility>

#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::substitution {
namespace {

using page::Text;

// The display takes each parenthesis for a part of its own, and what follows it for another one.
std::size_t PartsIn(const std::string& number) {
  if (number[0] != '(') return 1;
  return number.back() == ')' ? 3 : 4;
}

}  // namespace

ValueSteps::ValueSteps(NumberLine line, double row, double column)
    : line_(std::move(line)), display_(LineText(line_), row, column) {
  for (std::size_t i = 0; i < line_.size(); ++i) {
    parts_.emplace_back();
    for (std::size_t j = 0; j < line_[i].factors.size(); ++j)
      parts_.back().push_back(PartsIn(FactorText(line_[i].factors[j], i == 0 && j == 0)));
  }
}

int ValueSteps::StepsLeft() const {
  std::size_t steps = line_.size() - 1;
  for (const Product& product : line_) {
    steps += product.factors.size() - 1;
    for (const Factor& factor : product.factors) steps += factor.exponent > 1 ? 1 : 0;
  }
  return static_cast<int>(steps);
}

void ValueSteps::FindNext() {
  for (product_ = 0; product_ < line_.size(); ++product_)
    for (factor_ = 0; factor_ < line_[product_].factors.size(); ++factor_)
      if (Left().exponent > 1) {
        kind_ = Kind::Power;
        return;
      }
  factor_ = 0;
  kind_ = Kind::Multiplication;
  for (product_ = 0; product_ < line_.size(); ++product_)
    if (line_[product_].factors.size() > 1) return;
  product_ = 0;
  kind_ = Kind::Addition;
}

const Factor& ValueSteps::Right() const {
  if (kind_ == Kind::Power) return Left();
  return kind_ == Kind::Multiplication ? line_[product_].factors[factor_ + 1]
                                       : line_[product_ + 1].factors[0];
}

int ValueSteps::Result() const {
  if (kind_ == Kind::Power) return Left().Value();
  if (kind_ == Kind::Multiplication) return Left().base * Right().base;
  return Left().base + (Subtracts() ? -Right().base : Right().base);
}

std::size_t ValueSteps::PartsBefore() const {
  std::size_t count = 0;
  for (std::size_t i = 0; i <= product_; ++i)
    for (std::size_t j = 0; j < parts_[i].size(); ++j) {
      if (i == product_ && j == factor_) return count;
      count += parts_[i][j] + 1;
    }
  return count;
}

void ValueSteps::PickOut() {
  FindNext();
  const std::size_t first = PartsBefore();
  std::size_t count = parts_[product_][factor_];
  if (kind_ == Kind::Multiplication) count += 1 + parts_[product_][factor_ + 1];
  if (kind_ == Kind::Addition) count += 1 + parts_[product_ + 1][0];
  display_.PickOut(first, first + count - 1);
}

void ValueSteps::ShowResult() {
  const Factor result = {Result()};
  std::vector<Factor>& factors = line_[product_].factors;
  std::vector<std::size_t>& parts = parts_[product_];
  display_.ShowResult(FactorText(result, BeginsLine()));
  const auto at = static_cast<std::ptrdiff_t>(factor_);
  factors[factor_] = result;
  parts[factor_] = 1;
  if (kind_ == Kind::Multiplication) {
    factors.erase(factors.begin() + at + 1);
    parts.erase(parts.begin() + at + 1);
  } else if (kind_ == Kind::Addition) {
    line_.erase(line_.begin() + 1);
    parts_.erase(parts_.begin() + 1);
  }
}

void ValueSteps::Step() {
  PickOut();
  ShowResult();
}

void ValueSteps::Finish() {
  while (!Done()) Step();
}

std::string ValueSteps::OperationText() const {
  std::string text = FactorText(Left(), BeginsLine());
  if (kind_ == Kind::Multiplication)
    text += " " + tutor::Times + " " + FactorText(Right(), false);
  else if (kind_ == Kind::Addition)
    text += (Subtracts() ? " - " : " + ") + FactorText(Right(), false);
  return page::Insert(text);
}

std::string ValueSteps::Reason() const {
  switch (kind_) {
    case Kind::Power:
      return PowerReason();
    case Kind::Multiplication:
      return ProductReason();
    default:
      return SumReason();
  }
}

std::string ValueSteps::PowerReason() const {
  const std::string base = InParentheses(Left().base);
  std::string reason = Text("A power comes first.  {} means {}", FactorText(Left(), BeginsLine()),
                            base + " " + tutor::Times + " " + base);
  return reason +
         (Left().base < 0 ? ", and a negative times a negative number is positive.  " : ".  ");
}

std::string ValueSteps::ProductReason() const {
  std::string reason =
      line_.size() > 1 ? "We multiply before we add or subtract.  " : "We multiply.  ";
  if (Left().base < 0 && Right().base < 0) reason += "The signs are the same: positive.  ";
  if ((Left().base < 0) != (Right().base < 0)) reason += "The signs are different: negative.  ";
  return reason;
}

std::string ValueSteps::SumReason() const {
  std::string reason = line_.size() > 2 ? "We add and subtract from left to right.  " : "";
  const int right = Right().base;
  if (right < 0)
    reason += Text(
        Subtracts() ? "To subtract {} means to add {}.  " : "To add {} means to subtract {}.  ",
        right, -right);
  return reason;
}

}  // namespace course::substitution
