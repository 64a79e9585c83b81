// Checks of the lessons' sources as texts: what stands in which folder and namespace, and what a
// lesson may not reach.  Complaints as in unit/walls.h.
#pragma once

#include "unit/walls.h"

namespace walls {

// Unit folders hold files that register a lesson, and nothing else.  What lessons share stands in
// lessons/families/NAME in the namespace course::NAME, or in lessons/page in course::page, and
// includes no lesson: two families may call different things by the same name.
Complaints MisplacedLessonFiles(const Files& files);
// The running stream of random numbers, in src/lessons: a problem is drawn from the stream that
// DrawProblem gets, and from no other, so that its seed is all that it depends on.
Complaints RunningStreamInLessons(const Files& files);

}  // namespace walls
