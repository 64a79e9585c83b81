// Boxes that lie over each other.
#pragma once

#include <string>
#include <vector>

#include "display/lesson_window.h"

namespace lesson_check {

// A complaint for any two shown boxes of the window that overlap: texts, figures, notes, pictures,
// tables, answers, and a table's cells among each other.
std::vector<std::string> OverlappingBoxes(course::LessonWindow& window);

}  // namespace lesson_check
