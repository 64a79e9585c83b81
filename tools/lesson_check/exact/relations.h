// Equations and inequalities, and the sets of numbers for which they hold.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

// A stretch of the number line.  An end that is absent lies at infinity.
struct Interval {
  std::optional<Rational> low;
  std::optional<Rational> high;
  bool lowClosed = false;
  bool highClosed = false;
};

// Any union of intervals, kept in one form: equal sets have equal texts.
class NumberSet {
 public:
  NumberSet() = default;  // empty
  explicit NumberSet(const Interval& interval);
  static NumberSet Everything();

  NumberSet Or(const NumberSet& other) const;
  NumberSet And(const NumberSet& other) const;
  std::string Text() const;  // "(-inf,2] u (3,inf)", "{}" when empty

 private:
  std::vector<Interval> intervals_;  // ascending, apart from each other
};

// The numbers that stand in a relation, such as '<', to a bound: "x < 5".
NumberSet SetOf(char relation, const Rational& bound);
// '>' for '<', and so on: what dividing by a negative number makes of a relation.
char ReversedRelation(char relation);

// A statement cut at its relation signs: "-2 < x" has two sides, "-2 < x < 5" three.
struct Statement {
  std::vector<std::string> sides;
  std::vector<char> relations;  // '=', '<', '>', or the codes of the course for the others
};
Statement CutAtRelations(const std::string& text);

// The only letter of a statement; unreadable when there are more or none.
char LetterOf(const std::string& text);

// The numbers for which a linear statement in one letter holds, chains such as "-2 < x < 5" and
// statements joined by "and" or "or" included.
NumberSet SolutionOf(const std::string& text);

}  // namespace lesson_check
