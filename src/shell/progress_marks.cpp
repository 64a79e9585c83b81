#include "shell/progress_marks.h"

#include <string>

#include "platform/stop.h"
#include "session/session.h"
#include "shell/menu.h"

namespace course {
namespace {

using platform::colour::Blue;
using platform::colour::Red;

constexpr int kCheckWidth = 3;  // pixels

// A check mark's three corners; y counts from the lower edge of the row.
struct Check {
  double x1, y1, x2, y2, x3, y3;
};
constexpr Check kLessonCheck = {0.1, 0.5, 0.25, 0.1, 0.55, 0.8};
constexpr Check kUnitCheck = {0.2, 0.5, 0.4, 0.1, 0.8, 0.9};

void DrawCheck(platform::Surface& column, int row, const Check& check) {
  column.Line(check.x1, row - check.y1, check.x2, row - check.y2, Blue);
  column.Line(check.x2, row - check.y2, check.x3, row - check.y3, Blue);
}

void DrawLetter(platform::Surface& column, int row, double x, const std::string& letter) {
  column.CurrentX = x;
  column.CurrentY = row - 1;
  column.Print(letter);
}

[[noreturn]] void StopAtCode(const std::string& code, int unit, int row) {
  platform::Stop("DrawProgressMarks: gProgressCodes(" + std::to_string(unit) + ", " +
                 std::to_string(row) + ") is \"" + code + "\"");
}

void DrawLessonMark(platform::Surface& column, int unit, int row) {
  const std::string& code = session.gProgressCodes[unit][row];
  if (code.empty()) return;
  if (code == "C") return DrawCheck(column, row, kLessonCheck);
  if (code == "T") return DrawLetter(column, row, 0.15, code);
  if (code == "W") return DrawLetter(column, row, 0, code);
  StopAtCode(code, unit, row);
}

void DrawUnitMark(platform::Surface& column, int unit) {
  const std::string& code = session.gProgressCodes[unit][0];
  if (code.empty()) return;
  if (code == "C") return DrawCheck(column, unit, kUnitCheck);
  if (code == "W") return DrawLetter(column, unit, 0, code);
  StopAtCode(code, unit, 0);
}

// What the marks say, a line a lesson that has one.
std::string MarksInWords(int unit) {
  std::string words;
  for (int row = 1; row <= session.gLessonCount[unit]; ++row) {
    const std::string& code = session.gProgressCodes[unit][row];
    if (code.empty()) continue;
    const char* meaning = code == "C"   ? "completed"
                          : code == "T" ? "tested"
                                        : "worked, no test yet";
    if (!words.empty()) words += '\n';
    words += session.gLessonTitle[unit][row] + ": " + meaning;
  }
  return words;
}

void Prepare(platform::Surface& column, int rows) {
  column.Cls();
  column.Scale(0, 0, 1, rows);
  column.ForeColor = Red;
  column.FontName = "Arial";
  column.FontSize = 15;
  column.FontBold = true;
  column.DrawWidth = kCheckWidth;
}

}  // namespace

void DrawProgressMarks(int unit, platform::Surface& lessons, platform::Surface& units) {
  Prepare(lessons, kLessonMarkRows);
  Prepare(units, kUnitMarkRows);
  for (int row = 1; row <= session.gLessonCount.at(unit); ++row) DrawLessonMark(lessons, unit, row);
  for (int row = 1; row <= session.gUnitCount; ++row) DrawUnitMark(units, row);
  lessons.Refresh();
  units.Refresh();
}

void DrawProgressMarks() {
  const int index = frmMenu->lstChapter.ListIndex();
  if (index < 0) return;
  DrawProgressMarks(index + 1, frmMenu->picProgress2, frmMenu->picProgress1);
  frmMenu->picProgress2.SetAccessibleText(MarksInWords(index + 1));
}

void ShowProgressControls() {
  MainMenu& menu = *frmMenu;
  const bool shown = session.gRecordKeepingEnabled != 0 && session.gShowProgressCodes == kTrue;
  // The legend's picture is made when it is first wanted: most starts can do without.
  if (shown) {
    menu.picLegend.DrawPicture("progress_legend", 0, 0);
    menu.picLegend.Refresh();
  }
  menu.picProgress2.SetVisible(shown);
  menu.picLegend.SetVisible(shown);
  menu.lblLessons4.SetVisible(shown);
  menu.linProgress.SetVisible(shown);
  menu.lblTestPassPercent.SetVisible(shown);
  menu.picProgress1.SetVisible(false);
}

}  // namespace course
