#include "shell/menu.h"

#include "assessment/unit_test.h"
#include "engine/program_exit.h"
#include "lessons/docs/docs.h"
#include "platform/stop.h"
#include "session/session.h"
#include "shell/dispatcher.h"
#include "shell/progress_marks.h"
#include "shell/tour_steps.h"

namespace course {

std::unique_ptr<MainMenu> frmMenu;

namespace {

// Cannot be typed in the ordinary way.
constexpr int kDocumentationKey = 254;

// A unit's line in the list: the numbers line up.
std::string UnitLine(int unit) {
  const std::string number = std::to_string(unit);
  return (unit < 10 ? " " : "") + number + " - " + session.gUnitName[unit];
}

}  // namespace

void MainMenu::BindControls() {
  form.OnKeyPress = [this](int code) { return Form_KeyPress(code); };
  form.OnCloseBox = [] { platform::EndProgram(); };
  form.OnFirstShown = [this] { Form_Activate(); };
  lstChapter.OnClick = [this] { DisplayLessonData(); };
  lstLesson.OnDblClick = [this] { lstLesson_DblClick(); };
  cmdStart.OnClick = [this] { cmdStart_Click(); };
  form.SetDefaultButton(cmdStart);
  mnuFileExit->OnClick = [] { ExitProgram(); };
  mnuRecordsProgress->OnClick = [this] { mnuRecordsProgress_Click(); };
}

void MainMenu::BuildUnitList() {
  lstChapter.Clear();
  for (int unit = 1; unit <= session.gUnitCount; ++unit) lstChapter.AddItem(UnitLine(unit));
  lstChapter.SetListIndex(0);
}

void MainMenu::DisplayLessonData() {
  const int unit = lstChapter.ListIndex() + 1;
  if (unit < 1) return;
  lblLessons2.SetCaption(std::to_string(unit));
  lblLessons3.SetCaption(session.gUnitName[unit]);
  lstLesson.Clear();
  for (int row = 1; row <= session.gLessonCount[unit]; ++row)
    lstLesson.AddItem(session.gLessonTitle[unit][row]);
  DrawProgressMarks();
  lstLesson.SetListIndex(0);
}

void MainMenu::cmdStart_Click() {
  session.gChapterTestType = 1;
  RunSelectedLesson();
}

void MainMenu::lstLesson_DblClick() {
  session.gChapterTestType = 1;
  RunSelectedLesson();
}

bool MainMenu::Form_KeyPress(int code) {
  if (code != kDocumentationKey) return false;
  session.gShowDocumentation = kTrue;
  RunSelectedLesson();
  session.gShowDocumentation = kFalse;
  return true;
}

void MainMenu::RunSelectedLesson() {
  const LessonChoice choice = {.title = lstLesson.Text(),
                               .unit = lstChapter.ListIndex() + 1,
                               .row = lstLesson.ListIndex() + 1};
  RunLesson(choice, {.EnableMenu = [this](bool enabled) { form.SetEnabled(enabled); },
                     .RefreshProgress = [] { DrawProgressMarks(); },
                     .RunScript = RunScriptOf,
                     .Chapter_Test = Chapter_Test,
                     .Docs = [] { Docs(TourHolders()); }});
}

void MainMenu::mnuRecordsProgress_Click() {
  session.gShowProgressCodes = ~session.gShowProgressCodes;
  mnuRecordsProgress->SetCaption(session.gShowProgressCodes == kTrue
                                     ? "Hide Student Progress Codes"
                                     : "Show Student Progress Codes");
  ShowProgressControls();
}

}  // namespace course
