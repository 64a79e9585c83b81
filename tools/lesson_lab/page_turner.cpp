#include "lesson_lab/page_turner.h"

#include "display/lesson_window.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_lab {

using course::frmPR;
using course::session;

namespace {

std::string TextOfPage() {
  std::string text;
  for (const std::string& line : course::TranscriptLines(frmPR->lessonText))
    text += course::ToUtf8(line) + "\n";
  for (int box = 1; box <= session.gChoiceCount; ++box)
    text += course::ToUtf8(frmPR->picAnswer[box].AccessibleText()) + "\n";
  return text;
}

}  // namespace

void PageTurner::KeepPage() {
  pages.push_back({frmPR->form.Grab(), TextOfPage()});
}

void PageTurner::AtWait(const std::string& place) {
  KeepPage();
  if (place == "PageEnd")
    frmPR->pnlLesson.Click();
  else if (platform::Form* dialog = platform::Form::ModalForm())
    dialog->Close();
  else
    session.gLeaveLesson = 1;
}

platform::Answer PageTurner::AtMessage(const platform::Message& message) {
  KeepPage();
  return lesson_check::IdleUser::AtMessage(message);
}

}  // namespace lesson_lab
