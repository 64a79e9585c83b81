#include "lessons/families/written/difference_mistakes.h"

#include <cstdlib>

namespace course::written {
namespace {

// What is written in a column, and what is taken from the next one's top digit.
struct Written {
  int digit;
  int taken;
};

// The columns from the right, each treated by a rule: rule(top digit, digit taken, what the column
// before has taken from the top).  0, which is passed over, when the last column cannot go on.
template <class Rule>
int ByRule(int from, int taken, Rule rule) {
  int number = 0;
  int borrowed = 0;
  for (int ten = 1; from > 0; ten *= 10, from /= 10, taken /= 10) {
    const Written written = rule(from % 10, taken % 10, borrowed);
    number += written.digit * ten;
    borrowed = written.taken;
  }
  return borrowed == 0 ? number : 0;
}

Written SmallerFromLarger(int top, int low, int) {
  return {std::abs(top - low), 0};
}
Written NothingTakenFromNext(int top, int low, int) {
  return {top < low ? top + 10 - low : top - low, 0};
}
Written TenNotAdded(int top, int low, int borrowed) {
  const int left = top - borrowed;
  return {std::abs(left - low), left < low ? 1 : 0};
}
Written TakenTwice(int top, int low, int borrowed) {
  const int left = top - 2 * borrowed;
  return left < low ? Written{left + 10 - low, 1} : Written{left - low, 0};
}
Written ZeroWhereTooSmall(int top, int low, int) {
  return {top < low ? 0 : top - low, 0};
}
// The 0 becomes 10, of which one is lent; the next digit pays nothing for it.
Written ZeroPaidByNobody(int top, int low, int borrowed) {
  const bool isLentZero = top == 0 && borrowed > 0;
  const int left = top + (isLentZero ? 10 : 0) - borrowed;
  return left < low ? Written{left + 10 - low, 1} : Written{left - low, 0};
}

int WithoutLastColumn(int from, int taken) {
  int ten = 1;
  while (ten * 10 <= from) ten *= 10;
  return (from - taken) % ten;
}

}  // namespace

bool MustBorrowSomewhere(int from, int taken) {
  for (; taken > 0; from /= 10, taken /= 10)
    if (from % 10 < taken % 10) return true;
  return false;
}

std::vector<NumberMistake> DifferenceMistakes(int from, int taken) {
  const int difference = from - taken;
  const bool shorter = from >= 100 && taken < 100;
  return {
      {"takes the smaller digit from the larger in each column",
       ByRule(from, taken, SmallerFromLarger)},
      {"borrows, but takes nothing from the next digit", ByRule(from, taken, NothingTakenFromNext)},
      {"borrows, but takes the smaller digit from the larger", ByRule(from, taken, TenNotAdded)},
      {"writes 0 where the upper digit is too small", ByRule(from, taken, ZeroWhereTooSmall)},
      {"makes 9 of the 0, but takes nothing from the hundreds",
       ByRule(from, taken, ZeroPaidByNobody)},
      {"leaves out the column of the hundreds",
       shorter ? WithoutLastColumn(from, taken) : difference},
      {"takes the borrowed 1 away twice", ByRule(from, taken, TakenTwice)},
      {"adds the numbers", from + taken}};
}

}  // namespace course::written
