#include "lessons/families/arithmetic/stepping_display.h"

#include <cmath>

#include "display/drawing.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "platform/stop.h"

namespace course::arithmetic {
namespace {

constexpr int kExponentSize = 14;        // points, as in a paragraph
constexpr int kBracketThickness = 2;     // pixels
constexpr double kRowsToBracket = 0.75;  // from a line to the bracket below it
constexpr int kEndsUp = 1;

bool IsBracket(char c) {
  return c == '(' || c == ')' || c == '[' || c == ']';
}

}  // namespace

double SteppingDisplay::Part::EndColumn() const {
  return column + static_cast<double>(StripExponentMarks(text).size());
}

SteppingDisplay::SteppingDisplay(const std::string& text, double row, double column) : row_(row) {
  bool startsPart = true;
  for (const char c : text) {
    if (c == ' ') {
      startsPart = true;
      column += 1;
      continue;
    }
    if (startsPart || IsBracket(c)) parts_.push_back({"", column});
    parts_.back().text += c;
    column = parts_.back().EndColumn();
    startsPart = IsBracket(c);
  }
  for (const Part& part : parts_) Print(part);
}

void SteppingDisplay::Print(const Part& part) const {
  Locate(row_, part.column);
  isPrintExponentExpression(part.text, kExponentSize);
}

void SteppingDisplay::PickOut(std::size_t first, std::size_t last) {
  if (first > last || last >= parts_.size())
    platform::Stop("SteppingDisplay::PickOut: first = " + std::to_string(first) +
                   ", last = " + std::to_string(last));
  firstPicked_ = first;
  lastPicked_ = last;
  const platform::Colour textColour = frmPR->lessonText.textColour;
  SetColor(platform::colour::Yellow);
  for (std::size_t i = first; i <= last; ++i) Print(parts_[i]);
  Bracket(row_ + kRowsToBracket, parts_[first].column,
          parts_[last].EndColumn() - parts_[first].column, kBracketThickness, kEndsUp);
  SetColor(textColour);
}

void SteppingDisplay::ShowResult(const std::string& result) {
  const double left = parts_[firstPicked_].column;
  const double right = parts_[lastPicked_].EndColumn();
  Part replaced{result, left};
  replaced.column += std::floor((right - replaced.EndColumn()) / 2);
  const auto begin = parts_.begin();
  parts_[firstPicked_] = replaced;
  parts_.erase(begin + static_cast<std::ptrdiff_t>(firstPicked_) + 1,
               begin + static_cast<std::ptrdiff_t>(lastPicked_) + 1);
  row_ += kSteppingRows;
  for (const Part& part : parts_) Print(part);
}

}  // namespace course::arithmetic
