// Checks a lesson over a range of seeds: every problem as it is drawn, and the pages on which it is
// shown and explained.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "engine/lesson_script.h"
#include "lesson_check/report.h"

namespace lesson_check {

struct SeedRange {
  int first = 0;
  int last = kSeeds - 1;  // included
  int step = 1;
};

using MakeScript = std::function<std::unique_ptr<course::LessonScript>()>;

// Draws each problem twice, and lets the judge of the lesson's title read it.  Needs no window.
// tick is called after each seed.
Report CheckDrawing(const MakeScript& make, const SeedRange& seeds,
                    const std::function<void()>& tick = {});

// Draws each problem once and only counts: enough for CheckAcceptance.
Report CountDraws(const MakeScript& make, const SeedRange& seeds);

// Shows and explains each problem in a lesson window of its own.
Report CheckPages(const MakeScript& make, const SeedRange& seeds,
                  const std::function<void()>& tick = {});

// The teaching screens.
Report CheckTeaching(const MakeScript& make);

// What only many problems together tell: too few draws accepted.
void CheckAcceptance(Report& report);

// One number for the problems of all seeds.
std::uint64_t HashOfProblems(course::LessonScript& lesson);

}  // namespace lesson_check
