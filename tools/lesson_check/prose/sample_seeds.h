// Problems to read of a lesson: such as differ in more than their numbers.
#pragma once

#include <vector>

#include "engine/lesson_script.h"

namespace lesson_check {

// Seeds of the commonest shapes of a problem among the first seeds, the commonest first; where
// there are fewer shapes than seeds wanted, several of a shape.
std::vector<int> SampleSeeds(course::LessonScript& lesson, int count);

}  // namespace lesson_check
