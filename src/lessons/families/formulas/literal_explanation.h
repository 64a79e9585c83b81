// The worked explanation of an equation with several letters, from the banner to the right choice:
// the equation is rewritten above, step under step, and a white box below tells what is done.
#pragma once

#include "engine/problem.h"
#include "lessons/families/formulas/literal_equation.h"

namespace course::formulas {

void ExplainLiteral(const LiteralEquation& equation, const Problem& problem);

}  // namespace course::formulas
