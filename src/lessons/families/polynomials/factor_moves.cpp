#include "lessons/families/polynomials/factor_moves.h"

#include "display/animation.h"
#include "display/grid.h"
#include "display/print.h"
#include "display/word_wrap.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::polynomials {
namespace {

// Sign and number, as they stand behind the letter.
std::string ConstantText(const Binomial& binomial) {
  return tutor::Gap + SignedNumberText(binomial.constant);
}

std::string Head(const Binomial& binomial) {
  return "(" + CoefText(binomial.lead) + "x";
}

void Raise(double row, double col, const std::string& constant) {
  constexpr int kUp = 1;
  constexpr int kRows = 2;
  constexpr int kUsualSpeed = 50;
  constexpr int kErase = 1;
  Locate(row + kRows, col);
  WordWraps(R"(\y)" + constant);
  Anim2(row + kRows, col, static_cast<double>(constant.size()), 1, kUp, kRows, kUsualSpeed, kErase);
}

}  // namespace

void ShowOpenFactors(double row, double col, const Factors& factors) {
  Locate(row, col);
  for (const Binomial* factor : {&factors.first, &factors.second})
    isPrints(Head(*factor) + std::string(ConstantText(*factor).size(), ' ') + ")");
  isPrint();
}

void RaiseConstants(double row, double col, const Factors& factors) {
  ShowOpenFactors(row, col, factors);
  for (const Binomial* factor : {&factors.first, &factors.second}) {
    const std::string constant = ConstantText(*factor);
    const std::string head = Head(*factor);
    Raise(row, col + static_cast<double>(head.size()), constant);
    col += static_cast<double>(head.size() + constant.size() + 1);
  }
  Locate(row + 1, 1);
}

}  // namespace course::polynomials
