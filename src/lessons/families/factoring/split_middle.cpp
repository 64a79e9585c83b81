#include "lessons/families/factoring/split_middle.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "lessons/page/show.h"
#include "lessons/page/slides.h"
#include "mathkit/expressions.h"
#include "mathkit/integers.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course::factoring {
namespace {

int ProductOfEnds(const Trinomial& trinomial) {
  return trinomial.square * trinomial.constant;
}

std::string ConstantText(int constant) {
  return tutor::Gap + SignedNumberText(constant);
}

// "2x", and " + 5" behind it, also for 1.
std::string OutsideFirst(const SplitTrinomial& split) {
  return CoefText(split.FirstOutside()) + "x";
}

std::vector<NumberPair> AllPairs(const Trinomial& trinomial) {
  return polynomials::PairsWithProduct(ProductOfEnds(trinomial), Sgn(trinomial.middle));
}

std::ptrdiff_t PlaceOfFound(const std::vector<NumberPair>& pairs, const Trinomial& trinomial) {
  const auto found = std::ranges::find(pairs, trinomial.middle, &NumberPair::Sum);
  if (found == pairs.end())
    platform::Stop("PlaceOfFound: no whole factors of " + TrinomialText(trinomial));
  return found - pairs.begin();
}

}  // namespace

SplitTrinomial::SplitTrinomial(const Trinomial& trinomial, const NumberPair& numbers)
    : trinomial_(trinomial), numbers_(numbers) {
  if (numbers.first * numbers.second != ProductOfEnds(trinomial))
    platform::Stop("SplitTrinomial: " + NumStr(numbers.first) + " and " + NumStr(numbers.second) +
                   " for " + TrinomialText(trinomial));
  firstOutside_ = Gcf(trinomial.square, std::abs(numbers.first));
  common_ = {trinomial.square / firstOutside_, numbers.first / firstOutside_};
}

std::string SplitTrinomial::FourTerms() const {
  return CoefText(trinomial_.square) + "x^2^" + SignedCoefText(numbers_.first) + "x" +
         SignedCoefText(numbers_.second) + "x" + ConstantText(trinomial_.constant);
}

std::string SplitTrinomial::Groups() const {
  return "(" + CoefText(trinomial_.square) + "x^2^" + SignedCoefText(numbers_.first) + "x) + (" +
         CoefText(numbers_.second) + "x" + ConstantText(trinomial_.constant) + ")";
}

std::string SplitTrinomial::TakenOut() const {
  const std::string common = FactorText(common_);
  return OutsideFirst(*this) + common + ConstantText(SecondOutside()) + common;
}

std::vector<NumberPair> PairsUntilFound(const Trinomial& trinomial, SearchFrom from) {
  std::vector<NumberPair> pairs = AllPairs(trinomial);
  if (from == SearchFrom::CloseNumbers) std::ranges::reverse(pairs);
  pairs.erase(pairs.begin() + PlaceOfFound(pairs, trinomial) + 1, pairs.end());
  return pairs;
}

SearchFrom ShorterSearch(const Trinomial& trinomial) {
  return PairsUntilFound(trinomial, SearchFrom::CloseNumbers).size() <
                 PairsUntilFound(trinomial, SearchFrom::One).size()
             ? SearchFrom::CloseNumbers
             : SearchFrom::One;
}

std::vector<NumberPair> PairsBesideFound(const Trinomial& trinomial) {
  const std::vector<NumberPair> pairs = AllPairs(trinomial);
  const std::ptrdiff_t found = PlaceOfFound(pairs, trinomial);
  std::vector<NumberPair> beside;
  for (const std::ptrdiff_t place : {found - 1, found + 1})
    if (place >= 0 && place < std::ssize(pairs))
      beside.push_back(pairs[static_cast<std::size_t>(place)]);
  return beside;
}

SplitTrinomial SplitMiddle(const Trinomial& trinomial) {
  NumberPair numbers = PairsUntilFound(trinomial, SearchFrom::One).back();
  if (numbers.first > 0 && numbers.second < 0) std::swap(numbers.first, numbers.second);
  return {trinomial, numbers};
}

void TakeOutTwice(double row, double col, const SplitTrinomial& split) {
  constexpr double kDown = 2;
  const std::string common = FactorText(split.Common());
  const auto width = static_cast<double>(common.size());
  const double commonCol = col + static_cast<double>(OutsideFirst(split).size());
  page::ShowAt(row,
               OutsideFirst(split) + R"(\y)" + common + R"(\z)" +
                   ConstantText(split.SecondOutside()) + R"(\y)" + common,
               col);
  page::SlideDown({row, commonCol, width}, kDown, page::Leaving::Copy);
  const Binomial rest = split.Factored().second;
  page::ShowAt(row + kDown, "=", commonCol - 2);
  page::ShowAt(row + kDown, R"(\y)" + common + R"(\z)" + FactorText(rest), commonCol);
}

}  // namespace course::factoring
