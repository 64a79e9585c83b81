#include "engine/page.h"

#include <array>
#include <string>
#include <vector>

#include "display/animation.h"
#include "display/lesson_window.h"
#include "engine/header.h"
#include "engine/navigation.h"
#include "engine/run_exit.h"
#include "engine/screen_reader.h"
#include "platform/clock.h"
#include "platform/events.h"
#include "platform/stop.h"
#include "session/session.h"

namespace course {
namespace {

void ClearPageWishes() {
  session.gBeginExample = kFalse;
  session.gBeginExplanation = kFalse;
  session.gBeginTestExplanation = kFalse;
  session.gEndExample = kFalse;
  session.gEndExplanation = kFalse;
  session.gEndTestExplanation = kFalse;
}

std::string textAtPageEnd;  // of this screen's last PageEnd

// All that stands on the screen in words.
std::string TextOfScreen() {
  std::vector<const TextPanel*> panels = {&frmPR->lessonText, &frmPR->wiperText,
                                          &frmPR->wiperText2};
  for (std::size_t i = 1; i <= 5; ++i) panels.push_back(frmPR->commentText[i].get());
  std::string text;
  for (const TextPanel* panel : panels)
    for (const Fragment& fragment : panel->Transcript())
      text += fragment.text + '@' + std::to_string(fragment.row) + '\n';
  return text;
}

// Up and down, left and right change places.
int ReversedDirection(int dr) {
  constexpr std::array<int, 5> kReversed = {0, 2, 1, 4, 3};
  return kReversed[static_cast<std::size_t>(dr)];
}

}  // namespace

void NewScreen() {
  Header(session.gLessonName);
  textAtPageEnd.clear();
}

void WaitForClick() {
  session.gProceed = 0;
  session.gPauseStartTime = platform::TheClock().SecondsSinceMidnight();
  UpdateAccessibleTexts();
  // A wish that came during an animation needs no further click.
  while (session.gProceed == 0 && !WantsElsewhere()) platform::WaitEvents("PageEnd");
  ExitIfWanted();
}

void PageEnd() {
  if (session.gMode == mode::Lesson) {
    ShowNavButtons();
    WaitForClick();
    session.gFirstPageOfScreen = 0;
    return;
  }
  ClearPageWishes();
  textAtPageEnd = TextOfScreen();
  ShowNavButtons();
  WaitForClick();
  if (session.gBeginExample != kFalse) {
    session.gRepeatExample = 1;
    GoToActivity(activity::Example);
  }
  if (session.gBeginExplanation != kFalse) {
    session.gExplainProblem = 1;
    GoToActivity(activity::Practice);
  }
  if (session.gBeginTestExplanation != kFalse) RunAgain();
  if (session.gEndExample != kFalse || session.gEndExplanation != kFalse ||
      session.gEndTestExplanation != kFalse)
    throw PagesEnded{};
}

void FinishPages() {
  if (TextOfScreen() != textAtPageEnd) PageEnd();
}

void AnimHere(double rp, double cp, double wd, double ht, int dr, double ds, double sp, int er) {
  if (dr < 1 || dr > 4)
    platform::Stop("AnimHere: direction " + std::to_string(dr) + ", not 1 to 4");
  if (ds >= 0)
    Anim(rp, cp, wd, ht, dr, ds, sp, er);
  else
    Anim(rp, cp, wd, ht, ReversedDirection(dr), -ds, sp, er);
}

bool OnProblemPage() {
  switch (session.gMode) {
    case mode::SameProblem:
    case mode::NewProblem:
    case mode::LessonTestProblem:
    case mode::LessonTestReview:
    case mode::UnitTestProblem:
    case mode::UnitTestReview:
      return true;
    default:
      return false;
  }
}

}  // namespace course
