// The worked explanation of a problem of two vehicles: the roads and the table of what is known,
// how fast the gap changes, the formula, the numbers, the check in the table and the answer.
#pragma once

#include "engine/problem.h"
#include "lessons/families/stories/two_vehicles.h"

namespace course::stories {

// From the banner to the answer; the problem is the one that asks for the vehicles.
void ExplainTwoVehicles(const TwoVehicles& vehicles, const Problem& problem);

}  // namespace course::stories
