// What is wrong with the form of a printed text, whatever it means.
#pragma once

#include <string>
#include <vector>

namespace lesson_check {

// Each fault completes "the text has ...": "a denominator of 1", "an exponent of 1", "a sign behind
// a sign".  The names are those that Reading::excused takes.
std::vector<std::string> FormFaults(const std::string& text);

// A fraction of whole numbers that can be reduced or hides a whole number; "" when there is none.
std::string FlawOfFractions(const std::string& text);

// A question that asks for a letter ("Solve for x") which no line of mathematics has, as the
// complaint; "" when there is none.
std::string FlawOfAskedLetter(const std::vector<std::string>& question);

}  // namespace lesson_check
