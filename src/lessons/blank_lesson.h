// The smallest complete lesson, the one to copy for a new one.  It stands in no unit and in no
// table.
#pragma once

#include <memory>

#include "engine/lesson_script.h"

namespace course {

std::unique_ptr<LessonScript> MakeBlankLesson();

}  // namespace course
