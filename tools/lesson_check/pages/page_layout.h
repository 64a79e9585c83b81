// Faults of a page that an eye would see: text outside the grid or its box, over another text, or
// under a box.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "display/lesson_window.h"
#include "display/panel_views.h"
#include "lesson_check/pages/glyph_boxes.h"

namespace lesson_check {

// Looks at one page of a window after another; what stands on a panel unchanged is not read again.
class PageLayout {
 public:
  // One complaint a fault of the page that the window shows now.  Texts of one panel must not lie
  // over each other, nor cut words.  A later text may replace whole words of an earlier one where
  // the panel erases, and may repeat it in place in another colour.
  std::vector<std::string> FaultsOf(course::LessonWindow& window);

 private:
  struct Panel {
    StandingText text;
    std::vector<std::string> overprints;  // since it was cleared
    std::vector<std::string> outside;     // of its box
    int width = 0;                        // of its box, in pixels
    int height = 0;
  };
  const Panel& Read(const course::PanelView& view);

  std::map<std::string, Panel> panels_;  // by the names of their controls
};

}  // namespace lesson_check
