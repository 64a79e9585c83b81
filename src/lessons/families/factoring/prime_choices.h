// The draw of numbers that are to be factored into primes, and the choices for them.
//
// Wrong choices have one mistake each.  Where a factor too many is written, one may be made from
// these factors that are wrong already, so that the right choice is not the one most like all
// others.
#pragma once

#include "engine/problem.h"
#include "lessons/families/factoring/factor_list.h"
#include "mathkit/random_stream.h"

namespace course::factoring {

// Four or five primes up to 17, two of them different at least; their product is at most 720.
FactorList DrawPrimeFactors(RandomStream& random);

// Five shuffled choices.
void OfferFactorizations(Problem& problem, const FactorList& primes, RandomStream& random);

}  // namespace course::factoring
