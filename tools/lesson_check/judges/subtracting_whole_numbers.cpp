// The difference of two whole numbers, and the usual slips of written subtraction.
#include <algorithm>
#include <sstream>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "lesson_check/judge.h"

namespace lesson_check {
namespace {

std::string WholeNumber(const std::string& text) {
  std::string number = Trimmed(text);
  const bool digits =
      std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; }) && !number.empty();
  if (!digits || (number.size() > 1 && number[0] == '0'))
    throw Unreadable("\"" + text + "\" is no whole number");
  return number;
}

// The digits of both numbers over each other, the hundreds first.
struct Rows {
  std::vector<int> top;
  std::vector<int> low;
  std::size_t Columns() const { return top.size(); }
};

Rows RowsOf(const std::string& top, const std::string& low) {
  Rows rows;
  for (const char c : top) rows.top.push_back(c - '0');
  rows.low.assign(top.size() - low.size(), 0);
  for (const char c : low) rows.low.push_back(c - '0');
  return rows;
}

Rational Read(const std::vector<int>& digits) {
  Rational value = 0;
  for (const int digit : digits) value = 10 * value + digit;
  return value;
}

Rational Apart(const Rows& rows) {
  std::vector<int> written;
  for (std::size_t i = 0; i < rows.Columns(); ++i)
    written.push_back(std::max(rows.top[i], rows.low[i]) - std::min(rows.top[i], rows.low[i]));
  return Read(written);
}

Rational NotPaid(const Rows& rows) {
  std::vector<int> written;
  for (std::size_t i = 0; i < rows.Columns(); ++i)
    written.push_back((rows.top[i] - rows.low[i] + 10) % 10);
  return Read(written);
}

Rational ZeroWhereNegative(const Rows& rows) {
  std::vector<int> written;
  for (std::size_t i = 0; i < rows.Columns(); ++i)
    written.push_back(std::max(rows.top[i] - rows.low[i], 0));
  return Read(written);
}

// The next digit pays, but the column itself is turned around.
Rational PaidAndTurned(Rows rows) {
  std::vector<int> written(rows.Columns());
  for (std::size_t i = rows.Columns(); i-- > 0;) {
    const int left = rows.top[i] - rows.low[i];
    if (left < 0 && i > 0) --rows.top[i - 1];
    written[i] = left < 0 ? -left : left;
  }
  return Read(written);
}

Rational PaidTwice(Rows rows) {
  std::vector<int> written(rows.Columns());
  for (std::size_t i = rows.Columns(); i-- > 0;) {
    const bool borrows = rows.top[i] < rows.low[i];
    written[i] = rows.top[i] + (borrows ? 10 : 0) - rows.low[i];
    if (borrows && i == 0) return 0;  // no student can go on
    if (borrows) rows.top[i - 1] -= 2;
  }
  return Read(written);
}

// Right, but a 0 that has to pay is 9 at nobody's cost.
Rational FreeNines(Rows rows) {
  std::vector<int> written(rows.Columns());
  for (std::size_t i = rows.Columns(); i-- > 0;) {
    int left = rows.top[i] - rows.low[i];
    if (left < 0 && i > 0) {
      left += 10;
      if (rows.top[i - 1] == 0)
        rows.top[i - 1] = 9;
      else
        --rows.top[i - 1];
    }
    written[i] = left;
  }
  return Read(written);
}

Reading ReadSubtractingWholeNumbers(const course::Problem& problem) {
  if (problem.question.size() != 2 ||
      problem.question[0] != "What is the result when we perform the subtraction below?")
    throw Unreadable("asks for no difference");
  std::istringstream line(Trimmed(problem.question[1]));
  std::string first, sign, second, rest;
  line >> first >> sign >> second;
  if (sign != "-" || line >> rest) throw Unreadable("\"" + problem.question[1] + "\"");
  const Rational top(WholeNumber(first));
  const Rational low(WholeNumber(second));

  Reading reading;
  reading.Within("the upper number", top, 10, 999);
  reading.Within("the lower number", low, 10, 999);
  if (top <= low) throw Unreadable("the upper number is not larger");
  const Rows rows = RowsOf(first, second);
  bool borrows = false;
  for (std::size_t i = 0; i < rows.Columns(); ++i) borrows = borrows || rows.top[i] < rows.low[i];
  if (!borrows) reading.faults.emplace_back("nothing to borrow");
  const Rational difference = top - low;
  reading.kind = std::to_string(first.size()) + " digits less " + std::to_string(second.size());
  reading.answer = difference.get_str();
  reading.value = [](const std::string& choice) { return WholeNumber(choice); };
  const auto add = [&](const char* name, const Rational& value) {
    reading.mistakes[name] = {value.get_str()};
  };
  add("takes the smaller digit from the larger in each column", Apart(rows));
  add("borrows, but takes nothing from the next digit", NotPaid(rows));
  add("borrows, but takes the smaller digit from the larger", PaidAndTurned(rows));
  add("writes 0 where the upper digit is too small", ZeroWhereNegative(rows));
  add("makes 9 of the 0, but takes nothing from the hundreds", FreeNines(rows));
  if (first.size() == 3 && second.size() == 2)
    add("leaves out the column of the hundreds", Rational(difference.get_num() % 100));
  add("takes the borrowed 1 away twice", PaidTwice(rows));
  add("adds the numbers", top + low);
  return reading;
}

const JudgeRegistration kRegistration(ReadSubtractingWholeNumbers, {"Subtracting Whole Numbers"});

}  // namespace
}  // namespace lesson_check
