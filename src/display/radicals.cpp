#include "display/radicals.h"

#include <algorithm>

#include "display/drawing.h"
#include "display/exponents.h"
#include "display/grid.h"
#include "display/one_fragment.h"
#include "display/print.h"
#include "display/radical_text.h"
#include "display/word_wrap.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {

std::vector<RadicalPart> CutAtBackquotes(const std::string& s) {
  constexpr int kMaxMarks = 10;
  const auto marks = std::count(s.begin(), s.end(), '`');
  if (marks % 2 != 0 || marks > kMaxMarks)
    platform::Stop("isPrintRadicalText: " + std::to_string(marks) + " backquotes in \"" + s +
                   "\".  An even number up to 10 is allowed.");
  std::vector<RadicalPart> parts(1);
  for (const char c : s) {
    if (c == '`')
      parts.push_back({"", !parts.back().radicand});
    else
      parts.back().text += c;
  }
  std::erase_if(parts, [](const RadicalPart& part) { return part.text.empty() && !part.radicand; });
  return parts;
}

void isDrawRadical(double row, double col, double width) {
  Locate(row, col);
  isPrint(tutor::SquareRoot);
  isDrawHorizLineWithColor(row - 0.6, col + 0.9, col + width, 3, frmPR->lessonText.textColour);
}

void isPrintRadicalText(const std::string& s, double widen) {
  for (const RadicalPart& part : CutAtBackquotes(s)) {
    if (!part.radicand) {
      WordWraps(part.text);
      continue;
    }
    const OneFragment radical(frmPR->lessonText, TypedText("`" + part.text + "`"));
    UpdateCursorCell();
    const double row = frmPR->lessonText.cursorRow;
    const double col = frmPR->lessonText.cursorCol;
    isDrawRadical(row, col - widen, static_cast<double>(StripCarets(part.text).size()) + widen);
    Locate(row, col + 1);
    WordWraps(part.text);
  }
}

}  // namespace course
