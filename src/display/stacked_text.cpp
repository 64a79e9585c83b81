#include "display/stacked_text.h"

#include <algorithm>
#include <cctype>

#include "display/answer_text.h"
#include "display/fractions.h"
#include "display/lesson_window.h"
#include "display/one_fragment.h"
#include "display/radicals.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// What a fraction's part without parentheses may consist of.
bool IsPartCharacter(char c) {
  return IsDigit(c) || IsLetter(c) || c == '\\' || c == '^' || c == tutor::SquareRoot[0] ||
         c == tutor::Dot[0];
}

// First character of the part that ends before the slash.
std::size_t StartOfPart(const std::string& s, std::size_t slash) {
  if (slash > 0 && s[slash - 1] == ')') {
    int depth = 0;
    for (std::size_t i = slash; i-- > 0;) {
      if (s[i] == ')') ++depth;
      if (s[i] == '(' && --depth == 0) return i;
    }
    platform::Stop("CutAtFractions: no \"(\" before the \")\" in \"" + s + "\"");
  }
  std::size_t start = slash;
  while (start > 0 && IsPartCharacter(s[start - 1])) --start;
  return start;
}

// The place behind the part that begins there.
std::size_t EndOfPart(const std::string& s, std::size_t start) {
  if (start < s.size() && s[start] == '(') {
    int depth = 0;
    for (std::size_t i = start; i < s.size(); ++i) {
      if (s[i] == '(') ++depth;
      if (s[i] == ')' && --depth == 0) return i + 1;
    }
    platform::Stop("CutAtFractions: no \")\" behind the \"(\" in \"" + s + "\"");
  }
  std::size_t end = start;
  while (end < s.size() && IsPartCharacter(s[end])) ++end;
  return end;
}

// Columns by which a fraction keeps off its sign, which would run into the bar.
constexpr double kGapBehindSign = 0.25;

bool EndsInSign(const std::string& text) {
  return !text.empty() && (text.back() == '-' || text.back() == tutor::PlusOrMinus[0]);
}

void MoveBehindSign(TextPanel& panel) {
  panel.SetCursor(panel.cursorX + kGapBehindSign * panel.layout.cellWidth, panel.cursorY);
}

std::string WithoutParentheses(const std::string& part) {
  return part.front() == '(' ? part.substr(1, part.size() - 2) : part;
}

// The place behind the radicand that begins there: digits, one letter, or what stands in
// parentheses.
std::size_t EndOfRadicand(const std::string& s, std::size_t start) {
  if (start < s.size() && s[start] == '(') return EndOfPart(s, start);
  std::size_t end = start;
  while (end < s.size() && IsDigit(s[end])) ++end;
  return end == start && end < s.size() && IsLetter(s[end]) ? end + 1 : end;
}

}  // namespace

std::string RadicalsMarked(const std::string& s) {
  std::string marked;
  for (std::size_t at = 0; at < s.size();) {
    if (s[at] != tutor::SquareRoot[0]) {
      marked += s[at++];
      continue;
    }
    const std::size_t end = EndOfRadicand(s, at + 1);
    const std::string radicand = s.substr(at + 1, end - at - 1);
    marked += '`' + (radicand.empty() ? radicand : WithoutParentheses(radicand)) + '`';
    at = end;
  }
  return marked;
}

std::vector<StackedPiece> CutAtFractions(const std::string& s) {
  std::vector<StackedPiece> pieces;
  std::size_t printed = 0;
  for (std::size_t slash = s.find('/'); slash != std::string::npos; slash = s.find('/', slash)) {
    const std::size_t start = StartOfPart(s, slash);
    const std::size_t end = EndOfPart(s, slash + 1);
    if (start == slash || end == slash + 1 || start < printed)
      platform::Stop("CutAtFractions: a fraction lacks a part in \"" + s + "\"");
    if (start > printed) pieces.push_back({s.substr(printed, start - printed), "", ""});
    pieces.push_back({WithoutParentheses(s.substr(start, slash - start)),
                      WithoutParentheses(s.substr(slash + 1, end - slash - 1)),
                      TypedText(s.substr(start, end - start))});
    printed = slash = end;
  }
  if (printed < s.size()) pieces.push_back({s.substr(printed), "", ""});
  return pieces;
}

int StackedTextWidth(const std::string& s) {
  int width = 0;
  for (const StackedPiece& piece : CutAtFractions(s))
    width += std::max(FractionPartLength(RadicalsMarked(piece.text)),
                      FractionPartLength(RadicalsMarked(piece.den)));
  return width;
}

void isPrintStackedText(const std::string& s) {
  for (const StackedPiece& piece : CutAtFractions(s)) {
    const std::string text = RadicalsMarked(piece.text);
    if (piece.den.empty()) {
      isPrintRadicalText(text);
      if (EndsInSign(text)) MoveBehindSign(frmPR->lessonText);
    } else {
      const OneFragment fraction(frmPR->lessonText, piece.typed);
      isPrintColouredFraction(text, RadicalsMarked(piece.den));
    }
  }
}

void picAnswerPrintStackedText(int box, const std::string& s) {
  TextPanel& panel = *frmPR->answerText.at(static_cast<std::size_t>(box));
  // A box is lower than three rows of the screen.
  constexpr double kTightened = 0.3;
  for (const StackedPiece& piece : CutAtFractions(s)) {
    const std::string text = RadicalsMarked(piece.text);
    if (piece.den.empty()) {
      picAnswerPrintRadicalText(box, text);
      if (EndsInSign(text)) MoveBehindSign(panel);
    } else {
      const OneFragment fraction(panel, piece.typed);
      picAnswerPrintFraction(box, text, RadicalsMarked(piece.den), 0, 0, kTightened);
    }
  }
}

}  // namespace course
