// Decimal numbers as answers print them: "0.045", "1,250.5".
#pragma once

#include <string>

#include "lesson_check/exact/polynomial.h"

namespace lesson_check {

// The value of digits with at most one point; commas are passed over.  Unreadable with anything
// else.
Rational DecimalIn(const std::string& text);

// What is wrong with the form of such a number: its commas, a 0 too many or too few; "" when
// nothing is.
std::string FlawOfDecimal(const std::string& text);

// To the nearest multiple of a step, halves upward.
Rational RoundedTo(const Rational& step, const Rational& value);

}  // namespace lesson_check
