// The sum of two or three whole numbers, and the usual slips of written addition.
#include <algorithm>
#include <sstream>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

using Digits = std::vector<int>;  // the ones first

Digits DigitsOf(const std::string& number) {
  Digits digits;
  for (const char c : number) {
    if (c < '0' || c > '9') throw Unreadable("\"" + number + "\" is no whole number");
    digits.insert(digits.begin(), c - '0');
  }
  if (digits.empty() || digits.back() == 0) throw Unreadable("\"" + number + "\" begins with 0");
  return digits;
}

std::vector<Digits> AddendsIn(const std::string& line) {
  std::vector<Digits> addends;
  std::istringstream words(Trimmed(line));
  std::string word;
  for (bool isSign = false; words >> word; isSign = !isSign) {
    if (!isSign)
      addends.push_back(DigitsOf(word));
    else if (word != "+")
      throw Unreadable("\"" + word + "\" in place of a plus sign");
  }
  return addends;
}

Rational Value(const Digits& digits) {
  Rational value = 0;
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) value = 10 * value + *digit;
  return value;
}

class Columns {
 public:
  explicit Columns(const std::vector<Digits>& addends) {
    for (const Digits& addend : addends) {
      if (sums_.size() < addend.size()) sums_.resize(addend.size());
      for (std::size_t i = 0; i < addend.size(); ++i) sums_[i] += addend[i];
    }
  }

  // Digit by digit; what a column hands on counts times so often, at most so much, and the last
  // column's number is written whole or by its last digit.
  Rational Added(int times, int most, bool wholeLast) const {
    Digits written;
    int carry = 0;
    for (const int sum : sums_) {
      const int total = sum + times * std::min(carry, most);
      written.push_back(total % 10);
      carry = total / 10;
    }
    if (wholeLast) written.back() += 10 * carry;
    return Value(written);
  }
  // 12 gives a 1 below and a 2 above.
  Rational Exchanged() const {
    Digits written;
    int carry = 0;
    for (std::size_t i = 0; i < sums_.size(); ++i) {
      const int total = sums_[i] + carry;
      const bool splits = total > 9 && i + 1 < sums_.size();
      written.push_back(splits ? total / 10 : total);
      carry = splits ? total % 10 : 0;
    }
    return Value(written);
  }
  Rational SideBySide() const {
    std::string text;
    for (const int sum : sums_) text.insert(0, std::to_string(sum));
    return Rational(text);
  }
  // The last column's sum as it is, all others without what is above 9.
  Rational Forgotten() const {
    Digits written;
    for (const int sum : sums_) written.push_back(sum % 10);
    written.back() = sums_.back();
    return Value(written);
  }
  bool HandsOn() const {
    int carry = 0;
    for (std::size_t i = 0; i + 1 < sums_.size(); ++i) {
      carry = (sums_[i] + carry) / 10;
      if (carry > 0) return true;
    }
    return false;
  }

 private:
  Digits sums_;
};

Rational LeftAligned(std::vector<Digits> addends) {
  std::size_t longest = 0;
  for (const Digits& addend : addends) longest = std::max(longest, addend.size());
  Rational sum = 0;
  for (Digits& addend : addends) {
    while (addend.size() < longest) addend.insert(addend.begin(), 0);
    sum += Value(addend);
  }
  return sum;
}

Reading ReadAddingWholeNumbers(const course::Problem& problem) {
  if (problem.question.size() != 2 || problem.question[0] != "Add these numbers:")
    throw Unreadable("asks for no sum");
  const std::vector<Digits> addends = AddendsIn(problem.question[1]);
  if (addends.size() < 2 || addends.size() > 3) throw Unreadable("not two or three numbers");

  Reading reading;
  Rational sum = 0;
  for (const Digits& addend : addends) {
    sum += Value(addend);
    reading.Within("a number", Value(addend), 1, 9999);
  }
  const Columns columns(addends);
  if (!columns.HandsOn()) reading.faults.emplace_back("nothing to carry");
  reading.kind = std::to_string(addends.size()) + " numbers";
  reading.answer = sum.get_str();
  reading.value = [](const std::string& choice) { return Value(DigitsOf(choice)).get_str(); };
  constexpr int kAll = 99;
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  add("forgets to carry", columns.Forgotten());
  add("adds each carried digit twice", columns.Added(2, kAll, true));
  add("writes the whole sum of each column", columns.SideBySide());
  add("carries the ones digit and writes the tens digit", columns.Exchanged());
  add("carries 1 where it should be 2", columns.Added(1, 1, true));
  add("drops the last carried digit", columns.Added(1, kAll, false));
  add("lines the numbers up on the left", LeftAligned(addends));
  if (addends.size() > 2) add("leaves out the last number", sum - Value(addends.back()));
  return reading;
}

const JudgeRegistration kRegistration(ReadAddingWholeNumbers, {"Adding Whole Numbers"});

}  // namespace
}  // namespace lesson_check
