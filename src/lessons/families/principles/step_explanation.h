// The worked explanation of a problem about one step on both sides, from the banner to the right
// choice: the equations above, and a white box below that tells what is done.
#pragma once

#include "engine/problem.h"
#include "lessons/families/principles/both_sides.h"

namespace course::principles {

void ExplainStep(const StepProblem& drawn, const Problem& problem);

}  // namespace course::principles
