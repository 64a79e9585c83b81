// Checks a lesson over a range of seeds: every problem as it is drawn, and the pages on which it is
// shown and explained.
#pragma once

#include <array>
#include <cstdint>
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

// What only many problems together tell.  Too few draws accepted; choices that give the right one
// away to a student who does not work, unless their recipe is laid down.
void CheckAcceptance(Report& report);
void CheckHabits(Report& report, bool laidDown);
// Mistakes that the judge derives and that no problem of all seeds offers.  A judge may serve
// several lessons: the tally is that of all of them.
void CheckRecipes(const Tally& tally, Report& report);

// Numbers for the problems of all seeds, cut into blocks: each stands for all problems up to the
// end of its block, so that the first one that changes tells where the problems do.
inline constexpr int kSeedBlocks = 8;
inline constexpr int kBlockSeeds = (kSeeds + kSeedBlocks - 1) / kSeedBlocks;
std::array<std::uint64_t, kSeedBlocks> HashesOfProblems(course::LessonScript& lesson);

}  // namespace lesson_check
