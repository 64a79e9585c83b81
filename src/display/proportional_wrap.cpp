// The wrap in a proportional face on the lesson panel.  It measures pixels, starts where Locate put
// the cursor, and breaks a stretch at the last blank before the right edge.
#include <cmath>

#include "display/exponents.h"
#include "display/grid.h"
#include "display/paragraph.h"
#include "display/scoped_value.h"
#include "display/word_wrap.h"
#include "platform/stop.h"

namespace course {
namespace {

struct Setup {
  bool done = false;
  std::string face;
  bool bold = false;
  double size = 0;
  int leftX = 0;
  int rightX = 0;
  int lineHeight = 0;       // pixels
  double exponentSize = 0;  // points
};
Setup setup;

platform::PictureBox& Panel() {
  return frmPR->pnlLesson;
}

void UseSize(double size) {
  SetPrintFont(setup.face, setup.bold, size);
}

double SizeOf(const ScriptPart& part) {
  return part.level == 0 ? setup.size : setup.exponentSize;
}

double WidthOf(const std::string& s) {
  double width = 0;
  for (const ScriptPart& part : CutAtMarks(s)) {
    UseSize(SizeOf(part));
    width += Panel().TextWidth(part.text);
  }
  return width;
}

void StartNewLine() {
  screenState.gLocateX = setup.leftX;
  screenState.gLocateY += setup.lineHeight;
}

void PrintHere(const std::string& s) {
  double x = screenState.gLocateX;
  for (const ScriptPart& part : CutAtMarks(s)) {
    UseSize(SizeOf(part));
    Panel().CurrentX = x;
    Panel().CurrentY = screenState.gLocateY + (part.level < 0 ? setup.size / 2 : 0);
    Panel().Print(part.text);
    x = Panel().CurrentX;
  }
  TextPanel& text = frmPR->lessonText;
  text.SetCursor(screenState.gLocateX, screenState.gLocateY);
  text.Record(StripExponentMarks(s), x - screenState.gLocateX);
  screenState.gLocateX = static_cast<int>(std::lround(x));
  Panel().Refresh();
}

bool Fits(const std::string& s) {
  return screenState.gLocateX + WidthOf(s) < setup.rightX;
}

// The longest beginning of s that fits and ends before a blank; npos for none.
std::size_t FindBlank(const std::string& s) {
  const std::string visible = ProtectExponentSpaces(s);
  std::size_t blank = visible.rfind(' ');
  while (blank != std::string::npos && !Fits(s.substr(0, blank)))
    blank = blank == 0 ? std::string::npos : visible.rfind(' ', blank - 1);
  return blank;
}

void LayOut(std::string s) {
  while (!Fits(s)) {
    std::size_t blank = FindBlank(s);
    const bool atLeft = screenState.gLocateX == setup.leftX;
    // A word wider than a whole line stands on a line of its own.
    if (blank == std::string::npos && atLeft) blank = std::min(s.find(' '), s.size());
    if (blank != std::string::npos) {
      PrintHere(s.substr(0, blank));
      s = blank < s.size() ? LTrim(s.substr(blank + 1)) : "";
      if (s.empty()) return;
    }
    StartNewLine();
  }
  PrintHere(s);
}

}  // namespace

void NonTutorWordWrapSetup(const std::string& fontName, bool bold, double size, int leftX,
                           int rightX, int extraGap) {
  setup = {.done = true,
           .face = fontName.empty() ? "Times New Roman" : fontName,
           .bold = bold,
           .size = size,
           .leftX = leftX,
           .rightX = rightX,
           .lineHeight = 0,
           .exponentSize = std::nearbyint(0.66 * size)};
  UseSize(size);
  setup.lineHeight = extraGap + static_cast<int>(std::lround(Panel().TextHeight("A")));
}

void NonTutorWordWrap(const std::string& s) {
  if (!setup.done)
    platform::Stop("You are calling NonTutorWordWrap\rbut haven't called NonTutorWordWrapSetup");
  TextPanel& text = frmPR->lessonText;
  PrintParagraph(
      {.current = text.textColour,
       .setColour = [](platform::Colour c) { Panel().ForeColor = c; },
       .newLine = StartNewLine,
       .layOut = [](const std::string& stretch, const std::string&) { LayOut(stretch); }},
      s, screenState.gNoNewline != 0);
  UseSize(setup.size);
  Panel().ForeColor = text.textColour;
}

void NonTutorWordWraps(const std::string& s) {
  const ScopedValue keep(screenState.gNoNewline, 1);
  NonTutorWordWrap(s);
}

}  // namespace course
