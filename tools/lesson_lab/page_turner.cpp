#include "lesson_lab/page_turner.h"

#include "display/lesson_window.h"
#include "lesson_check/prose/page_parts.h"

namespace lesson_lab {

using course::frmPR;

namespace {

// Each part's control and what it says, on lines of their own.
std::string TextOfPage() {
  std::string text;
  for (const lesson_check::PagePart& part : lesson_check::PartsOfPage(*frmPR)) {
    if (!part.name.empty() && !part.name.starts_with("picAnswer")) text += part.name + ":\n";
    for (const std::string& line : part.lines) text += line + "\n";
  }
  return text;
}

}  // namespace

void PageTurner::ReadRun(course::LessonScript& script, int entry, int seed) {
  Read(script, entry, seed, [this] { pages.push_back({frmPR->form.Grab(), TextOfPage()}); });
}

}  // namespace lesson_lab
