#include "lessons/families/written/sum_mistakes.h"

#include <algorithm>
#include <numeric>

#include "mathkit/expressions.h"

namespace course::written {
namespace {

int LengthOf(int number) {
  return static_cast<int>(NumStr(number).size());
}

int DigitOf(int number, int place) {
  for (; place > 0; --place) number /= 10;
  return number % 10;
}

// What is written below a column, the whole number in the last one, and what is carried.
struct Written {
  int digit;
  int carry;
};

// The columns from the right, each treated by a rule: rule(digits' sum, carry, is the last one).
template <class Rule>
int ByRule(const std::vector<int>& addends, Rule rule) {
  int number = 0;
  int carry = 0;
  for (int place = 0, ten = 1; place < PlacesOf(addends); ++place, ten *= 10) {
    const Written written = rule(ColumnOf(addends, place), carry, place == PlacesOf(addends) - 1);
    number += written.digit * ten;
    carry = written.carry;
  }
  return number;
}

Written Split(int total, bool last) {
  return {last ? total : total % 10, total / 10};
}
Written Forgotten(int column, int, bool last) {
  return {last ? column : column % 10, 0};
}
Written AddedTwice(int column, int carry, bool last) {
  return Split(column + 2 * carry, last);
}
Written AlwaysOne(int column, int carry, bool last) {
  return Split(column + std::min(carry, 1), last);
}
Written Exchanged(int column, int carry, bool last) {
  const int total = column + carry;
  return last || total < 10 ? Written{total, 0} : Written{total / 10, total % 10};
}
Written LastDropped(int column, int carry, bool) {
  return Split(column + carry, false);
}

int WithWholeColumnSums(const std::vector<int>& addends) {
  std::string text;
  for (int place = PlacesOf(addends) - 1; place >= 0; --place)
    text += NumStr(ColumnOf(addends, place));
  return std::stoi(text);
}

int LinedUpOnTheLeft(const std::vector<int>& addends) {
  int sum = 0;
  for (int addend : addends) {
    for (int i = LengthOf(addend); i < PlacesOf(addends); ++i) addend *= 10;
    sum += addend;
  }
  return sum;
}

}  // namespace

int ColumnOf(const std::vector<int>& addends, int place) {
  int sum = 0;
  for (const int addend : addends) sum += DigitOf(addend, place);
  return sum;
}

int PlacesOf(const std::vector<int>& addends) {
  return LengthOf(*std::ranges::max_element(addends));
}

bool CarriesInside(const std::vector<int>& addends) {
  for (int place = 0, carry = 0; place < PlacesOf(addends) - 1; ++place) {
    carry = (ColumnOf(addends, place) + carry) / 10;
    if (carry > 0) return true;
  }
  return false;
}

std::vector<NumberMistake> SumMistakes(const std::vector<int>& addends) {
  // Of two numbers nobody leaves one out: 0 is passed over.
  const int withoutLast =
      addends.size() > 2 ? std::accumulate(addends.begin(), addends.end() - 1, 0) : 0;
  return {{"forgets to carry", ByRule(addends, Forgotten)},
          {"adds each carried digit twice", ByRule(addends, AddedTwice)},
          {"writes the whole sum of each column", WithWholeColumnSums(addends)},
          {"carries the ones digit and writes the tens digit", ByRule(addends, Exchanged)},
          {"carries 1 where it should be 2", ByRule(addends, AlwaysOne)},
          {"drops the last carried digit", ByRule(addends, LastDropped)},
          {"lines the numbers up on the left", LinedUpOnTheLeft(addends)},
          {"leaves out the last number", withoutLast}};
}

}  // namespace course::written
