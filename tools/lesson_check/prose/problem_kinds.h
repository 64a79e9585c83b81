// Problems of one lesson that differ in more than their numbers.
#pragma once

#include <string>
#include <vector>

#include "engine/lesson_script.h"

namespace lesson_check {

// Question, figure and right answer without their numbers and letters: "Solve: #x + # < #" ...
std::string KindOf(const course::Problem& problem);

// Seeds of the commonest kinds among the first seeds, the commonest first; where there are fewer
// kinds than seeds wanted, several of a kind.
std::vector<int> SeedsOfSeveralKinds(course::LessonScript& lesson, int count);

}  // namespace lesson_check
