// Draws an expression in one or two letters whose value is found in the head.
#pragma once

#include <vector>

#include "lessons/families/substitution/valued_expression.h"
#include "mathkit/random_stream.h"

namespace course::substitution {

// One to three terms, numbers from -9 to 9, a value from -100 to 100 that is not 0, and three
// mistakes or more to be offered.
ValuedExpression DrawExpression(RandomStream& random);
// Those of WrongValuesOf that are not too large to be believed.
std::vector<WrongValue> BelievableMistakes(const ValuedExpression& expression);

}  // namespace course::substitution
