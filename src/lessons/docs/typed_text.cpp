#include "lessons/docs/typed_text.h"

#include <algorithm>
#include <cstddef>

#include "display/exponents.h"
#include "display/paragraph.h"
#include "display/special_characters.h"

namespace course {
namespace {

// What a paragraph and a line of it have place for.
constexpr int kMostColours = 20;
constexpr std::size_t kMostParts = 40;
constexpr int kMostRuns = 30;

// A code at the very end, which closes the text, may have any letter.
bool ColoursAreKnown(const std::string& text) {
  for (std::size_t at = 0; (at = text.find('\\', at)) < text.size(); at += 2) {
    const bool closes = at + 1 >= text.size() || (at > 0 && at + 2 >= text.size());
    if (!closes && !IsColourLetter(text[at + 1])) return false;
  }
  return true;
}

bool MarksAreGood(const std::string& stretch) {
  const auto isMark = [](char c) { return c == '^' || c == '\xFA'; };
  const auto marks = std::count_if(stretch.begin(), stretch.end(), isMark);
  return MarksBalanced(stretch) && static_cast<std::size_t>(marks) < kMostParts;
}

std::size_t LongestWord(const std::string& cells) {
  std::size_t longest = 0;
  for (std::size_t begin = 0; begin < cells.size();) {
    const std::size_t end = std::min(cells.find(' ', begin), cells.size());
    longest = std::max(longest, end - begin);
    begin = end + 1;
  }
  return longest;
}

// A run is a stretch of plain characters, or one that is drawn.
int RunsIn(const std::string& line) {
  int runs = 0;
  bool plain = false;
  for (const char c : line) {
    const bool drawn = IsDrawnCharacter(c);
    if (drawn || !plain) ++runs;
    plain = !drawn;
  }
  return runs;
}

bool LinesHaveRoom(const std::string& cells, std::size_t columns) {
  for (std::size_t first = 0; first == 0 || first + columns <= cells.size(); ++first)
    if (RunsIn(cells.substr(first, columns)) > kMostRuns) return false;
  return true;
}

}  // namespace

std::string FaultOfTyped(const std::string& typed, int columns) {
  const std::string text = ExpandMacros(typed);
  if (!ColoursAreKnown(text))
    return "After \\ there stands one of the letters b, c, g, k, m, r, w, y, z, or a macro.";
  if (std::count(text.begin(), text.end(), '\\') >= kMostColours)
    return "A text has place for " + std::to_string(kMostColours) + " colours.";
  std::string cells;
  for (const Segment& segment : CutAtColours(text, 0)) {
    if (!MarksAreGood(segment.text))
      return "Each ^ and each ` needs a second one behind it, in the same colour, and a text has "
             "place for few of them.";
    cells += StripExponentMarks(ProtectExponentSpaces(segment.text));
  }
  const auto width = static_cast<std::size_t>(columns);
  if (LongestWord(cells) > width)
    return "A word has place for " + std::to_string(columns) + " characters.";
  if (!LinesHaveRoom(cells, width)) return "A line has too many characters that are drawn.";
  return "";
}

}  // namespace course
