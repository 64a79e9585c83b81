#include "lesson_check/pages/page_reader.h"

#include "display/lesson_window.h"
#include "engine/navigation.h"
#include "lesson_check/pages/entry.h"
#include "platform/events.h"
#include "session/session.h"

namespace lesson_check {

using course::frmPR;
using course::session;

namespace {

// What the dispatcher does between two runs.
void ClearWindow() {
  frmPR->lessonText.Cls();
  for (int i = 1; i <= 5; ++i) frmPR->picAnswer[i].SetVisible(false);
  frmPR->lblSelect.SetVisible(false);
}

// Where a test shows its results over the last page, no wait of the lesson's own comes there.
bool EndsBeforeResults(int entry) {
  namespace mode = course::mode;
  return entry == mode::LessonTestReview || entry == mode::LessonTestExplanation ||
         entry == mode::UnitTestReview || entry == mode::UnitTestExplanation;
}

}  // namespace

PageReader::PageReader(WindowLook look) {
  if (look == WindowLook::Hidden) paintingOff_.emplace();
  course::LoadLessonWindow();
  if (look == WindowLook::Hidden) frmPR->form.Hide();
}

PageReader::~PageReader() {
  course::UnloadLessonWindow();
}

void PageReader::Read(course::LessonScript& lesson, int entry, int seed,
                      std::function<void()> look) {
  session = course::Session{};
  ClearWindow();
  look_ = std::move(look);
  WantEntry(entry, seed);
  lesson.Run();
  platform::PumpPaintEvents();  // what the run has left in the toolkit's queue
  if (EndsBeforeResults(entry)) look_();
}

void PageReader::AtWait(const std::string& place) {
  look_();
  if (place == "PageEnd")
    session.gProceed = 1;
  else if (platform::Form* dialog = platform::Form::ModalForm())
    dialog->Close();
  else
    session.gLeaveLesson = 1;
}

platform::Answer PageReader::AtMessage(const platform::Message& message) {
  look_();
  return IdleUser::AtMessage(message);
}

}  // namespace lesson_check
