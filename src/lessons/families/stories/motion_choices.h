// The choices of "Distance-Rate-Time Problems": the usual mistakes first, then values of the same
// kind at random.  All are whole rates of the vehicle, quarter hours or quarter miles.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/stories/motion.h"
#include "mathkit/random_stream.h"

namespace course::stories {

// What a usual mistake gives in place of the answer, in the unit of what is asked for.
struct MotionMistake {
  std::string name;
  Fraction value;
};
// The most telling ones first; among them values that are right by chance or cannot be.
std::vector<MotionMistake> MistakesAt(const Motion& motion);

// Fills the choices with five that differ; in a fifth of all problems "None of the above" is right,
// and the answer stands behind it.
void FillChoices(const Motion& motion, Problem& problem, RandomStream& random);

}  // namespace course::stories
