// The summary of a check: mistakes, kinds of problem, and how easily the right choice is guessed.
#pragma once

#include "lesson_check/problem_check.h"

namespace lesson_lab {

void PrintTally(const lesson_check::Tally& tally);

}  // namespace lesson_lab
