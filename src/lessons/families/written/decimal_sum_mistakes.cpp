#include "lessons/families/written/decimal_sum_mistakes.h"

#include <algorithm>

#include "engine/choices.h"
#include "lessons/families/written/column_sum.h"
#include "mathkit/expressions.h"

namespace course::written {
namespace {

constexpr int kThousandths = 3;  // places
constexpr int kOne = 1000;       // thousandths

int PowerOfTen(int exponent) {
  int power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

// Its digits without the point.
int DigitsIn(std::string number) {
  std::erase(number, '.');
  return std::stoi(number);
}

int MostDecimals(const std::string& first, const std::string& second) {
  return std::max(DecimalsOf(first), DecimalsOf(second));
}

// Column by column from the right; each carried digit counts so many times.
int WithCarries(const std::string& first, const std::string& second, int times) {
  const int highest = std::max(HighestPlace(first), HighestPlace(second));
  int sum = 0;
  int carry = 0;
  for (int place = -MostDecimals(first, second); place <= highest; ++place) {
    const int total = DigitAt(first, place) + DigitAt(second, place) + times * carry;
    sum += (place < highest ? total % 10 : total) * PowerOfTen(kThousandths + place);
    carry = total / 10;
  }
  return sum;
}

// 2.5 + 1.37 is 3 and 42: 3.42.
int EachPartByItself(const std::string& first, const std::string& second) {
  int whole = 0;
  int behind = 0;
  for (const std::string& number : {first, second}) {
    const std::size_t point = std::min(number.find('.'), number.size());
    whole += std::stoi(number.substr(0, point));
    if (point < number.size()) behind += std::stoi(number.substr(point + 1));
  }
  return ThousandthsIn(NumStr(whole) + "." + NumStr(behind));
}

int LinedUpOnTheRight(const std::string& first, const std::string& second) {
  const int decimals = MostDecimals(first, second);
  return (DigitsIn(first) + DigitsIn(second)) * PowerOfTen(kThousandths - decimals);
}

int LinedUpOnTheLeft(const std::string& first, const std::string& second) {
  const int highest = std::max(HighestPlace(first), HighestPlace(second));
  int sum = 0;
  for (const std::string& number : {first, second})
    sum += ThousandthsIn(number) * PowerOfTen(highest - HighestPlace(number));
  return sum;
}

int WithoutExtraDigits(const std::string& first, const std::string& second) {
  const int decimals = std::min(DecimalsOf(first), DecimalsOf(second));
  const int unit = PowerOfTen(kThousandths - decimals);
  return (ThousandthsIn(first) / unit + ThousandthsIn(second) / unit) * unit;
}

}  // namespace

std::string ThousandthsText(int thousandths) {
  std::string text = NumStr(thousandths);
  if (text.size() <= kThousandths) text.insert(0, kThousandths + 1 - text.size(), '0');
  text.insert(text.size() - kThousandths, ".");
  while (text.ends_with('0')) text.pop_back();
  if (text.ends_with('.')) text.pop_back();
  return text;
}

int ThousandthsIn(const std::string& number) {
  return DigitsIn(number) * PowerOfTen(kThousandths - DecimalsOf(number));
}

int DecimalsOf(const std::string& number) {
  return -LowestPlace(number);
}

std::string WithZeros(const std::string& number, int decimals) {
  const int missing = decimals - DecimalsOf(number);
  const std::string point = missing > 0 && DecimalsOf(number) == 0 ? "." : "";
  return number + point + std::string(static_cast<std::size_t>(missing), '0');
}

bool CarriesPastThePoint(const std::string& first, const std::string& second) {
  return ThousandthsIn(first) % kOne + ThousandthsIn(second) % kOne >= kOne;
}

std::vector<NumberMistake> DecimalSumMistakes(const std::string& first, const std::string& second) {
  const int right = ThousandthsIn(first) + ThousandthsIn(second);
  const int toPoint = PowerOfTen(MostDecimals(first, second));
  const std::vector<NumberMistake> slips = {
      {"adds whole parts and decimal parts each by itself", EachPartByItself(first, second)},
      {"lines the numbers up on the right", LinedUpOnTheRight(first, second)},
      {"lines the numbers up on the left", LinedUpOnTheLeft(first, second)},
      {"drops the extra decimal digits", WithoutExtraDigits(first, second)},
      {"forgets to carry", WithCarries(first, second, 0)},
      {"adds each carried digit twice", WithCarries(first, second, 2)},
      {"carries a 1 that is not there", CarriesPastThePoint(first, second) ? right : right + kOne},
      {"forgets the point", right * toPoint},
      {"puts the point one place too far to the left", right / 10},
      {"puts the point one place too far to the right", right * 10}};
  std::vector<NumberMistake> mistakes;
  std::vector<int> values = {right};
  for (const NumberMistake& slip : slips) {
    if (std::ranges::count(values, slip.value) > 0) continue;
    mistakes.push_back(slip);
    values.push_back(slip.value);
  }
  return mistakes;
}

void FillDecimalSumChoices(Problem& problem, const std::string& first, const std::string& second,
                           RandomStream& random) {
  constexpr int kWrong = 4;
  const int right = ThousandthsIn(first) + ThousandthsIn(second);
  const std::vector<NumberMistake> mistakes = DecimalSumMistakes(first, second);
  const int count = static_cast<int>(mistakes.size());
  const int smaller = static_cast<int>(std::ranges::count_if(
      mistakes, [&](const NumberMistake& mistake) { return mistake.value < right; }));
  const int wished = random.Rand(0, kWrong);
  int below = std::min(std::max(wished, kWrong - (count - smaller)), smaller);
  int above = kWrong - below;
  Choices<int> choices(problem, choice_kind::FiveShuffled, ThousandthsText);
  choices.Right(right);
  const std::vector<int> order = random.RandSeq(count, count);
  for (const int i : order) {
    const auto& [name, value] = mistakes[static_cast<std::size_t>(i - 1)];
    int& room = value < right ? below : above;
    if (room == 0) continue;
    choices.Wrong(name, value);
    --room;
  }
}

}  // namespace course::written
