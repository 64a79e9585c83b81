#include "lesson_check/exact/relations.h"

#include <algorithm>

#include "lesson_check/exact/notation.h"
#include "lesson_check/exact/unreadable.h"
#include "mathkit/tutor_codes.h"

namespace lesson_check {
namespace {

const char kAtLeast = course::tutor::GreaterOrEqual[0];
const char kAtMost = course::tutor::LessOrEqual[0];
const char kNotEqual = course::tutor::NotEqual[0];

bool IsRelation(char c) {
  return c == '=' || c == '<' || c == '>' || c == kAtLeast || c == kAtMost || c == kNotEqual;
}

// The lower of two low ends comes first; infinity before all, a closed end before an open one.
bool LowBefore(const Interval& a, const Interval& b) {
  if (!a.low || !b.low) return !a.low && b.low;
  return *a.low != *b.low ? *a.low < *b.low : a.lowClosed && !b.lowClosed;
}

bool HighBefore(const Interval& a, const Interval& b) {
  if (!a.high || !b.high) return a.high && !b.high;
  return *a.high != *b.high ? *a.high < *b.high : !a.highClosed && b.highClosed;
}

bool IsEmpty(const Interval& i) {
  if (!i.low || !i.high) return false;
  return *i.low > *i.high || (*i.low == *i.high && !(i.lowClosed && i.highClosed));
}

// Whether the second, which begins no earlier, leaves no gap behind the first.
bool Touches(const Interval& first, const Interval& second) {
  if (!first.high || !second.low) return true;
  if (*first.high != *second.low) return *first.high > *second.low;
  return first.highClosed || second.lowClosed;
}

bool Holds(const Rational& number, char relation) {  // number, relation, 0
  const int sign = sgn(number);
  switch (relation) {
    case '=':
      return sign == 0;
    case '<':
      return sign < 0;
    case '>':
      return sign > 0;
    default:
      if (relation == kAtMost) return sign <= 0;
      if (relation == kAtLeast) return sign >= 0;
      return sign != 0;
  }
}

NumberSet SolutionOfPair(const std::string& left, char relation, const std::string& right,
                         char letter) {
  const Polynomial difference = ValueOf(left) - ValueOf(right);
  if (difference.Degree(letter) > 1) throw Unreadable("no linear statement: " + left);
  const Rational slope = difference.Coefficient(letter, 1).Number();
  const Rational constant = difference.Coefficient(letter, 0).Number();
  if (slope == 0) return Holds(constant, relation) ? NumberSet::Everything() : NumberSet();
  return SetOf(slope < 0 ? ReversedRelation(relation) : relation, -constant / slope);
}

NumberSet SolutionOfChain(const std::string& text, char letter) {
  const Statement statement = CutAtRelations(text);
  if (statement.relations.empty()) throw Unreadable("\"" + text + "\" states nothing");
  NumberSet solution = NumberSet::Everything();
  for (std::size_t i = 0; i < statement.relations.size(); ++i)
    solution = solution.And(
        SolutionOfPair(statement.sides[i], statement.relations[i], statement.sides[i + 1], letter));
  return solution;
}

// The text cut in two at a word with blanks around it; nothing when it does not occur.
std::optional<std::pair<std::string, std::string>> CutAtWord(const std::string& text,
                                                             const std::string& word) {
  const std::string blanks = Trimmed(text);
  const std::size_t at = blanks.find(" " + word + " ");
  if (at == std::string::npos) return {};
  return {{blanks.substr(0, at), blanks.substr(at + word.size() + 2)}};
}

NumberSet SolutionFor(const std::string& text, char letter) {
  if (const auto both = CutAtWord(text, "or"))
    return SolutionFor(both->first, letter).Or(SolutionFor(both->second, letter));
  if (const auto both = CutAtWord(text, "and"))
    return SolutionFor(both->first, letter).And(SolutionFor(both->second, letter));
  return SolutionOfChain(text, letter);
}

}  // namespace

NumberSet SetOf(char relation, const Rational& bound) {
  switch (relation) {
    case '=':
      return NumberSet({bound, bound, true, true});
    case '<':
      return NumberSet({{}, bound, false, false});
    case '>':
      return NumberSet({bound, {}, false, false});
    default:
      if (relation == kAtMost) return NumberSet({{}, bound, false, true});
      if (relation == kAtLeast) return NumberSet({bound, {}, true, false});
      return SetOf('<', bound).Or(SetOf('>', bound));
  }
}

char ReversedRelation(char relation) {
  if (relation == '<') return '>';
  if (relation == '>') return '<';
  if (relation == kAtMost) return kAtLeast;
  if (relation == kAtLeast) return kAtMost;
  return relation;
}

NumberSet::NumberSet(const Interval& interval) {
  if (!IsEmpty(interval)) intervals_ = {interval};
}

NumberSet NumberSet::Everything() {
  return NumberSet(Interval{});
}

NumberSet NumberSet::Or(const NumberSet& other) const {
  std::vector<Interval> all = intervals_;
  all.insert(all.end(), other.intervals_.begin(), other.intervals_.end());
  std::sort(all.begin(), all.end(), LowBefore);
  NumberSet joined;
  for (const Interval& next : all) {
    if (joined.intervals_.empty() || !Touches(joined.intervals_.back(), next)) {
      joined.intervals_.push_back(next);
      continue;
    }
    Interval& last = joined.intervals_.back();
    if (HighBefore(last, next)) {
      last.high = next.high;
      last.highClosed = next.highClosed;
    }
  }
  return joined;
}

NumberSet NumberSet::And(const NumberSet& other) const {
  NumberSet common;
  for (const Interval& a : intervals_) {
    for (const Interval& b : other.intervals_) {
      const Interval& low = LowBefore(a, b) ? b : a;
      const Interval& high = HighBefore(a, b) ? a : b;
      common = common.Or(NumberSet({low.low, high.high, low.lowClosed, high.highClosed}));
    }
  }
  return common;
}

std::string NumberSet::Text() const {
  if (intervals_.empty()) return "{}";
  std::string text;
  for (const Interval& i : intervals_) {
    if (!text.empty()) text += " u ";
    text += (i.lowClosed ? "[" : "(") + (i.low ? i.low->get_str() : "-inf");
    text += "," + (i.high ? i.high->get_str() : "inf") + (i.highClosed ? "]" : ")");
  }
  return text;
}

Statement CutAtRelations(const std::string& text) {
  Statement statement;
  statement.sides.emplace_back();
  for (const char c : text) {
    if (IsRelation(c)) {
      statement.relations.push_back(c);
      statement.sides.emplace_back();
    } else {
      statement.sides.back() += c;
    }
  }
  return statement;
}

char LetterOf(const std::string& text) {
  char letter = 0;
  for (const char c : text) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    if (!isLetter || c == letter) continue;
    if (letter != 0) throw Unreadable("more than one letter in \"" + text + "\"");
    letter = c;
  }
  if (letter == 0) throw Unreadable("no letter in \"" + text + "\"");
  return letter;
}

NumberSet SolutionOf(const std::string& text) {
  std::string letters = Trimmed(text);
  for (const std::string word : {" or ", " and "})
    for (std::size_t at; (at = letters.find(word)) != std::string::npos;)
      letters.erase(at, word.size());
  return SolutionFor(text, LetterOf(letters));
}

}  // namespace lesson_check
