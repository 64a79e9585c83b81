// Finds the script of a title.  Each lesson's file ends with the line that enters it here.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/lesson_script.h"

namespace course {

// The script of a title, whatever its case; nullptr for a title without one.
std::unique_ptr<LessonScript> MakeLesson(std::string_view title);

// Titles of all lessons that have a script, in the order of the course, as the lessons spell them.
// The blank lesson comes last.
std::vector<std::string_view> LessonTitles();

using LessonMaker = std::unique_ptr<LessonScript> (*)(std::string title);
void RegisterLesson(std::string_view title, LessonMaker make);

// const LessonRegistration<SimpleInequalities> kRegistration("Simple Inequalities");
template <class Lesson>
struct LessonRegistration {
  explicit LessonRegistration(std::string_view title) {
    RegisterLesson(title, [](std::string given) -> std::unique_ptr<LessonScript> {
      return std::make_unique<Lesson>(std::move(given));
    });
  }
};

}  // namespace course
