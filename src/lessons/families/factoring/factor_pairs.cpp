#include "lessons/families/factoring/factor_pairs.h"

#include <algorithm>

#include "lessons/page/say.h"
#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::factoring {
namespace {

std::string ProductText(const NumberPair& pair) {
  return NumStr(pair.first) + " " + tutor::Times + " " + InParentheses(pair.second) + " = " +
         NumStr(pair.first * pair.second);
}

}  // namespace

std::string PairLine(const NumberPair& pair, std::size_t sumColumn) {
  std::string line = ProductText(pair);
  line.resize(sumColumn, ' ');
  return line + NumStr(pair.first) + " + " + InParentheses(pair.second) + " = " +
         NumStr(pair.Sum());
}

std::size_t SumColumnOf(const std::vector<NumberPair>& pairs) {
  constexpr std::size_t kBetween = 2;
  std::size_t column = kSumColumn;
  for (const NumberPair& pair : pairs)
    column = std::max(column, ProductText(pair).size() + kBetween);
  return column;
}

void ListTried(const std::vector<NumberPair>& pairs) {
  double row = page::NextRow() + 1;
  for (const NumberPair& pair : pairs)
    page::SayAt(row++, (&pair == &pairs.back() ? R"(  \y)" : "  ") + WithoutBreaks(PairLine(pair)));
}

std::string SignSentence(int product, int sum) {
  const page::Words sign = {sum > 0 ? "positive" : "negative"};
  if (product > 0)
    return page::Text(
        "The product is positive, so both numbers have the same sign.  The sum is {}, so both are "
        "{}.",
        sign, sign);
  return page::Text(
      "The product is negative, so one number is positive and the other negative.  The sum is {}, "
      "so the number farther from 0 is {}.",
      sign, sign);
}

}  // namespace course::factoring
