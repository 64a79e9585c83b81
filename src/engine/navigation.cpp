#include "engine/navigation.h"

#include <memory>

#include "display/lesson_window.h"
#include "engine/hooks.h"
#include "engine/program_exit.h"
#include "engine/rules_and_hints.h"
#include "mathkit/draws.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

constexpr int kEsc = 27;

bool InputIgnored() {
  return session.gInDelay == 1 || session.gInAnimation == 1;
}

bool LongEnoughAfterPause() {
  constexpr double kGuard = 0.1;        // seconds
  constexpr double kClockNoise = 1e-6;  // a time of day is exact to some 1e-11
  constexpr double kDay = 86400;
  double passed = platform::TheClock().SecondsSinceMidnight() - session.gPauseStartTime;
  if (passed < 0) passed += kDay;  // the wait began before midnight
  return passed >= kGuard - kClockNoise;
}

bool WantsToEnd(const std::string& test) {
  const platform::Message question = {
      "You are doing a " + test + " Test.\n\nDo you want to end the test?", "",
      platform::Buttons::YesNo, platform::Icon::Warning};
  return platform::MessageBox(question) == platform::Answer::Yes;
}

// No test of the lesson or unit runs, or the student wants it ended.
bool MayEndTest() {
  if (session.gChapterTest == 1 && !WantsToEnd("Unit")) return false;
  return session.gLessonTest != 1 || WantsToEnd("Lesson");
}

void GoToScreen(int screen) {
  picNav_Click(activity::Lesson);
  session.gScreenNum = screen;  // over the 1 that picNav_Click wrote
}

void Release(Bool& wish) {
  session.gProceed = 1;
  wish = kTrue;
}

void optAnimSpeed_Click(int index) {
  if (InputIgnored()) return;
  constexpr double kUnits[] = {0, 0.005, 0.002, 0};  // seconds a step
  frmPR->optAnimSpeed[index].SetValue(true);
  session.gAnimSpeedOption = index;
  session.gAnimDelayUnit = kUnits[index];
}

void pnlLesson_Click() {
  if (!InputIgnored()) session.gProceed = 1;
}

void picAnswer_Click(int index) {
  if (!InputIgnored()) session.gAnswerPicked = index;
}

// What both commands of the File menu do: a running test ends without a question.
void EndRun() {
  session.gProceed = 1;
  ClearTestBlock(session);
  // The tabs are hidden for the sake of a unit test that is over now.
  if (session.gDiagnosticTest != 1) session.gHideNav = kFalse;
}

void mnuFileRestart_Click() {
  if (InputIgnored()) return;
  EndRun();
  session.gRunAgain = 1;
  session.gActivity = activity::Lesson;  // at the screen last reached
}

void mnuFileReturn_Click() {
  if (InputIgnored()) return;
  EndRun();
  session.gLeaveLesson = 1;
  if (session.gDiagnosticTest == 1) session.gDiagnosticEndedEarly = 1;
}

void BindHelp(platform::MenuItem& item, const std::function<void()>& hook) {
  item.SetEnabled(hook != nullptr);
  item.OnClick = [&hook] {
    if (!InputIgnored()) CallHook(hook);
  };
}

void BindMenus() {
  frmPR->mnuFileRestart->OnClick = mnuFileRestart_Click;
  frmPR->mnuFileReturn->OnClick = mnuFileReturn_Click;
  frmPR->mnuFileExit->OnClick = [] {
    if (!InputIgnored()) ExitProgram();
  };
  BindHelp(*frmPR->mnuHelpProgramOverview, engineHooks.ShowProgramOverview);
  BindHelp(*frmPR->mnuHelpTechSupport, engineHooks.ShowTechSupport);
  BindHelp(*frmPR->mnuHelpAbout, engineHooks.ShowAbout);
}

template <class Controls>
void BindArray(Controls& controls, void (*handler)(int)) {
  for (int i = Controls::First(); i <= Controls::Last(); ++i)
    controls[i].OnClick = [handler, i] { handler(i); };
}

void BindHandlers() {
  BindArray(frmPR->cmdNavigate, cmdNavigate_Click);
  BindArray(frmPR->picNav, picNav_Click);
  BindArray(frmPR->picScreenNum, picScreenNum_Click);
  BindArray(frmPR->optAnimSpeed, optAnimSpeed_Click);
  BindArray(frmPR->picAnswer, picAnswer_Click);
  BindArray(frmPR->cmdAnswer, [](int index) { picAnswer_Click(index + 1); });
  frmPR->pnlLesson.OnClick = pnlLesson_Click;
  BindRules();
  frmPR->form.OnKeyPress = [](int code) { return code == kEsc && LeaveLesson(); };
  frmPR->form.OnCloseBox = [] { LeaveLesson(); };
  BindMenus();
}

void NameControls() {
  for (int i = 1; i <= 5; ++i)
    frmPR->picAnswer[i].SetAccessibleName("Answer " +
                                          std::string(1, static_cast<char>('A' + i - 1)));
  for (int i = 1; i <= 9; ++i)
    frmPR->picScreenNum[i].SetAccessibleName("Screen " + std::to_string(i));
  frmPR->cmdShowRulesandReminders.SetAccessibleName("Rules and Reminders");
}

}  // namespace

void LoadLessonWindow() {
  frmPR = std::make_unique<LessonWindow>();
  session.gProceed = 0;
  session.gLeaveLesson = 0;
  session.gRunAgain = 0;
  session.gAnswerPicked = 0;
  frmPR->fraNav.SetVisible(false);
  frmPR->lblStudent.SetVisible(false);
  frmPR->lblSelect.SetCaption("Click\rthe box\rcontaining\rthe best\ranswer");
  frmPR->optAnimSpeed[session.gAnimSpeedOption].SetValue(true);
  NameControls();
  BindHandlers();
  frmPR->form.Center();
  frmPR->form.Show();
  frmPR->ready = 1;
}

void UnloadLessonWindow() {
  frmPR->ready = 0;
  frmPR.reset();
}

void cmdNavigate_Click(int index) {
  if (InputIgnored() || !LongEnoughAfterPause()) return;
  switch (index) {
    case 0:
      return GoToScreen(session.gFirstPageOfScreen == 1 ? session.gScreenNum - 1
                                                        : session.gScreenNum);
    case 1:
      return GoToScreen(session.gScreenNum + 1);
    case 2:
      session.gProceed = 1;
      return;
    case 3:
      LeaveLesson();
      return;
    case 4:
      return GoToScreen(1);
    case 5:
      return Release(session.gEndExample);
    case 6:
      return Release(session.gEndExplanation);
    case 7:
      return Release(session.gEndTestExplanation);
    case 8:
      return Release(session.gBeginExample);
    case 9:
      return Release(session.gBeginExplanation);
    case 10:
      return Release(session.gBeginTestExplanation);
    default:
      platform::Stop("cmdNavigate_Click: there is no button " + std::to_string(index));
  }
}

void picNav_Click(int index) {
  if (InputIgnored()) return;
  if (index != activity::Lesson) frmPR->picScreenBox.SetVisible(false);
  // No question for the diagnostic test: the tabs are hidden in it.
  if (!MayEndTest()) return;
  ClearTestBlock(session);
  session.gProceed = 1;
  session.gRunAgain = 1;
  session.gScreenNum = 1;
  session.gActivity = index;
  if (index == activity::LessonTest) {
    session.gLessonTest = 1;
    session.gLessonTestProb = 1;
    NewTestSeeds();
  }
  session.gHideNav = kFalse;
}

void picScreenNum_Click(int index) {
  if (InputIgnored() || !LongEnoughAfterPause()) return;
  GoToScreen(index);
}

bool LeaveLesson() {
  if (!MayEndTest()) return false;
  if (session.gDiagnosticTest == 1) {
    if (!WantsToEnd("Diagnostic")) return false;
    session.gDiagnosticEndedEarly = 1;
  }
  session.gProceed = 1;
  session.gLeaveLesson = 1;
  ClearTestBlock(session);
  session.gHideNav = kFalse;
  return true;
}

}  // namespace course
