#include "display/exponents.h"

#include <algorithm>

#include "display/grid.h"
#include "display/print.h"
#include "display/scoped_value.h"
#include "mathkit/tutor_codes.h"
#include "platform/stop.h"

namespace course {
namespace {

constexpr char kCaret = '^';
constexpr char kSubscript = '\xFA';
constexpr std::size_t kMaxParts = 40;

struct Shift {
  double row;
  double col;
};

// How far a small character stands from the cursor's cell, by its size.
Shift ExponentShift(int size, char c) {
  const double nudge = c == 'p' ? 0.2 : 0;  // a "p" hangs low
  const bool dot = c == '.';
  switch (size) {
    case 10:
      return dot ? Shift{-0.1, 0.05} : Shift{0.05, 0.05 + nudge};
    case 12:
      return {-0.3, nudge};
    case 14:
      return dot ? Shift{-0.1, 0.05} : Shift{0, nudge};
    case 15:
      return {-0.1, nudge};
    default:
      return {0, 0};
  }
}

Shift SubscriptShift(int size, char c) {
  Shift shift = ExponentShift(size, c == 'p' ? 'x' : c);
  if (size == 14) shift.col = c == '.' ? 0.05 : 0.1;
  shift.row += 0.7;
  return shift;
}

// Rows by which exponents in a comment box stand higher still: those of a small print would
// hardly be raised.
double CommentLift(const TextPanel& panel, int size) {
  if (panel.layout.characters != CharacterSet::CommentBox) return 0;
  constexpr double kBaseline = 1.11;   // pixels below the top, a point of size
  constexpr double kLeastRise = 0.34;  // pixels a point of the print's size
  const double rise = kBaseline * (panel.layout.fontSize - size);
  return std::max(0.0, kLeastRise * panel.layout.fontSize - rise) / panel.layout.cellHeight;
}

void CheckSize(int size, const char* routine) {
  if (size < 10 || size > 15)
    platform::Stop(std::string(routine) + ": size " + std::to_string(size) +
                   ".  Sizes 10 to 15 are allowed.");
}

std::string WithoutMarks(std::string s, bool subscripts) {
  std::erase_if(s, [=](char c) { return c == kCaret || (subscripts && c == kSubscript); });
  return s;
}

}  // namespace

void PrintScriptOn(TextPanel& panel, const std::string& s, double size, double rowShift,
                   int level) {
  if (s.empty()) return;
  panel.UpdateCursorCell();
  const float baseRow = panel.cursorRow;
  double col = panel.cursorCol;
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  const ScopedValue keepLevel(panel.scriptLevel, level);
  const ScopedValue keepRow(panel.scriptBaseRow, baseRow);
  const int wholeSize = static_cast<int>(size);
  if (level > 0) rowShift -= CommentLift(panel, wholeSize);
  for (const char c : s) {
    const Shift shift = level > 0 ? ExponentShift(wholeSize, c) : SubscriptShift(wholeSize, c);
    panel.UpdateCursorCell();
    panel.SetFontSize(size);
    panel.Locate(panel.cursorRow + shift.row + rowShift, panel.cursorCol + shift.col);
    const std::string letter(1, c);
    PrintOn(panel, letter, RightColumnOf(panel));
    col += panel.WidthOf(letter) / panel.layout.cellWidth;
    panel.SetFontSize(panel.layout.fontSize);
    panel.Locate(baseRow, col);
  }
}

void PrintExpressionOn(TextPanel& panel, const std::string& s, double size, double rowShift) {
  const ScopedValue keepLine(screenState.gNoNewline, 1);
  for (const ScriptPart& part : CutAtMarks(s)) {
    if (part.level == 0)
      PrintOn(panel, part.text, RightColumnOf(panel));
    else
      PrintScriptOn(panel, part.text, size, rowShift, part.level);
  }
}

void PrintMarkedOn(TextPanel& panel, const std::string& s, double size, double rowShift) {
  if (!MarksBalanced(s))
    platform::Stop(
        "An incorrect number of ^ or Chr$(250) characters appears in the string \r"
        "supplied to SUB isPrintExponentExpression");
  PrintExpressionOn(panel, s, size, rowShift);
}

void isPrintExponent1(const std::string& s, int size, double rowShift) {
  CheckSize(size, "isPrintExponent1");
  PrintScriptOn(frmPR->lessonText, s, size, rowShift, 1);
}

void isPrintSubscript1(const std::string& s, int size, double rowShift) {
  CheckSize(size, "isPrintSubscript1");
  PrintScriptOn(frmPR->lessonText, s, size, rowShift, -1);
}

void isPrintExponentExpression(const std::string& s, int size, double rowShift) {
  CheckSize(size, "isPrintExponentExpression");
  PrintMarkedOn(frmPR->lessonText, s, size, rowShift);
}

void wbisPrintExponent1(const std::string& s, int size, double rowShift) {
  CheckSize(size, "wbisPrintExponent1");
  PrintScriptOn(frmPR->wiperText, s, size, rowShift, 1);
}

void wbisPrintExponentExpression(const std::string& s, int size, double rowShift) {
  CheckSize(size, "wbisPrintExponentExpression");
  if (std::count(s.begin(), s.end(), kCaret) % 2 != 0)
    platform::Stop(
        "An incorrect number of ^ characters appears in the string \r"
        "supplied to SUB isPrintExponentExpression");
  PrintExpressionOn(frmPR->wiperText, s, size, rowShift);
}

std::string ExponentCharsToCarets(const std::string& s) {
  static constexpr std::string_view kMeaning = "0123456789mnp.+";  // codes 143 to 157
  std::string marked;
  for (const char c : s) {
    const int code = static_cast<unsigned char>(c);
    char exponent = 0;
    if (code >= 143 && code <= 157) exponent = kMeaning[static_cast<std::size_t>(code - 143)];
    if (code == 130) exponent = '-';
    if (code == 179) exponent = '(';
    if (code == 180) exponent = ')';
    if (code == 220) exponent = 'x';
    if (exponent == 0)
      marked += c;
    else
      marked += std::string("^") + exponent + "^";
  }
  for (std::size_t at; (at = marked.find("^^")) != std::string::npos;) marked.erase(at, 2);
  return marked;
}

std::vector<ScriptPart> CutAtMarks(const std::string& s) {
  std::vector<ScriptPart> parts(1);
  for (const char c : s) {
    if (c != kCaret && c != kSubscript) {
      parts.back().text += c;
      continue;
    }
    const int level = c == kCaret ? 1 : -1;
    parts.push_back({parts.back().level == level ? 0 : level, ""});
  }
  if (parts.back().text.empty()) parts.pop_back();
  if (parts.size() > kMaxParts)
    platform::Stop("isPrintExponentExpression: more than 40 parts in \"" + s + "\"");
  return parts;
}

bool MarksBalanced(const std::string& s) {
  char open = 0;
  for (const char c : s) {
    if (c != kCaret && c != kSubscript) continue;
    if (open == 0)
      open = c;
    else if (open == c)
      open = 0;
    else
      return false;
  }
  return open == 0;
}

std::string StripExponentMarks(const std::string& s) {
  return WithoutMarks(s, true);
}

std::string StripCarets(const std::string& s) {
  return WithoutMarks(s, false);
}

std::string ProtectExponentSpaces(const std::string& s) {
  std::string protectedText = s;
  bool raised = false;
  bool lowered = false;
  for (char& c : protectedText) {
    if (c == kCaret) raised = !raised;
    if (c == kSubscript) lowered = !lowered;
    if (c == ' ' && (raised || lowered)) c = 'X';
  }
  return protectedText;
}

}  // namespace course
