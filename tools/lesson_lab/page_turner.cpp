#include "lesson_lab/page_turner.h"

#include "display/lesson_window.h"
#include "mathkit/tutor_codes.h"
#include "session/session.h"

namespace lesson_lab {

using course::frmPR;
using course::session;

namespace {

std::string Utf8Lines(const course::TextPanel& panel) {
  std::string text;
  for (const std::string& line : course::TranscriptLines(panel))
    text += course::ToUtf8(line) + "\n";
  return text;
}

// "NAME:" and what the control says, on lines of their own.
std::string Named(const platform::Control& control, const std::string& text) {
  return control.Visible() && !text.empty() ? control.Name() + ":\n" + text : "";
}

std::string TextOfBoxes() {
  const course::LessonWindow& window = *frmPR;
  std::string text = Named(window.picWiperBox, Utf8Lines(window.wiperText));
  for (int i = 1; i <= 5; ++i) {
    text +=
        Named(window.picCommentBox[i], Utf8Lines(*window.commentText[static_cast<std::size_t>(i)]));
    text += Named(window.picNotes[i], course::ToUtf8(window.lblNotes[i].Caption()) + "\n");
    text += Named(window.picGalleryImage[i], window.picGalleryImage[i].AccessibleText() + "\n");
  }
  if (!window.picPrintCellBox.Visible()) return text;
  for (int i = 1; i <= window.picPrintCell.Last(); ++i)
    if (!window.picPrintCell[i].AccessibleText().empty())
      text += Named(window.picPrintCell[i],
                    course::ToUtf8(window.picPrintCell[i].AccessibleText()) + "\n");
  return text;
}

std::string TextOfPage() {
  std::string text = Utf8Lines(frmPR->lessonText) + TextOfBoxes();
  for (int box = 1; box <= session.gChoiceCount; ++box)
    text += course::ToUtf8(frmPR->picAnswer[box].AccessibleText()) + "\n";
  return text;
}

}  // namespace

void PageTurner::ReadRun(course::LessonScript& script, int entry, int seed) {
  Read(script, entry, seed, [this] { pages.push_back({frmPR->form.Grab(), TextOfPage()}); });
}

}  // namespace lesson_lab
