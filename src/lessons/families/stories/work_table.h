// The table of work problems: rate x time = part of the job, for two workers and for both.
#pragma once

#include <string>

#include "lessons/families/stories/shared_job.h"
#include "platform/geometry.h"

namespace course::stories {

enum class WorkColumn { Rate = 1, Time, Part };

inline constexpr double kWorkTableRows = 6;  // its height

// Empty, from a row of the lesson screen on, under the names of the two workers.
void ShowWorkTable(double row, const std::string& first, const std::string& second);
// Prints into a cell, in place of what stands there.
void FillWork(WorkPart row, WorkColumn column, const std::string& text,
              platform::Colour colour = platform::colour::Black);

}  // namespace course::stories
