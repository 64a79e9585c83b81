// The choices of a problem in which one radical is simplified: the right one, and what students
// make of the same radicand.
#pragma once

#include "engine/problem.h"
#include "lessons/families/radicals/root_term.h"
#include "mathkit/random_stream.h"

namespace course::radicals {

void OfferRoots(Problem& problem, const Term& radicand, RandomStream& random);

}  // namespace course::radicals
