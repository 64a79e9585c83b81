// Faults of a page that an eye would see: text outside the grid or its box, over another text, or
// under a box.
#pragma once

#include <string>
#include <vector>

#include "display/lesson_window.h"

namespace lesson_check {

// One complaint a fault of the page that the window shows now.
std::vector<std::string> LayoutFaults(course::LessonWindow& window);

// Texts of one panel that lie over each other, and words that were printed over in part.  A later
// text may replace whole words of an earlier one where the panel erases, and may repeat it in place
// in another colour.
std::vector<std::string> Overprints(const course::TextPanel& panel);

}  // namespace lesson_check
