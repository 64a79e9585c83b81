// The draws of "Translating Words Into Expressions".
#pragma once

#include <vector>

#include "lessons/families/stories/worded_nest.h"
#include "mathkit/random_stream.h"

namespace course::stories {

// One to three levels of letters and numbers, all different.
Nest DrawNest(RandomStream& random);
// Four slips: another operation, another order, both, and mostly another order beside the same
// operation.  So the right choice is not the one in the middle that all others differ from at one
// place.  Where there are words such as "less than", the other order is theirs.  Some may come to
// the same.
std::vector<NestSlip> DrawSlips(const Nest& nest, RandomStream& random);

}  // namespace course::stories
