// Times as the word problems print them.
#pragma once

#include <string>

#include "mathkit/fraction.h"

namespace course::stories {

// "4 hours & 30 minutes", "1 hour", "45 minutes": with hard blanks inside each part.
std::string DurationText(int minutes);
// So many minutes as a fraction of hours.
Fraction HoursOf(int minutes);
// "4 1/2 hours", "1 hour", "3/4 hour".
std::string HoursText(const Fraction& hours);
// A number and its unit in the singular, with "s" for more than one: "67 1/2 miles", "1/4 mile".
std::string QuantityText(const Fraction& number, const std::string& unit);

}  // namespace course::stories
