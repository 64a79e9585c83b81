// What the slips of adding decimal numbers lead to.  Numbers are texts, "6" or "0.35", with at most
// two decimal places; values are in thousandths.
#pragma once

#include <string>
#include <vector>

#include "engine/problem.h"
#include "lessons/families/written/whole_number_choices.h"
#include "mathkit/random_stream.h"

namespace course::written {

// "0.045", "7": no 0 at the end.
std::string ThousandthsText(int thousandths);
int ThousandthsIn(const std::string& number);
// Decimal places: 0 of "6", 2 of "0.35".
int DecimalsOf(const std::string& number);
// With zeros at the end, up to so many decimal places: "6" and 2 are "6.00".
std::string WithZeros(const std::string& number, int decimals);
// Whether the tenths of the sum are 10 or more, so that a 1 is carried past the point.
bool CarriesPastThePoint(const std::string& first, const std::string& second);

// No two of them have the same value, and none has the right one.
std::vector<NumberMistake> DecimalSumMistakes(const std::string& first, const std::string& second);

// Five shuffled choices.  How many of the wrong ones are smaller than the right one is drawn first,
// as far as there are such mistakes.
void FillDecimalSumChoices(Problem& problem, const std::string& first, const std::string& second,
                           RandomStream& random);

}  // namespace course::written
