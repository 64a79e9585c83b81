#include "lesson_lab/page_turner.h"

#include "display/panel_views.h"
#include "display/paragraph.h"
#include "mathkit/tutor_codes.h"

namespace lesson_lab {

using course::frmPR;

namespace {

std::string TextOfPage() {
  std::string text;
  for (const course::PanelView& view : course::ShownPanels(*frmPR)) {
    const std::vector<std::string> lines = view.Lines();
    if (lines.empty()) continue;
    if (view.kind == course::PanelKind::Answer)
      text += std::string(1, static_cast<char>('A' + view.index - 1)) + ": ";
    else if (view.kind != course::PanelKind::Lesson)
      text += view.control->Name() + ":\n";
    for (const std::string& line : lines)
      text += course::ToUtf8(view.kind == course::PanelKind::Answer ? course::LTrim(line) : line) +
              "\n";
  }
  return text;
}

}  // namespace

void PageTurner::ReadRun(course::LessonScript& script, int entry, int seed) {
  Read(script, entry, seed, [this] { pages.push_back({frmPR->form.Grab(), TextOfPage()}); });
}

}  // namespace lesson_lab
