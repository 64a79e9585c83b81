// The table of work problems: rate x time = part of the job, for two workers and for both.  And
// the lines of working with their rates.
#pragma once

#include <string>

#include "lessons/families/stories/shared_job.h"
#include "mathkit/fraction.h"
#include "platform/geometry.h"

namespace course::stories {

enum class WorkColumn { Rate = 1, Time, Part };

inline constexpr double kWorkTableRows = 6;  // its height

// Empty, from a row of the lesson screen on, under the names of the two workers.
void ShowWorkTable(double row, const std::string& first, const std::string& second);
// Prints into a cell, in place of what stands there.
void FillWork(WorkPart row, WorkColumn column, const std::string& text,
              platform::Colour colour = platform::colour::Black);

// "15/4 = 3 3/4", "3".
std::string AndMixed(const Fraction& value);
// "5T/12", "T/6", "T" of a rate times T.
std::string RateTimesT(const Fraction& rate);
// "1/6 + 1/4 = 2/12 + 3/12 = 5/12", each step only where it changes something; the sign is "+" or
// "-".
std::string RatesLine(const Fraction& a, const std::string& sign, const Fraction& b);

}  // namespace course::stories
