// The one place that binds titles to scripts.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/lesson_script.h"

namespace course {

// The script of a title, whatever its case; nullptr for a title without one.
std::unique_ptr<LessonScript> MakeLesson(const std::string& title);

// Titles of all lessons that have a script, in the order of the course.
std::vector<std::string_view> LessonTitles();

}  // namespace course
