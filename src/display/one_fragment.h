// Built-up mathematics in the transcript: a fraction over three rows is one thing to a reader, as
// it would be typed.
#pragma once

#include <cstddef>
#include <string>

#include "display/text_panel.h"

namespace course {

// For its lifetime all that its panel prints becomes one fragment with the given text.  It reaches
// from where the cursor begins, or the leftmost of its parts, to where it ends, and over their
// rows.
class OneFragment {
 public:
  OneFragment(TextPanel& panel, std::string typed);
  ~OneFragment();
  OneFragment(const OneFragment&) = delete;
  OneFragment& operator=(const OneFragment&) = delete;

 private:
  TextPanel& panel_;
  std::string typed_;
  std::size_t first_;  // of the panel's fragments
  double row_;         // of the cursor at the start
  double col_;
};

// Text as it is typed on one line: without colour codes, macros expanded, a radicand between
// backquotes behind the radical sign, in parentheses unless it is a number or a letter.
std::string TypedText(const std::string& s);
// "num/den"; a part of several terms, and a denominator of several factors, in parentheses.
std::string TypedFraction(const std::string& num, const std::string& den);

}  // namespace course
