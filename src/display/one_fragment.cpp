#include "display/one_fragment.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

#include "display/paragraph.h"
#include "display/radical_text.h"
#include "mathkit/tutor_codes.h"

namespace course {
namespace {

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
bool IsLetter(char c) {
  return std::isalpha(static_cast<unsigned char>(c)) != 0 && static_cast<unsigned char>(c) < 128;
}

bool IsNumberOrLetter(const std::string& s) {
  return std::ranges::all_of(s, IsDigit) || (s.size() == 1 && IsLetter(s[0]));
}

// Index behind the exponent, or the bracket, that opens there.
std::size_t EndOfGroup(const std::string& s, std::size_t open) {
  if (s[open] == '^') return std::min(s.find('^', open + 1), s.size() - 1) + 1;
  int depth = 0;
  for (std::size_t i = open; i < s.size(); ++i) {
    if (s[i] == '(') ++depth;
    if (s[i] == ')' && --depth == 0) return i + 1;
  }
  return s.size();
}

bool IsSum(const std::string& s) {
  for (std::size_t i = 0; i < s.size();) {
    if (s[i] == '^' || s[i] == '(') {
      i = EndOfGroup(s, i);
    } else {
      const bool sign = i == 0 && s[i] == '-';
      const bool factor = IsDigit(s[i]) || IsLetter(s[i]) || s[i] == '.' ||
                          s[i] == tutor::SquareRoot[0] || s[i] == tutor::Dot[0];
      if (!sign && !factor) return true;
      ++i;
    }
  }
  return false;
}

bool IsBracketed(const std::string& s) {
  return s.starts_with('(') && EndOfGroup(s, 0) == s.size();
}

// A number, a letter, a bracket, a power or a radical.
bool IsOneFactor(const std::string& s) {
  if (s.empty() || IsNumberOrLetter(s) || IsBracketed(s)) return true;
  if (s.starts_with(tutor::SquareRoot))
    return IsNumberOrLetter(s.substr(1)) || IsBracketed(s.substr(1));
  return IsLetter(s[0]) && s[1] == '^' && EndOfGroup(s, 1) == s.size();
}

std::string WithoutColours(const std::string& s) {
  std::string text;
  for (const Segment& segment : CutAtColours(ExpandMacros(s), 0)) text += segment.text;
  return text;
}

bool IsBlank(const Fragment& fragment) {
  return fragment.text.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

OneFragment::OneFragment(TextPanel& panel, std::string typed)
    : panel_(panel), typed_(std::move(typed)), first_(panel.Transcript().size()) {
  panel.UpdateCursorCell();
  row_ = panel.cursorRow;
  col_ = panel.cursorCol;
}

OneFragment::~OneFragment() {
  std::vector<Fragment> all = panel_.Transcript();
  const auto first = all.begin() + static_cast<std::ptrdiff_t>(first_);
  std::vector<Fragment> parts(first, all.end());
  std::erase_if(parts, IsBlank);
  if (parts.empty()) return;  // a measuring pass prints nothing
  panel_.UpdateCursorCell();
  const auto edge = [&](double (Fragment::*of)() const) {
    return [of](const Fragment& part) { return (part.*of)(); };
  };
  const double left = std::min(col_, std::ranges::min_element(parts, {}, &Fragment::col)->col);
  const double right =
      std::max(double{panel_.cursorCol},
               std::ranges::max_element(parts, {}, edge(&Fragment::Right))->Right());
  const double top = std::ranges::min_element(parts, {}, edge(&Fragment::Top))->Top();
  const double bottom = std::ranges::max_element(parts, {}, edge(&Fragment::Bottom))->Bottom();
  all.erase(first, all.end());
  all.push_back({row_, left, parts[0].colour, panel_.scriptLevel, typed_, right - left, row_ - top,
                 bottom - top, true});
  panel_.SetTranscript(std::move(all));
}

std::string TypedText(const std::string& s) {
  std::string typed;
  for (const RadicalPart& part : CutAtBackquotes(s)) {
    const std::string text = WithoutColours(part.text);
    if (!part.radicand)
      typed += text;
    else
      typed += tutor::SquareRoot + (IsNumberOrLetter(text) ? text : "(" + text + ")");
  }
  return typed;
}

std::string TypedFraction(const std::string& num, const std::string& den) {
  const std::string above = TypedText(num);
  const std::string below = TypedText(den);
  return (IsSum(above) ? "(" + above + ")" : above) + "/" +
         (IsOneFactor(below) ? below : "(" + below + ")");
}

}  // namespace course
