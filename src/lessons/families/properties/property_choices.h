// The five answers to the question which properties an equation shows, and the mistakes behind the
// wrong ones.
#pragma once

#include <string>

#include "engine/problem.h"
#include "lessons/families/properties/statement.h"

namespace course::properties {

// "commutative and associative"; that the equation is false where there are none.
std::string PropertiesText(PropertySet properties);

// Fills question and choices: the four rivals of the statement, and that it is false.
void SetPropertyProblem(Problem& problem, const Operation& operation, const Statement& statement);

}  // namespace course::properties
