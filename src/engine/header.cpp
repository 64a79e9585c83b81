#include "engine/header.h"

#include "display/drawing.h"
#include "display/grid.h"
#include "display/lesson_window.h"
#include "engine/answers.h"
#include "engine/page.h"
#include "engine/rules_and_hints.h"
#include "platform/events.h"
#include "session/session.h"

namespace course {
namespace {

constexpr platform::Colour kBannerStrip = platform::Rgb(128, 255, 255);
constexpr double kBannerFontSize = 18;  // points

// A problem page has no movement to slow down, that of the diagnostic test included.
bool HasAnimations() {
  return !OnProblemPage() && session.gMode != mode::DiagnosticProblem;
}

void ForgetAnswerParameters() {
  answerParameters.parametersSet = 0;
  answerParameters.lastBoxFontSize = 0;
  answerParameters.customLastText.clear();
  answerParameters.printChoice = nullptr;
}

void ShowScreenNumber() {
  const bool teaching = session.gMode == mode::Lesson;
  if (teaching)
    frmPR->lblScreenNumber.SetCaption("Lesson\rConcept\rScreen\r" +
                                      std::to_string(session.gScreenNum) + " of " +
                                      std::to_string(session.gScreenCount));
  frmPR->lblScreenNumber.SetVisible(teaching);
}

}  // namespace

void Header(const std::string& title) {
  ResetScreen();
  UnloadRulesAndHints();
  ForgetAnswerParameters();
  frmPR->fraNav.SetVisible(session.gHideNav != kTrue);
  frmPR->picScreenBox.SetVisible(false);
  frmPR->lessonText.Cls();
  frmPR->form.SetCaption(title);
  Locate(2, 1);
  frmPR->pnlLesson.Refresh();
  // Clicks and keys stay queued: taken here, a wish to leave would be forgotten by the wait for an
  // answer that follows.
  platform::PumpPaintEvents();
  frmPR->fraAnimSpeed.SetVisible(HasAnimations());
  ShowScreenNumber();
  ShowRulesButton();
  session.gDrawnPoints.fill(0);
  session.gDrawnPointCount = 0;
}

std::string BannerText() {
  switch (session.gMode) {
    case mode::SameProblem:
    case mode::NewProblem:
      return "Try the following problem";
    case mode::Explanation:
      return "Explanation of previous problem";
    case mode::Example:
      return "Here's an example";
    case mode::LessonTestProblem:
      return "Lesson Test Problem " + std::to_string(session.gLessonTestProb);
    case mode::LessonTestReview:
      return "Lesson Test Problem " + std::to_string(session.gLessonTestReviewNum);
    case mode::LessonTestExplanation:
      return "Explanation: Lesson Test Problem " + std::to_string(session.gLessonTestReviewNum);
    case mode::UnitTestProblem:
      return "Unit Test Problem " + std::to_string(session.gChapterTestProb);
    case mode::UnitTestReview:
      return "Unit Test Problem " + std::to_string(session.gChapterTestReviewNum);
    case mode::UnitTestExplanation:
      return "Explanation: Unit Test Problem " + std::to_string(session.gChapterTestReviewNum);
    case mode::DiagnosticProblem:
      return "Diagnostic Test Problem " + std::to_string(session.gDiagnosticProb);
    default:
      return "";
  }
}

void ProblemBanner(double rowOffset) {
  using platform::colour::Blue;
  const std::string heading = BannerText();
  if (heading.empty()) return;
  const double columns = frmPR->picTextWidth.TextWidth(heading) / gCellWidth;
  isDrawRoundRectFilled(rowOffset + 2.3, 1, rowOffset + 2.6, columns + 2, 1, kBannerStrip,
                        kBannerStrip);
  PrintNiceHeading(0, " " + heading + " ", rowOffset + 2.4, 1.5, "", true, false, kBannerFontSize,
                   Blue, Blue, 0);
}

}  // namespace course
