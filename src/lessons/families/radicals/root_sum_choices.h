// The choices of a problem in which a sum of radicals is simplified.
#pragma once

#include "engine/problem.h"
#include "lessons/families/radicals/root_sum.h"
#include "mathkit/random_stream.h"

namespace course::radicals {

// Two terms of the sum become like radicals, and do not come to 0; a third one may be unlike them.
void OfferRootSums(Problem& problem, const RootSum& sum, RandomStream& random);

}  // namespace course::radicals
