// What a lesson and its judge begin as: whole and compiled at once, with everything that its
// subject decides still to be written.
#pragma once

#include <string>

namespace lesson_lab {

struct NewLesson {
  std::string title;      // in single bytes, as the catalogue spells it
  std::string className;  // "SimpleInequalities"
  int screens = 1;        // as the catalogue tells
};

// Texts of the two source files.
std::string LessonText(const NewLesson& lesson);
std::string JudgeText(const NewLesson& lesson);

}  // namespace lesson_lab
