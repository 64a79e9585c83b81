// The worked explanation of a problem of motion: the facts in a table, the real rate, the time in
// hours, the formula in the wanted form, the numbers, the check and the answer, with words in a
// white box below.
#pragma once

#include "engine/problem.h"
#include "lessons/families/stories/motion.h"

namespace course::stories {

// From the banner to the answer; the problem is the one that asks for the motion.
void ExplainMotion(const Motion& motion, const Problem& problem);

}  // namespace course::stories
