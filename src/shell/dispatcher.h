// The loop in which the whole lesson side of the course happens.
#pragma once

#include <string>

namespace course {

// Where a lesson was chosen: what RunLesson reads from and does to the menu.
struct LessonChoice {
  std::string title;  // as the menu lists it
  int unit = 0;       // 1-based
  int row = 0;
};

// Runs the chosen lesson from the first to the last of its runs; returns when it is left.  The caller has
// disabled the menu.
void RunLesson(const LessonChoice& choice);

}  // namespace course
