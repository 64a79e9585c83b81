#include "lessons/families/stories/valued_nest.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <map>
#include <optional>

#include "mathkit/expressions.h"
#include "mathkit/tutor_codes.h"

namespace course::stories {
namespace {

constexpr int kLargestOfAll = 12;  // of the numbers that are tried for any letter

bool IsNumber(const std::string& operand) {
  return std::isdigit(static_cast<unsigned char>(operand.front())) != 0;
}

Fraction Result(Operation operation, const Fraction& a, const Fraction& b) {
  switch (operation) {
    case Operation::Add:
      return a + b;
    case Operation::Subtract:
      return a - b;
    case Operation::Multiply:
      return a * b;
    case Operation::Divide:
      return a / b;
  }
  return {};
}

// How unwelcome a value is on the page.
int BurdenOf(const Fraction& value) {
  constexpr int kFraction = 200;
  constexpr int kNegative = 100;
  constexpr int kZero = 50;
  constexpr int kOne = 5;  // says little about a factor
  constexpr int kLarge = 60;
  if (value.den > 1) return kFraction + value.den + (value.num < 0 ? kNegative : 0);
  if (value.num < 0) return kNegative;
  if (value.num == 0) return kZero;
  if (value.num == 1) return kOne;
  return value.num > kLarge ? value.num / kLarge : 0;
}

using Numbers = std::map<std::string, int>;  // of each operand

// Nothing where something would be divided by 0.
std::optional<Fraction> ValueWith(const Numbers& numbers, const Nest& nest) {
  Fraction value = {numbers.at(nest.start), 1};
  for (const Nest::Level& level : nest.levels) {
    const Fraction operand = {numbers.at(level.operand), 1};
    const Fraction& second = level.insideFirst ? operand : value;
    if (level.phrase.operation == Operation::Divide && second.num == 0) return {};
    value = Result(level.phrase.operation, level.insideFirst ? value : operand, second);
  }
  return value;
}

// Tries numbers for the letters, from the inside out, and keeps the lightest burden.
class NumberSearch {
 public:
  NumberSearch(const Nest& nest, const std::vector<Nest>& rivals)
      : nest_(nest), rivals_(rivals), tried_{nest, {}, {}} {
    ForEachNumber(nest.start, {}, [&](int number) {
      tried_.nest.start = NumStr(number);
      numbers_[nest_.start] = number;
      Try(0, {number, 1}, BurdenOfLetter(nest_.start, number));
    });
  }

  const ValuedNest& Best() const { return best_; }

 private:
  // The operand itself, or numbers that stand nowhere else; some go well with what is inside.
  template <class Step>
  void ForEachNumber(const std::string& operand, const Fraction& inside, Step step) {
    if (IsNumber(operand)) return step(std::stoi(operand));
    std::vector<int> numbers;
    for (int number = 2; number <= kLargestOfAll; ++number) numbers.push_back(number);
    if (inside.den == 1 && inside.num > 1)
      for (const int number : {2 * inside.num, 3 * inside.num, inside.num + 2, inside.num + 5})
        numbers.push_back(number);
    const bool isStart = inside.num == 0;
    if (isStart) numbers.insert(numbers.end(), {15, 16, 18, 20, 24, 30});  // to divide twice
    numbers.push_back(1);
    for (const int number : numbers) {
      if (IsTaken(number)) continue;
      used_.push_back(number);
      step(number);
      used_.pop_back();
    }
  }

  bool IsTaken(int number) const {
    const auto isIt = [&](const std::string& operand) { return operand == NumStr(number); };
    return std::ranges::find(used_, number) != used_.end() || isIt(nest_.start) ||
           std::ranges::any_of(nest_.levels, isIt, &Nest::Level::operand);
  }

  // Where 1 stands, a factor and a divisor do the same.
  static int BurdenOfLetter(const std::string& operand, int number) {
    constexpr int kLetterOfOne = 40;
    return number == 1 && !IsNumber(operand) ? kLetterOfOne : 0;
  }

  // The check proves nothing against a rival with the same value.
  int BurdenOfRivals(const Fraction& value) const {
    constexpr int kSameValue = 1000;
    return kSameValue * static_cast<int>(std::ranges::count_if(rivals_, [&](const Nest& rival) {
             return ValueWith(numbers_, rival) == value;
           }));
  }

  void Try(std::size_t level, const Fraction& inside, int burden) {
    if (burden >= least_) return;
    if (level == nest_.levels.size()) {
      burden += BurdenOfRivals(inside);
      if (burden >= least_) return;
      least_ = burden;
      best_ = tried_;
      return;
    }
    const Nest::Level& at = nest_.levels[level];
    ForEachNumber(at.operand, inside, [&](int number) {
      const Fraction operand = {number, 1};
      const Fraction& second = at.insideFirst ? operand : inside;
      if (at.phrase.operation == Operation::Divide && second.num == 0) return;
      const Fraction value = Result(at.phrase.operation, at.insideFirst ? inside : operand, second);
      // 4 - 2 and 4 divided by 2 are both 2.
      const bool repeats = value == inside || value == operand;
      tried_.nest.levels[level].operand = NumStr(number);
      numbers_[at.operand] = number;
      tried_.values.push_back(value);
      Try(level + 1, value,
          burden + BurdenOf(value) + BurdenOfLetter(at.operand, number) + (repeats ? 1 : 0));
      tried_.values.pop_back();
    });
  }

  const Nest& nest_;
  const std::vector<Nest>& rivals_;
  Numbers numbers_;
  ValuedNest tried_;
  ValuedNest best_;
  std::vector<int> used_;
  int least_ = std::numeric_limits<int>::max();
};

}  // namespace

std::string ValuedNest::LettersText() const {
  std::string text;
  for (std::size_t i = 0; i < made.size(); ++i) {
    if (i > 0) text += i + 1 == made.size() ? " and " : ", ";
    text += WithoutBreaks(made[i].first + " is " + made[i].second);
  }
  return text;
}

Nest ValuedNest::From(std::size_t level) const {
  if (level == 0) return nest;
  const Fraction& inside = values[level - 1];
  Nest rest = nest;
  rest.levels.erase(rest.levels.begin(), rest.levels.begin() + static_cast<std::ptrdiff_t>(level));
  const bool takesParentheses = inside.num < 0 && !rest.levels[0].insideFirst;
  rest.start = takesParentheses ? "(" + ValueText(inside) + ")" : ValueText(inside);
  return rest;
}

ValuedNest WithNumbers(const Nest& nest, const std::vector<Nest>& rivals) {
  ValuedNest valued = NumberSearch(nest, rivals).Best();
  const std::string symbols = nest.Symbols();
  const auto add = [&](const std::string& operand, const std::string& number) {
    if (!IsNumber(operand)) valued.made.emplace_back(operand, number);
  };
  add(nest.start, valued.nest.start);
  for (std::size_t i = 0; i < nest.levels.size(); ++i)
    add(nest.levels[i].operand, valued.nest.levels[i].operand);
  std::ranges::sort(valued.made, {}, [&](const auto& made) { return symbols.find(made.first); });
  return valued;
}

}  // namespace course::stories
