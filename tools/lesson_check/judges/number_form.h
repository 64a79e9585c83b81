// The forms in which a number may stand in an answer.
#pragma once

#include <string>

#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

// The value of a number as the answers print it; unreadable with a decimal point.
Rational NumberIn(const std::string& text);

// What is wrong with a whole number or mixed number that should be in lowest terms, as in "can be
// reduced"; "" when nothing is.
std::string FlawOfMixedNumber(const std::string& text);

}  // namespace lesson_check
